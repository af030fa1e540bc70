// Packages: their records, loading, unloading, and everything that can be wrong with them.
#include "ide/PackageManager.h"

#include <gtest/gtest.h>

#include <QtTest>

#include "designintf/PackageCall.h"
#include "ide/FormSession.h"
#include "ide/InspectorModel.h"
#include "ide/Unknown.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Exceptions.h"
#include "tests/support/LeaksOfOthers.h"

namespace {
const QString TestPackages = QStringLiteral(VRX_BINARY_DIR "/tests/packages");
const QString Packages = QStringLiteral(VRX_BINARY_DIR "/packages");
const QString Libraries = QStringLiteral(VRX_BINARY_DIR "/lib");

QStringList Log() { return qApp->property("packageLog").toStringList(); }

QString MessageOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Exception& e) {
    return e.Message();
  }
  return {};
}

bool IsMapped(const QString& name) {
  QFile maps(QStringLiteral("/proc/self/maps"));
  return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(name.toUtf8());
}

class PackageTest : public testing::Test {
 protected:
  void SetUp() override {
    qApp->setProperty("packageLog", QStringList());
    rows_ = registry_.Rows().size();
    classes_ = RegisteredClasses().size();
  }
  bool NothingLeft() const {
    return registry_.Rows().size() == rows_ && RegisteredClasses().size() == classes_;
  }
  DesignRegistry registry_;
  PackageManager manager_{{TestPackages, Packages, Libraries}};
  std::size_t rows_ = 0, classes_ = 0;
};
}  // namespace

TEST_F(PackageTest, TheMainPackagesRecordTellsFlagsAndDescription) {
  const TPackageRecord record = manager_.ReadRecord(PackageManager::DefaultPackage());
  EXPECT_EQ(record.Name, QStringLiteral("dclvrxmain220"));
  EXPECT_EQ(record.Description, QStringLiteral("VRX 2025 - Orlenvo-Kit Main Components"));
  EXPECT_TRUE(record.NeverBuild);
  EXPECT_TRUE(record.DesignOnly);
  EXPECT_FALSE(record.RunOnly);
}

TEST_F(PackageTest, TheMainPackageRequiresElevenPackagesInOrder) {
  EXPECT_EQ(
      manager_.ReadRecord(PackageManager::DefaultPackage()).Requires.join(u' '),
      QStringLiteral("dclvrxprint220 dclvrxcore220 dclstd220 designide220 vclx220 vcl220 rtl220 dclvrxrtl220 "
                     "vrxrtl220 vrxrttools220 vrxrtcore220"));
}

TEST_F(PackageTest, TheMainPackageContainsThirtyThreeUnitsInOrder) {
  const TPackageRecord record = manager_.ReadRecord(PackageManager::DefaultPackage());
  QStringList names;
  for (const TPackageUnit& unit : record.Contains) names << unit.Name;
  EXPECT_EQ(names.size(), 33);
  EXPECT_EQ(
      names.mid(1).join(u' '),
      QStringLiteral(
          "pVRXValueListDlg SysInit pVRXControlFaceEditorDlgAddState pVRXControlFaceEditorDlg "
          "pVRXDateListEditorDlg "
          "pVRXVldRegExpEditor pVRXTeethEditorDlg pVRXStyleManProp pVRXCstMain pVRXCPGetMain "
          "pVRXLightEditorDlg "
          "pVRXBmpRegionEditorDlg pVRXPointListEditorDlg pVRXShapeEditorDlg pVRXCaptionEditorDlg "
          "pVRXSimpleBevelEditorDlg pVRXShadowEditorDlg pVRX3DEffectEditorDlg pVRXLEDEditorDlg "
          "pVRXSendKeyEditorDlg "
          "pVRXOSPropForm pVRXRegOS pVRXMMButtonFaceEditorDlg pVRXHideNonVC pVRXGraphicLabelEditorDlg "
          "pVRXFilterPropertyEditorDlg pVRXDlgBtnEditorDlg pVRXButtonBarEditorDlg pVRXPeMain pVRXCEMain "
          "VRX_RegMainEditors VRX_RegMain"));
  for (std::size_t i = 0; i < record.Contains.size(); ++i) {
    EXPECT_EQ(record.Contains[i].MainUnit, i == 0) << i;
    EXPECT_EQ(record.Contains[i].PackageUnit, i == 0) << i;
  }
}

