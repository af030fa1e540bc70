// A tree of nodes with pictures, lines and buttons.
#pragma once
#include "vcl/ListView.h"
#include "vcl/TreeNodes.h"

enum class TMultiSelectStyles : std::uint8_t { msControlSelect, msShiftSelect, msVisibleOnly, msSiblingOnly };
VRX_ENUM(TMultiSelectStyles, {"msControlSelect", "msShiftSelect", "msVisibleOnly", "msSiblingOnly"})
using TMultiSelectStyle = TSet<TMultiSelectStyles>;
VRX_SET(TMultiSelectStyle, TMultiSelectStyles)
enum class TTreeViewExpandSignType : std::uint8_t {
  tvestTheme,
  tvestPlusMinus,
  tvestArrow,
  tvestArrowFill,
  tvestAngleBracket
};
VRX_ENUM(TTreeViewExpandSignType,
         {"tvestTheme", "tvestPlusMinus", "tvestArrow", "tvestArrowFill", "tvestAngleBracket"})
enum class TTreeViewOption : std::uint8_t {
  tvoAllowMultiselect,
  tvoAutoExpand,
  tvoAutoInsertMark,
  tvoAutoItemHeight,
  tvoHideSelection,
  tvoHotTrack,
  tvoKeepCollapsedNodes,
  tvoReadOnly,
  tvoRightClickSelect,
  tvoRowSelect,
  tvoShowButtons,
  tvoShowLines,
  tvoShowRoot,
  tvoShowSeparators,
  tvoToolTips,
  tvoNoDoubleClickExpand,
  tvoThemedDraw,
  tvoEmptySpaceUnselect
};
VRX_ENUM(TTreeViewOption,
         {"tvoAllowMultiselect", "tvoAutoExpand", "tvoAutoInsertMark", "tvoAutoItemHeight",
          "tvoHideSelection", "tvoHotTrack", "tvoKeepCollapsedNodes", "tvoReadOnly", "tvoRightClickSelect",
          "tvoRowSelect", "tvoShowButtons", "tvoShowLines", "tvoShowRoot", "tvoShowSeparators", "tvoToolTips",
          "tvoNoDoubleClickExpand", "tvoThemedDraw", "tvoEmptySpaceUnselect"})
using TTreeViewOptions = TSet<TTreeViewOption>;
VRX_SET(TTreeViewOptions, TTreeViewOption)

class TCustomTreeView : public TWinControl {
  VRX_CLASS(TCustomTreeView)
 public:
  explicit TCustomTreeView(TComponent* owner);
  static constexpr TKept<TBorderStyle> BorderStyle{"BorderStyle", TBorderStyle::bsSingle};
  static constexpr TKept<TCustomImageList*> Images{"Images"};
  static constexpr TKept<int> Indent{"Indent", 19};
  static constexpr TKept<TTreeNodes*> Items{"Items"};
  static constexpr TKept<bool> ShowButtons{"ShowButtons", true};
  static constexpr TKept<bool> ShowLines{"ShowLines", true};
  static constexpr TKept<bool> ShowRoot{"ShowRoot", true};
  static constexpr TKept<TCustomImageList*> StateImages{"StateImages"};

  // Nodes that are to be expanded have their children below them; designers show no others.
  void Paint(TCanvas& canvas) override;

 private:
  struct Line {
    const TTreeNode* node;
    int depth;
    quint64 goesOn;  // a bit for each depth: whether another one follows there
  };
  std::vector<Line> Lines(std::size_t most) const;
  void Collect(const TTreeNodeList& nodes, int depth, quint64 goesOn, std::size_t most,
               std::vector<Line>& lines) const;
  void PaintLine(TCanvas& canvas, const QRect& rect, const Line& line) const;
};

class TTreeView : public TCustomTreeView {
  VRX_CLASS(TTreeView)
 public:
  using TCustomTreeView::TCustomTreeView;
};
