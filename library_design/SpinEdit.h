// A number with up and down buttons.
#pragma once
#include <QSpinBox>

class TVRXSpinEdit : public QSpinBox {
  Q_OBJECT
 public:
  // At most `maxLength` characters; the whole text is selected when the focus comes.
  TVRXSpinEdit(int maximum, int maxLength, QWidget* parent = nullptr);

 protected:
  void focusInEvent(QFocusEvent* event) override;
};
