#include "dclstd/StandardEditors.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFontDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "dclstd/ColorDialog.h"
#include "designintf/CustomColors.h"
#include "designintf/IdeTheme.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Strings.h"
#include "vcl/ColorSwatch.h"
#include "vcl/Control.h"

using enum TPropertyAttribute;

TPropertyAttributes TColorProperty::GetAttributes() const {
  return {paMultiSelect, paDialog, paValueList, paRevertable, paValueEditable};
}
void TColorProperty::SetValue(const QString& value) {
  SetOrdValue(static_cast<std::int64_t>(StringToColor(value)));
}
void TColorProperty::GetValues(const TGetStrProc& proc) const {
  for (const TColorEntry& e : NamedColors()) proc(QString::fromLatin1(e.Name));
}
QIcon TColorProperty::GetValueIcon(const QString& value) const {
  try {
    return ColorSwatch(StringToColor(value));
  } catch (const std::exception&) {
    return {};
  }
}
void TColorProperty::Edit() {
  TColor color = TColor(static_cast<std::uint32_t>(GetOrdValue()));
  QStringList custom = LoadIDECustomColors();
  const bool chosen = ChooseColor(nullptr, color, custom);
  SaveIDECustomColors(custom);
  if (chosen) SetOrdValue(static_cast<std::int64_t>(color));
}

TPropertyAttributes TNamedIntegerProperty::GetAttributes() const {
  return {paMultiSelect, paValueList, paRevertable, paValueEditable};
}

namespace {
// Every value of a small range that has a name.
void NamesOf(const TTypeInfo& type, std::int64_t from, std::int64_t to, const TGetStrProc& proc) {
  const TIntegerConsts* consts = FindIntegerConsts(type);
  QByteArray ident;
  for (std::int64_t v = from; consts && v <= to; ++v)
    if (consts->IntToIdent(v, ident)) proc(QString::fromLatin1(ident));
}
const QStringList& ModalResultNames() {
  static const QStringList names{
      QStringLiteral("mrNone"),  QStringLiteral("mrOk"),       QStringLiteral("mrCancel"),
      QStringLiteral("mrAbort"), QStringLiteral("mrRetry"),    QStringLiteral("mrIgnore"),
      QStringLiteral("mrYes"),   QStringLiteral("mrNo"),       QStringLiteral("mrClose"),
      QStringLiteral("mrHelp"),  QStringLiteral("mrTryAgain"), QStringLiteral("mrContinue")};
  return names;
}
}  // namespace

void TCursorProperty::GetValues(const TGetStrProc& proc) const { NamesOf(GetPropType(), -32, 0, proc); }
void TFontCharsetProperty::GetValues(const TGetStrProc& proc) const { NamesOf(GetPropType(), 0, 255, proc); }

void TModalResultProperty::GetValues(const TGetStrProc& proc) const {
  for (const QString& name : ModalResultNames()) proc(name);
}
QString TModalResultProperty::GetValue() const {
  return ModalResultNames().value(GetOrdValue(), QString::number(GetOrdValue()));
}

TPropertyAttributes TFontNameProperty::GetAttributes() const {
  return {paMultiSelect, paValueList, paSortList, paRevertable, paValueEditable};
}
void TFontNameProperty::GetValues(const TGetStrProc& proc) const {
  for (const QString& family : QFontDatabase::families()) proc(family);
}
std::optional<QFont> TFontNameProperty::GetValueFont(const QString& value) const { return QFont(value); }

TPropertyAttributes TFontProperty::GetAttributes() const {
  return {paMultiSelect, paSubProperties, paDialog, paReadOnly};
}
void TFontProperty::Edit() {
  TFont copy;
  copy.Assign(GetObjectValue());
  QFont start = ToQFont(copy);
  start.setPointSize(std::max(1, copy.Size()));
  QFontDialog dialog(start);
  dialog.setOption(QFontDialog::DontUseNativeDialog);
  dialog.setWindowTitle(QObject::tr("Font"));
  ApplyIDETheme(dialog);
  if (dialog.exec() != QDialog::Accepted) return;
  const QFont chosen = dialog.selectedFont();
  copy.SetName(chosen.family());
  if (chosen.pointSize() > 0) copy.SetSize(chosen.pointSize());
  TFontStyles style;
  if (chosen.bold()) style.Include(TFontStyle::fsBold);
  if (chosen.italic()) style.Include(TFontStyle::fsItalic);
  if (chosen.underline()) style.Include(TFontStyle::fsUnderline);
  if (chosen.strikeOut()) style.Include(TFontStyle::fsStrikeOut);
  copy.SetStyle(style);
  SetOrdValue(&copy);
}

TPropertyAttributes TStringListProperty::GetAttributes() const {
  return {paMultiSelect, paDialog, paReadOnly};
}
void TStringListProperty::Edit() {
  TStrings copy;
  copy.Assign(GetObjectValue());
  QDialog dialog;
  dialog.setWindowTitle(QObject::tr("String List Editor"));
  auto* text = new QPlainTextEdit(copy.Text());
  auto* count = new QLabel;
  const auto showCount = [=] {
    count->setText(
        QObject::tr("%n line(s)", nullptr, text->toPlainText().isEmpty() ? 0 : text->blockCount()));
  };
  QObject::connect(text, &QPlainTextEdit::textChanged, &dialog, showCount);
  showCount();
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  auto* box = new QVBoxLayout(&dialog);
  box->addWidget(count);
  box->addWidget(text);
  box->addWidget(buttons);
  dialog.resize(480, 360);
  ApplyIDETheme(dialog);
  if (dialog.exec() != QDialog::Accepted) return;
  // Exactly the lines on the screen, an empty last one included.
  const QString all = text->toPlainText();
  copy.SetLines(all.isEmpty() ? QStringList() : all.split(u'\n'));
  SetOrdValue(&copy);
}
