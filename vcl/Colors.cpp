#include "vcl/Colors.h"

#include "rtl/Exceptions.h"
#include "rtl/IntegerConsts.h"
#include "vcl/FormColors.h"

const std::vector<TColorEntry>& NamedColors() {
  static const std::vector<TColorEntry> entries{
      {clBlack, "clBlack", false},
      {clMaroon, "clMaroon", false},
      {clGreen, "clGreen", false},
      {clOlive, "clOlive", false},
      {clNavy, "clNavy", false},
      {clPurple, "clPurple", false},
      {clTeal, "clTeal", false},
      {clGray, "clGray", false},
      {clSilver, "clSilver", false},
      {clRed, "clRed", false},
      {clLime, "clLime", false},
      {clYellow, "clYellow", false},
      {clBlue, "clBlue", false},
      {clFuchsia, "clFuchsia", false},
      {clAqua, "clAqua", false},
      {clWhite, "clWhite", false},
      {TColor(0xC0DCC0), "clMoneyGreen", false},
      {TColor(0xF0CAA6), "clSkyBlue", false},
      {TColor(0xF0FBFF), "clCream", false},
      {TColor(0xA4A0A0), "clMedGray", false},
      {clScrollBar, "clScrollBar", true},
      {clBackground, "clBackground", true},
      {clActiveCaption, "clActiveCaption", true},
      {clInactiveCaption, "clInactiveCaption", true},
      {clMenu, "clMenu", true},
      {clWindow, "clWindow", true},
      {clWindowFrame, "clWindowFrame", true},
      {clMenuText, "clMenuText", true},
      {clWindowText, "clWindowText", true},
      {clCaptionText, "clCaptionText", true},
      {SysColor(10), "clActiveBorder", true},
      {SysColor(11), "clInactiveBorder", true},
      {SysColor(12), "clAppWorkSpace", true},
      {clHighlight, "clHighlight", true},
      {clHighlightText, "clHighlightText", true},
      {clBtnFace, "clBtnFace", true},
      {clBtnShadow, "clBtnShadow", true},
      {clGrayText, "clGrayText", true},
      {clBtnText, "clBtnText", true},
      {SysColor(19), "clInactiveCaptionText", true},
      {clBtnHighlight, "clBtnHighlight", true},
      {cl3DDkShadow, "cl3DDkShadow", true},
      {cl3DLight, "cl3DLight", true},
      {clInfoText, "clInfoText", true},
      {clInfoBk, "clInfoBk", true},
      {SysColor(26), "clHotLight", true},
      {SysColor(27), "clGradientActiveCaption", true},
      {SysColor(28), "clGradientInactiveCaption", true},
      {SysColor(29), "clMenuHighlight", true},
      {SysColor(30), "clMenuBar", true},
      {clNone, "clNone", true},
      {clDefault, "clDefault", true},
  };
  return entries;
}

// Colours are signed 32-bit integers on the outside, as form files hold them.
static std::int64_t Ord(TColor c) { return static_cast<std::int64_t>(c); }

bool IdentToColor(QByteArrayView ident, std::int64_t& value) {
  for (const TColorEntry& e : NamedColors())
    if (const QByteArrayView name(e.Name);
        name.size() == ident.size() && name.compare(ident, Qt::CaseInsensitive) == 0) {
      value = Ord(e.Value);
      return true;
    }
  return false;
}

bool ColorToIdent(std::int64_t value, QByteArray& ident) {
  for (const TColorEntry& e : NamedColors())
    if (Ord(e.Value) == value) {
      ident = e.Name;
      return true;
    }
  return false;
}

const TTypeInfo& TypeInfoOf<TColor>::Get() {
  static const TTypeInfo& info = []() -> const TTypeInfo& {
    // Negative numbers in form files are system colours written as signed integers; both are accepted.
    static const TTypeInfo color = OrdinalType("TColor", INT32_MIN, UINT32_MAX);
    RegisterIntegerConsts(color, {IdentToColor, ColorToIdent});
    return color;
  }();
  return info;
}

QString ColorToString(TColor color) {
  QByteArray ident;
  if (ColorToIdent(Ord(color), ident)) return QString::fromLatin1(ident);
  return QStringLiteral("$") +
         QStringLiteral("%1").arg(static_cast<uint>(color), 8, 16, QLatin1Char('0')).toUpper();
}

TColor StringToColor(const QString& input) {
  const QString text = input.trimmed();
  std::int64_t value = 0;
  if (IdentToColor(text.toUtf8(), value)) return TColor(static_cast<std::uint32_t>(value));
  bool ok = false;
  if (text.startsWith(u'#') && text.size() == 7) {
    const uint rgb = text.mid(1).toUInt(&ok, 16);
    if (ok) return RGBColor(rgb >> 16, rgb >> 8 & 0xFFu, rgb & 0xFFu);
  } else if (text.startsWith(u'$')) {
    const uint v = text.mid(1).toUInt(&ok, 16);
    if (ok) return TColor(v);
  } else {
    const qlonglong v = text.toLongLong(&ok);
    if (ok && v >= INT32_MIN && v <= UINT32_MAX) return TColor(static_cast<std::uint32_t>(v));
  }
  throw EConvertError(
      QStringLiteral("\"%1\" is not a color: use a name (clRed), $00BBGGRR or #rrggbb.").arg(input));
}

TColor FromQColor(const QColor& c) {
  return RGBColor(static_cast<unsigned>(c.red()), static_cast<unsigned>(c.green()),
                  static_cast<unsigned>(c.blue()));
}

TColor ColorToRGB(TColor color) {
  const auto bits = static_cast<std::uint32_t>(color);
  if ((bits & 0xFF000000u) == 0xFF000000u) {
    const QPalette p = FormPalette();
    const auto role = [&](QPalette::ColorRole r, QPalette::ColorGroup g = QPalette::Active) {
      return FromQColor(p.color(g, r));
    };
    switch (bits & 0xFFu) {
      case 2:
      case 13:
      case 27:
      case 29:
        return role(QPalette::Highlight);
      case 9:
      case 14:
        return role(QPalette::HighlightedText);
      case 5:
        return role(QPalette::Base);
      case 6:
      case 21:
        return role(QPalette::Shadow);
      case 7:
      case 8:
        return role(QPalette::WindowText);
      case 16:
      case 12:
        return role(QPalette::Dark);
      case 17:
      case 19:
        return role(QPalette::WindowText, QPalette::Disabled);
      case 18:
        return role(QPalette::ButtonText);
      case 20:
        return role(QPalette::Light);
      case 22:
        return role(QPalette::Midlight);
      case 23:
        return role(QPalette::ToolTipText);
      case 24:
        return role(QPalette::ToolTipBase);
      case 26:
        return role(QPalette::Link);
      default:
        return role(QPalette::Window);
    }
  }
  return (bits & 0xFF000000u) == 0x1F000000u || color == clDefault ? clBlack : TColor(bits & 0xFFFFFFu);
}

QColor ToQColor(TColor color) {
  if (color == clNone) return QColor(0, 0, 0, 0);
  const auto rgb = static_cast<std::uint32_t>(ColorToRGB(color));
  return QColor(static_cast<int>(rgb & 0xFFu), static_cast<int>(rgb >> 8 & 0xFFu),
                static_cast<int>(rgb >> 16 & 0xFFu));
}
