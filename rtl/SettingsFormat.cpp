#include "rtl/SettingsFormat.h"

#include <QIODevice>

namespace {
const QString General = QStringLiteral("General");  // the section of keys that are in none

bool IsPlain(QChar c) {
  const auto between = [c](char16_t a, char16_t b) { return c >= a && c <= b; };
  return between(u'a', u'z') || between(u'A', u'Z') || between(u'0', u'9') || c == u'_' || c == u'-' ||
         c == u'.';
}

// The number that `digits` hexadecimal digits make; -1 when there are not so many.
int HexAt(QStringView text, qsizetype at, int digits) {
  if (at + digits > text.size()) return -1;
  bool ok = false;
  const int value = text.mid(at, digits).toInt(&ok, 16);
  return ok && IsPlain(text[at]) && text[at] != u'-' ? value : -1;
}

QString KeyOf(QStringView written) {
  QString key;
  for (qsizetype i = 0; i < written.size(); ++i) {
    const bool wide = written.mid(i, 2) == u"%U";
    const int code = written[i] == u'%' ? HexAt(written, i + (wide ? 2 : 1), wide ? 4 : 2) : -1;
    if (code >= 0) {
      key += QChar(static_cast<char16_t>(code));
      i += wide ? 5 : 2;
    } else {
      key += written[i] == u'\\' ? QChar(u'/') : written[i];
    }
  }
  return key;
}

QString WrittenKey(QStringView key) {
  QString written;
  for (const QChar c : key) {
    if (IsPlain(c))
      written += c;
    else if (c == u'/')
      written += u'\\';
    else if (c.unicode() < 256)
      written += QStringLiteral("%%1").arg(c.unicode(), 2, 16, QChar(u'0'));
    else
      written += QStringLiteral("%U%1").arg(c.unicode(), 4, 16, QChar(u'0'));
  }
  return written;
}

struct Escape {
  char16_t sign;
  char16_t means;
};
constexpr Escape Escapes[] = {{u'\\', u'\\'}, {u'"', u'"'}, {u'n', u'\n'}, {u'r', u'\r'}, {u't', u'\t'}};

QString ValueOf(QStringView written) {
  QString value;
  bool quoted = false;
  for (qsizetype i = 0; i < written.size(); ++i) {
    const QChar c = written[i];
    if (c == u'"') {
      quoted = !quoted;
    } else if (c == u';' && !quoted) {
      break;  // a remark
    } else if (c != u'\\' || i + 1 == written.size()) {
      value += c;
    } else if (written[++i] == u'x') {
      int digits = 0;
      while (digits < 4 && HexAt(written, i + 1 + digits, 1) >= 0) ++digits;
      value += QChar(static_cast<char16_t>(digits ? HexAt(written, i + 1, digits) : u'x'));
      i += digits;
    } else {
      const auto* known = std::find_if(std::begin(Escapes), std::end(Escapes),
                                       [&](const Escape& e) { return e.sign == written[i]; });
      value += known == std::end(Escapes) ? written[i] : QChar(known->means);
    }
  }
  // Other writers double the sign in front of texts that look like objects.
  return value.startsWith(QStringLiteral("@@")) ? value.mid(1) : value;
}

QString WrittenValue(const QString& value) {
  QString written = value.startsWith(u'@') ? QStringLiteral("\"@") : QStringLiteral("\"");
  for (const QChar c : value) {
    const auto* known =
        std::find_if(std::begin(Escapes), std::end(Escapes), [&](const Escape& e) { return e.means == c; });
    if (known != std::end(Escapes))
      written += QStringLiteral("\\") + QChar(known->sign);
    else if (c.unicode() < 32 || c.isSurrogate() || c.unicode() == 0xFEFF)
      written += QStringLiteral("\\x%1").arg(c.unicode(), 4, 16, QChar(u'0'));
    else
      written += c;
  }
  return written + u'"';
}

bool Read(QIODevice& device, QSettings::SettingsMap& map) {
  QString section;
  const QString text = QString::fromUtf8(device.readAll());
  for (QStringView line : QStringView(text).split(u'\n')) {
    line = line.trimmed();
    const qsizetype equals = line.indexOf(u'=');
    if (line.startsWith(u'[') && line.endsWith(u']')) {
      section = KeyOf(line.mid(1, line.size() - 2));
      if (section == General) section.clear();
    } else if (equals > 0 && !line.startsWith(u';')) {
      const QString name = KeyOf(line.first(equals).trimmed());
      map.insert(section.isEmpty() ? name : section + u'/' + name,
                 ValueOf(line.sliced(equals + 1).trimmed()));
    }
  }
  return true;
}

bool Write(QIODevice& device, const QSettings::SettingsMap& map) {
  // Keys in no section come first, before anything else could claim them.
  QString loose, sections, section;
  for (auto it = map.cbegin(); it != map.cend(); ++it) {
    const qsizetype slash = it.key().indexOf(u'/');
    const QString line =
        WrittenKey(QStringView(it.key()).mid(slash + 1)) + u'=' + WrittenValue(it.value().toString()) + u'\n';
    if (slash < 0) {
      loose += line;
      continue;
    }
    const QString wanted = it.key().first(slash);
    if (wanted != section || sections.isEmpty())
      sections += QStringLiteral("\n[%1]\n").arg(WrittenKey(wanted));
    section = wanted;
    sections += line;
  }
  const QByteArray bytes =
      (loose.isEmpty() ? sections.mid(1) : QStringLiteral("[%1]\n").arg(General) + loose + sections).toUtf8();
  return device.write(bytes) == bytes.size();
}
}  // namespace

QSettings::Format SettingsFormat() {
  static const QSettings::Format format =
      QSettings::registerFormat(QStringLiteral("ini"), Read, Write, Qt::CaseSensitive);
  return format;
}
