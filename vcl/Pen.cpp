#include "vcl/Pen.h"

#include "rtl/Class.h"

const TClass& TPen::StaticClass() {
  static const TClass cls(DescribeClass<TPen>("TPen", TPersistent::StaticClass())
                              .Published("Color", &TPen::Color, &TPen::SetColor, clBlack)
                              .Published("Mode", &TPen::Mode, &TPen::SetMode, TPenMode::pmCopy)
                              .Published("Style", &TPen::Style, &TPen::SetStyle, TPenStyle::psSolid)
                              .Published("Width", &TPen::Width, &TPen::SetWidth, 1));
  return cls;
}

QPen ToQPen(const TPen& pen) {
  static constexpr Qt::PenStyle styles[] = {Qt::SolidLine,      Qt::DashLine, Qt::DotLine,  Qt::DashDotLine,
                                            Qt::DashDotDotLine, Qt::NoPen,    Qt::SolidLine};
  QPen result(ToQColor(pen.Color()), std::max(pen.Width(), 1), styles[static_cast<int>(pen.Style())]);
  result.setJoinStyle(Qt::MiterJoin);
  return result;
}
