// Components as form text, and form text on its way into a form.
#pragma once
#include "ide/FormSession.h"

// The components with everything inside them, one object behind the other. Inherited ones with all that
// their ancestors say, so that they stand by themselves.
QString TextOfComponents(const FormSession& session, const std::vector<TComponent*>& components);
// The same as a document: they are the children of its root.
forms::Document ObjectsOfComponents(const FormSession& session, const std::vector<TComponent*>& components);
// What a person has on the clipboard. EFormError with the place for what is no form text, or could not stand
// in another form.
forms::Document ObjectsOfText(const QString& text);
// Gives every object a name that is free on the form: its own if that is, else the next with a number.
// References from one object to another follow; everything else keeps pointing where it did.
void MakeNamesFree(forms::Document& objects, const FormSession& session);
