// A line as in technical drawings: with arrows or other signs at its ends.
#pragma once
#include "vcl/Control.h"
#include "vcl/Pen.h"

enum class TVRXLineType : std::uint8_t { ltHorizontal, ltVertical, ltDiagonalDown, ltDiagonalUp };
VRX_ENUM(TVRXLineType, {"ltHorizontal", "ltVertical", "ltDiagonalDown", "ltDiagonalUp"})
enum class TVRXSignPlaces : std::uint8_t { spEnd, spStart, spBoth };
VRX_ENUM(TVRXSignPlaces, {"spEnd", "spStart", "spBoth"})
enum class TVRXLineSign : std::uint8_t {
  lsNone,
  lsArrowUp,
  lsArrowDown,
  lsArrowRight,
  lsArrowLeft,
  lsArrowOutward,
  lsCircle,
  lsSquare,
  lsDiamond,
  lsBar
};
VRX_ENUM(TVRXLineSign, {"lsNone", "lsArrowUp", "lsArrowDown", "lsArrowRight", "lsArrowLeft", "lsArrowOutward",
                        "lsCircle", "lsSquare", "lsDiamond", "lsBar"})

class TVRXTechnicalLine : public TGraphicControl {
  VRX_CLASS(TVRXTechnicalLine)
 public:
  explicit TVRXTechnicalLine(TComponent* owner);
  // Whether the ends have their signs at all.
  static constexpr TKept<bool> Arrowed{"Arrowed", true};
  static constexpr TKept<TVRXLineSign> LineEnding{"LineEnding", TVRXLineSign::lsArrowRight};
  static constexpr TKept<TVRXLineSign> LineStart{"LineStart", TVRXLineSign::lsArrowLeft};
  static constexpr TKept<TVRXLineType> LineType{"LineType", TVRXLineType::ltHorizontal};
  static constexpr TKept<TColor> LineColor{"LineColor", clWindowText};
  static constexpr TKept<TPenStyle> LineStyle{"LineStyle", TPenStyle::psSolid};
  static constexpr TKept<int> LineWidth{"LineWidth", 1};
  static constexpr TKept<TColor> ShadowColor{"ShadowColor", clBtnShadow};
  static constexpr TKept<std::int8_t> ShadowDepth{"ShadowDepth", 2};
  static constexpr TKept<bool> ShadowVisible{"ShadowVisible", false};
  static constexpr TKept<TVRXSignPlaces> SignPlaces{"SignPlaces", TVRXSignPlaces::spEnd};
  static constexpr TKept<std::uint8_t> SignSize{"SignSize", 8};

  // From its left or upper end to the other one.
  QLineF Line() const;
  void Paint(TCanvas& canvas) override;

 private:
  TVRXLineSign SignAt(TVRXSignPlaces end) const;
  void PaintLine(QPainter& painter, const QColor& color) const;
};
