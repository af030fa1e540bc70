#include "vcl/Edit.h"

#include "rtl/Class.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"

const TTypeInfo& TypeInfoOf<TPasswordChar>::Get() {
  static const TTypeInfo info{
      .Kind = TTypeKind::tkChar, .Name = "Char", .MinValue = 0, .MaxValue = UINT16_MAX};
  return info;
}

const TClass& TCustomEdit::StaticClass() {
  static const TClass cls(DescribeClass<TCustomEdit>("TCustomEdit", TWinControl::StaticClass())
                              .DeclaredAll(Alignment, AutoSelect, BorderStyle, CharCase, EchoMode,
                                           HideSelection, MaxLength, NumbersOnly, OEMConvert, PasswordChar,
                                           ReadOnly)
                              .Declared("Text", &TCustomEdit::Text, &TCustomEdit::SetText)
                              .Type(CaptionType())
                              .Doc(QStringLiteral("What is in the field."))
                              .Declared(TextHint)
                              .Doc(QStringLiteral("What the field shows in gray while it is empty."))
                              .DeclaredEvent("OnChange"));
  return cls;
}

TCustomEdit::TCustomEdit(TComponent* owner) : TWinControl(owner) {
  captionFollowsName_ = true;
  autoSize_ = true;
  tabStop_ = true;
  StartWith(clWindow);
  SetBounds(0, 0, 121, 21);
}

QSize TCustomEdit::AutoSizeHint() const {
  // Without its frame a field is as high as with it.
  return {Width(), TextExtent(QStringLiteral("Wg"), *Font()).height() + 8};
}

QString TCustomEdit::ShownText() const {
  const QString text = Text();
  if (Get(EchoMode) == TEchoMode::emNone) return {};
  auto hidden = static_cast<char16_t>(Get(PasswordChar));
  if (hidden == 0 && Get(EchoMode) == TEchoMode::emPassword) hidden = u'*';
  if (hidden != 0) return QString(text.size(), QChar(hidden));
  switch (Get(CharCase)) {
    case TEditCharCase::ecUpperCase:
      return text.toUpper();
    case TEditCharCase::ecLowerCase:
      return text.toLower();
    default:
      return text;
  }
}

int TCustomEdit::TextFlags() const { return AlignmentFlag(Get(Alignment)) | Qt::AlignVCenter; }

QRect TCustomEdit::PaintGround(TCanvas& canvas) const {
  if (Get(BorderStyle) == TBorderStyle::bsSingle) return PaintEditFrame(canvas, ClientRect(), PartStates(), Color());
  canvas.FillRect(ClientRect(), Color());
  return ClientRect();
}

void TCustomEdit::Paint(TCanvas& canvas) {
  const QRect inside = PaintGround(canvas);
  const QString text = ShownText();
  const bool hint = text.isEmpty() && !Get(TextHint).isEmpty();
  canvas.TextRect(inside, TextFlags(), hint ? Get(TextHint) : text, *Font(), Enabled() && !hint);
}

const TClass& TEdit::StaticClass() {
  static const TClass cls(
      DescribeClass<TEdit>("TEdit", TCustomEdit::StaticClass())
          .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Bevels, Windowed, Help,
                      Input, Styling, WheelEvents, "Alignment", "AutoSelect", "BorderStyle", "CharCase",
                      "EchoMode", "HideSelection", "MaxLength", "NumbersOnly", "OEMConvert", "PasswordChar",
                      "ReadOnly", "Text", "TextHint", "OnChange", MouseEvents, KeyEvents, FocusEvents,
                      DragEvents)
          .Publish("AutoSize", true)
          .Publish("Color", clWindow)
          .Publish("ParentColor", false)
          .Publish("TabStop", true)
          .Alphabetical()
          .ClassDoc(QStringLiteral("A field for a line of text."),
                    "pen line 1.5 brush fill box 2.5 7.5 19 9 2 pen accent 2 path 6 9.5 6 14.5"));
  return cls;
}
