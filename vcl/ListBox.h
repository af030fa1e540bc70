// Lists of texts, one below the other.
#pragma once
#include "rtl/Strings.h"
#include "vcl/Edit.h"
#include "vcl/ListControl.h"

enum class TListBoxStyle : std::uint8_t {
  lbStandard,
  lbOwnerDrawFixed,
  lbOwnerDrawVariable,
  lbVirtual,
  lbVirtualOwnerDraw
};
VRX_ENUM(TListBoxStyle,
         {"lbStandard", "lbOwnerDrawFixed", "lbOwnerDrawVariable", "lbVirtual", "lbVirtualOwnerDraw"})

enum class TListBoxOption : std::uint8_t { lboDrawFocusRect };
VRX_ENUM(TListBoxOption, {"lboDrawFocusRect"})
using TListBoxOptions = TSet<TListBoxOption>;
VRX_SET(TListBoxOptions, TListBoxOption)

class TCustomListBox : public TCustomListControl {
  VRX_CLASS(TCustomListBox)
 public:
  explicit TCustomListBox(TComponent* owner);
  static constexpr TKept<bool> AutoComplete{"AutoComplete", true};
  static constexpr TKept<TBorderStyle> BorderStyle{"BorderStyle", TBorderStyle::bsSingle};
  static constexpr TKept<int> Columns{"Columns", 0};
  static constexpr TKept<bool> ExtendedSelect{"ExtendedSelect", true};
  static constexpr TKept<bool> IntegralHeight{"IntegralHeight", false};
  static constexpr TKept<int> ItemHeight{"ItemHeight", 0};
  static constexpr TKept<int> ItemIndex{"ItemIndex", -1};
  static constexpr TKept<TStrings*> Items{"Items"};
  static constexpr TKept<int> ScrollWidth{"ScrollWidth", 0};
  static constexpr TKept<bool> Sorted{"Sorted", false};
  static constexpr TKept<TListBoxStyle> Style{"Style", TListBoxStyle::lbStandard};
  static constexpr TKept<int> TabWidth{"TabWidth", 0};
  static constexpr TKept<int> TopIndex{"TopIndex", 0};

  void Paint(TCanvas& canvas) override;

 protected:
  // The item that is shown as chosen; -1 for none.
  virtual int ChosenItem() const { return Get(ItemIndex); }
  // In front of the text; what is left of the line.
  virtual QRect PaintItemMark(TCanvas&, const QRect& line, int) const { return line; }
};

class TListBox : public TCustomListBox {
  VRX_CLASS(TListBox)
 public:
  using TCustomListBox::TCustomListBox;
};

class TCheckListBox : public TCustomListBox {
  VRX_CLASS(TCheckListBox)
 public:
  using TCustomListBox::TCustomListBox;
  static constexpr TKept<bool> AllowGrayed{"AllowGrayed", false};
  static constexpr TKept<bool> Flat{"Flat", true};
  static constexpr TKept<TColor> HeaderColor{"HeaderColor", clInfoText};
  static constexpr TKept<TColor> HeaderBackgroundColor{"HeaderBackgroundColor", clInfoBk};

  // States of the items; those nobody set are unchecked. An index that is not there is refused.
  TCheckBoxState State(int index) const;
  void SetState(int index, TCheckBoxState state);
  bool Checked(int index) const { return State(index) == TCheckBoxState::cbChecked; }

  // The states as one of the two dialects keeps them: their number, then a byte each.
  QByteArray Data() const { return data_; }
  void SetData(const QByteArray& bytes) { Change(data_, bytes); }

 protected:
  QRect PaintItemMark(TCanvas& canvas, const QRect& line, int index) const override;

 private:
  QByteArray data_;
};
