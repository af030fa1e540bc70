// Keys as a property value: a virtual key in the low byte, and bits for Shift, Ctrl and Alt.
#pragma once
#include <QKeySequence>

#include "rtl/TypeInfo.h"

enum class TShortCut : std::uint16_t {};

constexpr std::uint16_t scShift = 0x2000, scCtrl = 0x4000, scAlt = 0x8000;

template <>
struct TypeInfoOf<TShortCut> {
  static const TTypeInfo& Get();
};

// "Ctrl+Shift+F4" with the names that menus show; empty for none or for a key without a name.
QString ShortCutToText(TShortCut shortCut);
// The reverse, in any case and order of the modifiers; none when the text is no key.
TShortCut TextToShortCut(const QString& text);
// What the key that a person pressed means; none for keys that cannot be one alone (modifiers).
TShortCut ShortCutOf(int qtKey, Qt::KeyboardModifiers modifiers);
// The keys that menus offer, in their order.
QStringList ShortCutTexts();
