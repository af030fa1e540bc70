#include "vcl/Control.h"

#include <QScopedValueRollback>
#include <array>

#include "rtl/Exceptions.h"
#include "rtl/IntegerConsts.h"
#include "vcl/Action.h"
#include "vcl/AsGiven.h"
#include "vcl/Menu.h"
#include "vcl/Placed.h"
#include "vcl/SideLayout.h"
#include "vcl/Touch.h"

namespace {
struct CursorRow {
  int value;
  const char* name;
};
constexpr std::array Cursors{
    CursorRow{0, "crDefault"},     CursorRow{-1, "crNone"},       CursorRow{-2, "crArrow"},
    CursorRow{-3, "crCross"},      CursorRow{-4, "crIBeam"},      CursorRow{-6, "crSizeNESW"},
    CursorRow{-7, "crSizeNS"},     CursorRow{-8, "crSizeNWSE"},   CursorRow{-9, "crSizeWE"},
    CursorRow{-10, "crUpArrow"},   CursorRow{-11, "crHourGlass"}, CursorRow{-12, "crDrag"},
    CursorRow{-13, "crNoDrop"},    CursorRow{-14, "crHSplit"},    CursorRow{-15, "crVSplit"},
    CursorRow{-16, "crMultiDrag"}, CursorRow{-17, "crSQLWait"},   CursorRow{-18, "crNo"},
    CursorRow{-19, "crAppStart"},  CursorRow{-20, "crHelp"},      CursorRow{-21, "crHandPoint"},
    CursorRow{-22, "crSizeAll"},
};
bool IdentToCursor(QByteArrayView ident, std::int64_t& value) {
  for (const CursorRow& row : Cursors)
    if (ident.compare(QByteArrayView(row.name), Qt::CaseInsensitive) == 0) return value = row.value, true;
  return false;
}
bool CursorToIdent(std::int64_t value, QByteArray& ident) {
  for (const CursorRow& row : Cursors)
    if (row.value == value) return ident = row.name, true;
  return false;
}
}  // namespace

const TTypeInfo& TypeInfoOf<TCursor>::Get() {
  static const TTypeInfo& info = []() -> const TTypeInfo& {
    static const TTypeInfo cursor = OrdinalType("TCursor", INT16_MIN, INT16_MAX);
    RegisterIntegerConsts(cursor, {IdentToCursor, CursorToIdent});
    return cursor;
  }();
  return info;
}

