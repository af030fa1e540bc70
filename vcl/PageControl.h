// Pages behind tabs, one of them in front.
#pragma once
#include "vcl/PageBook.h"

class TPageControl;

enum class TCTabControlOption : std::uint8_t {
  nboShowCloseButtons,
  nboMultiLine,
  nboHidePageListPopup,
  nboKeyboardTabSwitch,
  nboShowAddTabButton,
  nboDoChangeOnSetIndex
};
VRX_ENUM(TCTabControlOption, {"nboShowCloseButtons", "nboMultiLine", "nboHidePageListPopup",
                              "nboKeyboardTabSwitch", "nboShowAddTabButton", "nboDoChangeOnSetIndex"})
using TCTabControlOptions = TSet<TCTabControlOption>;
VRX_SET(TCTabControlOptions, TCTabControlOption)

class TTabSheet : public TBookPage {
  VRX_CLASS(TTabSheet)
 public:
  using TBookPage::TBookPage;
  static constexpr TKept<int> ImageIndex{"ImageIndex", 0};
  static constexpr TKept<bool> TabVisible{"TabVisible", true};

  TPageControl* Book() const;
  bool HasTab() const override { return Get(TabVisible); }
  int TabImage() const override { return Get(ImageIndex); }
};

class TPageControl : public TPageBook {
  VRX_CLASS(TPageControl)
 public:
  using TPageBook::TPageBook;

  std::vector<TTabSheet*> Pages() const { return PagesOf<TTabSheet>(*this); }
  TTabSheet* ActivePage() const { return static_cast<TTabSheet*>(active_); }
  void SetActivePage(TTabSheet* v) { SetActiveBookPage(v); }
  void SetActiveBookPage(TBookPage* v) override;
  // The same as a number, in files that give it; -1 in others.
  int TabIndex() const { return tabIndex_; }
  void SetTabIndex(int v);
  TTabSheet* FrontPage() const override { return static_cast<TTabSheet*>(TPageBook::FrontPage()); }

  bool TakesAsPage(const TClass& cls) const override { return cls.InheritsFrom(TTabSheet::StaticClass()); }

 protected:
  TBookPage* UsualPage() const override;

 private:
  int tabIndex_ = -1;
};
