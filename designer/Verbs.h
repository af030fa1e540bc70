// The verbs of the selected component, as its editor offers them.
#pragma once
#include <functional>
#include <vector>

#include "ide/FormSession.h"

struct Verb {
  QString text;               // with the key of a menu
  QString problem;            // why it cannot be run just now; empty: it can
  std::function<void()> run;  // one command, or none; throws like FormSession::Run. Null: a separator
};
// None where not exactly one component is selected. A verb can be run as long as the selection is the same.
std::vector<Verb> VerbsOfSelection(FormSession& session);
