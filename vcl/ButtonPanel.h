// The row of buttons at the lower edge of a dialog.
#pragma once
#include "vcl/Control.h"

enum class TPanelButton : std::uint8_t { pbOK, pbCancel, pbClose, pbHelp };
VRX_ENUM(TPanelButton, {"pbOK", "pbCancel", "pbClose", "pbHelp"})
using TPanelButtons = TSet<TPanelButton>;
VRX_SET(TPanelButtons, TPanelButton)
enum class TButtonOrder : std::uint8_t { boDefault, boCloseCancelOK, boCloseOKCancel };
VRX_ENUM(TButtonOrder, {"boDefault", "boCloseCancelOK", "boCloseOKCancel"})

// One of its buttons, as far as a form says something of it.
class TPanelBitBtn : public TKeptPart {
  VRX_CLASS(TPanelBitBtn)
 public:
  using TKeptPart::TKeptPart;
  static constexpr TKept<QString> Caption{"Caption"};
  static constexpr TKept<bool> Enabled{"Enabled", true};
};

class TButtonPanel : public TWinControl {
  VRX_CLASS(TButtonPanel)
 public:
  explicit TButtonPanel(TComponent* owner);
  static constexpr TKept<TPanelBitBtn*> CancelButton{"CancelButton"};
  static constexpr TKept<TPanelBitBtn*> CloseButton{"CloseButton"};
  static constexpr TKept<TPanelButton> DefaultButton{"DefaultButton", TPanelButton::pbOK};
  static constexpr TKept<TPanelBitBtn*> HelpButton{"HelpButton"};
  static constexpr TKept<TPanelBitBtn*> OKButton{"OKButton"};
  static constexpr TKept<bool> ShowBevel{"ShowBevel", true};
  static constexpr TKept<TPanelButtons> ShowButtons{
      "ShowButtons",
      {TPanelButton::pbOK, TPanelButton::pbCancel, TPanelButton::pbClose, TPanelButton::pbHelp}};
  static constexpr TKept<int> Spacing{"Spacing", 6};

  bool AcceptsControls() const override { return true; }
  void Paint(TCanvas& canvas) override;
};
