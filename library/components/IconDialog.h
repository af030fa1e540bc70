// Picks one of the icons of a file.
#pragma once
#include "library/components/BaseDialog.h"

class TVRXFormChangeIconDialog : public TVRXBaseDialog {
  VRX_CLASS(TVRXFormChangeIconDialog)
 public:
  using TVRXBaseDialog::TVRXBaseDialog;
  static constexpr TKept<QString> FileName{"FileName"};
  static constexpr TKept<int> IconIndex{"IconIndex", 0};
  static constexpr TKept<QString> InitialDir{"InitialDir"};

  // The icon that was picked. Throws EInvalidPicture when the file cannot be read; null when it has no icon
  // of that number.
  QImage Icon() const;

 protected:
  Content MakeContent() override;
};
