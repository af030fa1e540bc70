#include "library_design/ColorCombo.h"

#include "library_design/ColorDialogs.h"

bool TVRXColorComboBox::ExecuteEnh(QStringList& customColors) {
  TColor color = Selected();
  const bool chosen = ChooseColorEnh(this, color, customColors);
  if (chosen) Choose(color);
  return chosen;
}

bool TVRXColorComboBox::ExecuteEnh(ColorComboBox& owner) {
  QStringList colors = owner.CustomColors();
  const bool chosen = ExecuteEnh(colors);
  owner.SetCustomColors(colors);
  return chosen;
}
