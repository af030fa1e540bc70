#include "library/components/PrinterSetup.h"

#include <QtPrintSupport/QPrinter>
#include <QtPrintSupport/QPrinterInfo>

#include "rtl/Exceptions.h"

TVRXPrinterSetup& VRXPrinterSetup() {
  static TVRXPrinterSetup setup;
  return setup;
}

bool TVRXPrinterSetup::Apply(QPrinter& printer) const {
  const QPrinterInfo info =
      PrinterName.isEmpty() ? QPrinterInfo::defaultPrinter() : QPrinterInfo::printerInfo(PrinterName);
  if (!OutputFile.isEmpty()) {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(OutputFile);
  } else if (!info.isNull()) {
    printer.setPrinterName(info.printerName());
  }
  printer.setPageLayout(Layout);
  return !OutputFile.isEmpty() || !info.isNull();
}

void TVRXPrinterSetup::ApplyOrThrow(QPrinter& printer, const QString& who) const {
  if (Apply(printer)) return;
  if (PrinterName.isEmpty())
    throw EComponentError(
        QStringLiteral("%1: there is no printer. Install one, or print to a PDF file.").arg(who));
  const QStringList names = QPrinterInfo::availablePrinterNames();
  throw EComponentError(
      QStringLiteral("%1: there is no printer \"%2\". %3")
          .arg(who, PrinterName,
               names.isEmpty() ? QStringLiteral("This system has none.")
                               : QStringLiteral("There are: %1.").arg(names.join(QStringLiteral(", ")))));
}
