#include "library/values/BitmapEffect.h"

#include "rtl/Class.h"

const TClass& TVRXBitmapEffect::StaticClass() {
  static const TTypeInfo percent = OrdinalType("TVRXPercent", 0, 100);
  static const TClass cls(DescribeClass<TVRXBitmapEffect>("TVRXBitmapEffect", TPersistent::StaticClass())
                              .Published(Amount)
                              .Type(percent)
                              .Doc(QStringLiteral("How much of the effect, in percent."))
                              .Published(Color)
                              .Doc(QStringLiteral("The color that a tint leads to."))
                              .Published(Kind)
                              .Doc(QStringLiteral("What is done to the picture.")));
  return cls;
}

namespace {
// The pixel that the whole effect would make; without transparency.
QRgb Whole(TVRXBitmapEffectKind kind, QRgb pixel, QRgb tint) {
  switch (kind) {
    case TVRXBitmapEffectKind::beGray: {
      const int gray = qGray(pixel);
      return qRgb(gray, gray, gray);
    }
    case TVRXBitmapEffectKind::beLighten:
      return qRgb(255, 255, 255);
    case TVRXBitmapEffectKind::beDarken:
      return qRgb(0, 0, 0);
    case TVRXBitmapEffectKind::beTint:
      return tint;
    case TVRXBitmapEffectKind::beInvert:
      return qRgb(255 - qRed(pixel), 255 - qGreen(pixel), 255 - qBlue(pixel));
    default:
      return pixel;
  }
}
}  // namespace

QImage TVRXBitmapEffect::Apply(const QImage& picture) const {
  const TVRXBitmapEffectKind kind = Get(Kind);
  const int amount = std::min<int>(Get(Amount), 100);
  if (picture.isNull() || kind == TVRXBitmapEffectKind::beNone || amount == 0) return picture;
  QImage result = picture.convertToFormat(QImage::Format_ARGB32);
  const QRgb tint = ToQColor(Get(Color)).rgb();
  const auto mixed = [amount](int from, int to) { return (from * (100 - amount) + to * amount + 50) / 100; };
  for (int y = 0; y < result.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(result.scanLine(y));
    for (int x = 0; x < result.width(); ++x) {
      const QRgb before = row[x], whole = Whole(kind, before, tint);
      const int alpha = kind == TVRXBitmapEffectKind::beFade ? mixed(qAlpha(before), 0) : qAlpha(before);
      row[x] = qRgba(mixed(qRed(before), qRed(whole)), mixed(qGreen(before), qGreen(whole)),
                     mixed(qBlue(before), qBlue(whole)), alpha);
    }
  }
  return result;
}
