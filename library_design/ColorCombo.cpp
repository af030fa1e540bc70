#include "library_design/ColorCombo.h"

#include "library_design/ColorDialogs.h"

bool TVRXColorComboBox::ExecuteEnh(QStringList& customColors) {
  TColor color = Selected();
  const bool chosen = ChooseColorEnh(this, color, customColors);
  if (chosen) Choose(color);
  return chosen;
}