TEST_F(PackageTest, ARecordIsReadWithoutRunningCode) {
  EXPECT_EQ(manager_.ReadRecord(QStringLiteral("testneedy")).Requires.size(), 3);
  EXPECT_EQ(manager_.ReadRecord(TestPackages + QStringLiteral("/testneedy.so")).Name,
            QStringLiteral("testneedy"));
  EXPECT_FALSE(IsMapped(QStringLiteral("testneedy.so")));
  EXPECT_TRUE(Log().isEmpty());
}

TEST_F(PackageTest, TheUnitTableOfTheMainPackageAgreesWithItsRecord) {
  manager_.Load(PackageManager::DefaultPackage());
  QPluginLoader loader(Packages + QStringLiteral("/dclvrxmain220.so"));
  const auto* package = qobject_cast<IDesignPackage*>(loader.instance());
  ASSERT_NE(package, nullptr);
  const TPackageRecord record = manager_.ReadRecord(PackageManager::DefaultPackage());
  ASSERT_EQ(package->GetPackageInfoTable().size(), record.Contains.size());
  for (std::size_t i = 0; i < record.Contains.size(); ++i)
    EXPECT_EQ(QString::fromLatin1(package->GetPackageInfoTable()[i].Name), record.Contains[i].Name);
}

TEST_F(PackageTest, LoadingTheMainPackagePutsTheLedLabelOnThePalette) {
  const TClass* before = FindClass("TVRXLEDLabel");
  manager_.Load(PackageManager::DefaultPackage());
  EXPECT_NE(FindClass("TVRXLEDLabel"), nullptr);
  ASSERT_GT(registry_.Rows().size(), rows_);
  const auto& rows = registry_.Rows();
  const auto page =
      std::find_if(rows.begin() + static_cast<std::ptrdiff_t>(rows_), rows.end(), [](const auto& row) {
        return row.Kind == TRegistrationKind::Components && row.PageOrCategory == QStringLiteral("VRX Ext");
      });
  ASSERT_NE(page, rows.end());
  const auto& classes = page->Classes;
  EXPECT_EQ(std::count(classes.begin(), classes.end(), FindClass("TVRXLEDLabel")), 1);
  manager_.Unload(PackageManager::DefaultPackage());
  EXPECT_TRUE(NothingLeft());
  EXPECT_EQ(FindClass("TVRXLEDLabel"), before);
}

TEST_F(PackageTest, UnitsStartInOrderThenRegisterAndEndInReverse) {
  manager_.Load(QStringLiteral("testsample"));
  EXPECT_EQ(Log().join(u','), QStringLiteral("init first,init second,register first,register second"));
  qApp->setProperty("packageLog", QStringList());
  manager_.Unload(QStringLiteral("testsample"));
  EXPECT_EQ(Log().join(u','), QStringLiteral("final second,final first"));
}

TEST_F(PackageTest, LoadingALoadedPackageDoesNothing) {
  manager_.Load(QStringLiteral("testsample"));
  const std::size_t rows = registry_.Rows().size();
  const QStringList log = Log();
  manager_.Load(QStringLiteral("testsample"));
  EXPECT_EQ(registry_.Rows().size(), rows);
  EXPECT_EQ(Log(), log);
  EXPECT_EQ(manager_.LoadedPackages(), QStringList(QStringLiteral("testsample")));
}

