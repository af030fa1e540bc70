// How a collection in a file follows an edit.
#pragma once
#include "forms/Value.h"

namespace forms {

// The collection as the file has it, with what the edit changed. `before` and `after` are how it would be
// written on either side of the edit. Items that the edit left alone, and what it left alone of others, keep
// their order, their words and what need not be written.
Value PatchedCollection(const Value& node, const Value& before, const Value& after);

}  // namespace forms
