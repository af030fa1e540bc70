// What a masked field takes: the mask, what is kept of it, and a field to try it.
#pragma once
#include "dclstd/RowDialog.h"
#include "vcl/EditMask.h"

class QTableWidget;

// Writes into the mask only when the user changed it and confirms, and is true then.
bool EditEditMask(QString& mask);

class EditMaskDialog : public RowDialog {
  Q_OBJECT
 public:
  explicit EditMaskDialog(QWidget* owner);
  void SetMask(const QString& mask);
  QString Mask() const;
  bool Changed() const { return changed_; }

  QLineEdit *mask, *blank, *test;
  QCheckBox* literals;
  QTableWidget* samples;
  QPushButton *ok, *cancel;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void maskChange();
  void Show(const TEditMask& mask);
  void TakeSample(int row);
  bool changed_ = false;
};
