// Finds components that changed without telling. Classes promise that their setters tell (PromiseTelling); of
// the components of all others one number is kept, made of the values that a file would hold. So a form of
// classes that promise costs nothing here.
#pragma once
#include <QHash>

#include "forms/FormReader.h"

class Fingerprints {
 public:
  static bool Needs(const TComponent& component);
  // The component is as its object in the document says.
  void Take(const TComponent& component, const forms::Object& object, const forms::Document& document);
  // Whether it changed since. Never one that needs no number.
  bool Differs(const TComponent& component, const forms::Object& object,
               const forms::Document& document) const;
  // Those that changed since. Objects whose components are gone are forgotten.
  std::vector<const forms::Object*> Differing(const forms::ObjectMap& map, const forms::Document& document);
  void Clear() { prints_.clear(); }

 private:
  QHash<const forms::Object*, std::size_t> prints_;
};
