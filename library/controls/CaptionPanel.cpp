#include "library/controls/CaptionPanel.h"

#include <algorithm>

#include "library/controls/RowPlaces.h"
#include "rtl/Class.h"
#include "vcl/AsGiven.h"
#include "vcl/DesignMarks.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXPanelCaptionObject::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXPanelCaptionObject>("TVRXPanelCaptionObject", TPersistent::StaticClass())
          .Published(Alignment)
          .Published(Bold)
          .Published(Buttons)
          .Doc(QStringLiteral("The small buttons at the end of the title."))
          .Published(FillPart)
          .Doc(QStringLiteral("What the title stands on."))
          .Published(ImageIndex)
          .Doc(QStringLiteral("The picture before the text, out of the panel's image list."))
          .Published(Position)
          .Doc(QStringLiteral("The edge that the title stands at."))
          .Published(Size)
          .Doc(QStringLiteral("How thick the title is; 0 is what the text needs.")));
  return cls;
}

const TClass& TVRXCaptionPanel::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCaptionPanel>("TVRXCaptionPanel", TWinControl::StaticClass())
          .PublishAll(Placing, "AutoSize")
          .Published(BevelPart)
          .Doc(QStringLiteral("The edge around the panel."))
          .PublishAll("Caption")
          .Published(CaptionPart)
          .Doc(QStringLiteral("How the title looks and what stands in it."))
          .PublishAll(Look)
          .Published("ExpandedSize", &TVRXCaptionPanel::ExpandedSize, &TVRXCaptionPanel::SetExpandedSize, 0)
          .Doc(QStringLiteral("Of a folded panel: its size when it is not folded."))
          .PublishAll(Hints)
          .Published(ImageList)
          .Doc(QStringLiteral("Where the picture of the title is found."))
          .PublishAll(ParentLook, "PopupMenu", "TabOrder", "TabStop")
          .Published(Transparent)
          .Doc(QStringLiteral("Lets what is behind the panel show through."))
          .PublishAll("Visible", FocusEvents, MouseEvents)
          // Last: what the panel is folded from is its size.
          .Published("Expanded", &TVRXCaptionPanel::Expanded, &TVRXCaptionPanel::SetExpanded, true)
          .Doc(QStringLiteral("Whether more than the title is to be seen."))
          .Event("OnButtonClick")
          .Event("OnCollapse")
          .Event("OnExpand")
          .ClassDoc(
              QStringLiteral("A panel with a title that folds."),
              "pen line 1.5 brush fill box 3.5 4.5 17 15 1 pen none brush accent box 4.3 5.3 15.4 4 0 pen "
              "line 1.4 path 15 8 16.7 6.4 18.4 8"));
  return cls;
}

TVRXCaptionPanel::TVRXCaptionPanel(TComponent* owner) : TWinControl(owner) {
  captionFollowsName_ = true;
  SetBounds(0, 0, 185, 105);
}

bool TVRXCaptionPanel::FoldsAcross() const {
  const TVRXCaptionPosition position = CaptionObject()->Get(TVRXPanelCaptionObject::Position);
  return position == TVRXCaptionPosition::cpLeft || position == TVRXCaptionPosition::cpRight;
}

int TVRXCaptionPanel::StripSize() const {
  const TVRXPanelCaptionObject& caption = *CaptionObject();
  const int size = caption.Get(TVRXPanelCaptionObject::Size);
  if (size > 0) return std::min(size, 1000);
  return StripThickness(*Font(), Get(ImageList), caption.Get(TVRXPanelCaptionObject::ImageIndex));
}

void TVRXCaptionPanel::SetExpanded(bool v) {
  if (v == expanded_) return;
  const TUpdateLock once(*this);
  if (TakesAsGiven(*this)) return TWinControl::Change(expanded_, v);
  const bool across = FoldsAcross();
  const int size = across ? Width() : Height();
  const int folded = StripSize() + 2 * Bevel()->Room();
  const auto resize = [&](int to) {
    SetBounds(Left(), Top(), across ? to : Width(), across ? Height() : to);
  };
  // While it is folded its size says nothing of the room inside.
  if (v) resize(std::max(expandedSize_, folded));
  TWinControl::Change(expandedSize_, v ? 0 : size);
  TWinControl::Change(expanded_, v);
  if (!v) resize(folded);
}

