// A key of a menu item or action: pressed, or picked from the usual ones.
#pragma once
#include "dclstd/RowDialog.h"
#include "vcl/ShortCut.h"

// True when the user confirmed.
bool EditShortCut(TShortCut& shortCut);

// Shows the keys that are pressed in it instead of taking their texts. Tab and Return alone leave it as in
// any other field, Escape closes the dialog, and Backspace alone empties it.
class KeyField : public QLineEdit {
  Q_OBJECT
 public:
  explicit KeyField(QWidget* parent = nullptr);
  TShortCut Keys() const { return keys_; }
  void SetKeys(TShortCut keys);

 signals:
  void Pressed();

 protected:
  bool event(QEvent* event) override;

 private:
  bool Take(const QKeyEvent& event);
  TShortCut keys_{};
};

class ShortCutDialog : public RowDialog {
  Q_OBJECT
 public:
  explicit ShortCutDialog(QWidget* owner);
  TShortCut ShortCut() const { return keys->Keys(); }
  void SetShortCut(TShortCut shortCut);

  KeyField* keys;
  QComboBox* usual;
  QPushButton *clear, *ok, *cancel;

 protected:
  void LoadControls() override;

 private:
  void clearClick();
  void usualChange();
};
