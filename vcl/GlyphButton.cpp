#include "vcl/GlyphButton.h"

#include <array>

#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"
#include "vcl/ShownText.h"

QImage GlyphOf(const QImage& all, int count, int state) {
  if (all.isNull() || count <= 1) return all;
  const int width = all.width() / count;
  return all.copy(width * (state < count ? state : 0), 0, width, all.height());
}

void PaintFace(TCanvas& canvas, const QRect& rect, const TFace& face, const TFont& font, bool enabled) {
  const QString shown = ShownText(face.text);
  const QSize text = shown.isEmpty() ? QSize(0, 0) : TextExtent(face.text, font, Qt::TextShowMnemonic);
  const QSize glyph = face.glyph.size();
  const bool across = face.layout == TButtonLayout::blGlyphLeft || face.layout == TButtonLayout::blGlyphRight;
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
    canvas.TextRect(place(text, textAt).adjusted(-1, 0, 1, 0), Qt::AlignCenter | Qt::TextShowMnemonic,
                    face.text, font, enabled);
}

namespace {
const char* const KindCaptions[] = {"",       "OK",    "Cancel", "&Help",   "&Yes",       "&No",
                                    "&Close", "Abort", "&Retry", "&Ignore", "Yes to &All"};
}  // namespace

const TClass& TBitBtn::StaticClass() {
  static const TTypeInfo glyphs = OrdinalType("TNumGlyphs", 0, 4);
  static const TClass cls(
      DescribeClass<TBitBtn>("TBitBtn", TButton::StaticClass())
          .PublishedAll(DefaultCaption, Glyph, Kind, Layout, Margin)
          .Published(NumGlyphs)
          .Type(glyphs)
          .PublishedAll(Spacing, Style)
          .Passive("GlyphShowMode", TGlyphShowMode::gsmApplication)
          .Alphabetical()
          .ClassDoc(QStringLiteral("A push button with a picture."),
                    "pen line 1.5 brush fill box 2.5 6.5 19 11 3 pen accent 2 path 5.5 12 7.5 14 10.5 10 pen "
                    "line 1.5 path 13 12 18 12"));
  return cls;
}

void TBitBtn::Paint(TCanvas& canvas) {
  TPartStates states = PartStates();
  if (Default()) states.Include(TPartState::Default);
  PaintButton(canvas, ClientRect(), states, QString(), Font());
  const auto kind = static_cast<std::size_t>(Get(Kind));
  const QString caption =
      Caption().isEmpty() && kind > 0 ? QString::fromLatin1(KindCaptions[kind]) : Caption();
  PaintFace(canvas, ClientRect().adjusted(2, 2, -2, -2),
            {.glyph = GlyphOf(Get(Glyph)->Transparent(), Get(NumGlyphs), Enabled() ? 0 : 1),
             .text = caption,
             .layout = Get(Layout),
             .margin = Get(Margin),
             .spacing = Get(Spacing)},
            *Font(), Enabled());
}

const TClass& TSpeedButton::StaticClass() {
  static const TTypeInfo glyphs = OrdinalType("TNumGlyphs", 0, 4);
  static const TClass cls(
      DescribeClass<TSpeedButton>("TSpeedButton", TGraphicControl::StaticClass())
          .PublishAll(Placing, Placement, Direction, Hints, Styling, "Action", "AutoSize", "Caption", "Color",
                      "Enabled", "Font", "ParentColor", "ParentFont", "PopupMenu", "Visible", MouseEvents,
                      WheelEvents)
          .PublishedAll(AllowAllUp, Down, Flat, Glyph, GroupIndex, Layout, Margin)
          .Published(NumGlyphs)
          .Type(glyphs)
          .PublishedAll(Spacing, Transparent)
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
  TPartStates states = PartStates();
  const bool down = Get(Down) && Get(GroupIndex) != 0;
  if (down) states.Include(TPartState::Down);
  if (!Get(Flat) || down || IsDesigning()) PaintButton(canvas, ClientRect(), states, QString(), Font());
  PaintFace(canvas, ClientRect().adjusted(2, 2, -2, -2),
            {.glyph = GlyphOf(Get(Glyph)->Transparent(), Get(NumGlyphs),
                              !Enabled() ? 1
                              : down     ? 3
                                         : 0),
             .text = Caption(),
             .layout = Get(Layout),
             .margin = Get(Margin),
             .spacing = Get(Spacing)},
            *Font(), Enabled());
}
