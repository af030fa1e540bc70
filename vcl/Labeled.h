// A control with a label beside it that belongs to it: one component, one place in the form, two texts.
//
//   class TLabeledEdit : public Labeled<TEdit> { VRX_CLASS(TLabeledEdit) ... };
//   Labeled<TEdit>::Describe<TLabeledEdit>("TLabeledEdit").ClassDoc(...)
//
// The label stands outside of the control's bounds, which are those of the control without it.
#pragma once
#include "vcl/Control.h"

enum class TLabelPosition : std::uint8_t { lpAbove, lpBelow, lpLeft, lpRight };
VRX_ENUM(TLabelPosition, {"lpAbove", "lpBelow", "lpLeft", "lpRight"})

// The label. It has the control's font until it is given one.
class TBoundLabel : public TKeptPart {
  VRX_CLASS(TBoundLabel)
 public:
  explicit TBoundLabel(TControl* owner);

  const QString& Caption() const { return caption_; }
  void SetCaption(const QString& v) { Change(caption_, v); }
  TFont* Font() const { return font_.get(); }
  void SetFont(const TFont* v) { font_->Assign(v); }
  bool ParentFont() const { return parentFont_; }
  // A font of its own that it has had is gone.
  void SetParentFont(bool v);

  const TFont& ShownFont() const { return parentFont_ ? *control_.Font() : *font_; }
  // Where it stands, relative to the control.
  QRect Bounds(TLabelPosition position, int spacing) const;
  void Paint(TCanvas& canvas, const QRect& bounds) const;

 protected:
  void PartChanged(TPersistent& part) override;

 private:
  bool FontStored() const { return !parentFont_; }

  TControl& control_;
  std::unique_ptr<TFont> font_;
  QString caption_;
  bool parentFont_ = true;
};

template <class Base>
class Labeled : public Base {
 public:
  explicit Labeled(TComponent* owner) : Base(owner), label_(std::make_unique<TBoundLabel>(this)) {}

  TBoundLabel* EditLabel() const { return label_.get(); }
  TLabelPosition LabelPosition() const { return position_; }
  void SetLabelPosition(TLabelPosition v) { this->Change(position_, v); }
  int LabelSpacing() const { return spacing_; }
  void SetLabelSpacing(int v) { this->Change(spacing_, v); }

  QRect LabelBounds() const { return label_->Bounds(position_, spacing_); }
  QRect PaintExtent() const override { return Base::PaintExtent().united(LabelBounds()); }
  void Paint(TCanvas& canvas) override {
    Base::Paint(canvas);
    label_->Paint(canvas, LabelBounds());
  }

  template <class T>
  static TClassBuilder Describe(const char* name) {
    return DescribeClass<T>(name, Base::StaticClass())
        .Published("EditLabel", &Labeled::EditLabel, nullptr)
        .Doc(QStringLiteral("The label beside the control."))
        .Published("LabelPosition", &Labeled::LabelPosition, &Labeled::SetLabelPosition,
                   TLabelPosition::lpAbove)
        .Doc(QStringLiteral("The side of the control that the label stands at."))
        .Published("LabelSpacing", &Labeled::LabelSpacing, &Labeled::SetLabelSpacing, 3)
        .Doc(QStringLiteral("Pixels between the label and the control."));
  }

 protected:
  void NameChanged(const QString& oldName) override {
    Base::NameChanged(oldName);
    if (this->IsDesigning() && !this->IsLoading() && label_->Caption() == oldName)
      label_->SetCaption(this->Name());
  }

 private:
  std::unique_ptr<TBoundLabel> label_;
  TLabelPosition position_ = TLabelPosition::lpAbove;
  int spacing_ = 3;
};
