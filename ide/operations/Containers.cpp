#include "ide/operations/Containers.h"

#include "ide/BoundsCheck.h"
#include "rtl/Exceptions.h"
#include "vcl/TabOrder.h"

TWinControl& ContainerAt(const FormSession& session, QPoint formPoint,
                         const std::vector<TComponent*>& dragged) {
  TWinControl* at = &session.Form();
  TWinControl* found = at;
  QPoint inside = formPoint;
  while (at) {
    // As they are seen, the topmost first; what is dragged is out of the way.
    TWinControl* next = nullptr;
    for (auto it = at->Controls().rbegin(); !next && it != at->Controls().rend(); ++it) {
      auto* control = As<TWinControl>(*it);
      if (control && control->BoundsRect().contains(inside) &&
          std::find(dragged.begin(), dragged.end(), control) == dragged.end())
        next = control;
    }
    if (!next) break;
    inside -= next->BoundsRect().topLeft() + next->ClientRect().topLeft();
    at = next;
    if (CanHold(session, *at)) found = at;
  }
  return *found;
}

namespace {
void RequireMovable(const FormSession& session, const TComponent& component, const TWinControl& container) {
  const auto* control = As<TControl>(&component);
  if (!control || !control->Parent() || !HasPlace(session, component))
    throw EComponentError(OperationText("%1 stands in no container.").arg(component.Name()));
  if (!CanHold(session, container))
    throw EComponentError(OperationText("%1 takes no controls.").arg(container.Name()));
  RequireOwn(session, component, OperationText("moved to another container"));
  if (control->Align() != TAlign::alNone)
    throw EComponentError(WhatDecidesBounds(*control) + u' ' + OperationText("Change Align first."));
  int depth = session.ObjectOf(component)->Levels();
  for (const TControl* c = &container; c; c = c->Parent()) {
    if (c == control)
      throw EComponentError(OperationText("%1 cannot be placed inside itself.").arg(component.Name()));
    ++depth;
  }
  if (depth > forms::MaxDepth)
    throw EComponentError(OperationText("%1 would be nested too deep there.").arg(component.Name()));
}
}  // namespace

QString WhyNotInto(const FormSession& session, const std::vector<TComponent*>& controls,
                   const TWinControl& container) {
  try {
    for (const TComponent* c : controls) RequireMovable(session, *c, container);
    return {};
  } catch (const Exception& e) {
    return e.Message();
  }
}

void MoveInto(FormSession& session, const std::vector<TComponent*>& controls, TWinControl& container) {
  for (const TComponent* c : controls) RequireMovable(session, *c, container);
  const auto move = [&] {
    for (TComponent* c : controls) {
      auto* control = As<TControl>(c);
      if (control->Parent() == &container) continue;
      const QRect place = FormPlaceOf(*c).translated(-FormOriginOf(container));
      control->SetParent(&container);
      SetPlace(*c, place);
      if (auto* windowed = As<TWinControl>(control); windowed && windowed->TabOrder() >= 0)
        GiveLastTabOrder(*windowed);
    }
  };
  // A drag is a command that goes on.
  if (session.IsLive()) return move();
  session.Run(controls.size() == 1 ? OperationText("Move %1 to %2").arg(controls[0]->Name(), container.Name())
                                   : OperationText("Move to %1").arg(container.Name()),
              {}, move);
}
