#include "ide/Unknown.h"

#include <algorithm>

namespace {
constexpr int PageBorder = 4;
}  // namespace

const TClass& TUnknownControl::StaticClass() {
  static const TClass cls(DescribeClass<TUnknownControl>("TUnknownControl", TWinControl::StaticClass())
                              .Published("Left", &TUnknownControl::Left, &TUnknownControl::SetLeft)
                              .StoredIf(&TUnknownControl::PlaceStored)
                              .Published("Top", &TUnknownControl::Top, &TUnknownControl::SetTop)
                              .StoredIf(&TUnknownControl::PlaceStored)
                              .Published("Width", &TUnknownControl::Width, &TUnknownControl::SetWidth)
                              .StoredIf(&TUnknownControl::PlaceStored)
                              .Published("Height", &TUnknownControl::Height, &TUnknownControl::SetHeight)
                              .StoredIf(&TUnknownControl::PlaceStored)
                              .Published("Align", &TUnknownControl::Align, &TUnknownControl::SetAlign)
                              .StoredIf(&TUnknownControl::AlignStored)
                              .PublishAll("Anchors", "Caption", "Enabled", "TabOrder", "Visible")
                              .ClassDoc(QStringLiteral("A control whose package is not loaded.")));
  return cls;
}
const TClass& TUnknownComponent::StaticClass() {
  static const TClass cls(DescribeClass<TUnknownComponent>("TUnknownComponent", TComponent::StaticClass())
                              .ClassDoc(QStringLiteral("A component whose package is not loaded.")));
  return cls;
}

TUnknownControl::TUnknownControl(TComponent* owner) : TWinControl(owner) {}

QRect TUnknownControl::ClientRect() const {
  const QRect all = TWinControl::ClientRect();
  return standIn_.look == TStandInLook::Group ? ToldClientRect().value_or(all) : all;
}

bool TUnknownControl::AcceptsControls() const {
  using enum TStandInLook;
  const bool container = standIn_.look == Panel || standIn_.look == Group || standIn_.look == Page;
  return container || (!Controls().empty() && Pages().empty());
}

std::vector<TUnknownControl*> TUnknownControl::Pages() const {
  std::vector<TUnknownControl*> pages;
  for (TControl* c : Controls())
    if (auto* page = dynamic_cast<TUnknownControl*>(c);
        page && page->standIn_.look == TStandInLook::Page && !page->standIn_.hasPlace)
      pages.push_back(page);
  return pages;
}

TUnknownControl* TUnknownControl::FrontPage() const {
  const auto pages = Pages();
  if (pages.empty()) return nullptr;
  for (TUnknownControl* page : pages)
    if (page == front_) return page;
  for (TUnknownControl* page : pages)
    if (page->Name().compare(standIn_.activePage, Qt::CaseInsensitive) == 0) return page;
  const auto index = static_cast<std::size_t>(std::max(0, standIn_.activeIndex));
  return pages[index < pages.size() ? index : 0];
}

bool TUnknownControl::HasPage(const TControl& control) const {
  const auto pages = Pages();
  return std::find(pages.begin(), pages.end(), &control) != pages.end();
}

void TUnknownControl::ShowPage(const TControl& page) {
  if (FrontPage() == &page) return;
  front_ = &page;
  PlacePages();
  Invalidate();
}

// A page that is not in front keeps its size, so that nothing on it moves.
void TUnknownControl::PlacePages() {
  const TUnknownControl* front = FrontPage();
  const QRect area = PageArea();
  for (TUnknownControl* page : Pages())
    page->TakePlace({page == front ? area.left() : OutOfSight, area.top(), area.width(), area.height()});
}

void TUnknownControl::SetBounds(int left, int top, int width, int height) {
  if (PlaceStored() || IsLoading()) TakePlace({left, top, width, height});
}

void TUnknownControl::TakePlace(const QRect& r) {
  TWinControl::SetBounds(r.left(), r.top(), r.width(), r.height());
  if (!IsLoading()) PlacePages();
}

void TUnknownControl::Loaded() {
  TWinControl::Loaded();
  PlacePages();
  if (auto* book = dynamic_cast<TUnknownControl*>(Parent()); book && !standIn_.hasPlace) book->PlacePages();
}

QRect TUnknownControl::PageArea() const {
  const int tabs = standIn_.look == TStandInLook::Tabs ? TabHeight : 0;
  const int border = standIn_.look == TStandInLook::Tabs ? PageBorder : 0;
  return {border, tabs + border, std::max(0, Width() - 2 * border),
          std::max(0, Height() - tabs - 2 * border)};
}