int AlignmentFlag(TAlignment alignment) {
  static constexpr int flags[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
  return flags[static_cast<int>(alignment)];
}

const TTypeInfo& CaptionType() {
  static const TTypeInfo info = StringType("TCaption");
  return info;
}

const TClass& TControl::StaticClass() {
  static const TTypeInfo wheel = MethodType("TMouseWheelEvent"),
                         wheelUpDown = MethodType("TMouseWheelUpDownEvent"),
                         showHint = MethodType("TControlShowHintEvent");
  static const TClass cls(
      DescribeClass<TControl>("TControl", TComponent::StaticClass())
          .Published("Left", &TControl::Left, &TControl::SetLeft)
          .Doc(QStringLiteral("Distance from the left edge of the parent, in pixels."))
          .Published("Top", &TControl::Top, &TControl::SetTop)
          .Doc(QStringLiteral("Distance from the top edge of the parent, in pixels."))
          .Published("Width", &TControl::Width, &TControl::SetWidth)
          .Published("Height", &TControl::Height, &TControl::SetHeight)
          .Published("Cursor", &TControl::Cursor, &TControl::SetCursor, 0)
          .Doc(QStringLiteral("The mouse pointer over the control."))
          .Published("Hint", &TControl::Hint, &TControl::SetHint)
          .Doc(QStringLiteral("The text shown when the mouse rests on the control."))
          .Declared("Align", &TControl::Align, &TControl::SetAlign, TAlign::alNone)
          .Doc(QStringLiteral("Keeps the control along an edge of its parent, or fills what is left."))
          .Declared("Anchors", &TControl::Anchors, &TControl::SetAnchors, DefaultAnchors)
          .Doc(QStringLiteral("Edges of the parent that the control keeps its distance from."))
          .Declared("AutoSize", &TControl::AutoSize, &TControl::SetAutoSize, false)
          .Doc(QStringLiteral("Fits the size to the content."))
          .Declared("Caption", &TControl::Caption, &TControl::SetCaption)
          .Type(CaptionType())
          .Doc(QStringLiteral("The text on the control; \"&\" marks the accelerator."))
          .Declared("Color", &TControl::Color, &TControl::SetColor)
          .StoredIf(&TControl::ColorStored)
          .Doc(QStringLiteral("The background color."))
          .Declared("Enabled", &TControl::Enabled, &TControl::SetEnabled, true)
          .Doc(QStringLiteral("Whether the control reacts to mouse and keyboard."))
          .Declared("Font", &TControl::Font, &TControl::SetFont)
          .StoredIf(&TControl::FontStored)
          .Doc(QStringLiteral("The font and color of the text."))
          .Declared("ParentColor", &TControl::ParentColor, &TControl::SetParentColor, true)
          .Doc(QStringLiteral("Takes the color from the parent."))
          .Declared("ParentFont", &TControl::ParentFont, &TControl::SetParentFont, true)
          .Doc(QStringLiteral("Takes the font from the parent."))
          .Declared("ParentShowHint", &TControl::ParentShowHint, &TControl::SetParentShowHint, true)
          .Declared("ShowHint", &TControl::ShowHint, &TControl::SetShowHint, false)
          .StoredIf(&TControl::ShowHintStored)
          .Doc(QStringLiteral("Whether the hint is shown."))
          .Declared("Visible", &TControl::Visible, &TControl::SetVisible, true)
          .Doc(QStringLiteral("Whether the control is shown when the program runs."))
          .Declared(Action)
          .Type(TBasicAction::StaticTypeInfo())
          .Doc(QStringLiteral("The command that the control stands for; it gives text, picture and state."))
          .Declared(AlignWithMargins)
          .Doc(QStringLiteral("Keeps the margins when the control is aligned."))
          .DeclaredPassive("BiDiMode", TBiDiMode::bdLeftToRight)
          .Declared(Constraints)
          .Doc(QStringLiteral("The smallest and largest size."))
          .DeclaredPassive<TComponent*>("CustomHint")
          .DeclaredPassive("DragCursor", TCursor{-12})
          .DeclaredPassive("DragKind", TDragKind::dkDrag)
          .DeclaredPassive("DragMode", TDragMode::dmManual)
          .DeclaredPassive("HelpContext", 0)
          .DeclaredPassive<QString>("HelpKeyword")
          .DeclaredPassive("HelpType", THelpType::htContext)
          .Declared(Margins)
          .Doc(QStringLiteral("What the control keeps free around it."))
          .DeclaredPassive("ParentBiDiMode", true)
          .DeclaredPassive("ParentCustomHint", true)
          .Declared(PopupMenu)
          .Type(TPopupMenu::StaticTypeInfo())
          .Doc(QStringLiteral("The menu that a right click opens."))
          .DeclaredPassive("StyleElements", TStyleElements{TStyleElement::seFont, TStyleElement::seClient,
                                                           TStyleElement::seBorder})
          .DeclaredPassive<QString>("StyleName")
          .DeclaredPassive<TTouchManager*>("Touch")
          .DeclaredEvent("OnClick")
          .DeclaredEvent("OnDblClick")
          .DeclaredEvent("OnMouseDown", "TMouseEvent")
          .DeclaredEvent("OnMouseMove", "TMouseMoveEvent")
          .DeclaredEvent("OnMouseUp", "TMouseEvent")
          .DeclaredEvent("OnMouseEnter")
          .DeclaredEvent("OnMouseLeave")
          .DeclaredEvent("OnCanResize", "TCanResizeEvent")
          .DeclaredEvent("OnConstrainedResize", "TConstrainedResizeEvent")
          .DeclaredEvent("OnContextPopup", "TContextPopupEvent")
          .DeclaredEvent("OnDragDrop", "TDragDropEvent")
          .DeclaredEvent("OnDragOver", "TDragOverEvent")
          .DeclaredEvent("OnEndDock", "TEndDragEvent")
          .DeclaredEvent("OnEndDrag", "TEndDragEvent")
          .DeclaredEvent("OnGesture", "TGestureEvent")
          .DeclaredEvent("OnMouseActivate", "TMouseActivateEvent")
          .DeclaredEvent("OnMouseWheel", "TMouseWheelEvent")
          .DeclaredEvent("OnMouseWheelDown", "TMouseWheelUpDownEvent")
          .DeclaredEvent("OnMouseWheelUp", "TMouseWheelUpDownEvent")
          .DeclaredEvent("OnStartDock", "TStartDockEvent")
          .DeclaredEvent("OnStartDrag", "TStartDragEvent")
          .StreamedPassive("ExplicitLeft", 0)
          .StreamedPassive("ExplicitTop", 0)
          .StreamedPassive("ExplicitWidth", 0)
          .StreamedPassive("ExplicitHeight", 0)
          .StreamedPassive("IsControl", false)
          .Streamed(AnchorSideLeft)
          .Streamed(AnchorSideTop)
          .Streamed(AnchorSideRight)
          .Streamed(AnchorSideBottom)
          .Streamed(BorderSpacing)
          .StreamedPassive<THandler>("OnChangeBounds")
          .StreamedPassive<THandler>("OnEditingDone")
          .StreamedPassive<THandler>("OnMouseWheelHorz")
          .Type(wheel)
          .StreamedPassive<THandler>("OnMouseWheelLeft")
          .Type(wheelUpDown)
          .StreamedPassive<THandler>("OnMouseWheelRight")
          .Type(wheelUpDown)
          .StreamedPassive<THandler>("OnResize")
          .StreamedPassive<THandler>("OnShowHint")
          .Type(showHint));
  return cls;
}

const TClass& TGraphicControl::StaticClass() {
  static const TClass cls(DescribeClass<TGraphicControl>("TGraphicControl", TControl::StaticClass()));
  return cls;
}

namespace {
// What controls that size themselves asked for before the change that is going on.
QHash<const TControl*, QSize>& HintsBefore() {
  static QHash<const TControl*, QSize> hints;
  return hints;
}
// And what they kept free around them, on which their parent's layout may depend.
QHash<const TControl*, QMargins>& MarginsBefore() {
  static QHash<const TControl*, QMargins> margins;
  return margins;
}
// In a parent that places all it holds the layout may depend on any value.
QHash<const TControl*, Placements>& PlacesBefore() {
  static QHash<const TControl*, Placements> places;
  return places;
}
// The control that takes the bounds of another one as they are.
const TControl* exact = nullptr;
// The control that becomes a copy of another one.
const TControl* copying = nullptr;
}  // namespace

bool TakesAsGiven(const TControl& control) {
  return copying == &control || control.IsLoading() || control.IsLayoutFrozen();
}

TControl::TControl(TComponent* owner) : TComponent(owner), font_(std::make_unique<TFont>(this)) {}

TControl::~TControl() {
  HintsBefore().remove(this);
  MarginsBefore().remove(this);
  PlacesBefore().remove(this);
  host_ = nullptr;
  if (parent_) parent_->RemoveControl(this);
}

void TControl::SetParent(TWinControl* parent) {
  if (parent == parent_) return;
  for (TControl* p = parent; p; p = p->parent_)
    if (p == this) throw EComponentError(QStringLiteral("%1 cannot be placed inside itself.").arg(Name()));
  if (parent_) parent_->RemoveControl(this);
  if (parent) parent->InsertControl(this);
}

TComponent* TControl::GetParentComponent() const {
  return parent_ ? parent_ : TComponent::GetParentComponent();
}

void TControl::SetParentComponent(TComponent* parent) {
  if (auto* container = dynamic_cast<TWinControl*>(parent)) SetParent(container);
}

void TControl::SetBounds(int left, int top, int width, int height) {
  const QSize limited = Limited({std::max(width, 0), std::max(height, 0)});
  width = limited.width();
  height = limited.height();
  if (QRect(left, top, width, height) == BoundsRect()) return;
  const LayoutChange among(LaidOutBy());
  // What is being loaded nobody has seen yet.
  if (IControlHost* host = IsLoading() ? nullptr : FindHost()) {
    host->ControlChanged(*this);
    host->BoundsChanging(*this);
  }
  left_ = left;
  top_ = top;
  width_ = width;
  height_ = height;
  // What wrapped text asks for depends on the bounds.
  if (const auto hint = HintsBefore().find(this); hint != HintsBefore().end()) *hint = AutoSizeHint();
  Invalidate();
}

TWinControl* TControl::LaidOutBy() const {
  return exact != this && parent_ && parent_->LaysOut(*this) ? parent_ : nullptr;
}

// What stands beyond its limits already was put there by the form file.
QSize TControl::Limited(QSize size) const {
  if (exact == this || !IsKept(&Constraints) || IsLoading() || IsLayoutFrozen()) return size;
  const TSizeConstraints& limits = *Get(Constraints);
  const QSize stands(width_, height_), limited = limits.Limit(size), allowed = limits.Limit(stands);
  return {stands.width() == allowed.width() ? limited.width() : size.width(),
          stands.height() == allowed.height() ? limited.height() : size.height()};
}

QMargins TControl::OwnMargins() const {
  if (!Get(AlignWithMargins)) return {};
  constexpr int usual = 3;
  return IsKept(&Margins) ? Get(Margins)->ToQMargins() : QMargins(usual, usual, usual, usual);
}

void TControl::Follow(const QRect& bounds) {
  following_ = true;
  SetBounds(bounds.left(), bounds.top(), bounds.width(), bounds.height());
  following_ = false;
}

void TControl::SetAlign(TAlign v) {
  if (align_ == v) return;
  const LayoutChange among(parent_);
  Change(align_, v);
  // This layout has regard to them.
  if (const auto margins = MarginsBefore().find(this); margins != MarginsBefore().end())
    *margins = OwnMargins();
}

void TControl::SetAutoSize(bool v) {
  if (autoSize_ == v) return;
  Change(autoSize_, v);
  if (!v || IsLoading() || IsLayoutFrozen()) return;
  const QSize size = AutoSizeHint();
  SetBounds(left_, top_, size.width(), size.height());
}

void TControl::DoChanging() {
  if (autoSize_ && !IsLoading() && !IsDestroying()) {
    if (IsLayoutFrozen())
      HintsBefore().remove(this);
    else if (!HintsBefore().contains(this))
      HintsBefore().insert(this, AutoSizeHint());
  }
  if (parent_ && !IsLoading() && !IsDestroying() && !IsLayoutFrozen() && !MarginsBefore().contains(this)) {
    MarginsBefore().insert(this, OwnMargins());
    if (parent_->PlacesControls()) PlacesBefore().insert(this, Placed(*parent_, nullptr));
  }
  // What follows from the parent is no edit of this control.
  if (!takingParentLook_) TComponent::DoChanging();
}

void TControl::DoChanged() {
  if (const auto hint = IsLoading() ? HintsBefore().cend() : HintsBefore().constFind(this);
      hint != HintsBefore().cend()) {
    const QSize before = *hint;
    HintsBefore().erase(hint);
    if (autoSize_ && !IsLayoutFrozen()) {
      const QSize after = AutoSizeHint();
      const auto size = [](bool given, int stands, int was, int now) {
        return given ? MovedByDifference(stands, was, now, true) : now;
      };
      const int width = size(given_.width, width_, before.width(), after.width());
      const int height = size(given_.height, height_, before.height(), after.height());
      Follow({GrowsToTheLeft() ? left_ + width_ - width : left_, top_, width, height});
    }
  }
  if (const auto found = MarginsBefore().constFind(this); found != MarginsBefore().cend()) {
    const QMargins before = *found;
    MarginsBefore().erase(found);
    const auto places = PlacesBefore().take(this);
    if (parent_ && parent_->PlacesControls()) {
      const LayoutChange change(parent_, places);
    } else if (TWinControl* container = LaidOutBy(); container && before != OwnMargins()) {
      container->MarginsChanged(*this, before);
    }
  }
  Invalidate();
}

void TControl::Assign(const TPersistent* source) {
  {
    const QScopedValueRollback copies(copying, static_cast<const TControl*>(this));
    const TUpdateLock lock(*this);
    TComponent::Assign(source);
    HintsBefore().remove(this);
  }
  if (const auto* other = As<TControl>(source)) {
    const TControl* const before = std::exchange(exact, this);
    SetBounds(other->left_, other->top_, other->width_, other->height_);
    exact = before;
    SetCursor(other->cursor_);  // some follow the alignment
  }
  // What the client area is told to be counts from the size, which is the source's only now.
  auto* window = As<TWinControl>(this);
  if (const auto* other = As<TWinControl>(source); window && other)
    std::copy(std::begin(other->clientExtra_), std::end(other->clientExtra_), window->clientExtra_);
}

void TControl::ComponentChanging(TComponent& component) {
  if (host_)
    host_->ComponentChanging(component);
  else
    TComponent::ComponentChanging(component);
}

void TControl::ComponentListed(TComponent& component, TOperation operation) {
  if (host_)
    host_->ComponentListed(component, operation);
  else
    TComponent::ComponentListed(component, operation);
}

void TControl::SetCaption(const QString& v) { Change(caption_, v); }

void TControl::NameChanged(const QString& oldName) {
  TComponent::NameChanged(oldName);
  if (captionFollowsName_ && IsDesigning() && !IsLoading() && caption_ == oldName) SetCaption(Name());
}

// Who is given a look of its own stops taking it from the parent, even when it is the same one.
void TControl::SetColor(TColor v) {
  const bool differs = color_ != v;
  {
    const TUpdateLock once(*this);
    if (!takingParentLook_) Change(parentColor_, false);
    Change(color_, v);
  }
  if (differs) LookChanged();
}

void TControl::SetParentColor(bool v) {
  Change(parentColor_, v);
  ParentLookChanged();
}

void TControl::SetParentFont(bool v) {
  Change(parentFont_, v);
  ParentLookChanged();
}

void TControl::SetShowHint(bool v) {
  if (showHint_ == v) return;
  {
    const TUpdateLock once(*this);
    if (!takingParentLook_) Change(parentShowHint_, false);
    Change(showHint_, v);
  }
  LookChanged();
}

void TControl::SetParentShowHint(bool v) {
  Change(parentShowHint_, v);
  ParentLookChanged();
}

void TControl::ParentLookChanged() {
  if (!parent_ || IsLoading()) return;
  takingParentLook_ = true;
  if (parentColor_) SetColor(parent_->Color());
  if (parentFont_) font_->Assign(parent_->Font());
  if (parentShowHint_) SetShowHint(parent_->ShowHint());
  takingParentLook_ = false;
}

void TControl::PartChanged(TPersistent& part) {
  if (&part == font_.get() && !takingParentLook_) parentFont_ = false;
  if (IsKept(&Constraints) && &part == Get(Constraints) && !IsLoading() && !IsLayoutFrozen()) {
    const QSize size = Get(Constraints)->Limit({width_, height_});
    Follow({left_, top_, size.width(), size.height()});
  }
  Changed();
  if (&part == font_.get()) LookChanged();
}

void TControl::SetEnabled(bool v) { Change(enabled_, v); }

void TControl::SetVisible(bool v) {
  if (visible_ == v) return;
  const LayoutChange among(LaidOutBy());
  Change(visible_, v);
}

IControlHost* TControl::FindHost() const {
  if (IsLoading()) return nullptr;
  for (const TControl* c = this; c; c = c->parent_)
    if (c->host_) return c->host_;
  return nullptr;
}

bool TControl::IsLayoutFrozen() const {
  const IControlHost* host = FindHost();
  return host && host->LayoutFrozen();
}

void TControl::Invalidate() {
  if (IsLoading()) return;
  if (IControlHost* host = FindHost()) host->ControlChanged(*this);
}

void TControl::BringToFront() {
  if (parent_) parent_->SetControlIndex(this, static_cast<int>(parent_->Controls().size()) - 1);
}
void TControl::SendToBack() {
  if (parent_) parent_->SetControlIndex(this, 0);
}

void TControl::Loaded() {
  TComponent::Loaded();
  // The form file's size stands, whatever the parent's font would make of it.
  const bool sizesItself = std::exchange(autoSize_, false);
  ParentLookChanged();
  autoSize_ = sizesItself;
  if (autoSize_) TakeUngivenSize();
}

// A size that the file leaves out is that of the content. Nothing else moves: what the file says of the
// others goes with it.
void TControl::TakeUngivenSize() {
  const auto* container = As<TWinControl>(this);
  if (!parent_ || align_ != TAlign::alNone || (container && !container->Controls().empty())) return;
  const QSize size = AutoSizeHint();
  if (size.isEmpty()) return;
  if (!given_.width) width_ = size.width();
  if (!given_.height) height_ = size.height();
}
