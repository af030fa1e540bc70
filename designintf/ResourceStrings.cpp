#include "designintf/ResourceStrings.h"

QString LoadResString(TResString id) {
  switch (id) {
    case TResString::sLayoutCategoryName:
      return QStringLiteral("Layout");
    case TResString::sVisualCategoryName:
      return QStringLiteral("Visual");
    case TResString::sMiscCategoryName:
      return QStringLiteral("Miscellaneous");
  }
  return {};
}
