#include "vcl/PageBook.h"

#include <algorithm>

#include "rtl/Class.h"

TBookPage::TBookPage(TComponent* owner) : TWinControl(owner) {
  captionFollowsName_ = true;
  TakePlace({0, 0, 281, 165});
}

TClassBuilder&& WithPagePlace(TClassBuilder&& page) {
  return std::move(page)
      .Published("Left", &TBookPage::ShownLeft, &TBookPage::SetLeft)
      .StoredIf(&TBookPage::HasOwnPlace)
      .Published("Top", &TBookPage::Top, &TBookPage::SetTop)
      .StoredIf(&TBookPage::HasOwnPlace)
      .Published("Width", &TBookPage::Width, &TBookPage::SetWidth)
      .StoredIf(&TBookPage::HasOwnPlace)
      .Published("Height", &TBookPage::Height, &TBookPage::SetHeight)
      .StoredIf(&TBookPage::HasOwnPlace)
      .Published("PageIndex", &TBookPage::PageIndex, &TBookPage::SetPageIndex, -1)
      .StoredIf(&TBookPage::HasOwnPlace)
      .Doc(QStringLiteral("Place among the pages, from 0."));
}

TPageBook* TBookPage::Book() const {
  auto* book = dynamic_cast<TPageBook*>(Parent());
  return book && book->HasPage(*this) ? book : nullptr;
}

int TBookPage::ShownLeft() const { return Book() ? Book()->DisplayRect().left() : Left(); }

int TBookPage::PageIndex() const {
  const TPageBook* book = Book();
  if (!book) return pageIndex_;
  const auto pages = book->BookPages();
  return static_cast<int>(std::find(pages.begin(), pages.end(), this) - pages.begin());
}

void TBookPage::SetPageIndex(int v) {
  TPageBook* book = Book();
  if (!book || IsLoading()) return Change(pageIndex_, v);
  const auto pages = book->BookPages();
  if (v < 0 || v >= static_cast<int>(pages.size()) || v == PageIndex()) return;
  Changing();
  book->SetControlIndex(this, book->ControlIndex(pages[static_cast<std::size_t>(v)]));
  Changed();
}

void TBookPage::SetBounds(int left, int top, int width, int height) {
  if (HasOwnPlace() || IsLoading()) TakePlace({left, top, width, height});
}

void TBookPage::Loaded() {
  TWinControl::Loaded();
  if (TPageBook* book = Book()) book->PlacePages();
}

void TBookPage::DoChanged() {
  TWinControl::DoChanged();
  if (TPageBook* book = IsLoading() ? nullptr : Book()) {
    book->PlacePages();
    book->Invalidate();  // the tab
  }
}

void TBookPage::Paint(TCanvas& canvas) { canvas.FillRect(ClientRect(), ParentColor() ? clBtnFace : Color()); }

std::vector<TBookPage*> TPageBook::BookPages() const {
  std::vector<TBookPage*> pages;
  for (TControl* c : Controls())
    if (TakesAsPage(c->ClassType())) pages.push_back(static_cast<TBookPage*>(c));
  return pages;
}

bool TPageBook::HasPage(const TControl& control) const {
  return control.Parent() == this && TakesAsPage(control.ClassType());
}

TBookPage* TPageBook::FrontPage() const {
  const auto pages = BookPages();
  for (TBookPage* page : pages)
    if (page == shown_) return page;
  if (active_ && std::find(pages.begin(), pages.end(), active_) != pages.end()) return active_;
  if (TBookPage* usual = UsualPage()) return usual;
  const auto first = std::find_if(pages.begin(), pages.end(), [](const TBookPage* p) { return p->HasTab(); });
  return first != pages.end() ? *first : pages.empty() ? nullptr : pages.front();
}

int TPageBook::FrontTab() const {
  const TBookPage* front = FrontPage();
  return front ? front->PageIndex() : -1;
}

TBookPage* TPageBook::PageAt(QPoint point) const {
  const int tab = TabAt(point);
  return tab < 0 ? nullptr : BookPages()[static_cast<std::size_t>(tab)];
}

void TPageBook::ShowPage(const TControl& page) {
  if (FrontPage() == &page) return;
  shown_ = &page;
  PlacePages();
  Invalidate();
}

void TPageBook::ChooseTab(int index) {
  SetActiveBookPage(BookPages().at(static_cast<std::size_t>(index)));
  if (std::exchange(shown_, nullptr)) PlacePages();
}

void TPageBook::SetActiveBookPage(TBookPage* v) {
  if (v == active_) return;
  const TUpdateLock once(*this);
  ForgetShown();
  SetReference(*this, active_, v);
  Changed();
}

void TPageBook::PlacePages() {
  const TBookPage* front = FrontPage();
  const QRect area = DisplayRect();
  for (TBookPage* page : BookPages())
    page->TakePlace({page == front ? area.left() : OutOfSight, area.top(), area.width(), area.height()});
}

void TPageBook::SetBounds(int left, int top, int width, int height) {
  TCustomTabControl::SetBounds(left, top, width, height);
  if (!IsLoading()) PlacePages();
}

void TPageBook::Loaded() {
  TCustomTabControl::Loaded();
  PlacePages();
}

void TPageBook::DoChanged() {
  TCustomTabControl::DoChanged();
  if (!IsLoading() && !IsDestroying()) PlacePages();
}

void TPageBook::ControlsListed() {
  TCustomTabControl::ControlsListed();
  if (IsLoading() || IsDestroying()) return;
  PlacePages();
  Invalidate();
}

std::vector<TCustomTabControl::TTab> TPageBook::TabList() const {
  std::vector<TTab> tabs;
  for (const TBookPage* page : BookPages())
    tabs.push_back({page->Caption(), page->TabImage(), page->HasTab()});
  return tabs;
}
