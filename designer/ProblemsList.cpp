#include "designer/ProblemsList.h"

#include <QStyle>

ProblemsList::ProblemsList(QWidget* parent) : QListWidget(parent) {
  setFrameShape(QFrame::NoFrame);
  setWordWrap(true);
  setAccessibleName(tr("Problems"));
}

void ProblemsList::Show(const std::vector<forms::Finding>& findings) {
  clear();
  for (const forms::Finding& f : findings) {
    if (f.severity == forms::Severity::Note && !f.missingFile) continue;
    auto* item = new QListWidgetItem(
        f.where.line > 0 ? tr("Line %1: %2").arg(f.where.line).arg(f.text) : f.text, this);
    item->setIcon(style()->standardIcon(f.severity == forms::Severity::Error ? QStyle::SP_MessageBoxCritical
                                                                             : QStyle::SP_MessageBoxWarning));
  }
}
