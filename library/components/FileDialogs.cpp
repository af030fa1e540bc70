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
