#include "vcl/ShortCut.h"

#include <algorithm>
#include <vector>

namespace {
struct KeyRow {
  int code;  // virtual key
  int qtKey;
  QString name;
};

const std::vector<KeyRow>& Keys() {
  static const std::vector<KeyRow> keys = [] {
    std::vector<KeyRow> rows;
    for (int i = 0; i < 26; ++i) rows.push_back({'A' + i, Qt::Key_A + i, QString(QChar('A' + i))});
    for (int i = 0; i < 10; ++i) rows.push_back({'0' + i, Qt::Key_0 + i, QString(QChar('0' + i))});
    for (int i = 0; i < 24; ++i) rows.push_back({0x70 + i, Qt::Key_F1 + i, QStringLiteral("F%1").arg(i + 1)});
    for (int i = 0; i < 10; ++i) rows.push_back({0x60 + i, 0, QStringLiteral("Num %1").arg(i)});
    rows.insert(rows.end(), {{0x08, Qt::Key_Backspace, QStringLiteral("BkSp")},
                             {0x09, Qt::Key_Tab, QStringLiteral("Tab")},
                             {0x0D, Qt::Key_Return, QStringLiteral("Enter")},
                             {0x1B, Qt::Key_Escape, QStringLiteral("Esc")},
                             {0x20, Qt::Key_Space, QStringLiteral("Space")},
                             {0x21, Qt::Key_PageUp, QStringLiteral("PgUp")},
                             {0x22, Qt::Key_PageDown, QStringLiteral("PgDn")},
                             {0x23, Qt::Key_End, QStringLiteral("End")},
                             {0x24, Qt::Key_Home, QStringLiteral("Home")},
                             {0x25, Qt::Key_Left, QStringLiteral("Left")},
                             {0x26, Qt::Key_Up, QStringLiteral("Up")},
                             {0x27, Qt::Key_Right, QStringLiteral("Right")},
                             {0x28, Qt::Key_Down, QStringLiteral("Down")},
                             {0x2D, Qt::Key_Insert, QStringLiteral("Ins")},
                             {0x2E, Qt::Key_Delete, QStringLiteral("Del")},
                             {0x6A, Qt::Key_Asterisk, QStringLiteral("Num *")},
                             {0x6B, Qt::Key_Plus, QStringLiteral("Num +")},
                             {0x6D, Qt::Key_Minus, QStringLiteral("Num -")},
                             {0x6F, Qt::Key_Slash, QStringLiteral("Num /")},
                             {0xBA, Qt::Key_Semicolon, QStringLiteral(";")},
                             {0xBB, Qt::Key_Equal, QStringLiteral("=")},
                             {0xBC, Qt::Key_Comma, QStringLiteral(",")},
                             {0xBD, 0, QStringLiteral("-")},
                             {0xBE, Qt::Key_Period, QStringLiteral(".")},
                             {0xBF, 0, QStringLiteral("/")},
                             {0xC0, Qt::Key_QuoteLeft, QStringLiteral("`")},
                             {0xDB, Qt::Key_BracketLeft, QStringLiteral("[")},
                             {0xDC, Qt::Key_Backslash, QStringLiteral("\\")},
                             {0xDD, Qt::Key_BracketRight, QStringLiteral("]")},
                             {0xDE, Qt::Key_Apostrophe, QStringLiteral("'")}});
    return rows;
  }();
  return keys;
}

struct ModifierRow {
  std::uint16_t bit;
  Qt::KeyboardModifier qt;
  const char* name;
};
// In the order in which menus show them.
constexpr ModifierRow Modifiers[] = {{scShift, Qt::ShiftModifier, "Shift+"},
                                     {scCtrl, Qt::ControlModifier, "Ctrl+"},
                                     {scAlt, Qt::AltModifier, "Alt+"}};
}  // namespace

const TTypeInfo& TypeInfoOf<TShortCut>::Get() {
  static const TTypeInfo info = OrdinalType("TShortCut", 0, UINT16_MAX);
  return info;
}

QString ShortCutToText(TShortCut shortCut) {
  const auto word = static_cast<std::uint16_t>(shortCut);
  const auto key = std::find_if(Keys().begin(), Keys().end(),
                                [&](const KeyRow& row) { return row.code == (word & 0xFF); });
  if (key == Keys().end() || (word & 0x1F00) != 0) return {};
  QString text;
  for (const ModifierRow& m : Modifiers)
    if (word & m.bit) text += QLatin1String(m.name);
  return text + key->name;
}

TShortCut TextToShortCut(const QString& text) {
  QString rest = text.trimmed();
  unsigned word = 0;
  for (bool found = true; found;) {
    found = false;
    for (const ModifierRow& m : Modifiers)
      if (rest.startsWith(QLatin1String(m.name), Qt::CaseInsensitive)) {
        word |= m.bit;
        rest = rest.sliced(static_cast<qsizetype>(qstrlen(m.name)));
        found = true;
      }
  }
  for (const KeyRow& row : Keys())
    if (row.name.compare(rest, Qt::CaseInsensitive) == 0)
      return static_cast<TShortCut>(word | static_cast<unsigned>(row.code));
  return {};
}

TShortCut ShortCutOf(int qtKey, Qt::KeyboardModifiers modifiers) {
  if (qtKey == Qt::Key_Enter) qtKey = Qt::Key_Return;
  if (qtKey == Qt::Key_Backtab) qtKey = Qt::Key_Tab;
  for (const KeyRow& row : Keys()) {
    if (row.qtKey == 0 || row.qtKey != qtKey) continue;
    unsigned word = static_cast<unsigned>(row.code);
    for (const ModifierRow& m : Modifiers)
      if (modifiers & m.qt) word |= m.bit;
    return static_cast<TShortCut>(word);
  }
  return {};
}

QStringList ShortCutTexts() {
  QStringList texts;
  const auto add = [&](unsigned bits, int from, int to) {
    for (int code = from; code <= to; ++code)
      texts << ShortCutToText(static_cast<TShortCut>(bits | static_cast<unsigned>(code)));
  };
  add(scCtrl, 'A', 'Z');
  add(scCtrl | scAlt, 'A', 'Z');
  for (const unsigned bits : {0u, unsigned{scCtrl}, unsigned{scShift}, scShift | unsigned{scCtrl}})
    add(bits, 0x70, 0x7B);
  for (const unsigned bits : {0u, unsigned{scShift}, unsigned{scCtrl}}) {
    add(bits, 0x2D, 0x2E);
  }
  add(scAlt, 0x08, 0x08);
  add(scShift | scAlt, 0x08, 0x08);
  return texts;
}
