#include "rtl/Exceptions.h"

QString ExceptionMessage(const std::exception& error) {
  if (const auto* own = dynamic_cast<const Exception*>(&error)) return own->Message();
  return QString::fromUtf8(error.what());
}
