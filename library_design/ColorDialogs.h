// The library's extended colour dialog: named and system colours, custom colours and numbers, with old and
// new side by side. The list of custom colours ("ColorA=00BBGGRR" ...) keeps what was added even when no
// colour is chosen.
#pragma once
#include "dclstd/ModalDialog.h"
#include "vcl/Colors.h"

class QLineEdit;
class QListWidget;
class QSpinBox;

bool ChooseColorEnh(QWidget* parent, TColor& color, QStringList& customColors);
// The same over the window that the user is in.
bool VRXCPGetColor(TColor& color, QStringList& customColors);

class ColorEnhDialog : public ModalDialog {
  Q_OBJECT
 public:
  ColorEnhDialog(TColor color, const QStringList& customColors, QWidget* parent);
  TColor Color() const { return color_; }
  QStringList CustomColors() const;

 protected:
  void LoadControls() override;

 private:
  void Build();
  void SetColor(TColor color, const QObject* source);
  void AddCustom();
  void RemoveCustom();
  void FillCustom();

  TColor original_, color_;
  std::vector<TColor> custom_;
  QListWidget* named_;
  QListWidget* customList_;
  QSpinBox* rgb_[3];
  QLineEdit* text_;
  QLineEdit* filter_;
  QWidget* sample_;
  const QObject* source_ = nullptr;  // where the colour that is being shown comes from
};
