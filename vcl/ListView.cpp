#include "vcl/ListView.h"

#include "rtl/Class.h"
#include "vcl/PropertyGroups.h"

const TClass& TListColumn::StaticClass() {
  static const TClass cls(DescribeClass<TListColumn>("TListColumn", TCollectionItem::StaticClass())
                              .Published(Alignment)
                              .Passive("AutoSize", false)
                              .PublishedAll(Caption, ImageIndex)
                              .Passive<QString>("ImageName")
                              .PublishedAll(MaxWidth, MinWidth)
                              .Passive("SortIndicator", TSortIndicator::siNone)
                              .Passive("Tag", 0)
                              .PublishedAll(Visible, Width));
  return cls;
}

QString TListColumn::DisplayName() const {
  const QString caption = Get(Caption);
  return caption.isEmpty() ? TCollectionItem::DisplayName() : caption;
}

int TListColumn::ShownWidth() const {
  int width = Get(Width);
  if (const int most = Get(MaxWidth); most > 0) width = std::min(width, most);
  return std::max({width, Get(MinWidth), 0});
}

const TClass& TListColumns::StaticClass() {
  static const TClass cls(DescribeClass<TListColumns>("TListColumns", TCollection::StaticClass()));
  return cls;
}

const TClass& TListGroup::StaticClass() {
  static const TClass cls(DescribeClass<TListGroup>("TListGroup", TCollectionItem::StaticClass())
                              .Published(Header)
                              .Passive<QString>("Footer")
                              .Passive("GroupID", -1)
                              .Passive("State", TListGroupStateSet{TListGroupState::lgsNormal})
                              .Passive("HeaderAlign", TAlignment::taLeftJustify)
                              .Passive("FooterAlign", TAlignment::taLeftJustify)
                              .Passive<QString>("Subtitle")
                              .Passive<QString>("TopDescription")
                              .Passive<QString>("BottomDescription")
                              .Passive("TitleImage", -1)
                              .Passive("ExtendedImage", -1)
                              .Passive<QString>("SubsetTitle"));
  return cls;
}

QString TListGroup::DisplayName() const {
  const QString header = Get(Header);
  return header.isEmpty() ? TCollectionItem::DisplayName() : header;
}

const TClass& TListGroups::StaticClass() {
  static const TClass cls(DescribeClass<TListGroups>("TListGroups", TCollection::StaticClass()));
  return cls;
}

const TClass& TIconOptions::StaticClass() {
  static const TClass cls(DescribeClass<TIconOptions>("TIconOptions", TPersistent::StaticClass())
                              .Passive("Arrangement", TIconArrangement::iaTop)
                              .Passive("AutoArrange", false)
                              .Passive("WrapText", true));
  return cls;
}

const TClass& TCustomListView::StaticClass() {
  static const TClass cls(DescribeClass<TCustomListView>("TCustomListView", TWinControl::StaticClass())
                              .DeclaredAll(BorderStyle, Checkboxes, Columns, GridLines, Items, LargeImages,
                                           ShowColumnHeaders, SmallImages, StateImages, ViewStyle));
  return cls;
}

TCustomListView::TCustomListView(TComponent* owner) : TWinControl(owner) {
  tabStop_ = true;
  StartWith(clWindow);
  SetBounds(0, 0, 250, 150);
}

