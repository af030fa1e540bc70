// What the pictures of a form may cost, asked before any of them is decoded.
#pragma once
#include "ide/FormSession.h"

// Throws EFormError with the place of the picture that is one too many. `edited`: the document holds more
// than its source.
void RequirePictureBudget(const forms::Document& document, bool edited);
// For whoever only shows the form or reads values from it: throws Exception with file and place when a
// picture or other data of it was refused.
void RequireAllData(const FormSession& session);
