// Making button pictures and window shapes without a display.
#include <sys/stat.h>

#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "CliTest.h"
#include "library/pixels/Button3D.h"
#include "library/pixels/RegionFromBitmap.h"
#include "tests/support/PictureBytes.h"
#include "vcl/PictureFile.h"

namespace {
class PixelCommands : public testing::Test {
 protected:
  QString File(const QString& name) const { return folder_.filePath(name); }
  // A block of a colour on clFuchsia.
  QString Source(const QString& name, QRgb color = qRgb(30, 90, 200)) const {
    QImage image(12, 9, QImage::Format_RGB32);
    image.fill(qRgb(255, 0, 255));
    for (int y = 2; y < 7; ++y)
      for (int x = 3; x < 9; ++x) image.setPixel(x, y, color);
    EXPECT_TRUE(image.save(File(name)));
    return File(name);
  }
  QByteArray Bytes(const QString& file) const {
    QFile f(file);
    EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << file.toStdString();
    return f.readAll();
  }
  QTemporaryDir folder_;
};
QString S(const char* text) { return QString::fromLatin1(text); }
}  // namespace

TEST_F(PixelCommands, Effect3DDrawsWhatTheRoutineDraws) {
  const QString source = Source(S("a.png"));
  const Result r = Vrx({S("effect3d"), source, S("--up"), File(S("u.png")), S("--down"), File(S("d.png")),
                        S("--disabled"), File(S("x.png")), S("--light"), S("clYellow"), S("--shadow"),
                        S("#102030"), S("--bevel"), S("$00112233"), S("--width"), S("3")});
  ASSERT_EQ(r.code, ExitOk) << r.err.toStdString();
  TBitmap up, down, disabled;
  VRXDrawButton3D(LoadPicture(source), up, down, disabled, clFuchsia, clYellow, RGBColor(0x10, 0x20, 0x30),
                  clWhite, clNone, clNone, TColor(0x112233), false, 3, nullptr);
  EXPECT_TRUE(LoadPicture(File(S("u.png"))) == up);
  EXPECT_TRUE(LoadPicture(File(S("d.png"))) == down);
  EXPECT_TRUE(LoadPicture(File(S("x.png"))) == disabled);
}

TEST_F(PixelCommands, Effect3DDefaultsToTheEditorsColoursAndTheLowerLeftPixel) {
  const QString source = Source(S("a.png"));
  ASSERT_EQ(Vrx({S("effect3d"), source, S("--up"), File(S("u.png"))}).code, ExitOk);
  TBitmap up, down, disabled;
  VRXDrawButton3D(LoadPicture(source), up, down, disabled, clFuchsia, clWhite, clGray, clWhite, clNone,
                  clNone, clBlack, false, 2, nullptr);
  EXPECT_TRUE(LoadPicture(File(S("u.png"))) == up);
}

TEST_F(PixelCommands, ASemiTransparentColourBecomesAChecker) {
  const QString source = Source(S("a.png"));
  ASSERT_EQ(Vrx({S("effect3d"), source, S("--up"), File(S("u.png")), S("--semi"), S("#1e5ac8,clRed")}).code,
            ExitOk);
  TBitmap up, down, disabled;
  VRXDrawButton3D(LoadPicture(source), up, down, disabled, clFuchsia, clWhite, clGray, clWhite, clRed,
                  RGBColor(30, 90, 200), clBlack, true, 2, nullptr);
  EXPECT_TRUE(LoadPicture(File(S("u.png"))) == up);
}

TEST_F(PixelCommands, RegionWritesDataPictureAndJson) {
  const QString source = Source(S("a.png"));
  const Result r = Vrx({S("region"), source, S("--transparent"), S("clFuchsia"), S("--border"), S("single"),
                        S("--region"), File(S("a.rgn")), S("--picture"), File(S("b.png")), S("--json")});
  ASSERT_EQ(r.code, ExitOk) << r.err.toStdString();
  const TRegionBuild build =
      BuildWindowRegion(LoadPicture(source), {clFuchsia}, TRegionBorder::Single, nullptr);
  EXPECT_EQ(Bytes(File(S("a.rgn"))), build.RegionData());
  EXPECT_TRUE(LoadPicture(File(S("b.png"))) == build.Border);
  const QJsonObject json = QJsonDocument::fromJson(r.out.toUtf8()).object();
  EXPECT_EQ(json[S("count")].toInt(), 1);
  EXPECT_EQ(json[S("bounds")].toArray(), (QJsonArray{3, 2, 9, 7}));
  ASSERT_EQ(json[S("rectangles")].toArray().size(), 1);
  EXPECT_EQ(json[S("rectangles")].toArray()[0].toArray(), (QJsonArray{3, 2, 9, 7}));
}

TEST_F(PixelCommands, TransparentColoursAddUp) {
  const QString source = Source(S("a.png"));
  const Result r = Vrx({S("region"), source, S("--transparent"), S("clRed,clFuchsia"), S("--transparent"),
                        S("#1e5ac8"), S("--region"), File(S("a.rgn"))});
  EXPECT_EQ(r.code, ExitOk);
  EXPECT_TRUE(r.err.contains(S("no region"))) << r.err.toStdString();
  EXPECT_TRUE(Bytes(File(S("a.rgn"))).isEmpty());
}

TEST_F(PixelCommands, AButtonHasTwoStates) {
  const QString source = Source(S("a.png"));
  ASSERT_EQ(Vrx({S("region"), source, S("--transparent=clFuchsia"), S("--button"), S("win40"), S("--first"),
                 File(S("1.png")), S("--second"), File(S("2.png"))})
                .code,
            ExitOk);
  const TRegionBuild build =
      BuildButtonRegion(LoadPicture(source), {clFuchsia}, TRegionButton::Win40, nullptr);
  EXPECT_TRUE(LoadPicture(File(S("1.png"))) == build.First);
  EXPECT_TRUE(LoadPicture(File(S("2.png"))) == build.Second);
}

