#include "vcl/Brush.h"

#include "rtl/Class.h"

const TClass& TBrush::StaticClass() {
  static const TClass cls(DescribeClass<TBrush>("TBrush", TPersistent::StaticClass())
                              .Published("Color", &TBrush::Color, &TBrush::SetColor, clWhite)
                              .Published("Style", &TBrush::Style, &TBrush::SetStyle, TBrushStyle::bsSolid));
  return cls;
}

QBrush ToQBrush(const TBrush& brush) {
  static constexpr Qt::BrushStyle styles[] = {Qt::SolidPattern, Qt::NoBrush,         Qt::HorPattern,
                                              Qt::VerPattern,   Qt::FDiagPattern,    Qt::BDiagPattern,
                                              Qt::CrossPattern, Qt::DiagCrossPattern};
  if (brush.Color() == clNone) return Qt::NoBrush;
  return QBrush(ToQColor(brush.Color()), styles[static_cast<int>(brush.Style())]);
}
