#include "library/values/Fill.h"

#include "rtl/Class.h"
#include "vcl/ImageList.h"

const TClass& TVRXFillColor::StaticClass() {
  static const TClass cls(DescribeClass<TVRXFillColor>("TVRXFillColor", TCollectionItem::StaticClass())
                              .Published(Color)
                              .Doc(QStringLiteral("A color of the gradient.")));
  return cls;
}
const TClass& TVRXFillColors::StaticClass() {
  static const TClass cls(DescribeClass<TVRXFillColors>("TVRXFillColors", TCollection::StaticClass()));
  return cls;
}

const TClass& TVRXFillObject::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFillObject>("TVRXFillObject", TPersistent::StaticClass())
          .Published(BitmapPart)
          .Doc(QStringLiteral("The picture of a fill with a bitmap."))
          .Published(BitmapPlace)
          .Doc(QStringLiteral("Whether the bitmap stands in the middle, is repeated or stretched."))
          .Published(Color)
          .Doc(QStringLiteral("Color of the area, of the gradient's beginning or of the hatch's lines."))
          .Published(ColorsPart)
          .Doc(QStringLiteral("All colors of a gradient that has more than two."))
          .Published(Direction)
          .Doc(QStringLiteral("Where the gradient runs to."))
          .Published(EndColor)
          .Doc(QStringLiteral("Color of the gradient's end or of the hatch's ground."))
          .Published(Hatch)
          .Doc(QStringLiteral("The lines of a hatch."))
          .Published(ImageIndex)
          .Doc(QStringLiteral("A picture of the image list, in place of the bitmap; -1 is none."))
          .Published(Kind)
          .Doc(QStringLiteral("What the area is filled with.")));
  return cls;
}

const TClass& TVRXShapeFill::StaticClass() {
  static const TClass cls(DescribeClass<TVRXShapeFill>("TVRXShapeFill", TVRXFillObject::StaticClass()));
  return cls;
}

QBrush TVRXFillObject::Gradient(const QRectF& r) const {
  const auto ends = [&]() -> std::pair<QPointF, QPointF> {
    switch (Get(Direction)) {
      case TVRXGradientDirection::gdHorizontal:
        return {r.topLeft(), r.topRight()};
      case TVRXGradientDirection::gdDiagonalDown:
        return {r.topLeft(), r.bottomRight()};
      case TVRXGradientDirection::gdDiagonalUp:
        return {r.bottomLeft(), r.topRight()};
      default:
        return {r.topLeft(), r.bottomLeft()};
    }
  }();
  const auto withColors = [this](QGradient&& gradient) {
    const int count = Colors()->Count();
    if (count == 0) {
      gradient.setColorAt(0, ToQColor(Get(Color)));
      gradient.setColorAt(1, ToQColor(Get(EndColor)));
    }
    for (int i = 0; i < count; ++i)
      gradient.setColorAt(count == 1 ? 0 : static_cast<double>(i) / (count - 1),
                          ToQColor(Colors()->Color(i)));
    return QBrush(gradient);
  };
  if (Get(Direction) != TVRXGradientDirection::gdRadial)
    return withColors(QLinearGradient(ends.first, ends.second));
  // To the corners, so that no part of the area lies behind the end.
  return withColors(QRadialGradient(r.center(), std::hypot(r.width(), r.height()) / 2));
}

void TVRXFillObject::DrawBitmap(QPainter& p, const QRect& rect, const QImage& image) const {
  switch (Get(BitmapPlace)) {
    case TVRXBitmapPlace::bpCenter:
      return p.drawImage(rect.left() + (rect.width() - image.width()) / 2,
                         rect.top() + (rect.height() - image.height()) / 2, image);
    case TVRXBitmapPlace::bpStretch:
      return p.drawImage(rect, image);
    case TVRXBitmapPlace::bpTile:
      p.setBrushOrigin(rect.topLeft());
      return p.fillRect(rect, QBrush(image));
  }
}

void TVRXFillObject::Draw(TCanvas& canvas, const QPainterPath& area, const TCustomImageList* images) const {
  QPainter& p = canvas.Painter();
  const QRectF rect = area.boundingRect();
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  switch (Get(Kind)) {
    case TVRXFillKind::fkSolid:
      p.fillPath(area, ToQColor(Get(Color)));
      break;
    case TVRXFillKind::fkGradient:
      p.fillPath(area, Gradient(rect));
      break;
    case TVRXFillKind::fkHatch: {
      TBrush lines;
      lines.SetColor(Get(Color));
      lines.SetStyle(Get(Hatch));
      p.fillPath(area, ToQColor(Get(EndColor)));
      p.fillPath(area, ToQBrush(lines));
      break;
    }
    case TVRXFillKind::fkBitmap: {
      p.fillPath(area, ToQColor(Get(Color)));
      const bool listed = images && Get(ImageIndex) >= 0;
      const QImage image = listed ? images->Image(Get(ImageIndex)) : Bitmap()->Image();
      if (image.isNull()) break;
      p.setClipPath(area, Qt::IntersectClip);
      p.setRenderHint(QPainter::SmoothPixmapTransform);
      DrawBitmap(p, rect.toAlignedRect(), image);
      break;
    }
  }
  p.restore();
}

QString TVRXFillObject::Description() const {
  const QString first = ColorToString(Get(Color)), second = ColorToString(Get(EndColor));
  switch (Get(Kind)) {
    case TVRXFillKind::fkSolid:
      return QStringLiteral("Solid, %1").arg(first);
    case TVRXFillKind::fkHatch:
      return QStringLiteral("Hatch, %1 on %2").arg(first, second);
    case TVRXFillKind::fkBitmap:
      if (Get(ImageIndex) >= 0) return QStringLiteral("Bitmap, image %1").arg(Get(ImageIndex));
      return Bitmap()->Empty() ? QStringLiteral("Bitmap, none") : QStringLiteral("Bitmap");
    default:
      return Colors()->Count() > 0 ? QStringLiteral("Gradient of %1 colors").arg(Colors()->Count())
                                   : QStringLiteral("Gradient, %1 to %2").arg(first, second);
  }
}
