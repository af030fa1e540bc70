// Content that is kept as it is, though its owner cannot use it.
#pragma once
#include <QString>

class IContentProblem {
 public:
  virtual ~IContentProblem() = default;
  // What keeps its owner from using it; empty when nothing does.
  virtual QString ContentProblem() const = 0;
};
