// Settings: keys and values without regard to case.
#include <QFile>
#include <QTemporaryDir>

#include "rtl/Registry.h"
#include "tests/rtl/RtlTest.h"

namespace {
const QString Key = QStringLiteral("SOFTWARE\\Orlenvo\\Orlenvo-Kit 2025");

class Registry : public testing::Test {
 protected:
  void SetUp() override {
    before_ = TRegistry::StorageFile();
    TRegistry::SetStorageFile(folder_.filePath(QStringLiteral("settings.ini")));
  }
  void TearDown() override { TRegistry::SetStorageFile(before_); }
  QTemporaryDir folder_;
  QString before_;
};
QString Q(const char* text) { return QString::fromUtf8(text); }
}  // namespace

TEST_F(Registry, KeysAreOpenedAndCreated) {
  TRegistry r;
  EXPECT_FALSE(r.OpenKey(Key, false));
  EXPECT_TRUE(r.OpenKey(Key, true));
  r.WriteString(Q("Name"), Q("value"));
  TRegistry again;
  EXPECT_TRUE(again.OpenKey(Key, false));
  EXPECT_EQ(again.ReadString(Q("Name")), Q("value"));
  EXPECT_TRUE(again.OpenKey(Q("\\SOFTWARE\\"), false));
  EXPECT_EQ(again.KeyNames(), QStringList{Q("Orlenvo")});
}

TEST_F(Registry, KeysAndNamesAreComparedWithoutRegardToCase) {
  TRegistry r;
  ASSERT_TRUE(r.OpenKey(Key, true));
  r.WriteInteger(Q("Width"), 5);
  TRegistry other;
  ASSERT_TRUE(other.OpenKey(Key.toUpper(), false));
  EXPECT_EQ(other.ReadInteger(Q("WIDTH")), 5);
  EXPECT_TRUE(other.ValueExists(Q("width")));
  EXPECT_TRUE(other.KeyExists(Q("software\\orlenvo")));
  EXPECT_FALSE(other.KeyExists(Q("software\\other")));
  other.WriteInteger(Q("wIDTH"), 6);
  EXPECT_EQ(other.ValueNames(), QStringList{Q("Width")}) << "the first spelling stays";
  TRegistry third;
  ASSERT_TRUE(third.OpenKey(Key.toLower(), true));
  EXPECT_EQ(third.ReadInteger(Q("Width")), 6);
}

TEST_F(Registry, ValuesOfEveryKindComeBack) {
  TRegistry r;
  ASSERT_TRUE(r.OpenKey(Key, true));
  const QStringList texts{Q(""),           Q(" a, b; c "), Q("\"quoted\""),
                          Q("@Invalid()"), Q("a\\b\nc"),   Q("\xE2\x82\xAC = %41")};
  for (const QString& text : texts) {
    r.WriteString(Q("Text"), text);
    TRegistry again;
    ASSERT_TRUE(again.OpenKey(Key, false));
    EXPECT_EQ(again.ReadString(Q("Text"), Q("none")), text);
  }
  r.WriteInteger(Q("Int"), -7);
  EXPECT_EQ(r.ReadInteger(Q("Int"), 1), -7);
  r.WriteBool(Q("Yes"), true);
  r.WriteBool(Q("No"), false);
  EXPECT_TRUE(r.ReadBool(Q("Yes"), false));
  EXPECT_FALSE(r.ReadBool(Q("No"), true));
}

TEST_F(Registry, BytesComeBackAndOtherValuesAreNone) {
  TRegistry r;
  ASSERT_TRUE(r.OpenKey(Key, true));
  for (const QByteArray& bytes : {QByteArray(), QByteArray("\0\xFF\r\nx", 5)}) {
    r.WriteBinary(Q("Bytes"), bytes);
    ASSERT_TRUE(r.Flush());
    TRegistry again;
    ASSERT_TRUE(again.OpenKey(Key, false));
    EXPECT_EQ(again.ReadBinary(Q("BYTES")), bytes);
  }
  EXPECT_FALSE(r.ReadBinary(Q("None")).has_value());
  for (const char* text : {"", "ff", "hex:f", "hex:zz", "hex:f f"}) {
    r.WriteString(Q("Bytes"), Q(text));
    EXPECT_FALSE(r.ReadBinary(Q("Bytes")).has_value()) << text;
  }
  r.WriteString(Q("Bytes"), Q("hex:0aFF"));
  EXPECT_EQ(r.ReadBinary(Q("Bytes")), QByteArray("\n\xFF"));
}

