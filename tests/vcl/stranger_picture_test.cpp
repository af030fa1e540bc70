// Pictures from people nobody knows: they are read or refused, and nothing else is opened for them.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QBuffer>
#include <QImageReader>
#include <QTemporaryDir>

#include "tests/support/OpenWatch.h"
#include "tests/support/PictureBytes.h"
#include "vcl/PictureFile.h"
#include "vcl/SvgCheck.h"

namespace {
QImage Patch() {
  QImage image(7, 4, QImage::Format_ARGB32);
  image.fill(qRgba(200, 30, 60, 128));
  image.setPixel(5, 1, qRgba(1, 2, 3, 255));
  return image;
}

class StrangerPicture : public testing::Test {
 protected:
  QString Write(const char* name, const QByteArray& bytes) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
    return Path(name);
  }
  QString Path(const char* name) const { return folder_.filePath(QString::fromLatin1(name)); }
  QString Folder() const { return folder_.path(); }
  static std::string Refusal(const QString& file) {
    try {
      LoadPicture(file);
    } catch (const EInvalidPicture& e) {
      return e.what();
    }
    return {};
  }

 private:
  QTemporaryDir folder_;
};

std::string StoredRefusal(const QByteArray& bytes) {
  try {
    ImageFromBytes(bytes);
  } catch (const EInvalidPicture& e) {
    return e.what();
  }
  return {};
}
bool Has(const std::string& text, const char* part) { return text.find(part) != std::string::npos; }
}  // namespace

TEST_F(StrangerPicture, AFormKeepsOnlyTheFormatsThatAreWrittenIntoIt) {
  for (const char* format : {"BMP", "PNG"}) EXPECT_EQ(StoredRefusal(PictureToBytes(Patch(), format)), "");
  const QByteArray others[] = {
      PictureToBytes(Patch(), "JPG"),
      PictureToBytes(Patch(), "PPM"),
      PictureToBytes(Patch(), "XPM"),
      PictureToBytes(Patch(), "ICO"),
      SvgOf(""),
      " " + PictureToBytes(Patch(), "PNG"),
      QByteArray::fromHex("47494638396101000100800000FFFFFF0000002C00000000010001000002024401003B")};
  for (const QByteArray& bytes : others) {
    ASSERT_FALSE(bytes.isEmpty());
    EXPECT_TRUE(Has(StoredRefusal(bytes), "bmp, png")) << bytes.left(20).toHex().constData();
  }
}

TEST_F(StrangerPicture, ABmpThatIsShorterThanItSaysIsRefusedByItsHead) {
  for (const int bits : {1, 8, 24, 32}) {
    const std::string text = StoredRefusal(BmpOf(8192, 8191, bits, 0, QByteArray(40, '\1')));
    EXPECT_TRUE(Has(text, "8192 x 8191") && Has(text, "damaged")) << text;
  }
  EXPECT_EQ(StoredRefusal(BmpOf(3, -2, 32, 0, QByteArray(24, '\1'))), "");
  EXPECT_TRUE(Has(StoredRefusal(BmpOf(3, INT32_MIN, 32, 0, QByteArray(24, '\1'))), "8192 x 8192"));
  EXPECT_TRUE(Has(StoredRefusal(BmpOf(-3, 2, 32, 0, QByteArray(24, '\1'))), "negative"));
  const QByteArray whole = BmpOf(3, 2, 32, 0, QByteArray(24, '\1'));
  for (qsizetype size = 2; size < whole.size(); ++size)
    EXPECT_NE(StoredRefusal(whole.first(size)), "") << size;
}

TEST_F(StrangerPicture, RunLengthsAreReadWithinTheSizeOfTheHead) {
  const QByteArray runs("\x05\x07\x00\x00\x05\x09\x00\x01", 8);
  EXPECT_EQ(ImageFromBytes(BmpOf(5, 2, 8, 1, runs)).size(), QSize(5, 2));
  EXPECT_TRUE(Has(StoredRefusal(BmpOf(20000, 20000, 8, 1, runs)), "20000 x 20000"));
}