TEST_F(PackageTest, UnloadingLeavesNoRegistrationAndNoClass) {
  QSignalSpy changed(&manager_, &PackageManager::ClassesChanged);
  for (int round = 0; round < 3; ++round) {
    manager_.Load(QStringLiteral("testsample"));
    EXPECT_TRUE(manager_.IsLoaded(QStringLiteral("testsample")));
    EXPECT_NE(FindClass("TSampleGauge"), nullptr);
    EXPECT_EQ(registry_.Rows().size(), rows_ + 4);
    manager_.Unload(QStringLiteral("testsample"));
    EXPECT_FALSE(manager_.IsLoaded(QStringLiteral("testsample")));
    EXPECT_EQ(FindClass("TSampleGauge"), nullptr);
    EXPECT_TRUE(NothingLeft());
  }
  EXPECT_EQ(Log().count(QStringLiteral("init first")), 3);
  EXPECT_EQ(Log().count(QStringLiteral("final first")), 3);
  EXPECT_EQ(Log().count(QStringLiteral("register second")), 3);
  EXPECT_EQ(changed.count(), 6);
}

TEST_F(PackageTest, TheRowsCarryTheUnitThatMadeThem) {
  manager_.Load(QStringLiteral("testsample"));
  QStringList units;
  for (std::size_t i = rows_; i < registry_.Rows().size(); ++i)
    units << QString::fromLatin1(registry_.Rows()[i].Procedure);
  EXPECT_EQ(units.join(u' '), QStringLiteral("testsample testsample Second Second"));
}

TEST_F(PackageTest, AManagerThatGoesTakesItsPackagesAlong) {
  {
    PackageManager other({TestPackages, Libraries});
    other.Load(QStringLiteral("testsample"));
    EXPECT_FALSE(NothingLeft());
  }
  EXPECT_TRUE(NothingLeft());
  EXPECT_EQ(Log().last(), QStringLiteral("final first"));
}

TEST_F(PackageTest, AMissingPackageIsNamedWithAFix) {
  const QString message = MessageOf([&] { manager_.Load(QStringLiteral("nosuch220")); });
  EXPECT_TRUE(message.contains(QStringLiteral("nosuch220"))) << message.toStdString();
  EXPECT_TRUE(message.contains(QStringLiteral("not found"))) << message.toStdString();
  EXPECT_TRUE(message.contains(TestPackages)) << message.toStdString();
  const QString file = MessageOf([&] { manager_.Load(QStringLiteral("/nowhere/x.so")); });
  EXPECT_TRUE(file.contains(QStringLiteral("/nowhere/x.so"))) << file.toStdString();
  EXPECT_TRUE(NothingLeft());
}

TEST_F(PackageTest, AMissingRequirementIsNamed) {
  const QString message = MessageOf([&] { manager_.Load(QStringLiteral("testneedy")); });
  EXPECT_TRUE(message.contains(QStringLiteral("testneedy"))) << message.toStdString();
  EXPECT_TRUE(message.contains(QStringLiteral("nowhere220"))) << message.toStdString();
  EXPECT_FALSE(message.contains(QStringLiteral("vcl220"))) << message.toStdString();
  EXPECT_TRUE(Log().isEmpty());
  EXPECT_TRUE(NothingLeft());
  EXPECT_FALSE(manager_.IsLoaded(QStringLiteral("testneedy")));
}

TEST_F(PackageTest, WithoutItsLibraryTheMainPackageNamesTheFirstMissingRequirement) {
  PackageManager alone({Packages});
  const QString message = MessageOf([&] { alone.Load(PackageManager::DefaultPackage()); });
  EXPECT_TRUE(message.contains(QStringLiteral("dclvrxprint220"))) << message.toStdString();
}

TEST_F(PackageTest, ABrokenFileIsNamedWithAFix) {
  const QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("x.so")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("this is no library\n");
  file.close();
  PackageManager manager({folder.path(), Libraries});
  for (const QString& name : {QStringLiteral("x"), file.fileName()}) {
    const QString message = MessageOf([&] { manager.Load(name); });
    EXPECT_TRUE(message.contains(file.fileName())) << message.toStdString();
    EXPECT_TRUE(message.contains(QStringLiteral("damaged"))) << message.toStdString();
    EXPECT_TRUE(message.contains(QStringLiteral("Build it again"))) << message.toStdString();
  }
  EXPECT_TRUE(NothingLeft());
}