TEST_F(PixelCommands, ManySourcesGiveWhatEachAloneGives) {
  QStringList sources;
  for (int i = 0; i < 20; ++i) sources << Source(S("s%1.png").arg(i), qRgb(i * 10, 200 - i * 5, 40));
  const QString out = File(S("out"));
  ASSERT_EQ(Vrx(QStringList{S("effect3d")} + sources + QStringList{S("--out-dir"), out}).code, ExitOk);
  for (int i = 0; i < 20; ++i) {
    ASSERT_EQ(Vrx({S("effect3d"), sources[i], S("--down"), File(S("one.png"))}).code, ExitOk);
    EXPECT_EQ(Bytes(File(S("one.png"))), Bytes(QDir(out).filePath(S("s%1-down.png").arg(i))));
  }
}

TEST_F(PixelCommands, OneBadSourceDoesNotStopTheOthers) {
  const QString out = File(S("out"));
  const Result r = Vrx({S("region"), Source(S("a.png")), File(S("none.png")), Source(S("b.png")),
                        S("--transparent"), S("clFuchsia"), S("--out-dir"), out, S("--json")});
  EXPECT_EQ(r.code, ExitFindings);
  EXPECT_TRUE(r.err.contains(S("none.png"))) << r.err.toStdString();
  EXPECT_TRUE(QFile::exists(QDir(out).filePath(S("b-region.rgn"))));
  EXPECT_EQ(QJsonDocument::fromJson(r.out.toUtf8()).array().size(), 2);
}

TEST_F(PixelCommands, WrongUseIsToldAndWritesNothing) {
  const QString source = Source(S("a.png"));
  const QString u = File(S("u.png"));
  const std::vector<QStringList> wrong{
      {S("effect3d")},
      {S("effect3d"), source},
      {S("effect3d"), source, source, S("--up"), u},
      {S("effect3d"), source, S("--up"), u, S("--light"), S("nope")},
      {S("effect3d"), source, S("--up"), u, S("--width"), S("x")},
      {S("effect3d"), source, S("--up"), u, S("--semi"), S("clRed")},
      {S("effect3d"), source, S("--up"), u, S("--out-dir"), File(S("o"))},
      {S("effect3d"), source, source, S("--out-dir"), File(S("o"))},
      {S("region"), source, S("--region"), u},
      {S("region"), source, S("--transparent"), S("clRed"), S("--border"), S("thick"), S("--picture"), u},
      {S("region"), source, S("--transparent"), S("clRed"), S("--first"), u},
      {S("region"), source, S("--transparent"), S("clRed"), S("--border"), S("single"), S("--button"),
       S("win31")},
  };
  for (const QStringList& arguments : wrong) {
    const Result r = Vrx(arguments);
    EXPECT_EQ(r.code, ExitUsage) << arguments.join(u' ').toStdString();
    EXPECT_FALSE(r.err.isEmpty());
  }
  EXPECT_FALSE(QFile::exists(u));
}

TEST_F(PixelCommands, AFileThatIsNoPictureIsNamed) {
  QFile text(File(S("t.png")));
  ASSERT_TRUE(text.open(QIODevice::WriteOnly));
  text.write("not a picture");
  text.close();
  const Result r = Vrx({S("effect3d"), text.fileName(), S("--up"), File(S("u.png"))});
  EXPECT_EQ(r.code, ExitFindings);
  EXPECT_TRUE(r.err.contains(text.fileName())) << r.err.toStdString();
  EXPECT_FALSE(QFile::exists(File(S("u.png"))));
}

TEST_F(PixelCommands, Effect3DRefusesResultsThatCouldNotBeReadAgain) {
  QImage line(6'200'000, 1, QImage::Format_Mono);
  line.fill(1);
  const QString source = File(S("line.bmp"));
  ASSERT_TRUE(line.save(source));
  const QStringList run{S("effect3d"), source, S("--up"), File(S("u.png")), S("--width"), S("5")};
  const Result r = Vrx(run);
  EXPECT_EQ(r.code, ExitFindings);
  EXPECT_TRUE(r.err.contains(S("bevel of 5")) && r.err.contains(S("6200010 x 11"))) << r.err.toStdString();
  EXPECT_FALSE(QFile::exists(File(S("u.png"))));
}

TEST_F(PixelCommands, SourcesThatReferOutsideOrAreNoFilesAreRefused) {
  QFile svg(File(S("a.svg")));
  ASSERT_TRUE(svg.open(QIODevice::WriteOnly));
  svg.write(SvgImage("other.png"));
  svg.close();
  ASSERT_EQ(mkfifo(QFile::encodeName(File(S("pipe.png"))).constData(), 0600), 0);
  const std::pair<const char*, const char*> cases[] = {{"a.svg", "outside"}, {"pipe.png", "pipe"}};
  for (const auto& [name, text] : cases) {
    const Result effect = Vrx({S("effect3d"), File(S(name)), S("--up"), File(S("u.png"))});
    EXPECT_EQ(effect.code, ExitFindings);
    EXPECT_TRUE(effect.err.contains(S(text))) << effect.err.toStdString();
    const Result region = Vrx({S("region"), File(S(name)), S("--transparent"), S("clRed"), S("--json")});
    EXPECT_EQ(region.code, ExitFindings);
    EXPECT_TRUE(region.err.contains(S(text))) << region.err.toStdString();
  }
}
