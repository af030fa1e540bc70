// Where the components of a form stand, on the form and in what they stand in; what operations may move.
#pragma once
#include "ide/FormSession.h"

// What can be moved: not the form, no part of another component, no page that fills its book.
bool HasPlace(const FormSession& session, const TComponent& component);
// In what it stands in: the bounds of a control, the tile of anything else.
QRect PlaceOf(const TComponent& component);
void SetPlace(TComponent& component, const QRect& place);
// In client coordinates of the form: the place of a control, and the client area of a container.
QRect FormPlaceOf(const TComponent& component);
QPoint FormOriginOf(const TWinControl& container);
// Gives the components these places as one command. One that does not come to stand there (an alignment
// decides, it fills its container) is an EComponentError that says why, and nothing is changed.
struct WantedPlace {
  TComponent* component;
  QRect place;
};
void Place(FormSession& session, const QString& text, const std::vector<WantedPlace>& wanted);
// Only the sizes are asked for; the place may follow.
void Resize(FormSession& session, const QString& text, const std::vector<WantedPlace>& wanted);

// --- Who belongs to whom

// The selection without the form itself.
std::vector<TComponent*> Chosen(const FormSession& session);
// Those of them that stand in no other one of them, in the order of the file.
std::vector<TComponent*> Outermost(const FormSession& session, const std::vector<TComponent*>& components);
// The nearest of `others` that the component stands in, or null.
const TComponent* StandsIn(const FormSession& session, const TComponent& component,
                           const std::vector<TComponent*>& others);
// EComponentError, with the reason, for what this file does not hold as a whole: it comes from the ancestor
// form, or belongs to a frame. `what` cannot be done: "deleted", "moved to another container".
void RequireOwn(const FormSession& session, const TComponent& component, const QString& what);
// The same for what needs no more than all that is to be known of the component.
void RequireWhole(const FormSession& session, const TComponent& component, const QString& what);
// Whether a new control may stand in it. What stands in a frame is the frame's own.
bool CanHold(const FormSession& session, const TComponent& container);
// The control itself, its page in front, or the nearest around it that can hold others; the form in the end.
TWinControl& ContainerAround(const FormSession& session, const TComponent& component);
// The same for what is to come there: pages go into what takes them, or nowhere.
// EComponentError, naming it, when there is no such control.
TWinControl& ContainerAround(const FormSession& session, const TComponent& component,
                             const forms::Object& comes);

QString OperationText(const char* text, int n = -1);
