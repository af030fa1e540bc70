#include "dclstd/ColorDialog.h"

#include <QColorDialog>

#include "designintf/CustomColors.h"

bool ChooseColor(QWidget* parent, TColor& color, QStringList& customColors) {
  const std::vector<TColor> custom = CustomColorValues(customColors);
  for (int i = 0; i < MaxCustomColors; ++i)
    QColorDialog::setCustomColor(i, static_cast<std::size_t>(i) < custom.size()
                                        ? ToQColor(custom[static_cast<std::size_t>(i)])
                                        : QColor(Qt::white));
  QColorDialog dialog(ToQColor(color), parent);
  dialog.setOption(QColorDialog::DontUseNativeDialog);
  dialog.setWindowTitle(QObject::tr("Color"));
  const bool chosen = dialog.exec() == QDialog::Accepted;
  // White slots behind the last colour are the dialog's empty ones.
  std::vector<TColor> after;
  for (int i = 0; i < MaxCustomColors; ++i) after.push_back(FromQColor(QColorDialog::customColor(i)));
  while (after.size() > custom.size() && after.back() == clWhite) after.pop_back();
  customColors = CustomColorEntries(after);
  if (chosen) color = FromQColor(dialog.currentColor());
  return chosen;
}
