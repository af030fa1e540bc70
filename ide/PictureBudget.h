// What the pictures of a form may cost, asked before any of them is decoded.
#pragma once
#include "forms/Document.h"

// Throws EFormError with the place of the picture that is one too many. `edited`: the document holds more
// than its source.
void RequirePictureBudget(const forms::Document& document, bool edited);
