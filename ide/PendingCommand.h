// What is known of a command while its action runs.
#pragma once
#include "ide/FormSession.h"

struct FormSession::Pending {
  struct Captured {
    TComponent* component;
    forms::Object* object;
    QString name;
    forms::Snapshot values;
  };
  enum class Kind {
    Action,  // a Run; it ends when the action returns
    Live,    // goes on while somebody drags
    Stray,   // changes that nobody runs a command for
  } kind = Kind::Action;
  std::vector<Captured> captured;
  QSet<const TComponent*> index;
  std::vector<std::pair<TControl*, QRect>> bounds;  // of controls that were moved on the way
  QHash<const TControl*, std::size_t> moved;        // where they stand in `bounds`
  // What the action itself did to a control's bounds, as opposed to what followed from it.
  struct ByHand {
    bool left = false, top = false, width = false, height = false;
    std::optional<QRect> from;  // before a change by hand that goes on
    void Settle(const QRect& now) {
      if (!from) return;
      left |= now.left() != from->left();
      top |= now.top() != from->top();
      width |= now.width() != from->width();
      height |= now.height() != from->height();
      from.reset();
    }
  };
  QHash<const TControl*, ByHand> byHand;
  std::vector<TComponent*> arrived;   // made by the action itself
  std::vector<TComponent*> orphaned;  // stood inside something that the action freed
  std::vector<TControl*> placed;      // came to another parent or place in the order
  std::vector<StructureChange> structure;
  QSet<const forms::Object*> created;
  QSet<const forms::Object*> inserted;  // came with their text, which is only patched
  std::vector<forms::Object*> selectionBefore;
  bool announced = false;  // a component told of a change
  bool modified = false;   // an editor said that it changed something
};
