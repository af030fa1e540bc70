#include "library/controls/LEDLabel.h"

#include "library/values/LEDSegments.h"

const TClass& TVRXLEDCustomLabel::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXLEDCustomLabel>("TVRXLEDCustomLabel", TGraphicControl::StaticClass())
          .Declared("Alignment", &TVRXLEDCustomLabel::Alignment, &TVRXLEDCustomLabel::SetAlignment,
                    TAlignment::taLeftJustify)
          .Declared("LED", &TVRXLEDCustomLabel::LED, &TVRXLEDCustomLabel::SetLED)
          .Doc(QStringLiteral("Size and colours of the segment letters."))
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
          .PublishAll("Caption", "Color", "Enabled", "LED")
          .Publish("ParentColor", false)
          .PublishAll("ParentShowHint", "ShowHint", "Transparent", "Visible", "OnClick", "OnDblClick",
                      "OnMouseDown", "OnMouseEnter", "OnMouseLeave", "OnMouseMove", "OnMouseUp")
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

namespace {
int Margin(const TVRXLED& led) { return std::max<int>(3, led.Thickness()); }
}  // namespace

QSize TVRXLEDCustomLabel::AutoSizeHint() const {
  const int m = 2 * Margin(*led_);
  return LEDTextSize(Caption(), *led_) + QSize(m, m);
}

void TVRXLEDCustomLabel::Paint(TCanvas& canvas) {
  if (!transparent_) canvas.FillRect(ClientRect(), Color());
  const int margin = Margin(*led_);
  const QSize text = LEDTextSize(Caption(), *led_);
  const int room = Width() - text.width();
  int x = margin;
  if (alignment_ == TAlignment::taCenter) x = room / 2;
  if (alignment_ == TAlignment::taRightJustify) x = room - margin;
  DrawLEDText(canvas, {x, (Height() - text.height() + 1) / 2}, Caption(), *led_,
              Enabled() || !led_->DisabledDigits());
}
