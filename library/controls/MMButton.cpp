#include "library/controls/MMButton.h"

#include "vcl/PropertyGroups.h"
#include "vcl/ShownText.h"

using enum TVRXButtonState;

const TClass& TVRXMMButtonFaceController::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXMMButtonFaceController>("TVRXMMButtonFaceController", TComponent::StaticClass())
          .Published(FacePart)
          .Doc(QStringLiteral("A picture of the list for each state of the buttons."))
          .Published(ButtonFaceImageList)
          .Doc(QStringLiteral("Where the pictures are found."))
          .ClassDoc(
              QStringLiteral("Gives several buttons the same pictures for their states."),
              "pen line 1.5 brush fill box 2.5 3.5 19 8 2 pen accent 1.5 brush accent+50 oval 4.5 5.5 4 4 "
              "oval 10 5.5 4 4 brush none oval 15.5 5.5 4 4 pen line 1.5 path 12 11.5 12 15 path 6 20 6 "
              "15 18 15 18 20"));
  return cls;
}

void TVRXMMButtonFaceController::SetTransCol() {
  for (const TComponent* holder : FreeNotifies())
    if (auto* button = As<TVRXCustomMMButton>(const_cast<TComponent*>(holder))) button->SetTransCol();
}

const TClass& TVRXCustomMMButton::StaticClass() {
  using C = TVRXCustomMMButton;
  static const TClass cls(
      DescribeClass<C>("TVRXCustomMMButton", TGraphicControl::StaticClass())
          .Icon("pen line 1.5 brush fill box 2.5 5.5 19 13 3 pen none brush accent+50 oval 5 8.5 7 7 brush "
                "accent "
                "shape 7.5 10 7.5 14 10.8 12 pen line 1.5 path 14.5 12 19 12")
          .Declared(FacePart)
          .Doc(QStringLiteral("A picture of the list for each state of the button."))
          .Declared(ButtonFaceController)
          .Doc(QStringLiteral("Has face and list for several buttons, in place of this button's own."))
          .Declared(ButtonFaceImageList)
          .Doc(QStringLiteral("Where the pictures are found."))
          .Declared(Checked)
          .Doc(QStringLiteral("Shows the button switched on."))
          .Declared(Down)
          .Doc(QStringLiteral("Shows the button pressed."))
          .Declared(Flat)
          .Doc(QStringLiteral("Leaves the edge of the button away."))
          .DeclaredAll(Layout, Margin)
          .Declared(ShowCaption)
          .Declared(Spacing)
          .Declared("Transparent", &C::Transparent, &C::SetTransparent, false)
          .Doc(QStringLiteral(
              "Leaves the color of the lower left pixel out of pictures without transparency.")));
  return cls;
}

namespace {
TClassBuilder AsMMButton(TClassBuilder b) {
  return VRXWithFace(std::move(b)
                         .PublishAll(Placing)
                         .Publish("AutoSize", false)
                         .PublishAll("ButtonFace", "ButtonFaceController", "ButtonFaceImageList", "Caption",
                                     "Checked", "Down", "Enabled"))
      .PublishAll("Font", "Layout", "Margin", "ParentFont", "ShowCaption", Hints, "Spacing", "Visible",
                  MouseEvents)
      .Passive("AllowAllUp", false)
      .Passive("GroupIndex", 0);
}
}  // namespace

const TClass& TVRXMMButton::StaticClass() {
  static const TClass cls(
      AsMMButton(DescribeClass<TVRXMMButton>("TVRXMMButton", TVRXCustomMMButton::StaticClass()))
          .PublishAll("Flat", "Transparent")
          .ClassDoc(QStringLiteral("A button with a picture for each of its states.")));
  return cls;
}

TVRXCustomMMButton::TVRXCustomMMButton(TComponent* owner) : TGraphicControl(owner) {
  captionFollowsName_ = true;
  SetBounds(0, 0, 120, 32);
}

TVRXButtonState TVRXCustomMMButton::State() const {
  const TVRXFaceController* controller = Get(VRXFaceControllerRef);
  const TVRXStateKinds design =
      controller && IsDesigning() ? controller->Get(TVRXFaceController::DesignStates) : TVRXStateKinds();
  const auto in = [&](TVRXStateKind kind, bool own) { return own || design.Contains(kind); };
  const bool checked = in(TVRXStateKind::skChecked, Get(Checked));
  if (in(TVRXStateKind::skDisabled, !Enabled())) return checked ? bsCheckedDisabled : bsDisabled;
  if (in(TVRXStateKind::skPressed, Get(Down))) return checked ? bsCheckedDown : bsDown;
  if (in(TVRXStateKind::skMouseOver, false)) return checked ? bsCheckedOver : bsMouseOver;
  if (checked) return bsChecked;
  return in(TVRXStateKind::skFocused, false) ? bsFocused : bsUp;
}

const TCustomImageList* TVRXCustomMMButton::Pictures() const {
  const TVRXMMButtonFaceController* controller = Get(ButtonFaceController);
  return controller ? controller->Get(TVRXMMButtonFaceController::ButtonFaceImageList)
                    : Get(ButtonFaceImageList);
}

