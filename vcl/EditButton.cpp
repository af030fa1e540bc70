#include "vcl/EditButton.h"

#include "vcl/PropertyGroups.h"

const TClass& TCustomEditButton::StaticClass() {
  static const TClass cls(DescribeClass<TCustomEditButton>("TCustomEditButton", TCustomEdit::StaticClass())
                              .DeclaredAll(ButtonCaption, ButtonWidth, Glyph)
                              .DeclaredPassive<QString>("ButtonHint")
                              .DeclaredPassive("ButtonOnlyWhenFocused", false)
                              .DeclaredPassive("DirectInput", true)
                              .DeclaredPassive("Flat", false)
                              .DeclaredPassive("FocusOnButtonClick", false)
                              .DeclaredPassive("NumGlyphs", 1)
                              .DeclaredPassive("Spacing", 4)
                              .DeclaredEvent("OnButtonClick"));
  return cls;
}

TCustomEditButton::TCustomEditButton(TComponent* owner) : TCustomEdit(owner) { SetBounds(0, 0, 144, 23); }

void TCustomEditButton::Paint(TCanvas& canvas) {
  const int width = std::clamp(Get(ButtonWidth), 0, std::max(Width() / 2, 0));
  const QRect field = ClientRect().adjusted(0, 0, -width, 0);
  const QRect inside = PaintEditFrame(canvas, field, PartStates(), Color());
  const QString text = ShownText();
  const bool hint = text.isEmpty() && !Get(TextHint).isEmpty();
  canvas.TextRect(inside, TextFlags(), hint ? Get(TextHint) : text, *Font(), Enabled() && !hint);
  if (width <= 2) return;
  const QRect knob(field.right() + 1, 0, width, Height());
  const QImage picture = IsKept(&Glyph) ? Get(Glyph)->Transparent() : QImage();
  const QString own = Get(ButtonCaption);
  PaintButton(canvas, knob, PartStates(),
              !picture.isNull() ? QString()
              : own.isEmpty()   ? UsualCaption()
                                : own,
              Font());
  if (picture.isNull()) return;
  canvas.Painter().save();
  canvas.Painter().setClipRect(knob.adjusted(2, 2, -2, -2), Qt::IntersectClip);
  canvas.Painter().drawImage(knob.center() - QPoint(picture.width() / 2, picture.height() / 2), picture);
  canvas.Painter().restore();
}

namespace {
template <class T>
TClassBuilder DescribeEditButton(const char* name) {
  return DescribeClass<T>(name, TCustomEditButton::StaticClass())
      .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Windowed, Help, Styling,
                  WheelEvents, "Alignment", "AutoSelect", "BorderStyle", "ButtonCaption", "ButtonHint",
                  "ButtonOnlyWhenFocused", "ButtonWidth", "CharCase", "DirectInput", "EchoMode", "Flat",
                  "FocusOnButtonClick", "Glyph", "MaxLength", "NumGlyphs", "PasswordChar", "ReadOnly",
                  "Spacing", "Text", "TextHint", "OnButtonClick", "OnChange", MouseEvents, KeyEvents,
                  FocusEvents, DragEvents)
      .Publish("AutoSize", true)
      .Publish("Color", clWindow)
      .Publish("ParentColor", false)
      .Publish("TabStop", true);
}
}  // namespace

const TClass& TEditButton::StaticClass() {
  static const TClass cls(
      DescribeEditButton<TEditButton>("TEditButton")
          .Alphabetical()
          .ClassDoc(QStringLiteral("A field with a button beside it."),
                    "pen line 1.5 brush fill box 2.5 7.5 13 9 2 pen accent 1.8 box 15.5 7.5 6 9 1"));
  return cls;
}

const TClass& TFileNameEdit::StaticClass() {
  static const TClass cls(
      DescribeEditButton<TFileNameEdit>("TFileNameEdit")
          .Passive<QString>("DefaultExt")
          .Passive("DialogKind", TFileDialogKind::dkOpen)
          .Passive("DialogOptions", TOpenOptions{TOpenOption::ofEnableSizing, TOpenOption::ofViewDetail})
          .Passive<QString>("DialogTitle")
          .Passive<QString>("FileName")
          .Passive<QString>("Filter")
          .Passive("FilterIndex", 0)
          .Passive("HideDirectories", false)
          .Passive<QString>("InitialDir")
          .Event("OnAcceptFileName", "TAcceptFileNameEvent")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A field for the name of a file, with a button that asks for one."),
              "pen line 1.5 brush fill box 2.5 7.5 12 9 2 pen accent 1.8 path 16 18.5 16 5.5 19 5.5 21.5 8 "
              "21.5 18.5 16 18.5 path 18 12 19.5 12 path 18 15 19.5 15"));
  return cls;
}

const TClass& TDirectoryEdit::StaticClass() {
  static const TClass cls(
      DescribeEditButton<TDirectoryEdit>("TDirectoryEdit")
          .Passive("DialogOptions", TOpenOptions{TOpenOption::ofEnableSizing, TOpenOption::ofViewDetail})
          .Passive<QString>("DialogTitle")
          .Passive<QString>("Directory")
          .Passive<QString>("RootDir")
          .Passive("ShowHidden", false)
          .Event("OnAcceptDirectory", "TAcceptFileNameEvent")
          .Alphabetical()
          .ClassDoc(QStringLiteral("A field for a folder, with a button that asks for one."),
                    "pen line 1.5 brush fill box 2.5 7.5 12 9 2 pen accent 1.8 path 16 16.5 16 8 18 8 19 9.5 "
                    "21.5 9.5 21.5 16.5 16 16.5"));
  return cls;
}
