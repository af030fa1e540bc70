// Forms that are small on disk and would be huge in memory, or that reach for other files: the programs end
// by themselves, within limits on memory and time, with a message.
#include <sys/stat.h>

#include <QImage>
#include <random>

#include "CliTest.h"
#include "forms/Document.h"
#include "tests/support/Limited.h"
#include "tests/support/OpenWatch.h"
#include "tests/support/PictureBytes.h"
#include "vcl/PictureFile.h"

namespace {
QByteArray RegionWith(int number, const QByteArray& picture) {
  return "  object R" + QByteArray::number(number) +
         ": TVRXRegion\n    Width = 30\n    Height = 20\n    RegionMask.BorderPicture = {\n      " +
         picture.toHex().toUpper() + "}\n  end\n";
}
QByteArray FormOf(const QByteArray& inside) { return "object Form1: TForm1\n" + inside + "end\n"; }

class Bombs : public Cli {
 protected:
  // Every program tells of the form, and where in it; `line` 0: a binary form.
  void ExpectRefused(const QString& form, const char* text, int line, bool convertRefuses) const {
    const QString place = line ? QStringLiteral(":%1:").arg(line) : QStringLiteral(":1:");
    const LimitedRun check = RunLimited("vrx", {L("check"), form});
    EXPECT_TRUE(check.ended);
    EXPECT_EQ(check.code, 1) << check.err.constData();
    EXPECT_TRUE(check.out.contains((form + place).toUtf8()) && check.out.contains("error: ") &&
                check.out.contains(text))
        << check.out.left(400).constData() << check.err.constData();
    const QStringList shown[] = {{L("render"), form, L("-o"), Path("out.png")}, {L("get"), form, L("Form1")}};
    for (const QStringList& arguments : shown) {
      const LimitedRun run = RunLimited("vrx", arguments);
      EXPECT_TRUE(run.ended) << arguments[0].toStdString();
      EXPECT_EQ(run.code, 1) << arguments[0].toStdString();
      EXPECT_TRUE(run.err.contains(form.toUtf8()) && run.err.contains(text)) << run.err.left(400).constData();
    }
    EXPECT_FALSE(QFile::exists(Path("out.png")));
    const LimitedRun convert = RunLimited("vrx", {L("convert"), form, Path("out.bin")});
    EXPECT_TRUE(convert.ended);
    EXPECT_EQ(convert.code, convertRefuses ? 1 : 0) << convert.err.constData();
    EXPECT_EQ(convert.err.contains(text), convertRefuses) << convert.err.constData();
    const LimitedRun designer = RunLimited("vrxdesigner", {L("--pictures"), Path("pictures"), form});
    EXPECT_TRUE(designer.ended);
    EXPECT_EQ(designer.code, 1);
    EXPECT_TRUE(designer.err.contains(text)) << designer.err.left(400).constData();
  }
  void ExpectFine(const QString& form) const {
    const LimitedRun check = RunLimited("vrx", {L("check"), form});
    EXPECT_TRUE(check.ended);
    EXPECT_EQ(check.code, 0) << check.out.left(400).constData() << check.err.constData();
    const LimitedRun render = RunLimited("vrx", {L("render"), form, L("-o"), Path("out.png")});
    EXPECT_EQ(render.code, 0) << render.err.constData();
  }
};
}  // namespace

TEST_F(Bombs, ADrawingThatRefersToItselfIsNoPictureOfAForm) {
  const QString svg = Path("self.svg");
  Write("self.svg", SvgImage(svg.toUtf8()));
  OpenWatch watch(QFileInfo(svg).path());
  ASSERT_TRUE(watch.Watching());
  const QString form = Write("self.dfm", FormOf(RegionWith(1, SvgImage(svg.toUtf8()))));
  ExpectRefused(form, "BorderPicture", 5, false);
  const QStringList opened = watch.Opened();
  EXPECT_TRUE(opened.contains(QStringLiteral("self.dfm")));  // the watch does see what they open
  EXPECT_FALSE(opened.contains(QStringLiteral("self.svg")));
}

