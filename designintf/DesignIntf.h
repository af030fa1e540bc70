// What packages call to make themselves known. The calls go to the host's registry (DesignRegistry.h).
#pragma once
#include <QStringList>

#include "designintf/BasicEditors.h"
#include "designintf/ComponentEditor.h"
#include "designintf/ResourceStrings.h"

void RegisterComponents(const QString& page, const std::vector<const TClass*>& classes);
// The resource class is always null here: actions bring no images.
void RegisterActions(const QString& category, const std::vector<const TClass*>& classes,
                     const TClass* resource);
void RegisterComponentEditor(const TClass& componentClass, TComponentEditorClass editor);
// Null class and empty name: every property of the type. No editor: the property is hidden.
void RegisterPropertyEditor(const TTypeInfo& type, const TClass* componentClass,
                            const QByteArray& propertyName, std::optional<TPropertyEditorClass> editor);
void RegisterPropertiesInCategory(const QString& category, const TClass& componentClass,
                                  const QStringList& properties);
