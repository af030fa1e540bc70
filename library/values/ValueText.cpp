#include "library/values/ValueText.h"

#include <QRegularExpression>

#include "rtl/Collection.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"
#include "rtl/Strings.h"

namespace {
const QString ItemMark = QStringLiteral("item");

bool NeedsCode(QChar c) {
  return c.unicode() < u' ' || (c.unicode() >= 0x7F && c.unicode() < 0xA0) || c.isSurrogate() ||
         c.unicode() == 0x2028 || c.unicode() == 0x2029;
}
}  // namespace

QString QuotedText(const QString& text) {
  QString quoted(1, u'"');
  for (const QChar c : text) {
    if (c == u'"' || c == u'\\')
      quoted += QString(u'\\') + c;
    else if (NeedsCode(c))
      quoted += QStringLiteral("\\u%1").arg(uint{c.unicode()}, 4, 16, QLatin1Char('0'));
    else
      quoted += c;
  }
  return quoted + u'"';
}

bool UnquotedText(QStringView quoted, QString& text) {
  if (quoted.size() < 2 || quoted.front() != u'"' || quoted.back() != u'"') return false;
  const QStringView inside = quoted.sliced(1, quoted.size() - 2);
  QString result;
  for (qsizetype i = 0; i < inside.size(); ++i) {
    if (inside[i] == u'"') return false;
    if (inside[i] != u'\\') {
      result += inside[i];
      continue;
    }
    if (++i == inside.size()) return false;
    if (inside[i] == u'u') {
      bool ok = inside.size() - i > 4;
      const uint code = ok ? inside.sliced(i + 1, 4).toUInt(&ok, 16) : 0;
      if (!ok) return false;
      result += QChar(code);
      i += 4;
    } else if (inside[i] == u'"' || inside[i] == u'\\') {
      result += inside[i];
    } else {
      return false;
    }
  }
  text = result;
  return true;
}

