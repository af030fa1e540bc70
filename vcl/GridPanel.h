// Panels in which every control has a cell.
#pragma once
#include "vcl/ControlItems.h"
#include "vcl/Panel.h"

enum class TSizeStyle : std::uint8_t { ssAbsolute, ssPercent, ssAuto };
VRX_ENUM(TSizeStyle, {"ssAbsolute", "ssPercent", "ssAuto"})
enum class TExpandStyle : std::uint8_t { emAddRows, emAddColumns, emFixedSize };
VRX_ENUM(TExpandStyle, {"emAddRows", "emAddColumns", "emFixedSize"})

// A column or row: its size in pixels, or its share of what the others leave.
class TCellItem : public TCollectionItem {
  VRX_CLASS(TCellItem)
 public:
  using TCollectionItem::TCollectionItem;
  static constexpr TKept<TSizeStyle> SizeStyle{"SizeStyle", TSizeStyle::ssPercent};
  static constexpr TKept<double> Value{"Value"};
};
class TColumnItem : public TCellItem {
  VRX_CLASS(TColumnItem)
 public:
  using TCellItem::TCellItem;
  QString DisplayName() const override { return QStringLiteral("Column %1").arg(Index()); }
};
class TRowItem : public TCellItem {
  VRX_CLASS(TRowItem)
 public:
  using TCellItem::TCellItem;
  QString DisplayName() const override { return QStringLiteral("Row %1").arg(Index()); }
};
class TColumnCollection : public TCollection {
  VRX_CLASS(TColumnCollection)
 public:
  explicit TColumnCollection(TPersistent* owner) : TCollection(TColumnItem::StaticClass(), owner) {}
};
class TRowCollection : public TCollection {
  VRX_CLASS(TRowCollection)
 public:
  explicit TRowCollection(TPersistent* owner) : TCollection(TRowItem::StaticClass(), owner) {}
};

// In which cell a control stands, and over how many it reaches.
class TGridControlItem : public TControlItem {
  VRX_CLASS(TGridControlItem)
 public:
  using TControlItem::TControlItem;
  static constexpr TKept<int> Column{"Column", -1};
  static constexpr TKept<int> ColumnSpan{"ColumnSpan", 1};
  static constexpr TKept<int> Row{"Row", -1};
  static constexpr TKept<int> RowSpan{"RowSpan", 1};
};
class TControlCollection : public TControlItems {
  VRX_CLASS(TControlCollection)
 public:
  explicit TControlCollection(TPersistent* owner) : TControlItems(TGridControlItem::StaticClass(), owner) {}
};

class TGridPanel : public TCustomPanel {
  VRX_CLASS(TGridPanel)
 public:
  using TCustomPanel::TCustomPanel;
  // With none the panel has two of each, of the same size.
  static constexpr TKept<TColumnCollection*> ColumnCollection{"ColumnCollection"};
  static constexpr TKept<TRowCollection*> RowCollection{"RowCollection"};
  static constexpr TKept<TControlCollection*> ControlCollection{"ControlCollection"};
  static constexpr TKept<TExpandStyle> ExpandStyle{"ExpandStyle", TExpandStyle::emAddRows};

  // Where columns and rows begin, and where the last one ends, in the room.
  std::vector<int> ColumnEdges(int room) const;
  std::vector<int> RowEdges(int room) const;

  // The control comes to the cell at the point of the client area, unless another one has it.
  void MoveToCellAt(const TControl& control, QPoint point);

  bool PlacesControls() const override { return true; }
  void ArrangeControls(Placements& all, const QRect& client, const QMargins& insets,
                       const Placements* before) const override;
  void Notification(TComponent* component, TOperation operation) override;
  // Designed, the cells are to be seen.
  void Paint(TCanvas& canvas) override;

 protected:
  // Who comes in takes the first free cell; the cell of who goes is free.
  void ControlsListed() override;

 private:
  const TGridControlItem* ItemIn(int column, int row) const;
  int Extent(const TCollection& items, int index, bool columns) const;
};
