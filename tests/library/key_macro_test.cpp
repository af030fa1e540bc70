// Keystroke macros: what they press, and where their mistakes are.
#include "library/keys/KeyMacro.h"

#include <gtest/gtest.h>

#include <QSet>
#include <random>

namespace {
// "Shift_L down, U0041, Shift_L up"; a number behind a key says how often.
std::string Read(const char16_t* macro) {
  QStringList words;
  for (const TVRXKeyStep& step : VRXReadKeyMacro(QString::fromUtf16(macro))) {
    static const char* const ends[] = {"", " down", " up"};
    QString word = QString::fromLatin1(step.Key + ends[static_cast<int>(step.Action)]);
    if (step.Count != 1) word += QStringLiteral(" x%1").arg(step.Count);
    words << word;
  }
  return words.join(QStringLiteral(", ")).toStdString();
}
// The place of the mistake, from 0 on; -1 when there is none.
int Mistake(const QString& macro) {
  try {
    VRXReadKeyMacro(macro);
    return -1;
  } catch (const EKeyMacroError& error) {
    EXPECT_TRUE(error.Message().startsWith(QStringLiteral("Place %1 of the macro: ").arg(error.Place + 1)));
    return static_cast<int>(error.Place);
  }
}
int Mistake(const char16_t* macro) { return Mistake(QString::fromUtf16(macro)); }
}  // namespace

TEST(KeyMacro, CharactersAreTheKeysThatTypeThem) {
  EXPECT_EQ(Read(u""), "");
  EXPECT_EQ(Read(u"aB 1"), "U0061, U0042, U0020, U0031");
  EXPECT_EQ(Read(u"\u00E4\u20AC\U0001F600"), "U00E4, U20AC, U1F600");
  EXPECT_EQ(Read(u"[x]"), "U005B, U0078, U005D");
  EXPECT_EQ(Read(u"~"), "Return");
  EXPECT_EQ(Read(u"a\nb\r\nc\rd\te"), "U0061, Return, U0062, Return, U0063, Return, U0064, Tab, U0065");
}

TEST(KeyMacro, EveryKeyOfTheTableHasItsKeyInAnyCase) {
  struct Row {
    const char *key, *symbol;
  };
  constexpr Row rows[] = {
      {"~", "Return"},
      {"{BACKSPACE}", "BackSpace"},
      {"{BS}", "BackSpace"},
      {"{BKSP}", "BackSpace"},
      {"{SPACE}", "space"},
      {"{BREAK}", "Pause"},
      {"{CAPSLOCK}", "Caps_Lock"},
      {"{DELETE}", "Delete"},
      {"{DEL}", "Delete"},
      {"{DOWN}", "Down"},
      {"{END}", "End"},
      {"{ENTER}", "Return"},
      {"{ESC}", "Escape"},
      {"{HELP}", "Help"},
      {"{HOME}", "Home"},
      {"{INSERT}", "Insert"},
      {"{INS}", "Insert"},
      {"{LEFT}", "Left"},
      {"{NUMLOCK}", "Num_Lock"},
      {"{PGDN}", "Next"},
      {"{PGUP}", "Prior"},
      {"{PRTSC}", "Print"},
      {"{RIGHT}", "Right"},
      {"{SCROLLLOCK}", "Scroll_Lock"},
      {"{SNAPSHOT}", "Print"},
      {"{TAB}", "Tab"},
      {"{UP}", "Up"},
  };
  QSet<QString> tried{QStringLiteral("+"), QStringLiteral("^"), QStringLiteral("%")};
  const auto expect = [&](const QString& key, const QByteArray& symbol) {
    const TVRXKeySteps wanted{{TVRXKeyAction::Press, symbol}};
    EXPECT_EQ(VRXReadKeyMacro(key), wanted) << key.toStdString();
    EXPECT_EQ(VRXReadKeyMacro(key.toLower()), wanted) << key.toStdString();
    tried << key;
  };
  for (const Row& row : rows) expect(QString::fromLatin1(row.key), row.symbol);
  for (int n = 1; n <= 16; ++n) expect(QStringLiteral("{F%1}").arg(n), "F" + QByteArray::number(n));
  QSet<QString> listed;
  for (const TVRXSupportedKey& key : VRXSupportedKeys()) listed << key.Key;
  EXPECT_EQ(tried, listed);
  EXPECT_EQ(VRXSupportedKeys().size(), 46);
}

