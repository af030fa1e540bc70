// Files of styles: a block for each style in order of its path, whose lines are its values in order of their
// names.
#include <QRegularExpression>
#include <array>
#include <charconv>
#include <cmath>

#include "library/styles/Styles.h"
#include "library/values/BlockFile.h"
#include "library/values/ValueText.h"
#include "rtl/Exceptions.h"
#include "rtl/PropValue.h"
#include "vcl/UserFile.h"

namespace {
const QString Title = QStringLiteral("Styles"), Style = QStringLiteral("style");

QString FloatText(long double value) {
  std::array<char, 64> text{};
  const auto result = std::to_chars(text.data(), text.data() + text.size(), value);
  return QString::fromLatin1(text.data(), result.ptr - text.data());
}

QString ValueText(const TVRXStyleValue& value) {
  return std::visit(
      ForEach{[](const QString& v) { return QStringLiteral("text ") + QuotedText(v); },
              [](std::int64_t v) { return QStringLiteral("integer %1").arg(v); },
              [](long double v) { return QStringLiteral("float ") + FloatText(v); },
              [](const QByteArray& v) {
                return (QStringLiteral("stream ") + QString::fromLatin1(v.toBase64())).trimmed();
              }},
      value);
}

[[noreturn]] void Wrong(const QString& why) { throw Exception(why); }

TVRXStyleValue ReadText(const QString& rest) {
  QString text;
  if (!UnquotedText(rest, text)) Wrong(QStringLiteral("a text stands in quotes"));
  return text;
}
TVRXStyleValue ReadInteger(const QString& rest) {
  bool ok = false;
  const std::int64_t value = rest.toLongLong(&ok);
  if (!ok) Wrong(QStringLiteral("\"%1\" is no whole number").arg(rest));
  return value;
}
TVRXStyleValue ReadFloat(const QString& rest) {
  const QByteArray text = rest.toLatin1();
  long double value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec != std::errc() || result.ptr != text.data() + text.size() || !std::isfinite(value))
    Wrong(QStringLiteral("\"%1\" is no number").arg(rest));
  return value;
}
TVRXStyleValue ReadStream(const QString& rest) {
  auto bytes = QByteArray::fromBase64Encoding(rest.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
  if (!bytes) Wrong(QStringLiteral("the data of a stream is damaged"));
  return QByteArray(*bytes);
}
struct Way {
  const char* word;
  TVRXStyleValue (*read)(const QString& rest);
};
constexpr Way Ways[] = {
    {"text", ReadText}, {"integer", ReadInteger}, {"float", ReadFloat}, {"stream", ReadStream}};
}  // namespace

class VRXStyleReader : public VRXBlockReader {
 public:
  TVRXStyles Read(const QStringList& lines) {
    if (lines.isEmpty()) return {};
    ReadLines(Title, lines);
    return std::move(styles_);
  }

 private:
  bool Block(const QString& word, const QString& rest) override {
    if (word != Style) Refuse(QStringLiteral("\"%1\" begins no style").arg(Short(word)));
    QString path;
    if (!UnquotedText(rest, path)) Refuse(QStringLiteral("a style needs its path in quotes"));
    for (const QString& name : path.split(VRXStyleSeparator))
      if (name.isEmpty() || name == QStringLiteral("(Default)"))
        Refuse(QStringLiteral("\"%1\" is no path of a style").arg(Short(path)));
    const auto [at, isNew] = styles_.paths_.try_emplace(path);
    if (!isNew) Refuse(QStringLiteral("the style %1 is there already").arg(Short(path)));
    values_ = &at->second;
    return true;
  }
  void Inside(const QString& line) override {
    static const QRegularExpression form(QStringLiteral(
        "^([A-Za-z0-9_]+(?:\\.[A-Za-z0-9_]+)*):([A-Za-z0-9_]+) = ([A-Za-z][A-Za-z0-9_]*)(?: (.*))?$"));
    const auto match = form.match(line);
    if (!match.hasMatch())
      Refuse(QStringLiteral("\"%1\" is no value: NAME:TYPE = WAY VALUE is").arg(Short(line)));
    const TVRXStyleKey key{match.captured(1), match.captured(2)};
    if (values_->contains(key)) Refuse(QStringLiteral("%1 is there already").arg(key.Name));
    try {
      values_->emplace(key, Value(match.captured(3), match.captured(4).trimmed()));
    } catch (const Exception& error) {
      Refuse(error.Message());
    }
  }
  static TVRXStyleValue Value(const QString& word, const QString& rest) {
    for (const Way& way : Ways)
      if (word == QLatin1StringView(way.word)) return way.read(rest);
    Wrong(QStringLiteral("\"%1\" is no way to keep a value: text, integer, float and stream are").arg(word));
  }

  TVRXStyles styles_;
  TVRXStyles::Values* values_ = nullptr;
};

QStringList TVRXStyles::Lines() const {
  if (IsEmpty()) return {};
  QStringList lines{VRXBlockTitle(Title)};
  for (const auto& [path, values] : paths_) {
    lines << Style + u' ' + QuotedText(path);
    for (const auto& [key, value] : values)
      lines << VRXBlockIndent + key.Name + u':' + key.TypeName + QStringLiteral(" = ") + ValueText(value);
  }
  return lines << VRXBlockEnd;
}
TVRXStyles TVRXStyles::FromLines(const QStringList& lines) { return VRXStyleReader().Read(lines); }

QByteArray TVRXStyles::Text() const {
  return VRXBlockText(IsEmpty() ? QStringList{VRXBlockTitle(Title), VRXBlockEnd} : Lines());
}
TVRXStyles TVRXStyles::FromText(const QByteArray& bytes) { return FromLines(VRXBlockLines(bytes)); }

TVRXStyles TVRXStyles::Load(const QString& fileName) {
  const QByteArray text = ReadUserFile(fileName);
  try {
    return FromText(text);
  } catch (const Exception& error) {
    CannotReadUserFile(fileName, error.Message());
  }
}
void TVRXStyles::Save(const QString& fileName) const { WriteUserFile(fileName, Text()); }
