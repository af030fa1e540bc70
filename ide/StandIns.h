// What a form file tells of classes that no loaded package has: whether they are controls, which of the
// common controls they resemble, and what the root of the file is.
#pragma once
#include "forms/Document.h"
#include "ide/StandInLook.h"
#include "vcl/Form.h"

// By the end of the class name ("TJvDBComboBox" is a combo), else by what the file gives the object.
TStandInLook LookOf(const forms::Object& object);
// The size of such a control where the file has none.
QSize UsualSize(TStandInLook look);
// Controls of registered classes included.
bool IsVisual(const forms::Object& object);
// Whether a root of that kind has the property; frames and data modules lack most of what forms have.
bool RootHasProperty(TFormKind kind, QByteArrayView property);
TFormKind KindOfRoot(const forms::Object& root);

// A page of a book that is not known needs a stand-in, though its own class is known.
bool NeedsStandIn(const TClass& cls, const forms::Object& object);
// Whether a stand-in shows the picture that a property of that name holds.
bool StandInShowsPicture(QByteArrayView property);
// The component that takes the place of an object of an unknown class.
TComponent* MakeStandIn(const forms::Document& document, const forms::Object& object, TComponent* owner);
// The object says something else now; other components are let be.
void LookAgain(TComponent& component, const forms::Document& document, const forms::Object& object);
