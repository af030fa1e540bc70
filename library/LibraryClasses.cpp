#include "library/LibraryClasses.h"

#include "library/controls/LEDLabel.h"

const TClass* FindLibraryClass(const QByteArray& name) {
  static const std::vector<const TClass*> classes{
      &TVRXLEDLabel::StaticClass(),
  };
  for (const TClass* cls : classes)
    if (cls->ClassName() == name) return cls;
  return nullptr;
}
