#include "ide/operations/FormText.h"

#include "ide/operations/Places.h"
#include "rtl/ClassRegistry.h"
#include "rtl/PropAccess.h"

using forms::Object;
using forms::ObjectKind;
using forms::Value;

namespace {
// Changes values inside lists and collections, too. True when one was changed.
bool ChangeValues(Value& v, const std::function<bool(Value&)>& change) {
  bool changed = change(v);
  for (Value& item : v.items) changed = ChangeValues(item, change) || changed;
  for (forms::CollectionItem& item : v.collection)
    for (forms::NamedValue& p : item.properties) changed = ChangeValues(p.value, change) || changed;
  return changed;
}
}  // namespace

namespace {
// A copy that says what its ancestors say, too.
class Whole {
 public:
  Whole(const forms::Document& from, const Object& top, forms::Document& target)
      : from_(from), target_(target) {
    // Those of a frame's own file stay there.
    for (const forms::Origin* o : top.Origins())
      if (o->object->parent) ancestors_.insert(o->document);
  }
  std::unique_ptr<Object> Of(const Object& object) const {
    auto own = from_.Detached(object, target_);
    if (ancestors_.isEmpty()) return own;
    auto whole = std::make_unique<Object>();
    whole->kind = own->kind;
    whole->name = own->name;
    whole->className = own->className;
    bool inherited = false;
    for (const forms::Origin* o : object.Origins()) {
      if (!ancestors_.contains(o->document)) continue;
      auto theirs = o->document->Detached(*o->object, target_);
      if (!std::exchange(inherited, true)) whole->kind = theirs->kind;
      Take(*whole, *theirs);
    }
    Take(*whole, *own);
    for (const auto& child : object.children)
      if (child->IsWritten() || SaysMore(*child)) whole->Insert(INT_MAX, Of(*child));
    return whole;
  }

 private:
  // A part of a frame of which only its own file says something comes with the frame.
  bool SaysMore(const Object& object) const {
    for (const forms::Origin* o : object.Origins())
      if (ancestors_.contains(o->document) && o->object->IsWritten()) return true;
    return std::any_of(object.children.begin(), object.children.end(),
                       [this](const auto& child) { return SaysMore(*child); });
  }
  // In the place of what is said already, else behind it.
  static void Take(Object& whole, Object& theirs) {
    for (forms::Property& p : theirs.properties)
      if (forms::Property* there = whole.Find(p.Name()))
        *there = std::move(p);
      else
        whole.properties.push_back(std::move(p));
  }

  const forms::Document& from_;
  forms::Document& target_;
  QSet<const forms::Document*> ancestors_;
};
}  // namespace

forms::Document ObjectsOfComponents(const FormSession& session, const std::vector<TComponent*>& components) {
  const forms::Document& from = session.Document();
  forms::Dialect style = from.Style();
  style.eol = "\n";
  forms::Document objects = forms::Document::Create({}, {}, style);
  for (const TComponent* c : components) {
    const Object& one = *session.ObjectOf(*c);
    auto object = Whole(from, one, objects).Of(one);
    object->position.reset();
    objects.Root().Insert(INT_MAX, std::move(object));
  }
  return objects;
}

QString TextOfComponents(const FormSession& session, const std::vector<TComponent*>& components) {
  const forms::Document objects = ObjectsOfComponents(session, components);
  QByteArray text;
  for (const auto& object : objects.Root().children) text += objects.ObjectText(*object);
  return QString::fromUtf8(text);
}

namespace {
// What leaves out what an ancestor says would be half of something elsewhere.
void RequireWhole(const forms::Document& document, const Object& object) {
  if (object.kind == ObjectKind::Inherited)
    throw forms::EFormError(
        OperationText("%1 is inherited: without its ancestor form it cannot stand in another one")
            .arg(QString::fromUtf8(object.name)),
        document.Where(object));
  // A frame's parts come from the frame.
  if (object.kind == ObjectKind::Inline) return;
  for (const auto& child : object.children) RequireWhole(document, *child);
}
}  // namespace

forms::Document ObjectsOfText(const QString& text) {
  try {
    forms::Document objects = forms::Document::ParseObjects(text.toUtf8());
    for (const auto& object : objects.Root().children) {
      RequireWhole(objects, *object);
      object->position.reset();
    }
    return objects;
  } catch (const forms::EFormError& e) {
    throw forms::EFormError(OperationText("This text is no form text. %1").arg(e.Text()), e.Where());
  }
}

