// What a command, an undo or a redo did to the open form, for views that want to do no more than follows.
#pragma once
#include <vector>

class TComponent;

struct FormChange {
  std::vector<TComponent*> values{};   // a value of these changed, their bounds included
  std::vector<TComponent*> renamed{};  // or have another class name
  bool structure = false;              // components came, went, moved or were made anew: ask for all of them
};