TEST_F(PackageTest, APackageWhoseRegisterThrowsLeavesNothingBehind) {
  const QString message = MessageOf([&] { manager_.Load(QStringLiteral("testthrowing")); });
  EXPECT_TRUE(message.contains(QStringLiteral("testthrowing"))) << message.toStdString();
  EXPECT_TRUE(message.contains(QStringLiteral("The gauge is out of order."))) << message.toStdString();
  EXPECT_TRUE(NothingLeft());
  EXPECT_EQ(FindClass("THalfWay"), nullptr);
  EXPECT_FALSE(manager_.IsLoaded(QStringLiteral("testthrowing")));
  EXPECT_EQ(Log().join(u','), QStringLiteral("init throwing,final throwing"));
}

TEST_F(PackageTest, APackageWhoseStartThrowsIsNotLoaded) {
  const QString message = MessageOf([&] { manager_.Load(QStringLiteral("testinitthrows")); });
  EXPECT_TRUE(message.contains(QStringLiteral("testinitthrows"))) << message.toStdString();
  EXPECT_TRUE(message.contains(QStringLiteral("The unit does not start."))) << message.toStdString();
  EXPECT_TRUE(NothingLeft());
  EXPECT_TRUE(Log().isEmpty());
}

TEST_F(PackageTest, AFailedPackageLeavesTheOthersAndOpenFormsAlone) {
  const QByteArray bytes =
      "object F: TF\n  object Gauge1: TSampleGauge\n    Left = 1\n    Top = 2\n    Width = 60\n    Height = "
      "20\n"
      "    Level = 3\n  end\nend\n";
  manager_.Load(QStringLiteral("testsample"));
  const auto session = FormSession::FromBytes(bytes);
  EXPECT_NE(MessageOf([&] { manager_.Load(QStringLiteral("testthrowing")); }), QString());
  EXPECT_NE(MessageOf([&] { manager_.Load(QStringLiteral("testneedy")); }), QString());
  EXPECT_EQ(manager_.LoadedPackages(), QStringList(QStringLiteral("testsample")));
  EXPECT_EQ(session->Bytes(), bytes);
  EXPECT_EQ(session->GetComponent(QStringLiteral("Gauge1"))->ClassType().ClassName(), "TSampleGauge");
}

TEST_F(PackageTest, AnOpenFormFollowsItsPackageAndLosesNothing) {
  const QByteArray bytes =
      "object F: TF\n  object Gauge1: TSampleGauge\n    Left = 1\n    Top = 2\n    Width = 60\n    Height = "
      "20\n"
      "    Level = 3\n  end\nend\n";
  const auto session = FormSession::FromBytes(bytes);
  const auto follow = [&] { session->Rebuild(); };
  QObject::connect(&manager_, &PackageManager::ClassesChanged, session.get(), follow);
  const QString name = QStringLiteral("Gauge1");
  EXPECT_TRUE(session->GetComponent(name)->InheritsFrom(TUnknownControl::StaticClass()));
  manager_.Load(QStringLiteral("testsample"));
  EXPECT_EQ(session->GetComponent(name)->ClassType().ClassName(), "TSampleGauge");
  manager_.Unload(QStringLiteral("testsample"));
  EXPECT_TRUE(session->GetComponent(name)->InheritsFrom(TUnknownControl::StaticClass()));
  EXPECT_EQ(session->Bytes(), bytes);
  EXPECT_FALSE(session->IsModified());
}

namespace {
bool Names(const QString& message, const char* package, const char* call) {
  return message.contains(QString::fromLatin1(package)) && message.contains(QString::fromLatin1(call));
}

// A copy of a test package under another file name.
QString CopyOf(const char* name, const QString& folder, const char* as) {
  const QString file = folder + u'/' + QString::fromLatin1(as);
  QDir().mkpath(folder);
  EXPECT_TRUE(QFile::copy(TestPackages + u'/' + QString::fromLatin1(name), file));
  return file;
}

// What packages are told to have done, while it lives.
struct Told {
  QStringList messages;
  Told() {
    SetPackageProblemListener([this](const QString& m) { messages << m; });
  }
  ~Told() { SetPackageProblemListener(nullptr); }
};

const QByteArray BadForm =
    "object F: TF\n  object G: TBadGauge\n    Left = 1\n    Top = 2\n    Width = 60\n    Height = 20\n"
    "    Level = 3\n  end\nend\n";
}  // namespace

