#include "library/components/EditControlPrintTask.h"

#include <QPdfWriter>
#include <QtPrintSupport/QPrinter>

#include "library/components/PrinterSetup.h"
#include "rtl/Exceptions.h"
#include "vcl/Memo.h"

const TClass& TVRXEditControlPrintTask::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXEditControlPrintTask>("TVRXEditControlPrintTask", TComponent::StaticClass())
          .Published(EditControl)
          .Doc(QStringLiteral("The edit whose text is printed."))
          .Published("Font", &TVRXEditControlPrintTask::Font, &TVRXEditControlPrintTask::SetFont)
          .Doc(QStringLiteral("The font of the pages, unless they have the edit's."))
          .Published(FooterText)
          .Doc(QStringLiteral(
              "A line at the foot of each page; {page}, {pages}, {title}, {date} and {time} are filled in."))
          .Published(HeaderText)
          .Doc(QStringLiteral("A line at the head of each page, filled in like that at the foot."))
          .Published(LineNumbers)
          .Doc(QStringLiteral("The number of each line in front of it."))
          .Published(MarginBottom)
          .Doc(QStringLiteral("Millimetres that stay free at the foot of the page."))
          .Published(MarginLeft)
          .Doc(QStringLiteral("Millimetres that stay free at the left edge."))
          .Published(MarginRight)
          .Doc(QStringLiteral("Millimetres that stay free at the right edge."))
          .Published(MarginTop)
          .Doc(QStringLiteral("Millimetres that stay free at the head of the page."))
          .Published(Orientation)
          .Doc(QStringLiteral("Upright pages, or pages across."))
          .Published(ShowPageNumbers)
          .Doc(QStringLiteral("The number of the page at its foot."))
          .Published(Title)
          .Doc(QStringLiteral("The name of the document, as print queues show it."))
          .Published(UseControlFont)
          .Doc(QStringLiteral("Prints in the edit's own font."))
          .Published(WordWrap)
          .Doc(QStringLiteral("Goes on in a new line where one is full; else it is cut off."))
          .Event("OnAfterPrint")
          .Event("OnBeforePrint")
          .ClassDoc(
              QStringLiteral("Prints the text of an edit."),
              "pen line 1.5 brush fill box 6.5 3 11 6 0 box 3 8.5 18 8.5 2 box 6.5 13.5 11 7.5 0 pen accent "
              "1.8 path 9 16.2 15 16.2 path 9 18.8 13 18.8"));
  return cls;
}

TVRXEditControlPrintTask::TVRXEditControlPrintTask(TComponent* owner)
    : TComponent(owner), font_(std::make_unique<TFont>(this)) {}

const TFont& TVRXEditControlPrintTask::PrintFont() const {
  const TCustomEdit* edit = Get(EditControl);
  return edit && Get(UseControlFont) ? *edit->Font() : *font_;
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

TVRXTextPages TVRXEditControlPrintTask::Pages() const {
  TVRXTextPages pages{
      .lines = Lines(),
      .header = Get(HeaderText),
      .footer = Get(FooterText),
      .title = Get(Title),
      .lineNumbers = Get(LineNumbers),
      .pageNumbers = Get(ShowPageNumbers),
      .wordWrap = Get(WordWrap),
      .margins = VRXTextMargins(Get(MarginLeft), Get(MarginTop), Get(MarginRight), Get(MarginBottom)),
      .orientation = Get(Orientation)};
  pages.SetFont(PrintFont());
  return pages;
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