TVRXCaptionPanelGroup* TVRXCaptionPanel::Group() const {
  return dynamic_cast<TVRXCaptionPanelGroup*>(Parent());
}

int TVRXCaptionPanel::Index() const {
  const TVRXCaptionPanelGroup* group = Group();
  if (!group) return -1;
  const auto panels = group->PanelList();
  return static_cast<int>(std::find(panels.begin(), panels.end(), this) - panels.begin());
}

void TVRXCaptionPanel::SetIndex(int v) {
  const int before = Index();
  if (v == before || IsLoading()) return;
  TVRXCaptionPanelGroup* group = Group();
  if (!group || v < 0 || v >= static_cast<int>(group->PanelList().size())) return;
  Changing();
  // The Tab key goes through the panels as they stand: who comes to a place has its turn.
  const auto inOrder = [group] {
    auto panels = group->PanelList();
    std::erase_if(panels, [](const TVRXCaptionPanel* p) { return p->TabOrder() < 0; });
    return panels;
  };
  std::vector<int> turns;
  for (const TVRXCaptionPanel* panel : inOrder()) turns.push_back(panel->TabOrder());
  SetSilentIndex(v);
  auto turn = turns.cbegin();
  for (TVRXCaptionPanel* panel : inOrder()) panel->SetTabOrder(*turn++);
  Changed();
}

void TVRXCaptionPanel::SetSilentIndex(int v) {
  TVRXCaptionPanelGroup* group = Group();
  if (!group) return;
  const auto panels = group->PanelList();
  if (v < 0 || v >= static_cast<int>(panels.size())) return;
  group->SetControlIndex(this, group->ControlIndex(panels[static_cast<std::size_t>(v)]));
}

namespace {
QRect Inside(const TControl& control, const TVRXBevel& bevel) {
  const int room = bevel.Room();
  return QRect(0, 0, control.Width(), control.Height()).adjusted(room, room, -room, -room);
}
}  // namespace

QRect TVRXCaptionPanel::StripRect(const QRect& inside) const {
  using enum TVRXCaptionPosition;
  const int size = StripSize();
  switch (CaptionObject()->Get(TVRXPanelCaptionObject::Position)) {
    case cpBottom:
      return {inside.left(), inside.bottom() + 1 - size, inside.width(), size};
    case cpLeft:
      return {inside.left(), inside.top(), size, inside.height()};
    case cpRight:
      return {inside.right() + 1 - size, inside.top(), size, inside.height()};
    default:
      return {inside.left(), inside.top(), inside.width(), size};
  }
}

QRect TVRXCaptionPanel::WithoutStrip(const QRect& inside) const {
  using enum TVRXCaptionPosition;
  const int size = StripSize();
  const TVRXCaptionPosition at = CaptionObject()->Get(TVRXPanelCaptionObject::Position);
  const QRect rest = inside.adjusted(at == cpLeft ? size : 0, at == cpTop ? size : 0,
                                     at == cpRight ? -size : 0, at == cpBottom ? -size : 0);
  return {rest.topLeft(), QSize(std::max(rest.width(), 0), std::max(rest.height(), 0))};
}

// What stands in a folded panel stays as it is, out of sight: below the title, or where it was.
QRect TVRXCaptionPanel::ClientRect() const {
  QRect inside = Inside(*this, *Bevel());
  if (!expanded_) {
    const int open = std::max(expandedSize_ - 2 * Bevel()->Room(), 0);
    FoldsAcross() ? inside.setWidth(open) : inside.setHeight(open);
  }
  return WithoutStrip(inside);
}

