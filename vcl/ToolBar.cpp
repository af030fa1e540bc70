#include "vcl/ToolBar.h"

#include <algorithm>

#include "rtl/Class.h"
#include "vcl/Action.h"
#include "vcl/ActionLook.h"
#include "vcl/AsGiven.h"
#include "vcl/GlyphButton.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"

using enum TToolButtonStyle;

const TClass& TToolButton::StaticClass() {
  static const TClass cls(
      DescribeClass<TToolButton>("TToolButton", TGraphicControl::StaticClass())
          .Published("Width", &TToolButton::OwnWidth, &TToolButton::SetOwnWidth)
          .StoredIf(&TToolButton::WidthStored)
          .Published("Height", &TToolButton::OwnHeight, &TToolButton::SetOwnHeight)
          .StoredIf(&TToolButton::HeightStored)
          .PublishAll("Action", "AutoSize", "Caption", Dragging, "Enabled", Help, Hints, Placement,
                      "PopupMenu", "Visible", "StyleElements", "OnClick", "OnContextPopup", "OnDragDrop",
                      "OnDragOver", "OnEndDock", "OnEndDrag", "OnGesture", "OnMouseActivate", "OnMouseDown",
                      "OnMouseEnter", "OnMouseLeave", "OnMouseMove", "OnMouseUp", "OnStartDock",
                      "OnStartDrag")
          .PublishedAll(Down, ImageIndex, Indeterminate, Marked, MenuItem, ShowCaption, Style, Wrap)
          .Passive("AllowAllUp", false)
          .Passive<TPopupMenu*>("DropdownMenu")
          .Passive("EnableDropdown", true)
          .Passive("Grouped", false)
          .Passive<QString>("ImageName")
          .Event("OnArrowClick")
          .Event("OnPaintButton", "TToolBarPaintButtonEvent")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A button of a tool bar."),
              "pen line 1.5 brush fill box 5.5 5.5 13 13 2 pen accent 2 brush none path 9 12 15 12 path 12 "
              "9 12 15"));
  return cls;
}

TToolButton::TToolButton(TComponent* owner) : TGraphicControl(owner) {
  captionFollowsName_ = true;
  SetBounds(0, 0, TToolBar::ButtonWidth.Default, TToolBar::ButtonHeight.Default);
}

bool TToolButton::IsSeparator() const { return Get(Style) == tbsSeparator || Get(Style) == tbsDivider; }

TToolBar* TToolButton::Bar() const { return dynamic_cast<TToolBar*>(Parent()); }

bool TToolButton::WidthStored() const {
  return IsSeparator() ||
         Width() != (Bar() ? Bar()->Get(TToolBar::ButtonWidth) : TToolBar::ButtonWidth.Default);
}
bool TToolButton::HeightStored() const {
  return Height() != (Bar() ? Bar()->Get(TToolBar::ButtonHeight) : TToolBar::ButtonHeight.Default);
}
void TToolButton::SetOwnWidth(int v) {
  widthRead_ = true;
  SetWidth(v);
}
void TToolButton::SetOwnHeight(int v) {
  heightRead_ = true;
  SetHeight(v);
}
void TToolButton::BeginLoading() {
  TGraphicControl::BeginLoading();
  widthRead_ = heightRead_ = false;
}

QString TToolButton::ShownCaption() const {
  if (!Caption().isEmpty()) return Caption();
  if (const auto* action = As<TCustomAction>(Get(Action))) return action->Get(TCustomAction::Caption);
  const TMenuItem* item = Get(MenuItem);
  return item ? item->ShownCaption() : QString();
}

int TToolButton::ImageOf() const {
  if (Get(ImageIndex) >= 0) return Get(ImageIndex);
  const auto* action = As<TCustomAction>(Get(Action));
  return action ? action->Get(TCustomAction::ImageIndex) : -1;
}

bool TToolButton::ShowsCaption() const {
  const TToolBar* bar = Bar();
  return bar && (bar->Get(TToolBar::ShowCaptions) || Get(Style) == tbsTextButton) && Get(ShowCaption);
}

QSize TToolButton::NeededSize() const {
  constexpr QSize around(7, 6), usualImage(16, 16);
  constexpr int gap = 2, beside = 6, arrow = 12;
  const TToolBar* bar = Bar();
  const TCustomImageList* images = bar ? bar->Get(TToolBar::Images) : nullptr;
  QSize size = images ? QSize(images->Get(TCustomImageList::Width), images->Get(TCustomImageList::Height))
                      : usualImage;
  if (ShowsCaption()) {
    const QSize text = TextExtent(ShownCaption(), *Font());
    if (bar->Get(TToolBar::List))
      size = {(images ? size.width() + gap : 0) + text.width() + beside,
              std::max(size.height(), text.height())};
    else
      size = {std::max(size.width(), text.width() + beside),
              images ? size.height() + gap + text.height() : std::max(size.height(), text.height())};
  }
  if (Get(Style) == tbsDropDown || Get(Style) == tbsButtonDrop) size.rwidth() += arrow;
  return size + around;
}

