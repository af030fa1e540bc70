// The verbs of the selected component, as its editor offers them.
#pragma once
#include "designintf/ComponentVerbs.h"
#include "ide/FormSession.h"

// None where not exactly one component is selected. A verb can be run as long as the selection is the same.
std::vector<Verb> VerbsOfSelection(FormSession& session);
