// Edits the look of segment letters on a live preview. The dialog never touches the edited component: whoever
// shows it copies the value into the preview's LED and takes it from there when ShowModal returns 1.
#pragma once
#include "dclstd/EditorDialog.h"
#include "dclstd/OneShotComboBox.h"
#include "library/controls/LEDLabel.h"
#include "library_design/ColorCombo.h"
#include "library_design/SpinEdit.h"
#include "vcl/ControlView.h"

class QCheckBox;
class QToolButton;

class TVRXLEDEditorDlg : public EditorDialog {
  Q_OBJECT
 public:
  explicit TVRXLEDEditorDlg(QWidget* owner);
  ~TVRXLEDEditorDlg() override;

  // Everything takes the IDE's theme but the preview.
  bool NeedTheme(const QWidget& control) const;

  void FormCreate();
  void FormClose() override;
  void edchange(const TVRXSpinEdit* sender);
  void cmbc(const TVRXColorComboBox* sender);
  void predChange();
  void chkClick();
  void btn(const QToolButton* sender);
  void resetClick();

  TVRXSpinEdit* edhs;
  TVRXSpinEdit* edvs;
  TVRXSpinEdit* edt;
  TVRXColorComboBox* cmbb;
  TVRXColorComboBox* cmbL;
  QToolButton* bt1;
  QToolButton* bt2;
  OneShotComboBox* pred;
  QCheckBox* chk;
  QPushButton* ok;
  QPushButton* Button1;
  QPushButton* reset;
  std::unique_ptr<TVRXLEDLabel> test;  // the preview
  ControlView* testView;

 protected:
  void LoadControls() override;

 private:
  void Build();
};
