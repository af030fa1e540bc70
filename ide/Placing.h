// Where a component goes that is placed without pointing at a spot.
#pragma once
#include "ide/FormSession.h"

// Makes a component in the middle of the selected container, or of what the selected control stands in, or of
// the form; as one command. Copies do not cover each other: a spot that is taken is passed by in steps of
// `grid`. The component is selected. Throws what its making throws; nothing is changed then.
TComponent* PlaceInMiddle(FormSession& session, const TClass& cls, int grid);
