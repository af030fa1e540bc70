#include "library/controls/CustomLabel.h"

#include "library/controls/Faced.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXCustomLabel::StaticClass() {
  static const TClass cls(DescribeClass<TVRXCustomLabel>("TVRXCustomLabel", TGraphicControl::StaticClass())
                              .Declared(Alignment)
                              .Declared(BevelPart)
                              .Doc(QStringLiteral("The edge around the text."))
                              .Declared(Font3DPart)
                              .Doc(QStringLiteral("Light and shadow of the letters."))
                              .Declared(Layout)
                              .Declared(ShowAccelChar)
                              .Declared(Transparent)
                              .Doc(QStringLiteral("Lets what is behind the letters show through."))
                              .Declared(WordWrap));
  return cls;
}

const TClass& TVRXStaticText::StaticClass() {
  static const TClass cls(
      VRXWithFace(DescribeClass<TVRXStaticText>("TVRXStaticText", TVRXCustomLabel::StaticClass())
                      .PublishAll(Placing, "Alignment")
                      .Publish("AutoSize", true)
                      .PublishAll("Bevel", "Caption", Look))
          .PublishAll("Font3D", Hints, "Layout", ParentLook, "ShowAccelChar", "Transparent", "Visible",
                      "WordWrap", MouseEvents)
          .ClassDoc(QStringLiteral("A text with light and shadow around its letters."),
                    "pen accent+50 2.4 path 6.5 19.5 13 6 19.5 19.5 path 9.5 15 16.5 15 "
                    "pen line 2.2 path 4.5 17.5 11 4 17.5 17.5 path 7.5 13 14.5 13"));
  return cls;
}

TVRXCustomLabel::TVRXCustomLabel(TComponent* owner) : TGraphicControl(owner) {
  captionFollowsName_ = true;
  autoSize_ = true;
  SetBounds(0, 0, 65, 17);
}

int TVRXCustomLabel::TextFlags() const {
  static constexpr int vertical[] = {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};
  return AlignmentFlag(Get(Alignment)) | vertical[static_cast<int>(Get(Layout))] |
         (Get(WordWrap) ? Qt::TextWordWrap : 0) | (Get(ShowAccelChar) ? Qt::TextShowMnemonic : 0);
}

QSize TVRXCustomLabel::AutoSizeHint() const {
  const QMargins effect = Font3D()->Room();
  const QSize more(effect.left() + effect.right() + 2 * Bevel()->Room(),
                   effect.top() + effect.bottom() + 2 * Bevel()->Room());
  const bool wraps = Get(WordWrap);
  const QSize text =
      TextExtent(Caption().isEmpty() ? QStringLiteral(" ") : Caption(), *Font(),
                 wraps ? int{Qt::TextWordWrap} : 0, wraps ? std::max(1, Width() - more.width()) : 0) +
      more;
  return {wraps ? Width() : text.width(), text.height()};
}

void TVRXCustomLabel::Paint(TCanvas& canvas) {
  const TVRXFaceLook look = VRXFaceOf(*this);
  if (!Get(Transparent)) canvas.FillRect(ClientRect(), Color());
  look.PaintGround(canvas, ClientRect());
  PaintText(canvas, look.Bevel(*Bevel()).Draw(canvas, ClientRect()));
}

void TVRXCustomLabel::PaintText(TCanvas& canvas, const QRect& rect) {
  const TVRXFaceLook look = VRXFaceOf(*this);
  look.Font3D(*Font3D()).Draw(canvas, rect, TextFlags(), Caption(), look.Font(*Font()),
                              look.HasLetters(Enabled()), look.Color(Color()));
}
