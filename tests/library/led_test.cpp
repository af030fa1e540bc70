#include <gtest/gtest.h>

#include "LibraryTest.h"
#include "library/values/LightColor.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"

namespace {
class Listener : public TPersistent {
 public:
  int heard = 0;

 protected:
  void PartChanged(TPersistent&) override { ++heard; }
};
}  // namespace

TEST(Led, StartsGreenWithLettersOfEightPixels) {
  const TVRXLED led;
  EXPECT_EQ(led.ActiveColor(), clLime);
  EXPECT_EQ(led.InActiveColor(), TColor(0x004000));
  EXPECT_EQ(led.HorzSize(), 8);
  EXPECT_EQ(led.VertSize(), 8);
  EXPECT_EQ(led.Thickness(), 2);
  EXPECT_FALSE(led.DisabledDigits());
  for (const TPropInfo* p : TVRXLED::StaticClass().Properties()) {
    EXPECT_TRUE(p->Default.has_value()) << p->Name.constData();
    EXPECT_TRUE(IsDefaultValue(led, *p)) << p->Name.constData();
  }
}

TEST(Led, PublishesItsPropertiesInOrder) {
  QByteArrayList names;
  for (const TPropInfo* p : TVRXLED::StaticClass().Properties()) names << p->Name;
  EXPECT_EQ(names.join(' '), "ActiveColor DisabledDigits HorzSize InActiveColor Thickness VertSize");
}

TEST(Led, IndexedColors) {
  TVRXLED led;
  led.SetColor(0, clRed);
  led.SetColor(1, clBlue);
  EXPECT_EQ(led.ActiveColor(), clRed);
  EXPECT_EQ(led.InActiveColor(), clBlue);
  EXPECT_THROW(led.SetColor(2, clWhite), EPropertyError);
  EXPECT_THROW(led.SetColor(-1, clWhite), EPropertyError);
  EXPECT_EQ(led.ActiveColor(), clRed);
  EXPECT_EQ(led.InActiveColor(), clBlue);
}

TEST(Led, IndexedSizes) {
  TVRXLED led;
  led.SetSize(1, 11);
  led.SetSize(2, 5);
  led.SetSize(3, 13);
  EXPECT_EQ(led.HorzSize(), 11);
  EXPECT_EQ(led.Thickness(), 5);
  EXPECT_EQ(led.VertSize(), 13);
  for (const int index : {-1, 0, 4}) EXPECT_THROW(led.SetSize(index, 3), EPropertyError) << index;
  EXPECT_EQ(led.HorzSize(), 11);
  EXPECT_EQ(led.Thickness(), 5);
  EXPECT_EQ(led.VertSize(), 13);
}

TEST(Led, SizesAreKeptAndAThicknessThatMakesNoLetterIsPutRight) {
  for (int value = 0; value <= 255; ++value) {
    TVRXLED led;
    for (const int index : {1, 2, 3}) led.SetSize(index, static_cast<std::uint8_t>(value));
    EXPECT_EQ(led.HorzSize(), value);
    EXPECT_EQ(led.VertSize(), value);
    EXPECT_EQ(led.Thickness(), std::clamp(value, 1, 32));
  }
}

TEST(Led, PropertiesRefuseWhatIsNoByte) {
  TVRXLED led;
  for (const char* name : {"HorzSize", "VertSize", "Thickness"}) {
    const TPropInfo& p = TVRXLED::StaticClass().GetProp(name);
    EXPECT_EQ(p.PropType->Name, "Byte");
    EXPECT_THROW(SetOrdProp(led, p, 256), EPropertyError);
    EXPECT_THROW(SetOrdProp(led, p, -1), EPropertyError);
    EXPECT_TRUE(IsDefaultValue(led, p));
    SetOrdProp(led, p, 0);
    EXPECT_EQ(GetOrdProp(led, p), QByteArray(name) == "Thickness" ? 1 : 0);
  }
}

