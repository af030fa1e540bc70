#include "library/controls/ShapeControl.h"

#include "library/values/Outline.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXBaseShape::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXBaseShape>("TVRXBaseShape", TGraphicControl::StaticClass())
          .Icon(
              "pen line 1.3 brush fill shape 8 4.5 16 4.5 21 12 16 19.5 8 19.5 3 12 pen accent 1.8 path 8.5 "
              "10.5 15.5 10.5 path 8.5 13.5 13.5 13.5")
          .Declared(BevelPart)
          .Doc(QStringLiteral("The bevel inside of the outline."))
          .Declared(BevelColor)
          .Doc(QStringLiteral("Color of the outline; clNone is none."))
          .Declared(BrushPart)
          .Doc(QStringLiteral("How the area is filled."))
          .Declared(CaptionPart)
          .Doc(QStringLiteral("The text, with its place, font and effects."))
          .Declared(DrawTeeth)
          .Doc(QStringLiteral("Draws a rectangle with a toothed side in place of the shape."))
          .Declared(FillStyle)
          .Doc(QStringLiteral(
              "Filled by the brush, in the control's color, not at all, or by the shape fill."))
          .Declared(RoundPercent)
          .Doc(QStringLiteral("How round the corners of a round rectangle are; 100 is as round as can be."))
          .Declared(ShadowPart)
          .Doc(QStringLiteral("The shadow that the figure casts."))
          .Declared(Shape)
          .Doc(QStringLiteral("The figure."))
          .Declared(ShapeFillPart)
          .Doc(QStringLiteral("A gradient, a hatch or a bitmap that fills the area."))
          .Declared(ShapeFillImageList)
          .Doc(QStringLiteral("Where the shape fill finds pictures by index."))
          .Declared(Square)
          .Doc(QStringLiteral("Makes the figure as wide as it is high."))
          .Declared(TeethPart)
          .Doc(QStringLiteral("The teeth of a toothed side."))
          .Declared(Transparent)
          .Doc(QStringLiteral("Lets what is behind the control show through around the figure.")));
  return cls;
}

namespace {
constexpr const char* Figure[] = {
    "Bevel",     "BevelColor",         "Brush",       "Caption",      "Color",       "DrawTeeth",
    "Enabled",   "FillStyle",          "ParentColor", "RoundPercent", "Shadow",      "Shape",
    "ShapeFill", "ShapeFillImageList", "Square",      "Teeth",        "Transparent", "Visible"};
}  // namespace

const TClass& TVRXShapeControl::StaticClass() {
  static const TClass cls(DescribeClass<TVRXShapeControl>("TVRXShapeControl", TVRXBaseShape::StaticClass())
                              .PublishAll(Placing, Figure, Hints, MouseEvents)
                              .ClassDoc(QStringLiteral("A figure with a shadow, a bevel and a text.")));
  return cls;
}

TVRXBaseShape::TVRXBaseShape(TComponent* owner) : TGraphicControl(owner) { SetBounds(0, 0, 105, 65); }

QPolygonF TVRXBaseShape::Outline(const QRect& place) const {
  // However deep the shadow, half of the place is the figure's.
  const QMargins shadow = Shadow()->Room();
  const auto most = [](int margin, int side) { return std::min(margin, side / 2); };
  QRectF room =
      place.marginsRemoved({most(shadow.left(), place.width()), most(shadow.top(), place.height()),
                            most(shadow.right(), place.width()), most(shadow.bottom(), place.height())});
  if (Get(Square)) {
    const int side = static_cast<int>(std::min(room.width(), room.height()));
    room = QRectF(room.left() + static_cast<int>(room.width() - side) / 2,
                  room.top() + static_cast<int>(room.height() - side) / 2, side, side);
  }
  return Get(DrawTeeth) ? Teeth()->Outline(room) : VRXShapeOutline(Get(Shape), room, Get(RoundPercent));
}

void TVRXBaseShape::FillFigure(TCanvas& canvas, const QPainterPath& figure) {
  switch (Get(FillStyle)) {
    case TVRXShapeFillStyle::sfBrush:
      return canvas.Painter().fillPath(figure, ToQBrush(*Brush()));
    case TVRXShapeFillStyle::sfColor:
      return canvas.Painter().fillPath(figure, ToQColor(Color()));
    case TVRXShapeFillStyle::sfShapeFill:
      return ShapeFill()->Draw(canvas, figure, Get(ShapeFillImageList));
    case TVRXShapeFillStyle::sfClear:
      return;
  }
}

