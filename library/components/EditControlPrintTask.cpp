#include "library/components/EditControlPrintTask.h"

#include <QPdfWriter>
#include <QtPrintSupport/QPrinter>

#include "library/components/PrinterSetup.h"
#include "rtl/Exceptions.h"
#include "vcl/Memo.h"

const TClass& TVRXEditControlPrintTask::StaticClass() {
  static const TClass cls(
      VRXWithPrintedText(
          DescribeClass<TVRXEditControlPrintTask>("TVRXEditControlPrintTask", TComponent::StaticClass()),
          QStringLiteral("The font of the pages, unless they have the edit's."))
          .Published(EditControl)
          .Doc(QStringLiteral("The edit whose text is printed."))
          .Published(UseControlFont)
          .Doc(QStringLiteral("Prints in the edit's own font."))
          .Alphabetical()
          .Event("OnAfterPrint")
          .Event("OnBeforePrint")
          .ClassDoc(
              QStringLiteral("Prints the text of an edit."),
              "pen line 1.5 brush fill box 6.5 3 11 6 0 box 3 8.5 18 8.5 2 box 6.5 13.5 11 7.5 0 pen accent "
              "1.8 path 9 16.2 15 16.2 path 9 18.8 13 18.8"));
  return cls;
}

const TFont& TVRXEditControlPrintTask::PrintFont() const {
  const TCustomEdit* edit = Get(EditControl);
  return edit && Get(UseControlFont) ? *edit->Font() : *Font();
}

QStringList TVRXEditControlPrintTask::Lines() const {
  const TCustomEdit* edit = Get(EditControl);
  if (!edit) return {};
  if (const auto* memo = As<TCustomMemo>(edit)) return memo->Get(TCustomMemo::Lines)->Lines();
  QString text = edit->Text();
  if (edit->Get(TCustomEdit::EchoMode) == TEchoMode::emNone) text.clear();
  if (edit->Get(TCustomEdit::PasswordChar) != TPasswordChar{} ||
      edit->Get(TCustomEdit::EchoMode) == TEchoMode::emPassword)
    text.fill(u'*');
  return text.split(u'\n');
}

int TVRXEditControlPrintTask::Print(QPagedPaintDevice& device) const {
  if (!Get(EditControl)) throw EComponentError(QStringLiteral("%1 has no edit to print.").arg(Name()));
  return Pages().Print(device, Name(), {});
}

int TVRXEditControlPrintTask::PrintToPdf(QIODevice& device) const {
  QPdfWriter writer(&device);
  writer.setTitle(Get(Title));
  return Print(writer);
}

int TVRXEditControlPrintTask::PrintToPrinter() const {
  QPrinter printer(QPrinter::HighResolution);
  VRXPrinterSetup().ApplyOrThrow(printer, Name());
  printer.setDocName(Get(Title));
  return Print(printer);
}
