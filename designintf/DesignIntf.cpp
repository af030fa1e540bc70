#include "designintf/DesignIntf.h"

#include "designintf/DesignRegistry.h"

void RegisterComponents(const QString& page, const std::vector<const TClass*>& classes) {
  TRegistration row{};
  row.Kind = TRegistrationKind::Components;
  row.PageOrCategory = page;
  row.Classes = classes;
  DesignRegistry::Current().Add(std::move(row));
}

void RegisterActions(const QString& category, const std::vector<const TClass*>& classes, const TClass*) {
  TRegistration row{};
  row.Kind = TRegistrationKind::Actions;
  row.PageOrCategory = category;
  row.Classes = classes;
  DesignRegistry::Current().Add(std::move(row));
}

void RegisterComponentEditor(const TClass& componentClass, TComponentEditorClass editor) {
  TRegistration row{};
  row.Kind = TRegistrationKind::ComponentEditor;
  row.ComponentClass = &componentClass;
  row.ComponentEditor = std::move(editor);
  DesignRegistry::Current().Add(std::move(row));
}

void RegisterPropertyEditor(const TTypeInfo& type, const TClass* componentClass,
                            const QByteArray& propertyName, std::optional<TPropertyEditorClass> editor) {
  TRegistration row{};
  row.Kind = TRegistrationKind::PropertyEditor;
  row.PropertyType = &type;
  row.ComponentClass = componentClass;
  row.PropertyName = propertyName;
  row.PropertyEditor = std::move(editor);
  DesignRegistry::Current().Add(std::move(row));
}

void RegisterPropertiesInCategory(const QString& category, const TClass& componentClass,
                                  const QStringList& properties) {
  TRegistration row{};
  row.Kind = TRegistrationKind::Category;
  row.PageOrCategory = category;
  row.ComponentClass = &componentClass;
  row.Properties = properties;
  DesignRegistry::Current().Add(std::move(row));
}
