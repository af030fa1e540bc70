// Classes and properties say what they are for: hints, the inspector and the documentation show it.
#include <gtest/gtest.h>

#include "ClassWalk.h"
#include "designintf/Purposes.h"
#include "rtl/ClassRegistry.h"

namespace {
bool IsSentence(const QString& text) {
  return text.size() >= 8 && (text[0].isUpper() || text[0].isDigit() || text[0] == u'"') &&
         text.endsWith(u'.');
}
}  // namespace

TEST(Purposes, EveryClassOfThePaletteHasOneOfItsOwn) {
  std::map<QString, QByteArray> said;
  for (const TPalettePage& page : Registrations().PalettePages())
    for (const TClass* cls : page.Classes) {
      EXPECT_TRUE(IsSentence(cls->Description()))
          << cls->ClassName().constData() << ": " << cls->Description().toStdString();
      const auto [it, isNew] = said.try_emplace(cls->Description(), cls->ClassName());
      EXPECT_TRUE(isNew) << cls->ClassName().constData() << " says the same as " << it->second.constData();
    }
  EXPECT_GE(said.size(), 170u);
}

// Those of the parts, too.
TEST(Purposes, EveryPublishedPropertyHasOne) {
  std::set<const TClass*> seen;
  QStringList silent;
  int properties = 0;
  const std::function<void(const TClass&)> ask = [&](const TClass& cls) {
    if (!seen.insert(&cls).second) return;
    for (const TPropInfo* prop : cls.Properties()) {
      if (prop->Visibility != TPropVisibility::Published) continue;
      ++properties;
      if (!IsSentence(PurposeOf(cls, *prop)))
        silent << QString::fromLatin1(cls.ClassName() + '.' + prop->Name) + QStringLiteral(": ") +
                      PurposeOf(cls, *prop);
      if (prop->IsPart() && prop->PropType->ClassType) {
        const TClass& part = prop->PropType->ClassType();
        if (!IsSentence(PurposeOf(part))) silent << QString::fromLatin1(part.ClassName());
        ask(part);
      }
    }
  };
  for (const TPalettePage& page : Registrations().PalettePages())
    for (const TClass* cls : page.Classes) ask(*cls);
  silent.removeDuplicates();
  EXPECT_EQ(silent.join(u'\n').toStdString(), "");
  EXPECT_GE(properties, 5000);
}

TEST(Purposes, TheNearestClassThatSaysItCounts) {
  const TClass& own = FindClass("TLabel")->GetProp("Font").PropType->ClassType();
  EXPECT_EQ(PurposeOf(own, own.GetProp("Color")), QStringLiteral("The color of the letters."));
  const TClass& panel = *FindClass("TPanel");
  EXPECT_EQ(PurposeOf(panel, panel.GetProp("OnClick")), QStringLiteral("It was clicked."));
  const TClass& led = *FindClass("TVRXLEDLabel");
  EXPECT_EQ(PurposeOf(led, led.GetProp("LED")), led.GetProp("LED").Description);
  EXPECT_EQ(PurposeOf(led), led.Description());
}
