#include "forms/TextReader.h"

#include <cstring>

#include "forms/Encoding.h"
#include "forms/PlainValues.h"

namespace forms {

namespace {
std::optional<ObjectKind> KindOf(QByteArrayView word) {
  if (Is(word, "object")) return ObjectKind::Object;
  if (Is(word, "inherited")) return ObjectKind::Inherited;
  if (Is(word, "inline")) return ObjectKind::Inline;
  return {};
}
// What cannot be the name of a property.
bool IsKeyword(QByteArrayView word) {
  const int first = word[0] | 0x20;
  return (first == 'e' || first == 'o' || first == 'i') && (Is(word, "end") || KindOf(word));
}
}  // namespace

QByteArray WithoutBlanks(QByteArrayView path) {
  QByteArray name;
  bool directive = false;
  for (const char c : path) {
    directive = directive || c == '{';
    if (!directive && !IsBlank(c)) name += c;
    directive = directive && c != '}';
  }
  return name;
}

bool IsPath(QByteArrayView text) {
  bool start = true;
  for (const char c : text) {
    if (start ? !IsIdentStart(c) : c != '.' && !IsIdentChar(c)) return false;
    start = c == '.';
  }
  return !start;
}

bool IsPropertyPath(QByteArrayView text) {
  const qsizetype point = text.indexOf('.');
  const QByteArrayView word = point < 0 ? text : text.first(point);
  return IsPath(text) && !Is(word, "end") && !KindOf(word);
}

bool IsHeaderName(QByteArrayView text) {
  const auto plain = [](char c) { return IsIdentChar(c) || c == '%'; };
  if (text.isEmpty() || !std::all_of(text.begin(), text.end(), plain)) return false;
  const auto marks = std::count(text.begin(), text.end(), '%');
  return marks ? marks % 2 == 0 : IsIdentStart(text[0]);
}

TextReader::TextReader(QByteArrayView text, std::size_t at)
    : begin_(text.data()), p_(text.data() + at), end_(text.data() + text.size()) {}

void TextReader::Fail(const QString& text, const char* at) const {
  const auto offset = static_cast<std::size_t>((at ? at : p_) - begin_);
  throw EFormError(text, LocationOf(QByteArrayView(begin_, end_), offset));
}

void TextReader::FailTooMany() const {
  Fail(QStringLiteral("The form has too many parts: in memory it would take more than %1 MB")
           .arg(MaxFormMemory >> 20));
}

// What stands here, for messages: the rest of the word or the single character.
QByteArray TextReader::Here() const {
  if (p_ == end_) return "the end of the file";
  const char* q = p_;
  while (q != end_ && q - p_ < 30 && !IsBlank(*q)) ++q;
  if (q == p_) return "a line end";
  QByteArray word(p_, q - p_);
  for (char& c : word)
    if (static_cast<unsigned char>(c) < 32 || static_cast<unsigned char>(c) > 126) c = '?';
  return "\"" + word + "\"";
}

// Form templates have conditional lines ({$IFDEF ...}); binary data never starts with "$", so they can be
// told apart.
void TextReader::SkipDirectives() {
  while (end_ - p_ >= 2 && p_[0] == '{' && p_[1] == '$') {
    const char* open = p_;
    while (p_ != end_ && *p_ != '}' && *p_ != '\n') ++p_;
    if (p_ == end_ || *p_ != '}') Fail(QStringLiteral("The directive is not closed: \"}\" is missing"), open);
    ++p_;
    directives_ = true;
    while (p_ != end_ && IsBlank(*p_)) ++p_;
  }
}

QByteArrayView TextReader::Take(QByteArrayView word, const char* what) {
  if (word.isEmpty())
    Fail(QStringLiteral("%1 expected, but %2 found")
             .arg(QLatin1StringView(what), QString::fromLatin1(Here())));
  if (word.size() > 255)
    Fail(QStringLiteral("%1 is longer than 255 characters").arg(QLatin1StringView(what)));
  p_ += word.size();
  return word;
}

// Names in an object's header. Form templates carry %PLACEHOLDERS% there, to be filled in later.
QByteArrayView TextReader::HeaderWord(const char* what) {
  const char* start = p_;
  bool inside = false;
  for (; p_ != end_ && (IsIdentChar(*p_) || *p_ == '%'); ++p_)
    if (*p_ == '%') inside = !inside;
  const QByteArrayView word(start, p_);
  if (inside || !word.contains('%')) {
    p_ = start;
    return Word(what);
  }
  if (word.size() > 255)
    Fail(QStringLiteral("%1 is longer than 255 characters").arg(QLatin1StringView(what)), start);
  return word;
}

void TextReader::Expect(char c, const char* what) {
  SkipBlanks();
  if (p_ == end_ || *p_ != c)
    Fail(QStringLiteral("%1 expected, but %2 found")
             .arg(QLatin1StringView(what), QString::fromLatin1(Here())));
  ++p_;
}

// A node takes the rest of its line with it when nothing else stands there.
std::size_t TextReader::NodeEnd() {
  if (p_ != end_ && *p_ == '\n') {
    ++p_;
    return Offset();
  }
  const char* q = p_;
  while (q != end_ && (*q == ' ' || *q == '\t')) ++q;
  if (q != end_ && *q == '\r') ++q;
  if (q != end_ && *q == '\n') ++q;
  if (q != p_ && (q[-1] == '\n' || q[-1] == '\r')) p_ = q;
  return Offset();
}

QByteArrayView TextReader::PropertyPath(QByteArrayView firstWord) {
  const char* start = p_;
  Take(firstWord, "A property name");
  while (p_ != end_ && *p_ == '.') {
    ++p_;
    SkipBlanks();
    Word("A property name");
  }
  return {start, p_};
}

// A name without blanks and " = " behind it, as nearly every line has it; empty, and nothing is taken, where
// the grammar must be asked.
QByteArrayView TextReader::UsualName(QByteArrayView firstWord) {
  const char* q = firstWord.end();
  while (end_ - q > 1 && *q == '.' && IsIdentStart(q[1])) {
    q += 2;
    while (q != end_ && IsIdentChar(*q)) ++q;
  }
  if (q - p_ > MaxWord || end_ - q < 4 || q[0] != ' ' || q[1] != '=' || q[2] != ' ' || IsBlank(q[3]) ||
      q[3] == '{')
    return {};
  return {std::exchange(p_, q + 3), q};
}

void TextReader::ReadDocument(FormTree& tree) {
  if (end_ - begin_ >= 3 && std::memcmp(begin_, "\xEF\xBB\xBF", 3) == 0) {
    p_ += 3;
    tree.before = {0, 3};
  }
  const std::size_t rootBegin = Offset();
  SkipBlanks();
  tree.root = ReadObject(tree, rootBegin, 0);
  tree.trailer = {static_cast<std::uint32_t>(Offset()), static_cast<std::uint32_t>(end_ - begin_)};
  TakeStyle(tree);
}

void TextReader::ReadObjects(FormTree& tree) {
  if (QByteArrayView(p_, end_).startsWith("\xEF\xBB\xBF")) p_ += 3;
  tree.root = std::make_unique<Object>();
  do {
    const std::size_t nodeBegin = Offset();
    SkipBlanks();
    auto child = ReadObject(tree, nodeBegin, 1);
    child->parent = tree.root.get();
    tree.root->children.push_back(std::move(child));
    SkipBlanks();
  } while (p_ != end_);
  TakeStyle(tree);
}

// How the text writes what can be written in several ways.
void TextReader::TakeStyle(FormTree& tree) const {
  tree.isTemplate = directives_;
  Dialect& d = tree.dialect;
  const char* firstEnd =
      static_cast<const char*>(std::memchr(begin_, '\n', static_cast<size_t>(end_ - begin_)));
  if (firstEnd)
    d.eol = firstEnd != begin_ && firstEnd[-1] == '\r' ? "\r\n" : "\n";
  else if (std::memchr(begin_, '\r', static_cast<size_t>(end_ - begin_)))
    d.eol = "\r";
  const int vcl = glued_ * 4 + coded39_ + blankIndex_;
  const int lcl = apart_ * 4 + doubledQuotes_ + tightIndex_;
  if (vcl != lcl) d.lcl = lcl > vcl;
  d.foreignWords = d.foreignWords || d.lcl;
  d.fixedFloats = fixedFloats_ != shortFloats_ ? fixedFloats_ > shortFloats_ : !d.lcl;
  tree.utf8 = IsUtf8(QByteArrayView(begin_, end_));
  d.literalHighBytes = tree.utf8 && (highBytes_ > 0 || d.lcl);
}

std::unique_ptr<Object> TextReader::ReadObject(FormTree& tree, std::size_t nodeBegin, int depth) {
  if (depth > MaxDepth) Fail(QStringLiteral("Objects are nested more than %1 deep").arg(MaxDepth));
  Charge(cost::Object);
  auto object = std::make_unique<Object>();
  const char* at = p_;
  const auto kind = KindOf(Word("\"object\", \"inherited\" or \"inline\""));
  if (!kind) {
    p_ = at;
    Fail(QStringLiteral("\"object\", \"inherited\" or \"inline\" expected, but %1 found")
             .arg(QString::fromLatin1(Here())));
  }
  object->kind = *kind;
  SkipBlanks();
  QByteArrayView first = HeaderWord("A component name or class");
  const char* afterWord = p_;
  SkipBlanks();
  if (p_ != end_ && *p_ == ':') {
    ++p_;
    SkipBlanks();
    object->name = QByteArray::fromRawData(first.data(), first.size());
    first = HeaderWord("A class name");
    afterWord = p_;
    SkipBlanks();
  }
  object->className = QByteArray::fromRawData(first.data(), first.size());
  if (p_ != end_ && *p_ == '[') {
    (p_ == afterWord ? tightIndex_ : blankIndex_)++;
    ++p_;
    SkipBlanks();
    object->position = ReadInteger();
    Expect(']', "\"]\" behind the child position");
    afterWord = p_;
  }
  p_ = afterWord;
  object->header = {static_cast<std::uint32_t>(nodeBegin), static_cast<std::uint32_t>(NodeEnd())};

  ReadProperties(tree, *object);

  for (;;) {
    const std::size_t childBegin = Offset();
    SkipBlanks();
    const QByteArrayView word = PeekWord();
    if (Is(word, "end")) {
      p_ += word.size();
      object->footer = {static_cast<std::uint32_t>(childBegin), static_cast<std::uint32_t>(NodeEnd())};
      return object;
    }
    if (!KindOf(word)) {
      if (p_ == end_)
        Fail(QStringLiteral("The file ends inside %1: \"end\" is missing")
                 .arg(QString::fromLatin1(object->name.isEmpty() ? object->className : object->name)));
      Fail(word.isEmpty() ? QStringLiteral("A property, an object or \"end\" expected, but %1 found")
                                .arg(QString::fromLatin1(Here()))
                          : QStringLiteral("Property %1 stands behind a child object; properties come first")
                                .arg(QString::fromLatin1(word)));
    }
    auto child = ReadObject(tree, childBegin, depth + 1);
    child->parent = object.get();
    object->children.push_back(std::move(child));
  }
}

// Properties are gathered in one scratch list and copied out at their exact number.
void TextReader::ReadProperties(FormTree& tree, Object& object) {
  scratch_.clear();
  for (;;) {
    const char* nodeStart = p_;
    SkipBlanks();
    const QByteArrayView word = PeekWord();
    if (word.isEmpty() || IsKeyword(word)) {
      p_ = nodeStart;
      break;
    }
    QByteArrayView name = UsualName(word);
    if (name.isEmpty()) {
      name = PropertyPath(word);
      const auto foreign = [](char c) { return IsBlank(c) || c == '{'; };
      if (name.size() > word.size() && std::any_of(name.begin(), name.end(), foreign))
        name = tree.Intern(WithoutBlanks(name));
      Expect('=', "\"=\"");
      SkipBlanks();
    }
    const char* value = p_;
    ReadValue(nullptr);
    NodeEnd();
    scratch_.emplace_back(name, QByteArrayView(nodeStart, p_), value);
    Charge(cost::Property);
  }
  object.properties.reserve(scratch_.size());
  for (Property& p : scratch_) object.properties.push_back(std::move(p));
}

}  // namespace forms
