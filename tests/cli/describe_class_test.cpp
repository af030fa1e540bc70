// vrx describe: what classes publish.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "CliTest.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Component.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"

namespace {
class DescribeClass : public Cli {
 protected:
  static QJsonDocument Json(const QStringList& what) {
    const Result r = Vrx(QStringList{L("describe"), L("--json")} + what);
    EXPECT_EQ(r.code, 0) << r.err.toStdString();
    EXPECT_EQ(r.err, QString());
    return QJsonDocument::fromJson(r.out.toUtf8());
  }
  static QStringList Texts(const QJsonValue& array) {
    QStringList texts;
    for (const auto& v : array.toArray()) texts << v.toString();
    return texts;
  }
  static QJsonObject PropertyOf(const QJsonObject& cls, const char* name, const char* list = "properties") {
    for (const auto& p : cls[L(list)].toArray())
      if (p[u"name"].toString() == L(name)) return p.toObject();
    ADD_FAILURE() << name;
    return {};
  }
  static const QJsonArray& All() {
    static const QJsonArray all = Json({}).array();
    return all;
  }
};
}  // namespace

TEST_F(DescribeClass, AnLedLabelTellsAllOfItself) {
  const QJsonObject led = Json({L("TVRXLEDLabel")}).object();
  EXPECT_EQ(led.keys().join(u' '), L("ancestors class doc editor events page properties verbs"));
  EXPECT_EQ(led[u"class"].toString(), L("TVRXLEDLabel"));
  EXPECT_EQ(Texts(led[u"ancestors"]).first(), L("TVRXLEDCustomLabel"));
  EXPECT_EQ(Texts(led[u"ancestors"]).last(), L("TPersistent"));
  EXPECT_EQ(led[u"page"].toString(), L("VRX Ext"));
  EXPECT_EQ(led[u"editor"].toString(), L("TVRXLEDLabelComponentEditor"));
  EXPECT_FALSE(led[u"doc"].toString().isEmpty());
  EXPECT_EQ(led[u"verbs"].toArray().size(), 4);
  const QJsonObject part = PropertyOf(led, "LED");
  EXPECT_EQ(part.keys().join(u' '), L("attributes default doc editor kind name stored type values"));
  EXPECT_EQ(part[u"type"].toString(), L("TVRXLED"));
  EXPECT_EQ(part[u"kind"].toString(), L("class"));
  EXPECT_EQ(part[u"editor"].toString(), L("TVRXLEDProperty"));
  EXPECT_TRUE(Texts(part[u"attributes"]).contains(L("paDialog")));
  EXPECT_TRUE(part[u"default"].isNull());
  EXPECT_EQ(PropertyOf(led, "OnClick", "events")[u"kind"].toString(), L("method"));
}

TEST_F(DescribeClass, APropertySaysDefaultRuleAndValues) {
  const QJsonObject panel = Json({L("tvrxcaptionpanel")}).object();
  EXPECT_EQ(panel[u"class"].toString(), L("TVRXCaptionPanel"));
  const QJsonObject align = PropertyOf(panel, "Align");
  EXPECT_EQ(align[u"kind"].toString(), L("enumeration"));
  EXPECT_EQ(align[u"default"].toString(), L("alNone"));
  EXPECT_EQ(align[u"stored"].toString(), L("not default"));
  EXPECT_EQ(Texts(align[u"values"]).join(u' '), L("alNone alTop alBottom alLeft alRight alClient alCustom"));
  EXPECT_EQ(PropertyOf(panel, "Left")[u"stored"].toString(), L("always"));
  EXPECT_TRUE(PropertyOf(panel, "Left")[u"default"].isNull());
  // Hidden in the inspector, in the form file all the same.
  EXPECT_TRUE(PropertyOf(panel, "AutoSize")[u"editor"].isNull());
  EXPECT_EQ(PropertyOf(panel, "AutoSize")[u"default"].toString(), L("False"));
}

TEST_F(DescribeClass, EverythingIsAnArrayOfTheSame) {
  ASSERT_GT(All().size(), 250);
  QStringList names;
  int placed = 0;
  for (const auto& v : All()) {
    const QJsonObject cls = v.toObject();
    EXPECT_EQ(cls.keys().size(), 8);
    EXPECT_TRUE(cls[u"doc"].toString().endsWith(u'.')) << cls[u"class"].toString().toStdString();
    names << cls[u"class"].toString();
    placed += cls[u"page"].isString() ? 1 : 0;
    for (const char* list : {"properties", "events"})
      for (const auto& p : cls[L(list)].toArray()) {
        const QJsonObject prop = p.toObject();
        EXPECT_EQ(prop.keys().size(), 9);
        EXPECT_TRUE(prop[u"doc"].toString().endsWith(u'.'))
            << names.last().toStdString() << '.' << prop[u"name"].toString().toStdString();
        EXPECT_EQ(prop[u"kind"] == L("method"), L(list) == L("events")) << names.last().toStdString();
        EXPECT_TRUE(QStringList({L("always"), L("not default"), L("by rule"), L("never")})
                        .contains(prop[u"stored"].toString()));
      }
  }
  EXPECT_GE(placed, 170);
  EXPECT_EQ(names.removeDuplicates(), 0);
  for (const char* name :
       {"TVRXLED", "TVRXBaseDialog", "TVRXEditCut", "TVRXLabeledTreeComboBox", "TButton", "TForm"})
    EXPECT_TRUE(names.contains(L(name))) << name;
  QStringList sorted = names;
  sorted.sort(Qt::CaseInsensitive);
  EXPECT_EQ(names, sorted);
}

