#include "vcl/TreeView.h"

#include "rtl/Class.h"
#include "vcl/DesignMarks.h"
#include "vcl/ItemPainting.h"
#include "vcl/PropertyGroups.h"

const TClass& TCustomTreeView::StaticClass() {
  static const TClass cls(
      DescribeClass<TCustomTreeView>("TCustomTreeView", TWinControl::StaticClass())
          .DeclaredAll(BorderStyle, Images, Indent, Items, ShowButtons, ShowLines, ShowRoot, StateImages));
  return cls;
}

TCustomTreeView::TCustomTreeView(TComponent* owner) : TWinControl(owner) {
  tabStop_ = true;
  StartWith(clWindow);
  SetBounds(0, 0, 121, 97);
}

const TClass& TTreeView::StaticClass() {
  using enum TTreeViewOption;
  static const TClass cls(
      DescribeClass<TTreeView>("TTreeView", TCustomTreeView::StaticClass())
          .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Bevels, Windowed, Help,
                      Styling, WheelEvents, MouseEvents, KeyEvents, FocusEvents, DragEvents, "BorderStyle",
                      "Images", "Indent", "Items", "ShowButtons", "ShowLines", "ShowRoot", "StateImages",
                      "OnResize")
          .Passive("AutoExpand", false)
          .Passive("BackgroundColor", clWindow)
          .Passive("BorderWidth", 0)
          .Passive("ChangeDelay", 0)
          .Passive("CheckBoxes", false)
          .Passive("DefaultItemHeight", 0)
          .Passive("DisabledFontColor", clGrayText)
          .Passive("ExpandSignColor", clWindowFrame)
          .Passive("ExpandSignSize", 9)
          .Passive("ExpandSignType", TTreeViewExpandSignType::tvestTheme)
          .Passive("HideSelection", true)
          .Passive("HotTrack", false)
          .Passive("HotTrackColor", clNone)
          .Passive("ImagesWidth", 0)
          .Passive("MultiSelect", false)
          .Passive("MultiSelectStyle", TMultiSelectStyle{TMultiSelectStyles::msControlSelect})
          .Passive("Options",
                   TTreeViewOptions{tvoAutoItemHeight, tvoHideSelection, tvoKeepCollapsedNodes,
                                    tvoShowButtons, tvoShowLines, tvoShowRoot, tvoToolTips, tvoThemedDraw})
          .Passive("ReadOnly", false)
          .Passive("RightClickSelect", false)
          .Passive("RowSelect", false)
          .Passive("ScrollBars", TScrollStyle::ssBoth)
          .Passive("SelectionColor", clHighlight)
          .Passive("SelectionFontColor", clWhite)
          .Passive("SelectionFontColorUsed", false)
          .Passive("SeparatorColor", clGray)
          .Passive("ShowSeparators", true)
          .Passive("SortType", TSortType::stNone)
          .Passive("StateImagesWidth", 0)
          .Passive("ToolTips", true)
          .Passive("TreeLineColor", clWindowFrame)
          .Publish("Color", clWindow)
          .Publish("ParentColor", false)
          .Publish("TabStop", true)
          .Event("OnAddition", "TTVExpandedEvent")
          .Event("OnAdvancedCustomDraw", "TTVAdvancedCustomDrawEvent")
          .Event("OnAdvancedCustomDrawItem", "TTVAdvancedCustomDrawItemEvent")
          .Event("OnCancelEdit", "TTVChangedEvent")
          .Event("OnChange", "TTVChangedEvent")
          .Event("OnChanging", "TTVChangingEvent")
          .Event("OnCollapsed", "TTVExpandedEvent")
          .Event("OnCollapsing", "TTVCollapsingEvent")
          .Event("OnCompare", "TTVCompareEvent")
          .Event("OnCreateNodeClass", "TTVCreateNodeClassEvent")
          .Event("OnCustomCreateItem")
          .Event("OnCustomDraw", "TTVCustomDrawEvent")
          .Event("OnCustomDrawItem", "TTVCustomDrawItemEvent")
          .Event("OnDeletion", "TTVExpandedEvent")
          .Event("OnEdited", "TTVEditedEvent")
          .Event("OnEditing", "TTVEditingEvent")
          .Event("OnEditingEnd", "TTVEditingEndEvent")
          .Event("OnExpanded", "TTVExpandedEvent")
          .Event("OnExpanding", "TTVExpandingEvent")
          .Event("OnGetImageIndex", "TTVExpandedEvent")
          .Event("OnGetSelectedIndex", "TTVExpandedEvent")
          .Event("OnHint", "TTVHintEvent")
          .Event("OnSelectionChanged")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A tree of nodes."),
              "pen line 1.5 path 7 6.5 7 18 13 18 path 7 12 13 12 pen none brush accent box 4.5 3.5 5 5 "
              "0 brush fill pen line 1.5 box 13 9.5 5 5 0 box 13 15.5 5 5 0 path 12 6 20 6"));
  return cls;
}

