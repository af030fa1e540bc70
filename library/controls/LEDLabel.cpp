#include "library/controls/LEDLabel.h"

#include "library/values/LEDSegments.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXLEDCustomLabel::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXLEDCustomLabel>("TVRXLEDCustomLabel", TGraphicControl::StaticClass())
          .Icon("pen line 1.3 brush #14181c box 2.5 4.5 19 15 2.5 "
                "pen #2c343c 1.2 path 9.9 8.2 9.9 11 path 5.5 13 5.5 15.8 path 17.9 8.2 17.9 11 path 13.5 13 "
                "13.5 15.8 "
                "pen accent+25 1.4 path 9.7 7.2 5.5 7.2 5.5 12 9.9 12 9.9 16.8 5.7 16.8 "
                "path 17.7 7.2 13.5 7.2 13.5 12 17.9 12 17.9 16.8 13.7 16.8")
          .Declared("Alignment", &TVRXLEDCustomLabel::Alignment, &TVRXLEDCustomLabel::SetAlignment,
                    TAlignment::taLeftJustify)
          .Declared(BevelPart)
          .Doc(QStringLiteral("A frame in light and shadow around the letters."))
          .Declared("LED", &TVRXLEDCustomLabel::LED, &TVRXLEDCustomLabel::SetLED)
          .Doc(QStringLiteral("Size and colors of the segment letters."))
          .Declared("Transparent", &TVRXLEDCustomLabel::Transparent, &TVRXLEDCustomLabel::SetTransparent,
                    false)
          .Doc(QStringLiteral("Lets what is behind the letters show through.")));
  return cls;
}

const TClass& TVRXLEDLabel::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXLEDLabel>("TVRXLEDLabel", TVRXLEDCustomLabel::StaticClass())
          .PublishAll("Align", "Alignment", "Anchors")
          .Publish("AutoSize", true)
          .PublishAll("Bevel", "Caption", "Color", "Enabled", "LED")
          .Publish("ParentColor", false)
          .PublishAll(Hints, "Transparent", "Visible", MouseEvents)
          .ClassDoc(QStringLiteral("A text in segment letters, as on a machine's display.")));
  return cls;
}

TVRXLEDCustomLabel::TVRXLEDCustomLabel(TComponent* owner)
    : TGraphicControl(owner), led_(std::make_unique<TVRXLED>(this)) {
  captionFollowsName_ = true;
  autoSize_ = true;
  SetColor(clBlack);
  SetBounds(0, 0, 120, 28);
}
TVRXLEDCustomLabel::~TVRXLEDCustomLabel() = default;

void TVRXLEDCustomLabel::SetTransparent(bool v) { Change(transparent_, v); }

void TVRXLEDCustomLabel::SetAlignment(TAlignment v) { Change(alignment_, v); }

// Between the letters and the edge.
int TVRXLEDCustomLabel::Margin() const {
  return std::max<int>(3, led_->Thickness()) + (IsKept(&BevelPart) ? Bevel()->Room() : 0);
}

QSize TVRXLEDCustomLabel::AutoSizeHint() const {
  const int m = 2 * Margin();
  return LEDTextSize(Caption(), *led_) + QSize(m, m);
}

void TVRXLEDCustomLabel::Paint(TCanvas& canvas) {
  const QRect room = IsKept(&BevelPart) ? Bevel()->Draw(canvas, ClientRect()) : ClientRect();
  if (!transparent_) canvas.FillRect(room, Color());
  const int margin = Margin();
  const QSize text = LEDTextSize(Caption(), *led_);
  const int left = Width() - text.width();
  int x = margin;
  if (alignment_ == TAlignment::taCenter) x = left / 2;
  if (alignment_ == TAlignment::taRightJustify) x = left - margin;
  DrawLEDText(canvas, {x, (Height() - text.height() + 1) / 2}, Caption(), *led_,
              Enabled() || !led_->DisabledDigits());
}
