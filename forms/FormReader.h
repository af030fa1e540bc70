// Makes components from a document; what is inherited has what its origins say, and then what the document
// says. Whatever is not understood is left in the document, reported as a finding, and written back untouched
// when the form is saved.
#pragma once
#include <unordered_map>

#include "forms/ClassNotes.h"

namespace forms {

enum class Severity : std::uint8_t { Note, Warning, Error };

struct Finding {
  Severity severity = Severity::Note;
  Location where;
  QString text;
  bool unknownName = false;  // a class, property or event that no loaded package has
  bool refusedData = false;  // a picture or other binary data that its class does not take
  bool missingFile = false;  // of an ancestor or a frame
  // Whose value is refused, and which ("LED.ActiveColor"); else null. The object is for telling it from
  // others alone.
  const Object* object = nullptr;
  QByteArray property{};
};

// Which component stands for which object of the document.
class ObjectMap {
 public:
  void Add(TComponent& component, Object& object) {
    objects_.insert(&component, &object);
    components_.insert(&object, &component);
  }
  void Remove(TComponent& component) {
    if (Object* object = objects_.take(&component)) components_.remove(object);
  }
  void Clear() {
    objects_.clear();
    components_.clear();
  }
  Object* ObjectOf(const TComponent& component) const { return objects_.value(&component); }
  TComponent* ComponentOf(const Object& object) const { return components_.value(&object); }
  void Reserve(qsizetype count) {
    objects_.reserve(count);
    components_.reserve(count);
  }

 private:
  QHash<const TComponent*, Object*> objects_;
  QHash<const Object*, TComponent*> components_;
};

class FormReader {
 public:
  // Makes the component for an object whose class is not registered, or for the root.
  using Maker = std::function<TComponent*(const Object&, TComponent* owner)>;

  FormReader(Document& document, ObjectMap& map) : document_(document), map_(map) {}
  void SetRootMaker(Maker maker) { makeRoot_ = std::move(maker); }
  void SetUnknownMaker(Maker maker) { makeUnknown_ = std::move(maker); }
  // Makes the components of registered classes; what throws is reported, and another stands in for it. Null
  // where the object needs a stand-in all the same.
  using Creator = std::function<TComponent*(const TClass&, const Object&, TComponent* owner)>;
  void SetCreator(Creator creator) { create_ = std::move(creator); }
  void SetDesigning(bool designing) { designing_ = designing; }

  // The whole form; the caller owns the root. Throws EFormError when memory runs out.
  std::unique_ptr<TComponent> ReadRoot();
  // An object (and everything in it) below an existing component.
  TComponent* ReadChild(Object& object, TComponent& owner, TComponent& parent);

  const std::vector<Finding>& Findings() const { return findings_; }

 private:
  std::unique_ptr<TComponent> MakeRoot(Object& object);
  TComponent* Create(Object& object, TComponent* owner);
  void ReadInto(Object& object, TComponent& component, TComponent* owner);
  void ReadOrigins(const Object& object, TComponent& component);
  void ReadProperties(const Object& object, TComponent& component, bool reportUnknown);
  void ReportUnknown(QByteArrayView name, const Property& property, const Object& object);
  void ReportUnread(const PropertyTarget& target, const Property& property, const Object& object);
  void ReportContent(const PropertyTarget& target, const Property& property, const Object& object);
  // Reads, and tells of what is refused. `data`: what is refused then is data.
  template <class F>
  void Guarded(const Property& property, const Object& object, F read, bool data = false);
  void ReportName(const EUnknownName& error, const Property& property, const Object& object);
  void Apply(KnownProperty* known, const PropertyTarget& target, const Property& property);
  void Finish(TComponent& root);
  void Report(Severity severity, Location where, QString text, bool unknownName = false);
  void ReportRefused(Severity severity, const Object& object, const Property& property, QString text);

  Document& document_;
  const Document* from_ = &document_;  // the one that is read now: an origin's or its own
  ObjectMap& map_;
  Maker makeRoot_;
  Maker makeUnknown_;
  Creator create_;
  bool standIn_ = false;  // the component created last stands for an unknown class
  bool designing_ = false;
  std::vector<Finding> findings_;
  std::vector<PendingReference> pending_;
  std::vector<TComponent*> loading_;
  QHash<QByteArray, const TClass*> classes_;
  std::unordered_map<const TClass*, ClassNotes> notes_;
  Value value_;
  // What is being read.
  const Object* atObject_ = nullptr;
  const Property* atProperty_ = nullptr;
};

}  // namespace forms
