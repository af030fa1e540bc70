// The names of properties that the editor of stored properties does not offer: one list for all forms, kept
// in the user's settings.
#pragma once
#include <QStringList>

// What is offered for no component. Names are compared without regard to case.
const QStringList& VRXExcludedProperties();
bool VRXIsExcludedProperty(const QString& name);
void VRXExcludeProperty(const QString& name);
// False when it is not in the list.
bool VRXIncludeProperty(const QString& name);
// Writes the list to the settings. Throws ERegistryException when that fails; the list stays as it is.
void SaveExcludedProperties();

// At the start, and at the end of the package.
void LoadExcludedProperties();
void DropExcludedProperties();
