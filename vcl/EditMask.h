// What a masked field takes: "!99/99/00;1;_".
#pragma once
#include <QString>

struct TEditMask {
  QString Pattern{};
  bool LiteralsKept = true;
  QChar Blank = u'_';

  // The last two parts may be left out.
  static TEditMask Parse(const QString& text);
  // With all its parts; nothing without a pattern.
  QString Text() const;
};
