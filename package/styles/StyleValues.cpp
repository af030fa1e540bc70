#include "package/styles/StyleValues.h"

#include <QRegularExpression>

#include "rtl/DateText.h"
#include "rtl/PropText.h"
#include "vcl/Colors.h"

namespace {
using enum TTypeKind;
const QString Color = QStringLiteral("TColor"), DateTime = QStringLiteral("TDateTime"),
              Bitmap = QStringLiteral("TBitmap"), Icon = QStringLiteral("TIcon");

struct EditorRow {
  TTypeKind kind;
  const char* type;  // empty: any other
  TVRXStyleEditor editor;
};
using enum TVRXStyleEditor;
constexpr EditorRow Editors[] = {
    {tkInteger, "TColor", ColorCombo},
    {tkInteger, "", Spin},
    {tkChar, "", Edit},
    {tkString, "", Edit},
    {tkEnumeration, "", ListCombo},
    {tkFloat, "TDateTime", CalendarCombo},
    {tkFloat, "", FloatSpin},
    {tkSet, "", CheckCombo},
    {tkClass, "TBitmap", PictureChooser},
};

QString DateTimeText(long double days) {
  const TDateTime moment{static_cast<double>(days)};
  return DateToStr(moment) + u' ' + TimeToStr(moment);
}
QString OrdinalText(std::int64_t value, TTypeKind kind, const QString& typeName, const TTypeInfo* type) {
  if (kind == tkInteger && typeName == Color) return ColorToString(TColor(static_cast<std::uint32_t>(value)));
  if (kind != tkEnumeration || !type) return QString::number(value);
  const bool valid = value >= 0 && value < type->Elements.size();
  return valid ? QString::fromLatin1(type->Elements[value]) : QStringLiteral("(Invalid value)");
}
}  // namespace

TVRXStyleEditor VRXStyleEditorOf(TTypeKind kind, const QString& typeName) {
  for (const EditorRow& row : Editors)
    if (row.kind == kind && (*row.type == '\0' || typeName == QLatin1StringView(row.type))) return row.editor;
  return None;
}

bool VRXIsExpandable(const TVRXPropListItem& item) {
  return item.Kind == tkClass && item.TypeName != Bitmap && item.TypeName != Icon;
}

QString VRXDisplayValue(const TVRXStyleValue* value, TTypeKind kind, const QString& typeName,
                        const TTypeInfo* type) {
  const bool object = kind == tkClass || typeName == Bitmap || typeName == Icon;
  if (!value) return object ? QStringLiteral("(none)") : QString();
  return std::visit(ForEach{[](const QString& v) { return v; },
                            [&](std::int64_t v) { return OrdinalText(v, kind, typeName, type); },
                            [&](long double v) {
                              constexpr int digits = 15;
                              return typeName == DateTime
                                         ? DateTimeText(v)
                                         : QString::number(static_cast<double>(v), 'g', digits);
                            },
                            [&](const QByteArray& v) {
                              return v.isEmpty() ? QStringLiteral("(none)") : u'(' + typeName + u')';
                            }},
                    *value);
}

QString VRXSetText(const QStringList& elements, const QStringList& checked) {
  QStringList names;
  for (const QString& element : elements)
    if (checked.contains(element)) names << element;
  return u'[' + names.join(u',') + u']';
}

bool VRXStyleBefore(const TVRXStyleSortKey& a, const TVRXStyleSortKey& b) {
  if (a.HasChildren != b.HasChildren) return a.HasChildren;
  const auto basic = [](const TVRXStyleSortKey& key) {
    return key.HasChildren &&
           (key.Name.contains(QStringLiteral("Base")) || key.Name.contains(QStringLiteral("Custom")));
  };
  if (basic(a) != basic(b)) return basic(a);
  return a.Name < b.Name;
}

bool VRXPropertyPathBefore(const QString& a, const QString& b) {
  const auto depthA = a.count(VRXStyleSeparator), depthB = b.count(VRXStyleSeparator);
  return depthA != depthB ? depthA < depthB : a < b;
}

bool VRXMatchesFilter(const QString& name, const QString& mask) {
  if (mask.isEmpty()) return true;
  return QRegularExpression::fromWildcard(mask, Qt::CaseInsensitive).match(name).hasMatch();
}