TEST_F(Bombs, ADrawingThatRefersToPipesOrStandardInputHangsNobody) {
  const QString pipe = Path("pipe");
  ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  for (const QByteArray& target : {pipe.toUtf8(), QByteArray("/dev/stdin"), QByteArray("/dev/tty")})
    ExpectRefused(Write("pipe.dfm", FormOf(RegionWith(1, SvgImage(target)))), "BorderPicture", 5, false);
}

TEST_F(Bombs, AlienPicturesAreNamedWithTheirProperty) {
  QImage image(9, 5, QImage::Format_RGB32);
  image.fill(Qt::red);
  ExpectRefused(Write("jpeg.dfm", FormOf(RegionWith(1, PictureToBytes(image, "JPG")))),
                "R1: TVRXRegion: BorderPicture is refused", 5, false);
}

TEST_F(Bombs, ManyPicturesOfTheLargestSizeAreCountedBeforeAnyIsDecoded) {
  const QByteArray large = PngOf(8192, 8192, 8);
  QByteArray regions;
  for (int i = 0; i < 20; ++i) regions += RegionWith(i, large);
  ExpectRefused(Write("twenty.dfm", FormOf(regions)), "832 MB", 5 + 3 * 6, false);
  const forms::Document text = forms::Document::Parse(FormOf(regions));
  ExpectRefused(Write("twenty.bin", text.WriteAs(forms::Format::Binary)), "832 MB", 0, false);
}

TEST_F(Bombs, CheckKeepsNoPictureOfAFormWithinTheLimit) {
  QByteArray regions;
  for (int i = 0; i < 3; ++i) regions += RegionWith(i, PngOf(8192, 8192, 1));
  const LimitedRun check = RunLimited("vrx", {L("check"), Write("three.dfm", FormOf(regions))});
  EXPECT_TRUE(check.ended);
  EXPECT_EQ(check.code, 0) << check.out.constData();
}

TEST_F(Bombs, PicturesThatLieAboutTheirSizeAreDamaged) {
  ExpectRefused(Write("bmp.dfm", FormOf(RegionWith(1, BmpOf(8192, 8192, 32, 0, QByteArray(16, '\0'))))),
                "damaged", 5, false);
  ExpectRefused(Write("png.dfm", FormOf(RegionWith(1, PngOf(8192, 8192, 24).first(2000)))), "damaged", 5,
                false);
  ExpectRefused(
      Write("absurd.dfm",
            FormOf(RegionWith(1, PngOf(100000, 1, 1)
                                     .replace(PngOf(100000, 1, 1).mid(16, 8),
                                              Number32(2000000000, true) + Number32(2000000000, true))))),
      "8192 x 8192", 5, false);
}

TEST_F(Bombs, TextsInsideOfAPictureAreNotExpanded) {
  const QByteArray text = PngChunk("zTXt", QByteArray("k\0\0", 3) + Deflated(QByteArray(7'900'000, 'x')));
  const QByteArray profile = PngChunk("iCCP", QByteArray("p\0\0", 3) + Deflated(QByteArray(7'900'000, '\0')));
  ExpectFine(Write("texts.dfm", FormOf(RegionWith(1, PngOf(16, 9, 24, profile + text.repeated(900))))));
}