TEST_F(PackageTest, APluginWhoseConstructorThrowsAnythingIsNamed) {
  const QString message = MessageOf([&] { manager_.Load(QStringLiteral("testctorthrows")); });
  EXPECT_TRUE(Names(message, "testctorthrows", "constructor")) << message.toStdString();
  EXPECT_TRUE(NothingLeft());
  EXPECT_FALSE(manager_.IsLoaded(QStringLiteral("testctorthrows")));
  manager_.Load(QStringLiteral("testsample"));
  EXPECT_TRUE(manager_.IsLoaded(QStringLiteral("testsample")));
}

TEST_F(PackageTest, APackageWhoseStaticObjectsThrowIsNamed) {
  const LeaksOfOthers leaks;  // the loader of plug-ins frees nothing when an exception goes through it
  const QString message = MessageOf([&] { manager_.Load(QStringLiteral("teststaticthrows")); });
  EXPECT_TRUE(Names(message, "teststaticthrows", "constructor")) << message.toStdString();
  EXPECT_TRUE(NothingLeft());
}

TEST_F(PackageTest, AFailingRegisterIsNamedWithItsUnit) {
  const QString message = MessageOf([&] { manager_.Load(QStringLiteral("testthrowing")); });
  EXPECT_TRUE(Names(message, "testthrowing", "Register of testthrowing")) << message.toStdString();
  const QString start = MessageOf([&] { manager_.Load(QStringLiteral("testinitthrows")); });
  EXPECT_TRUE(Names(start, "testinitthrows", "Initialize")) << start.toStdString();
}

TEST_F(PackageTest, APackageWhoseFinalizeThrowsIsGoneAndNamed) {
  manager_.Load(QStringLiteral("testbadend"));
  const QString message = MessageOf([&] { manager_.Unload(QStringLiteral("testbadend")); });
  EXPECT_TRUE(Names(message, "testbadend", "Finalize")) << message.toStdString();
  EXPECT_FALSE(manager_.IsLoaded(QStringLiteral("testbadend")));
  EXPECT_TRUE(NothingLeft());
}

TEST_F(PackageTest, AManagerThatGoesSurvivesAFinalizeThatThrows) {
  Told told;
  {
    PackageManager other({TestPackages, Libraries});
    other.Load(QStringLiteral("testsample"));
    other.Load(QStringLiteral("testbadend"));
  }
  ASSERT_EQ(told.messages.size(), 1);
  EXPECT_TRUE(Names(told.messages[0], "testbadend", "Finalize")) << told.messages[0].toStdString();
  EXPECT_EQ(Log().last(), QStringLiteral("final first")) << "the others still end";
  EXPECT_TRUE(NothingLeft());
}

TEST_F(PackageTest, EditorsThatThrowAreNamedAndTheRowsStay) {
  Told told;
  manager_.Load(QStringLiteral("testbadend"));
  const auto session = FormSession::FromBytes(BadForm);
  InspectorModel model;
  model.SetSession(session.get());
  session->Select({session->GetComponent(QStringLiteral("G"))});
  ASSERT_EQ(session->GetComponent(QStringLiteral("G"))->ClassType().ClassName(), "TBadGauge");
  ASSERT_EQ(told.messages.filter(QStringLiteral("TBadMarkProperty.constructor")).size(), 1);
  const QModelIndex mark = model.IndexOfPath(QStringLiteral("Mark"));
  EXPECT_EQ(model.ValueText(mark), QStringLiteral("0")) << "the usual editor serves instead";
  EXPECT_EQ(model.SetValueText(mark, QStringLiteral("9")), QString());
  const QModelIndex level = model.IndexOfPath(QStringLiteral("Level"));
  EXPECT_EQ(model.ValueText(level), QString());
  ASSERT_FALSE(told.messages.isEmpty());
  EXPECT_TRUE(Names(told.messages.last(), "testbadend", "TBadLevelProperty.GetValue"));
  const qsizetype count = told.messages.size();
  EXPECT_EQ(model.ValueText(level), QString());
  EXPECT_EQ(told.messages.size(), count) << "once is enough";
  const QByteArray before = session->Bytes();
  const QString refused = model.SetValueText(level, QStringLiteral("8"));
  EXPECT_TRUE(Names(refused, "testbadend", "TBadLevelProperty.SetValue")) << refused.toStdString();
  EXPECT_EQ(session->Bytes(), before);
  model.SetSession(nullptr);
}

