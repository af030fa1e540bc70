// What a class publishes, in words: for scripts, other editors and documentation.
#pragma once
#include <QStringList>
#include <optional>

#include "designintf/DesignRegistry.h"

struct PropertyDescription {
  QString name, type, kind;
  std::optional<QString> defaultText;  // nothing where it is always stored, or no text
  QString stored;                      // "always", "not default", "by rule" or "never"
  QString doc;
  QString editor;  // empty when inspectors hide it
  QStringList attributes;
  QStringList values;  // that it may be chosen from
};

struct ClassDescription {
  QString name;
  QStringList ancestors;  // the nearest first
  QString page;           // of the palette; empty when it is on none
  QString doc;
  QString editor;     // of components
  QStringList verbs;  // of a new one
  std::vector<PropertyDescription> properties, events;
};

// Known classes, actions, what they descend from and the values that they publish; in order of name.
std::vector<const TClass*> DescribedClasses(const DesignRegistry& registry);
// Makes one of the class where that is possible, and asks its editors.
ClassDescription Describe(const TClass& cls, DesignRegistry& registry);
