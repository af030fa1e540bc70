// What the menu of a component offers: the verbs of its editor, each to be run as one step.
#pragma once
#include "designintf/DesignRegistry.h"

struct Verb {
  QString text;               // with the key of a menu
  QString problem;            // why it cannot be run just now; empty: it can
  std::function<void()> run;  // throws what the editor throws. Null: a separator
};
// Does something to a component as one step that can be undone under that text.
using VerbRunner = std::function<void(const QString& text, const std::function<void()>& action)>;

// In the editor's order. They can be run as long as the component and the designer are there.
std::vector<Verb> VerbsOf(const DesignRegistry& registry, TComponent& component, IDesigner& designer,
                          const VerbRunner& runner);
// Who made the editor, as far as it makes editors of components, too; null for one that was made by hand.
const DesignRegistry* RegistryOf(const TComponentEditor& editor);
