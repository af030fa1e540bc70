#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include "CliTest.h"

namespace {
using PackageCli = Cli;
using RegistrationsCli = Cli;
using HelpCli = Cli;

const char* const Units =
    "dclvrxmain220 pVRXValueListDlg SysInit pVRXControlFaceEditorDlgAddState pVRXControlFaceEditorDlg "
    "pVRXDateListEditorDlg "
    "pVRXVldRegExpEditor pVRXTeethEditorDlg pVRXStyleManProp pVRXCstMain pVRXCPGetMain pVRXLightEditorDlg "
    "pVRXBmpRegionEditorDlg pVRXPointListEditorDlg pVRXShapeEditorDlg pVRXCaptionEditorDlg "
    "pVRXSimpleBevelEditorDlg "
    "pVRXShadowEditorDlg pVRX3DEffectEditorDlg pVRXLEDEditorDlg pVRXSendKeyEditorDlg pVRXOSPropForm "
    "pVRXRegOS "
    "pVRXMMButtonFaceEditorDlg pVRXHideNonVC pVRXGraphicLabelEditorDlg pVRXFilterPropertyEditorDlg "
    "pVRXDlgBtnEditorDlg "
    "pVRXButtonBarEditorDlg pVRXPeMain pVRXCEMain VRX_RegMainEditors VRX_RegMain";
const char* const Required =
    "dclvrxprint220 dclvrxcore220 dclstd220 designide220 vclx220 vcl220 rtl220 dclvrxrtl220 vrxrtl220 "
    "vrxrttools220 vrxrtcore220";
}  // namespace

TEST_F(PackageCli, JsonHasTheWholeRecord) {
  const Result r = Vrx({L("package"), L("--json")});
  EXPECT_EQ(r.code, 0);
  EXPECT_EQ(r.err, QString());
  const QJsonObject o = QJsonDocument::fromJson(r.out.toUtf8()).object();
  EXPECT_EQ(o[L("name")].toString(), L("dclvrxmain220"));
  EXPECT_EQ(o[L("description")].toString(), L("VRX 2025 - Orlenvo-Kit Main Components"));
  EXPECT_EQ(o[L("flags")].toArray(), (QJsonArray{L("never-build"), L("design-only")}));
  QStringList names;
  for (const auto& v : o[L("requires")].toArray()) names << v.toString();
  EXPECT_EQ(names.size(), 11);
  EXPECT_EQ(names.join(u' '), L(Required));
  names.clear();
  for (const auto& v : o[L("contains")].toArray()) {
    const QJsonArray flags = v.toObject()[L("flags")].toArray();
    EXPECT_EQ(flags, names.isEmpty() ? (QJsonArray{L("main-unit"), L("package-unit")}) : QJsonArray());
    names << v.toObject()[L("unit")].toString();
  }
  EXPECT_EQ(names.size(), 33);
  EXPECT_EQ(names.join(u' '), L(Units));
}

TEST_F(PackageCli, TextListsTheSameInOrder) {
  const Result r = Vrx({L("package")});
  EXPECT_EQ(r.code, 0);
  EXPECT_TRUE(r.out.contains(L("VRX 2025 - Orlenvo-Kit Main Components")));
  qsizetype at = 0;
  for (const QString& name : L(Required).split(u' ') + L(Units).split(u' ')) {
    at = r.out.indexOf(L("\n  ") + name, at) + 1;
    EXPECT_GT(at, 0) << name.toStdString();
  }
  EXPECT_TRUE(r.out.contains(L("\nRequires (11):\n"))) << r.out.toStdString();
  EXPECT_TRUE(r.out.contains(L("\nContains (33):\n")));
  EXPECT_TRUE(r.out.contains(L("never build, design only")));
  EXPECT_EQ(Vrx({L("package"), L("nosuch220")}).code, 1);
  EXPECT_EQ(Vrx({L("package"), L("extra"), L("more")}).code, 2);
}

