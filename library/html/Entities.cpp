#include "library/html/Entities.h"

#include <QHash>

namespace html {

namespace {
struct Row {
  const char* name;
  char16_t character;
};
constexpr Row Rows[] = {
    {"quot", 0x0022},    {"amp", 0x0026},    {"lt", 0x003C},     {"gt", 0x003E},     {"apos", 0x0027},
    {"nbsp", 0x00A0},    {"iexcl", 0x00A1},  {"cent", 0x00A2},   {"pound", 0x00A3},  {"curren", 0x00A4},
    {"yen", 0x00A5},     {"brvbar", 0x00A6}, {"sect", 0x00A7},   {"uml", 0x00A8},    {"copy", 0x00A9},
    {"ordf", 0x00AA},    {"laquo", 0x00AB},  {"not", 0x00AC},    {"shy", 0x00AD},    {"reg", 0x00AE},
    {"macr", 0x00AF},    {"deg", 0x00B0},    {"plusmn", 0x00B1}, {"sup2", 0x00B2},   {"sup3", 0x00B3},
    {"acute", 0x00B4},   {"micro", 0x00B5},  {"para", 0x00B6},   {"middot", 0x00B7}, {"cedil", 0x00B8},
    {"sup1", 0x00B9},    {"ordm", 0x00BA},   {"raquo", 0x00BB},  {"frac14", 0x00BC}, {"frac12", 0x00BD},
    {"frac34", 0x00BE},  {"iquest", 0x00BF}, {"Agrave", 0x00C0}, {"Aacute", 0x00C1}, {"Acirc", 0x00C2},
    {"Atilde", 0x00C3},  {"Auml", 0x00C4},   {"Aring", 0x00C5},  {"AElig", 0x00C6},  {"Ccedil", 0x00C7},
    {"Egrave", 0x00C8},  {"Eacute", 0x00C9}, {"Ecirc", 0x00CA},  {"Euml", 0x00CB},   {"Igrave", 0x00CC},
    {"Iacute", 0x00CD},  {"Icirc", 0x00CE},  {"Iuml", 0x00CF},   {"ETH", 0x00D0},    {"Ntilde", 0x00D1},
    {"Ograve", 0x00D2},  {"Oacute", 0x00D3}, {"Ocirc", 0x00D4},  {"Otilde", 0x00D5}, {"Ouml", 0x00D6},
    {"times", 0x00D7},   {"Oslash", 0x00D8}, {"Ugrave", 0x00D9}, {"Uacute", 0x00DA}, {"Ucirc", 0x00DB},
    {"Uuml", 0x00DC},    {"Yacute", 0x00DD}, {"THORN", 0x00DE},  {"szlig", 0x00DF},  {"agrave", 0x00E0},
    {"aacute", 0x00E1},  {"acirc", 0x00E2},  {"atilde", 0x00E3}, {"auml", 0x00E4},   {"aring", 0x00E5},
    {"aelig", 0x00E6},   {"ccedil", 0x00E7}, {"egrave", 0x00E8}, {"eacute", 0x00E9}, {"ecirc", 0x00EA},
    {"euml", 0x00EB},    {"igrave", 0x00EC}, {"iacute", 0x00ED}, {"icirc", 0x00EE},  {"iuml", 0x00EF},
    {"eth", 0x00F0},     {"ntilde", 0x00F1}, {"ograve", 0x00F2}, {"oacute", 0x00F3}, {"ocirc", 0x00F4},
    {"otilde", 0x00F5},  {"ouml", 0x00F6},   {"divide", 0x00F7}, {"oslash", 0x00F8}, {"ugrave", 0x00F9},
    {"uacute", 0x00FA},  {"ucirc", 0x00FB},  {"uuml", 0x00FC},   {"yacute", 0x00FD}, {"thorn", 0x00FE},
    {"yuml", 0x00FF},    {"OElig", 0x0152},  {"oelig", 0x0153},  {"Scaron", 0x0160}, {"scaron", 0x0161},
    {"Yuml", 0x0178},    {"circ", 0x02C6},   {"tilde", 0x02DC},  {"ensp", 0x2002},   {"emsp", 0x2003},
    {"thinsp", 0x2009},  {"zwnj", 0x200C},   {"zwj", 0x200D},    {"lrm", 0x200E},    {"rlm", 0x200F},
    {"ndash", 0x2013},   {"mdash", 0x2014},  {"lsquo", 0x2018},  {"rsquo", 0x2019},  {"sbquo", 0x201A},
    {"ldquo", 0x201C},   {"rdquo", 0x201D},  {"bdquo", 0x201E},  {"dagger", 0x2020}, {"Dagger", 0x2021},
    {"bull", 0x2022},    {"hellip", 0x2026}, {"permil", 0x2030}, {"prime", 0x2032},  {"Prime", 0x2033},
    {"lsaquo", 0x2039},  {"rsaquo", 0x203A}, {"euro", 0x20AC},   {"trade", 0x2122},  {"larr", 0x2190},
    {"uarr", 0x2191},    {"rarr", 0x2192},   {"darr", 0x2193},   {"harr", 0x2194},   {"forall", 0x2200},
    {"part", 0x2202},    {"exist", 0x2203},  {"empty", 0x2205},  {"nabla", 0x2207},  {"isin", 0x2208},
    {"notin", 0x2209},   {"ni", 0x220B},     {"prod", 0x220F},   {"sum", 0x2211},    {"minus", 0x2212},
    {"radic", 0x221A},   {"infin", 0x221E},  {"and", 0x2227},    {"or", 0x2228},     {"cap", 0x2229},
    {"cup", 0x222A},     {"int", 0x222B},    {"sim", 0x223C},    {"asymp", 0x2248},  {"ne", 0x2260},
    {"equiv", 0x2261},   {"le", 0x2264},     {"ge", 0x2265},     {"sub", 0x2282},    {"sup", 0x2283},
    {"Alpha", 0x0391},   {"Beta", 0x0392},   {"Gamma", 0x0393},  {"Delta", 0x0394},  {"Theta", 0x0398},
    {"Lambda", 0x039B},  {"Pi", 0x03A0},     {"Sigma", 0x03A3},  {"Phi", 0x03A6},    {"Psi", 0x03A8},
    {"Omega", 0x03A9},   {"alpha", 0x03B1},  {"beta", 0x03B2},   {"gamma", 0x03B3},  {"delta", 0x03B4},
    {"epsilon", 0x03B5}, {"theta", 0x03B8},  {"lambda", 0x03BB}, {"mu", 0x03BC},     {"pi", 0x03C0},
    {"rho", 0x03C1},     {"sigma", 0x03C3},  {"tau", 0x03C4},    {"phi", 0x03C6},    {"chi", 0x03C7},
    {"psi", 0x03C8},     {"omega", 0x03C9},
};
constexpr qsizetype LongestName = 8, LongestNumber = 10;

QString Character(uint code) {
  if (code == 0 || code > 0x10FFFF || QChar::isSurrogate(code)) return QString(QChar::ReplacementCharacter);
  const auto character = static_cast<char32_t>(code);
  return QString::fromUcs4(&character, 1);
}

// "#228" and "#xE4"; nothing for what is no number.
QString Numbered(QStringView name) {
  const bool hex = name.size() > 1 && (name[1] == u'x' || name[1] == u'X');
  const QStringView digits = name.mid(hex ? 2 : 1);
  if (digits.isEmpty() || !digits[0].isLetterOrNumber()) return {};  // a sign is none
  bool ok = false;
  const qulonglong code = digits.toULongLong(&ok, hex ? 16 : 10);
  return ok ? Character(static_cast<uint>(std::min<qulonglong>(code, 0x110000))) : QString();
}
}  // namespace

Entity EntityAt(const QString& markup, qsizetype at) {
  static const auto names = [] {
    QHash<QString, QChar> table;
    for (const Row& row : Rows) table.insert(QString::fromLatin1(row.name), row.character);
    return table;
  }();
  const bool number = at + 1 < markup.size() && markup[at + 1] == u'#';
  const QStringView near = QStringView(markup).mid(at + 1, (number ? LongestNumber : LongestName) + 1);
  const qsizetype end = near.indexOf(u';');
  if (end < 1) return {};
  const QStringView name = near.left(end);
  if (number) {
    const QString text = Numbered(name);
    return {text, text.isEmpty() ? 0 : end + 2};
  }
  const auto found = names.constFind(name.toString());
  return found == names.constEnd() ? Entity() : Entity{QString(*found), end + 2};
}

}  // namespace html