TEST(KeyMacro, TheTableExplainsEachKeyInItsOrder) {
  QStringList rows;
  for (const TVRXSupportedKey& key : VRXSupportedKeys()) rows << key.Key + u';' + key.Description;
  EXPECT_EQ(rows.join(u'|').toStdString(),
            "+;Shift|^;Control|%;Alt|~;Enter|{BACKSPACE};Backspace|{BS};Backspace|{BKSP};Backspace|"
            "{SPACE};Space|{BREAK};PAUSE|{CAPSLOCK};CapsLock|{DELETE};Delete|{DEL};Delete|{DOWN};Arrow down|"
            "{END};End|{ENTER};Enter|{ESC};Escape|{HELP};Help or F1|{HOME};Home|{INSERT};Insert|{INS};Insert|"
            "{LEFT};Arrow left|{NUMLOCK};NUMLOCK|{PGDN};Page down|{PGUP};Page up|{PRTSC};Print Screen|"
            "{RIGHT};Arrow right|{SCROLLLOCK};ScrollLock|{SNAPSHOT};Snapshot|{TAB};Tab|{UP};Arrow up|{F1};F1|"
            "{F2};F2|{F3};F3|{F4};F4|{F5};F5|{F6};F6|{F7};F7|{F8};F8|{F9};F9|{F10};F10|{F11};F11|{F12};F12|"
            "{F13};F13|{F14};F14|{F15};F15|{F16};F16");
}

TEST(KeyMacro, ModifiersAreHeldForTheNextKeyOnly) {
  EXPECT_EQ(Read(u"+ab"), "Shift_L down, U0061, Shift_L up, U0062");
  EXPECT_EQ(Read(u"^%{DEL}"), "Control_L down, Alt_L down, Delete, Alt_L up, Control_L up");
  EXPECT_EQ(Read(u"+{TAB 3}"), "Shift_L down, Tab x3, Shift_L up");
  EXPECT_EQ(Read(u"%~"), "Alt_L down, Return, Alt_L up");
  EXPECT_EQ(Read(u"^ "), "Control_L down, U0020, Control_L up");
}

TEST(KeyMacro, GroupsAreHeldTogetherAndInsideOfEachOther) {
  EXPECT_EQ(Read(u"+(ec)d"), "Shift_L down, U0065, U0063, Shift_L up, U0064");
  EXPECT_EQ(Read(u"(ab)"), "U0061, U0062");
  EXPECT_EQ(Read(u"%({TAB 2})"), "Alt_L down, Tab x2, Alt_L up");
  EXPECT_EQ(Read(u"+(a^(bc)d)"),
            "Shift_L down, U0061, Control_L down, U0062, U0063, Control_L up, U0064, Shift_L up");
  EXPECT_EQ(Read(u"+(a+b^+c)"), "Shift_L down, U0061, U0062, Control_L down, U0063, Control_L up, Shift_L up")
      << "what is held already stays so";
}

