// Properties as text, the way inspectors and the command line show them.
#pragma once
#include "rtl/Class.h"

// Ordinal as the text of its type: element name, "[a,b]", identifier of an integer constant, or digits.
QString OrdToText(const TTypeInfo& type, std::int64_t value);
// The reverse; EConvertError says what was expected.
std::int64_t TextToOrd(const TTypeInfo& type, const QString& text);

QString FloatToText(const TTypeInfo& type, long double value);
long double TextToFloat(const TTypeInfo& type, const QString& text);

// Objects read "(TClass)", references the component's name, events the handler's name.
QString GetPropText(const TPersistent& instance, const TPropInfo& prop);
// Component references are looked up among the components of the root owner.
void SetPropText(TPersistent& instance, const TPropInfo& prop, const QString& text);

// The component that the references on a form start from: the outermost owner.
TComponent* LookupRoot(const TPersistent& instance);