TEST_F(RegistrationsCli, JsonHasOneObjectForEveryCall) {
  const Result r = Vrx({L("registrations"), L("--json")});
  EXPECT_EQ(r.code, 0);
  const QJsonDocument json = QJsonDocument::fromJson(r.out.toUtf8());
  ASSERT_TRUE(json.isArray());
  ASSERT_FALSE(json.array().isEmpty());
  const QStringList units = L(Units).split(u' ');
  bool ledPage = false, ledEditor = false;
  for (const auto& v : json.array()) {
    const QJsonObject o = v.toObject();
    EXPECT_TRUE(units.contains(o[L("procedure")].toString()));
    const QString call = o[L("call")].toString();
    if (call == L("RegisterComponents")) {
      EXPECT_TRUE(o[L("page")].isString());
      EXPECT_TRUE(o[L("classes")].isArray());
      ledPage = ledPage || (o[L("page")].toString() == L("VRX Ext") &&
                            o[L("classes")].toArray().contains(L("TVRXLEDLabel")));
    } else if (call == L("RegisterActions")) {
      EXPECT_TRUE(o[L("category")].isString());
      EXPECT_TRUE(o[L("class")].isNull());
    } else if (call == L("RegisterPropertyEditor")) {
      for (const char* key : {"type", "class", "name", "editor"}) EXPECT_TRUE(o.contains(L(key))) << key;
      EXPECT_TRUE(o[L("name")].isString()) << "an empty name is an empty string";
      EXPECT_TRUE(o[L("class")].isNull() || !o[L("class")].toString().isEmpty());
      ledEditor = ledEditor ||
                  (o[L("type")].toString() == L("TVRXLED") && o[L("class")].isNull() &&
                   o[L("name")].toString().isEmpty() && o[L("editor")].toString() == L("TVRXLEDProperty"));
    } else {
      EXPECT_TRUE(call == L("RegisterComponentEditor") || call == L("RegisterPropertiesInCategory"))
          << call.toStdString();
      EXPECT_TRUE(o[L("class")].isString());
    }
  }
  EXPECT_TRUE(ledPage);
  EXPECT_TRUE(ledEditor);
}

TEST_F(RegistrationsCli, TextNamesNothingNil) {
  const Result r = Vrx({L("registrations")});
  EXPECT_EQ(r.code, 0);
  EXPECT_TRUE(r.Lines()[0].startsWith(L("Package dclvrxmain220: "))) << r.out.toStdString();
  EXPECT_EQ(r.Lines().filter(QRegularExpression(L("^VRX_RegMain \\(\\d+\\):$"))).size(), 1);
  EXPECT_TRUE(r.Lines().contains(L("  RegisterPropertyEditor TVRXLED nil \"\" -> TVRXLEDProperty")))
      << r.out.toStdString();
  const qsizetype rows =
      QJsonDocument::fromJson(Vrx({L("registrations"), L("--json")}).out.toUtf8()).array().size();
  EXPECT_EQ(r.Lines().filter(L("  Register")).size(), rows);
  EXPECT_EQ(Vrx({L("registrations"), L("--all")}).code, 2);
}

TEST_F(HelpCli, NamesEveryCommand) {
  const Result help = Vrx({L("--help")});
  EXPECT_EQ(help.code, 0);
  EXPECT_EQ(help.err, QString());
  for (const char* name : {"check", "convert", "render", "get", "set", "package", "registrations"}) {
    EXPECT_TRUE(help.out.contains(L("\n  vrx ") + L(name) + u' ')) << name;
    const Result one = Vrx({L(name), L("--help")});
    EXPECT_EQ(one.code, 0);
    EXPECT_TRUE(one.out.startsWith(L("Usage: vrx ") + L(name))) << one.out.toStdString();
  }
  const Result version = Vrx({L("--version")});
  EXPECT_EQ(version.code, 0);
  EXPECT_TRUE(version.out.startsWith(L("vrx ")) && version.out.endsWith(u'\n'));
}