namespace {
bool HasTransparency(const QImage& image) {
  if (!image.hasAlphaChannel()) return false;
  const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < pixels.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
    if (std::any_of(row, row + pixels.width(), [](QRgb pixel) { return qAlpha(pixel) != 255; })) return true;
  }
  return false;
}
// As pictures of what is disabled look.
QImage Faint(const QImage& picture) {
  TVRXBitmapEffect effect;
  effect.Set(TVRXBitmapEffect::Kind, TVRXBitmapEffectKind::beFade);
  return effect.Apply(picture);
}
QImage WithoutGround(const QImage& picture) {
  if (picture.isNull() || HasTransparency(picture)) return picture;
  QImage image = picture.convertToFormat(QImage::Format_ARGB32);
  const QRgb ground = image.pixel(0, image.height() - 1);
  for (int y = 0; y < image.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x)
      if (row[x] == ground) row[x] = 0;
  }
  return image;
}
}  // namespace

QImage TVRXCustomMMButton::OwnPicture(TVRXButtonState state) const {
  const TVRXMMButtonFaceController* controller = Get(ButtonFaceController);
  const TVRXButtonFaceIndices face = controller ? controller->GetButtonFaceIndices() : GetButtonFaceIndices();
  const TVRXButtonFaceIndex index = face[static_cast<std::size_t>(state)];
  const QImage image = VRXIMLImage(Pictures(), index.ListIndex, index.ImageIndex);
  return transparent_ ? WithoutGround(image) : image;
}

QImage TVRXCustomMMButton::PictureOf(TVRXButtonState state) const {
  const bool checked = state >= bsChecked;
  for (const TVRXButtonState nearest : {state, checked ? bsChecked : bsUp, checked ? bsDown : bsUp, bsUp})
    if (const QImage image = OwnPicture(nearest); !image.isNull()) return image;
  return {};
}

TVRXCustomMMButton::TShown TVRXCustomMMButton::Shown() const {
  const TVRXButtonState state = State();
  const QImage own = OwnPicture(state);
  return own.isNull() ? TShown{PictureOf(state), false} : TShown{own, true};
}

QSize TVRXCustomMMButton::AutoSizeHint() const {
  const QSize picture = PictureOf(bsUp).size();
  const bool lettered = Get(ShowCaption) && !ShownText(Caption()).isEmpty();
  const QSize text = lettered ? TextExtent(Caption(), *Font(), Qt::TextShowMnemonic) : QSize(0, 0);
  const int between = picture.isEmpty() || text.isEmpty() ? 0 : std::max(Get(Spacing), 0);
  const bool across = Get(Layout) == TButtonLayout::blGlyphLeft || Get(Layout) == TButtonLayout::blGlyphRight;
  QSize size = picture.expandedTo(text);
  if (across)
    size.setWidth(picture.width() + between + text.width());
  else
    size.setHeight(picture.height() + between + text.height());
  if (picture.isEmpty() && text.isEmpty()) return {Width(), Height()};
  const int around = Get(Flat) ? 0 : 6;
  return size + QSize(2 * around, 2 * around);
}

namespace {
// As much of a text as there is room for, line by line.
QString Elided(const QString& text, const TFont& font, int room) {
  if (TextExtent(text, font, Qt::TextShowMnemonic).width() <= room) return text;
  QStringList lines = ShownText(text).split(u'\n');
  const QFontMetrics metrics(ToQFont(font));
  for (QString& line : lines) line = metrics.elidedText(line, Qt::ElideRight, room, Qt::TextShowMnemonic);
  return lines.join(u'\n');
}
}  // namespace

// A picture that is not the state's own tells by its place and strength which state it is.
void TVRXCustomMMButton::PaintContent(TCanvas& canvas, const QRect& rect, const TShown& shown,
                                      const TVRXFaceLook& look) const {
  const TVRXButtonState state = State();
  const bool disabled = state == bsDisabled || state == bsCheckedDisabled;
  const bool pressed = state == bsDown || state == bsCheckedDown;
  QImage glyph = shown.picture;
  TFont letters;
  letters.Assign(&look.Font(*Font()));
  if (disabled && !look.HasLetters(false)) letters.SetColor(clGrayText);
  glyph = look.Picture(glyph);
  if (disabled && !shown.own) glyph = Faint(glyph);
  const bool across = Get(Layout) == TButtonLayout::blGlyphLeft || Get(Layout) == TButtonLayout::blGlyphRight;
  const int beside = across && !glyph.isNull() ? glyph.width() + std::max(Get(Spacing), 0) : 0;
  PaintFace(canvas, rect.translated(pressed && !shown.own, pressed && !shown.own),
            {.glyph = glyph,
             .text = Get(ShowCaption) ? Elided(Caption(), letters, rect.width() - beside) : QString(),
             .layout = Get(Layout),
             .margin = Get(Margin),
             .spacing = Get(Spacing)},
            letters, true);
}

