#include "library/components/FileDialogs.h"

const TClass& TVRXFormOpenDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFormOpenDialog>("TVRXFormOpenDialog", TOpenDialog::StaticClass())
          .ClassDoc(
              QStringLiteral("Asks for a file to open; its filters are edited in a grid."),
              "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 pen accent 1.8 brush none path 6.5 "
              "17.5 6.5 11 10 11 11.5 12.5 17.5 12.5 17.5 17.5 6.5 17.5"));
  return cls;
}

const TClass& TVRXFormSaveDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFormSaveDialog>("TVRXFormSaveDialog", TSaveDialog::StaticClass())
          .ClassDoc(
              QStringLiteral("Asks for the name of a file to save; its filters are edited in a grid."),
              "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 pen accent 1.8 brush none path 12 10.5 "
              "12 16 path 9 13.5 12 16.5 15 13.5 path 7 18.5 17 18.5"));
  return cls;
}

const TClass& TVRXFormColorDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFormColorDialog>("TVRXFormColorDialog", TColorDialog::StaticClass())
          .ClassDoc(QStringLiteral("Asks for a colour."),
                    "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 brush accent box 6 11 4 3.5 0 "
                    "brush none box 13 11 5 6.5 0 path 6 17.5 10 17.5"));
  return cls;
}

const TClass& TVRXFormFontDialog::StaticClass() {
  static const TClass cls(DescribeClass<TVRXFormFontDialog>("TVRXFormFontDialog", TFontDialog::StaticClass())
                              .ClassDoc(QStringLiteral("Asks for a font."),
                                        "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 pen accent 2 "
                                        "path 7.5 17.5 12 10 16.5 17.5 path 9.2 15 14.8 15"));
  return cls;
}

const TClass& TVRXFormPageSetupDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFormPageSetupDialog>("TVRXFormPageSetupDialog", TPageSetupDialog::StaticClass())
          .ClassDoc(QStringLiteral("Asks for paper and margins."),
                    "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 box 8 10 8 8.5 0 pen accent 1.5 "
                    "dots brush none box 9.8 11.8 4.4 4.9 0"));
  return cls;
}

const TClass& TVRXFormPrinterSetupDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFormPrinterSetupDialog>("TVRXFormPrinterSetupDialog",
                                                TPrinterSetupDialog::StaticClass())
          .ClassDoc(QStringLiteral("Asks for a printer."),
                    "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 box 6 12.5 12 5 1 path 8.5 12.5 "
                    "8.5 10 15.5 10 15.5 12.5 pen accent 2 path 15.5 15 15.7 15"));
  return cls;
}

const TClass& TVRXFormPrintCommDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFormPrintCommDialog>("TVRXFormPrintCommDialog", TPrintDialog::StaticClass())
          .ClassDoc(QStringLiteral("Asks what to print, where and how often."),
                    "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 box 6 10.5 7.5 5 1 pen accent 1.6 "
                    "box 10 13 8 5 1"));
  return cls;
}