// What is said of a default is what a new component has.
TEST_F(DescribeClass, DefaultsAreThoseOfNewComponents) {
  int compared = 0;
  for (const auto& v : All()) {
    const TClass* cls = FindClass(v[u"class"].toString().toLatin1());
    if (!cls || cls->IsAbstract() || !cls->InheritsFrom(TComponent::StaticClass())) continue;
    const std::unique_ptr<TComponent> one(cls->NewComponent(nullptr));
    for (const auto& p : v[u"properties"].toArray()) {
      const TPropInfo& prop = cls->GetProp(p[u"name"].toString().toLatin1());
      if (!prop.IsOrdinal() || p[u"default"].isNull() || prop.Stored) continue;
      EXPECT_EQ(p[u"default"].toString(), OrdToText(*prop.PropType, GetOrdProp(*one, prop)))
          << cls->ClassName().constData() << '.' << prop.Name.constData();
      ++compared;
    }
  }
  EXPECT_GT(compared, 2000);
}

TEST_F(DescribeClass, APropertyOfAPartIsReachedByItsPath) {
  const QJsonObject thickness = Json({L("TVRXLEDLabel.LED.thickness")}).object();
  EXPECT_EQ(thickness, PropertyOf(Json({L("TVRXLED")}).object(), "Thickness"));
  const Result text = Vrx({L("describe"), L("TVRXLEDLabel.LED.thickness")});
  EXPECT_EQ(text.code, 0);
  EXPECT_TRUE(text.out.startsWith(L("TVRXLEDLabel.LED.Thickness: "))) << text.out.toStdString();
  EXPECT_TRUE(text.out.contains(L("\nStored:     not default\n")));
  EXPECT_EQ(Json({L("TVRXLEDLabel.OnClick")}).object()[u"kind"].toString(), L("method"));
}

TEST_F(DescribeClass, TextNamesTheSame) {
  const Result r = Vrx({L("describe"), L("TVRXLEDLabel")});
  EXPECT_EQ(r.code, 0);
  EXPECT_TRUE(r.out.startsWith(L("TVRXLEDLabel\n  "))) << r.out.toStdString();
  for (const char* line : {"Page:       VRX Ext", "Editor:     TVRXLEDLabelComponentEditor", "  LED: TVRXLED",
                           "  Align: TAlign = alNone", "  OnClick: TNotifyEvent"})
    EXPECT_TRUE(r.Lines().contains(L(line))) << line;
  const Result all = Vrx({L("describe")});
  EXPECT_EQ(all.Lines().size(), All().size());
  EXPECT_TRUE(all.Lines().filter(L("TVRXSwitch: ")).size() == 1);
}

TEST_F(DescribeClass, WhatIsNotThereIsNamedWithWhatIsNear) {
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"TVRXLEDLabl", "There is no class \"TVRXLEDLabl\".", "TVRXLEDLabel"},
      {"TVRXLEDLabel.Captoin", "TVRXLEDLabel has no property \"Captoin\".", "Caption"},
      {"TVRXLEDLabel.LED.Thikness", "TVRXLED has no property \"Thikness\".", "Thickness"},
      {"TVRXLEDLabel.Tag.More", "TVRXLEDLabel.Tag is no object and has no properties.", ""},
      {"TVRXLEDLabel.", "TVRXLEDLabel has no property \"\".", ""}};
  for (const auto& [what, problem, near] : rows)
    for (const bool json : {false, true}) {
      QStringList arguments{L("describe"), L(what)};
      if (json) arguments << L("--json");
      const Result r = Vrx(arguments);
      EXPECT_EQ(r.code, 1) << what;
      EXPECT_EQ(r.out, QString()) << what;
      EXPECT_TRUE(r.err.startsWith(L("vrx describe: ") + L(problem))) << r.err.toStdString();
      EXPECT_TRUE(r.err.contains(L(near))) << r.err.toStdString();
    }
  EXPECT_EQ(Vrx({L("describe"), L("TButton"), L("TLabel")}).code, 2);
  EXPECT_EQ(Vrx({L("describe"), L("TButton"), L("--page")}).code, 2);
}

TEST_F(DescribeClass, TheRealProgramNeedsNoDisplay) {
  const ProcessResult r = RealVrx({L("describe"), L("TVRXClock"), L("--json")});
  EXPECT_EQ(r.code, 0);
  EXPECT_EQ(r.err, QByteArray());
  EXPECT_EQ(QJsonDocument::fromJson(r.out), Json({L("TVRXClock")}));
}
