// The buttons of message dialogs, and how a panel is filled with them.
#pragma once
#include "designintf/Designer.h"
#include "library/controls/DlgButtonPanel.h"

struct TVRXDialogButton {
  const char* Name;
  int ModalResult;
};
constexpr int VRXDialogButtonCount = 12;
// In the order of the bits of a mask.
const TVRXDialogButton& VRXDialogButton(int index);
// As this platform writes it, in the person's language.
QString VRXDialogButtonCaption(int index);

struct TVRXDialogButtons {
  std::uint16_t Mask = 0;
  bool WithGap = false;        // the help button stands apart
  bool Remove = false;         // the buttons that are there
  bool RightBottom = false;    // the row stands at the end of the panel
  QSize Size = QSize(75, 25);  // of each
};
// New buttons are the form's.
void VRXInsertDialogButtons(TVRXDlgButtonPanel& panel, IDesigner& designer, const TVRXDialogButtons& what);