TEST(KeyMacro, NumbersRepeatAndBracesTakeCharactersAsTheyAre) {
  EXPECT_EQ(Read(u"{LEFT 42}"), "Left x42");
  EXPECT_EQ(Read(u"{h  10}"), "U0068 x10");
  EXPECT_EQ(Read(u"{\U0001F600 2}"), "U1F600 x2");
  EXPECT_EQ(Read(u"{+}{^}{%}{~}{(}{)}{{}{}}"), "U002B, U005E, U0025, U007E, U0028, U0029, U007B, U007D");
  EXPECT_EQ(Read(u"{} 3}{{ 2}{+ 4}"), "U007D x3, U007B x2, U002B x4");
  EXPECT_EQ(Read(u"{ }{  2}"), "U0020, U0020 x2");
  EXPECT_EQ(Read(u"{[}{]}"), "U005B, U005D");
  EXPECT_EQ(VRXKeyCount(VRXReadKeyMacro(QStringLiteral("+(a{b 5})~"))), 7);
}

TEST(KeyMacro, MistakesAreToldWithTheirPlace) {
  struct Row {
    const char16_t* macro;
    int place;
  };
  constexpr Row rows[] = {
      {u"ab}", 2},       {u"a{", 1},        {u"a{ENTER", 1},      {u"x{}", 1},
      {u"{} ", 0},       {u"ab{NOKEY}", 3}, {u"{F0}", 1},         {u"{F17}", 1},
      {u"{F 1 2}", 3},   {u"{LEFT x}", 6},  {u"{LEFT 0}", 6},     {u"{LEFT -1}", 6},
      {u"{LEFT +1}", 6}, {u"{LEFT }", 6},   {u"{LEFT 10001}", 6}, {u"{LEFT 99999999999}", 6},
      {u"{LEFT 3", 0},   {u"{LEFT  ", 0},   {u"a(b", 1},          {u"ab)", 2},
      {u"a+()", 2},      {u"()", 0},        {u"(())", 1},         {u"ab+", 2},
      {u"^", 0},         {u"(a%)", 2},      {u"(a%)b", 2},        {u"++a", 1},
      {u"+^+a", 2},      {u"a\u0001", 1},   {u"\u0085", 0},       {u"a\xD800", 1},
      {u"\xDC00", 0},    {u"{\xD800}", 1},  {u"{{", 0},           {u"{ENTER{}", 1},
      {u"{}}}", 3},      {u"{\u0002}", 1},
  };
  for (const Row& row : rows)
    EXPECT_EQ(Mistake(row.macro), row.place) << QString::fromUtf16(row.macro).toStdString();
}

TEST(KeyMacro, TooManyKeysAreRefusedWhereTheyBecomeTooMany) {
  QString macro;
  for (int i = 0; i < 10; ++i) macro += QStringLiteral("{a 10000}");
  EXPECT_EQ(Mistake(macro), -1);
  EXPECT_EQ(Mistake(macro + u'b'), macro.size());
  // However deep parentheses are.
  const QString deep = QString(200'000, u'(') + u'a' + QString(200'000, u')');
  EXPECT_EQ(Mistake(deep), -1);
  EXPECT_EQ(Mistake(deep.chopped(1)), 0);
}

TEST(KeyMacro, WhateverIsReadReleasesWhatItHolds) {
  std::mt19937 random(6);
  const QString letters = QStringLiteral("ab+^%(){}~ 3EFNTR\n");
  int fine = 0;
  for (int i = 0; i < 20'000; ++i) {
    QString macro;
    for (auto n = random() % 9; n > 0; --n) macro += letters[static_cast<qsizetype>(random() % 18)];
    QList<QByteArray> held;
    try {
      for (const TVRXKeyStep& step : VRXReadKeyMacro(macro)) {
        if (step.Action == TVRXKeyAction::Hold) {
          EXPECT_FALSE(held.contains(step.Key));
          held << step.Key;
        } else if (step.Action == TVRXKeyAction::Release) {
          EXPECT_EQ(held.takeLast(), step.Key);
        }
      }
      EXPECT_TRUE(held.isEmpty());
      ++fine;
    } catch (const EKeyMacroError& error) {
      EXPECT_GE(error.Place, 0);
      EXPECT_LT(error.Place, macro.size()) << macro.toStdString();
    }
  }
  EXPECT_GT(fine, 1000);
}
