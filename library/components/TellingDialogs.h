// Dialogs that tell something: about the program, a tip, a message.
#pragma once
#include "library/components/BaseDialog.h"
#include "rtl/Strings.h"

class TVRXAboutDlg : public TVRXBaseDialog {
  VRX_CLASS(TVRXAboutDlg)
 public:
  using TVRXBaseDialog::TVRXBaseDialog;
  static constexpr TKept<QString> Comment{"Comment"};
  static constexpr TKept<QString> Copyright{"Copyright"};
  static constexpr TKept<QString> ProgramName{"ProgramName"};
  static constexpr TKept<QString> Version{"Version"};

 protected:
  Content MakeContent() override;
};

class TVRXTipDlg : public TVRXBaseDialog {
  VRX_CLASS(TVRXTipDlg)
 public:
  using TVRXBaseDialog::TVRXBaseDialog;
  static constexpr TKept<bool> ShowAtStart{"ShowAtStart", true};
  static constexpr TKept<int> TipIndex{"TipIndex", 0};
  static constexpr TKept<TStrings*> Tips{"Tips"};

 protected:
  Content MakeContent() override;
};

enum class TVRXMsgDlgType : std::uint8_t { mtWarning, mtError, mtInformation, mtConfirmation, mtCustom };
VRX_ENUM(TVRXMsgDlgType, {"mtWarning", "mtError", "mtInformation", "mtConfirmation", "mtCustom"})
enum class TVRXMsgDlgBtn : std::uint8_t { mbYes, mbNo, mbOK, mbCancel, mbAbort, mbRetry, mbIgnore };
VRX_ENUM(TVRXMsgDlgBtn, {"mbYes", "mbNo", "mbOK", "mbCancel", "mbAbort", "mbRetry", "mbIgnore"})
using TVRXMsgDlgButtons = TSet<TVRXMsgDlgBtn>;
VRX_SET(TVRXMsgDlgButtons, TVRXMsgDlgBtn)

class TVRXMessageBoxDlg : public TComponent {
  VRX_CLASS(TVRXMessageBoxDlg)
 public:
  using TComponent::TComponent;
  static constexpr TKept<TVRXMsgDlgButtons> Buttons{"Buttons", {TVRXMsgDlgBtn::mbOK}};
  static constexpr TKept<QString> Caption{"Caption"};
  static constexpr TKept<TCustomImageList*> CustomGlyphImageList{"CustomGlyphImageList"};
  static constexpr TKept<int> CustomGlyphIndex{"CustomGlyphIndex", -1};
  static constexpr TKept<TVRXMsgDlgBtn> DefaultButton{"DefaultButton", TVRXMsgDlgBtn::mbOK};
  static constexpr TKept<TVRXMsgDlgType> DlgType{"DlgType", TVRXMsgDlgType::mtInformation};
  // Of the buttons: a picture for each, in the order of the buttons.
  static constexpr TKept<TCustomImageList*> ImageList{"ImageList"};

  // The button that was pressed: OK 1, Cancel 2, Abort 3, Retry 4, Ignore 5, Yes 6, No 7. Closed without one
  // it is Cancel.
  int Execute(const QString& text) const;
};
