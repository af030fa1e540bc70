#include "library/html/Tags.h"

namespace html {

namespace {
struct Name {
  const char16_t* name;
  TagKind kind;
};
constexpr Name Names[] = {{u"b", TagKind::B},   {u"i", TagKind::I},       {u"u", TagKind::U},
                          {u"s", TagKind::S},   {u"font", TagKind::Font}, {u"br", TagKind::Br},
                          {u"p", TagKind::P},   {u"hr", TagKind::Hr},     {u"img", TagKind::Img},
                          {u"a", TagKind::A},   {u"ul", TagKind::Ul},     {u"ol", TagKind::Ol},
                          {u"li", TagKind::Li}, {u"sub", TagKind::Sub},   {u"sup", TagKind::Sup}};
constexpr qsizetype LongestName = 4;

bool IsLetter(QChar c) { return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z'); }
}  // namespace

std::optional<Tag> TagAt(const QString& markup, qsizetype at) {
  const qsizetype size = markup.size();
  Tag tag;
  tag.closing = at + 1 < size && markup[at + 1] == u'/';
  const qsizetype start = at + (tag.closing ? 2 : 1);
  qsizetype i = start;
  while (i < size && i - start <= LongestName && IsLetter(markup[i])) ++i;
  const QStringView word = QStringView(markup).mid(start, i - start);
  if (i >= size || !(markup[i].isSpace() || markup[i] == u'>' || markup[i] == u'/')) return {};
  const Name* known = std::find_if(std::begin(Names), std::end(Names), [&](const Name& n) {
    return word.compare(QStringView(n.name), Qt::CaseInsensitive) == 0;
  });
  if (known == std::end(Names)) return {};
  tag.kind = known->kind;
  tag.attributes = i;
  QChar quote;
  for (; i < size; ++i) {
    const QChar c = markup[i];
    if (!quote.isNull()) {
      if (c == quote) quote = QChar();
    } else if (c == u'"' || c == u'\'') {
      quote = c;
    } else if (c == u'<') {
      return {};
    } else if (c == u'>') {
      tag.end = i + 1;
      return tag;
    }
  }
  return {};
}

QString Attribute(const QString& markup, const Tag& tag, QLatin1String wanted) {
  const qsizetype end = tag.end - 1;
  qsizetype i = tag.attributes;
  const auto skip = [&](auto whileTrue) {
    const qsizetype from = i;
    while (i < end && whileTrue(markup[i])) ++i;
    return QStringView(markup).mid(from, i - from);
  };
  const auto blank = [](QChar c) { return c.isSpace(); };
  while (i < end) {
    skip([&](QChar c) { return blank(c) || c == u'/' || c == u'='; });
    const QStringView name = skip([&](QChar c) { return !blank(c) && c != u'=' && c != u'/'; });
    skip(blank);
    QStringView value;
    if (i < end && markup[i] == u'=') {
      ++i;
      skip(blank);
      const QChar quote = i < end ? markup[i] : QChar();
      if (quote == u'"' || quote == u'\'') {
        ++i;
        value = skip([&](QChar c) { return c != quote; });
        ++i;
      } else {
        value = skip([&](QChar c) { return !blank(c); });
      }
    }
    if (name.compare(wanted, Qt::CaseInsensitive) == 0)
      return value.isNull() ? QStringLiteral("") : value.toString();
  }
  return {};
}

}  // namespace html
