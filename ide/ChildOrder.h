// The order of the children that a form and its ancestor have in common. A program makes what the ancestor
// has first, then what the form has of its own behind it; a place behind the class ("TButton [2]") moves a
// child there when it is its turn.
#pragma once
#include <functional>

#include "forms/FormTree.h"

// The children as they stand when all of them are loaded. The order of the others when nobody knows the
// origin.
std::vector<forms::Object*> LoadedOrder(const forms::Object& parent);
// Puts what is only implied where it is when all is loaded. What the file writes keeps its order.
void PlaceImplied(forms::Object& parent);

// A place that a child is given or loses.
struct PositionChange {
  forms::Object* object = nullptr;
  std::optional<std::int64_t> before, after;
  bool headerChangedBefore = false;
  void Apply(bool redo) const;
};
// Gives the children the places by which they stand as they do now, when the places that they have lead
// elsewhere. Controls and others have an order of their own each.
std::vector<PositionChange> GivePositions(forms::Object& parent,
                                          const std::function<bool(const forms::Object&)>& isControl);
