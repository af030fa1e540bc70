// Frames with a title around other controls, and the groups of choices that stand on them.
#pragma once
#include "rtl/Strings.h"
#include "vcl/CheckBox.h"
#include "vcl/Control.h"

class TCustomGroupBox : public TWinControl {
  VRX_CLASS(TCustomGroupBox)
 public:
  explicit TCustomGroupBox(TComponent* owner);
  bool AcceptsControls() const override { return true; }
  // Where the form file tells the client area, what stands inside is counted from there; else from the corner
  // of the box.
  QRect ClientRect() const override { return ToldClientRect().value_or(TWinControl::ClientRect()); }
  // Below the title and inside of the frame, as far as the client area is not there already.
  QMargins Insets() const override;
  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override { return ContentExtent(); }
  // Frame and title; what is left inside.
  QRect PaintFrame(TCanvas& canvas) const;
};

class TGroupBox : public TCustomGroupBox {
  VRX_CLASS(TGroupBox)
 public:
  using TCustomGroupBox::TCustomGroupBox;
};

// Items with a mark each, filled into columns one after the other.
class TChoiceGroup : public TCustomGroupBox {
  VRX_CLASS(TChoiceGroup)
 public:
  explicit TChoiceGroup(TComponent* owner);
  static constexpr TKept<int> Columns{"Columns", 1};
  static constexpr TKept<TStrings*> Items{"Items"};
  static constexpr TKept<bool> WordWrap{"WordWrap", false};

  bool AcceptsControls() const override { return false; }

  void Paint(TCanvas& canvas) override;

 protected:
  virtual void PaintItemMark(TCanvas& canvas, const QRect& rect, int index) const = 0;

 private:
  void PaintEmpty(TCanvas& canvas, const QRect& inside) const;
};

class TCustomRadioGroup : public TChoiceGroup {
  VRX_CLASS(TCustomRadioGroup)
 public:
  using TChoiceGroup::TChoiceGroup;
  // -1 for none; an index that is not there is none, too, and kept while the form is loaded.
  static constexpr TKept<int> ItemIndex{"ItemIndex", -1};
  int IndexOf() const { return Get(ItemIndex); }
  void SetIndex(int v);

 protected:
  void PaintItemMark(TCanvas& canvas, const QRect& rect, int index) const override;
};

class TRadioGroup : public TCustomRadioGroup {
  VRX_CLASS(TRadioGroup)
 public:
  using TCustomRadioGroup::TCustomRadioGroup;
};
