// Between values of a form file and published properties.
#pragma once
#include <exception>
#include <functional>

#include "forms/Document.h"
#include "rtl/Component.h"

class TCollectionItem;

namespace forms {

// A component reference waits until all components exist.
struct PendingReference {
  TComponent* holder = nullptr;
  TPersistent* instance = nullptr;
  const TPropInfo* prop = nullptr;
  QByteArray target;
  const Property* source = nullptr;
  // Why it could not be resolved: there is a component of that name, but of another class.
  const TComponent* unfit = nullptr;
  // Inside of a collection: the item, which property of it this is, and at which place.
  TCollectionItem* item = nullptr;
  std::size_t index = 0;
  QByteArray path{};
};
// "Label2, which is a TLabel and no TWinControl"; "Gone, which is not on this form".
QString WhyUnresolved(const PendingReference& reference);

// What a property path of a form file leads to.
struct PropertyTarget {
  TPersistent* instance = nullptr;
  const TPropInfo* prop = nullptr;  // null with an instance: the content of a string list ("Lines.Strings")
  QByteArrayView path{};            // as messages name it; empty: the property's own name
  bool Found() const { return instance != nullptr; }
};
// The path must live as long as what it leads to is used.
PropertyTarget FindTarget(TPersistent& root, QByteArrayView path);

// The property would take a name, but not this one.
class EUnknownName : public EPropertyError {
 public:
  EUnknownName(const QString& text, QByteArray type, QByteArray word)
      : EPropertyError(text), type_(std::move(type)), word_(std::move(word)) {}
  const QByteArray& Type() const { return type_; }
  const QByteArray& Word() const { return word_; }

 private:
  QByteArray type_, word_;
};
// Equal names in a row share their memory.
void AddReference(std::vector<PendingReference>& pending, const PropertyTarget& target, QByteArrayView name);

// The ordinal that a value stands for. Throws like ApplyValue.
std::int64_t OrdinalOf(const PropertyTarget& target, const Value& value);
// Gives the property the value. References are appended to `pending`. Throws Exception when the value does
// not fit, saying what was expected; the property is then unchanged.
void ApplyValue(const PropertyTarget& target, const Value& value, const Document& document,
                std::vector<PendingReference>& pending);
// A value inside a collection that its item did not take. The item keeps it, and it is written again where it
// stood, unless the item has got another value for it.
struct UnreadValue {
  QByteArray path;             // "Columns[1].Foreign"
  std::exception_ptr refused;  // none: the item has no such property
};
// All of a property's collection, and of those inside of its items.
std::vector<UnreadValue> UnreadValues(const PropertyTarget& target);
// Looks the references up among the root's components; those that cannot be found are returned. Items of
// collections keep theirs.
std::vector<PendingReference> ResolveReferences(TComponent& root, std::vector<PendingReference> pending);
// Looks once more for what the items of a property's collection could not refer to.
void ResolveKept(TComponent& root, const PropertyTarget& target);
// What the items of a property's collection kept of values that they have got anew is gone.
void ForgetReplaced(const PropertyTarget& target);
// One property from its text in a form file, references included. Throws like ApplyValue, except for what
// items of a collection keep.
void ApplyNow(TComponent& root, const PropertyTarget& target, const Value& value, const Document& document);

// The value of a property as a form file holds it; nothing for a reference to another form.
std::optional<Value> ValueOf(const TPersistent& instance, const TPropInfo& prop, const Document& document);

struct StoredValue {
  QByteArray path;
  Value value;
  bool stored = true;  // false: at default, a form file leaves it out
};
// Every published and streamed property of the instance in form-file order. `all`: those at default too.
std::vector<StoredValue> PropertyValues(const TPersistent& instance, const Document& document, bool all);

}  // namespace forms
