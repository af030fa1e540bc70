// Functions of texts. Places in a text count from 1.
#include "library/expression/ExprFunctions.h"
#include "library/expression/ExprSearch.h"

namespace expression {

namespace {
constexpr int Longest = static_cast<int>(LongestText);

Value Replaced(const Arguments& v) {
  const QString &text = v.Text(0), &from = v.Text(1), &to = v.Text(2);
  QString result;
  qsizetype done = 0;
  Search(text, from, [&](qsizetype at) {
    result += QStringView(text).mid(done, at - done);
    result += to;
    done = at + from.size();
    return result.size() <= LongestText;
  });
  return Checked(result += QStringView(text).mid(done));
}

Value Counted(const Arguments& v) {
  double count = 0;
  Search(v.Text(0), v.Text(1), [&](qsizetype) {
    ++count;
    return true;
  });
  return count;
}

Value Repeated(const Arguments& v) {
  const QString& text = v.Text(0);
  const int times = v.Whole(1, 0, Longest);
  if (text.size() * times > LongestText) return Checked(QString(Longest + 1, u' '));  // says why not
  return text.repeated(times);
}

QChar FillOf(const Arguments& v) {
  const QString fill = v.Text(2, QStringLiteral(" "));
  if (fill.size() != 1) throw EValueError(QStringLiteral("value 3 must be one character"));
  return fill[0];
}

Value Joined(const Arguments& v) {
  QString all;
  for (int i = 0; i < v.Count(); ++i) {
    all += ToText(v.At(i));
    Checked(all);
  }
  return all;
}

Value Reversed(const Arguments& v) {
  QString text = v.Text(0);
  std::reverse(text.begin(), text.end());
  for (qsizetype i = 0; i + 1 < text.size(); ++i)  // pairs stay pairs
    if (text[i].isLowSurrogate() && text[i + 1].isHighSurrogate()) std::swap(text[i], text[i + 1]), ++i;
  return text;
}

const Function All[] = {
    {"chr", 1, 1,
     [](const Arguments& v) -> Value {
       const auto code = static_cast<char32_t>(v.Whole(0, 1, 0x10FFFF));
       if (QChar::isSurrogate(code)) throw EValueError(QStringLiteral("there is no such character"));
       return QString::fromUcs4(&code, 1);
     }},
    {"concat", 1, Any, Joined},
    {"contains", 2, 2, [](const Arguments& v) -> Value { return FirstPlace(v.Text(0), v.Text(1)) >= 0; }},
    {"count", 2, 2, Counted},
    {"endswith", 2, 2, [](const Arguments& v) -> Value { return v.Text(0).endsWith(v.Text(1)); }},
    {"find", 2, 3,  // 0 when it is not there
     [](const Arguments& v) -> Value {
       return double(FirstPlace(v.Text(0), v.Text(1), v.Whole(2, 1, INT_MAX, 1) - 1) + 1);
     }},
    {"hex", 1, 1, [](const Arguments& v) -> Value { return QString::number(v.Whole(0, 0, INT_MAX), 16); }},
    {"left", 2, 2, [](const Arguments& v) -> Value { return v.Text(0).left(v.Whole(1, 0, INT_MAX)); }},
    {"len", 1, 1, [](const Arguments& v) -> Value { return double(v.Text(0).size()); }},
    {"lower", 1, 1, [](const Arguments& v) { return Checked(v.Text(0).toLower()); }},
    {"mid", 2, 3,
     [](const Arguments& v) -> Value {
       return v.Text(0).mid(v.Whole(1, 1, INT_MAX) - 1, v.Whole(2, 0, INT_MAX, Longest));
     }},
    {"ord", 1, 1,
     [](const Arguments& v) -> Value {
       if (v.Text(0).isEmpty()) throw EValueError(QStringLiteral("value 1 must not be empty"));
       return double(v.Text(0).left(2).toUcs4().first());
     }},
    {"padleft", 2, 3,
     [](const Arguments& v) -> Value { return v.Text(0).rightJustified(v.Whole(1, 0, Longest), FillOf(v)); }},
    {"padright", 2, 3,
     [](const Arguments& v) -> Value { return v.Text(0).leftJustified(v.Whole(1, 0, Longest), FillOf(v)); }},
    {"repeat", 2, 2, Repeated},
    {"replace", 3, 3, Replaced},
    {"reverse", 1, 1, Reversed},
    {"right", 2, 2, [](const Arguments& v) -> Value { return v.Text(0).right(v.Whole(1, 0, INT_MAX)); }},
    {"startswith", 2, 2, [](const Arguments& v) -> Value { return v.Text(0).startsWith(v.Text(1)); }},
    {"str", 1, 1, [](const Arguments& v) -> Value { return ToText(v.At(0)); }},
    {"trim", 1, 1, [](const Arguments& v) -> Value { return v.Text(0).trimmed(); }},
    {"upper", 1, 1, [](const Arguments& v) { return Checked(v.Text(0).toUpper()); }},
};
}  // namespace

std::span<const Function> TextFunctions() { return All; }

}  // namespace expression
