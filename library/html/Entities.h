// "&amp;" and the others.
#pragma once
#include <QString>

namespace html {

struct Entity {
  QString text;          // empty: it is none
  qsizetype length = 0;  // of what was written
};
// What stands at a "&".
Entity EntityAt(const QString& markup, qsizetype at);

}  // namespace html
