#include "vcl/GlyphButton.h"

#include <array>

#include "rtl/Class.h"
#include "vcl/ActionLook.h"
#include "vcl/AsGiven.h"
#include "vcl/ImageList.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"
#include "vcl/ShownText.h"

QImage GlyphOf(const QImage& all, int count, int state) {
  if (all.isNull() || count <= 1) return all;
  const int width = all.width() / count;
  return all.copy(width * (state < count ? state : 0), 0, width, all.height());
}

namespace {
// A line that is too long ends with an ellipsis.
std::pair<QString, QSize> TextThatFits(const QString& text, const TFont& font, int width) {
  QString shown = ShownText(text);
  if (shown.isEmpty()) return {shown, QSize(0, 0)};
  QSize size = TextExtent(shown, font, Qt::TextShowMnemonic);
  if (size.width() > width && !shown.contains(u'\n')) {
    shown = QFontMetrics(ToQFont(font)).elidedText(shown, Qt::ElideRight, width, Qt::TextShowMnemonic);
    size = TextExtent(shown, font, Qt::TextShowMnemonic);
  }
  return {shown, size};
}
}  // namespace

void PaintFace(TCanvas& canvas, const QRect& rect, const TFace& face, const TFont& font, bool enabled) {
  const QSize glyph = face.glyph.size();
  const bool across = face.layout == TButtonLayout::blGlyphLeft || face.layout == TButtonLayout::blGlyphRight;
  const auto [shown, text] = TextThatFits(face.text, font, rect.width() - (across ? glyph.width() : 0));
  const auto along = [across](QSize s) { return across ? s.width() : s.height(); };
  const int room = along(rect.size());
  int spacing = glyph.isEmpty() || text.isEmpty() ? 0 : face.spacing;
  const int free = room - along(glyph) - along(text);
  // -1: both gaps and the space between are alike.
  if (spacing < 0) spacing = face.margin < 0 ? free / 3 : (free - face.margin) / 2;
  const int margin = face.margin >= 0 ? face.margin : (free - spacing) / 2;
  const bool first = face.layout == TButtonLayout::blGlyphLeft || face.layout == TButtonLayout::blGlyphTop;
  const auto place = [&](QSize size, int from) {
    return across ? QRect(QPoint(rect.left() + from, rect.top() + (rect.height() - size.height()) / 2), size)
                  : QRect(QPoint(rect.left() + (rect.width() - size.width()) / 2, rect.top() + from), size);
  };
  const int glyphAt = first ? margin : room - margin - along(glyph);
  const int textAt = first ? glyphAt + along(glyph) + spacing : glyphAt - spacing - along(text);
  if (!glyph.isEmpty()) {
    canvas.Painter().setOpacity(enabled ? 1 : 0.4);
    canvas.Painter().drawImage(place(glyph, glyphAt).topLeft(), face.glyph);
    canvas.Painter().setOpacity(1);
  }
  if (!text.isEmpty())
    canvas.TextRect(place(text, textAt).adjusted(-1, 0, 1, 0), Qt::AlignCenter | Qt::TextShowMnemonic, shown,
                    font, enabled);
}

namespace {
struct KindRow {
  const char* caption;
  int result;
  bool isDefault, isCancel;
  const char* mark;  // of its picture
  TColor color;
};
constexpr TColor Good{0x00008000}, Bad{0x000000C0}, Plain{0x00A04000};
constexpr auto Kinds = std::to_array<KindRow>({{"", 0, false, false, "", Plain},
                                               {"OK", 1, true, false, "\u2713", Good},
                                               {"Cancel", 2, false, true, "\u2717", Bad},
                                               {"&Help", 0, false, false, "?", Plain},
                                               {"&Yes", 6, true, false, "\u2713", Good},
                                               {"&No", 7, false, true, "\u2717", Bad},
                                               {"&Close", 0, false, false, "\u2192", Plain},
                                               {"Abort", 3, false, false, "\u2717", Bad},
                                               {"&Retry", 4, false, false, "\u21BB", Good},
                                               {"&Ignore", 5, false, false, "\u21B7", Plain},
                                               {"Yes to &All", 12, false, false, "\u2713", Good}});
const KindRow& RowOf(TBitBtnKind kind) { return Kinds[static_cast<std::size_t>(kind)]; }
}  // namespace

