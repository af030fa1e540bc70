// What is known of a command while its action runs.
#pragma once
#include "ide/FormSession.h"

struct FormSession::Pending {
  struct Captured {
    TComponent* component;
    forms::Object* object;
    QString name;
    forms::Snapshot values;
  };
  std::vector<Captured> captured;
  QHash<const TComponent*, int> index;
  std::vector<std::pair<TControl*, QRect>> bounds;  // of controls that were moved on the way
  QSet<const TControl*> moved;
  std::vector<StructureChange> structure;
  QSet<const forms::Object*> created;
  std::vector<forms::Object*> selectionBefore;
  int depth = 0;
};
