#include "vcl/EditMask.h"

TEditMask TEditMask::Parse(const QString& text) {
  TEditMask mask;
  mask.Pattern = text;
  const qsizetype last = text.lastIndexOf(u';');
  const qsizetype before = last > 0 ? text.lastIndexOf(u';', last - 1) : -1;
  if (before < 0 || last != before + 2 || last + 2 != text.size()) return mask;
  mask.Pattern = text.left(before);
  mask.LiteralsKept = text[before + 1] != u'0';
  mask.Blank = text[last + 1];
  return mask;
}

QString TEditMask::Text() const {
  if (Pattern.isEmpty()) return {};
  return Pattern + (LiteralsKept ? QStringLiteral(";1;") : QStringLiteral(";0;")) + Blank;
}