TEST_F(StrangerPicture, TextsAndProfilesOfAPngAreLeftOutBeforeItIsRead) {
  const QByteArray text = PngChunk("zTXt", QByteArray("k\0\0", 3) + Deflated(QByteArray(4000, 'x')));
  const QByteArray profile = PngChunk("iCCP", QByteArray("p\0\0", 3) + Deflated(QByteArray(4000, '\0')));
  const QByteArray scale = PngChunk("pHYs", Number32(1000, true) + Number32(2000, true) + '\1');
  const QByteArray plain = PngOf(16, 9, 24, scale);
  const QByteArray laden = PngOf(16, 9, 24, text + scale + profile + text);
  EXPECT_EQ(LeanPng(laden), plain);
  EXPECT_TRUE(LeanPng(plain).isSharedWith(plain));
  EXPECT_EQ(ImageFromBytes(laden), ImageFromBytes(plain));
  EXPECT_TRUE(ImageFromBytes(laden).textKeys().isEmpty());
  EXPECT_EQ(ImageFromBytes(laden).dotsPerMeterY(), 2000);
  for (qsizetype size = 0; size < laden.size(); ++size) EXPECT_LE(LeanPng(laden.first(size)).size(), size);
}

TEST_F(StrangerPicture, ADrawingThatStandsOnItsOwnIsLoaded) {
  const QByteArray png = PictureToBytes(Patch(), "PNG").toBase64();
  const QByteArray drawings[] = {
      SvgOf(""),
      "\xEF\xBB\xBF<?xml version='1.0'?>\n<!-- made by hand -->\n" + SvgOf(""),
      SvgOf("<a xlink:href='http://example.org/'><rect id='r' x='4' width='1' height='1'/></a><use "
            "xlink:href='#r'/>"),
      SvgOf("<rect style='fill:url( \"#g\" )' width='1' height='1'/><style>rect { stroke: url(#g) }</style>"),
      SvgOf("",
            "<!DOCTYPE svg PUBLIC '-//W3C//DTD SVG 1.1//EN' "
            "'http://www.w3.org/Graphics/SVG/1.1/DTD/svg11.dtd' [<!ENTITY blue '#00f'>]>"),
      SvgImage("data:image/png;base64," + png),
  };
  for (const QByteArray& svg : drawings) {
    const TBitmap picture = LoadPicture(Write("a.svg", svg));
    EXPECT_EQ(picture.Width(), 9);
    EXPECT_EQ(picture.Height(), 5);
    EXPECT_EQ(picture.Pixel(1, 1) == clBlue, !svg.contains("data:")) << svg.constData();
  }
}

TEST_F(StrangerPicture, ACompressedDrawingIsCheckedAsItIsRead) {
  const auto zipped = [](const QByteArray& plain) {
    // A raw stream between the head of a file and its sum.
    const QByteArray zlib = Deflated(plain);
    const uLong sum =
        crc32(0, reinterpret_cast<const Bytef*>(plain.constData()), static_cast<uInt>(plain.size()));
    return QByteArray("\x1f\x8b\x08\0\0\0\0\0\0\3", 10) + zlib.sliced(2, zlib.size() - 6) +
           Number32(static_cast<quint32>(sum), false) + Number32(static_cast<quint32>(plain.size()), false);
  };
  EXPECT_EQ(LoadPicture(Write("a.svgz", zipped(SvgOf("")))).Pixel(1, 1), clBlue);
  EXPECT_TRUE(Has(Refusal(Write("b.svgz", zipped(SvgImage("/etc/hostname")))), "outside"));
  EXPECT_TRUE(Has(Refusal(Write("c.svgz", zipped(SvgOf("")).chopped(9))), "damaged"));
  const QByteArray bomb = zipped(QByteArray(80 << 20, ' '));
  EXPECT_TRUE(Has(Refusal(Write("d.svgz", bomb)), "64 MB"));
}

TEST_F(StrangerPicture, WhateverADrawingRefersToOutsideItIsRefused) {
  const QByteArray png = PictureToBytes(Patch(), "PNG");
  const QByteArray local = Write("secret.png", png).toUtf8();
  const QByteArray drawings[] = {
      SvgImage(local),
      SvgImage("file://" + local),
      SvgImage("secret.png"),
      SvgImage(" " + local),
      SvgImage("#a' href='" + local),
      SvgImage("http://example.org/a.png"),
      SvgImage("data"),
      SvgImage("data:image/png;base64,"),
      SvgImage("data:image/png;base64,AAAA"),
      SvgImage("data:image/png," + local),
      SvgImage("data:image/svg+xml;base64," + SvgImage(local).toBase64()),
      SvgImage("data:image/png;base64," + png.toBase64() + ";base64,AAAA"),
      SvgImage("&outer;").prepend("<!DOCTYPE svg [<!ENTITY outer SYSTEM '" + local + "'>]>"),
      SvgImage("&inner;").prepend("<!DOCTYPE svg [<!ENTITY inner '" + local + "'>]>"),
      SvgOf("<use xlink:href='other.svg#r'/>"),
      SvgOf("<feImage href='" + local + "'/>"),
      SvgOf("<rect fill='url(" + local + ")'/>"),
      SvgOf("<rect style='fill:URL( \"" + local + "#g\")'/>"),
      SvgOf("<rect style='fill:u\\72 l(" + local + ")'/>"),
      SvgOf("<style>@import 'a.css';</style>"),
      SvgOf("", "<?xml-stylesheet type=\"text/css\" href=\"" + local + "\"?>"),
  };
  OpenWatch watch(Folder());
  ASSERT_TRUE(watch.Watching());
  for (const QByteArray& svg : drawings) {
    const QString file = Write("drawing.svg", svg);
    watch.Opened();
    const std::string text = Refusal(file);
    EXPECT_EQ(watch.Opened(), QStringList{QStringLiteral("drawing.svg")}) << svg.constData();
    EXPECT_TRUE(Has(text, "drawing.svg")) << text << svg.constData();
  }
}

