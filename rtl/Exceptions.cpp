#include "rtl/Exceptions.h"

#include <new>

QString ExceptionMessage(const std::exception& error) {
  if (const auto* own = dynamic_cast<const Exception*>(&error)) return own->Message();
  if (dynamic_cast<const std::bad_alloc*>(&error)) return QStringLiteral("Out of memory.");
  return QString::fromUtf8(error.what());
}