namespace {
// "a", "b"
QString QuotedTexts(const QStringList& texts) {
  QStringList quoted;
  for (const QString& text : texts) quoted << QuotedText(text);
  return quoted.join(QStringLiteral(", "));
}
bool UnquotedTexts(QStringView quoted, QStringList& texts) {
  texts.clear();
  quoted = quoted.trimmed();
  while (!quoted.isEmpty()) {
    qsizetype end = 1;
    while (end < quoted.size() && quoted[end] != u'"') end += quoted[end] == u'\\' ? 2 : 1;
    QString text;
    if (end >= quoted.size() || !UnquotedText(quoted.first(end + 1), text)) return false;
    texts << text;
    quoted = quoted.sliced(end + 1).trimmed();
    if (quoted.isEmpty()) return true;
    if (quoted.front() != u',') return false;
    quoted = quoted.sliced(1).trimmed();
    if (quoted.isEmpty()) return false;
  }
  return true;
}

QString TextOf(const TPersistent& object, const TPropInfo& prop) {
  if (prop.Is<QString>()) return QuotedText(GetStrProp(object, prop));
  if (prop.Is<QByteArray>()) return QString::fromLatin1(GetBinaryProp(object, prop).toBase64());
  return GetPropText(object, prop);
}

void CollectItems(const TCollection& items, const QString& name, QStringList& lines);
void Collect(const TPersistent& object, const QString& prefix, QStringList& lines) {
  for (const TPropInfo* prop : object.ClassType().Properties()) {
    if (!IsStoredProp(object, *prop) || prop->Is<TReference>() || prop->IsEvent()) continue;
    const QString name = prefix + QString::fromLatin1(prop->Name);
    if (!prop->IsPart()) {
      lines << name + QStringLiteral(" = ") + TextOf(object, *prop);
      continue;
    }
    const TPersistent* part = GetObjectProp(object, *prop);
    if (const auto* texts = As<TStrings>(part))
      lines << name + QStringLiteral(" = ") + QuotedTexts(texts->Lines());
    else if (const auto* items = As<TCollection>(part))
      CollectItems(*items, name, lines);
    else
      Collect(*part, name + u'.', lines);
  }
}
void CollectItems(const TCollection& items, const QString& name, QStringList& lines) {
  for (int i = 0; i < items.Count(); ++i) {
    const QString item = QStringLiteral("%1[%2]").arg(name).arg(i);
    lines << item + QStringLiteral(" = ") + ItemMark;
    Collect(*items.Item(i), item + u'.', lines);
  }
}

// A name that a later version may have added to a type: a word, or a set of words.
bool MayBeALaterName(const QString& text) {
  static const QRegularExpression name(
      QStringLiteral("^([A-Za-z_][A-Za-z0-9_]*|\\[[A-Za-z_][A-Za-z0-9_]*(,[A-Za-z_][A-Za-z0-9_]*)*\\])$"));
  return name.match(text).hasMatch();
}

[[noreturn]] void Refuse(const QString& why) { throw EConvertError(why); }

TValueRead SetValue(TPersistent& object, const TPropInfo& prop, const QString& text) {
  if (prop.Is<QString>()) {
    QString value;
    if (!UnquotedText(text, value))
      Refuse(QStringLiteral("%1 needs a text in quotes").arg(QString::fromLatin1(prop.Name)));
    SetStrProp(object, prop, value);
    return TValueRead::Taken;
  }
  if (prop.Is<QByteArray>()) {
    const auto bytes =
        QByteArray::fromBase64Encoding(text.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    if (!bytes) Refuse(QStringLiteral("the data of %1 is damaged").arg(QString::fromLatin1(prop.Name)));
    SetBinaryProp(object, prop, *bytes);
    return TValueRead::Taken;
  }
  if (auto* texts = prop.IsPart() ? As<TStrings>(GetObjectProp(object, prop)) : nullptr) {
    QStringList lines;
    if (!UnquotedTexts(text, lines))
      Refuse(QStringLiteral("%1 needs texts in quotes").arg(QString::fromLatin1(prop.Name)));
    texts->SetLines(lines);
    return TValueRead::Taken;
  }
  if (prop.Is<TReference>() || prop.IsEvent() || prop.IsPart() || !prop.IsWritable())
    return TValueRead::Foreign;
  try {
    SetPropText(object, prop, text);
  } catch (const EConvertError&) {
    if (!prop.IsOrdinal() || !MayBeALaterName(text)) throw;
    return TValueRead::Foreign;
  }
  return TValueRead::Taken;
}

std::pair<QStringView, QString> SplitLine(QStringView line) {
  const qsizetype sign = line.indexOf(u'=');
  if (sign < 0) Refuse(QStringLiteral("a value has no \"=\""));
  return {line.left(sign).trimmed(), line.sliced(sign + 1).trimmed().toString()};
}

// What a step of a path leads to: "Colors[2]" to an item, "Bitmap" to a part.
struct Step {
  QByteArray name;
  int item = -1;
};
std::vector<Step> StepsOf(QStringView path) {
  static const QRegularExpression step(QStringLiteral("^([A-Za-z_][A-Za-z0-9_]*)(\\[([0-9]{1,6})\\])?$"));
  std::vector<Step> steps;
  for (const QStringView part : path.split(u'.')) {
    const auto match = step.match(part.toString());
    if (!match.hasMatch()) Refuse(QStringLiteral("\"%1\" is no name of a value").arg(path));
    steps.push_back(
        {match.captured(1).toLatin1(), match.captured(3).isEmpty() ? -1 : match.captured(3).toInt()});
  }
  return steps;
}

// `first`, when it is given, stands for the part that the first step leads to.
TValueRead ReadAt(TPersistent& root, const std::vector<Step>& steps, const QString& text,
                  TPersistent* first = nullptr) {
  TPersistent* object = &root;
  for (std::size_t i = 0;; ++i) {
    const TPropInfo* prop = object->ClassType().FindProp(steps[i].name);
    if (!prop) return TValueRead::Foreign;
    const bool last = i + 1 == steps.size();
    if (last && steps[i].item < 0) return SetValue(*object, *prop, text);
    if (!prop->IsPart()) return TValueRead::Foreign;
    object = i == 0 && first ? first : GetObjectProp(*object, *prop);
    if (steps[i].item < 0) continue;
    auto* items = As<TCollection>(object);
    if (!items) return TValueRead::Foreign;
    if (last) {
      if (text != ItemMark) return TValueRead::Foreign;
      if (steps[i].item != items->Count())
        Refuse(QStringLiteral("item %1 stands where item %2 should").arg(steps[i].item).arg(items->Count()));
      items->Add();
      return TValueRead::Taken;
    }
    if (steps[i].item >= items->Count()) Refuse(QStringLiteral("there is no item %1").arg(steps[i].item));
    object = items->Item(steps[i].item);
  }
}
}  // namespace

QStringList ValueLines(const TPersistent& object) {
  QStringList lines;
  Collect(object, {}, lines);
  return lines;
}

TValueRead ReadValueLine(TPersistent& object, QStringView line) {
  const auto [path, value] = SplitLine(line);
  return ReadAt(object, StepsOf(path), value);
}

QString ValueTextOf(const TPersistent& object, const TPropInfo& prop) {
  if (!prop.IsPart()) return TextOf(object, prop);
  const TPersistent* part = GetObjectProp(object, prop);
  if (const auto* texts = As<TStrings>(part)) return QuotedTexts(texts->Lines());
  const QString name = QString::fromLatin1(prop.Name);
  QStringList lines;
  if (const auto* items = As<TCollection>(part))
    CollectItems(*items, name, lines);
  else if (part)
    Collect(*part, name + u'.', lines);
  return lines.join(u'\n');
}

namespace {
// Null for what exists as a part of its owner only.
std::unique_ptr<TPersistent> FreshOf(const TPersistent& part) {
  try {
    return part.ClassType().NewPersistent();
  } catch (const EComponentError&) {
    return {};
  }
}
}  // namespace

TValueRead ReadValueText(TPersistent& object, const TPropInfo& prop, const QString& text,
                         QStringList* foreign) {
  TPersistent* const part = prop.IsPart() ? GetObjectProp(object, prop) : nullptr;
  if (!part || As<TStrings>(part)) return SetValue(object, prop, text);
  const auto read = [&](const QString& lines, TPersistent* into) {
    for (const QString& line : lines.split(u'\n', Qt::SkipEmptyParts)) {
      const auto [path, value] = SplitLine(line);
      const std::vector<Step> steps = StepsOf(path);
      const bool known =
          steps[0].name == prop.Name && ReadAt(object, steps, value, into) == TValueRead::Taken;
      if (!known && foreign) *foreign << line;
    }
  };
  if (const std::unique_ptr<TPersistent> fresh = FreshOf(*part)) {
    read(text, fresh.get());
    part->Assign(fresh.get());
    return TValueRead::Taken;
  }
  const QString before = ValueTextOf(object, prop);
  const TUpdateLock lock(*part);
  ResetProp(object, prop);
  try {
    read(text, part);
  } catch (...) {
    ResetProp(object, prop);
    read(before, part);
    throw;
  }
  return TValueRead::Taken;
}
