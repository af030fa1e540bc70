// Finds what a command changes while its action runs. Components tell of a change before it happens, so their
// values from before can still be taken down; the cost follows what changes, not the size of the form.
#pragma once
#include <map>
#include "ide/BoundForm.h"

class CommandRecorder {
 public:
  enum class Kind {
    Action,  // a Run; it ends when the action returns
    Live,    // goes on while somebody drags
    Stray,   // changes that nobody runs a command for
  };
  CommandRecorder(BoundForm& form, Kind kind, std::vector<forms::Object*> selection);

  Kind TheKind() const { return kind_; }

  // The component is going to change.
  void Capture(TComponent& component);
  void CaptureBounds(TControl& control);
  // A control came to another parent or place in the order.
  void NotePlaced(TControl& control);
  // Plain code made or frees a component.
  void NoteCame(TComponent& component);
  void NoteGoing(TComponent& component);
  // An editor says that something changed: what nobody told of is looked for when the command ends.
  void NoteModified() { modified_ = true; }

  // A new component's object in the document; its values are taken down when the command ends.
  void Enter(TComponent& component, forms::Object& parent);
  // An object with its text, which is only patched. Gives the component it becomes.
  TComponent* Insert(std::unique_ptr<forms::Object> object, forms::Object& parent, int index);
  // The `count` inserted last may refer to each other.
  void SettleInserted(std::size_t count);
  void Delete(TComponent& component);
  // What the component's object says beyond its class; nothing takes the property out.
  void PutStored(TComponent& component, QByteArrayView name, std::optional<forms::Property> property);

  // Throws when an inherited component was renamed: its name is what ties it to its ancestor.
  void RequireOwnNames() const;
  // Every control back to where it was before the command.
  void RestoreBounds();
  // What the action changed so far, with the document patched accordingly; ends the recording.
  std::unique_ptr<Command> Take();
  // Whatever was said to change.
  std::vector<TComponent*> Captured() const;

 private:
  struct Before {
    TComponent* component;
    forms::Object* object;
    QString name;
    forms::Snapshot values;
  };
  // What the action itself did to a control's bounds, as opposed to what followed from it.
  struct ByHand {
    bool left = false, top = false, width = false, height = false;
    std::optional<QRect> from;  // before a change by hand that goes on
    void Settle(const QRect& now);
  };
  void Adopt(TComponent& component);
  void KeepLostActions();
  void CaptureSilent();
  void LearnInherited();
  void TakeArrivals();
  void TakePositions(std::vector<PositionChange>& positions);
  void TakePlaces();
  void TakeNestedPlaces();
  // Puts the object behind the sibling that its component now follows.
  void TakePlace(TComponent& component, TComponent& parent, const std::vector<TComponent*>& siblings,
                 const QSet<const TComponent*>& moving);
  void TakeBounds();
  void MarkFollowing(std::vector<forms::ValueChange>& values, const TControl& control);
  std::optional<ComponentChange> TakeChange(Before& before);
  void DescribeNew(forms::Object& object);

  BoundForm& form_;
  Kind kind_;
  std::vector<forms::Object*> selectionBefore_;
  std::vector<Before> captured_;
  QSet<const TComponent*> index_;                    // of what is captured
  std::vector<std::pair<TControl*, QRect>> bounds_;  // of controls that were moved on the way
  QHash<const TControl*, std::size_t> moved_;        // where they stand in `bounds_`
  QHash<const TControl*, ByHand> byHand_;
  std::vector<TComponent*> arrived_;   // made by the action itself
  std::vector<TComponent*> orphaned_;  // stood inside something that the action freed
  std::vector<TControl*> placed_;
  std::vector<StructureChange> structure_;
  std::map<const forms::Object*, std::vector<forms::ValueChange>> stored_;
  QSet<const forms::Object*> created_;
  QSet<const forms::Object*> inserted_;
  bool modified_ = false;
};
