#include "library/controls/RegionControl.h"

#include "library/controls/Faced.h"
#include "library/values/TextDraw.h"
#include "vcl/DesignMarks.h"
#include "vcl/LineRect.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXRegion::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXRegion>("TVRXRegion", TWinControl::StaticClass())
          .Icon(
              "pen line 1 dots brush none box 3.5 3.5 17 17 0 pen line 1.3 brush accent "
              "shape 12 5 14.2 9.8 19.2 10.3 15.4 13.7 16.6 18.8 12 16.1 7.4 18.8 8.6 13.7 4.8 10.3 9.8 9.8")
          .PublishAll(Placing)
          .Publish("AutoSize", true)
          .Published("Down", &TVRXRegion::Down, &TVRXRegion::SetDown, false)
          .Doc(QStringLiteral("Shows the button pressed."))
          .Publish("Enabled")
          .Published("RegionMask", &TVRXRegion::RegionMask, &TVRXRegion::SetRegionMask)
          .Doc(QStringLiteral("The shape, and the pictures that are shown in it."))
          .PublishAll(Hints, "Visible", MouseEvents)
          .ClassDoc(QStringLiteral("A picture cut out in the shape of a region.")));
  return cls;
}

TVRXRegion::TVRXRegion(TComponent* owner)
    : TWinControl(owner), mask_(std::make_unique<TVRXRegionMask>(this)) {
  autoSize_ = true;
  SetBounds(0, 0, 72, 72);
}
TVRXRegion::~TVRXRegion() = default;

void TVRXRegion::SetDown(bool v) { Change(down_, v); }

QSize TVRXRegion::AutoSizeHint() const {
  const QSize size = mask_->ShownSize(0);
  return size.isEmpty() ? QSize(Width(), Height()) : size;
}

void TVRXRegion::Paint(TCanvas& canvas) {
  const QImage& picture = mask_->Shown(down_ ? 1 : 0);
  QPainter& p = canvas.Painter();
  if (!picture.isNull()) {
    p.drawImage(0, 0, picture);
    return;
  }
  // Nothing to show yet: an outline says where the shape will be.
  QPainterPath outline;
  outline.addEllipse(LineRect(ClientRect()));
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  PaintDesignOutline(canvas, outline);
  p.restore();
}

const TClass& TVRXCustomShapeText::StaticClass() {
  using C = TVRXCustomShapeText;
  static const TClass cls(
      VRXWithFace(
          DescribeClass<C>("TVRXCustomShapeText", TVRXRegion::StaticClass()).PublishAll("Caption", "Color"))
          .Publish("Font")
          .Published("FontFX", &C::FontFX, &C::SetFontFX)
          .Doc(QStringLiteral("Direction, spacing and 3D effect of the letters."))
          .Published(ImageIndex)
          .Published(ImageList)
          .Doc(QStringLiteral("Where the picture is found that is shown without a region mask."))
          .PublishAll(ParentLook)
          .Published("Transparent", &C::Transparent, &C::SetTransparent, true)
          .Doc(QStringLiteral("Lets what is behind show around the shape.")));
  return cls;
}
const TClass& TVRXWndButtonShape::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXWndButtonShape>("TVRXWndButtonShape", TVRXCustomShapeText::StaticClass())
          .ClassDoc(QStringLiteral("A button in the shape of a region.")));
  return cls;
}
const TClass& TVRXPanelShape::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXPanelShape>("TVRXPanelShape", TVRXCustomShapeText::StaticClass())
          .ClassDoc(QStringLiteral("An area in the shape of a region, for other controls to stand on."),
                    "pen line 1 dots brush none box 3.5 3.5 17 17 0 pen line 1.3 brush accent "
                    "shape 7 5 17 5 20 12 17 19 7 19 4 12"));
  return cls;
}

TVRXCustomShapeText::TVRXCustomShapeText(TComponent* owner)
    : TVRXRegion(owner), fontFx_(std::make_unique<TVRXFxCaption>(this)) {
  captionFollowsName_ = true;
  SetBounds(0, 0, 152, 72);
}
TVRXCustomShapeText::~TVRXCustomShapeText() = default;

TVRXPanelShape::TVRXPanelShape(TComponent* owner) : TVRXCustomShapeText(owner) { SetBounds(0, 0, 136, 96); }

void TVRXCustomShapeText::SetTransparent(bool v) { Change(transparent_, v); }

namespace {
// The region, or the oval that stands for it until there is one.
QPainterPath ShapeOf(const TVRXCustomShapeText& control) {
  QPainterPath shape;
  if (!control.RegionMask()->HasRegion())
    shape.addEllipse(QRectF(control.ClientRect()).adjusted(0.5, 0.5, -0.5, -0.5));
  for (const TRect& r : control.RegionMask()->Region().Rects())
    shape.addRect(r.Left, r.Top, r.Right - r.Left, r.Bottom - r.Top);
  return shape;
}
}  // namespace

void TVRXCustomShapeText::Paint(TCanvas& canvas) {
  const TVRXFaceLook look = VRXFaceOf(*this);
  if (!transparent_) canvas.FillRect(ClientRect(), Color());
  if (look.HasGround()) look.PaintGround(canvas, ShapeOf(*this));
  const TCustomImageList* list = Get(ImageList);
  const QImage image =
      list && RegionMask()->ShownSize(0).isEmpty() ? look.Picture(list->Image(Get(ImageIndex))) : QImage();
  const QPoint pressed(Down(), Down());
  if (image.isNull()) {
    TVRXRegion::Paint(canvas);
  } else {
    QRect place(QPoint(0, 0), image.deviceIndependentSize().toSize());
    place.moveCenter(ClientRect().center() + pressed);
    canvas.Painter().drawImage(place, image);
  }
  TVRXTextOptions options;
  if (!look.HasLetters(Enabled())) options.Include(TVRXTextOption::Disabled);
  VRXDrawTextExt(canvas, Caption(), look.FontFx(*fontFx_), look.Font(*Font()),
                 ClientRect().translated(pressed), options, tfCenter | tfVCenter | tfSingleLine, {},
                 look.Color(Color()));
}