TEST_F(HelpCli, AnUnknownCommandIsTwo) {
  for (const QStringList& arguments : {QStringList{}, {L("fly")}, {L("CHECK")}, {L("--verbose")}}) {
    const Result r = Vrx(arguments);
    EXPECT_EQ(r.code, 2);
    EXPECT_EQ(r.out, QString());
    EXPECT_TRUE(r.err.startsWith(L("vrx: ")));
    EXPECT_TRUE(arguments.isEmpty() || r.err.contains(arguments[0]));
  }
}

TEST_F(RegistrationsCli, ACountStandsBeforeTheRowsOfEveryUnit) {
  const Result r = Vrx({L("registrations")});
  static const QRegularExpression heading(L("^(\\w+) \\((\\d+)\\):$"));
  int rows = 0, said = 0;
  for (const QString& line : r.Lines()) {
    if (const auto match = heading.match(line); match.hasMatch()) {
      EXPECT_EQ(rows, said);
      said = match.captured(2).toInt();
      rows = 0;
    } else if (said > 0 && line.startsWith(L("  Register"))) {
      ++rows;
    }
  }
  EXPECT_GT(said, 0);
  EXPECT_EQ(rows, said);
}

namespace {
QString TestPackage(const char* name) {
  return QStringLiteral(VRX_BINARY_DIR "/tests/packages/") + QString::fromLatin1(name) +
         QStringLiteral(".so");
}
}  // namespace

TEST_F(RegistrationsCli, APackageThatRegistersNothingIsSaidTo) {
  const ProcessResult r = RealVrx({L("registrations"), TestPackage("testempty")});
  EXPECT_EQ(r.code, 1);
  EXPECT_EQ(r.err, "vrx registrations: package testempty registers nothing\n");
}

TEST_F(RegistrationsCli, AFileMayBeNamedFromTheFolderOneStandsIn) {
  const QString relative = QDir().relativeFilePath(TestPackage("testempty"));
  ASSERT_TRUE(QFileInfo(relative).isRelative());
  for (const QString& name : {relative, L("./") + relative})
    EXPECT_EQ(RealVrx({L("registrations"), name}).err,
              "vrx registrations: package testempty registers nothing\n");
}

TEST_F(RegistrationsCli, APackageThatThrowsAnythingIsNamedWithTheCall) {
  const std::pair<const char*, const char*> rows[] = {{"testctorthrows", "constructor"},
                                                      {"teststaticthrows", "constructor"},
                                                      {"testthrowing", "Register of testthrowing"},
                                                      {"testinitthrows", "Initialize"}};
  for (const auto& [name, call] : rows) {
    const ProcessResult r = RealVrx({L("registrations"), TestPackage(name)});
    EXPECT_EQ(r.code, 1) << name;
    EXPECT_EQ(r.out, "") << name;
    EXPECT_TRUE(r.err.startsWith(QByteArray("vrx: Package ") + name)) << r.err.constData();
    EXPECT_TRUE(r.err.contains(call)) << r.err.constData();
  }
}

TEST_F(HelpCli, NoLineIsLongerThanAHundredColumns) {
  QStringList texts{Vrx({L("--help")}).out};
  for (const CommandRow& row : CommandTable()) {
    texts << Vrx({L(row.name), L("--help")}).out << Vrx({L(row.name), L("--nonsense")}).err;
    // Nothing of what a command takes gets lost between the lines.
    const QString help = Vrx({L(row.name), L("--help")}).out.section(L("\n\n"), 0, 0);
    EXPECT_EQ(help.simplified(), L("Usage: vrx ") + L(row.name) + u' ' + L(row.arguments).simplified());
  }
  for (const QString& text : texts)
    for (const QString& line : text.split(u'\n')) EXPECT_LE(line.size(), 100) << line.toStdString();
}
