#include "vcl/PageControl.h"

#include <algorithm>

#include "rtl/Class.h"
#include "vcl/PropertyGroups.h"

const TClass& TTabSheet::StaticClass() {
  static const TClass cls(
      DescribeClass<TTabSheet>("TTabSheet", TWinControl::StaticClass())
          .Published("Left", &TTabSheet::ShownLeft, &TTabSheet::SetLeft)
          .StoredIf(&TTabSheet::HasOwnPlace)
          .Published("Top", &TTabSheet::Top, &TTabSheet::SetTop)
          .StoredIf(&TTabSheet::HasOwnPlace)
          .Published("Width", &TTabSheet::Width, &TTabSheet::SetWidth)
          .StoredIf(&TTabSheet::HasOwnPlace)
          .Published("Height", &TTabSheet::Height, &TTabSheet::SetHeight)
          .StoredIf(&TTabSheet::HasOwnPlace)
          .PublishAll(Lettering, Hints, Direction, "Caption", "Constraints", "DoubleBuffered", "Margins",
                      "ParentDoubleBuffered", "PopupMenu", "Color", "ParentColor", Help, Styling, Container,
                      "OnContextPopup", "OnDragDrop", "OnDragOver", "OnEndDrag", "OnEnter", "OnExit",
                      "OnMouseDown", "OnMouseEnter", "OnMouseLeave", "OnMouseMove", "OnMouseUp", "OnResize",
                      "OnStartDrag", WheelEvents)
          .Published(ImageIndex)
          .OtherDefault(-1)
          .Published(TabVisible)
          .Published("PageIndex", &TTabSheet::PageIndex, &TTabSheet::SetPageIndex, -1)
          .StoredIf(&TTabSheet::HasOwnPlace)
          .Doc(QStringLiteral("Place among the pages, from 0."))
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

TTabSheet::TTabSheet(TComponent* owner) : TWinControl(owner) {
  captionFollowsName_ = true;
  TakePlace({0, 0, 281, 165});
}

TPageControl* TTabSheet::Book() const { return dynamic_cast<TPageControl*>(Parent()); }

// A page that is out of sight is where it will be seen.
int TTabSheet::ShownLeft() const { return Book() ? Book()->DisplayRect().left() : Left(); }

int TTabSheet::PageIndex() const {
  const TPageControl* book = Book();
  if (!book) return pageIndex_;
  const auto pages = book->Pages();
  return static_cast<int>(std::find(pages.begin(), pages.end(), this) - pages.begin());
}

void TTabSheet::SetPageIndex(int v) {
  TPageControl* book = Book();
  if (!book || IsLoading()) return Change(pageIndex_, v);
  const auto pages = book->Pages();
  if (v < 0 || v >= static_cast<int>(pages.size()) || v == PageIndex()) return;
  Changing();
  book->SetControlIndex(this, book->ControlIndex(pages[static_cast<std::size_t>(v)]));
  Changed();
}

void TTabSheet::SetBounds(int left, int top, int width, int height) {
  if (HasOwnPlace() || IsLoading()) TakePlace({left, top, width, height});
}

void TTabSheet::Loaded() {
  TWinControl::Loaded();
  if (TPageControl* book = Book()) book->PlacePages();
}

void TTabSheet::DoChanged() {
  TWinControl::DoChanged();
  if (TPageControl* book = IsLoading() ? nullptr : Book()) {
    book->PlacePages();
    book->Invalidate();  // the tab
  }
}

void TTabSheet::Paint(TCanvas& canvas) { canvas.FillRect(ClientRect(), ParentColor() ? clBtnFace : Color()); }

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
              "pen line 1.5 brush fill shape 3 9 21 9 21 19.5 3 19.5 path 10 9 10 5.5 15.5 5.5 15.5 9 pen "
              "accent 1.8 brush none path 3 9 3 4.5 10 4.5 10 9 path 6.5 13 17.5 13"));
  return cls;
}

