// Controls: components with a place, a look and a parent. They paint themselves through a canvas and cost an
// object, not a window.
#pragma once
#include <QRect>

#include "rtl/Component.h"
#include "vcl/Canvas.h"
#include "vcl/Constraints.h"
#include "vcl/ControlTypes.h"
#include "vcl/Font.h"
#include "vcl/Layout.h"
#include "vcl/Margins.h"
#include "vcl/Painters.h"

class TAnchorSide;
class TControl;
class TControlBorderSpacing;
class TControlChildSizing;
class TWinControl;

int AlignmentFlag(TAlignment alignment);  // Qt::AlignmentFlag
const TTypeInfo& CaptionType();           // "TCaption", a string shown on a control

// Whoever shows a control: a view in a dialog, the designer's surface.
class IControlHost {
 public:
  virtual ~IControlHost() = default;
  // The control or something inside it must be painted again.
  virtual void ControlChanged(TControl& control) = 0;
  // The control is about to leave these bounds.
  virtual void BoundsChanging(TControl&) {}
  // A value of the component is about to change.
  virtual void ComponentChanging(TComponent&) {}
  // A component comes or goes. It may be half made or half freed.
  virtual void ComponentListed(TComponent&, TOperation) {}
  // The control has come to another parent or another place in the order.
  virtual void ControlPlaced(TControl&) {}
  // While true, controls keep exactly the bounds they are given: nothing is aligned, anchored or sized by its
  // content.
  virtual bool LayoutFrozen() const { return false; }
};

class TControl : public TComponent {
  VRX_CLASS(TControl)
 public:
  explicit TControl(TComponent* owner);
  ~TControl() override;

  TWinControl* Parent() const { return parent_; }
  // Null takes the control off. Refuses a parent that cannot hold controls or lies inside the control.
  void SetParent(TWinControl* parent);
  TComponent* GetParentComponent() const override;
  bool HasParent() const override { return parent_ != nullptr; }
  void SetParentComponent(TComponent* parent) override;

  // Pixels at 96 dpi, relative to the parent's client area.
  QRect BoundsRect() const { return {left_, top_, width_, height_}; }
  virtual void SetBounds(int left, int top, int width, int height);
  int Left() const { return left_; }
  int Top() const { return top_; }
  int Width() const { return width_; }
  int Height() const { return height_; }
  void SetLeft(int v) {
    given_.left = true;
    SetBounds(v, top_, width_, height_);
  }
  void SetTop(int v) {
    given_.top = true;
    SetBounds(left_, v, width_, height_);
  }
  void SetWidth(int v) {
    given_.width = true;
    SetBounds(left_, top_, v, height_);
  }
  void SetHeight(int v) {
    given_.height = true;
    SetBounds(left_, top_, width_, v);
  }
  virtual QRect ClientRect() const { return {0, 0, width_, height_}; }
  // Whether the control has a place of its own; a page has that of its book.
  virtual bool HasOwnPlace() const { return true; }
  // What it keeps free around it where it is aligned.
  QMargins OwnMargins() const;
  // While the bounds change because something else did: the layout around, the text inside.
  bool IsFollowing() const { return following_; }

