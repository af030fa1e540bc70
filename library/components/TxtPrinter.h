// Prints a text, to a printer or a PDF file.
#pragma once
#include "library/components/PrintedText.h"
#include "rtl/Strings.h"

class QIODevice;

enum class TVRXPaperSize : std::uint8_t { ppDefault, ppA3, ppA4, ppA5, ppLetter, ppLegal, ppTabloid };
VRX_ENUM(TVRXPaperSize, {"ppDefault", "ppA3", "ppA4", "ppA5", "ppLetter", "ppLegal", "ppTabloid"})

class TVRXTxtPrinter : public TVRXPrintedText {
  VRX_CLASS(TVRXTxtPrinter)
 public:
  using TVRXPrintedText::TVRXPrintedText;
  static constexpr TKept<bool> Collate{"Collate", true};
  static constexpr TKept<int> Copies{"Copies", 1};
  static constexpr TKept<int> FromPage{"FromPage", 0};
  static constexpr TKept<TStrings*> Lines{"Lines"};
  static constexpr TKept<QString> OutputFile{"OutputFile"};
  static constexpr TKept<TVRXPaperSize> PaperSize{"PaperSize", TVRXPaperSize::ppDefault};
  static constexpr TKept<QString> PrinterName{"PrinterName"};
  static constexpr TKept<int> TabWidth{"TabWidth", 4};
  static constexpr TKept<int> ToPage{"ToPage", 0};

  // Before each page; false ends printing.
  using Progress = std::function<bool(int page, int pages)>;
  void SetProgress(Progress progress) { progress_ = std::move(progress); }

  // These return the number of pages that were printed, all copies together, and throw EComponentError where
  // it cannot be done.
  // To OutputFile, PrinterName, or else where the program prints (PrinterSetup.h).
  int Print() const { return PrintText(Get(Lines)->Lines()); }
  // The text of a file in place of Lines.
  int PrintFile(const QString& name) const;
  int PrintToPdf(QIODevice& device) const;
  // How many pages the lines have.
  int PageCount() const;

 private:
  TVRXTextPages Pages(const QStringList& lines) const;
  TVRXTextPages::Run HowToRun(bool deviceCopies) const;
  int PrintText(const QStringList& lines) const;
  Progress progress_;
};
