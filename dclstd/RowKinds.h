// How a control shows a published value, and what it makes of it: one entry for each kind of control.
#pragma once
#include <functional>

#include "rtl/PropInfo.h"

class QWidget;
struct QMetaObject;

// A property, or one element of a set.
struct RowProperty {
  const TPropInfo* Info = nullptr;
  int Element = -1;
};

struct RowKind {
  const QMetaObject* Control;
  // Range and entries that the type has.
  void (*Prepare)(QWidget& control, const TTypeInfo& type);
  void (*Load)(QWidget& control, const TPersistent& value, const RowProperty& property);
  void (*Write)(const QWidget& control, TPersistent& value, const RowProperty& property);
  // `changed` is called whenever the control shows something else.
  void (*Watch)(QWidget& control, const std::function<void()>& changed);
};
// Throws Exception for a control that shows no value.
const RowKind& RowKindOf(const QWidget& control);
