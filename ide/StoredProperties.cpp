#include "ide/StoredProperties.h"

namespace {
const TTypeInfo& FormTextType() {
  static const TTypeInfo info{.Kind = TTypeKind::tkString, .Name = "FormText"};
  return info;
}

// The value of a property as its form text.
class StoredAccess final : public TAccess<QString> {
 public:
  StoredAccess(FormSession& session, QByteArray name) : session_(session), name_(std::move(name)) {}
  QString Get(const TPersistent& p) const override {
    return session_.StoredText(static_cast<const TComponent&>(p), name_);
  }
  void Set(TPersistent& p, const QString& text) const override {
    session_.SetStored(static_cast<TComponent&>(p), name_, text);
  }

 private:
  FormSession& session_;
  QByteArray name_;
};

std::unique_ptr<TPropInfo> InfoOf(FormSession& session, const QByteArray& name) {
  auto info = std::make_unique<TPropInfo>();
  info->Name = name;
  info->PropType = &FormTextType();
  info->Access = std::make_shared<StoredAccess>(session, name);
  info->Description =
      FormSession::tr("Stored in the file; no loaded class knows it. The value is form text.");
  return info;
}

class TStoredProperty final : public TPropertyEditor {
 public:
  // A line takes no longer text.
  static constexpr int Longest = 32000;

  TStoredProperty(FormSession& session, const std::vector<TComponent*>& components,
                  std::unique_ptr<TPropInfo> info)
      : TPropertyEditor(&session, Instances(components, *info)), info_(std::move(info)) {}
  TPropertyAttributes GetAttributes() const override {
    TPropertyAttributes attributes = TPropertyEditor::GetAttributes();
    if (GetValue().size() > Longest) attributes.Include(TPropertyAttribute::paReadOnly);
    return attributes;
  }
  int GetEditLimit() const override { return Longest; }
  bool IsDefault() const override { return false; }
  bool IsEvent() const { return info_->Name.startsWith("On") && IsValidIdent(GetValue()); }

 private:
  static TInstProps Instances(const std::vector<TComponent*>& components, const TPropInfo& info) {
    TInstProps props;
    for (TComponent* c : components) props.push_back({c, &info});
    return props;
  }
  std::unique_ptr<TPropInfo> info_;
};
}  // namespace

QByteArrayList StoredNames(const FormSession& session, const TComponent& component) {
  QByteArrayList names;
  if (const forms::Object* object = session.ObjectOf(component))
    for (const forms::Property& p : object->properties)
      if (!forms::FindTarget(const_cast<TComponent&>(component), p.Name()).Found())
        names << p.Name().toByteArray();
  return names;
}

std::vector<std::unique_ptr<TPropertyEditor>> StoredPropertyEditors(
    FormSession& session, const std::vector<TComponent*>& components) {
  std::vector<std::unique_ptr<TPropertyEditor>> editors;
  if (components.empty()) return editors;
  QByteArrayList names = StoredNames(session, *components.front());
  for (auto it = components.begin() + 1; it != components.end() && !names.isEmpty(); ++it) {
    const QByteArrayList others = StoredNames(session, **it);
    names.removeIf([&](const QByteArray& n) {
      return std::none_of(others.begin(), others.end(),
                          [&](const QByteArray& o) { return o.compare(n, Qt::CaseInsensitive) == 0; });
    });
  }
  for (const QByteArray& name : names)
    editors.push_back(std::make_unique<TStoredProperty>(session, components, InfoOf(session, name)));
  return editors;
}

bool IsStored(const TPropertyEditor& editor) {
  return dynamic_cast<const TStoredProperty*>(&editor) != nullptr;
}
bool IsStoredEvent(const TPropertyEditor& editor) {
  const auto* stored = dynamic_cast<const TStoredProperty*>(&editor);
  return stored && stored->IsEvent();
}