void TVRXBaseShape::PaintFigure(TCanvas& canvas, const QRect& place) {
  QPolygonF outline = Outline(place);
  if (outline.size() < 3) return;
  const QPainterPath figure = PathOf(outline);
  const QRectF size = figure.boundingRect();
  const bool outlined = Get(BevelColor) != clNone && size.width() > 1 && size.height() > 1;
  QPainter& p = canvas.Painter();
  p.setRenderHint(QPainter::Antialiasing);
  Shadow()->Draw(canvas, figure);
  // To the middle of the outline, so that no light shines through at its edge.
  FillFigure(canvas, outlined ? PathOf(InsetOutline(outline, 0.5)) : figure);
  if (outlined) {
    const TEdgeStrip strip = StripInside(outline, 1);
    QPainterPath whole = strip.Shaded;
    whole.addPath(strip.Lit);
    p.fillPath(whole, ToQColor(Get(BevelColor)));
    outline = InsetOutline(outline, 1);
  }
  Bevel()->Draw(canvas, outline);
  constexpr int Padding = 2;
  const int edge = outlined + Bevel()->Room() + Padding;
  const QRect room = size.toAlignedRect();
  p.save();
  p.setClipRect(room, Qt::IntersectClip);
  Caption()->Draw(canvas, room.adjusted(edge, edge, -edge, -edge), Enabled(), Brush()->Color());
  p.restore();
}

void TVRXBaseShape::Paint(TCanvas& canvas) {
  if (!Get(Transparent)) canvas.FillRect(ClientRect(), Color());
  for (const QRect& place : Places()) PaintFigure(canvas, place);
}

const TClass& TVRXRepeatedShape::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXRepeatedShape>("TVRXRepeatedShape", TVRXBaseShape::StaticClass())
          .PublishAll(Placing, Figure, Hints)
          .Published(Columns)
          .Doc(QStringLiteral("How many figures stand side by side."))
          .Published(HorzDistance)
          .Doc(QStringLiteral("Pixels between two that stand side by side."))
          .Published(Rows)
          .Doc(QStringLiteral("How many figures stand one below the other."))
          .Published(VertDistance)
          .Doc(QStringLiteral("Pixels between two that stand one below the other."))
          .PublishAll(MouseEvents)
          .ClassDoc(
              QStringLiteral("The same figure several times, in rows and columns."),
              "pen line 1.3 brush fill shape 7.5 2.5 12 7 7.5 11.5 3 7 shape 16.5 2.5 21 7 16.5 11.5 12 7 "
              "shape 7.5 12.5 12 17 7.5 21.5 3 17 pen none brush accent shape 16.5 12.5 21 17 16.5 21.5 "
              "12 17"));
  return cls;
}

TVRXRepeatedShape::TVRXRepeatedShape(TComponent* owner) : TVRXBaseShape(owner) { SetBounds(0, 0, 128, 64); }

namespace {
// A side in as many parts as asked for, but none without a pixel.
std::vector<std::pair<int, int>> Parts(int length, int count, int distance) {
  const std::int64_t gap = std::max(0, distance);
  const std::int64_t most = std::max<std::int64_t>(1, (length + gap) / (1 + gap));
  const std::int64_t parts = std::clamp<std::int64_t>(count, 1, most);
  std::vector<std::pair<int, int>> places;
  const auto room = length - (parts - 1) * gap;
  for (std::int64_t i = 0; i < parts; ++i) {
    const auto from = room * i / parts, to = room * (i + 1) / parts;
    places.emplace_back(static_cast<int>(from + i * gap), static_cast<int>(to - from));
  }
  return places;
}
}  // namespace

std::vector<QRect> TVRXRepeatedShape::Places() const {
  std::vector<QRect> places;
  for (const auto& [top, height] : Parts(Height(), Get(Rows), Get(VertDistance)))
    for (const auto& [left, width] : Parts(Width(), Get(Columns), Get(HorzDistance)))
      places.emplace_back(left, top, width, height);
  return places;
}
