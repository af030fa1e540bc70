// Fields that show a value and open a control to choose another one from: what drops down is a control of its
// own, made when it is shown.
#pragma once
#include <span>

#include "vcl/DropDown.h"
#include "vcl/Edit.h"

class TVRXCustomDropDownBox : public TCustomEdit, public IDropDown {
  VRX_CLASS(TVRXCustomDropDownBox)
 public:
  explicit TVRXCustomDropDownBox(TComponent* owner);
  static constexpr TKept<int> ButtonWidth{"ButtonWidth", 17};
  // 0: as much as the control needs, no narrower than the field.
  static constexpr TKept<int> DropDownHeight{"DropDownHeight", 0};
  static constexpr TKept<int> DropDownWidth{"DropDownWidth", 0};

  // What the field shows.
  QString FieldText() const { return ShownText(); }
  // Null when there is nothing to choose from. Its bounds are as large as it needs.
  virtual std::unique_ptr<TControl> MakeDropDown() const = 0;

  QSize DropDownSize() const override;
  void PaintDropDown(TCanvas& canvas, const QRect& rect) const override;
  void Paint(TCanvas& canvas) override;

  // Adds what all of them publish.
  static TClassBuilder AsBox(TClassBuilder b);

 protected:
  // In front of the text; returns what is left of the line.
  virtual QRect PaintMark(TCanvas&, const QRect& line) const { return line; }
  virtual void PaintKnob(TCanvas& canvas, const QRect& rect) const;
  virtual bool HasKnob() const { return true; }
  // The text in the room that is left; the hint where there is none.
  virtual void PaintText(TCanvas& canvas, const QRect& room) const;
  QRect KnobRect() const;

  // A control with the values that both have by these names.
  template <class C>
  std::unique_ptr<C> Dropped(std::span<const char* const> names) const {
    auto control = std::make_unique<C>(nullptr);
    control->BeginLoading();  // values come in any order
    TakeLook(*control);
    for (const char* name : names) TakeValue(*control, name);
    return control;
  }
  // Rows of text, as high as so many.
  int RowsHeight(int rows) const;

 private:
  void TakeLook(TControl& control) const;
  void TakeValue(TControl& control, const char* name) const;
};

// A button with a drawing in the middle of it.
void PaintKnobWith(TCanvas& canvas, const QRect& rect, TPartStates states,
                   void (*drawing)(QPainter&, const QRectF&));
