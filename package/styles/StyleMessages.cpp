#include "package/styles/StyleMessages.h"

#include <QStringList>
#include <array>

#include "vcl/Prompts.h"

namespace {
using enum TVRXStyleBoxIcon;
using enum TVRXStyleBoxButtons;
struct Row {
  const char* text;
  TVRXStyleBoxIcon icon = Warning;
  TVRXStyleBoxButtons buttons = Ok;
};
constexpr std::array<Row, VRXStyleMessageCount> Rows{{
    {"Cannot move default style!"},
    {"Cannot delete default style!"},
    {"Substyle '%s' already exists in destination style!"},
    {"Property '%s' already included in destination style!"},
    {"Component '%s' doesn't have property '%s'!", Warning, YesNo},
    {"Cannot create default style for non-TComponent descendants!"},
    {"Cannot move property with undefined value!"},
    {"Cannot move style into its own substyle!"},
    {"State style cannot have substyles!"},
    {"State style cannot have state style ancestors!"},
    {"Style cannot have ancestor style with the same name!"},
    {"Style '%s' cannot be inherited from style '%s', because class '%s' not inherited from class '%s'!"},
    {"Invalid style name!"},
    {"Please select style or property first!"},
    {"Delete style '%s'?", Question, YesNo},
    {"Delete property '%s'?", Question, YesNo},
    {"Cannot find component class '%s'!"},
    {"Please select component class first!"},
    {"No bitmap was chosen. Clear current bitmap?", Question, YesNo},
}};
}  // namespace

TVRXStyleBox VRXStyleBox(TVRXStyleMessage message, const QStringList& names) {
  const Row& row = Rows[static_cast<std::size_t>(message)];
  // Piece by piece: a name may hold a mark itself.
  const QStringList pieces = QString::fromLatin1(row.text).split(QStringLiteral("%s"));
  QString text = pieces.front();
  for (qsizetype i = 1; i < pieces.size(); ++i) text += names.value(i - 1) + pieces[i];
  return {message, row.icon, row.buttons, text};
}

TVRXShowStyleBox VRXStyleBoxesOf(QWidget* parent) {
  return [parent](const TVRXStyleBox& box) {
    const QString title = QString::fromLatin1(VRXStyleEditorTitle);
    if (box.Buttons == YesNo && box.Icon == Warning) return Prompts().ConfirmWarning(parent, title, box.Text);
    if (box.Buttons == YesNo) return Prompts().Confirm(parent, title, box.Text);
    Prompts().Warn(parent, title, box.Text);
    return false;
  };
}
