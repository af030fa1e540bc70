// Names of values that frameworks related to this one use in their form files.
#pragma once
#include <QByteArrayView>

namespace forms {

enum class WordHome {
  Nowhere,
  Lcl,       // right in a file of the .lfm family
  Elsewhere  // of a framework whose files look like any other
};
WordHome HomeOfWord(QByteArrayView type, QByteArrayView word);

}  // namespace forms
