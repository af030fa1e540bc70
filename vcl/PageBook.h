// What all controls with pages have in common, whatever shows which page is in front: where the pages stand,
// which one is in front, and what follows from choosing one.
#pragma once
#include "vcl/Book.h"
#include "vcl/TabControl.h"

class TClassBuilder;
class TPageBook;

class TBookPage : public TWinControl {
 public:
  explicit TBookPage(TComponent* owner);

  // Null for a page that stands anywhere else.
  TPageBook* Book() const;
  int PageIndex() const;
  void SetPageIndex(int v);
  // Whether there is a tab for it.
  virtual bool HasTab() const { return true; }
  virtual int TabImage() const { return -1; }

  bool AcceptsControls() const override { return true; }
  // The book decides where its pages stand.
  bool HasOwnPlace() const override { return !Book(); }
  void SetBounds(int left, int top, int width, int height) override;
  void Paint(TCanvas& canvas) override;
  void Loaded() override;

  // A page that is out of sight is where it will be seen.
  int ShownLeft() const;

 protected:
  void DoChanged() override;

 private:
  friend class TPageBook;
  void TakePlace(const QRect& r) { TWinControl::SetBounds(r.left(), r.top(), r.width(), r.height()); }

  int pageIndex_ = -1;  // outside of a book
};

// Publishes a page's place: kept where there is no book around it, else the book's.
TClassBuilder&& WithPagePlace(TClassBuilder&& page);

class TPageBook : public TCustomTabControl, public IBook {
 public:
  using TCustomTabControl::TCustomTabControl;

  // What is a page of it.
  virtual bool TakesAsPage(const TClass& cls) const = 0;
  std::vector<TBookPage*> BookPages() const;
  // The page that is in front by the book's own value; null for none.
  TBookPage* ActiveBookPage() const { return active_; }
  virtual void SetActiveBookPage(TBookPage* v);

  bool HasPage(const TControl& control) const override;
  TBookPage* FrontPage() const override;
  TBookPage* PageAt(QPoint point) const override;
  void ShowPage(const TControl& page) override;
  void PlacePages() override;

  int FrontTab() const override;
  void ChooseTab(int index) override;
  void SetBounds(int left, int top, int width, int height) override;
  void Loaded() override;

 protected:
  // In front where no page is active; null leaves it to the book.
  virtual TBookPage* UsualPage() const { return nullptr; }
  // What was shown for the moment no longer is.
  void ForgetShown() { shown_ = nullptr; }
  std::vector<TTab> TabList() const override;
  void DoChanged() override;
  void ControlsListed() override;

  TBookPage* active_ = nullptr;

 private:
  const TControl* shown_ = nullptr;  // compared only
};

// The pages of a book whose pages are all of that class.
template <class Page>
std::vector<Page*> PagesOf(const TPageBook& book) {
  std::vector<Page*> pages;
  for (TBookPage* page : book.BookPages()) pages.push_back(static_cast<Page*>(page));
  return pages;
}