// What the test above would see if the decoder were given the drawing as it is.
TEST_F(StrangerPicture, TheWatchSeesADecoderThatFollowsAReference) {
  const QByteArray local = Write("secret.png", PictureToBytes(Patch(), "PNG")).toUtf8();
  OpenWatch watch(Folder());
  ASSERT_TRUE(watch.Watching());
  QByteArray svg = SvgImage(local);
  QBuffer buffer(&svg);
  QImageReader(&buffer, "svg").read();
  EXPECT_TRUE(watch.Opened().contains(QStringLiteral("secret.png")));
  // The same bytes as a form would hold them.
  EXPECT_THROW(ImageFromBytes(svg), EInvalidPicture);
  EXPECT_EQ(watch.Opened(), QStringList());
}

TEST_F(StrangerPicture, ADrawingDoesNotRepeatItselfEndlessly) {
  // Each of thirty groups draws the one before twice: 2^30 times the first.
  QByteArray doubling = "<g id='g0'><rect width='1' height='1'/></g>";
  for (int i = 1; i <= 30; ++i) {
    const QByteArray before = "<use xlink:href='#g" + QByteArray::number(i - 1) + "'/>";
    doubling += "<g id='g" + QByteArray::number(i) + "'>" + before + before + "</g>";
  }
  EXPECT_TRUE(Has(Refusal(Write("doubling.svg", SvgOf(doubling))), "repeats"));
  EXPECT_TRUE(
      Has(Refusal(Write("self.svg", SvgOf("<g id='a'><g><use xlink:href='#a'/></g></g>"))), "repeats"));
  EXPECT_TRUE(Has(Refusal(Write("round.svg", SvgOf("<g id='a'><use xlink:href='#b'/></g>"
                                                   "<g id='b'><use xlink:href='#a'/></g>"))),
                  "repeats"));
  // Repeating something is what "use" is for.
  QByteArray honest = "<g id='g'><rect width='1' height='1'/></g>";
  for (int i = 0; i < 500; ++i) honest += "<use xlink:href='#g' x='" + QByteArray::number(i) + "'/>";
  EXPECT_FALSE(LoadPicture(Write("honest.svg", SvgOf(honest))).Empty());
}

TEST_F(StrangerPicture, ADrawingIsNotNestedEndlessly) {
  const QByteArray deep = QByteArray("<g>").repeated(100000) + QByteArray("</g>").repeated(100000);
  EXPECT_TRUE(Has(Refusal(Write("deep.svg", SvgOf(deep))), "nested"));
}

TEST_F(StrangerPicture, PipesAndDevicesAreNotOpened) {
  const QString pipe = Path("pipe.png");
  ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  OpenWatch watch(Folder());
  EXPECT_TRUE(Has(Refusal(pipe), "pipe"));  // would wait for a writer
  EXPECT_EQ(watch.Opened(), QStringList());
  EXPECT_TRUE(Has(Refusal(QStringLiteral("/dev/zero")), "device"));
  ASSERT_TRUE(QFile::link(pipe, Path("link.png")));
  EXPECT_TRUE(Has(Refusal(Path("link.png")), "pipe"));
}

TEST_F(StrangerPicture, TheBytesDecideTheFormatAndNotTheName) {
  EXPECT_EQ(LoadPicture(Write("a.svg", PictureToBytes(Patch(), "PNG"))).Width(), 7);
  for (const char* format : {"BMP", "JPG", "PPM", "PGM", "PBM", "XPM", "XBM", "ICO", "CUR"}) {
    const QByteArray bytes = PictureToBytes(Patch(), format);
    EXPECT_EQ(LoadPicture(Write("a.png", bytes)).Height(), 4) << format;
  }
  EXPECT_TRUE(Has(Refusal(Write("a.png", SvgImage("b.png"))), "outside"));
}
