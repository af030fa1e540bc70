// A drop-down list of colours with swatches, and the colour dialog behind it.
#pragma once
#include <QComboBox>

#include "vcl/ColorSwatch.h"

enum class TColorChoice : std::uint8_t { csDefaultColors, csSystemColors, csCustomColors, csAnyColor };
using TColorChoices = TSet<TColorChoice>;
constexpr TColorChoices AllColors{TColorChoice::csDefaultColors, TColorChoice::csSystemColors,
                                  TColorChoice::csCustomColors, TColorChoice::csAnyColor};

class QToolButton;

class ColorComboBox : public QComboBox {
  Q_OBJECT
 public:
  explicit ColorComboBox(QWidget* parent = nullptr);

  // Which colours are listed; all at first.
  TColorChoices Styles() const { return styles_; }
  void SetStyles(TColorChoices styles);
  TColor Selected() const { return selected_; }
  // Shows the colour, in an entry of its own while it is selected when the list does not hold it. Does not
  // emit Change.
  void SetSelected(TColor color);

  // Entries "ColorA=00BBGGRR"; shown at the end of the list.
  const QStringList& CustomColors() const { return customColors_; }
  void SetCustomColors(const QStringList& colors);

  // The colour dialog; true when a colour was chosen, which is then selected and reported. Custom colours
  // made there stay, whatever the answer.
  bool Execute();

 signals:
  void Change();
  // Colours were added or removed.
  void CustomColorsChanged();

 protected:
  void Choose(TColor color);
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void Fill();
  void Add(TColor color);
  // While it lives, the entry that opens the dialog is passed over.
  class WithoutCustom;

  TColorChoices styles_ = AllColors;
  TColor selected_ = clBlack;
  QStringList customColors_;
  int listed_ = 0;  // entries of the list proper; behind them at most the selected colour
};

// Loads the IDE's custom colours into all of the combos; from then on what is changed in one is in all.
void ShareCustomColors(const std::vector<ColorComboBox*>& combos);

// The small button behind a combo that opens its colour dialog.
QToolButton* NewColorButton(const char* name, QWidget* parent);