const TClass& TBitBtn::StaticClass() {
  static const TTypeInfo glyphs = OrdinalType("TNumGlyphs", 0, 4);
  static const TClass cls(
      DescribeClass<TBitBtn>("TBitBtn", TButton::StaticClass())
          .Published("Cancel", &TBitBtn::IsCancel, &TBitBtn::ChooseCancel, false)
          .StoredIf(&TBitBtn::IsCustom)
          .Doc(QStringLiteral("Escape presses this button."))
          .Published("Caption", &TBitBtn::ShownCaption, &TBitBtn::SetCaption)
          .StoredIf(&TBitBtn::CaptionStored)
          .Type(CaptionType())
          .Doc(QStringLiteral("The text on the control; \"&\" marks the accelerator."))
          .Published("Default", &TBitBtn::IsDefault, &TBitBtn::ChooseDefault, false)
          .StoredIf(&TBitBtn::IsCustom)
          .Doc(QStringLiteral("Enter presses this button."))
          .Published(DefaultCaption)
          .Published(Glyph)
          .StoredIf(&TBitBtn::IsCustom)
          .Published("Kind", &TBitBtn::KindOf, &TBitBtn::SetKind, TBitBtnKind::bkCustom)
          .Doc(QStringLiteral("Gives the button a text, a picture and what it does."))
          .PublishedAll(Layout, Margin)
          .Published("ModalResult", &TBitBtn::Result, &TBitBtn::ChooseResult, 0)
          .StoredIf(&TBitBtn::IsCustom)
          .Type(ModalResultType())
          .Doc(QStringLiteral("What a modal form returns when the button is pressed."))
          .Published(NumGlyphs)
          .Type(glyphs)
          .PublishedAll(Spacing, Style)
          .Passive("GlyphShowMode", TGlyphShowMode::gsmApplication)
          .Passive("ImageWidth", 0)
          .Alphabetical()
          .ClassDoc(QStringLiteral("A push button with a picture."),
                    "pen line 1.5 brush fill box 2.5 6.5 19 11 3 pen accent 2 path 5.5 12 7.5 14 10.5 10 pen "
                    "line 1.5 path 13 12 18 12"));
  return cls;
}

// A button whose values are those of its kind.
bool TBitBtn::IsOfItsKind() const { return Get(Kind) != TBitBtnKind::bkCustom && !IsOfOtherFamily(); }

QString TBitBtn::ShownCaption() const {
  return Caption().isEmpty() && IsOfItsKind() ? QString::fromLatin1(RowOf(Get(Kind)).caption) : Caption();
}
bool TBitBtn::CaptionStored() const {
  return IsCustom() || ShownCaption() != QLatin1StringView(RowOf(Get(Kind)).caption);
}
bool TBitBtn::IsDefault() const { return IsOfItsKind() ? RowOf(Get(Kind)).isDefault : Default(); }
bool TBitBtn::IsCancel() const { return IsOfItsKind() ? RowOf(Get(Kind)).isCancel : Cancel(); }
int TBitBtn::Result() const { return IsOfItsKind() ? RowOf(Get(Kind)).result : ModalResult(); }

void TBitBtn::LeaveKind() {
  if (!IsOfItsKind()) return;
  const KindRow& row = RowOf(Get(Kind));
  SetCaption(ShownCaption());
  SetDefault(row.isDefault);
  SetCancel(row.isCancel);
  SetModalResult(row.result);
  Set(Kind, TBitBtnKind::bkCustom);
}

namespace {
// Ends the kind and sets one value, as one change.
template <class F, class T>
void Choose(TBitBtn& button, T now, T wanted, F change) {
  if (now == wanted && !TakesAsGiven(button)) return;
  const TUpdateLock once(button);
  change();
}
}  // namespace

void TBitBtn::ChooseDefault(bool v) {
  Choose(*this, IsDefault(), v, [&] {
    if (!TakesAsGiven(*this)) LeaveKind();
    SetDefault(v);
  });
}
void TBitBtn::ChooseCancel(bool v) {
  Choose(*this, IsCancel(), v, [&] {
    if (!TakesAsGiven(*this)) LeaveKind();
    SetCancel(v);
  });
}
void TBitBtn::ChooseResult(int v) {
  Choose(*this, Result(), v, [&] {
    if (!TakesAsGiven(*this)) LeaveKind();
    SetModalResult(v);
  });
}

void TBitBtn::SetKind(TBitBtnKind v) {
  if (v == Get(Kind)) return;
  if (TakesAsGiven(*this)) return Set(Kind, v);
  const TUpdateLock once(*this);
  LeaveKind();
  if (v != TBitBtnKind::bkCustom) {
    const KindRow& row = RowOf(v);
    SetCaption(QString::fromLatin1(row.caption));
    SetDefault(row.isDefault);
    SetCancel(row.isCancel);
    const bool otherFamily = IsOfOtherFamily();
    constexpr int close = 8;
    SetModalResult(v == TBitBtnKind::bkClose && otherFamily ? close : row.result);
    if (otherFamily) Set(DefaultCaption, true);
    if (IsKept(&Glyph)) Get(Glyph)->Assign(std::make_unique<TGlyph>().get());
  }
  Set(Kind, v);
}