void TVRXCaptionPanel::PaintButtons(TCanvas& canvas, const QRect& strip) {
  using enum TVRXCaptionPosition;
  const TVRXCaptionPosition at = CaptionObject()->Get(TVRXPanelCaptionObject::Position);
  const bool upright = FoldsAcross();
  const int side = std::min(upright ? strip.width() : strip.height(), 20);
  // From the end of the title on; of one that runs up that is the top.
  QPoint centre = at == cpLeft    ? QPoint(strip.center().x(), strip.top() + side / 2 + 1)
                  : at == cpRight ? QPoint(strip.center().x(), strip.bottom() - side / 2 - 1)
                                  : QPoint(strip.right() - side / 2 - 1, strip.center().y());
  const QPoint step = at == cpLeft ? QPoint(0, side) : at == cpRight ? QPoint(0, -side) : QPoint(-side, 0);
  const auto fold = [&] {
    const bool forth = (at == cpBottom || at == cpRight) != expanded_;
    return upright ? (forth ? TVRXStripMark::FoldLeft : TVRXStripMark::FoldRight)
                   : (forth ? TVRXStripMark::Fold : TVRXStripMark::Unfold);
  };
  const TVRXPanelButtons buttons = CaptionObject()->Get(TVRXPanelCaptionObject::Buttons);
  for (const auto& [button, mark] :
       {std::pair(TVRXPanelButton::pbClose, TVRXStripMark::Close),
        std::pair(TVRXPanelButton::pbExpand, fold()), std::pair(TVRXPanelButton::pbHelp, TVRXStripMark::Help),
        std::pair(TVRXPanelButton::pbMenu, TVRXStripMark::Menu)}) {
    if (!buttons.Contains(button)) continue;
    const QRect rect(centre - QPoint(side / 2, side / 2), QSize(side, side));
    PaintStripMark(canvas, rect, mark, *Font(), Enabled());
    centre += step;
  }
}

void TVRXCaptionPanel::Paint(TCanvas& canvas) {
  const QRect all(0, 0, Width(), Height());
  if (!Get(Transparent)) canvas.FillRect(all, Color());
  // Without an edge nobody would see where it ends.
  if (IsDesigning() && Bevel()->Room() == 0) PaintDesignFrame(canvas, all);
  const QRect inside = Bevel()->Draw(canvas, all);
  const TVRXPanelCaptionObject& caption = *CaptionObject();
  const QRect rect = StripRect(inside) & inside;
  if (rect.isEmpty()) return;
  int count = 0;
  for (const auto button : {TVRXPanelButton::pbExpand, TVRXPanelButton::pbMenu, TVRXPanelButton::pbHelp,
                            TVRXPanelButton::pbClose})
    count += caption.Get(TVRXPanelCaptionObject::Buttons).Contains(button);
  TVRXStrip strip;
  strip.Text = Caption();
  strip.Font = Font();
  strip.Bold = caption.Get(TVRXPanelCaptionObject::Bold);
  strip.Alignment = caption.Get(TVRXPanelCaptionObject::Alignment);
  strip.Fill = Get(Transparent) ? nullptr : caption.FillObject();
  strip.Images = Get(ImageList);
  strip.Image = caption.Get(TVRXPanelCaptionObject::ImageIndex);
  strip.Enabled = Enabled();
  strip.AtEnd = count * std::min(FoldsAcross() ? rect.width() : rect.height(), 20);
  if (FoldsAcross())
    PaintUprightStrip(canvas, rect, strip,
                      caption.Get(TVRXPanelCaptionObject::Position) == TVRXCaptionPosition::cpLeft);
  else
    PaintStrip(canvas, rect, strip);
  PaintButtons(canvas, rect);
}

const TClass& TVRXCaptionPanelGroup::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCaptionPanelGroup>("TVRXCaptionPanelGroup", TWinControl::StaticClass())
          .PublishAll(Placing)
          .Published(BevelPart)
          .Doc(QStringLiteral("The edge around the group."))
          .PublishAll("Color")
          .Published(Distance)
          .Doc(QStringLiteral("Pixels between two panels."))
          .PublishAll(Lettering, Hints)
          .Published(Orientation)
          .Doc(QStringLiteral("Whether the panels stand one below the other or side by side."))
          .PublishAll("Padding", "ParentColor", "PopupMenu")
          .Published(ScrollPos)
          .Doc(QStringLiteral("By how many pixels what stands in the group is scrolled."))
          .PublishAll("TabOrder", "TabStop")
          .Published(Transparent)
          .Doc(QStringLiteral("Lets what is behind the group show through."))
          .PublishAll("Visible", FocusEvents, MouseEvents)
          .ClassDoc(
              QStringLiteral("A column or a row of panels that fold."),
              "pen line 1.5 brush fill box 3.5 3.5 17 17 1 pen none brush accent box 6 6 12 2.6 0 brush "
              "line+50 box 6 9 12 3.4 0 brush accent box 6 14 12 2.6 0 pen none"));
  return cls;
}

TVRXCaptionPanelGroup::TVRXCaptionPanelGroup(TComponent* owner) : TWinControl(owner) {
  SetBounds(0, 0, 200, 280);
}

