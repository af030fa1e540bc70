// Lists of colours to choose from, in a field and in a box.
#pragma once
#include "vcl/ComboBox.h"
#include "vcl/ListBox.h"

enum class TColorBoxStyles : std::uint8_t {
  cbStandardColors,
  cbExtendedColors,
  cbSystemColors,
  cbIncludeNone,
  cbIncludeDefault,
  cbCustomColor,
  cbPrettyNames,
  cbCustomColors
};
VRX_ENUM(TColorBoxStyles, {"cbStandardColors", "cbExtendedColors", "cbSystemColors", "cbIncludeNone",
                           "cbIncludeDefault", "cbCustomColor", "cbPrettyNames", "cbCustomColors"})
using TColorBoxStyle = TSet<TColorBoxStyles>;
VRX_SET(TColorBoxStyle, TColorBoxStyles)
constexpr TColorBoxStyle DefaultColorBoxStyle{
    TColorBoxStyles::cbStandardColors, TColorBoxStyles::cbExtendedColors, TColorBoxStyles::cbSystemColors};

// What is offered, in order. A colour of one's own is the first where there can be one.
struct TOfferedColor {
  TColor color;
  QString text;
};
std::vector<TOfferedColor> OfferedColors(TColorBoxStyle style);

class TCustomColorBox : public TCustomComboBox {
  VRX_CLASS(TCustomColorBox)
 public:
  explicit TCustomColorBox(TComponent* owner);
  static constexpr TKept<TColor> DefaultColorColor{"DefaultColorColor", clBlack};
  static constexpr TKept<TColor> NoneColorColor{"NoneColorColor", clBlack};
  static constexpr TKept<TColor> Selected{"Selected", clBlack};
  static constexpr TKept<TColorBoxStyle> ColorStyle{"Style", DefaultColorBoxStyle};

 protected:
  void PaintField(TCanvas& canvas, const QRect& inside) override;
};

class TColorBox : public TCustomColorBox {
  VRX_CLASS(TColorBox)
 public:
  using TCustomColorBox::TCustomColorBox;
};

class TCustomColorListBox : public TCustomListBox {
  VRX_CLASS(TCustomColorListBox)
 public:
  using TCustomListBox::TCustomListBox;
  static constexpr TKept<TColor> DefaultColorColor{"DefaultColorColor", clBlack};
  static constexpr TKept<TColor> NoneColorColor{"NoneColorColor", clBlack};
  static constexpr TKept<TColor> Selected{"Selected", clBlack};
  static constexpr TKept<TColorBoxStyle> ColorStyle{"Style", DefaultColorBoxStyle};

  void Paint(TCanvas& canvas) override;
};

class TColorListBox : public TCustomColorListBox {
  VRX_CLASS(TColorListBox)
 public:
  using TCustomColorListBox::TCustomColorListBox;
};
