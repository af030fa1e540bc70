// Files of styles. The first line says what it is and in which version; then a block for each style in order
// of its path, whose indented lines are its values in order of their names; the last line is "end", so that a
// piece of a file is not taken for the whole. Blocks and ways of values that nobody here knows are kept and
// written again.
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <array>
#include <charconv>
#include <cmath>

#include "library/styles/Styles.h"
#include "library/values/ValueText.h"
#include "rtl/Exceptions.h"
#include "rtl/PropValue.h"

namespace {
constexpr int Version = 1;
const QString Title = QStringLiteral("Styles"), End = QStringLiteral("end"), Style = QStringLiteral("style"),
              Indent = QStringLiteral("  ");

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
              },
              [](const TVRXForeignValue& v) { return v.Text; }},
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

QString Short(const QString& text) {
  constexpr int most = 40;
  return text.size() > most ? text.left(most) + QStringLiteral("...") : text;
}
}  // namespace

class VRXStyleReader {
 public:
  explicit VRXStyleReader(const QStringList& lines) : lines_(lines) {}
  TVRXStyles Read() {
    if (lines_.isEmpty()) return {};
    Head();
    bool ended = false;
    for (at_ = 1; at_ < lines_.size(); ++at_) {
      const QString& line = lines_[at_];
      if (line.trimmed().isEmpty()) continue;
      if (ended) Refuse(QStringLiteral("there is something behind the end"));
      if (line == End)
        ended = true;
      else if (line.startsWith(u' ') || line.startsWith(u'\t'))
        Inside(line.trimmed());
      else
        Block(line);
    }
    if (!ended) {
      at_ = lines_.size() - 1;
      Refuse(QStringLiteral("it ends before its last line, \"end\""));
    }
    return std::move(styles_);
  }

 private:
  [[noreturn]] void Refuse(const QString& why) const {
    throw Exception(QStringLiteral("line %1: %2").arg(at_ + 1).arg(why));
  }
  void Head() {
    static const QRegularExpression head(QStringLiteral("^Styles ([0-9]{1,6})$"));
    const auto match = head.match(lines_[0]);
    if (!match.hasMatch())
      Refuse(QStringLiteral("a file that begins with \"%1 %2\" is needed").arg(Title).arg(Version));
    if (const int version = match.captured(1).toInt(); version != Version)
      Refuse(QStringLiteral("the file is of version %1, and only version %2 is known")
                 .arg(version)
                 .arg(Version));
  }
  void Block(const QString& line) {
    static const QRegularExpression head(QStringLiteral("^[A-Za-z][A-Za-z0-9_]*( .*)?$"));
    if (!head.match(line).hasMatch()) Refuse(QStringLiteral("\"%1\" begins no block").arg(Short(line)));
    values_ = nullptr;
    if (line.section(u' ', 0, 0) != Style) {
      styles_.foreign_ << line;
      return;
    }
    QString path;
    if (!UnquotedText(line.section(u' ', 1).trimmed(), path))
      Refuse(QStringLiteral("a style needs its path in quotes"));
    for (const QString& name : path.split(VRXStyleSeparator))
      if (name.isEmpty() || name == QStringLiteral("(Default)"))
        Refuse(QStringLiteral("\"%1\" is no path of a style").arg(Short(path)));
    const auto [at, isNew] = styles_.paths_.try_emplace(path);
    if (!isNew) Refuse(QStringLiteral("the style %1 is there already").arg(Short(path)));
    values_ = &at->second;
  }
  void Inside(const QString& line) {
    if (!values_) {
      if (styles_.foreign_.isEmpty()) Refuse(QStringLiteral("a line of a block stands in none"));
      styles_.foreign_ << Indent + line;
      return;
    }
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
    return TVRXForeignValue{(word + u' ' + rest).trimmed()};
  }

  const QStringList& lines_;
  qsizetype at_ = 0;
  TVRXStyles styles_;
  TVRXStyles::Values* values_ = nullptr;
};

QStringList TVRXStyles::Lines() const {
  if (IsEmpty()) return {};
  QStringList lines{QStringLiteral("%1 %2").arg(Title).arg(Version)};
  for (const auto& [path, values] : paths_) {
    lines << Style + u' ' + QuotedText(path);
    for (const auto& [key, value] : values)
      lines << Indent + key.Name + u':' + key.TypeName + QStringLiteral(" = ") + ValueText(value);
  }
  return lines << foreign_ << End;
}
TVRXStyles TVRXStyles::FromLines(const QStringList& lines) { return VRXStyleReader(lines).Read(); }

QByteArray TVRXStyles::Text() const {
  const QStringList lines =
      IsEmpty() ? QStringList{QStringLiteral("%1 %2").arg(Title).arg(Version), End} : Lines();
  return (lines.join(u'\n') + u'\n').toUtf8();
}

TVRXStyles TVRXStyles::FromText(const QByteArray& bytes) {
  const QByteArray mark = "\xEF\xBB\xBF";
  const QByteArray plain = bytes.startsWith(mark) ? bytes.mid(mark.size()) : bytes;
  QString text = QString::fromUtf8(plain);
  if (text.toUtf8() != plain || text.contains(QChar(0)))
    throw Exception(QStringLiteral("line 1: it is no text"));
  return FromLines(text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).split(u'\n'));
}

TVRXStyles TVRXStyles::Load(const QString& fileName) {
  constexpr qint64 most = qint64{64} << 20;
  const auto refuse = [&](const QString& why) {
    throw Exception(QStringLiteral("%1 cannot be read: %2.").arg(fileName, why));
  };
  const QFileInfo info(fileName);
  if (info.exists() && !info.isFile()) refuse(QStringLiteral("it is no file"));
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly)) refuse(file.errorString());
  if (file.size() > most) refuse(QStringLiteral("it is larger than %1 MB").arg(most >> 20));
  try {
    return FromText(file.readAll());
  } catch (const Exception& error) {
    refuse(error.Message());
  }
  return {};
}

void TVRXStyles::Save(const QString& fileName) const {
  const QByteArray text = Text();
  QSaveFile file(fileName);
  if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
    throw Exception(QStringLiteral("%1 cannot be written: %2.").arg(fileName, file.errorString()));
}