  TAlign Align() const { return align_; }
  void SetAlign(TAlign v);
  TAnchors Anchors() const { return anchors_; }
  void SetAnchors(TAnchors v) { Change(anchors_, v); }
  bool AutoSize() const { return autoSize_; }
  void SetAutoSize(bool v);
  const QString& Caption() const { return caption_; }
  void SetCaption(const QString& v);
  TColor Color() const { return color_; }
  void SetColor(TColor v);
  bool ParentColor() const { return parentColor_; }
  void SetParentColor(bool v);
  TFont* Font() const { return font_.get(); }
  void SetFont(const TFont* v) { font_->Assign(v); }
  bool ParentFont() const { return parentFont_; }
  void SetParentFont(bool v);
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool v);
  bool Visible() const { return visible_; }
  void SetVisible(bool v);
  const QString& Hint() const { return hint_; }
  void SetHint(const QString& v) { Change(hint_, v); }
  bool ShowHint() const { return showHint_; }
  void SetShowHint(bool v);
  bool ParentShowHint() const { return parentShowHint_; }
  void SetParentShowHint(bool v);
  TCursor Cursor() const { return cursor_; }
  void SetCursor(TCursor v) { Change(cursor_, v); }

  static constexpr TKept<TComponent*> Action{"Action"};
  static constexpr TKept<bool> AlignWithMargins{"AlignWithMargins", false};
  static constexpr TKept<TAnchorSide*> AnchorSideBottom{"AnchorSideBottom"};
  static constexpr TKept<TAnchorSide*> AnchorSideLeft{"AnchorSideLeft"};
  static constexpr TKept<TAnchorSide*> AnchorSideRight{"AnchorSideRight"};
  static constexpr TKept<TAnchorSide*> AnchorSideTop{"AnchorSideTop"};
  static constexpr TKept<TControlBorderSpacing*> BorderSpacing{"BorderSpacing"};
  static constexpr TKept<TSizeConstraints*> Constraints{"Constraints"};
  static constexpr TKept<TMargins*> Margins{"Margins"};
  static constexpr TKept<TComponent*> PopupMenu{"PopupMenu"};

  // Whether a designer may place other controls inside.
  virtual bool AcceptsControls() const { return false; }
  virtual void Paint(TCanvas& canvas) = 0;
  // What Paint covers, relative to the control: more than its bounds where a text needs more room here than
  // where the form was made.
  virtual QRect PaintExtent() const { return {0, 0, width_, height_}; }
  // Asks the host to paint this control again.
  void Invalidate();
  // The host that shows this control or the form around it; null when nobody does.
  IControlHost* FindHost() const;
  bool IsLayoutFrozen() const;
  void SetHost(IControlHost* host) { host_ = host; }

  // Place in the parent's painting order; 0 is at the back.
  void BringToFront();
  void SendToBack();

  // Takes the size with everything else, whatever the content would ask for here.
  void Assign(const TPersistent* source) override;
  void Loaded() override;

 protected:
  void DoChanging() override;
  // Fits the size of a control that sizes itself, by the difference that the change made.
  void DoChanged() override;
  void PartChanged(TPersistent& part) override;
  void ComponentChanging(TComponent& component) override;
  void ComponentListed(TComponent& component, TOperation operation) override;
  void NameChanged(const QString& oldName) override;
  // The colour that a control of this class has unless it is given another; for constructors.
  void StartWith(TColor color) {
    color_ = color;
    parentColor_ = false;
  }
  // For painters: enabled or not.
  TPartStates PartStates() const { return enabled_ ? TPartStates() : TPartStates{TPartState::Disabled}; }
  // The size the content asks for; the current one when the control does not size itself.
  virtual QSize AutoSizeHint() const { return {width_, height_}; }
  // The edge that stays when the content grows.
  virtual bool GrowsToTheLeft() const { return false; }
  // Colour, font or hints have changed: what takes them from this control follows.
  virtual void LookChanged() {}
  // The caption follows the name until somebody changes it.
  bool captionFollowsName_ = false;
  bool autoSize_ = false;
  bool parentColor_ = true;

 private:
  friend class TWinControl;
  friend class LayoutChange;
  friend class SidePlaces;
  // The container whose layout depends on this control's place and size; null when none does.
  TWinControl* LaidOutBy() const;
  QSize Limited(QSize size) const;
  void Follow(const QRect& bounds);
  void TakeUngivenSize();
  bool ColorStored() const { return !parentColor_; }
  bool FontStored() const { return !parentFont_; }
  bool ShowHintStored() const { return !parentShowHint_; }
  void ParentLookChanged();

  TWinControl* parent_ = nullptr;
  IControlHost* host_ = nullptr;
  std::unique_ptr<TFont> font_;
  QString caption_;
  QString hint_;
  int left_ = 0, top_ = 0, width_ = 0, height_ = 0;
  TColor color_ = clBtnFace;
  TAlign align_ = TAlign::alNone;
  TAnchors anchors_ = DefaultAnchors;
  TCursor cursor_{0};
  bool enabled_ = true, visible_ = true, showHint_ = false;
  bool parentFont_ = true, parentShowHint_ = true;
  bool takingParentLook_ = false;
  bool following_ = false;
  // By a form file or a person, not by the content or by what the sides are tied to.
  struct Given {
    bool left = false, top = false, width = false, height = false;
  };
  Given given_;
};

class TGraphicControl : public TControl {
  VRX_CLASS(TGraphicControl)
 public:
  using TControl::TControl;
};

