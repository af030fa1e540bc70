#include <gtest/gtest.h>

#include "vcl/ShortCut.h"

TEST(ShortCut, EveryNamedKeyComesBackWithEveryModifier) {
  int named = 0;
  for (unsigned word = 0; word <= 0xFFFF; ++word) {
    const QString text = ShortCutToText(static_cast<TShortCut>(word));
    if (text.isEmpty()) continue;
    ++named;
    EXPECT_EQ(static_cast<unsigned>(TextToShortCut(text)), word) << text.toStdString();
    EXPECT_EQ(static_cast<unsigned>(TextToShortCut(text.toUpper())), word) << text.toStdString();
  }
  EXPECT_EQ(named % 8, 0);
  EXPECT_GT(named, 8 * 90);
}

TEST(ShortCut, TextsAreThoseOfMenus) {
  EXPECT_EQ(ShortCutToText(static_cast<TShortCut>(16451)), QStringLiteral("Ctrl+C"));
  EXPECT_EQ(ShortCutToText(static_cast<TShortCut>(scShift | scCtrl | scAlt | 0x73)),
            QStringLiteral("Shift+Ctrl+Alt+F4"));
  EXPECT_EQ(ShortCutToText(static_cast<TShortCut>(0x2E)), QStringLiteral("Del"));
  EXPECT_EQ(ShortCutToText(TShortCut{}), QString());
  EXPECT_EQ(TextToShortCut(QStringLiteral("alt+ctrl+x")), static_cast<TShortCut>(scCtrl | scAlt | 'X'));
  EXPECT_EQ(TextToShortCut(QStringLiteral("no key")), TShortCut{});
}

TEST(ShortCut, PressedKeysAreTaken) {
  EXPECT_EQ(ShortCutOf(Qt::Key_F4, Qt::AltModifier), static_cast<TShortCut>(scAlt | 0x73));
  EXPECT_EQ(ShortCutOf(Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier),
            static_cast<TShortCut>(scCtrl | 0x0D));
  EXPECT_EQ(ShortCutOf(Qt::Key_Shift, Qt::ShiftModifier), TShortCut{});
}

TEST(ShortCut, WhatMenusOfferIsDistinctAndNamed) {
  QStringList texts = ShortCutTexts();
  EXPECT_FALSE(texts.contains(QString()));
  EXPECT_EQ(texts.removeDuplicates(), 0);
}
