#include "ide/InspectorNode.h"

#include "designintf/EditorSource.h"

using enum TPropertyAttribute;

namespace inspector {

QString NameOf(const TPropertyEditor& editor) {
  return AskEditor(editor, "GetName", QString::fromLatin1(editor.GetPropInfo().Name),
                   [&] { return editor.GetName(); });
}
QIcon IconOf(const TPropertyEditor& editor, const QString& value) {
  return AskEditor(editor, "GetValueIcon", QIcon(), [&] { return editor.GetValueIcon(value); });
}
bool Has(const TPropertyEditor& editor, TPropertyAttribute attribute) {
  return AskEditor(editor, "GetAttributes", false,
                   [&] { return editor.GetAttributes().Contains(attribute); });
}

QString TextOf(const TPropertyEditor& editor) {
  if (editor.PropCount() != 1 && !AskEditor(editor, "AllEqual", false, [&] { return editor.AllEqual(); }))
    return {};
  return AskEditor(editor, "GetValue", QString(), [&] { return editor.GetValue(); });
}
bool IsNotDefault(const TPropertyEditor& editor) {
  return !AskEditor(editor, "IsDefault", true, [&] { return editor.IsDefault(); });
}

}  // namespace inspector
