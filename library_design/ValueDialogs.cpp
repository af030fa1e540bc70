#include "library_design/ValueDialogs.h"

#include <QtWidgets>

#include "dclstd/EditValue.h"
#include "library_design/Named.h"
#include "library_design/pVRXCommon.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"

TVRXSelectValueDlg::TVRXSelectValueDlg(QWidget* owner) : RowDialog(QStringLiteral("Select Value"), owner) {
  about = QuietLine(this, "about");
  names = Named(new QListWidget(this), "names", "The values that can be chosen.");
  names->setAccessibleName(QStringLiteral("Values"));
  about->setBuddy(names);
  Follows(names);
  OkButton(ok, "ok");
  CancelButton(cancel, "cancel");
  auto* box = new QVBoxLayout(this);
  box->addWidget(about);
  box->addWidget(names, 1);
  box->addLayout(ButtonLine({ok, cancel}));
  connect(names, &QListWidget::itemDoubleClicked, this, [this] {
    if (!set_) accept();
  });
  VRXSetThemeMode(*this, 1);
  SetTabSequence();
  FormCreate();
  resize(QSize(280, 240).expandedTo(minimumSizeHint()));
}

void TVRXSelectValueDlg::SetNames(const QString& property, const QStringList& all, bool set,
                                  std::int64_t value) {
  set_ = set;
  about->setText(property + u':');
  names->clear();
  names->addItems(all);
  for (int i = 0; i < names->count(); ++i)
    if (set) names->item(i)->setCheckState(value >> i & 1 ? Qt::Checked : Qt::Unchecked);
  names->setCurrentRow(set ? 0 : static_cast<int>(value));
}

std::int64_t TVRXSelectValueDlg::Chosen() const {
  if (!set_) return names->currentRow();
  std::int64_t value = 0;
  for (int i = 0; i < names->count(); ++i)
    if (names->item(i)->checkState() == Qt::Checked) value |= std::int64_t{1} << i;
  return value;
}

bool VRXCPSelectValueDialog(TPersistent& object, const char* property) {
  const TPropInfo& prop = object.ClassType().GetProp(property);
  const bool set = prop.Kind() == TTypeKind::tkSet;
  if (!set && prop.Kind() != TTypeKind::tkEnumeration)
    throw EPropertyError(
        QStringLiteral("%1 of %2 has no names to choose from.")
            .arg(QString::fromLatin1(prop.Name), QString::fromLatin1(object.ClassType().ClassName())));
  const TTypeInfo& type = set ? *prop.PropType->CompType : *prop.PropType;
  QStringList names;
  for (const QByteArray& name : type.Elements) names << QString::fromLatin1(name);
  const std::int64_t before = GetOrdProp(object, prop);
  TVRXSelectValueDlg dialog(ApplicationOwner());
  dialog.SetNames(QString::fromLatin1(prop.Name), names, set, before);
  if (dialog.ShowModal() != mrOk || dialog.Chosen() == before) return false;
  SetOrdProp(object, prop, dialog.Chosen());
  return true;
}

TVRXTextDlg::TVRXTextDlg(QWidget* owner) : RowDialog(QStringLiteral("Value"), owner) {
  auto* grid = new QGridLayout;
  RowsInto(*grid);
  Row(text, "text", "", "&Value:").Changes(&TVRXTextDlg::textChange);
  text->setMinimumWidth(260);
  problem = QuietLine(this, "problem");
  problem->setWordWrap(true);
  Wide({problem});
  Button(ok, "ok", "OK", &TVRXTextDlg::okClick);
  ok->setDefault(true);
  CancelButton(cancel, "cancel");
  auto* box = new QVBoxLayout(this);
  box->addLayout(grid);
  box->addStretch(1);
  box->addLayout(ButtonLine({ok, cancel}));
  VRXSetThemeMode(*this, 1);
  SetTabSequence();
  FormCreate();
}

void TVRXTextDlg::SetText(const QString& title, const QString& value,
                          std::function<void(const QString&)> take) {
  setWindowTitle(title);
  take_ = std::move(take);
  text->setText(value);
  text->selectAll();
}

void TVRXTextDlg::textChange() { problem->clear(); }

void TVRXTextDlg::okClick() {
  try {
    if (take_) take_(text->text());
  } catch (const Exception& error) {
    return problem->setText(error.Message());
  }
  accept();
}

bool VRXCPGetCaption(QString& caption) {
  TVRXTextDlg dialog(ApplicationOwner());
  dialog.SetText(QStringLiteral("Caption"), caption, {});
  if (dialog.ShowModal() != mrOk || dialog.text->text() == caption) return false;
  caption = dialog.text->text();
  return true;
}

bool VRXCPGetSettingEditor(TPersistent& object, const char* property) {
  const TPropInfo& prop = object.ClassType().GetProp(property);
  const QString before = GetPropText(object, prop);
  TVRXTextDlg dialog(ApplicationOwner());
  dialog.SetText(QString::fromLatin1(prop.Name), before, [&](const QString& text) {
    if (text != before) SetPropText(object, prop, text);
  });
  return dialog.ShowModal() == mrOk && GetPropText(object, prop) != before;
}
