#include "library/components/BaseDialog.h"

#include <QtWidgets>

const TClass& TVRXBaseDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXBaseDialog>("TVRXBaseDialog", TComponent::StaticClass())
          .Published(Caption)
          .Doc(QStringLiteral("What stands in the title bar; the usual text when it is empty."))
          .Passive("HelpContext", 0)
          .Published(ImageIndex)
          .Doc(QStringLiteral("The picture beside the content."))
          .Published(ImageList)
          .Doc(QStringLiteral("The list that the picture is in."))
          .Published(Prompt)
          .Doc(QStringLiteral("A line above the content."))
          .Event("OnClose")
          .Event("OnShow"));
  return cls;
}

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

bool TVRXBaseDialog::Run(bool keep) {
  QDialog dialog(QApplication::activeWindow());
  const Content content = MakeContent();
  dialog.setObjectName(Name());
  dialog.setWindowTitle(Get(Caption).isEmpty() ? content.caption : Get(Caption));
  auto* head = new QHBoxLayout;
  head->setSpacing(12);
  if (const auto* list = Get(ImageList); list && !list->Image(Get(ImageIndex)).isNull()) {
    auto* picture = new QLabel;
    picture->setObjectName(QStringLiteral("picture"));
    picture->setPixmap(QPixmap::fromImage(list->Image(Get(ImageIndex))));
    head->addWidget(picture, 0, Qt::AlignTop);
  }
  auto* column = new QVBoxLayout;
  column->setSpacing(6);
  if (!Get(Prompt).isEmpty()) {
    auto* prompt = new QLabel(Get(Prompt));
    prompt->setObjectName(QStringLiteral("prompt"));
    prompt->setWordWrap(true);
    prompt->setBuddy(content.widget);
    column->addWidget(prompt);
  }
  if (content.widget) column->addWidget(content.widget, 1);
  head->addLayout(column, 1);
  auto* buttons =
      new QDialogButtonBox(content.answers ? QDialogButtonBox::Ok | QDialogButtonBox::Cancel
                                           : QDialogButtonBox::StandardButtons(QDialogButtonBox::Ok));
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  auto* box = new QVBoxLayout(&dialog);
  box->setContentsMargins(12, 12, 12, 12);
  box->setSpacing(12);
  box->addLayout(head, 1);
  box->addWidget(buttons);
  if (content.widget) content.widget->setFocus();
  if (VRXRunDialog(dialog) != QDialog::Accepted) return false;
  if (keep && content.take) content.take();
  return true;
}
