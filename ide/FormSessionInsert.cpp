// Objects that come with their text: pasted, duplicated.
#include <QScopedValueRollback>

#include "ide/PendingCommand.h"
#include "ide/PictureBudget.h"
#include "ide/StandIns.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"

namespace {
void RequireDepth(const forms::Object& object, const forms::Object& parent) {
  int depth = object.Levels();
  for (const forms::Object* p = &parent; p; p = p->parent) ++depth;
  if (depth > forms::MaxDepth)
    throw EComponentError(FormSession::tr("%1 would be nested more than %2 deep there.")
                              .arg(QString::fromUtf8(object.name))
                              .arg(forms::MaxDepth));
}

qsizetype DataIn(const forms::Document& document, const forms::Object& object) {
  qsizetype size = 0;
  for (const forms::Property& p : object.properties)
    if (const forms::Value v = document.Read(p); v.type == forms::ValueType::Binary) size += v.bytes.size();
  for (const auto& child : object.children) size += DataIn(document, *child);
  return size;
}

void CollectObjects(const forms::Object& object, QSet<const forms::Object*>& out) {
  out.insert(&object);
  for (const auto& child : object.children) CollectObjects(*child, out);
}
}  // namespace

std::vector<TComponent*> FormSession::Insert(const forms::Document& from,
                                             const std::vector<Insertion>& insertions) {
  std::vector<TComponent*> made;
  Run(tr("Insert"), {}, [&] {
    std::vector<std::unique_ptr<forms::Object>> objects;
    qsizetype data = 0;
    for (const Insertion& i : insertions) {
      RequireDepth(*i.object, *i.parent);
      data += DataIn(from, *i.object);
      objects.push_back(from.Detached(*i.object, document_));
    }
    if (data > 0) RequireRoomFor(insertions, objects, data);
    const std::size_t first = pending_->structure.size();
    for (std::size_t i = 0; i < insertions.size(); ++i) {
      StructureChange s;
      s.object = objects[i].get();
      s.parent = insertions[i].parent;
      s.index = NewChildIndex(*s.parent, IsVisual(*s.object));
      s.parent->Insert(s.index, std::move(objects[i]));
      CollectObjects(*s.object, pending_->inserted);
      pending_->structure.push_back(std::move(s));
      // As the text says; nothing around it moves yet.
      const QScopedValueRollback structuring(structuring_, true);
      const QScopedValueRollback frozen(applying_, true);
      made.push_back(MakeComponents(pending_->structure.back()));
    }
    {
      // One may refer to another that came later.
      const QScopedValueRollback frozen(applying_, true);
      for (std::size_t i = first; i < pending_->structure.size(); ++i) Settle(*pending_->structure[i].object);
    }
    for (TComponent* c : made) TakeIntoLayout(*c);
  });
  return made;
}

// Before anything is decoded, as when a file is read.
void FormSession::RequireRoomFor(const std::vector<Insertion>& insertions,
                                 std::vector<std::unique_ptr<forms::Object>>& objects, qsizetype data) {
  const auto putIn = [&] {
    for (std::size_t i = 0; i < objects.size(); ++i)
      insertions[i].parent->Insert(INT_MAX, std::move(objects[i]));
  };
  const auto takeOut = [&] {
    for (std::size_t i = objects.size(); i-- > 0;)
      objects[i] = insertions[i].parent->Take(static_cast<int>(insertions[i].parent->children.size()) - 1);
  };
  constexpr qsizetype Large = qsizetype{1} << 20;
  putIn();
  try {
    RequirePictureBudget(document_, true);
    if (data > Large) RequireReadable(Bytes().size());
  } catch (...) {
    takeOut();
    throw;
  }
  takeOut();
}

// An aligned control takes its strip now, and the others make room.
void FormSession::TakeIntoLayout(TComponent& component) {
  auto* control = As<TControl>(&component);
  TWinControl* parent = control ? control->Parent() : nullptr;
  if (!parent || control->Align() == TAlign::alNone) return;
  const QScopedValueRollback structuring(structuring_, true);
  const int index = parent->ControlIndex(control);
  {
    const QScopedValueRollback frozen(applying_, true);
    control->SetParent(nullptr);
  }
  control->SetParent(parent);
  const QScopedValueRollback frozen(applying_, true);
  parent->SetControlIndex(control, index);
}

void FormSession::NoteDangling(const std::vector<forms::Finding>& findings) {
  dangling_ = dangling_ || std::any_of(findings.begin(), findings.end(), [](const forms::Finding& f) {
                return f.severity == forms::Severity::Warning;
              });
}

// A reference that the file had all the time finds a component that has come with that name, as it would when
// the file is read again.
void FormSession::Reconnect() {
  if (!dangling_) return;
  const QScopedValueRollback frozen(applying_, true);
  const std::function<void(const forms::Object&)> walk = [&](const forms::Object& object) {
    if (TComponent* c = map_.ComponentOf(object))
      for (const forms::Property& p : object.properties) {
        const forms::PropertyTarget target = forms::FindTarget(*c, p.Name());
        if (!target.prop || !IsComponentRef(*target.prop) || GetObjectProp(*target.instance, *target.prop))
          continue;
        try {
          forms::ApplyNow(*root_, target, document_.Read(p), document_);
        } catch (const Exception&) {
          // Still nothing there.
        }
      }
    for (const auto& child : object.children) walk(*child);
  };
  walk(document_.Root());
}
