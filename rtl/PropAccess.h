// Typed access to published properties: a table look-up and a call, no text and no variant in between.
// Every setter checks the value against the property's type and refuses with EPropertyError, naming class,
// property and value; the instance is then unchanged.
#pragma once
#include "rtl/Class.h"

std::int64_t GetOrdProp(const TPersistent& instance, const TPropInfo& prop);
void SetOrdProp(TPersistent& instance, const TPropInfo& prop, std::int64_t value);
long double GetFloatProp(const TPersistent& instance, const TPropInfo& prop);
void SetFloatProp(TPersistent& instance, const TPropInfo& prop, long double value);
QString GetStrProp(const TPersistent& instance, const TPropInfo& prop);
void SetStrProp(TPersistent& instance, const TPropInfo& prop, const QString& value);
// Object properties. Setting a value object copies it; setting a component reference keeps the pointer.
TPersistent* GetObjectProp(const TPersistent& instance, const TPropInfo& prop);
void SetObjectProp(TPersistent& instance, const TPropInfo& prop, TPersistent* value);
// Events: the name of the handler, empty for none. The instance must be a component.
QString GetMethodProp(const TPersistent& instance, const TPropInfo& prop);
void SetMethodProp(TPersistent& instance, const TPropInfo& prop, const QString& handler);
QByteArray GetBinaryProp(const TPersistent& instance, const TPropInfo& prop);
void SetBinaryProp(TPersistent& instance, const TPropInfo& prop, const QByteArray& value);

// Whether the property holds a component reference rather than a value object of its own.
bool IsComponentRef(const TPropInfo& prop);
bool IsBinary(const TPropInfo& prop);

// Whether the value equals the default. Value objects are at default when all their properties are.
bool IsDefaultValue(const TPersistent& instance, const TPropInfo& prop);
// Whether a form file holds the property: not default and the stored rule agrees.
bool IsStoredProp(const TPersistent& instance, const TPropInfo& prop);
// Puts the property to its default; value objects recursively. Ordinals without a default stay.
void ResetProp(TPersistent& instance, const TPropInfo& prop);

// Copies one property; both must be of the same kind.
void CopyProp(const TPersistent& source, const TPropInfo& sourceProp, TPersistent& target,
              const TPropInfo& targetProp);
