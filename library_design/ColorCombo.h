// A drop-down list of colours with swatches, and the two colour dialogs behind it.
#pragma once
#include <QComboBox>

#include "vcl/ColorSwatch.h"

enum class TVRXColorStyle : std::uint8_t { csDefaultColors, csSystemColors, csCustomColors, csAnyColor };
using TVRXColorStyles = TSet<TVRXColorStyle>;

class QToolButton;

class TVRXColorComboBox : public QComboBox {
  Q_OBJECT
 public:
  explicit TVRXColorComboBox(TVRXColorStyles styles = {TVRXColorStyle::csDefaultColors,
                                                       TVRXColorStyle::csSystemColors,
                                                       TVRXColorStyle::csCustomColors,
                                                       TVRXColorStyle::csAnyColor},
                             QWidget* parent = nullptr);

  TColor Selected() const { return selected_; }
  // Shows the colour, adding an entry when it has no name. Does not emit Change.
  void SetSelected(TColor color);

  // Entries "ColorA=00BBGGRR"; shown at the end of the list.
  const QStringList& CustomColors() const { return customColors_; }
  void SetCustomColors(const QStringList& colors);

  // The colour dialog; true when a colour was chosen, which is then selected and reported. Custom colours
  // made there stay, whatever the answer.
  bool Execute();
  // The extended colour dialog, working on a list of custom colours that may be another combo's.
  bool ExecuteEnh(QStringList& customColors);
  // For handing this combo's list to another one's extended dialog.
  QStringList& CustomColorList() { return customColors_; }

 signals:
  void Change();
  // Colours were added or removed in a dialog.
  void CustomColorsChanged();

 private:
  void Fill();
  void Choose(TColor color);
  TVRXColorStyles styles_;
  TColor selected_ = clBlack;
  QStringList customColors_;
};

// Loads the IDE's custom colours into all of the combos; from then on what is changed in one is in all.
void ShareCustomColors(const std::vector<TVRXColorComboBox*>& combos);

// The small button behind a combo that opens its colour dialog.
QToolButton* NewColorButton(const char* name, QWidget* parent);
