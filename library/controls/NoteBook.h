// Sheets behind tabs: the base of all that have such sheets, and the notebook.
#pragma once
#include "library/values/Fill.h"
#include "vcl/PageBook.h"

class TVRXCustomSheetControl;

class TVRXCustomSheet : public TBookPage {
  VRX_CLASS(TVRXCustomSheet)
 public:
  using TBookPage::TBookPage;
  static constexpr TKept<int> ImageIndex{"ImageIndex", -1};
  static constexpr TKept<bool> TabVisible{"TabVisible", true};

  // Null for a sheet that stands anywhere else.
  TVRXCustomSheetControl* SheetControl() const;
  void SetSheetControl(TVRXCustomSheetControl* control);
  bool HasTab() const override { return Get(TabVisible); }
  int TabImage() const override { return Get(ImageIndex); }
};

class TVRXCustomSheetControl : public TPageBook {
  VRX_CLASS(TVRXCustomSheetControl)
 public:
  using TPageBook::TPageBook;

  std::vector<TVRXCustomSheet*> Sheets() const { return PagesOf<TVRXCustomSheet>(*this); }
  int SheetCount() const { return static_cast<int>(Sheets().size()); }
  TVRXCustomSheet* ActiveSheet() const { return static_cast<TVRXCustomSheet*>(active_); }
  void SetActiveSheet(TVRXCustomSheet* v) { SetActiveBookPage(v); }
  // Of what its sheets are.
  virtual const TClass& SheetClass() const = 0;
  bool TakesAsPage(const TClass& cls) const override { return cls.InheritsFrom(SheetClass()); }
};

class TVRXNoteBookPage : public TVRXCustomSheet {
  VRX_CLASS(TVRXNoteBookPage)
 public:
  using TVRXCustomSheet::TVRXCustomSheet;
  // Fills the page; else it has its colour.
  static constexpr TKept<bool> Filled{"Filled", false};
  static constexpr TKept<TVRXFillObject*> FillPart{"FillObject"};

  TVRXFillObject* FillObject() const { return Get(FillPart); }
  void Paint(TCanvas& canvas) override;
};

class TVRXNoteBook : public TVRXCustomSheetControl {
  VRX_CLASS(TVRXNoteBook)
 public:
  using TVRXCustomSheetControl::TVRXCustomSheetControl;

  TVRXNoteBookPage* ActivePage() const { return static_cast<TVRXNoteBookPage*>(active_); }
  void SetActivePage(TVRXNoteBookPage* v) { SetActiveSheet(v); }
  const TClass& SheetClass() const override { return TVRXNoteBookPage::StaticClass(); }
  void Paint(TCanvas& canvas) override;
};
