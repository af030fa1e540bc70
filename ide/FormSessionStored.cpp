// What the file says of a component beyond its class, as form text, and beyond its ancestor.
#include <QRegularExpression>

#include "forms/TextWriter.h"
#include "ide/FormSession.h"
#include "rtl/Exceptions.h"

namespace {
// Lists and data stand on several lines of a file; their meaning does not depend on it.
QString OnOneLine(const QByteArray& text) {
  static const QRegularExpression breaks(QStringLiteral("\\r?\\n\\s*"));
  return QString::fromUtf8(text).replace(breaks, QStringLiteral(" "));
}

// The property that the text makes. Throws an Exception that says what is wrong with it.
forms::Property Parsed(const QByteArray& name, const QString& text, forms::Document& target) {
  const auto refuse = [&](const QString& why) {
    throw Exception(FormSession::tr("\"%1\" is no value of a form file: %2.").arg(text.left(80), why));
  };
  try {
    const forms::Document parsed =
        forms::Document::ParseObjects("object Value: TValue\n" + name + " = " + text.toUtf8() + "\nend\n");
    const auto& objects = parsed.Root().children;
    if (objects.size() != 1 || !objects[0]->children.empty() || objects[0]->properties.size() != 1)
      refuse(FormSession::tr("it is more than one value"));
    auto object = parsed.Detached(*objects[0], target);
    return std::move(object->properties[0]);
  } catch (const forms::EFormError& e) {
    refuse(e.Text());
    throw;
  }
}
}  // namespace

QString FormSession::StoredText(const TComponent& component, QByteArrayView name) const {
  const forms::Object* object = ObjectOf(component);
  const forms::Property* p = object ? object->Find(name) : nullptr;
  if (!p) return {};
  forms::Value value = Document().Read(*p);
  if (value.IsString()) value = forms::Value::Text(Document().Decode(value));
  return OnOneLine(forms::ValueToText(value, Document().Style()));
}

void FormSession::SetStored(TComponent& component, const QByteArray& name, const QString& text) {
  if (text == StoredText(component, name)) return;
  std::optional<forms::Property> property;
  if (!text.trimmed().isEmpty()) property = Parsed(name, text, form_.Document());
  Run(tr("Change %1").arg(QString::fromUtf8(name)), {&component},
      [&] { recorder_->PutStored(component, name, std::move(property)); });
}

// --- Values that an ancestor has, too

namespace {
bool IsOrIsIn(QByteArrayView name, QByteArrayView path) {
  return name.size() >= path.size() && name.first(path.size()).compare(path, Qt::CaseInsensitive) == 0 &&
         (name.size() == path.size() || name[path.size()] == '.');
}
}  // namespace

bool FormSession::SaysItself(const TComponent& component, QByteArrayView path) const {
  const forms::Object* object = ObjectOf(component);
  return object && object->origin &&
         std::any_of(object->properties.begin(), object->properties.end(),
                     [&](const forms::Property& p) { return IsOrIsIn(p.Name(), path); });
}

void FormSession::RevertToInherited(const std::vector<TComponent*>& components, const QByteArray& path) {
  Run(tr("Revert %1 to inherited").arg(QString::fromUtf8(path)), components, [&] {
    for (TComponent* c : components) {
      if (!SaysItself(*c, path)) continue;
      const forms::Object& object = *ObjectOf(*c);
      form_.LearnInherited({&object});
      QByteArrayList said;
      for (const forms::Property& p : object.properties)
        if (IsOrIsIn(p.Name(), path)) said << p.Name().toByteArray();
      for (const QByteArray& name : said) recorder_->PutStored(*c, name, {});
      if (const forms::Snapshot* inherited = form_.InheritedValues(object))
        for (const forms::StoredValue& v : *inherited)
          if (IsOrIsIn(v.path, path))
            if (const auto target = forms::FindTarget(*c, v.path); target.Found())
              forms::ApplyNow(Form(), target, v.value, Document());
    }
  });
}
