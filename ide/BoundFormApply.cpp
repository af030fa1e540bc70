// Undo and redo: a command's values and structure put into the document and its components.
#include "ide/BoundForm.h"
#include "ide/BoundsCheck.h"
#include "ide/StandIns.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"

void BoundForm::Apply(Command& command, bool redo) {
  const auto guard = Freeze();
  if (!redo)
    for (const PositionChange& p : command.positions) p.Apply(false);
  if (redo)
    for (StructureChange& s : command.structure) ApplyStructure(s, true);
  else
    for (auto it = command.structure.rbegin(); it != command.structure.rend(); ++it)
      ApplyStructure(*it, false);
  // Names first: values may refer to them.
  for (ComponentChange& c : command.components) {
    if (c.nameBefore == c.nameAfter) continue;
    map_.ComponentOf(*c.object)->SetName(redo ? c.nameAfter : c.nameBefore);
    SetName(c, redo);
  }
  for (ComponentChange& c : command.components) ApplyValues(c, redo);
  for (StructureChange& s : command.structure)
    if (!s.held) Settle(*s.object);
  if (!command.structure.empty()) Reconnect();
  for (const ComponentChange& c : command.components)
    if (const TComponent* component = map_.ComponentOf(*c.object)) TakeFingerprint(*component, *c.object);
  if (redo)
    for (const PositionChange& p : command.positions) p.Apply(true);
}

void BoundForm::SetName(ComponentChange& change, bool redo) {
  forms::Object& object = *change.object;
  const TComponent* component = map_.ComponentOf(object);
  object.name = component->Name().toUtf8();
  object.className = redo ? change.classAfter : change.classBefore;
  object.headerChanged = redo || change.headerChangedBefore;
  if (component == root_.get()) root_->SetStreamClassName(object.className);
}

// What came back before everything else was in place: components it refers to may have come later, and its
// surroundings may have changed its bounds since.
void BoundForm::Settle(forms::Object& object) {
  if (TComponent* c = map_.ComponentOf(object))
    for (const forms::Property& p : object.properties) {
      const forms::PropertyTarget target = forms::FindTarget(*c, p.Name());
      if (!target.Found() || !target.prop) continue;
      if (target.prop->IsPart()) forms::ResolveKept(*root_, target);
      if (!IsComponentRef(*target.prop) && !IsBoundsProperty(p.Name())) continue;
      try {
        forms::ApplyNow(*root_, target, document_.Read(p), document_);
      } catch (const Exception&) {
        // A reference to something that is not on this form; the reader has reported it.
      }
    }
  for (const auto& child : object.children) Settle(*child);
}

void BoundForm::ApplyValues(ComponentChange& change, bool redo) {
  TComponent* component = map_.ComponentOf(*change.object);
  const auto set = [&](const forms::ValueChange& v) {
    // Only the document's node was exchanged.
    if (v.before.type == forms::ValueType::Nil && v.after.type == forms::ValueType::Nil) return;
    const forms::PropertyTarget target = forms::FindTarget(*component, v.path);
    if (!target.Found()) return;
    try {
      forms::ApplyNow(*root_, target, redo ? v.after : v.before, document_);
    } catch (const Exception&) {
      // The document has the value all the same; one setter that refuses does not keep the others back.
    }
  };
  for (const forms::ValueChange& v : change.values) set(v);
  // Whatever sized itself on the way gets its place back.
  for (const forms::ValueChange& v : change.values)
    if (IsBoundsProperty(v.path)) set(v);
  if (redo)
    forms::RepatchObject(*change.object, change.values);
  else
    forms::UnpatchObject(*change.object, change.values);
  LookAgain(*component, document_, *change.object);
}

void BoundForm::ApplyStructure(StructureChange& s, bool redo) {
  if (s.kind == StructureChange::Kind::Move)
    MoveObject(s, redo);
  else if ((s.kind == StructureChange::Kind::Insert) == redo)
    InsertObject(s);
  else
    TakeObject(s);
}

void BoundForm::NoteDangling(const std::vector<forms::Finding>& findings) {
  dangling_ = dangling_ || std::any_of(findings.begin(), findings.end(), [](const forms::Finding& f) {
                return f.severity == forms::Severity::Warning;
              });
}

// As it would be when the file is read again.
void BoundForm::Reconnect() {
  if (!dangling_) return;
  const auto frozen = Freeze();
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
