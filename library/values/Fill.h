// What areas are filled with beyond a brush: a colour, a gradient of any number of colours, a hatch, a
// bitmap.
#pragma once
#include <QPainterPath>

#include "rtl/Collection.h"
#include "rtl/Kept.h"
#include "vcl/Brush.h"
#include "vcl/Canvas.h"
#include "vcl/Picture.h"

class TCustomImageList;

enum class TVRXFillKind : std::uint8_t { fkSolid, fkGradient, fkHatch, fkBitmap };
VRX_ENUM(TVRXFillKind, {"fkSolid", "fkGradient", "fkHatch", "fkBitmap"})
enum class TVRXGradientDirection : std::uint8_t {
  gdHorizontal,
  gdVertical,
  gdDiagonalDown,
  gdDiagonalUp,
  gdRadial
};
VRX_ENUM(TVRXGradientDirection, {"gdHorizontal", "gdVertical", "gdDiagonalDown", "gdDiagonalUp", "gdRadial"})
enum class TVRXBitmapPlace : std::uint8_t { bpCenter, bpTile, bpStretch };
VRX_ENUM(TVRXBitmapPlace, {"bpCenter", "bpTile", "bpStretch"})

class TVRXFillColor : public TCollectionItem {
  VRX_CLASS(TVRXFillColor)
 public:
  using TCollectionItem::TCollectionItem;
  static constexpr TKept<TColor> Color{"Color", clWhite};
  QString DisplayName() const override { return ColorToString(Get(Color)); }
};
class TVRXFillColors : public TCollection {
  VRX_CLASS(TVRXFillColors)
 public:
  explicit TVRXFillColors(TPersistent* owner = nullptr) : TCollection(TVRXFillColor::StaticClass(), owner) {}
  TColor Color(int index) const {
    return static_cast<TVRXFillColor*>(Item(index))->Get(TVRXFillColor::Color);
  }
};

class TVRXFillObject : public TKeptPart {
  VRX_CLASS(TVRXFillObject)
 public:
  using TKeptPart::TKeptPart;
  static constexpr TKept<TVRXFillKind> Kind{"Kind", TVRXFillKind::fkGradient};
  // Of the area, the beginning of the gradient, the lines of the hatch, or what a bitmap leaves free.
  static constexpr TKept<TColor> Color{"Color", clBtnHighlight};
  // The end of the gradient, and the ground of the hatch.
  static constexpr TKept<TColor> EndColor{"EndColor", clBtnShadow};
  static constexpr TKept<TVRXGradientDirection> Direction{"Direction", TVRXGradientDirection::gdVertical};
  static constexpr TKept<TBrushStyle> Hatch{"Hatch", TBrushStyle::bsDiagCross};
  static constexpr TKept<TVRXBitmapPlace> BitmapPlace{"BitmapPlace", TVRXBitmapPlace::bpTile};
  // Of a picture of the image list, which is then shown in place of the bitmap; -1 is none.
  static constexpr TKept<int> ImageIndex{"ImageIndex", -1};
  static constexpr TKept<TPicture*> BitmapPart{"Bitmap"};
  static constexpr TKept<TVRXFillColors*> ColorsPart{"Colors"};

  TPicture* Bitmap() const { return Get(BitmapPart); }
  // All colours of the gradient, evenly spread, when there are any; else it has two.
  TVRXFillColors* Colors() const { return Get(ColorsPart); }

  // Fills the area. Who has no image list gives none.
  void Draw(TCanvas& canvas, const QPainterPath& area, const TCustomImageList* images) const;
  // One line that says how it is.
  QString Description() const;

 private:
  QBrush Gradient(const QRectF& rect) const;
  void DrawBitmap(QPainter& painter, const QRect& rect, const QImage& image) const;
};

// How the area of a shape is filled.
class TVRXShapeFill : public TVRXFillObject {
  VRX_CLASS(TVRXShapeFill)
 public:
  using TVRXFillObject::TVRXFillObject;
};