TEST_F(Registry, AValueIsATextWhateverItLooksLike) {
  // Other writers keep whole objects so; one of these asks for gigabytes.
  QFile file(TRegistry::StorageFile());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(
      "Loose=1\n[General]\nTheme=dark ; a remark\n[Odd]\nA=@Variant(\\0\\0\\0\\xc\\x7f\\xff\\xff\\xff)\n"
      "B=@ByteArray(abc)\nC=\"a, b; c\"\nD=\\x41\\n\\\"@@x\"\nSub\\Key%20%U20AC=\"@@at\"\n; no "
      "value\nnothing\n");
  file.close();
  TRegistry r;
  EXPECT_EQ(r.ReadString(Q("Loose")), Q("1"));
  EXPECT_EQ(r.ReadString(Q("Theme")), Q("dark "));
  ASSERT_TRUE(r.OpenKey(Q("Odd"), false));
  EXPECT_TRUE(r.ReadString(Q("A")).startsWith(Q("@Variant(")));
  EXPECT_EQ(r.ReadString(Q("B")), Q("@ByteArray(abc)"));
  EXPECT_EQ(r.ReadString(Q("C")), Q("a, b; c"));
  EXPECT_EQ(r.ReadString(Q("D")), Q("A\n\"@@x"));
  r.WriteString(Q("E"), Q("new"));
  ASSERT_TRUE(r.Flush());
  TRegistry again;
  EXPECT_EQ(again.ReadString(Q("Theme")), Q("dark "));
  ASSERT_TRUE(again.OpenKey(Q("Odd\\Sub"), false));
  EXPECT_EQ(again.ReadString(Q("Key \xE2\x82\xAC")), Q("@at"));
  ASSERT_TRUE(again.OpenKey(Q("Odd"), false));
  EXPECT_EQ(again.ReadString(Q("C")), Q("a, b; c"));
  EXPECT_EQ(again.ReadString(Q("E")), Q("new"));
}

TEST_F(Registry, MissingOrUnreadableValuesGiveTheDefault) {
  TRegistry r;
  ASSERT_TRUE(r.OpenKey(Key, true));
  EXPECT_EQ(r.ReadString(Q("Missing"), Q("d")), Q("d"));
  EXPECT_EQ(r.ReadInteger(Q("Missing"), 9), 9);
  EXPECT_TRUE(r.ReadBool(Q("Missing"), true));
  r.WriteString(Q("Text"), Q("no number"));
  EXPECT_EQ(r.ReadInteger(Q("Text"), 9), 9);
}

TEST_F(Registry, ValuesAndKeysAreDeletedWithoutRegardToCase) {
  TRegistry r;
  ASSERT_TRUE(r.OpenKey(Key, true));
  r.WriteString(Q("One"), Q("1"));
  r.WriteString(Q("Two"), Q("2"));
  EXPECT_TRUE(r.DeleteValue(Q("ONE")));
  EXPECT_FALSE(r.DeleteValue(Q("One")));
  EXPECT_EQ(r.ValueNames(), QStringList{Q("Two")});
  r.DeleteKey(Key.toLower());
  EXPECT_FALSE(TRegistry().KeyExists(Key));
}

TEST_F(Registry, IniFilesHaveSections) {
  TRegIniFile ini(Key);
  EXPECT_EQ(ini.ReadString(Q("Editor"), Q("Font"), Q("none")), Q("none"));
  ini.WriteString(Q("Editor"), Q("Font"), Q("Mono"));
  ini.WriteInteger(Q("Editor"), Q("Size"), 12);
  ini.WriteBool(Q("Other"), Q("On"), true);
  TRegIniFile again(Key.toUpper());
  EXPECT_EQ(again.ReadString(Q("EDITOR"), Q("font"), Q("none")), Q("Mono"));
  EXPECT_EQ(again.ReadInteger(Q("editor"), Q("SIZE"), 0), 12);
  EXPECT_TRUE(again.ReadBool(Q("other"), Q("ON"), false));
  EXPECT_EQ(again.ReadSection(Q("editor")), (QStringList{Q("Font"), Q("Size")}));
  again.EraseSection(Q("EDITOR"));
  EXPECT_EQ(ini.ReadSection(Q("Editor")), QStringList());
  EXPECT_TRUE(ini.ReadBool(Q("Other"), Q("On"), false));
}
