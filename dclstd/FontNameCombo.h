// A drop-down list of font families in which any name can be typed.
#pragma once
#include <QFontComboBox>

class FontNameCombo : public QFontComboBox {
  Q_OBJECT
 public:
  explicit FontNameCombo(QWidget* parent);
  // The name stands there whether or not such a font is installed. Does not emit Chosen.
  void ShowName(const QString& name);
  // What each family is shown with, behind its name.
  void SetSample(const QString& text);

 signals:
  // By a person; never an empty name.
  void Chosen(const QString& name);
  // The field is left, and may hold no name.
  void Left();

 private:
  void Choose(const QString& name);
  QString name_;
};
