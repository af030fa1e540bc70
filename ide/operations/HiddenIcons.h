// Icons that the surface does not show, back in sight.
#pragma once
#include "ide/FormSession.h"

// Of the selected components; the form's order.
std::vector<TComponent*> SelectedHiddenIcons(const FormSession& session);
// Gives each of them a place that no other icon has, as one command. What was remembered of an icon's former
// place is its keeper's matter and stays.
void ShowHiddenIcons(FormSession& session, const QString& text);
