// What a storage component keeps in its file, and brings back.
#include "library/storage/ObjectStorage.h"

#include <QDir>
#include <QTemporaryDir>

#include "library/controls/LEDLabel.h"
#include "library/controls/ValueListBox.h"
#include "library/values/ValueText.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"
#include "tests/library/LibraryTest.h"
#include "vcl/Edit.h"
#include "vcl/Form.h"
#include "vcl/HeaderControl.h"
#include "vcl/Memo.h"

namespace {
class Storage : public testing::Test {
 protected:
  void SetUp() override {
    form.SetName(QStringLiteral("Form1"));
    storage = new TVRXObjectStorage(&form);
    storage->SetName(QStringLiteral("Store"));
    storage->Set(TVRXObjectStorage::FileName, File());
    edit = Make<TEdit>("Edit1");
    memo = Make<TMemo>("Memo1");
    led = Make<TVRXLEDLabel>("Led1");
  }
  template <class C>
  C* Make(const char* name) {
    auto* made = new C(&form);
    made->SetName(QString::fromLatin1(name));
    return made;
  }
  QString File() const { return folder.filePath(QStringLiteral("sub/kept.ini")); }
  void Keep(const char* component, const char* property) {
    storage->StoredProps()->Add(QString::fromLatin1(component), QString::fromLatin1(property));
  }
  std::string Load() { return storage->Load().join(u'|').toStdString(); }
  std::string Save() { return storage->Save().join(u'|').toStdString(); }
  QByteArray Bytes() const {
    QFile file(File());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  void Write(const QByteArray& bytes) const {
    QFile file(File());
    ASSERT_TRUE(QDir().mkpath(QFileInfo(File()).path()) && file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  QTemporaryDir folder;
  TForm form{nullptr};
  TVRXObjectStorage* storage;
  TEdit* edit;
  TMemo* memo;
  TVRXLEDLabel* led;
};
QString Q(const char* text) { return QString::fromUtf8(text); }
TStrings& Lines(TComponent& memo) {
  return dynamic_cast<TStrings&>(*GetObjectProp(memo, memo.ClassType().GetProp("Lines")));
}
void SetText(TPersistent& component, const char* name, const char* value) {
  SetPropText(component, component.ClassType().GetProp(name), Q(value));
}
std::string TextOf(const TPersistent& component, const char* name) {
  return GetPropText(component, component.ClassType().GetProp(name)).toStdString();
}
}  // namespace

TEST_F(Storage, BringsBackWhatItKept) {
  Keep("Form1", "Caption");
  Keep("edit1", "TEXT");
  Keep("Edit1", "Left");
  Keep("Edit1", "Color");
  Keep("Edit1", "Anchors");
  Keep("Memo1", "Lines");
  Keep("Memo1", "Font");
  Keep("Led1", "LED");
  SetText(form, "Caption", "A = \"b\"; \\ \n\xE2\x82\xAC \xF0\x9F\x99\x82");
  SetText(*edit, "Text", "");
  SetText(*edit, "Left", "-17");
  SetText(*edit, "Color", "clTeal");
  SetText(*edit, "Anchors", "[akRight,akBottom]");
  const QStringList lines{Q("one"), Q(""), Q("two, \"2\"\nand a half\\"), Q("")};
  Lines(*memo).SetLines(lines);
  memo->Font()->SetName(Q("Nowhere"));
  memo->Font()->SetSize(19);
  SetText(*led->LED(), "Thickness", "5");
  EXPECT_EQ(Save(), "");
  SetText(form, "Caption", "x");
  SetText(*edit, "Text", "x");
  SetText(*edit, "Left", "1");
  SetText(*edit, "Color", "clRed");
  SetText(*edit, "Anchors", "[akLeft]");
  Lines(*memo).SetLines({Q("x")});
  memo->Font()->SetName(Q("Elsewhere"));
  memo->Font()->SetSize(7);
  memo->Font()->SetColor(clRed);
  SetText(*led->LED(), "Thickness", "9");
  SetText(*led->LED(), "ActiveColor", "clRed");
  EXPECT_EQ(Load(), "");
  EXPECT_EQ(TextOf(form, "Caption"), "A = \"b\"; \\ \n\xE2\x82\xAC \xF0\x9F\x99\x82");
  EXPECT_EQ(TextOf(*edit, "Text"), "");
  EXPECT_EQ(TextOf(*edit, "Left"), "-17");
  EXPECT_EQ(TextOf(*edit, "Color"), "clTeal");
  EXPECT_EQ(TextOf(*edit, "Anchors"), "[akRight,akBottom]");
  EXPECT_EQ(Lines(*memo).Lines(), lines);
  EXPECT_EQ(memo->Font()->Name(), Q("Nowhere"));
  EXPECT_EQ(memo->Font()->Size(), 19);
  EXPECT_NE(memo->Font()->Color(), clRed) << "what was at its default is so again";
  EXPECT_EQ(TextOf(*led->LED(), "Thickness"), "5");
  EXPECT_NE(TextOf(*led->LED(), "ActiveColor"), "clRed");
}

TEST_F(Storage, KeepsCollectionsAndReferences) {
  auto* header = Make<THeaderControl>("Header1");
  Keep("Header1", "Sections");
  Keep("Form1", "ActiveControl");
  auto& sections =
      dynamic_cast<TCollection&>(*GetObjectProp(*header, header->ClassType().GetProp("Sections")));
  for (const char* text : {"a", "b"}) {
    TPersistent& item = *sections.Add();
    SetStrProp(item, item.ClassType().GetProp("Text"), Q(text));
  }
  SetText(form, "ActiveControl", "Edit1");
  EXPECT_EQ(Save(), "");
  sections.Clear();
  SetText(form, "ActiveControl", "");
  EXPECT_EQ(Load(), "");
  ASSERT_EQ(sections.Count(), 2);
  EXPECT_EQ(GetStrProp(*sections.Item(1), sections.Item(1)->ClassType().GetProp("Text")), Q("b"));
  EXPECT_EQ(TextOf(form, "ActiveControl"), "Edit1");
  sections.Clear();
  EXPECT_EQ(Save(), "");
  sections.Add();
  EXPECT_EQ(Load(), "");
  EXPECT_EQ(sections.Count(), 0) << "an empty list is one, too";
}

TEST_F(Storage, TellsWhatIsMissingOrRefusedAndGoesOn) {
  Write(
      "[Form1]\nEdit1.Left=\"far\"\nEdit1.Text=\"kept\"\nMemo1.Font=\"Font.Size = 13\\nFont.Later = "
      "5\"\nLed1.LED=\"LED.Thickness\"\n");
  for (const auto& [component, property] :
       std::initializer_list<std::pair<const char*, const char*>>{{"Edit1", "Left"},
                                                                  {"Gone", "Left"},
                                                                  {"Edit1", "Nothing"},
                                                                  {"Edit1", "OnChange"},
                                                                  {"Edit1", "Top"},
                                                                  {"Memo1", "Font"},
                                                                  {"Led1", "LED"},
                                                                  {"Edit1", "Text"}})
    Keep(component, property);
  edit->SetLeft(3);
  const QStringList told = storage->Load();
  ASSERT_EQ(told.size(), 7) << told.join(u'\n').toStdString();
  EXPECT_TRUE(told[0].startsWith(Q("Edit1.Left is not loaded: ")) && told[0].contains(Q("far")))
      << told[0].toStdString();
  EXPECT_EQ(told[1].toStdString(), "Gone.Left is not loaded: there is no component Gone.");
  EXPECT_EQ(told[2].toStdString(), "Edit1.Nothing is not loaded: TEdit has no property of that name.");
  EXPECT_EQ(told[3].toStdString(), "Edit1.OnChange is not loaded: TEdit has no property of that name.");
  EXPECT_EQ(told[4].toStdString(),
            "Edit1.Top is not loaded: " + File().toStdString() + " has no value of it.");
  EXPECT_EQ(told[5].toStdString(), "Memo1.Font is not loaded: \"Font.Later = 5\" means nothing to it.");
  EXPECT_TRUE(told[6].startsWith(Q("Led1.LED is not loaded: "))) << told[6].toStdString();
  EXPECT_EQ(edit->Left(), 3);
  EXPECT_EQ(TextOf(*edit, "Text"), "kept") << "the last one";
  EXPECT_EQ(memo->Font()->Size(), 13) << "what could be read of it";
}

TEST_F(Storage, ChangesNothingElseInTheFile) {
  Write("[Other]\nA=\"1\"\n\n[Form1]\nGone.Left=\"5\"\nEdit1.Top=\"9\"\n");
  Keep("Gone", "Left");
  Keep("Edit1", "Left");
  edit->SetLeft(44);
  EXPECT_EQ(Save(), "Gone.Left is not saved: there is no component Gone.");
  EXPECT_EQ(Bytes().toStdString(),
            "[Form1]\nEdit1.Left=\"44\"\nEdit1.Top=\"9\"\nGone.Left=\"5\"\n\n[Other]\nA=\"1\"\n");
}

TEST_F(Storage, FormsHaveSectionsOfTheirOwn) {
  Keep("Edit1", "Left");
  edit->SetLeft(1);
  Save();
  storage->Set(TVRXObjectStorage::Section, Q("a/b \\ [c]"));
  edit->SetLeft(2);
  Save();
  storage->Set(TVRXObjectStorage::Section, {});
  Load();
  EXPECT_EQ(edit->Left(), 1);
  storage->Set(TVRXObjectStorage::Section, Q("a/b \\ [c]"));
  Load();
  EXPECT_EQ(edit->Left(), 2);
}

TEST_F(Storage, DoesNothingWhileItIsNotActive) {
  Keep("Edit1", "Left");
  Keep("Gone", "Left");
  storage->Set(TVRXObjectStorage::Active, false);
  EXPECT_EQ(Save(), "");
  EXPECT_FALSE(QFile::exists(File()));
  EXPECT_EQ(Load(), "");
}

TEST_F(Storage, AFileThatCannotBeWrittenOrReadIsTold) {
  Keep("Edit1", "Left");
  storage->Set(TVRXObjectStorage::FileName, Q("/proc/nowhere/kept.ini"));
  try {
    storage->Save();
    ADD_FAILURE();
  } catch (const Exception& error) {
    EXPECT_TRUE(error.Message().contains(Q("/proc/nowhere/kept.ini")));
  }
  storage->Set(TVRXObjectStorage::FileName, folder.path());
  EXPECT_EQ(Load(), "Nothing is loaded: " + folder.path().toStdString() + " cannot be read.");
}

TEST_F(Storage, ANameWithoutAFolderIsInThatOfTheProgram) {
  storage->Set(TVRXObjectStorage::FileName, Q("mine.ini"));
  EXPECT_TRUE(QFileInfo(storage->UsedFile()).isAbsolute());
  EXPECT_EQ(QFileInfo(storage->UsedFile()).fileName(), Q("mine.ini"));
  storage->Set(TVRXObjectStorage::FileName, {});
  EXPECT_EQ(QFileInfo(storage->UsedFile()).fileName(), Q("storage.ini"));
}

// Every published property of every component here, kept and brought back to one that has defaults.
TEST_F(Storage, EveryPropertyGoesThereAndBack) {
  const auto texts = [](const TComponent& component) {
    QStringList all;
    for (const TPropInfo* prop : component.ClassType().Properties())
      if (!prop->IsEvent()) all << QString::fromLatin1(prop->Name) + u'=' + ValueTextOf(component, *prop);
    return all;
  };
  auto* list = Make<TVRXValueListBox>("List1");
  for (TComponent* component : std::initializer_list<TComponent*>{edit, memo, led, list}) {
    SCOPED_TRACE(component->Name().toStdString());
    storage->StoredProps()->Clear();
    for (const TPropInfo* prop : component->ClassType().Properties())
      if (prop->Visibility == TPropVisibility::Published && !prop->IsEvent())
        storage->StoredProps()->Add(component->Name(), QString::fromLatin1(prop->Name));
    for (const TPropInfo* prop : component->ClassType().Properties())
      if (prop->Visibility == TPropVisibility::Published && prop->PropType->Name == "Boolean" &&
          prop->Name != "Visible")
        SetOrdProp(*component, *prop, 1 - GetOrdProp(*component, *prop));
    const QStringList before = texts(*component);
    EXPECT_EQ(Save(), "");
    for (const TPropInfo* prop : component->ClassType().Properties())
      if (prop->Visibility == TPropVisibility::Published && prop->PropType->Name == "Boolean")
        SetOrdProp(*component, *prop, 1 - GetOrdProp(*component, *prop));
    EXPECT_EQ(Load(), "");
    EXPECT_EQ(texts(*component).join(u'\n').toStdString(), before.join(u'\n').toStdString());
  }
}

TEST_F(Storage, FollowsTheNamesOfComponentsAndOfTheForm) {
  Keep("Edit1", "Text");
  Keep("FORM1", "Caption");
  Keep("Memo1", "Lines");
  Keep("edit1", "Hint");
  edit->SetName(Q("Field"));
  form.SetName(Q("Main"));
  QStringList kept;
  for (int i = 0; i < storage->StoredProps()->Count(); ++i)
    kept << storage->StoredProps()->Items(i)->DisplayName();
  EXPECT_EQ(kept.join(u' ').toStdString(), "Field.Text Main.Caption Memo1.Lines Field.Hint");
}

TEST_F(Storage, KeepsTheNamesOfComponentsThatAreNoneOfItsForm) {
  Keep("Edit1", "Text");
  TForm other{nullptr};
  auto* stranger = new TEdit(&other);
  stranger->FreeNotification(storage);
  stranger->SetName(Q("Edit1"));
  stranger->SetName(Q("Edit2"));
  edit->SetName(QString());
  EXPECT_EQ(storage->StoredProps()->Items(0)->DisplayName().toStdString(), "Edit1.Text");
}
