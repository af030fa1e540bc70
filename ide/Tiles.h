// Components that are no controls, as the form shows them: tiles on the desk of a data module or on the form.
#pragma once
#include "ide/FormSession.h"

// Parts of another component (the items of a menu, the fields of a query) have no tile of their own, and what
// is hidden (rtl/HiddenIcon.h) has none.
bool HasTile(const FormSession& session, const TComponent& component);
// The component whose tile or place stands for this one: itself, or the nearest around it.
const TComponent& ShownFor(const FormSession& session, const TComponent& component);
QRect TileRect(const TComponent& component);
// What there is to see of a data module: its desk, and the tiles beyond it with their names.
QSize DeskSize(const FormSession& session);
// The form as a picture, enlarged by `scale`; of a data module the desk with its tiles.
QImage RenderRoot(FormSession& session, double scale);