TEST(Led, TellsRealChangesOnly) {
  Listener owner;
  TVRXLED led(&owner);
  led.SetColor(0, clLime);
  led.SetSize(1, 8);
  led.SetDisabledDigits(false);
  EXPECT_EQ(owner.heard, 0);
  led.SetColor(0, clRed);
  led.SetColor(1, clRed);
  led.SetSize(1, 9);
  led.SetSize(2, 40);
  led.SetSize(3, 9);
  led.SetDisabledDigits(true);
  EXPECT_EQ(owner.heard, 6);
  led.SetSize(2, 50);
  EXPECT_EQ(owner.heard, 6) << "both are too thick and become 32";
}

TEST(Led, AssignCopiesEverythingAndTellsOnce) {
  TVRXLED source;
  source.SetColor(0, clRed);
  source.SetColor(1, clNone);
  for (const int i : {1, 2, 3}) source.SetSize(i, static_cast<std::uint8_t>(20 + i));
  source.SetDisabledDigits(true);
  Listener owner;
  TVRXLED led(&owner);
  led.Assign(&source);
  EXPECT_EQ(owner.heard, 1);
  for (const TPropInfo* p : TVRXLED::StaticClass().Properties())
    EXPECT_EQ(GetOrdProp(led, *p), GetOrdProp(source, *p)) << p->Name.constData();
  EXPECT_THROW(led.Assign(nullptr), EConvertError);
  EXPECT_EQ(owner.heard, 1);
}

TEST(Led, ResetGoesBackToTheDefaults) {
  TVRXLEDLabel label(nullptr);
  const TPropInfo& prop = TVRXLEDLabel::StaticClass().GetProp("LED");
  EXPECT_TRUE(IsDefaultValue(label, prop));
  label.LED()->SetSize(2, 7);
  label.LED()->SetColor(1, clRed);
  EXPECT_FALSE(IsDefaultValue(label, prop));
  EXPECT_TRUE(IsStoredProp(label, prop));
  ResetProp(label, prop);
  EXPECT_TRUE(IsDefaultValue(label, prop));
  EXPECT_EQ(label.LED()->Thickness(), 2);
}

TEST(LightColors, AllSevenHaveAPairOfTheirOwn) {
  std::vector<std::uint32_t> seen;
  for (int i = 0; i < 7; ++i) {
    const TVRXLightColors pair = VRXGetLightColors(static_cast<TVRXLightColor>(i));
    const QColor active = ToQColor(pair.Active), inactive = ToQColor(pair.Inactive);
    EXPECT_EQ(active.alpha(), 255);
    EXPECT_EQ(inactive.alpha(), 255);
    EXPECT_GT(active.value(), 2 * inactive.value()) << i << ": lit is brighter than dark";
    for (const TColor c : {pair.Active, pair.Inactive}) {
      EXPECT_EQ(std::count(seen.begin(), seen.end(), static_cast<std::uint32_t>(c)), 0) << i;
      seen.push_back(static_cast<std::uint32_t>(c));
    }
  }
}

TEST(LightColors, HaveTheHueOfTheirName) {
  const auto active = [](TVRXLightColor c) { return ToQColor(VRXGetLightColors(c).Active); };
  EXPECT_EQ(active(TVRXLightColor::lcNone).saturation(), 0);
  EXPECT_NEAR(active(TVRXLightColor::lcBlue).hue(), 220, 25);
  EXPECT_NEAR(active(TVRXLightColor::lcRed).hue(), 2, 8);
  EXPECT_NEAR(active(TVRXLightColor::lcGreen).hue(), 125, 20);
  EXPECT_NEAR(active(TVRXLightColor::lcYellow).hue(), 55, 10);
  EXPECT_NEAR(active(TVRXLightColor::lcMarine).hue(), 180, 10);
  EXPECT_NEAR(active(TVRXLightColor::lcPurple).hue(), 283, 15);
}

TEST(LightColors, OutsideTheSevenIsNone) {
  const TVRXLightColors none = VRXGetLightColors(TVRXLightColor::lcNone);
  for (int i = 7; i < 256; ++i) {
    const TVRXLightColors pair = VRXGetLightColors(static_cast<TVRXLightColor>(i));
    EXPECT_EQ(pair.Active, none.Active);
    EXPECT_EQ(pair.Inactive, none.Inactive);
  }
  const TTypeInfo& type = TypeInfoOf<TVRXLightColor>::Get();
  EXPECT_EQ(type.Elements.join(' '), "lcNone lcBlue lcRed lcGreen lcYellow lcMarine lcPurple");
}
