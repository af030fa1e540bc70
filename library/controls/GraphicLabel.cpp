#include "library/controls/GraphicLabel.h"

#include "library/values/TextLayers.h"
#include "rtl/Exceptions.h"
#include "vcl/DesignMarks.h"
#include "vcl/PropertyGroups.h"
#include "vcl/ShownText.h"

const TClass& TVRXGraphicLabel::StaticClass() {
  static const TTypeInfo factor = OrdinalType("TVRXFactor", 0, VRXStrongestFactor);
  static const TTypeInfo depth = OrdinalType("TVRXPerspectiveDepth", 0, VRXDeepestPerspective);
  static const TClass cls(
      DescribeClass<TVRXGraphicLabel>("TVRXGraphicLabel", TGraphicControl::StaticClass())
          .PublishAll(Placing)
          .Published(Alignment)
          .Publish("AutoSize", true)
          .PublishAll("Caption", Look)
          .Published(Factor)
          .Type(factor)
          .Doc(QStringLiteral("How strong the form is: 0 leaves the text as it is, 10000 is the most."))
          .Published(FillPart)
          .Doc(QStringLiteral("What the letters are filled with."))
          .Published(FontFXPart)
          .Doc(QStringLiteral("Direction, spacing, light and shadow of the letters."))
          .PublishAll(Hints)
          .Published(ImageList)
          .Doc(QStringLiteral("Pictures to fill with."))
          .Published(Layout)
          .Published(OutlineWidth)
          .Doc(QStringLiteral("The line around the letters, in the color of the font; 0 is none."))
          .PublishAll("ParentColor")
          .Publish("ParentFont", false)
          .Published(Perspective)
          .Doc(QStringLiteral("Whether the text is seen from below or from above, with taPerspective."))
          .Published(PerspectiveDepth)
          .Type(depth)
          .Doc(QStringLiteral("How far the text leads away from the eye, in percent of its height."))
          .Published(Stretch)
          .Doc(QStringLiteral("Fills the control with the letters, whatever the size of the font."))
          .Published(Toggle)
          .Doc(QStringLiteral("How far letters stand up and down in turn, in percent of their height, with "
                              "taToggled."))
          .Published(TransAttr)
          .Doc(QStringLiteral("Perspective, letters that stand up and down in turn, letters of one size."))
          .Published(Transform)
          .Doc(QStringLiteral("The form that the text is bent into."))
          .Published(Transparent)
          .Doc(QStringLiteral("Lets what is behind the letters show through."))
          .PublishAll("Visible", MouseEvents)
          .ClassDoc(
              QStringLiteral("A text that is bent into a form, filled, and seen with light and shadow."),
              "pen accent+50 2 brush none path 2.5 9.5 5.5 6.5 8.5 6.5 12 9.5 15.5 12 18.5 12 21.5 9 "
              "path 2.5 18.5 5.5 15.5 8.5 15.5 12 18.5 15.5 21 18.5 21 21.5 18 "
              "pen line 1.6 path 4.5 16 6.2 8.5 8 14.8 path 5 13 7.4 12.8 "
              "path 11.5 9.3 11.5 18 13.8 17.9 14 14.8 11.5 13.6 13.8 12.6 13.6 10.6 11.5 9.3 "
              "path 20 12.2 17.5 13.2 17.3 18 20 18.6"));
  return cls;
}

TVRXGraphicLabel::TVRXGraphicLabel(TComponent* owner) : TGraphicControl(owner) {
  captionFollowsName_ = true;
  autoSize_ = true;
  Font()->SetHeight(-32);
  Font()->SetStyle({TFontStyle::fsBold});
  SetBounds(0, 0, 160, 48);
}

void TVRXGraphicLabel::SetInteger(int selector, int value) {
  if (selector != 2 && selector != 4)
    throw EPropertyError(QStringLiteral("TVRXGraphicLabel has no number %1.").arg(selector));
  selector == 2 ? Set(Factor, std::clamp(value, 0, VRXStrongestFactor))
                : Set(PerspectiveDepth, std::clamp(value, 0, VRXDeepestPerspective));
}

void TVRXGraphicLabel::SetBoolean(int selector, bool value) {
  if (selector != 1) throw EPropertyError(QStringLiteral("TVRXGraphicLabel has no flag %1.").arg(selector));
  SetAutoSize(value);
}

TVRXGraphicLabel::TBent TVRXGraphicLabel::Current() const {
  const TVRXFxCaption& fx = *FontFX();
  // Of a longer one each letter would be smaller than a pixel.
  constexpr qsizetype most = 4000;
  QString text = ShownText(Caption()).left(most);
  text.remove(u'\r').replace(u'\t', u' ');
  const bool equal = Get(TransAttr).Contains(TVRXTransAttr::taEqualLetters);
  return {text,
          {ToQFont(*Font()), fx.Tracing(), AlignmentFlag(Get(Alignment)), equal},
          {Get(Transform), Get(Factor), Get(TransAttr), Get(Toggle), Get(Perspective), Get(PerspectiveDepth)},
          fx.Angle() % 360 + Font()->Orientation() / 10.0};
}

