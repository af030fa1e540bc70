// A push button.
#pragma once
#include "vcl/Control.h"

enum class TImageAlignment : std::uint8_t { iaLeft, iaRight, iaTop, iaBottom, iaCenter };
VRX_ENUM(TImageAlignment, {"iaLeft", "iaRight", "iaTop", "iaBottom", "iaCenter"})
enum class TPushButtonStyle : std::uint8_t { bsPushButton, bsCommandLink, bsSplitButton };
VRX_TYPE_INFO(TPushButtonStyle,
              EnumType("TPushButtonStyle", {"bsPushButton", "bsCommandLink", "bsSplitButton"}))

// What the picture of a button keeps free around it.
class TImageMargins : public TKeptPart {
  VRX_CLASS(TImageMargins)
 public:
  using TKeptPart::TKeptPart;
};

const TTypeInfo& ModalResultType();

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

 protected:
  QSize AutoSizeHint() const override;

 private:
  int modalResult_ = 0;
  bool cancel_ = false, default_ = false;
};