void TVRXCustomMMButton::Paint(TCanvas& canvas) {
  const TVRXFaceLook look = VRXFaceOf(*this);
  const TVRXButtonState state = State();
  QRect inside = ClientRect();
  if (!Get(Flat)) {
    TPartStates states;
    if (state == bsDisabled || state == bsCheckedDisabled) states.Include(TPartState::Disabled);
    if (state == bsDown || state >= bsChecked) states.Include(TPartState::Down);
    if (state == bsMouseOver || state == bsCheckedOver) states.Include(TPartState::Hot);
    if (state == bsFocused) states.Include(TPartState::Focused);
    PaintButton(canvas, inside, states, QString(), Font());
    inside.adjust(3, 3, -3, -3);
  }
  look.PaintGround(canvas, inside);
  static const TVRXBevel none;
  inside = look.Bevel(none).Draw(canvas, inside);
  PaintContent(canvas, inside, Shown(), look);
}

// --- Shaped ones

const TClass& TVRXCustomShapeButton::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCustomShapeButton>("TVRXCustomShapeButton", TVRXCustomMMButton::StaticClass())
          .Icon("pen line 1.5 brush fill oval 2.5 5 19 14 pen accent 2 path 9 8.5 9 15.5 15.5 12 9 8.5")
          .Declared(ShapeFillPart)
          .Doc(QStringLiteral("What the button is filled with until it has a picture."))
          .Declared(ShapeFillImageList)
          .Doc(QStringLiteral("Where the fill finds pictures by index.")));
  return cls;
}

const TClass& TVRXShapeButton::StaticClass() {
  static const TClass cls(
      AsMMButton(DescribeClass<TVRXShapeButton>("TVRXShapeButton", TVRXCustomShapeButton::StaticClass()))
          .PublishAll("ShapeFill", "ShapeFillImageList")
          .Publish("Transparent", true)
          .ClassDoc(QStringLiteral("A button in the shape of its picture.")));
  return cls;
}

TVRXCustomShapeButton::TVRXCustomShapeButton(TComponent* owner) : TVRXCustomMMButton(owner) {
  transparent_ = true;
  SetBounds(0, 0, 136, 56);
}

QSize TVRXCustomShapeButton::AutoSizeHint() const {
  const QSize picture = PictureOf(bsUp).size();
  return picture.isEmpty() ? QSize(Width(), Height()) : picture;
}

QRect TVRXCustomShapeButton::PicturePlace(const QImage& picture) const {
  return {QPoint((Width() - picture.width()) / 2, (Height() - picture.height()) / 2), picture.size()};
}

QRegion TVRXCustomShapeButton::Area() const {
  const QImage picture = Shown().picture;
  if (picture.isNull()) return QRegion(ClientRect(), QRegion::Ellipse);
  QRegion area;
  const QPoint from = PicturePlace(picture).topLeft();
  constexpr int seen = 128;  // half of it
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0, start = -1; x <= picture.width(); ++x) {
      const bool opaque = x < picture.width() && qAlpha(picture.pixel(x, y)) >= seen;
      if (opaque && start < 0) start = x;
      if (!opaque && start >= 0) area += QRect(from.x() + start, from.y() + y, x - start, 1);
      if (!opaque) start = -1;
    }
  return area & ClientRect();
}

void TVRXCustomShapeButton::Paint(TCanvas& canvas) {
  const TVRXFaceLook look = VRXFaceOf(*this);
  const TShown shown = Shown();
  const TVRXButtonState state = State();
  const bool pressed = state == bsDown || state >= bsChecked;
  QPainter& p = canvas.Painter();
  if (!shown.picture.isNull()) {
    const bool disabled = state == bsDisabled || state == bsCheckedDisabled;
    const QPoint by(pressed && !shown.own, pressed && !shown.own);
    p.save();
    p.setClipRect(ClientRect(), Qt::IntersectClip);
    if (look.HasGround()) {
      QPainterPath area;
      area.addRegion(Area().translated(by));
      look.PaintGround(canvas, area);
    }
    const QImage picture = look.Picture(shown.picture);
    p.drawImage(PicturePlace(picture).topLeft() + by, disabled && !shown.own ? Faint(picture) : picture);
    p.restore();
    return PaintContent(canvas, ClientRect(), {QImage(), shown.own}, look);
  }
  const QRectF oval = QRectF(ClientRect()).adjusted(1, 1, -1, -1);
  QPainterPath area;
  area.addEllipse(oval);
  p.save();
  if (look.HasGround()) {
    look.PaintGround(canvas, area);
  } else {
    if (state == bsDisabled || state == bsCheckedDisabled) p.setOpacity(0.4);
    ShapeFill()->Draw(canvas, area, Get(ShapeFillImageList));
  }
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(ToQColor(clBtnShadow), pressed ? 3 : 1.5));
  p.setBrush(Qt::NoBrush);
  p.drawEllipse(oval);
  p.restore();
  PaintContent(canvas, ClientRect(), shown, look);
}
