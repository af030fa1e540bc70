// The library's drop-down list of colours: with the extended colour dialog, too.
#pragma once
#include "dclstd/ColorComboBox.h"

using TVRXColorStyle = TColorChoice;
using TVRXColorStyles = TColorChoices;

class TVRXColorComboBox : public ColorComboBox {
  Q_OBJECT
 public:
  using ColorComboBox::ColorComboBox;
  // The extended colour dialog, working on a list of custom colours that may be another combo's. True when a
  // colour was chosen, which is then selected and reported.
  bool ExecuteEnh(QStringList& customColors);
  bool ExecuteEnh(ColorComboBox& owner);
};
