// The library's editor of a format of dates and times: usual ones to choose from, and what they make of a
// moment.
#pragma once
#include "dclstd/EditorDialog.h"
#include "library/controls/CustomLabel.h"

class QListWidget;

// Writes its result into the argument only when the user confirms, and is true then.
bool VRXCPGetDateTimeFormat(QString& format);

class TVRXDateTimeFormatDlg : public EditorDialog {
  Q_OBJECT
 public:
  explicit TVRXDateTimeFormatDlg(QWidget* owner = nullptr);
  void SetFormat(const QString& format);
  QString Format() const { return edformat->text(); }

  QLineEdit* edformat;
  QListWidget* usual;
  QLabel* problem;
  QPushButton *ok, *cancel;
  TVRXStaticText* test;  // shows the sample

 protected:
  bool ReturnConfirms() const override;

 private:
  void formatChange();
  void usualChange();
};
