// Forms with pictures or other data that their classes do not take.
#pragma once
#include "ide/FormSession.h"

// For whoever only shows the form or reads values from it: throws Exception with file and place when a
// picture or other data of it was refused.
void RequireAllData(const FormSession& session);
