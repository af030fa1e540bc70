// The printer that the program prints on, and its paper: chosen in dialogs, taken by what prints.
#pragma once
#include <QPageLayout>
#include <QString>

class QPrinter;

struct TVRXPrinterSetup {
  QString PrinterName;  // empty: the one that the system prefers
  QString OutputFile;   // a PDF is written instead when there is a name
  QPageLayout Layout{
      QPageSize(QPageSize::A4), QPageLayout::Portrait, {20, 20, 20, 20}, QPageLayout::Millimeter};

  // Prepares a printer for that. Whether there is one, or a file in its place.
  bool Apply(QPrinter& printer) const;
  // The same; throws EComponentError, with `who` at the start, where there is neither.
  void ApplyOrThrow(QPrinter& printer, const QString& who) const;
};

// That of the program.
TVRXPrinterSetup& VRXPrinterSetup();
