// vrx gallery, and the documentation that is made of it.
#include <QImage>
#include <QImageReader>
#include <QRegularExpression>

#include "CliTest.h"
#include "designintf/DesignRegistry.h"
#include "tests/support/Contrast.h"

namespace {
using GalleryCli = Cli;
using ComponentsPage = Cli;

QString Docs(const char* name) { return QStringLiteral(VRX_SOURCE_DIR "/docs/") + QLatin1StringView(name); }
QStringList Pngs(const QString& folder) {
  QStringList names;
  for (const QFileInfo& file : QDir(folder).entryInfoList({QStringLiteral("*.png")}, QDir::Files))
    names << file.completeBaseName();
  return names;
}
}  // namespace

TEST_F(GalleryCli, HasAPictureOfEveryComponentInBothThemes) {
  std::map<QString, QImage> light;
  for (const char* theme : {"light", "dark"}) {
    const Result r = Vrx({L("gallery"), L("-o"), Path(theme), L("--theme"), L(theme)});
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    EXPECT_EQ(r.err, QString());
    const QStringList names = Pngs(Path(theme));
    EXPECT_EQ(r.Lines().size(), names.size());
    EXPECT_TRUE(names.contains(L("gallery")));
    for (const TPalettePage& page : Host().PalettePages())
      for (const TClass* cls : page.Classes)
        EXPECT_TRUE(names.contains(QString::fromLatin1(cls->ClassName()))) << cls->ClassName().constData();
    for (const QString& name : names) {
      const QImage picture(Path(theme) + u'/' + name + L(".png"));
      ASSERT_FALSE(picture.isNull()) << name.toStdString();
      // Something that never has anything of its own to show until it is filled shows at least its outline.
      EXPECT_GE(Contrast(picture), 1.15) << name.toStdString() << ' ' << theme;
      EXPECT_NE(picture, std::exchange(light[name], picture))
          << name.toStdString() << " is the same in both themes";
    }
  }
}

TEST_F(GalleryCli, IsDrawnAtTheScaleThatIsAskedFor) {
  ASSERT_EQ(Vrx({L("gallery"), L("-o"), Path("one")}).code, 0);
  ASSERT_EQ(Vrx({L("gallery"), L("-o"), Path("two"), L("--scale"), L("2")}).code, 0);
  ASSERT_GT(Pngs(Path("one")).size(), 170);
  EXPECT_EQ(Pngs(Path("one")), Pngs(Path("two")));
  for (const QString& name : Pngs(Path("one"))) {
    // Sheets are more than some readers unpack.
    const QSize small = QImageReader(Path("one") + u'/' + name + L(".png")).size();
    EXPECT_TRUE(small.isValid());
    EXPECT_EQ(QImageReader(Path("two") + u'/' + name + L(".png")).size(), small * 2) << name.toStdString();
  }
}

TEST_F(GalleryCli, WrongUseIsToldAndWritesNothing) {
  for (const QStringList& wrong : {QStringList{},
                                   {L("-o")},
                                   {L("-o"), Path("x"), L("more")},
                                   {L("-o"), Path("x"), L("--theme"), L("blue")},
                                   {L("-o"), Path("x"), L("--scale"), L("0")}})
    EXPECT_EQ(Vrx(QStringList{L("gallery")} + wrong).code, 2) << wrong.join(u' ').toStdString();
  EXPECT_FALSE(QFile::exists(Path("x")));
  Write("file", "x");
  const Result r = Vrx({L("gallery"), L("-o"), Path("file/below")});
  EXPECT_EQ(r.code, 1);
  EXPECT_TRUE(r.err.contains(Path("file/below"))) << r.err.toStdString();
}

TEST_F(ComponentsPage, IsWhatTheClassesSayNow) {
  const Result r = Vrx({L("describe"), L("--page")});
  ASSERT_EQ(r.code, 0) << r.err.toStdString();
  const QStringList now = r.out.split(u'\n'),
                    kept = QString::fromUtf8(Read(Docs("components.md"))).split(u'\n');
  for (qsizetype i = 0; i < std::max(now.size(), kept.size()); ++i)
    ASSERT_EQ(kept.value(i).toStdString(), now.value(i).toStdString())
        << "line " << i + 1 << " of docs/components.md; `make docs` writes it anew";
}

TEST_F(ComponentsPage, ShowsEachOfItsPicturesAndNoOtherIsKept) {
  const QString page = QString::fromUtf8(Read(Docs("components.md")));
  static const QRegularExpression link(L("!\\[(\\w+)\\]\\((pictures/components/\\w+\\.png)\\)"));
  QStringList shown;
  for (auto it = link.globalMatch(page); it.hasNext();) {
    const auto match = it.next();
    shown << match.captured(1);
    EXPECT_FALSE(QImage(Docs("") + match.captured(2)).isNull()) << match.captured(2).toStdString();
  }
  EXPECT_GE(shown.size(), 170);
  QStringList kept = Pngs(Docs("pictures/components"));
  kept.removeAll(L("gallery"));
  shown.sort();
  kept.sort();
  EXPECT_EQ(shown.join(u' ').toStdString(), kept.join(u' ').toStdString());
}
