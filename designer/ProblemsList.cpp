#include "designer/ProblemsList.h"

#include <QStyle>

#include "rtl/Exceptions.h"

namespace {
// Finding problems costs as much as opening the form: it waits until nobody is at it.
constexpr int SettledAfter = 600;
}  // namespace

ProblemsList::ProblemsList(QWidget* parent) : QListWidget(parent), settled_(this) {
  setFrameShape(QFrame::NoFrame);
  setWordWrap(true);
  setAccessibleName(tr("Problems"));
  settled_.setSingleShot(true);
  settled_.setInterval(SettledAfter);
  connect(&settled_, &QTimer::timeout, this, [this] {
    if (!session_) return;
    try {
      session_->FindAgain();
    } catch (const Exception&) {
      // As it is now it could not be read; saving says so.
    }
  });
}

void ProblemsList::SetSession(FormSession* session) {
  settled_.stop();
  if (session_) disconnect(session_, nullptr, this, nullptr);
  session_ = session;
  mayHave_ = false;
  clear();
  if (!session) return;
  connect(session, &FormSession::Changed, this, &ProblemsList::FormChanged);
  connect(session, &FormSession::FindingsChanged, this, &ProblemsList::Show);
  Show();
}

void ProblemsList::FormChanged(const FormChange& change) {
  mayHave_ = mayHave_ || change.structure;
  if (mayHave_) settled_.start();
}

void ProblemsList::Show() {
  const int before = count(), row = currentRow();
  clear();
  if (session_)
    for (const forms::Finding& f : session_->Findings()) {
      if (f.severity == forms::Severity::Note && !f.missingFile) continue;
      auto* item = new QListWidgetItem(
          f.where.line > 0 ? tr("Line %1: %2").arg(f.where.line).arg(f.text) : f.text, this);
      item->setIcon(style()->standardIcon(f.severity == forms::Severity::Error
                                              ? QStyle::SP_MessageBoxCritical
                                              : QStyle::SP_MessageBoxWarning));
    }
  setCurrentRow(std::min(row, count() - 1));
  mayHave_ = mayHave_ || count() > 0;
  emit Told(count() > before);
}