void TToolButton::DoChanging() {
  if (TToolBar* bar = IsLoading() ? nullptr : Bar()) bar->BeginNeed();
  TGraphicControl::DoChanging();
}

void TToolButton::DoChanged() {
  TGraphicControl::DoChanged();
  if (TToolBar* bar = IsLoading() ? nullptr : Bar()) bar->EndNeed();
}

void TToolButton::Paint(TCanvas& canvas) {
  const QRect all = ClientRect();
  if (IsSeparator()) {
    const int middle = all.center().x();
    if (all.width() > 1 && all.height() > 4)
      canvas.FillRect(QRect(middle, all.top() + 2, 1, all.height() - 4), clBtnShadow);
    return;
  }
  const TToolBar* bar = Bar();
  const TActionLook look = LookOf(*this, Get(Down));
  TPartStates states = look.States();
  if (look.checked) states.Include(TPartState::Down);
  if (look.checked || (bar && !bar->Get(TToolBar::Flat))) PaintButton(canvas, all, states, {}, nullptr);
  if (Get(Marked)) canvas.Frame3D(all, clHighlight, clHighlight, 1);
  QRect face = all.adjusted(1, 1, -1, -1);
  if (Get(Style) == tbsDropDown || Get(Style) == tbsButtonDrop) {
    constexpr int knob = 12;
    if (face.width() > 2 * knob) {
      const QRect arrow(face.right() + 1 - knob, face.top(), knob, face.height());
      canvas.TextRect(arrow, Qt::AlignCenter, QStringLiteral("\u25BE"), *Font(), look.enabled);
      face.setRight(arrow.left() - 1);
    }
  }
  TFace what;
  const TCustomImageList* images = bar ? bar->Get(TToolBar::Images) : nullptr;
  const TCustomImageList* disabled = bar ? bar->Get(TToolBar::DisabledImages) : nullptr;
  if (const TCustomImageList* list = !look.enabled && disabled ? disabled : images)
    what.glyph = list->Image(ImageOf());
  if (ShowsCaption()) what.text = ShownCaption();
  what.layout = bar && bar->Get(TToolBar::List) ? TButtonLayout::blGlyphLeft : TButtonLayout::blGlyphTop;
  what.spacing = 2;
  PaintFace(canvas, face, what, *Font(), look.enabled);
}

const TClass& TToolBar::StaticClass() {
  static const TClass cls(
      DescribeClass<TToolBar>("TToolBar", TWinControl::StaticClass())
          .PublishAll("Anchors", Look, ParentLook, Hints, Placement, Direction, Dragging, Windowed, Help,
                      Styling, "AutoSize", "BevelEdges", "BevelInner", "BevelKind", "BevelOuter",
                      "BevelWidth", "Caption", Docking, ResizeEvents, WheelEvents, "TabStop", MouseEvents,
                      FocusEvents, DragEvents)
          .PublishedAll(ButtonHeight, ButtonWidth, DisabledImages, Flat, Images, Indent, List, ShowCaptions,
                        Wrapable)
          .Published(EdgeBorders)
          .OtherDefault(TEdgeBorders{TEdgeBorder::ebTop})
          .Publish("Align", TAlign::alTop)
          .Passive("AllowTextButtons", false)
          .Passive("BorderWidth", 0)
          .Passive("Customizable", false)
          .Passive<QString>("CustomizeKeyName")
          .Passive<QString>("CustomizeValueName")
          .Passive("DrawingStyle", TTBDrawingStyle::dsNormal)
          .Passive("DropDownWidth", -1)
          .Passive("EdgeInner", TEdgeStyle::esRaised)
          .Passive("EdgeOuter", TEdgeStyle::esLowered)
          .Passive("GradientDirection", TGradientDirection::gdVertical)
          .Passive("GradientEndColor", clBtnShadow)
          .Passive("GradientStartColor", clBtnHighlight)
          .Passive("HideClippedButtons", false)
          .Passive<TCustomImageList*>("HotImages")
          .Passive("HotTrackColor", clHighlight)
          .Passive("ImagesWidth", 0)
          .Passive<TMainMenu*>("Menu")
          .Passive("Transparent", true)
          .Event("OnAdvancedCustomDraw", "TTBAdvancedCustomDrawEvent")
          .Event("OnAdvancedCustomDrawButton", "TTBAdvancedCustomDrawBtnEvent")
          .Event("OnCustomDraw", "TTBCustomDrawEvent")
          .Event("OnCustomDrawButton", "TTBCustomDrawBtnEvent")
          .Event("OnPaintButton", "TToolBarPaintButtonEvent")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A row of buttons at an edge of a form."),
              "pen line 1.5 brush fill box 2.5 7.5 19 9 1 brush accent pen none box 5 10 4 4 0.5 brush line "
              "box 10.5 10 4 4 0.5 pen line 1.5 path 17.5 10 17.5 14"));
  return cls;
}