std::vector<TVRXCaptionPanel*> TVRXCaptionPanelGroup::PanelList() const {
  std::vector<TVRXCaptionPanel*> panels;
  for (TControl* c : Controls())
    if (auto* panel = dynamic_cast<TVRXCaptionPanel*>(c)) panels.push_back(panel);
  return panels;
}

void TVRXCaptionPanelGroup::ExpandAll(bool expanded) {
  for (TVRXCaptionPanel* panel : PanelList()) panel->SetExpanded(expanded);
}

void TVRXCaptionPanelGroup::Change() {
  Changing();
  Changed();
}

void TVRXCaptionPanelGroup::ScrollInView(const TVRXCaptionPanel& panel) {
  const QRect room = QRect(QPoint(0, 0), ClientRect().size()).marginsRemoved(Insets());
  const int begin = IsUpright() ? panel.Top() - room.top() : panel.Left() - room.left();
  const int size = IsUpright() ? panel.Height() : panel.Width();
  const int space = IsUpright() ? room.height() : room.width();
  if (begin + size > space) Set(ScrollPos, Get(ScrollPos) + std::min(begin + size - space, begin));
  if (begin < 0) Set(ScrollPos, std::max(Get(ScrollPos) + begin, 0));
}

QMargins TVRXCaptionPanelGroup::Insets() const {
  constexpr int around = 4;
  const int each = Bevel()->Room() + around;
  return TWinControl::Insets() + QMargins(each, each, each, each);
}

void TVRXCaptionPanelGroup::ArrangeControls(Placements& all, const QRect& client, const QMargins& insets,
                                            const Placements* before) const {
  const QRect room = client.marginsRemoved(insets);
  const bool down = IsUpright();
  int at = (down ? room.top() : room.left()) - Get(ScrollPos);
  using Placed = Placements::value_type;
  std::vector<Placed*> row;
  for (auto& p : all) {
    if (!p.takesPart) {
      PlaceAt(p, p.stands.topLeft());
      continue;
    }
    PlaceAt(p, down ? QPoint(room.left(), at) : QPoint(at, room.top()));
    // Across the way they follow each other the group decides, unless the panel is folded that way.
    const auto* panel = dynamic_cast<const TVRXCaptionPanel*>(p.control);
    const bool folded = panel && !panel->Expanded();
    if (down && !(folded && panel->FoldsAcross())) {
      p.ownsWidth = false;
      p.width = std::max(room.width(), 0);
    }
    if (!down && !(folded && !panel->FoldsAcross())) {
      p.ownsHeight = false;
      p.height = std::max(room.height(), 0);
    }
    at += (down ? p.stands.height() : p.stands.width()) + Get(Distance);
    row.push_back(&p);
  }
  if (!before) return;
  std::vector<const Placed*> was;
  for (const Placed& p : *before)
    if (p.takesPart) was.push_back(&p);
  StandAsBefore(row, was, down);
}

int TVRXCaptionPanelGroup::Extent() const {
  int extent = 0;
  for (const TControl* c : Controls())
    if (c->Visible() || c->IsDesigning()) extent += (IsUpright() ? c->Height() : c->Width()) + Get(Distance);
  return std::max(extent - Get(Distance), 0);
}

void TVRXCaptionPanelGroup::Paint(TCanvas& canvas) {
  const QRect all(0, 0, Width(), Height());
  if (!Get(Transparent)) canvas.FillRect(all, Color());
  if (IsDesigning() && Bevel()->Room() == 0) PaintDesignFrame(canvas, all);
  if (Controls().empty()) PaintDesignName(canvas, all, *this);
  const QRect inside = Bevel()->Draw(canvas, all);
  // A narrow mark beside the panels shows how far they reach.
  const QRect room = all.marginsRemoved(Insets());
  const int space = IsUpright() ? room.height() : room.width(), extent = Extent();
  if (space <= 0 || extent <= space) return;
  constexpr int thick = 3;
  const int size = std::max(space * space / extent, 8);
  const int from = std::min(static_cast<int>(std::int64_t{Get(ScrollPos)} * space / extent), space - size);
  canvas.FillRect(IsUpright() ? QRect(inside.right() + 1 - thick, room.top() + from, thick, size)
                              : QRect(room.left() + from, inside.bottom() + 1 - thick, size, thick),
                  clBtnShadow);
}