// A picture of its own ends the kind, too.
void TBitBtn::PartChanged(TPersistent& part) {
  if (IsKept(&Glyph) && &part == Get(Glyph) && !TakesAsGiven(*this)) LeaveKind();
  TButton::PartChanged(part);
}

// The picture, or the mark of the kind.
QImage TBitBtn::Face() const {
  const QImage own = GlyphOf(Get(Glyph)->Transparent(), Get(NumGlyphs), LookOf(*this).enabled ? 0 : 1);
  const KindRow& row = RowOf(Get(Kind));
  if (!own.isNull() || Get(Kind) == TBitBtnKind::bkCustom) return own;
  constexpr int side = 16;
  QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter p(&image);
  QFont font = ToQFont(*Font());
  font.setPixelSize(side - 2);
  font.setBold(true);
  p.setFont(font);
  p.setPen(ToQColor(row.color));
  p.drawText(image.rect(), Qt::AlignCenter, QString::fromUtf8(row.mark));
  return image;
}

void TBitBtn::Paint(TCanvas& canvas) {
  const TActionLook look = LookOf(*this);
  TPartStates states = look.States();
  if (IsDefault()) states.Include(TPartState::Default);
  PaintButton(canvas, ClientRect(), states, QString(), Font());
  const QString caption =
      look.caption.isEmpty() ? QString::fromLatin1(RowOf(Get(Kind)).caption) : look.caption;
  PaintFace(canvas, ClientRect().adjusted(2, 2, -2, -2),
            {.glyph = Face(),
             .text = caption,
             .layout = Get(Layout),
             .margin = Get(Margin),
             .spacing = Get(Spacing)},
            *Font(), look.enabled);
}

const TClass& TSpeedButton::StaticClass() {
  static const TTypeInfo glyphs = OrdinalType("TNumGlyphs", 0, 4);
  static const TClass cls(
      DescribeClass<TSpeedButton>("TSpeedButton", TGraphicControl::StaticClass())
          .PublishAll(Placing, Placement, Direction, Help, Hints, Styling, "Action", "AutoSize", "Caption",
                      "Color", "Enabled", "Font", "ParentColor", "ParentFont", "PopupMenu", "Touch",
                      "Visible", "OnGesture", MouseEvents, WheelEvents)
          .PublishedAll(AllowAllUp, Down, Flat, Glyph, GroupIndex, Layout, Margin)
          .Published(NumGlyphs)
          .Type(glyphs)
          .PublishedAll(Spacing, Transparent)
          .Passive("DisabledImageIndex", -1)
          .Passive<QString>("DisabledImageName")
          .Passive("HotImageIndex", -1)
          .Passive<QString>("HotImageName")
          .Passive("ImageIndex", -1)
          .Passive<QString>("ImageName")
          .Passive<TCustomImageList*>("Images")
          .Passive("ImageWidth", 0)
          .Passive("PressedImageIndex", -1)
          .Passive<QString>("PressedImageName")
          .Passive("SelectedImageIndex", -1)
          .Passive<QString>("SelectedImageName")
          .Passive("ShowCaption", true)
          .Event("OnPaint")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A button for a tool bar: it takes no focus and can stay down."),
              "pen line 1.5 brush fill box 4.5 4.5 15 15 3 pen accent 2 path 13 7.5 9.5 12.5 14.5 12.5 11 "
              "17"));
  return cls;
}

TSpeedButton::TSpeedButton(TComponent* owner) : TGraphicControl(owner) {
  captionFollowsName_ = false;
  SetBounds(0, 0, 23, 22);
}

void TSpeedButton::Paint(TCanvas& canvas) {
  const TActionLook look = LookOf(*this, Get(Down));
  TPartStates states = look.States();
  const bool down = look.checked && Get(GroupIndex) != 0;
  if (down) states.Include(TPartState::Down);
  if (!Get(Flat) || down || IsDesigning()) PaintButton(canvas, ClientRect(), states, QString(), Font());
  PaintFace(canvas, ClientRect().adjusted(2, 2, -2, -2),
            {.glyph = GlyphOf(Get(Glyph)->Transparent(), Get(NumGlyphs),
                              !look.enabled ? 1
                              : down        ? 3
                                            : 0),
             .text = look.caption,
             .layout = Get(Layout),
             .margin = Get(Margin),
             .spacing = Get(Spacing)},
            *Font(), look.enabled);
}