const QPainterPath& TVRXGraphicLabel::Letters() const {
  if (TBent bent = Current(); bent != bent_) {
    letters_ = VRXTransformed(VRXLettersOf(bent.text, bent.letters), bent.form);
    if (bent.angle != 0) letters_ = QTransform().rotate(-bent.angle).map(letters_);
    bent_ = std::move(bent);
  }
  return letters_;
}

// What light, shadow and line need around the letters.
QMarginsF TVRXGraphicLabel::Around() const {
  const TVRXFxCaption& fx = *FontFX();
  QMarginsF around;
  for (const TVRXTextLayer& layer :
       VRXTextLayers({fx.Style(), {}, {}, fx.LightDepth(), fx.ShadowDepth(), {}}, {}, {}))
    around = QMarginsF(std::max<qreal>(around.left(), -layer.Offset.x()),
                       std::max<qreal>(around.top(), -layer.Offset.y()),
                       std::max<qreal>(around.right(), layer.Offset.x()),
                       std::max<qreal>(around.bottom(), layer.Offset.y()));
  const qreal line = 1 + Get(OutlineWidth) / 2.0;
  return around + QMarginsF(line, line, line, line);
}

QRectF TVRXGraphicLabel::Room() const { return QRectF(ClientRect()).marginsRemoved(Around()); }

QSize TVRXGraphicLabel::AutoSizeHint() const {
  const QRectF ink = Letters().boundingRect();
  if (ink.isEmpty()) return {Width(), Height()};
  const QRectF all = ink.marginsAdded(Around());
  constexpr double most = INT16_MAX;  // more than anybody sees
  return {static_cast<int>(std::ceil(std::min(all.width(), most))),
          static_cast<int>(std::ceil(std::min(all.height(), most)))};
}

QPainterPath TVRXGraphicLabel::Outline() const {
  const QPainterPath& letters = Letters();
  const QRectF ink = letters.boundingRect();
  QRectF room = Room();
  // Where there is no room the effect goes without.
  if (room.width() < 1 || room.height() < 1) room = QRectF(ClientRect());
  if (ink.isEmpty() || room.isEmpty()) return {};
  const double across = room.width() / ink.width(), down = room.height() / ink.height();
  const double fit = std::min({1.0, across, down});
  const double x = Get(Stretch) ? across : fit, y = Get(Stretch) ? down : fit;
  const QSizeF size(ink.width() * x, ink.height() * y);
  const auto place = [](double from, double free, int where) { return from + free * where / 2; };
  static constexpr int columns[] = {0, 2, 1};  // in the order of TAlignment
  QTransform to;
  to.translate(place(room.left(), room.width() - size.width(), columns[static_cast<int>(Get(Alignment))]),
               place(room.top(), room.height() - size.height(), static_cast<int>(Get(Layout))));
  to.scale(x, y);
  to.translate(-ink.left(), -ink.top());
  return to.map(letters);
}

void TVRXGraphicLabel::Paint(TCanvas& canvas) {
  if (!Get(Transparent)) canvas.FillRect(ClientRect(), Color());
  if (IsDesigning() && Caption().isEmpty()) PaintDesignFrame(canvas, ClientRect());
  const QPainterPath outline = Outline();
  if (outline.isEmpty()) return;
  const TVRXFxCaption& fx = *FontFX();
  const TColor color = Font()->Color() == clDefault ? clWindowText : Font()->Color();
  const QColor own = ToQColor(Enabled() ? color : clGrayText);
  auto layers =
      VRXTextLayers({fx.Style(), fx.LightColor(), fx.ShadowColor(), fx.LightDepth(), fx.ShadowDepth(), {}},
                    own, ToQColor(Color()));
  const QColor front = layers.back().Color;
  layers.pop_back();
  // Some letters have the colour that they stand on in place of the fill.
  const bool takesGround =
      fx.Style() == TVRX3DTextStyle::tdPColorSunken || fx.Style() == TVRX3DTextStyle::tdPColorRaised;
  QPainter& p = canvas.Painter();
  p.save();
  p.setClipRect(ClientRect(), Qt::IntersectClip);
  p.setRenderHint(QPainter::Antialiasing);
  for (const TVRXTextLayer& layer : layers) {
    p.translate(layer.Offset);
    p.fillPath(outline, layer.Color);
    p.translate(-layer.Offset);
  }
  if (Enabled() && !takesGround)
    FillObject()->Draw(canvas, outline, Get(ImageList));
  else
    p.fillPath(outline, front);
  if (Get(OutlineWidth) > 0 && Enabled()) {
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(own, Get(OutlineWidth), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPath(outline);
  }
  p.restore();
}
