// What classes and properties are for, in a sentence: hints, the inspector and the documentation show it.
//
// A class says it where it describes itself (Doc, ClassDoc). What it does not say itself stands in the texts
// of designintf/purposes: "Property: text" is of every class, "Class.Property: text" of a class and its
// descendants, "class Class: text" of the class; the nearest counts.
#pragma once
#include "rtl/Class.h"

// Empty when nobody says it.
QString PurposeOf(const TClass& cls);
QString PurposeOf(const TClass& cls, const TPropInfo& prop);
