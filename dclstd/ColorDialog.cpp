#include "dclstd/ColorDialog.h"

#include <QColorDialog>

#include "dclstd/DialogInput.h"
#include "designintf/CustomColors.h"

namespace {
// Looks white and is no colour that anybody adds.
constexpr QRgb EmptySlot = 0xFFFFFEFF;

// The dialog puts what is added into its slots from the first one on, whatever they hold. So the first slot
// is the one behind the last colour, and the colours there are stand at the end.
int Slot(std::size_t index, std::size_t count) {
  return static_cast<int>((index + MaxCustomColors - count) % MaxCustomColors);
}
}  // namespace

bool ChooseColor(QWidget* parent, TColor& color, QStringList& customColors) {
  const std::vector<TColor> custom = CustomColorValues(customColors);
  for (std::size_t i = 0; i < MaxCustomColors; ++i)
    QColorDialog::setCustomColor(Slot(i, custom.size()),
                                 i < custom.size() ? ToQColor(custom[i]) : QColor(EmptySlot));
  QColorDialog dialog(ToQColor(color), parent);
  dialog.setOption(QColorDialog::DontUseNativeDialog);
  dialog.setWindowTitle(QObject::tr("Color"));
  UseDialogInput(dialog);
  const QColor start = dialog.currentColor();
  const bool chosen = dialog.exec() == QDialog::Accepted;
  std::vector<TColor> after;
  for (std::size_t i = 0; i < MaxCustomColors; ++i) {
    const QColor made = QColorDialog::customColor(Slot(i, custom.size()));
    // A system colour among them stays one.
    if (i < custom.size() && made.rgb() == ToQColor(custom[i]).rgb())
      after.push_back(custom[i]);
    else if (made.rgb() != EmptySlot)
      after.push_back(FromQColor(made));
  }
  // The dialog puts an added colour over the one that is selected; as long as there is room, none is lost.
  for (const TColor& was : custom)
    if (after.size() < MaxCustomColors && std::find(after.begin(), after.end(), was) == after.end())
      after.push_back(was);
  if (after != custom) customColors = CustomColorEntries(after);
  // Confirmed as it was, a system colour stays one.
  if (chosen && dialog.currentColor() != start) color = FromQColor(dialog.currentColor());
  return chosen;
}
