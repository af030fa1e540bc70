// Pages behind tabs, one of them in front.
#pragma once
#include "vcl/Book.h"
#include "vcl/TabControl.h"

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

class TTabSheet : public TWinControl {
  VRX_CLASS(TTabSheet)
 public:
  explicit TTabSheet(TComponent* owner);
  static constexpr TKept<int> ImageIndex{"ImageIndex", 0};
  static constexpr TKept<bool> TabVisible{"TabVisible", true};

  // Null for a sheet that stands anywhere else.
  TPageControl* Book() const;
  int PageIndex() const;
  void SetPageIndex(int v);

  bool AcceptsControls() const override { return true; }
  // The page control decides where its pages stand.
  bool HasOwnPlace() const override { return !Book(); }
  void SetBounds(int left, int top, int width, int height) override;
  void Paint(TCanvas& canvas) override;
  void Loaded() override;

 protected:
  void DoChanged() override;

 private:
  friend class TPageControl;
  void TakePlace(const QRect& r) { TWinControl::SetBounds(r.left(), r.top(), r.width(), r.height()); }
  int ShownLeft() const;

  int pageIndex_ = -1;  // outside of a page control
};

class TPageControl : public TCustomTabControl, public IBook {
  VRX_CLASS(TPageControl)
 public:
  using TCustomTabControl::TCustomTabControl;

  std::vector<TTabSheet*> Pages() const;
  TTabSheet* ActivePage() const { return active_; }
  void SetActivePage(TTabSheet* v);
  // The same as a number, in files that give it; -1 in others.
  int TabIndex() const { return tabIndex_; }
  void SetTabIndex(int v);

  bool HasPage(const TControl& control) const override;
  TTabSheet* FrontPage() const override;
  TTabSheet* PageAt(QPoint point) const override;
  void ShowPage(const TControl& page) override;
  void PlacePages() override;

  int FrontTab() const override;
  void ChooseTab(int index) override;
  void SetBounds(int left, int top, int width, int height) override;
  void Loaded() override;

 protected:
  std::vector<TTab> TabList() const override;
  void DoChanged() override;
  void ControlsListed() override;

 private:
  TTabSheet* active_ = nullptr;
  int tabIndex_ = -1;
  const TControl* shown_ = nullptr;  // compared only
};
