#include "package/styles/StyleDialogs.h"

#include <QListWidget>
#include <QVBoxLayout>
#include <climits>

#include "library_design/Named.h"
#include "library_design/pVRXCommon.h"
#include "package/styles/StyleMessages.h"

StyleInputDialog::StyleInputDialog(QWidget* owner, const char* prompt, TakeFunction take)
    : RowDialog(QString::fromLatin1(VRXStyleEditorTitle), owner), take_(std::move(take)) {
  input = Named(new QLineEdit(this), "input", "");
  input->setMaxLength(INT_MAX);
  input->setMinimumWidth(280);
  auto* label = Named(new QLabel(QString::fromLatin1(prompt), this), "prompt", "");
  label->setBuddy(input);
  Follows(input);
  OkButton(OkBtn, "OkBtn");
  CancelButton(CancelBtn, "CancelBtn");
  VRXSetThemeMode(*this, 1);
  auto* box = new QVBoxLayout(this);
  box->addWidget(label);
  box->addWidget(input);
  box->addSpacing(8);
  box->addLayout(ButtonLine({OkBtn, CancelBtn}));
  SetTabSequence();
  FormCreate();
  setFixedSize(minimumSizeHint());
}

void StyleInputDialog::done(int result) {
  bool taken = true;
  if (result == Accepted && take_) {
    taken = false;
    Guarded([&] { taken = take_(input->text()); });
  }
  if (taken) return RowDialog::done(result);
  input->setFocus();
  input->selectAll();
}

StyleComponentsDialog::StyleComponentsDialog(QWidget* owner, const QStringList& names)
    : RowDialog(QString::fromLatin1(VRXStyleEditorTitle), owner) {
  list = Named(new QListWidget(this), "list", "A style is made of each component that is checked");
  list->setAccessibleName(QStringLiteral("Components"));
  for (const QString& name : names) {
    auto* item = new QListWidgetItem(name, list);
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    item->setCheckState(Qt::Unchecked);
  }
  if (list->count() > 0) list->setCurrentRow(0);
  Follows(list);
  OkButton(OkBtn, "OkBtn");
  CancelButton(CancelBtn, "CancelBtn");
  VRXSetThemeMode(*this, 1);
  auto* box = new QVBoxLayout(this);
  box->addWidget(list, 1);
  box->addLayout(ButtonLine({OkBtn, CancelBtn}));
  SetTabSequence();
  FormCreate();
  setSizeGripEnabled(true);
  resize(280, 320);
}

std::vector<int> StyleComponentsDialog::Checked() const {
  std::vector<int> rows;
  for (int i = 0; i < list->count(); ++i)
    if (list->item(i)->checkState() == Qt::Checked) rows.push_back(i);
  return rows;
}
