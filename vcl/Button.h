// A push button.
#pragma once
#include "vcl/Control.h"

class TButton : public TWinControl {
  VRX_CLASS(TButton)
 public:
  explicit TButton(TComponent* owner);

  bool Cancel() const { return cancel_; }
  void SetCancel(bool v) { Change(cancel_, v); }
  bool Default() const { return default_; }
  void SetDefault(bool v) { Change(default_, v); }
  int ModalResult() const { return modalResult_; }
  void SetModalResult(int v) { Change(modalResult_, v); }

  void Paint(TCanvas& canvas) override;

 private:
  int modalResult_ = 0;
  bool cancel_ = false, default_ = false;
};
