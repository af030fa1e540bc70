// One undoable step of an open form, in terms of its document. Objects of the document are the identities
// that outlive components: a deleted component comes back as a new one, made from the same object.
#pragma once
#include <algorithm>

#include "forms/Snapshot.h"
#include "ide/ChildOrder.h"

// Values and name of one component.
struct ComponentChange {
  forms::Object* object = nullptr;
  std::vector<forms::ValueChange> values;
  QString nameBefore, nameAfter;  // equal when it was not renamed
  QByteArray classBefore, classAfter;
  bool headerChangedBefore = false;
};

// An object that came, went or moved, with everything inside it.
struct StructureChange {
  enum class Kind { Insert, Remove, Move } kind = Kind::Insert;
  forms::Object* object = nullptr;
  forms::Object* parent = nullptr;
  int index = 0;
  forms::Object* newParent = nullptr;  // of a move
  int newIndex = 0;
  std::unique_ptr<forms::Object> held;  // while it is not in the document
};

struct Command {
  QString text;
  std::vector<StructureChange> structure;
  std::vector<ComponentChange> components;
  std::vector<PositionChange> positions;  // what follows from the structure in derived forms
  std::vector<forms::Object*> selectionBefore, selectionAfter;
  // Nothing that the file would show.
  bool Empty() const {
    return structure.empty() &&
           std::all_of(components.begin(), components.end(), [](const ComponentChange& c) {
             return c.nameBefore == c.nameAfter &&
                    std::all_of(c.values.begin(), c.values.end(),
                                [](const forms::ValueChange& v) { return !v.nodeBefore && !v.nodeAfter; });
           });
  }
};
