// Packages: their records, loading, unloading, and everything that can be wrong with them.
#include "ide/PackageManager.h"

#include <gtest/gtest.h>

#include <QtTest>

#include "designintf/DesignIntf.h"
#include "ide/FormSession.h"
#include "ide/Unknown.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Exceptions.h"

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
    rows_ = Registrations().size();
    classes_ = RegisteredClasses().size();
  }
  bool NothingLeft() const {
    return Registrations().size() == rows_ && RegisteredClasses().size() == classes_;
  }
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
  ASSERT_GT(Registrations().size(), rows_);
  const auto& rows = Registrations();
  const auto first = std::find_if(rows.begin() + static_cast<std::ptrdiff_t>(rows_), rows.end(),
                                  [](const auto& row) { return row.Kind == TRegistrationKind::Components; });
  ASSERT_NE(first, rows.end());
  EXPECT_EQ(first->PageOrCategory, QStringLiteral("VRX Ext"));
  ASSERT_EQ(first->Classes.size(), 1u);
  EXPECT_EQ(first->Classes[0]->ClassName(), "TVRXLEDLabel");
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
  const std::size_t rows = Registrations().size();
  const QStringList log = Log();
  manager_.Load(QStringLiteral("testsample"));
  EXPECT_EQ(Registrations().size(), rows);
  EXPECT_EQ(Log(), log);
  EXPECT_EQ(manager_.LoadedPackages(), QStringList(QStringLiteral("testsample")));
}

TEST_F(PackageTest, UnloadingLeavesNoRegistrationAndNoClass) {
  QSignalSpy changed(&manager_, &PackageManager::ClassesChanged);
  for (int round = 0; round < 3; ++round) {
    manager_.Load(QStringLiteral("testsample"));
    EXPECT_TRUE(manager_.IsLoaded(QStringLiteral("testsample")));
    EXPECT_NE(FindClass("TSampleGauge"), nullptr);
    EXPECT_EQ(Registrations().size(), rows_ + 4);
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
  for (std::size_t i = rows_; i < Registrations().size(); ++i)
    units << QString::fromLatin1(Registrations()[i].Procedure);
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
  EXPECT_TRUE(IsUnknown(*session->GetComponent(name)));
  manager_.Load(QStringLiteral("testsample"));
  EXPECT_EQ(session->GetComponent(name)->ClassType().ClassName(), "TSampleGauge");
  manager_.Unload(QStringLiteral("testsample"));
  EXPECT_TRUE(IsUnknown(*session->GetComponent(name)));
  EXPECT_EQ(session->Bytes(), bytes);
  EXPECT_FALSE(session->IsModified());
}
