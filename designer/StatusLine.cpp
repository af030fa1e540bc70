#include "designer/StatusLine.h"

#include <QtWidgets>

StatusLine::StatusLine(QStatusBar& bar, int grid) : QObject(&bar) {
  for (QLabel** label : {&selection_, &bounds_, &modified_, &zoom_}) *label = new QLabel;
  bar.addWidget(selection_);
  bar.addWidget(bounds_);
  bar.addPermanentWidget(new QLabel(tr("Grid %1").arg(grid)));
  bar.addPermanentWidget(zoom_);
  bar.addPermanentWidget(modified_);
}

void StatusLine::Show(const FormSession* session, double zoom) {
  zoom_->setText(tr("%1 %").arg(qRound(zoom * 100)));
  if (!session) return;
  modified_->setText(session->IsModified() ? tr("Modified") : QString());
  const auto selected = session->SelectedComponents();
  const TComponent& c = *selected.front();
  const auto* control = selected.size() == 1 ? As<TControl>(&c) : nullptr;
  const QString parts = session->SelectedPartsText();
  selection_->setText(!parts.isEmpty() ? parts
                      : selected.size() > 1
                          ? tr("%n selected", nullptr, static_cast<int>(selected.size()))
                          : QStringLiteral("%1: %2").arg(c.Name(), QString::fromUtf8(c.StreamClassName())));
  bounds_->setText(control ? QStringLiteral("%1, %2   %3 x %4")
                                 .arg(control->Left())
                                 .arg(control->Top())
                                 .arg(control->Width())
                                 .arg(control->Height())
                           : QString());
}
