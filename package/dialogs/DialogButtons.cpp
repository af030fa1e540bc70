#include "package/dialogs/DialogButtons.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <array>

#include "vcl/TabOrder.h"

namespace {
constexpr TVRXDialogButton Table[VRXDialogButtonCount] = {
    {"Yes", 6},    {"No", 7},   {"OK", 1},       {"Cancel", 2},    {"Abort", 3}, {"Retry", 4},
    {"Ignore", 5}, {"All", 12}, {"NoToAll", 13}, {"YesToAll", 14}, {"Help", 0},  {"Close", 0},
};
enum Index { Yes, No, OK, Cancel, Abort, Retry, Ignore, All, NoToAll, YesToAll, Help, Close };

// The first of three that is in the mask; who is not in it can be none.
int FirstOf(unsigned mask, int first, int second, int third) {
  const auto has = [mask](int index) { return (mask >> index & 1u) != 0; };
  return has(first) ? first : has(second) ? second : third;
}
}  // namespace

const TVRXDialogButton& VRXDialogButton(int index) { return Table[index]; }

QString VRXDialogButtonCaption(int index) {
  static const std::array<QString, VRXDialogButtonCount> captions = [] {
    using B = QDialogButtonBox;
    constexpr B::StandardButton buttons[] = {B::Yes,     B::No,       B::Ok,     B::Cancel,
                                             B::Abort,   B::Retry,    B::Ignore, B::NoButton,
                                             B::NoToAll, B::YesToAll, B::Help,   B::Close};
    QDialogButtonBox box;
    std::array<QString, VRXDialogButtonCount> all;
    for (int i = 0; i < VRXDialogButtonCount; ++i)
      all[static_cast<std::size_t>(i)] =
          buttons[i] == B::NoButton ? QObject::tr("&All") : box.addButton(buttons[i])->text();
    return all;
  }();
  return captions[static_cast<std::size_t>(index)];
}

void VRXInsertDialogButtons(TVRXDlgButtonPanel& panel, IDesigner& designer, const TVRXDialogButtons& what) {
  if (what.Remove) {
    const TUpdateLock lock(panel);
    const std::vector<TButton*> buttons = panel.Buttons();
    for (auto button = buttons.rbegin(); button != buttons.rend(); ++button) delete *button;
  }
  if (what.Mask == 0) return;
  const int standard = FirstOf(what.Mask, OK, Yes, Retry), cancel = FirstOf(what.Mask, Cancel, No, OK);
  for (int i = 0; i < VRXDialogButtonCount; ++i) {
    if ((what.Mask >> i & 1u) == 0) continue;
    auto* button = new TVRXButton(designer.GetRoot());
    button->SetName(designer.UniqueName(QStringLiteral("btn") + QString::fromLatin1(Table[i].Name)));
    button->SetBounds(0, 0, what.Size.width(), what.Size.height());
    button->SetCaption(VRXDialogButtonCaption(i));
    button->SetModalResult(Table[i].ModalResult);
    button->SetDefault(i == standard);
    button->SetCancel(i == cancel);
    if (i == Help && what.WithGap) button->SetTag(TVRXDlgButtonPanel::GapTag);
    button->SetParent(&panel);
    GiveLastTabOrder(*button);
  }
  if (what.RightBottom) panel.Set(TVRXDlgButtonPanel::ButtonAlignment, TVRXButtonAlignment::baRightBottom);
}
