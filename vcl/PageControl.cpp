#include "vcl/PageControl.h"

#include "rtl/Class.h"
#include "vcl/PropertyGroups.h"

const TClass& TTabSheet::StaticClass() {
  static const TClass cls(
      WithPagePlace(DescribeClass<TTabSheet>("TTabSheet", TWinControl::StaticClass()))
          .PublishAll(Lettering, Hints, Direction, "Caption", "Constraints", "DoubleBuffered", "Margins",
                      "ParentDoubleBuffered", "PopupMenu", "Color", "ParentColor", Help, Styling, Container,
                      "OnContextPopup", "OnDragDrop", "OnDragOver", "OnEndDrag", "OnEnter", "OnExit",
                      "OnMouseDown", "OnMouseEnter", "OnMouseLeave", "OnMouseMove", "OnMouseUp", "OnResize",
                      "OnStartDrag", WheelEvents)
          .Published(ImageIndex)
          .OtherDefault(-1)
          .Published(TabVisible)
          .Passive("BorderWidth", 0)
          .Passive("Highlighted", false)
          .Event("OnHide")
          .Event("OnShow")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A page of a page control."),
              "pen line 1.5 brush fill shape 3 9 21 9 21 19.5 3 19.5 pen accent 1.8 brush none path 3 9 3 "
              "4.5 11 4.5 11 9"));
  return cls;
}

TPageControl* TTabSheet::Book() const { return static_cast<TPageControl*>(TBookPage::Book()); }

const TClass& TPageControl::StaticClass() {
  static const TClass cls(
      DescribeClass<TPageControl>("TPageControl", TCustomTabControl::StaticClass())
          .Published("ActivePage", &TPageControl::ActivePage, &TPageControl::SetActivePage)
          .Doc(QStringLiteral("The page in front."))
          .Published("TabIndex", &TPageControl::TabIndex, &TPageControl::SetTabIndex, -1)
          .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Windowed, Help, Styling,
                      Docking, ResizeEvents, WheelEvents, "HotTrack", "Images", "MultiLine", "OwnerDraw",
                      "RaggedRight", "ScrollOpposite", "ShowTabs", "Style", "TabHeight", "TabPosition",
                      "TabWidth", "OnChange", "OnChanging", "OnDrawTab", "OnGetImageIndex", MouseEvents,
                      FocusEvents, DragEvents)
          .Passive("ImagesWidth", 0)
          .Passive("Options", TCTabControlOptions{})
          .Publish("TabStop", true)
          .Event("OnCloseTabClicked")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("Pages behind tabs."),
              "pen line 1.5 brush fill box 8 3 13 13.5 1 shape 3 8 9 8 11 10.5 17 10.5 17 21 3 21 pen accent "
              "1.8 brush none path 3 8 9 8 11 10.5 path 6 14 14 14 path 6 17.5 11 17.5"));
  return cls;
}

TBookPage* TPageControl::UsualPage() const {
  const auto pages = BookPages();
  return tabIndex_ >= 0 && tabIndex_ < static_cast<int>(pages.size())
             ? pages[static_cast<std::size_t>(tabIndex_)]
             : nullptr;
}

void TPageControl::SetActiveBookPage(TBookPage* v) {
  if (v == active_) return;
  const TUpdateLock once(*this);
  TPageBook::SetActiveBookPage(v);
  if (tabIndex_ >= 0 && v && v->Parent() == this && !IsLoading()) Change(tabIndex_, v->PageIndex());
}

void TPageControl::SetTabIndex(int v) {
  if (v == tabIndex_) return;
  const TUpdateLock once(*this);
  ForgetShown();
  Change(tabIndex_, v);
  const auto pages = BookPages();
  if (!IsLoading() && v >= 0 && v < static_cast<int>(pages.size()))
    SetReference(*this, active_, pages[static_cast<std::size_t>(v)]);
}
