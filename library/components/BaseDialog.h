// What the library's dialogs have in common: a component keeps what its dialog shows, and what was entered.
#pragma once
#include "library/components/DialogFrame.h"
#include "vcl/ImageList.h"

class TVRXBaseDialog : public TComponent {
  VRX_CLASS(TVRXBaseDialog)
 public:
  using TComponent::TComponent;
  static constexpr TKept<QString> Caption{"Caption"};
  static constexpr TKept<TCustomImageList*> ImageList{"ImageList"};
  static constexpr TKept<int> ImageIndex{"ImageIndex", -1};
  static constexpr TKept<QString> Prompt{"Prompt"};

  // Whether it was confirmed; what was entered is in the component then, and nothing has changed otherwise.
  bool Execute() { return Run(true); }
  // The same, and nothing is kept.
  void Preview() { Run(false); }

 protected:
  using Content = TVRXDialogContent;
  virtual Content MakeContent() { return {}; }
  // Whether nothing that is done in the dialog may stay.
  bool IsPreview() const { return preview_; }

 private:
  bool Run(bool keep);
  bool preview_ = false;
};
