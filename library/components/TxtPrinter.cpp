#include "library/components/TxtPrinter.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPdfWriter>
#include <QSaveFile>
#include <QtPrintSupport/QPrinter>

#include "library/components/PrinterSetup.h"
#include "rtl/Exceptions.h"

const TClass& TVRXTxtPrinter::StaticClass() {
  static const TClass cls(
      VRXWithPrintedText(DescribeClass<TVRXTxtPrinter>("TVRXTxtPrinter", TComponent::StaticClass()),
                         QStringLiteral("The font of the pages."))
          .Published(Collate)
          .Doc(QStringLiteral("All pages of a copy before those of the next one."))
          .Published(Copies)
          .Doc(QStringLiteral("How often it is printed."))
          .Published(FromPage)
          .Doc(QStringLiteral("The first page that is printed; 0 begins at the beginning."))
          .Published(Lines)
          .Doc(QStringLiteral("The text. A form feed begins a new page."))
          .Published(OutputFile)
          .Doc(QStringLiteral("A PDF file that is written instead of printing."))
          .Published(PaperSize)
          .Doc(QStringLiteral("The paper; by default the one that the program prints on."))
          .Published(PrinterName)
          .Doc(QStringLiteral("The printer; the one of the program when it is empty."))
          .Published(TabWidth)
          .Doc(QStringLiteral("The letters from one tab stop to the next."))
          .Published(ToPage)
          .Doc(QStringLiteral("The last page that is printed; 0 goes on to the end."))
          .Alphabetical()
          .Event("OnAfterPrint")
          .Event("OnBeforePrint")
          .Event("OnNextPage", "TVRXNextPageEvent")
          .ClassDoc(QStringLiteral("Prints a text, to a printer or a PDF file."),
                    "pen line 1.5 brush fill box 2.5 10 19 8 2 box 6 15 12 6.5 0 path 6.5 10 6.5 2.5 17.5 "
                    "2.5 17.5 10 "
                    "pen accent 2 path 9.5 8 12 3.8 14.5 8 path 10.4 6.6 13.6 6.6 pen accent 1.5 path 8.5 "
                    "18.3 15.5 "
                    "18.3"));
  return cls;
}

namespace {
QPageSize SizeOf(TVRXPaperSize paper) {
  constexpr QPageSize::PageSizeId sizes[] = {QPageSize::A3,     QPageSize::A4,    QPageSize::A5,
                                             QPageSize::Letter, QPageSize::Legal, QPageSize::Tabloid};
  return paper == TVRXPaperSize::ppDefault ? VRXPrinterSetup().Layout.pageSize()
                                           : QPageSize(sizes[static_cast<std::size_t>(paper) - 1]);
}
}  // namespace

TVRXTextPages TVRXTxtPrinter::Pages(const QStringList& lines) const {
  TVRXTextPages pages = PagesOf(lines, *Font());
  pages.tabWidth = Get(TabWidth);
  pages.paper = SizeOf(Get(PaperSize));
  return pages;
}

TVRXTextPages::Run TVRXTxtPrinter::HowToRun(bool deviceCopies) const {
  return {.copies = deviceCopies ? 1 : Get(Copies),
          .collate = Get(Collate),
          .from = Get(FromPage),
          .to = Get(ToPage),
          .next = progress_};
}

int TVRXTxtPrinter::PrintToPdf(QIODevice& device) const {
  QPdfWriter writer(&device);
  writer.setTitle(Get(Title));
  return Pages(Get(Lines)->Lines()).Print(writer, Name(), HowToRun(false));
}

int TVRXTxtPrinter::PageCount() const {
  QBuffer nowhere;
  QPdfWriter writer(&nowhere);
  return Pages(Get(Lines)->Lines()).Count(writer, Name());
}

int TVRXTxtPrinter::PrintText(const QStringList& lines) const {
  TVRXPrinterSetup setup = VRXPrinterSetup();
  if (!Get(OutputFile).isEmpty() || !Get(PrinterName).isEmpty()) {
    setup.OutputFile = Get(OutputFile);
    setup.PrinterName = Get(PrinterName);
  }
  if (!setup.OutputFile.isEmpty()) {
    // What is there stays until the new one is whole.
    QSaveFile file(setup.OutputFile);
    if (!file.open(QIODevice::WriteOnly))
      throw EComponentError(
          QStringLiteral("%1: %2 cannot be written: %3.").arg(Name(), setup.OutputFile, file.errorString()));
    QPdfWriter writer(&file);
    writer.setTitle(Get(Title));
    const int printed = Pages(lines).Print(writer, Name(), HowToRun(false));
    if (printed > 0 && !file.commit())
      throw EComponentError(
          QStringLiteral("%1: %2 cannot be written: %3.").arg(Name(), setup.OutputFile, file.errorString()));
    return printed;
  }
  QPrinter printer(QPrinter::HighResolution);
  setup.ApplyOrThrow(printer, Name());
  printer.setDocName(Get(Title));
  const bool deviceCopies = printer.supportsMultipleCopies();
  if (deviceCopies) {
    printer.setCopyCount(std::max(1, Get(Copies)));
    printer.setCollateCopies(Get(Collate));
  }
  return Pages(lines).Print(printer, Name(), HowToRun(deviceCopies)) *
         (deviceCopies ? std::max(1, Get(Copies)) : 1);
}

int TVRXTxtPrinter::PrintFile(const QString& name) const {
  QFile file(name);
  const auto refuse = [&](const QString& why) {
    throw EComponentError(QStringLiteral("%1: %2 cannot be read: %3.").arg(Name(), name, why));
  };
  if (!QFileInfo(name).isFile()) refuse(QStringLiteral("there is no such file"));
  if (!file.open(QIODevice::ReadOnly)) refuse(file.errorString());
  const QByteArray bytes = file.readAll();
  QStringDecoder utf8(QStringDecoder::Utf8);
  QString text = utf8(bytes);
  if (utf8.hasError()) text = QString::fromLatin1(bytes);
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  if (text.endsWith(u'\n')) text.chop(1);
  return PrintText(text.split(u'\n'));
}
