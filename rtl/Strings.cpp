#include "rtl/Strings.h"

const TClass& TStrings::StaticClass() {
  static const TClass cls(DescribeClass<TStrings>("TStrings", TPersistent::StaticClass()));
  return cls;
}

int TStrings::Add(const QString& line) {
  Changing();
  lines_.append(line);
  Changed();
  return Count() - 1;
}

void TStrings::SetText(const QString& text) {
  QString unified = text;
  unified.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
  if (unified.isEmpty()) return Clear();
  if (unified.endsWith(u'\n')) unified.chop(1);
  SetLines(unified.split(u'\n'));
}

void TStrings::Assign(const TPersistent* source) {
  if (const auto* other = As<TStrings>(source))
    SetLines(other->lines_);
  else
    TPersistent::Assign(source);
}
