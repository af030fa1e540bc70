// Access to published properties. The typed routines are a table look-up and a call, no text and no variant
// in between. Every setter checks the value against the property's type and refuses with EPropertyError,
// naming class, property and value; the instance is then unchanged.
#pragma once
#include "rtl/Class.h"
#include "rtl/Persistent.h"

// Whatever the property holds. SetProp refuses another alternative than the property's.
TPropValue GetProp(const TPersistent& instance, const TPropInfo& prop);
void SetProp(TPersistent& instance, const TPropInfo& prop, const TPropValue& value);

std::int64_t GetOrdProp(const TPersistent& instance, const TPropInfo& prop);
void SetOrdProp(TPersistent& instance, const TPropInfo& prop, std::int64_t value);
long double GetFloatProp(const TPersistent& instance, const TPropInfo& prop);
void SetFloatProp(TPersistent& instance, const TPropInfo& prop, long double value);
QString GetStrProp(const TPersistent& instance, const TPropInfo& prop);
void SetStrProp(TPersistent& instance, const TPropInfo& prop, const QString& value);
// References and parts. Setting a part copies it; setting a reference keeps the pointer.
TPersistent* GetObjectProp(const TPersistent& instance, const TPropInfo& prop);
void SetObjectProp(TPersistent& instance, const TPropInfo& prop, TPersistent* value);
// Events: the name of the handler, empty for none.
QString GetMethodProp(const TPersistent& instance, const TPropInfo& prop);
void SetMethodProp(TPersistent& instance, const TPropInfo& prop, const QString& handler);
QByteArray GetBinaryProp(const TPersistent& instance, const TPropInfo& prop);
void SetBinaryProp(TPersistent& instance, const TPropInfo& prop, const QByteArray& value);

// Whether the property holds a component reference rather than a value object of its own.
inline bool IsComponentRef(const TPropInfo& prop) { return prop.Is<TReference>(); }

// The default of an ordinal property where the instance stands; nothing when it is always stored.
std::optional<std::int64_t> DefaultOrdinal(const TPersistent& instance, const TPropInfo& prop);
// Gives properties whose default is another one there the default of the family that the instance stands
// with; for objects that are new or about to be read.
void TakeFamilyDefaults(TPersistent& instance);
// Whether the value equals the default. Value objects are at default when all their properties are.
bool IsDefaultValue(const TPersistent& instance, const TPropInfo& prop);
// Whether a form file holds the property: not default and the stored rule agrees.
bool IsStoredProp(const TPersistent& instance, const TPropInfo& prop);
// Puts the property to its default; value objects recursively. Ordinals without a default stay.
void ResetProp(TPersistent& instance, const TPropInfo& prop);

// Whether all published properties of two objects of one class are equal, those of parts included.
bool SameValues(const TPersistent& a, const TPersistent& b);
