// Clients of an action (menu items, buttons ...) show its values where they have none of their own. One that
// loses its action goes on showing them: they become its own.
#pragma once
#include "forms/Snapshot.h"

// The name of the action that the component had and has no longer; empty for none.
QString LostAction(const TComponent& client, const forms::Snapshot& before);
// Gives the client what the action's object says and neither the client nor its object says itself.
void KeepActionValues(TComponent& client, const forms::Object& own, const forms::Object& action,
                      const forms::Document& document, TComponent& root);
