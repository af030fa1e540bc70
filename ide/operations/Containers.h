// Moving controls from one container to another.
#pragma once
#include "ide/operations/Places.h"

// The container that would take what is dropped at a point of the form's client area: the innermost there
// that can hold controls, leaving out `dragged` and what stands in them.
TWinControl& ContainerAt(const FormSession& session, QPoint formPoint,
                         const std::vector<TComponent*>& dragged);
// Why not all of them can go there; empty when they can.
QString WhyNotInto(const FormSession& session, const std::vector<TComponent*>& controls,
                   const TWinControl& container);
// Moves them there, keeping their place on the screen; as one command, or a part of the one that goes on.
// EComponentError with the reason, and nothing is changed then.
void MoveInto(FormSession& session, const std::vector<TComponent*>& controls, TWinControl& container);