TToolBar::TToolBar(TComponent* owner) : TWinControl(owner) {
  SetAlign(TAlign::alTop);
  SetBounds(0, 0, 150, 29);
}

void TToolBar::Loaded() {
  // While nothing is arranged yet.
  for (TControl* c : Controls())
    if (auto* button = dynamic_cast<TToolButton*>(c); button && button->IsLoading())
      button->SetBounds(button->Left(), button->Top(),
                        button->widthRead_ ? button->Width() : Get(ButtonWidth),
                        button->heightRead_ ? button->Height() : Get(ButtonHeight));
  TWinControl::Loaded();
}

QMargins TToolBar::Insets() const {
  constexpr int edge = 2;
  const auto at = [&](TEdgeBorder e) { return Get(EdgeBorders).Contains(e) ? edge : 0; };
  return TWinControl::Insets() + QMargins(at(TEdgeBorder::ebLeft), at(TEdgeBorder::ebTop),
                                          at(TEdgeBorder::ebRight), at(TEdgeBorder::ebBottom));
}

void TToolBar::ArrangeControls(Placements& all, const QRect& client, const QMargins& insets,
                               const Placements*) const {
  const QRect room = client.marginsRemoved(insets);
  const int start = room.left() + std::clamp(Get(Indent), 0, 1000);
  int x = start, y = room.top();
  bool full = false;
  for (auto& p : all) {
    const auto* button = dynamic_cast<const TToolButton*>(p.control);
    const bool shown = p.takesPart;
    int width = p.stands.width();
    if (button && !button->IsSeparator())
      width = button->AutoSize() ? button->NeededSize().width() : Get(ButtonWidth);
    if (shown && x > start && (full || (Get(Wrapable) && x + width > room.left() + room.width()))) {
      x = start;
      y += Get(ButtonHeight);
    }
    full = false;
    PlaceAt(p, {x, y});
    if (button) {
      // The bar decides the sides, but not the width of a gap.
      p.ownsWidth = button->IsSeparator();
      p.ownsHeight = false;
      p.width = width;
      p.height = Get(ButtonHeight);
      full = button->Get(TToolButton::Wrap);
    }
    if (shown) x += width;
  }
}

std::optional<QSize> TToolBar::NeededSize() const {
  std::optional<QSize> needed;
  for (const TControl* c : Controls())
    if (const auto* button = dynamic_cast<const TToolButton*>(c); button && !button->IsSeparator()) {
      QSize size = button->NeededSize();
      if (button->AutoSize()) size.setWidth(0);  // it has a width of its own
      needed = needed ? needed->expandedTo(size) : size;
    }
  return needed;
}

void TToolBar::BeginNeed() {
  if (!needed_ && !IsDestroying() && !TakesAsGiven(*this)) needed_ = NeededSize();
}

void TToolBar::EndNeed() {
  const std::optional<QSize> before = std::exchange(needed_, {});
  if (!before || IsDestroying() || TakesAsGiven(*this)) return;
  const std::optional<QSize> after = NeededSize();
  if (!after || after == before) return;
  const TUpdateLock once(*this);
  Set(ButtonWidth, MovedByDifference(Get(ButtonWidth), before->width(), after->width(), true));
  Set(ButtonHeight, MovedByDifference(Get(ButtonHeight), before->height(), after->height(), true));
}

void TToolBar::DoChanging() {
  BeginNeed();
  TWinControl::DoChanging();
}

void TToolBar::DoChanged() {
  TWinControl::DoChanged();
  EndNeed();
}

QSize TToolBar::AutoSizeHint() const {
  if (Controls().empty()) return {Width(), Height()};
  return Align() == TAlign::alLeft || Align() == TAlign::alRight
             ? QSize(ContentExtent().width(), Height())
             : QSize(Width(), ContentExtent().height() + 2);
}

void TToolBar::Paint(TCanvas& canvas) {
  const QRect all = ClientRect();
  canvas.FillRect(all, Color());
  const auto line = [&](TEdgeBorder edge, const QRect& outer, const QRect& inner) {
    if (!Get(EdgeBorders).Contains(edge)) return;
    canvas.FillRect(outer, clBtnShadow);
    canvas.FillRect(inner, clBtnHighlight);
  };
  const int w = all.width(), h = all.height();
  line(TEdgeBorder::ebLeft, {0, 0, 1, h}, {1, 0, 1, h});
  line(TEdgeBorder::ebTop, {0, 0, w, 1}, {0, 1, w, 1});
  line(TEdgeBorder::ebRight, {w - 2, 0, 1, h}, {w - 1, 0, 1, h});
  line(TEdgeBorder::ebBottom, {0, h - 2, w, 1}, {0, h - 1, w, 1});
}
