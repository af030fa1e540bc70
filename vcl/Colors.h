// Colours: 0x00BBGGRR, or a system colour (high byte 0xFF) that follows the forms' colour scheme.
#pragma once
#include <QColor>

#include "rtl/TypeInfo.h"

enum class TColor : std::uint32_t {};

constexpr TColor RGBColor(unsigned r, unsigned g, unsigned b) { return TColor(r | g << 8 | b << 16); }
constexpr TColor SysColor(unsigned index) { return TColor(0xFF000000u | index); }

constexpr TColor clBlack = TColor(0x000000), clMaroon = TColor(0x000080), clGreen = TColor(0x008000),
                 clOlive = TColor(0x008080), clNavy = TColor(0x800000), clPurple = TColor(0x800080),
                 clTeal = TColor(0x808000), clGray = TColor(0x808080), clSilver = TColor(0xC0C0C0),
                 clRed = TColor(0x0000FF), clLime = TColor(0x00FF00), clYellow = TColor(0x00FFFF),
                 clBlue = TColor(0xFF0000), clFuchsia = TColor(0xFF00FF), clAqua = TColor(0xFFFF00),
                 clWhite = TColor(0xFFFFFF), clNone = TColor(0x1FFFFFFF), clDefault = TColor(0x20000000);
constexpr TColor clScrollBar = SysColor(0), clBackground = SysColor(1), clActiveCaption = SysColor(2),
                 clInactiveCaption = SysColor(3), clMenu = SysColor(4), clWindow = SysColor(5),
                 clWindowFrame = SysColor(6), clMenuText = SysColor(7), clWindowText = SysColor(8),
                 clCaptionText = SysColor(9), clHighlight = SysColor(13), clHighlightText = SysColor(14),
                 clBtnFace = SysColor(15), clBtnShadow = SysColor(16), clGrayText = SysColor(17),
                 clBtnText = SysColor(18), clBtnHighlight = SysColor(20), cl3DDkShadow = SysColor(21),
                 cl3DLight = SysColor(22), clInfoText = SysColor(23), clInfoBk = SysColor(24);

// Plain and system colours with their names, in the order pick lists show them.
struct TColorEntry {
  TColor Value;
  const char* Name;
  bool System;
};
const std::vector<TColorEntry>& NamedColors();

bool IdentToColor(QByteArrayView ident, std::int64_t& value);
bool ColorToIdent(std::int64_t value, QByteArray& ident);
// "clRed", or "$00BBGGRR" for a colour without a name.
QString ColorToString(TColor color);
// Names, $00BBGGRR, decimal or #rrggbb; EConvertError on anything else.
TColor StringToColor(const QString& text);

// The plain colour: system colours as the forms' scheme has them now; clNone and clDefault black.
TColor ColorToRGB(TColor color);
QColor ToQColor(TColor color);  // clNone: fully transparent
TColor FromQColor(const QColor& color);

template <>
struct TypeInfoOf<TColor> {
  static const TTypeInfo& Get();
};
