// What values of styles are edited with where they stand.
#pragma once
#include <optional>

#include "package/styles/StyleValues.h"

class QWidget;

// Shows the value, or, where none is stored, what a new one would be. Null for what is edited in no widget.
QWidget* VRXNewValueEditor(TVRXStyleEditor kind, const TTypeInfo* type, const TVRXStyleValue* value,
                           QWidget* parent);
// What is to be stored; nothing when the stored value is still shown as it was, so that what a widget cannot
// show exactly stays. Where none is stored, what is shown counts after the editor was touched.
std::optional<TVRXStyleValue> VRXEditedValue(const QWidget& editor);
// The person has typed something there.
void VRXTouch(const QWidget& editor);
// Calls back whenever a choice is complete, so that it is seen at once.
void VRXWhenChosen(QWidget& editor, const std::function<void()>& chosen);