TEST_F(PackageTest, AComponentEditorThatThrowsIsNamedAndRolledBack) {
  manager_.Load(QStringLiteral("testbadend"));
  const auto session = FormSession::FromBytes(BadForm);
  const QString message = MessageOf([&] { session->Edit(*session->GetComponent(QStringLiteral("G"))); });
  EXPECT_TRUE(Names(message, "testbadend", "TBadGaugeEditor.Edit")) << message.toStdString();
  EXPECT_EQ(session->Bytes(), BadForm);
  EXPECT_FALSE(session->CanUndo());
}

TEST_F(PackageTest, AComponentThatCannotBeMadeIsAFindingAndStaysInTheFile) {
  manager_.Load(QStringLiteral("testbadend"));
  const QByteArray bytes =
      "object F: TF\n  ClientWidth = 90\n  object N: TNeverMade\n    Left = 1\n  end\nend\n";
  const auto session = FormSession::FromBytes(bytes);
  ASSERT_EQ(session->Findings().size(), 1u);
  EXPECT_TRUE(Names(session->Findings()[0].text, "testbadend", "TNeverMade.constructor"))
      << session->Findings()[0].text.toStdString();
  EXPECT_EQ(session->Findings()[0].where.line, 3);
  EXPECT_EQ(session->Bytes(), bytes);
  const QString message =
      MessageOf([&] { session->CreateComponent(GetClass("TNeverMade"), nullptr, QRect(1, 2, 30, 40)); });
  EXPECT_TRUE(Names(message, "testbadend", "TNeverMade.constructor")) << message.toStdString();
  EXPECT_EQ(session->Bytes(), bytes);
}

TEST_F(PackageTest, TheFileThatBearsTheNameIsTakenBeforeOneThatClaimsIt) {
  const QTemporaryDir folder;
  const QString stranger = CopyOf("testsample.so", folder.filePath(QStringLiteral("first")), "aaa.so"),
                own = CopyOf("testsample.so", folder.filePath(QStringLiteral("second")), "testsample.so");
  const QStringList folders{folder.filePath(QStringLiteral("first")),
                            folder.filePath(QStringLiteral("second")), Libraries};
  PackageManager manager(folders);
  manager.Load(QStringLiteral("testsample"));
  EXPECT_TRUE(IsMapped(own));
  EXPECT_FALSE(IsMapped(stranger));
  ASSERT_EQ(manager.Warnings().size(), 1);
  EXPECT_TRUE(manager.Warnings()[0].contains(own)) << manager.Warnings()[0].toStdString();
  EXPECT_TRUE(manager.Warnings()[0].contains(stranger)) << manager.Warnings()[0].toStdString();
}

namespace {
// The package in another version: one name in its record, which keeps its length, is another.
void Patch(const QString& fileName, const QByteArray& name, const QByteArray& other) {
  ASSERT_EQ(name.size(), other.size());
  QFile file(fileName);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  QByteArray bytes = file.readAll();
  ASSERT_TRUE(bytes.contains(name));
  file.seek(0);
  file.write(bytes.replace(name, other));
}
}  // namespace