TEST_F(Bombs, TinyPiecesAreCounted) {
  const QByteArray list = FormOf("  Caption = (" + QByteArray("1 ").repeated(1'450'000) + ")\n");
  ExpectRefused(Write("list.dfm", list), "256 MB", 2, true);
  const QByteArray objects = FormOf(QByteArray("object T end ").repeated(600'000) + "\n");
  ExpectRefused(Write("objects.dfm", objects), "256 MB", 2, true);
  const QByteArray items = FormOf("  Caption = <" + QByteArray("item a=1 end ").repeated(1'200'000) + ">\n");
  ExpectRefused(Write("items.dfm", items), "256 MB", 2, true);
  const QByteArray sets = FormOf("  Anchors = [" + QByteArray("a,").repeated(9'000'000) + "a]\n");
  ExpectRefused(Write("sets.dfm", sets), "256 MB", 2, true);
  const QByteArray stream = QByteArray(
                                "TPF0\x06TForm1\x05"
                                "Form1\x07"
                                "Caption\x01") +
                            QByteArray("\x0D").repeated(2'900'000) + QByteArray(3, '\0');
  ExpectRefused(Write("list.bin", stream), "256 MB", 0, true);
}

TEST_F(Bombs, AnEndlessCaptionOfAnyControlIsDrawnAsFarAsItIsSeen) {
  const QByteArray caption = QByteArray("&W").repeated(2'000'000);
  for (const char* cls : {"TButton", "TLabel", "TPanel", "TCheckBox", "TGroupBox", "TVRXLEDLabel"})
    ExpectFine(Write("caption.dfm",
                     FormOf(QByteArray("  object A: ") + cls +
                            "\n    Width = 90\n    Height = 30\n    Caption = '" + caption + "'\n  end\n")));
}

TEST_F(Bombs, DeepNestingIsRefused) {
  const QByteArray deep = QByteArray("object T ").repeated(200'000) + QByteArray("end ").repeated(200'000);
  ExpectRefused(Write("deep.dfm", "object Form1: TForm1\n" + deep + "end\n"), "400 deep", 2, true);
}

TEST_F(Bombs, AnnouncedLengthsAreNotBelieved) {
  const QByteArray stream = QByteArray(
      "TPF0\x06TForm1\x05"
      "Form1\x04"
      "Data\x0A\xFF\xFF\xFF\x7F");
  ExpectRefused(Write("length.bin", stream), "announced", 0, true);
}

TEST_F(Bombs, ALargeHonestFormIsRead) {
  QByteArray inside;
  for (int i = 0; i < 100'000; ++i)
    inside += "  object L" + QByteArray::number(i) +
              ": TLabel\n    Left = 8\n    Top = 16\n    Width = 30\n    Height = 15\n    Caption = 'Note'\n "
              " end\n";
  std::mt19937 random(3);
  QByteArray noise(256 * 160 * 3, '\0');
  for (char& c : noise) c = static_cast<char>(random());
  for (int i = 0; i < 85; ++i) inside += RegionWith(i, BmpOf(256, 160, 24, 0, noise));  // 10 MB
  const LimitedRun check = RunLimited("vrx", {L("check"), Write("large.dfm", FormOf(inside))});
  EXPECT_TRUE(check.ended);
  EXPECT_EQ(check.code, 0) << check.out.left(400).constData() << check.err.constData();
}

TEST_F(Bombs, MemoryThatRunsOutIsSaidWithFileAndLine) {
#ifdef VRX_TEST_ASAN
  GTEST_SKIP() << "the sanitizer ends the program itself";
#else
  // Within the budget of a form: 500 MB while it is decoded.
  const QByteArray head = Number32(8192, true) + Number32(8000, true) + QByteArray("\x10\6\0\0\0", 5);
  const QByteArray rows = QByteArray(8192 * 8 + 1, '\0').repeated(8000);
  const QByteArray picture = QByteArray("\x89PNG\r\n\x1a\n", 8) + PngChunk("IHDR", head) +
                             PngChunk("IDAT", Deflated(rows)) + PngChunk("IEND", {});
  const QString form = Write("memory.dfm", FormOf(RegionWith(1, picture)));
  const LimitedRun check = RunLimited("vrx", {L("check"), form}, GigaByte / 2);
  EXPECT_TRUE(check.ended);
  EXPECT_EQ(check.code, 1);
  EXPECT_TRUE(check.out.contains((form + L(":5:")).toUtf8()) && check.out.contains("Out of memory"))
      << check.out.constData() << check.err.constData();
#endif
}
