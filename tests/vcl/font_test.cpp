#include "VclTest.h"
#include "rtl/Exceptions.h"
#include "rtl/IntegerConsts.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"
#include "vcl/Label.h"

namespace {
class Listener : public TPersistent {
 public:
  int heard = 0;

 protected:
  void PartChanged(TPersistent&) override { ++heard; }
};

TFont& Strange(TFont& f) {
  f.SetName(QStringLiteral("Courier New"));
  f.SetHeight(-31);
  f.SetColor(clRed);
  f.SetStyle({TFontStyle::fsBold, TFontStyle::fsStrikeOut});
  f.SetCharset(TFontCharset{204});
  f.SetPitch(TFontPitch::fpFixed);
  f.SetQuality(TFontQuality::fqClearType);
  f.SetOrientation(450);
  return f;
}

void ExpectEqual(const TFont& a, const TFont& b) {
  for (const TPropInfo* p : TFont::StaticClass().Properties())
    EXPECT_EQ(GetPropText(a, *p), GetPropText(b, *p)) << p->Name.constData();
}
}  // namespace

TEST(Font, StartsAsTheStandardFont) {
  const TFont f;
  EXPECT_EQ(f.Name(), QStringLiteral("Tahoma"));
  EXPECT_EQ(f.Height(), -12);
  EXPECT_EQ(f.Size(), 9);
  EXPECT_EQ(f.Color(), clWindowText);
  EXPECT_EQ(static_cast<int>(f.Charset()), 1);
  EXPECT_EQ(f.Style(), TFontStyles());
}

TEST(Font, SizeInPointsSurvivesTheHeight) {
  TFont f;
  for (int points = -300; points <= 300; ++points) {
    f.SetSize(points);
    EXPECT_EQ(f.Size(), points) << "height " << f.Height();
  }
}

TEST(Font, SizeAndHeightAreTheSameValueInTwoUnits) {
  TFont f;
  const std::pair<int, int> rows[] = {{8, -11},  {9, -12},  {10, -13}, {12, -16},
                                      {18, -24}, {72, -96}, {-9, 12},  {0, 0}};
  for (const auto& [size, height] : rows) {
    f.SetSize(size);
    EXPECT_EQ(f.Height(), height) << size;
    f.SetHeight(0);
    f.SetHeight(height);
    EXPECT_EQ(f.Size(), size) << height;
  }
}

TEST(Font, EnormousSizesKeepTheirSign) {
  TFont f;
  f.SetSize(INT_MAX);
  EXPECT_LT(f.Height(), -1000000);
  f.SetSize(INT_MIN);
  EXPECT_GT(f.Height(), 1000000);
  f.SetHeight(INT_MIN);
  EXPECT_GT(f.Size(), 1000000);
}

TEST(Font, CharsetsHaveNames) {
  const TTypeInfo& type = TypeInfoOf<TFontCharset>::Get();
  const std::pair<int, const char*> rows[] = {{0, "ANSI_CHARSET"},       {1, "DEFAULT_CHARSET"},
                                              {2, "SYMBOL_CHARSET"},     {204, "RUSSIAN_CHARSET"},
                                              {128, "SHIFTJIS_CHARSET"}, {255, "OEM_CHARSET"}};
  for (const auto& [value, name] : rows) {
    EXPECT_EQ(OrdToText(type, value), QString::fromLatin1(name));
    EXPECT_EQ(TextToOrd(type, QString::fromLatin1(name).toLower()), value);
  }
  EXPECT_EQ(OrdToText(type, 3), QStringLiteral("3"));
  EXPECT_EQ(TextToOrd(type, QStringLiteral("3")), 3);
  EXPECT_THROW(TextToOrd(type, QStringLiteral("256")), EConvertError);
  EXPECT_THROW(TextToOrd(type, QStringLiteral("NO_CHARSET")), EConvertError);
  int named = 0;
  for (int i = 0; i <= 255; ++i) {
    QByteArray ident;
    if (!FindIntegerConsts(type)->IntToIdent(i, ident)) continue;
    ++named;
    EXPECT_EQ(TextToOrd(type, QString::fromLatin1(ident)), i);
  }
  EXPECT_EQ(named, 19);
}

TEST(Font, AssignCopiesEverythingAndTellsOnce) {
  TFont source;
  Strange(source);
  Listener owner;
  TFont f(&owner);
  f.Assign(&source);
  EXPECT_EQ(owner.heard, 1);
  ExpectEqual(f, source);
  f.Assign(&source);
  EXPECT_EQ(owner.heard, 1) << "nothing changed the second time";
  f.Assign(&f);
  EXPECT_EQ(owner.heard, 1);
}

TEST(Font, AssignRefusesOtherObjects) {
  TFont f;
  Strange(f);
  TFont same;
  same.Assign(&f);
  TLabel label(nullptr);
  EXPECT_THROW(f.Assign(&label), EConvertError);
  EXPECT_THROW(f.Assign(nullptr), EConvertError);
  ExpectEqual(f, same);
}

TEST(Font, OnlyRealChangesAreTold) {
  Listener owner;
  TFont f(&owner);
  for (const TPropInfo* p : TFont::StaticClass().Properties()) {
    SetPropText(f, *p, GetPropText(f, *p));
    EXPECT_TRUE(owner.heard == 0 || p->Name == "Name") << p->Name.constData();
    owner.heard = 0;
  }
  f.SetHeight(-20);
  f.SetColor(clRed);
  f.SetStyle({TFontStyle::fsItalic});
  EXPECT_EQ(owner.heard, 3);
  f.SetSize(15);
  EXPECT_EQ(owner.heard, 3) << "15 points are 20 pixels";
}

TEST(Font, BecomesAQtFont) {
  TFont f;
  Strange(f);
  QFont q = ToQFont(f);
  EXPECT_EQ(q.family(), QStringLiteral("Courier New"));
  EXPECT_EQ(q.pixelSize(), 31);
  EXPECT_TRUE(q.bold());
  EXPECT_TRUE(q.strikeOut());
  EXPECT_FALSE(q.italic());
  EXPECT_FALSE(q.underline());
  f.SetStyle({TFontStyle::fsItalic, TFontStyle::fsUnderline});
  f.SetHeight(20);
  q = ToQFont(f);
  EXPECT_TRUE(q.italic());
  EXPECT_TRUE(q.underline());
  EXPECT_FALSE(q.bold());
  EXPECT_LT(q.pixelSize(), 20) << "a positive height includes the space between lines";
  f.SetHeight(0);
  EXPECT_GE(ToQFont(f).pixelSize(), 1);
}
