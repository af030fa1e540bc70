// Components that keep names instead of references.
#pragma once
class QString;
class TComponent;

class INameFollower {
 public:
  virtual ~INameFollower() = default;
  // A component has a new name: called when the follower asked it, or its owner, for free notification.
  virtual void ComponentRenamed(TComponent& component, const QString& oldName) = 0;
};