TEST_F(PackageTest, APackageThatNeedsAnotherIsLoadedAfterIt) {
  const QTemporaryDir folder;
  Patch(CopyOf("testneedy.so", folder.path(), "testneedy.so"), "nowhere220", "testsample");
  PackageManager manager({folder.path(), TestPackages, Libraries}, registry_);
  const QString message = MessageOf([&] { manager.Load(QStringLiteral("testneedy")); });
  EXPECT_EQ(message,
            QStringLiteral("Package testneedy cannot be loaded: it requires package testsample, which "
                           "is not loaded. Load testsample first."));
  EXPECT_TRUE(manager.LoadedPackages().isEmpty());
  manager.Load(QStringLiteral("testsample"));
  manager.Load(QStringLiteral("testneedy"));
  EXPECT_EQ(manager.LoadedPackages(),
            (QStringList{QStringLiteral("testsample"), QStringLiteral("testneedy")}));
}

TEST_F(PackageTest, AnotherVersionOfWhatItNeedsIsNotEnough) {
  const QTemporaryDir folder;
  Patch(CopyOf("testneedy.so", folder.path(), "testneedy.so"), "rtl220", "rtl210");
  PackageManager manager({folder.path(), Libraries}, registry_);
  EXPECT_EQ(
      MessageOf([&] { manager.Load(QStringLiteral("testneedy")); }),
      QStringLiteral("Package testneedy cannot be loaded: it requires package rtl210, and here is rtl220. "
                     "Build the package for this version."));
  EXPECT_TRUE(manager.LoadedPackages().isEmpty());
  EXPECT_TRUE(Log().isEmpty());
}

TEST_F(PackageTest, PackagesThatNeedEachOtherAreRefusedWithAReason) {
  const QTemporaryDir folder;
  Patch(CopyOf("testneedy.so", folder.path(), "testneedy.so"), "nowhere220", "testcircle");
  PackageManager manager({folder.path(), TestPackages, Libraries}, registry_);
  const QString ends = QStringLiteral(". Neither can be first: one of them must be built without the other.");
  EXPECT_EQ(
      MessageOf([&] { manager.Load(QStringLiteral("testneedy")); }),
      QStringLiteral("Package testneedy cannot be loaded: it requires package testcircle, which requires "
                     "testneedy") +
          ends);
  EXPECT_EQ(
      MessageOf([&] { manager.Load(QStringLiteral("testcircle")); }),
      QStringLiteral("Package testcircle cannot be loaded: it requires package testneedy, which requires "
                     "testcircle") +
          ends);
  EXPECT_TRUE(manager.LoadedPackages().isEmpty());
  EXPECT_TRUE(Log().isEmpty());
}

TEST_F(PackageTest, AStrangersNameOnTheFileDoesNotMakeItThePackage) {
  const QTemporaryDir folder;
  CopyOf("testneedy.so", folder.path(), "testsample.so");
  CopyOf("testsample.so", folder.path(), "zzz.so");
  PackageManager manager({folder.path()});
  EXPECT_EQ(manager.ReadRecord(QStringLiteral("testsample")).Name, QStringLiteral("testsample"));
  EXPECT_TRUE(manager.Warnings().isEmpty());
}

TEST_F(PackageTest, ADamagedFileOfTheNameIsToldRatherThanReplacedByAnother) {
  const QTemporaryDir folder;
  QFile damaged(folder.filePath(QStringLiteral("testsample.so")));
  ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
  damaged.write("no library");
  damaged.close();
  CopyOf("testsample.so", folder.path(), "aaa.so");
  PackageManager manager({folder.path()});
  const QString message = MessageOf([&] { manager.ReadRecord(QStringLiteral("testsample")); });
  EXPECT_TRUE(message.contains(damaged.fileName())) << message.toStdString();
}

TEST_F(PackageTest, NamesAreComparedWithoutRegardToCase) {
  EXPECT_EQ(manager_.ReadRecord(QStringLiteral("TestSAMPLE")).Name, QStringLiteral("testsample"));
  manager_.Load(QStringLiteral("TESTSAMPLE"));
  EXPECT_TRUE(manager_.IsLoaded(QStringLiteral("testSample")));
  manager_.Unload(QStringLiteral("TestSample"));
  EXPECT_FALSE(manager_.IsLoaded(QStringLiteral("testsample")));
}
