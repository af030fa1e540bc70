#include "library/components/DialogFrame.h"

#include <QtWidgets>

#include "vcl/Prompts.h"

namespace {
TVRXDialogAnswers::Answer& TheAnswer() {
  static TVRXDialogAnswers::Answer answer;
  return answer;
}
}  // namespace

int VRXRunDialog(QDialog& dialog) { return TheAnswer() ? TheAnswer()(dialog) : dialog.exec(); }
TVRXDialogAnswers::TVRXDialogAnswers(Answer answer)
    : before_(std::exchange(TheAnswer(), std::move(answer))) {}
TVRXDialogAnswers::~TVRXDialogAnswers() { TheAnswer() = std::move(before_); }

void VRXConfirmDialog(const QWidget& inside) {
  if (const auto* buttons = inside.window()->findChild<QDialogButtonBox*>(QStringLiteral("answers")))
    buttons->button(QDialogButtonBox::Ok)->click();
}

bool VRXShowContent(const TVRXDialogHead& head, const TVRXDialogContent& content, bool keep) {
  QDialog dialog(QApplication::activeWindow());
  dialog.setObjectName(head.name);
  dialog.setWindowTitle(head.caption.isEmpty() ? content.caption : head.caption);
  auto* row = new QHBoxLayout;
  row->setSpacing(12);
  if (!head.picture.isNull()) {
    auto* picture = new QLabel;
    picture->setObjectName(QStringLiteral("picture"));
    picture->setPixmap(QPixmap::fromImage(head.picture));
    row->addWidget(picture, 0, Qt::AlignTop);
  }
  auto* column = new QVBoxLayout;
  column->setSpacing(6);
  if (!head.prompt.isEmpty()) {
    auto* prompt = new QLabel(head.prompt);
    prompt->setObjectName(QStringLiteral("prompt"));
    prompt->setWordWrap(true);
    prompt->setBuddy(content.widget);
    column->addWidget(prompt);
  }
  if (content.widget) column->addWidget(content.widget, 1);
  row->addLayout(column, 1);
  auto* buttons =
      new QDialogButtonBox(content.answers ? QDialogButtonBox::Ok | QDialogButtonBox::Cancel
                                           : QDialogButtonBox::StandardButtons(QDialogButtonBox::Ok));
  buttons->setObjectName(QStringLiteral("answers"));
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, [&dialog, &content] {
    if (content.shows && content.shows()) return;
    const QString why = content.refuse ? content.refuse() : QString();
    if (why.isEmpty()) return dialog.accept();
    Prompts().Warn(&dialog, dialog.windowTitle(), why);
  });
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  auto* box = new QVBoxLayout(&dialog);
  box->setContentsMargins(12, 12, 12, 12);
  box->setSpacing(12);
  box->addLayout(row, 1);
  box->addWidget(buttons);
  if (content.widget) content.widget->setFocus();
  if (VRXRunDialog(dialog) != QDialog::Accepted) return false;
  if (keep && content.take) content.take();
  return true;
}
