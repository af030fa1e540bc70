#include "library/keys/KeyMacro.h"

#include <QHash>
#include <QObject>

EKeyMacroError::EKeyMacroError(qsizetype place, const QString& text)
    : ESendKeysError(QObject::tr("Place %1 of the macro: %2").arg(place + 1).arg(text)), Place(place) {}

namespace {
struct KeyRow {
  const char* key;
  const char* description;
  const char* symbol;
};
constexpr KeyRow Rows[] = {
    {"+", "Shift", "Shift_L"},
    {"^", "Control", "Control_L"},
    {"%", "Alt", "Alt_L"},
    {"~", "Enter", "Return"},
    {"{BACKSPACE}", "Backspace", "BackSpace"},
    {"{BS}", "Backspace", "BackSpace"},
    {"{BKSP}", "Backspace", "BackSpace"},
    {"{SPACE}", "Space", "space"},
    {"{BREAK}", "PAUSE", "Pause"},
    {"{CAPSLOCK}", "CapsLock", "Caps_Lock"},
    {"{DELETE}", "Delete", "Delete"},
    {"{DEL}", "Delete", "Delete"},
    {"{DOWN}", "Arrow down", "Down"},
    {"{END}", "End", "End"},
    {"{ENTER}", "Enter", "Return"},
    {"{ESC}", "Escape", "Escape"},
    {"{HELP}", "Help or F1", "Help"},
    {"{HOME}", "Home", "Home"},
    {"{INSERT}", "Insert", "Insert"},
    {"{INS}", "Insert", "Insert"},
    {"{LEFT}", "Arrow left", "Left"},
    {"{NUMLOCK}", "NUMLOCK", "Num_Lock"},
    {"{PGDN}", "Page down", "Next"},
    {"{PGUP}", "Page up", "Prior"},
    {"{PRTSC}", "Print Screen", "Print"},
    {"{RIGHT}", "Arrow right", "Right"},
    {"{SCROLLLOCK}", "ScrollLock", "Scroll_Lock"},
    {"{SNAPSHOT}", "Snapshot", "Print"},
    {"{TAB}", "Tab", "Tab"},
    {"{UP}", "Arrow up", "Up"},
};
constexpr int FunctionKeys = 16;
// One key, and all keys of a macro.
constexpr int MostRepeats = 10'000, MostKeys = 100'000;

const QHash<QString, QByteArray>& Symbols() {
  static const QHash<QString, QByteArray> symbols = [] {
    QHash<QString, QByteArray> all;
    for (const KeyRow& row : Rows) all.insert(QString::fromLatin1(row.key), row.symbol);
    for (int n = 1; n <= FunctionKeys; ++n)
      all.insert(QStringLiteral("{F%1}").arg(n), "F" + QByteArray::number(n));
    return all;
  }();
  return symbols;
}

QByteArray SymbolOf(char32_t c) {
  return 'U' + QByteArray::number(static_cast<uint>(c), 16).toUpper().rightJustified(4, '0');
}

class MacroReader {
 public:
  explicit MacroReader(const QString& text) : text_(text) {}

  TVRXKeySteps Read() {
    while (at_ < text_.size()) ReadNext();
    RefusePending();
    if (!groups_.isEmpty()) Fail(groups_.last().at, QObject::tr("this parenthesis is not closed"));
    return std::move(steps_);
  }

 private:
  struct Modifier {
    qsizetype at;
    QByteArray key;
  };
  struct Group {
    qsizetype at;
    QList<QByteArray> held;
    qsizetype steps;  // when it began
  };
  [[noreturn]] static void Fail(qsizetype at, const QString& text) { throw EKeyMacroError(at, text); }

  void ReadNext() {
    const qsizetype at = at_;
    const QChar c = text_[at_];
    if (c == u'{') return ReadBraces();
    if (c == u'+' || c == u'^' || c == u'%') return AddModifier(Symbols()[c]);
    if (c == u'(') return OpenGroup();
    if (c == u')') return CloseGroup();
    if (c == u'}') Fail(at, QObject::tr("nothing is open that \"}\" could close; the character is {}}"));
    const char32_t letter = TakeCharacter();
    Press(letter == u'~' ? Symbols()[QStringLiteral("~")] : KeyOf(letter, at), 1, at);
  }

  char32_t TakeCharacter() {
    const QChar c = text_[at_++];
    if (!c.isSurrogate()) return c.unicode();
    if (!c.isHighSurrogate() || at_ == text_.size() || !text_[at_].isLowSurrogate())
      Fail(at_ - 1, QObject::tr("half of a character"));
    return QChar::surrogateToUcs4(c, text_[at_++]);
  }

  QByteArray KeyOf(char32_t c, qsizetype at) {
    if (c == u'\r' && at_ < text_.size() && text_[at_] == u'\n') ++at_;
    if (c == u'\r' || c == u'\n') return "Return";
    if (c == u'\t') return "Tab";
    if (c < 0x20 || (c >= 0x7F && c < 0xA0)) Fail(at, QObject::tr("a control character, which no key types"));
    return SymbolOf(c);
  }