// --- Names

namespace {
using Names = QHash<QByteArray, QByteArray>;  // in lower case -> the new one

class Renamer {
 public:
  Renamer(forms::Document& objects, const FormSession& session) : objects_(objects), session_(session) {}

  void Run() {
    for (const auto& object : objects_.Root().children) {
      own_.emplace_back();
      Rename(*object, own_.back());
      for (const auto& [old, now] : own_.back().asKeyValueRange())
        if (!all_.contains(old)) all_.insert(old, now);
    }
    for (std::size_t i = 0; i < own_.size(); ++i) Follow(*objects_.Root().children[i], own_[i], {});
  }

 private:
  bool IsTaken(const QByteArray& name) const {
    return given_.contains(name.toLower()) || session_.GetComponent(QString::fromUtf8(name));
  }
  QByteArray FreeName(QByteArray base) {
    while (base.size() > 1 && base.back() >= '0' && base.back() <= '9') base.chop(1);
    for (int& i = next_[base.toLower()];;)
      if (const QByteArray name = base + QByteArray::number(++i); !IsTaken(name)) return name;
  }
  // Without "T", as a new component is called.
  static QByteArray BaseOf(const QByteArray& className) {
    return className.size() > 1 && className[0] == 'T' ? className.mid(1) : className;
  }

  void Rename(Object& object, Names& names) {
    // A template's %NAME% becomes a name when the template is used.
    if (!object.name.contains('%')) {
      const QByteArray old(object.name.constData(), object.name.size());
      if (old.isEmpty())
        object.name = FreeName(BaseOf(object.className));
      else if (IsTaken(old))
        object.name = FreeName(old);
      given_.insert(object.name.toLower());
      // Whatever keeps its name is in the list, too: the nearest of that name is meant.
      if (!old.isEmpty() && !names.contains(old.toLower())) names.insert(old.toLower(), object.name);
    }
    // What stands in a frame has names of its own.
    if (object.kind == ObjectKind::Inline) return;
    for (const auto& child : object.children) Rename(*child, names);
  }

  void Follow(Object& object, const Names& own, QSet<QByteArray> hidden) {
    // A frame and its parts know each other by names of their own.
    if (object.kind == ObjectKind::Inline) Hide(object, hidden);
    const TClass* cls = FindClass(object.className);
    for (forms::Property& p : object.properties) {
      if (cls && !MayRefer(*cls, p.Name())) continue;
      Value v = objects_.Read(p);
      const bool changed = ChangeValues(v, [&](Value& reference) {
        if (reference.type != forms::ValueType::Ident) return false;
        const qsizetype dot = reference.bytes.indexOf('.');
        const QByteArray first = (dot < 0 ? reference.bytes : reference.bytes.first(dot)).toLower();
        if (hidden.contains(first)) return false;
        const QByteArray now = own.value(first, all_.value(first));
        if (now.isEmpty() || now.toLower() == first) return false;
        reference.bytes = now + (dot < 0 ? QByteArray() : reference.bytes.mid(dot));
        return true;
      });
      if (!changed) continue;
      v.Own();
      p = objects_.MakeProperty(p.Name(), std::move(v));
    }
    for (const auto& child : object.children) Follow(*child, own, hidden);
  }
  static void Hide(const Object& frame, QSet<QByteArray>& hidden) {
    for (const auto& child : frame.children) {
      hidden.insert(child->name.toLower());
      if (child->kind != ObjectKind::Inline) Hide(*child, hidden);
    }
  }

  // Only where a property is known to be something else an identifier cannot be a component.
  static bool MayRefer(const TClass& cls, QByteArrayView path) {
    const TClass* at = &cls;
    for (;;) {
      const qsizetype dot = path.indexOf('.');
      const TPropInfo* prop = at->FindProp(dot < 0 ? path : path.first(dot));
      if (!prop) return true;
      if (prop->Kind() != TTypeKind::tkClass) return false;
      if (dot < 0) return true;
      at = &prop->PropType->ClassType();
      path = path.sliced(dot + 1);
    }
  }

  forms::Document& objects_;
  const FormSession& session_;
  std::vector<Names> own_;  // of each object and what stands in it
  Names all_;
  QSet<QByteArray> given_;
  QHash<QByteArray, int> next_;
};
}  // namespace

void MakeNamesFree(forms::Document& objects, const FormSession& session) { Renamer(objects, session).Run(); }
