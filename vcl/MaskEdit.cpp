#include "rtl/Class.h"
#include "vcl/Edit.h"
#include "vcl/EditMask.h"
#include "vcl/PropertyGroups.h"

const TClass& TMaskEdit::StaticClass() {
  static const TClass cls(
      DescribeClass<TMaskEdit>("TMaskEdit", TCustomEdit::StaticClass())
          .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Bevels, Windowed, Help,
                      Input, Styling, WheelEvents, "Alignment", "AutoSelect", "BorderStyle", "CharCase",
                      "EchoMode", "HideSelection", "MaxLength", "PasswordChar", "ReadOnly", "Text",
                      "TextHint", "OnChange", MouseEvents, KeyEvents, FocusEvents, DragEvents)
          .Published(EditMask)
          .Doc(QStringLiteral("What is taken: mask, 1 or 0 (literals are kept), character for blanks; "
                              "\"00/00/0000;1;_\"."))
          .Passive("SpaceChar", TPasswordChar{u'_'})
          .Publish("AutoSize", true)
          .Publish("Color", clWindow)
          .Publish("ParentColor", false)
          .Publish("TabStop", true)
          .Event("OnValidationError")
          .Event("OnValidate")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A field that takes only what a mask allows."),
              "pen line 1.5 brush fill box 2.5 7.5 19 9 2 pen accent 2 path 5.5 14 8 14 path 10.5 14 13 "
              "14 path 16 14 18.5 14 pen line 1.5 path 9.5 10 8.5 14"));
  return cls;
}

// Text with its literals stands as it is; where it ends the mask goes on with blanks.
QString TMaskEdit::ShownText() const {
  const QString text = TCustomEdit::ShownText();
  if (Get(EditMask).isEmpty()) return text;
  const TEditMask mask = TEditMask::Parse(Get(EditMask));
  QString shown;
  qsizetype next = 0;
  const auto take = [&](QChar otherwise) { shown += next < text.size() ? text[next++] : otherwise; };
  for (qsizetype i = 0; i < mask.Pattern.size(); ++i) {
    const QChar c = mask.Pattern[i];
    if (QStringView(u"!<>").contains(c)) continue;
    if (QStringView(u"LlAaCc09#").contains(c)) {
      take(mask.Blank);
      continue;
    }
    if (c == u'\\' && ++i == mask.Pattern.size()) break;
    const QChar literal = c == u'_' ? QChar(u' ') : mask.Pattern[i];
    if (mask.LiteralsKept)
      take(literal);
    else
      shown += literal;
  }
  return shown;
}