std::vector<TTabSheet*> TPageControl::Pages() const {
  std::vector<TTabSheet*> pages;
  for (TControl* c : Controls())
    if (auto* page = dynamic_cast<TTabSheet*>(c)) pages.push_back(page);
  return pages;
}

bool TPageControl::HasPage(const TControl& control) const {
  return control.Parent() == this && As<TTabSheet>(&control);
}

TTabSheet* TPageControl::FrontPage() const {
  const auto pages = Pages();
  const auto among = [&](const TControl* page) {
    return std::find(pages.begin(), pages.end(), page) != pages.end();
  };
  for (TTabSheet* page : pages)
    if (page == shown_) return page;
  if (TTabSheet* active = ActivePage(); active && among(active)) return active;
  if (tabIndex_ >= 0 && tabIndex_ < static_cast<int>(pages.size()))
    return pages[static_cast<std::size_t>(tabIndex_)];
  const auto first = std::find_if(pages.begin(), pages.end(),
                                  [](const TTabSheet* page) { return page->Get(TTabSheet::TabVisible); });
  return first != pages.end() ? *first : pages.empty() ? nullptr : pages.front();
}

int TPageControl::FrontTab() const {
  const TTabSheet* front = FrontPage();
  return front ? front->PageIndex() : -1;
}

TTabSheet* TPageControl::PageAt(QPoint point) const {
  const int tab = TabAt(point);
  return tab < 0 ? nullptr : Pages()[static_cast<std::size_t>(tab)];
}

void TPageControl::ShowPage(const TControl& page) {
  if (FrontPage() == &page) return;
  shown_ = &page;
  PlacePages();
  Invalidate();
}

void TPageControl::ChooseTab(int index) {
  SetActivePage(Pages().at(static_cast<std::size_t>(index)));
  if (std::exchange(shown_, nullptr)) PlacePages();
}

void TPageControl::SetActivePage(TTabSheet* v) {
  if (v == ActivePage()) return;
  const TUpdateLock once(*this);
  shown_ = nullptr;
  SetReference(*this, active_, v);
  Changed();
  if (tabIndex_ >= 0 && v && v->Parent() == this && !IsLoading()) Change(tabIndex_, v->PageIndex());
}

void TPageControl::SetTabIndex(int v) {
  if (v == tabIndex_) return;
  const TUpdateLock once(*this);
  shown_ = nullptr;
  Change(tabIndex_, v);
  const auto pages = Pages();
  if (!IsLoading() && v >= 0 && v < static_cast<int>(pages.size()))
    SetReference(*this, active_, pages[static_cast<std::size_t>(v)]);
}

void TPageControl::PlacePages() {
  const TTabSheet* front = FrontPage();
  const QRect area = DisplayRect();
  for (TTabSheet* page : Pages())
    page->TakePlace({page == front ? area.left() : OutOfSight, area.top(), area.width(), area.height()});
}

void TPageControl::SetBounds(int left, int top, int width, int height) {
  TCustomTabControl::SetBounds(left, top, width, height);
  if (!IsLoading()) PlacePages();
}

void TPageControl::Loaded() {
  TCustomTabControl::Loaded();
  PlacePages();
}

void TPageControl::DoChanged() {
  TCustomTabControl::DoChanged();
  if (!IsLoading() && !IsDestroying()) PlacePages();
}

void TPageControl::ControlsListed() {
  TCustomTabControl::ControlsListed();
  if (IsLoading() || IsDestroying()) return;
  PlacePages();
  Invalidate();
}

std::vector<TCustomTabControl::TTab> TPageControl::TabList() const {
  std::vector<TTab> tabs;
  for (const TTabSheet* page : Pages())
    tabs.push_back({page->Caption(), page->Get(TTabSheet::ImageIndex), page->Get(TTabSheet::TabVisible)});
  return tabs;
}
