// Values of a form's file that its components do not take.
#pragma once
#include "ide/FormSession.h"

// For whoever only shows the form or reads values from it: throws Exception with file and place when a
// picture or other data of it was refused.
void RequireAllData(const FormSession& session);

struct RefusedValue {
  QByteArray path;  // "LED.ActiveColor"
  QString why;
};
// Of these components, or of these parts of components, each by its own paths.
std::vector<RefusedValue> RefusedValues(const FormSession& session, const TDesignerSelections& inspected);