const TClass& TListView::StaticClass() {
  static const TClass cls(
      DescribeClass<TListView>("TListView", TCustomListView::StaticClass())
          .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Bevels, Windowed, Help,
                      Styling, WheelEvents, MouseEvents, KeyEvents, FocusEvents, DragEvents, "Action",
                      "BorderStyle", "Checkboxes", "Columns", "GridLines", "Items", "LargeImages",
                      "ShowColumnHeaders", "SmallImages", "StateImages", "ViewStyle", "OnResize")
          .Passive("AllocBy", 0)
          .Passive("AutoSort", true)
          .Passive("AutoSortIndicator", false)
          .Passive("AutoWidthLastColumn", false)
          .Passive("BorderWidth", 0)
          .Passive("ColumnClick", true)
          .Passive("FlatScrollBars", false)
          .Passive("FullDrag", false)
          .Passive<TCustomImageList*>("GroupHeaderImages")
          .Passive<TListGroups*>("Groups")
          .Passive("GroupView", false)
          .Passive("HideSelection", true)
          .Passive("HotTrack", false)
          .Passive("HotTrackStyles", TListHotTrackStyles{})
          .Passive("HoverTime", -1)
          .Passive<TIconOptions*>("IconOptions")
          .Passive("ItemIndex", -1)
          .Passive("LargeImagesWidth", 0)
          .Passive("MultiSelect", false)
          .Passive("OwnerData", false)
          .Passive("OwnerDraw", false)
          .Passive("ReadOnly", false)
          .Passive("RowSelect", false)
          .Passive("ScrollBars", TScrollStyle::ssBoth)
          .Passive("ShowWorkAreas", false)
          .Passive("SmallImagesWidth", 0)
          .Passive("SortColumn", -1)
          .Passive("SortDirection", TSortDirection::sdAscending)
          .Passive("SortType", TSortType::stNone)
          .Passive("StateImagesWidth", 0)
          .Passive("ToolTips", true)
          .Publish("Color", clWindow)
          .Publish("ParentColor", false)
          .Publish("TabStop", true)
          .Event("OnAdvancedCustomDraw", "TLVAdvancedCustomDrawEvent")
          .Event("OnAdvancedCustomDrawItem", "TLVAdvancedCustomDrawItemEvent")
          .Event("OnAdvancedCustomDrawSubItem", "TLVAdvancedCustomDrawSubItemEvent")
          .Event("OnChange", "TLVChangeEvent")
          .Event("OnChanging", "TLVChangingEvent")
          .Event("OnColumnClick", "TLVColumnClickEvent")
          .Event("OnColumnDragged")
          .Event("OnColumnRightClick", "TLVColumnRClickEvent")
          .Event("OnCompare", "TLVCompareEvent")
          .Event("OnCreateItemClass", "TLVCreateItemClassEvent")
          .Event("OnCustomDraw", "TLVCustomDrawEvent")
          .Event("OnCustomDrawItem", "TLVCustomDrawItemEvent")
          .Event("OnCustomDrawSubItem", "TLVCustomDrawSubItemEvent")
          .Event("OnData", "TLVOwnerDataEvent")
          .Event("OnDataFind", "TLVOwnerDataFindEvent")
          .Event("OnDataHint", "TLVOwnerDataHintEvent")
          .Event("OnDataStateChange", "TLVOwnerDataStateChangeEvent")
          .Event("OnDeletion", "TLVDeletedEvent")
          .Event("OnDrawItem", "TLVDrawItemEvent")
          .Event("OnEdited", "TLVEditedEvent")
          .Event("OnEditing", "TLVEditingEvent")
          .Event("OnGetImageIndex", "TLVNotifyEvent")
          .Event("OnGetSubItemImage", "TLVSubItemImageEvent")
          .Event("OnInfoTip", "TLVInfoTipEvent")
          .Event("OnInsert", "TLVDeletedEvent")
          .Event("OnItemChecked", "TLVCheckedItemEvent")
          .Event("OnSelectItem", "TLVSelectItemEvent")
          .Alphabetical()
          .ClassDoc(QStringLiteral("A list of items with pictures, as icons or as a table."),
                    "pen line 1.5 brush fill box 3.5 4.5 17 15 0 pen accent 1.8 path 3.5 8.5 20.5 8.5 pen "
                    "none brush accent box 6 11 2.5 2.5 0 box 6 15 2.5 2.5 0 pen line 1.5 path 10.5 12.5 17 "
                    "12.5 path 10.5 16.5 15 16.5"));
  return cls;
}