// Where a tree comes with buttons, its nodes begin closed, unless it says which are open.
void TCustomTreeView::Collect(const TTreeNodeList& nodes, int depth, quint64 goesOn, std::size_t most,
                              std::vector<Line>& lines) const {
  constexpr int Depths = 64;
  for (std::size_t i = 0; i < nodes.size() && lines.size() < most; ++i) {
    const quint64 own = depth < Depths && i + 1 < nodes.size() ? quint64{1} << depth : 0;
    lines.push_back({&nodes[i], depth, goesOn | own});
    if (nodes[i].Expanded) Collect(nodes[i].Children, depth + 1, goesOn | own, most, lines);
  }
}

std::vector<TCustomTreeView::Line> TCustomTreeView::Lines(std::size_t most) const {
  std::vector<Line> lines;
  Collect(Get(Items)->Nodes(), 0, 0, most, lines);
  return lines;
}

void TCustomTreeView::PaintLine(TCanvas& canvas, const QRect& rect, const Line& line) const {
  constexpr int Gap = 3, Knob = 9;
  const int indent = std::clamp(Get(Indent), 4, 200), first = Get(ShowRoot) ? 0 : 1;
  const int middle = rect.top() + rect.height() / 2;
  const QColor ink = ToQColor(clGrayText);
  const auto centre = [&](int depth) { return rect.left() + (depth - first) * indent + indent / 2; };
  QPainter& p = canvas.Painter();
  const bool own = line.depth >= first;
  if (Get(ShowLines)) {
    for (int d = first; d < std::min(line.depth, 64); ++d)
      if ((line.goesOn >> d & 1) != 0) p.fillRect(centre(d), rect.top(), 1, rect.height(), ink);
    if (own) {
      const bool last = line.depth >= 64 || (line.goesOn >> line.depth & 1) == 0;
      const bool top = line.depth == 0 && line.node == &Get(Items)->Nodes().front();
      const int from = top ? middle : rect.top();
      p.fillRect(centre(line.depth), from, 1, (last ? middle : rect.bottom()) - from + 1, ink);
      p.fillRect(centre(line.depth), middle, indent / 2, 1, ink);
    }
  }
  if (own && Get(ShowButtons) && !line.node->Children.empty()) {
    const QRect knob(centre(line.depth) - Knob / 2, middle - Knob / 2, Knob, Knob);
    p.fillRect(knob, ink);
    p.fillRect(knob.adjusted(1, 1, -1, -1), ToQColor(Color() == clDefault ? clWindow : Color()));
    p.fillRect(knob.left() + 2, middle, Knob - 4, 1, ToQColor(clWindowText));
    if (!line.node->Expanded)
      p.fillRect(centre(line.depth), knob.top() + 2, 1, Knob - 4, ToQColor(clWindowText));
  }
  QRect left = rect.adjusted((line.depth - first + 1) * indent, 0, 0, 0);
  for (const auto& [images, index] :
       {std::pair(Get(StateImages), line.node->StateIndex), std::pair(Get(Images), line.node->ImageIndex)})
    if (images && (images != Get(StateImages) || index >= 0))
      left = PaintItemImage(canvas, left, images->Image(index),
                            {images->Get(TCustomImageList::Width), images->Get(TCustomImageList::Height)},
                            Enabled());
  PaintPlainText(canvas, left.adjusted(Gap, 0, -1, 0), Qt::AlignLeft, line.node->Text, *Font(),
                 Enabled() && line.node->Enabled);
}

void TCustomTreeView::Paint(TCanvas& canvas) {
  QRect inside = ClientRect();
  if (Get(BorderStyle) == TBorderStyle::bsSingle) inside = PaintListFrame(canvas, inside, PartStates());
  canvas.FillRect(inside, Color());
  const TCustomImageList* images = Get(Images);
  const int height = std::max(TextExtent(QStringLiteral("Wg"), *Font()).height() + 2,
                              images ? images->Get(TCustomImageList::Height) : 0);
  const int room = std::max(inside.height() / height, 0) + 1;
  const std::vector<Line> lines = Lines(static_cast<std::size_t>(room) + 1);
  canvas.Painter().save();
  canvas.Painter().setClipRect(inside, Qt::IntersectClip);
  if (lines.size() > static_cast<std::size_t>(inside.height() / height))
    inside = PaintItemBars(canvas, inside, PartStates(), {0, static_cast<int>(lines.size()) * height});
  canvas.Painter().setClipRect(inside, Qt::IntersectClip);
  for (std::size_t i = 0; i < lines.size(); ++i)
    PaintLine(canvas,
              QRect(inside.left(), inside.top() + static_cast<int>(i) * height, inside.width(), height),
              lines[i]);
  if (lines.empty()) PaintDesignName(canvas, inside, *this);
  canvas.Painter().restore();
}
