// What a form file gives a component that its class does not know: it is kept, shown as form text, and edited
// as such.
#pragma once
#include "designintf/PropertyEditor.h"
#include "ide/FormSession.h"

// Names of what the component's object holds and its class does not know, in the order of the file.
QByteArrayList StoredNames(const FormSession& session, const TComponent& component);
// Editors of what all of them have in that way. The session outlives them.
std::vector<std::unique_ptr<TPropertyEditor>> StoredPropertyEditors(
    FormSession& session, const std::vector<TComponent*>& components);
// Whether the editor is one of these, and the property an event.
bool IsStored(const TPropertyEditor& editor);
bool IsStoredEvent(const TPropertyEditor& editor);
