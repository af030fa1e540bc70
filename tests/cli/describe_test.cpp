// vrx describe: what the dialogs of a package consist of.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "CliTest.h"

namespace {
using DescribeCli = Cli;

QJsonArray Described() {
  const Result r = Vrx({QStringLiteral("describe"), QStringLiteral("--dialogs"), QStringLiteral("--json")});
  EXPECT_EQ(r.code, 0);
  EXPECT_EQ(r.err, QString());
  return QJsonDocument::fromJson(r.out.toUtf8()).array();
}
QJsonObject ControlOf(const char* dialog, const char* name) {
  for (const auto& d : Described())
    if (d[u"dialog"].toString() == QLatin1StringView(dialog))
      for (const auto& c : d[u"controls"].toArray())
        if (c[u"name"].toString() == QLatin1StringView(name)) return c.toObject();
  ADD_FAILURE() << dialog << ' ' << name;
  return {};
}
}  // namespace

// Every text, hint, label, entry, limit and place in the tab order, and what is disabled or hidden at first.
// The many names of colours are left out.
TEST_F(DescribeCli, TextsOfTheDialogsAreAsTheyShouldBe) {
  const Result r = Vrx({QStringLiteral("describe"), QStringLiteral("--dialogs")});
  EXPECT_EQ(r.code, 0);
  QStringList lines = r.out.split(u'\n');
  lines.removeIf([](const QString& line) { return line.contains(QStringLiteral("items: Custom...")); });
  const QStringList expected = QString::fromUtf8(Read(Case("dialogs.txt"))).split(u'\n');
  ASSERT_GT(expected.size(), 90);
  for (qsizetype i = 0; i < std::max(lines.size(), expected.size()); ++i)
    ASSERT_EQ(lines.value(i).toStdString(), expected.value(i).toStdString()) << "line " << i + 1;
}

TEST_F(DescribeCli, TheDesignersOwnDialogsAreThereWhenAskedFor) {
  const Result r = Vrx({QStringLiteral("describe"), QStringLiteral("--dialogs"), QStringLiteral("standard")});
  EXPECT_EQ(r.code, 0);
  EXPECT_TRUE(r.out.startsWith(QStringLiteral("LinesDialog \"String List Editor\"\n")))
      << r.out.toStdString();
  EXPECT_TRUE(r.out.contains(QStringLiteral("ImageListDialog \"Image List Editor\"\n")));
  EXPECT_TRUE(r.out.contains(QStringLiteral("  keys: edit, label \"&Press the keys:\", tab 0\n")));
  EXPECT_FALSE(r.out.contains(QStringLiteral("TVRXLEDEditorDlg")));
}

TEST_F(DescribeCli, JsonHasTheSameKeysForEveryControl) {
  const QStringList keys{QStringLiteral("enabled"), QStringLiteral("hint"),   QStringLiteral("items"),
                         QStringLiteral("kind"),    QStringLiteral("label"),  QStringLiteral("maximum"),
                         QStringLiteral("minimum"), QStringLiteral("name"),   QStringLiteral("tab"),
                         QStringLiteral("text"),    QStringLiteral("visible")};
  QStringList dialogs;
  for (const auto& d : Described()) {
    const QJsonObject dialog = d.toObject();
    EXPECT_EQ(dialog.keys(),
              QStringList({QStringLiteral("caption"), QStringLiteral("controls"), QStringLiteral("dialog")}));
    dialogs << dialog[u"dialog"].toString() + u'=' + dialog[u"caption"].toString();
    for (const auto& control : dialog[u"controls"].toArray()) EXPECT_EQ(control.toObject().keys(), keys);
  }
  EXPECT_EQ(dialogs.join(u'|').toStdString(),
            "TVRXOSPropForm=Stored Properties|TVRXLEDEditorDlg=LED Editor|TVRXShadowEditorDlg=Shadow "
            "Editor|TVRXSimpleBevelEditorDlg=Simple "
            "Bevel Editor|TVRXTeethEditorDlg=Teeth Editor|TVRXCaptionEditorDlg=Caption Editor|"
            "TVRXShapeEditorDlg=Shape Editor|TVRXLightEditorDlg=Light Editor|TVRX3DEffectEditorDlg=3D Effect "
            "Editor|TVRXfrmRegionFromBMPdlg=Region From Bitmap Editor|TVRXFilterPropsDlg=Filter Editor|"
            "TfrmTVRXPointListEditor=Point List Editor|TVRXDateListEditorDlg=Date List Property Editor|"
            "TVRXValueListDlg=Value List Editor|TVRXRegExprForm=Regular Expression|"
            "TVRXSendKeyEditorDlg=Send Keys Test Editor|TVRXDlgBtnEditorDlg=Panel Buttons Editor|"
            "TVRXButtonBarEditorDlg=Button Bar Editor|"
            "TVRXControlFaceEditorDlg=Face Controller Editor|TVRXControlFaceEditorDlgAddState=Add States|"
            "TVRXButtonFaceDlg=Button Face Editor|"
            "TVRXGraphicLabelEditorDlg=Graphic Label Editor|TfrmVRXStyleManProp=Orlenvo-Kit Style Editor");
}

TEST_F(DescribeCli, JsonKeepsAcceleratorsLineBreaksAndTypes) {
  const QJsonObject pred = ControlOf("TVRXLEDEditorDlg", "pred");
  EXPECT_EQ(pred[u"label"], QStringLiteral("&Pred. Color:"));
  EXPECT_EQ(pred[u"hint"], QStringLiteral("Defines the color for both \r\nactive and inactive LED-letters."));
  EXPECT_EQ(pred[u"items"].toArray().size(), 7);
  EXPECT_EQ(pred[u"tab"], 7);
  EXPECT_EQ(pred[u"text"], QString());
  EXPECT_TRUE(pred[u"minimum"].isNull());
  const QJsonObject tracing = ControlOf("TVRXLEDEditorDlg", "edhs");
  EXPECT_EQ(tracing[u"minimum"], 0);
  EXPECT_EQ(tracing[u"maximum"], 255);
  const QJsonObject progress = ControlOf("TVRXfrmRegionFromBMPdlg", "Progress");
  EXPECT_EQ(progress[u"visible"], false);
  EXPECT_TRUE(progress[u"tab"].isNull());
  EXPECT_EQ(ControlOf("TVRXfrmRegionFromBMPdlg", "OKButton")[u"enabled"], false);
}

TEST_F(DescribeCli, TheRealProgramNeedsNoDisplay) {
  const ProcessResult r =
      RealVrx({QStringLiteral("describe"), QStringLiteral("--dialogs"), QStringLiteral("--json")});
  EXPECT_EQ(r.code, 0);
  EXPECT_EQ(r.err, QByteArray());
  EXPECT_EQ(QJsonDocument::fromJson(r.out).array(), Described());
}

TEST_F(DescribeCli, WithoutDialogsItSaysSo) {
  const Result none =
      Vrx({QStringLiteral("describe"), QStringLiteral("--dialogs"), QStringLiteral("testsample")});
  EXPECT_EQ(none.code, 1);
  EXPECT_FALSE(none.err.isEmpty());
  EXPECT_EQ(
      Vrx({QStringLiteral("describe"), QStringLiteral("--dialogs"), QStringLiteral("a"), QStringLiteral("b")})
          .code,
      2);
}
