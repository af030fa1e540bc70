// Picks the colour scheme of a light on a live one. A click on it turns it on and off.
#pragma once
#include "dclstd/EditorDialog.h"
#include "library/controls/Light.h"

class TVRXLightEditorDlg : public EditorDialog {
  Q_OBJECT
 public:
  explicit TVRXLightEditorDlg(QWidget* owner);
  void FormActivate() override;
  void predChange();
  void testClick();

  QComboBox* pred;
  QPushButton *btnOK, *btnCancel;
  TVRXLight* test;  // its colour is what is picked

 protected:
  void LoadControls() override;
  bool eventFilter(QObject* watched, QEvent* event) override;
};
