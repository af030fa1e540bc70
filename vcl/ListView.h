// A list of items with pictures: as icons, in columns, or as a table with details.
#pragma once
#include "rtl/Collection.h"
#include "vcl/Edit.h"
#include "vcl/ImageList.h"
#include "vcl/ListItems.h"
#include "vcl/Memo.h"

enum class TViewStyle : std::uint8_t { vsIcon, vsSmallIcon, vsList, vsReport };
VRX_ENUM(TViewStyle, {"vsIcon", "vsSmallIcon", "vsList", "vsReport"})
enum class TSortType : std::uint8_t { stNone, stData, stText, stBoth };
VRX_ENUM(TSortType, {"stNone", "stData", "stText", "stBoth"})
enum class TIconArrangement : std::uint8_t { iaTop, iaLeft };
VRX_ENUM(TIconArrangement, {"iaTop", "iaLeft"})
enum class TListHotTrackStyle : std::uint8_t { htHandPoint, htUnderlineCold, htUnderlineHot };
VRX_ENUM(TListHotTrackStyle, {"htHandPoint", "htUnderlineCold", "htUnderlineHot"})
using TListHotTrackStyles = TSet<TListHotTrackStyle>;
VRX_SET(TListHotTrackStyles, TListHotTrackStyle)
enum class TSortDirection : std::uint8_t { sdAscending, sdDescending };
VRX_ENUM(TSortDirection, {"sdAscending", "sdDescending"})
enum class TSortIndicator : std::uint8_t { siNone, siAscending, siDescending };
VRX_ENUM(TSortIndicator, {"siNone", "siAscending", "siDescending"})

enum class TListGroupState : std::uint8_t {
  lgsNormal,
  lgsHidden,
  lgsCollapsed,
  lgsNoHeader,
  lgsCollapsible,
  lgsFocused,
  lgsSelected,
  lgsSubseted,
  lgsSubSetLinkFocused
};
VRX_ENUM(TListGroupState, {"lgsNormal", "lgsHidden", "lgsCollapsed", "lgsNoHeader", "lgsCollapsible",
                           "lgsFocused", "lgsSelected", "lgsSubseted", "lgsSubSetLinkFocused"})
using TListGroupStateSet = TSet<TListGroupState>;
VRX_SET(TListGroupStateSet, TListGroupState)

class TListColumn : public TCollectionItem {
  VRX_CLASS(TListColumn)
 public:
  using TCollectionItem::TCollectionItem;
  static constexpr TKept<TAlignment> Alignment{"Alignment", TAlignment::taLeftJustify};
  static constexpr TKept<QString> Caption{"Caption"};
  static constexpr TKept<int> ImageIndex{"ImageIndex", -1};
  static constexpr TKept<int> MaxWidth{"MaxWidth", 0};
  static constexpr TKept<int> MinWidth{"MinWidth", 0};
  static constexpr TKept<bool> Visible{"Visible", true};
  static constexpr TKept<int> Width{"Width", 50};

  // Within its limits.
  int ShownWidth() const;
  QString DisplayName() const override;
};
class TListColumns : public TCollection {
  VRX_CLASS(TListColumns)
 public:
  explicit TListColumns(TPersistent* owner = nullptr) : TCollection(TListColumn::StaticClass(), owner) {}
  TListColumn* Column(int index) const { return static_cast<TListColumn*>(Item(index)); }
};

class TListGroup : public TCollectionItem {
  VRX_CLASS(TListGroup)
 public:
  using TCollectionItem::TCollectionItem;
  static constexpr TKept<QString> Header{"Header"};
  QString DisplayName() const override;
};
class TListGroups : public TCollection {
  VRX_CLASS(TListGroups)
 public:
  explicit TListGroups(TPersistent* owner = nullptr) : TCollection(TListGroup::StaticClass(), owner) {}
};

class TIconOptions : public TKeptPart {
  VRX_CLASS(TIconOptions)
 public:
  using TKeptPart::TKeptPart;
};

class TCustomListView : public TWinControl {
  VRX_CLASS(TCustomListView)
 public:
  explicit TCustomListView(TComponent* owner);
  static constexpr TKept<TBorderStyle> BorderStyle{"BorderStyle", TBorderStyle::bsSingle};
  static constexpr TKept<bool> Checkboxes{"Checkboxes", false};
  static constexpr TKept<TListColumns*> Columns{"Columns"};
  static constexpr TKept<bool> GridLines{"GridLines", false};
  static constexpr TKept<TListItems*> Items{"Items"};
  static constexpr TKept<TCustomImageList*> LargeImages{"LargeImages"};
  static constexpr TKept<bool> ShowColumnHeaders{"ShowColumnHeaders", true};
  static constexpr TKept<TCustomImageList*> SmallImages{"SmallImages"};
  static constexpr TKept<TCustomImageList*> StateImages{"StateImages"};
  static constexpr TKept<TViewStyle> ViewStyle{"ViewStyle", TViewStyle::vsIcon};

  void Paint(TCanvas& canvas) override;

 private:
  int LineHeight() const;
  const TCustomImageList* Images() const;
  int MarksWidth() const;
  QRect PaintMarks(TCanvas& canvas, const QRect& line, const TListViewItem& item) const;
  void PaintReport(TCanvas& canvas, QRect inside) const;
  void PaintInColumns(TCanvas& canvas, const QRect& inside) const;
  void PaintIcons(TCanvas& canvas, const QRect& inside) const;
};

class TListView : public TCustomListView {
  VRX_CLASS(TListView)
 public:
  using TCustomListView::TCustomListView;
};
