#include "vcl/ColorBox.h"

#include "rtl/Class.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"

namespace {
constexpr TColor FirstExtended{0xC0DCC0};

QString NameOf(TColor color, TColorBoxStyle style) {
  const QString name = ColorToString(color);
  return style.Contains(TColorBoxStyles::cbPrettyNames) && name.startsWith(u"cl") ? name.mid(2) : name;
}

// A swatch in front, and the text behind it.
void PaintColorLine(TCanvas& canvas, QRect line, TColor shown, const QString& text, const TFont& font,
                    bool enabled) {
  const int side = line.height() - 4;
  if (side > 2) {
    const QRect swatch(line.left() + 2, line.top() + 2, side, side);
    canvas.FillRect(swatch, clBlack);
    canvas.Painter().fillRect(swatch.adjusted(1, 1, -1, -1), ToQColor(ColorToRGB(shown)));
    line.setLeft(swatch.right() + 5);
  }
  canvas.TextRect(line, Qt::AlignLeft | Qt::AlignVCenter, text, font, enabled);
}

template <class T>
TColor ShownColor(const T& control, TColor color) {
  return color == clDefault ? control.Get(T::DefaultColorColor)
         : color == clNone  ? control.Get(T::NoneColorColor)
                            : color;
}
}  // namespace

std::vector<TOfferedColor> OfferedColors(TColorBoxStyle style) {
  using enum TColorBoxStyles;
  std::vector<TOfferedColor> offered;
  if (style.Contains(cbCustomColor)) offered.push_back({clBlack, QStringLiteral("Custom...")});
  bool extended = false;
  for (const TColorEntry& entry : NamedColors()) {
    extended |= entry.Value == FirstExtended;
    const TColorBoxStyles kind = entry.Value == clNone      ? cbIncludeNone
                                 : entry.Value == clDefault ? cbIncludeDefault
                                 : entry.System             ? cbSystemColors
                                 : extended                 ? cbExtendedColors
                                                            : cbStandardColors;
    if (style.Contains(kind)) offered.push_back({entry.Value, NameOf(entry.Value, style)});
  }
  return offered;
}

const TClass& TCustomColorBox::StaticClass() {
  static const TClass cls(DescribeClass<TCustomColorBox>("TCustomColorBox", TCustomComboBox::StaticClass())
                              .DeclaredAll(DefaultColorColor, NoneColorColor, Selected, ColorStyle));
  return cls;
}

TCustomColorBox::TCustomColorBox(TComponent* owner) : TCustomComboBox(owner) { SetBounds(0, 0, 145, 22); }

void TCustomColorBox::PaintField(TCanvas& canvas, const QRect& inside) {
  const TColor color = Get(Selected);
  PaintColorLine(canvas, inside, ShownColor(*this, color), NameOf(color, Get(ColorStyle)), *Font(),
                 Enabled());
}

const TClass& TColorBox::StaticClass() {
  static const TClass cls(
      DescribeClass<TColorBox>("TColorBox", TCustomColorBox::StaticClass())
          .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Bevels, Windowed, Help,
                      Styling, WheelEvents, "DefaultColorColor", "DropDownCount", "ItemHeight",
                      "NoneColorColor", "Selected", "Style", "OnChange", "OnCloseUp", "OnDropDown",
                      "OnSelect", MouseEvents, KeyEvents, FocusEvents, DragEvents)
          .Passive("AutoComplete", true)
          .Passive("AutoDropDown", false)
          .Passive("ColorRectOffset", 3)
          .Passive("ColorRectWidth", 14)
          .Passive("ItemIndex", -1)
          .Publish("Color", clWindow)
          .Publish("ParentColor", false)
          .Publish("TabStop", true)
          .Event("OnGetColors", "TGetColorsEvent")
          .Alphabetical()
          .ClassDoc(QStringLiteral("A field with a list of colors to choose from."),
                    "pen line 1.5 brush fill box 2.5 7.5 19 9 2 pen none brush accent box 4 9 8.5 6 0 pen "
                    "accent 2 brush none path 14.5 11 17 13.5 19.5 11"));
  return cls;
}

const TClass& TCustomColorListBox::StaticClass() {
  static const TClass cls(
      DescribeClass<TCustomColorListBox>("TCustomColorListBox", TCustomListBox::StaticClass())
          .DeclaredAll(DefaultColorColor, NoneColorColor, Selected, ColorStyle));
  return cls;
}

void TCustomColorListBox::Paint(TCanvas& canvas) {
  QRect inside = ClientRect();
  if (Get(BorderStyle) == TBorderStyle::bsSingle)
    inside = PaintEditFrame(canvas, inside, PartStates(), Color());
  else
    canvas.FillRect(inside, Color());
  TFont onHighlight;
  onHighlight.Assign(Font());
  onHighlight.SetColor(clHighlightText);
  const int height =
      Get(ItemHeight) > 0 ? Get(ItemHeight) : TextExtent(QStringLiteral("Wg"), *Font()).height();
  QRect line(inside.left(), inside.top(), inside.width(), height);
  for (const TOfferedColor& offered : OfferedColors(Get(ColorStyle))) {
    if (line.top() > inside.bottom()) break;
    const bool chosen = offered.color == Get(Selected);
    canvas.Painter().save();
    canvas.Painter().setClipRect(inside, Qt::IntersectClip);
    if (chosen) canvas.FillRect(line, Enabled() ? clHighlight : clBtnShadow);
    PaintColorLine(canvas, line, ShownColor(*this, offered.color), offered.text,
                   chosen ? onHighlight : *Font(), Enabled() || chosen);
    canvas.Painter().restore();
    line.translate(0, height);
  }
}

const TClass& TColorListBox::StaticClass() {
  static const TClass cls(
      DescribeClass<TColorListBox>("TColorListBox", TCustomColorListBox::StaticClass())
          .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Bevels, Windowed, Help,
                      Styling, WheelEvents, "AutoComplete", "BorderStyle", "DefaultColorColor", "ItemHeight",
                      "NoneColorColor", "Selected", "Style", "TabWidth", "AutoCompleteDelay", "MultiSelect",
                      "OnDrawItem", "OnSelectionChange", MouseEvents, KeyEvents, FocusEvents, DragEvents)
          .Passive("ColorRectOffset", 3)
          .Passive("ColorRectWidth", 14)
          .Publish("Color", clWindow)
          .Publish("ParentColor", false)
          .Publish("TabStop", true)
          .Event("OnGetColors", "TLBGetColorsEvent")
          .Alphabetical()
          .ClassDoc(QStringLiteral("A list of colors."),
                    "pen line 1.5 brush fill box 4 3.5 16 17 2 pen none brush accent box 6.5 6 4 4 0 brush "
                    "line box 6.5 13.5 4 4 0 pen line 1.5 path 13 8 17.5 8 path 13 15.5 17.5 15.5"));
  return cls;
}