// A control that can hold others and take the focus.
class TWinControl : public TControl {
  VRX_CLASS(TWinControl)
 public:
  using TControl::TControl;
  ~TWinControl() override;

  // Back to front.
  const std::vector<TControl*>& Controls() const { return controls_; }
  void InsertControl(TControl* control);
  void RemoveControl(TControl* control);
  int ControlIndex(const TControl* control) const;
  void SetControlIndex(TControl* control, int index);
  std::vector<TComponent*> GetChildren() const override;

  static constexpr TKept<TBevelEdges> BevelEdges{
      "BevelEdges", {TBevelEdge::beLeft, TBevelEdge::beTop, TBevelEdge::beRight, TBevelEdge::beBottom}};
  static constexpr TKept<TBevelCut> BevelInner{"BevelInner", TBevelCut::bvRaised};
  static constexpr TKept<TBevelKind> BevelKind{"BevelKind", TBevelKind::bkNone};
  static constexpr TKept<TBevelCut> BevelOuter{"BevelOuter", TBevelCut::bvLowered};
  static constexpr TKept<int> BevelWidth{"BevelWidth", 1};
  static constexpr TKept<TControlChildSizing*> ChildSizing{"ChildSizing"};
  static constexpr TKept<TPadding*> Padding{"Padding"};

  int TabOrder() const { return tabOrder_; }
  void SetTabOrder(int v) { Change(tabOrder_, v); }
  bool TabStop() const { return tabStop_; }
  void SetTabStop(bool v) { Change(tabStop_, v); }

  void SetBounds(int left, int top, int width, int height) override;
  // The topmost child that is shown at a point of the client area, or null.
  TControl* ControlAt(QPoint point) const;

  // What the container leaves free around what is aligned in it: padding, bevels, a title.
  virtual QMargins Insets() const;
  // Whether every control in it stands where the container places it, whatever its alignment.
  virtual bool PlacesControls() const { return false; }
  // Computes what the container's layout wants for all that stands in it.
  virtual void ArrangeControls(Placements& all, const QRect& client, const QMargins& insets,
                               const Placements* before) const;

 protected:
  void DoChanging() override;
  void DoChanged() override;
  void LookChanged() override;
  // Controls came, went, or changed their order.
  virtual void ControlsListed() {}
  // The size that holds what stands inside, for AutoSizeHint; the present one when nothing does.
  QSize ContentExtent() const;
  // The client area of a container with a frame and a title, where the form file tells how large it is: the
  // frame is as thick below as at the sides.
  std::optional<QRect> ToldClientRect() const;
  bool tabStop_ = false;

 private:
  friend class TControl;
  friend class LayoutChange;
  int ToldClientWidth() const { return Width() + clientExtra_[0].value_or(0); }
  int ToldClientHeight() const { return Height() + clientExtra_[1].value_or(0); }
  void TellClientWidth(int v);
  void TellClientHeight(int v);
  bool ClientWidthTold() const { return clientExtra_[0].has_value(); }
  bool ClientHeightTold() const { return clientExtra_[1].has_value(); }

  bool LaysOut(const TControl& control) const;
  void MarginsChanged(const TControl& control, const QMargins& before);
  std::vector<TControl*> controls_;
  std::optional<int> clientExtra_[2];  // by how much the client area that the form file tells is larger
  int tabOrder_ = -1;
  bool layoutChanging_ = false;
};

// Stands around a change of a container or of what is in it: its size, or a child's bounds, alignment,
// visibility, place in the order, coming and going. At the end everything is moved by the difference. Changes
// inside of each other are one. Does nothing while the container is loaded, freed, or its layout frozen.
class LayoutChange {
 public:
  // `resizes`: the change is that of the container's own size, which then is not taken from the content.
  explicit LayoutChange(TWinControl* container, bool resizes = false);
  // The change has happened already and left every control where it was.
  LayoutChange(TWinControl* container, Placements before);
  ~LayoutChange();
  LayoutChange(const LayoutChange&) = delete;
  LayoutChange& operator=(const LayoutChange&) = delete;

 private:
  void Begin(TWinControl* container, bool resizes);
  void FitContainer();

  TWinControl* container_ = nullptr;  // null: nothing to do
  Placements before_;
  QSize hint_;
  bool fits_ = false;
  int exceptions_ = 0;
};

// Paints a control and everything inside it; the painter's origin is the control's top left corner.
void PaintControl(TControl& control, QPainter& painter);
