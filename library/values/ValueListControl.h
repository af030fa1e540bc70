// Controls with items that have a name to show and a value behind it.
#pragma once
#include <QObject>

#include "rtl/Strings.h"

// The values by the place of their item.
class IVRXValueHolder {
 public:
  virtual ~IVRXValueHolder() = default;
  // Empty where there is none.
  virtual QString Value(int index) const = 0;
  // Makes room where there is none.
  virtual void SetValue(int index, const QString& value) = 0;
  // Takes out so many, where there are as many; what is behind them moves up.
  virtual void Remove(int index, int count) = 0;
};

class IVRXValueListControl {
 public:
  virtual ~IVRXValueListControl() = default;
  virtual TStrings& ItemNames() = 0;
  virtual IVRXValueHolder& ItemValues() = 0;
};
Q_DECLARE_INTERFACE(IVRXValueListControl, "{A4471D99-9D56-4D26-89DF-289AB1DDE66C}")
