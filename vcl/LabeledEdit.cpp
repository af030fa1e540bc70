#include "vcl/LabeledEdit.h"

#include "rtl/Class.h"

const TClass& TLabeledEdit::StaticClass() {
  static const TClass cls(
      Labeled<TEdit>::Describe<TLabeledEdit>("TLabeledEdit")
          .ClassDoc(
              QStringLiteral("A field for a line of text with a label of its own."),
              "pen line 1.5 brush fill box 2.5 11.5 19 8 2 path 6 13.5 6 17.5 pen accent 2 brush none path "
              "3.5 7 11 7"));
  return cls;
}