  // "{NAME}", "{x}", and either with a number.
  void ReadBraces() {
    const qsizetype open = at_++;
    if (at_ == text_.size()) Fail(open, QObject::tr("this brace is not closed"));
    const qsizetype begin = at_;
    const char32_t first = TakeCharacter();
    if (first == u'}' && (at_ == text_.size() || (text_[at_] != u'}' && text_[at_] != u' ')))
      Fail(open, QObject::tr("no key stands between the braces"));
    // Whatever stands first belongs to the key, also what would mean something elsewhere.
    while (at_ < text_.size() && text_[at_] != u'}' && text_[at_] != u' ') ++at_;
    const QString name = text_.mid(begin, at_ - begin);
    if (at_ == text_.size()) Fail(open, QObject::tr("this brace is not closed"));
    const bool one = name.size() == (QChar::requiresSurrogates(first) ? 2 : 1);
    const QByteArray key = one ? KeyOf(first, begin) : Symbols().value(u'{' + name.toUpper() + u'}');
    if (key.isEmpty()) Fail(begin, QObject::tr("there is no key \"%1\"").arg(name));
    const int count = text_[at_] == u' ' ? ReadCount(open) : 1;
    ++at_;
    Press(key, count, open);
  }

  int ReadCount(qsizetype open) {
    while (at_ < text_.size() && text_[at_] == u' ') ++at_;
    const qsizetype begin = at_;
    while (at_ < text_.size() && text_[at_] != u'}') ++at_;
    if (at_ == text_.size()) Fail(open, QObject::tr("this brace is not closed"));
    const QString digits = text_.mid(begin, at_ - begin);
    bool number = !digits.isEmpty();
    for (const QChar c : digits) number = number && c >= u'0' && c <= u'9';
    const int count = number ? digits.toInt(&number) : 0;
    if (!number || count < 1 || count > MostRepeats)
      Fail(begin, QObject::tr("\"%1\" is not how often a key can be pressed: 1 to %2 times")
                      .arg(digits, QString::number(MostRepeats)));
    return count;
  }

  void AddModifier(const QByteArray& key) {
    for (const Modifier& m : pending_)
      if (m.key == key) Fail(at_, QObject::tr("this key is held already"));
    pending_.append({at_++, key});
  }
  void RefusePending() {
    if (!pending_.isEmpty())
      Fail(pending_.first().at, QObject::tr("no key follows that this one could be held for; the character "
                                            "itself is {%1}")
                                    .arg(text_[pending_.first().at]));
  }

  // What a group around holds already is neither pressed nor released in it.
  QList<QByteArray> HoldPending() {
    QList<QByteArray> held;
    for (const Modifier& m : pending_)
      if (!held_.contains(m.key)) {
        steps_.append({TVRXKeyAction::Hold, m.key});
        held.append(m.key);
      }
    held_ += held;
    pending_.clear();
    return held;
  }
  void ReleaseLast(const QList<QByteArray>& held) {
    for (auto key = held.rbegin(); key != held.rend(); ++key) {
      steps_.append({TVRXKeyAction::Release, *key});
      held_.removeLast();
    }
  }
  void Press(const QByteArray& key, int count, qsizetype at) {
    keys_ += count;
    if (keys_ > MostKeys) Fail(at, QObject::tr("more than %1 keys in one macro").arg(MostKeys));
    const QList<QByteArray> held = HoldPending();
    steps_.append({TVRXKeyAction::Press, key, count});
    ReleaseLast(held);
  }

  void OpenGroup() {
    const qsizetype at = at_++;
    const QList<QByteArray> held = HoldPending();
    groups_.append({at, held, steps_.size()});
  }
  void CloseGroup() {
    RefusePending();
    if (groups_.isEmpty())
      Fail(at_, QObject::tr("nothing is open that \")\" could close; the character is {)}"));
    const Group group = groups_.takeLast();
    if (group.steps == steps_.size()) Fail(group.at, QObject::tr("no key stands between the parentheses"));
    ++at_;
    ReleaseLast(group.held);
  }

  const QString& text_;
  qsizetype at_ = 0;
  TVRXKeySteps steps_;
  QList<Modifier> pending_;  // for the next key or group
  QList<QByteArray> held_;   // of all groups
  QList<Group> groups_;
  int keys_ = 0;
};
}  // namespace

TVRXKeySteps VRXReadKeyMacro(const QString& macro) { return MacroReader(macro).Read(); }

int VRXKeyCount(const TVRXKeySteps& steps) {
  int count = 0;
  for (const TVRXKeyStep& step : steps) count += step.Action == TVRXKeyAction::Press ? step.Count : 0;
  return count;
}

const QList<TVRXSupportedKey>& VRXSupportedKeys() {
  static const QList<TVRXSupportedKey> keys = [] {
    QList<TVRXSupportedKey> all;
    for (const KeyRow& row : Rows)
      all.append({QString::fromLatin1(row.key), QString::fromLatin1(row.description)});
    for (int n = 1; n <= FunctionKeys; ++n)
      all.append({QStringLiteral("{F%1}").arg(n), QStringLiteral("F%1").arg(n)});
    return all;
  }();
  return keys;
}
