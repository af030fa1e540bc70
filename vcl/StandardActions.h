// Actions that know what they do. They differ in nothing but name, category and purpose, so they are rows of
// one table; each row is a class of its own.
#pragma once
#include <vector>

#include "vcl/Action.h"

// What the class's entry in the list of actions says.
struct TStandardActionRow {
  const char* Name;
  const char* Category;
  const char* Purpose;
};
const std::vector<TStandardActionRow>& StandardActionRows();
// The class of each row, in the same order.
const std::vector<const TClass& (*)()>& StandardActionClasses();
