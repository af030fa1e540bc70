#include "vcl/Font.h"

#include <array>

#include "rtl/Class.h"
#include "rtl/IntegerConsts.h"

namespace {
struct CharsetRow {
  int value;
  const char* name;
};
constexpr std::array Charsets{
    CharsetRow{0, "ANSI_CHARSET"},          CharsetRow{1, "DEFAULT_CHARSET"},
    CharsetRow{2, "SYMBOL_CHARSET"},        CharsetRow{77, "MAC_CHARSET"},
    CharsetRow{128, "SHIFTJIS_CHARSET"},    CharsetRow{129, "HANGEUL_CHARSET"},
    CharsetRow{130, "JOHAB_CHARSET"},       CharsetRow{134, "GB2312_CHARSET"},
    CharsetRow{136, "CHINESEBIG5_CHARSET"}, CharsetRow{161, "GREEK_CHARSET"},
    CharsetRow{162, "TURKISH_CHARSET"},     CharsetRow{163, "VIETNAMESE_CHARSET"},
    CharsetRow{177, "HEBREW_CHARSET"},      CharsetRow{178, "ARABIC_CHARSET"},
    CharsetRow{186, "BALTIC_CHARSET"},      CharsetRow{204, "RUSSIAN_CHARSET"},
    CharsetRow{222, "THAI_CHARSET"},        CharsetRow{238, "EASTEUROPE_CHARSET"},
    CharsetRow{255, "OEM_CHARSET"},
};
bool IdentToCharset(QByteArrayView ident, std::int64_t& value) {
  for (const CharsetRow& row : Charsets)
    if (ident.compare(QByteArrayView(row.name), Qt::CaseInsensitive) == 0) return value = row.value, true;
  return false;
}
bool CharsetToIdent(std::int64_t value, QByteArray& ident) {
  for (const CharsetRow& row : Charsets)
    if (row.value == value) return ident = row.name, true;
  return false;
}
const QString& DefaultFamily() {
  static const QString family = QStringLiteral("Tahoma");
  return family;
}
}  // namespace

const TTypeInfo& TypeInfoOf<TFontCharset>::Get() {
  static const TTypeInfo& info = []() -> const TTypeInfo& {
    static const TTypeInfo charset = OrdinalType("TFontCharset", 0, 255);
    RegisterIntegerConsts(charset, {IdentToCharset, CharsetToIdent});
    return charset;
  }();
  return info;
}

const TClass& TFont::StaticClass() {
  static const TTypeInfo nameType = StringType("TFontName");
  static const TClass cls(
      DescribeClass<TFont>("TFont", TPersistent::StaticClass())
          .Published("Charset", &TFont::Charset, &TFont::SetCharset)
          .Published("Color", &TFont::Color, &TFont::SetColor)
          .Published("Height", &TFont::Height, &TFont::SetHeight)
          .Published("Name", &TFont::Name, &TFont::SetName)
          .Type(nameType)
          .Published("Orientation", &TFont::Orientation, &TFont::SetOrientation, 0)
          .Published("Pitch", &TFont::Pitch, &TFont::SetPitch, TFontPitch::fpDefault)
          .Published("Quality", &TFont::Quality, &TFont::SetQuality, TFontQuality::fqDefault)
          .Published("Size", &TFont::Size, &TFont::SetSize)
          .NeverStored()
          .Published("Style", &TFont::Style, &TFont::SetStyle));
  return cls;
}

namespace {
// -value * numerator / denominator, rounded to the nearest and away from zero, within the range of int.
int Rescaled(int value, int numerator, int denominator) {
  const std::int64_t product = -std::int64_t{value} * numerator;
  const std::int64_t rounded = (product + (product < 0 ? -denominator : denominator) / 2) / denominator;
  return static_cast<int>(std::clamp<std::int64_t>(rounded, INT_MIN, INT_MAX));
}
}  // namespace

int TFont::Size() const { return Rescaled(height_, 72, 96); }
void TFont::SetSize(int v) { SetHeight(Rescaled(v, 96, 72)); }

QString TFont::Name() const { return name_.isNull() ? DefaultFamily() : name_; }

void TFont::Assign(const TPersistent* source) {
  const auto* f = As<TFont>(source);
  if (!f) return TPersistent::Assign(source);
  if (f == this) return;
  const TUpdateLock lock(*this);
  SetName(f->name_);
  SetHeight(f->height_);
  SetOrientation(f->orientation_);
  SetColor(f->color_);
  SetStyle(f->style_);
  SetCharset(f->charset_);
  SetPitch(f->pitch_);
  SetQuality(f->quality_);
}

QFont ToQFont(const TFont& font) {
  QFont q(font.Name());
  q.setStyleHint(font.Pitch() == TFontPitch::fpFixed ? QFont::TypeWriter : QFont::SansSerif);
  const std::int64_t h = font.Height();
  q.setPixelSize(static_cast<int>(std::clamp<std::int64_t>(h < 0 ? -h : h * 4 / 5, 1, INT_MAX)));
  q.setBold(font.Style().Contains(TFontStyle::fsBold));
  q.setItalic(font.Style().Contains(TFontStyle::fsItalic));
  q.setUnderline(font.Style().Contains(TFontStyle::fsUnderline));
  q.setStrikeOut(font.Style().Contains(TFontStyle::fsStrikeOut));
  return q;
}
