// Dialogs that ask for a value: a line, lines, a day, a number, a folder, some of a list.
#pragma once
#include "library/components/BaseDialog.h"
#include "rtl/Strings.h"

class TVRXInputDlg : public TVRXBaseDialog {
  VRX_CLASS(TVRXInputDlg)
 public:
  using TVRXBaseDialog::TVRXBaseDialog;
  static constexpr TKept<int> MaxLength{"MaxLength", 0};
  static constexpr TKept<bool> Password{"Password", false};
  static constexpr TKept<QString> Value{"Value"};

 protected:
  Content MakeContent() override;
};

class TVRXTextEditDlg : public TVRXBaseDialog {
  VRX_CLASS(TVRXTextEditDlg)
 public:
  using TVRXBaseDialog::TVRXBaseDialog;
  static constexpr TKept<TStrings*> Lines{"Lines"};
  static constexpr TKept<bool> ReadOnly{"ReadOnly", false};
  static constexpr TKept<bool> WordWrap{"WordWrap", true};

 protected:
  Content MakeContent() override;
};

class TVRXCheckListDlg : public TVRXBaseDialog {
  VRX_CLASS(TVRXCheckListDlg)
 public:
  using TVRXBaseDialog::TVRXBaseDialog;
  // Those of the items that are checked, by their text.
  static constexpr TKept<TStrings*> Checked{"Checked"};
  static constexpr TKept<TStrings*> Items{"Items"};

 protected:
  Content MakeContent() override;
};

class TVRXCalendarDlg : public TVRXBaseDialog {
  VRX_CLASS(TVRXCalendarDlg)
 public:
  using TVRXBaseDialog::TVRXBaseDialog;
  // 0 is today, and no limit.
  static constexpr TKept<TDateTime> Date{"Date"};
  static constexpr TKept<TDateTime> MaxDate{"MaxDate"};
  static constexpr TKept<TDateTime> MinDate{"MinDate"};

 protected:
  Content MakeContent() override;
};

class TVRXCalculatorDlg : public TVRXBaseDialog {
  VRX_CLASS(TVRXCalculatorDlg)
 public:
  using TVRXBaseDialog::TVRXBaseDialog;
  static constexpr TKept<double> Value{"Value"};

 protected:
  Content MakeContent() override;
};

class TVRXDirDlg : public TVRXBaseDialog {
  VRX_CLASS(TVRXDirDlg)
 public:
  using TVRXBaseDialog::TVRXBaseDialog;
  static constexpr TKept<QString> Directory{"Directory"};
  static constexpr TKept<bool> ShowHidden{"ShowHidden", false};

 protected:
  Content MakeContent() override;
};
