// Dialogs in which one of what is there is picked: a window of the program, a folder.
#pragma once
#include "library/components/BaseDialog.h"

class TVRXWindowListDlg : public TVRXBaseDialog {
  VRX_CLASS(TVRXWindowListDlg)
 public:
  using TVRXBaseDialog::TVRXBaseDialog;
  static constexpr TKept<bool> AllowClose{"AllowClose", true};
  static constexpr TKept<bool> ShowHidden{"ShowHidden", false};
  static constexpr TKept<bool> Sorted{"Sorted", false};

  // The caption of the window that was brought to the front.
  const QString& Picked() const { return picked_; }

 protected:
  Content MakeContent() override;

 private:
  QString picked_;
};

enum class TVRXFolderOption : std::uint8_t {
  foEditLine,
  foMustExist,
  foNewFolder,
  foShowFiles,
  foShowHidden
};
VRX_ENUM(TVRXFolderOption, {"foEditLine", "foMustExist", "foNewFolder", "foShowFiles", "foShowHidden"})
using TVRXFolderOptions = TSet<TVRXFolderOption>;
VRX_SET(TVRXFolderOptions, TVRXFolderOption)

class TVRXFormFolderDialog : public TVRXBaseDialog {
  VRX_CLASS(TVRXFormFolderDialog)
 public:
  using TVRXBaseDialog::TVRXBaseDialog;
  static constexpr TKept<QString> Folder{"Folder"};
  static constexpr TKept<TVRXFolderOptions> Options{
      "Options",
      {TVRXFolderOption::foEditLine, TVRXFolderOption::foMustExist, TVRXFolderOption::foNewFolder}};
  static constexpr TKept<QString> RootFolder{"RootFolder"};

 protected:
  Content MakeContent() override;

 private:
  QString WhyNot(const QString& folder) const;
};
