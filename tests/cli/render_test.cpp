#include <QImage>

#include "CliTest.h"

namespace {
using RenderCli = Cli;
using RealCli = Cli;
}  // namespace

TEST_F(RenderCli, ThePictureIsTheFormTimesTheScale) {
  const QString form = Write("a.dfm",
                             "object Form1: TForm1\n  BorderStyle = bsNone\n  ClientHeight = 100\n  "
                             "ClientWidth = 200\n  Color = clRed\nend\n");
  const QString png = Path("a.png");
  const Result r = Vrx({L("render"), form, L("-o"), png});
  EXPECT_EQ(r.code, 0) << r.err.toStdString();
  EXPECT_EQ(r.out + r.err, QString());
  EXPECT_TRUE(Read(png).startsWith("\x89PNG"));
  EXPECT_EQ(QImage(png).size(), QSize(200, 100));
  EXPECT_EQ(QImage(png).pixelColor(100, 50), QColor(Qt::red));
  EXPECT_EQ(Vrx({L("render"), form, L("-o"), png, L("--scale"), L("2.5")}).code, 0);
  EXPECT_EQ(QImage(png).size(), QSize(500, 250));
  EXPECT_EQ(Vrx({L("render"), form, L("-o"), png, L("--scale=0.1")}).code, 0);
  EXPECT_EQ(QImage(png).size(), QSize(20, 10));
}

TEST_F(RenderCli, TheThemesDiffer) {
  const QString light = Path("light.png"), dark = Path("dark.png"), usual = Path("usual.png");
  EXPECT_EQ(Vrx({L("render"), Example(), L("-o"), light, L("--theme"), L("light")}).code, 0);
  EXPECT_EQ(Vrx({L("render"), Example(), L("-o"), dark, L("--theme"), L("dark")}).code, 0);
  EXPECT_EQ(Vrx({L("render"), Example(), L("-o"), usual}).code, 0);
  EXPECT_EQ(QImage(light).size(), QImage(dark).size());
  EXPECT_NE(QImage(light), QImage(dark));
  EXPECT_EQ(QImage(light), QImage(usual));
}

TEST_F(RenderCli, BadArgumentsMakeNoPicture) {
  const QString png = Path("a.png");
  for (const QStringList& arguments : {QStringList{Example()},
                                       {L("-o"), png},
                                       {Example(), L("-o"), png, L("--scale"), L("0")},
                                       {Example(), L("-o"), png, L("--scale"), L("big")},
                                       {Example(), L("-o"), png, L("--scale"), L("-1")},
                                       {Example(), L("-o"), png, L("--scale"), L("nan")},
                                       {Example(), L("-o"), png, L("--scale"), L("inf")},
                                       {Example(), L("-o"), png, L("--theme"), L("pink")},
                                       {Example(), Example(), L("-o"), png},
                                       {Example(), L("-o")}}) {
    const Result r = Vrx(QStringList{L("render")} + arguments);
    EXPECT_EQ(r.code, 2) << arguments.join(u' ').toStdString();
    EXPECT_FALSE(QFile::exists(png));
  }
  EXPECT_EQ(Vrx({L("render"), Path("missing.dfm"), L("-o"), png}).code, 1);
  EXPECT_EQ(Vrx({L("render"), Example(), L("-o"), Path("no/folder/a.png")}).code, 1);
  const QString huge =
      Write("huge.dfm", "object Form1: TForm1\n  ClientHeight = 30000\n  ClientWidth = 30000\nend\n");
  const Result r = Vrx({L("render"), huge, L("-o"), png});
  EXPECT_EQ(r.code, 1);
  EXPECT_TRUE(r.err.contains(L("--scale")));
  EXPECT_FALSE(QFile::exists(png));
}

TEST_F(RenderCli, TheScaleHasAFirstAndALastValue) {
  const QString form =
      Write("f.dfm", "object F: TF\n  BorderStyle = bsNone\n  ClientHeight = 40\n  ClientWidth = 100\nend\n");
  const QString png = Path("a.png");
  for (const auto& [scale, size] : {std::pair{"0.05", QSize(5, 2)}, std::pair{"20", QSize(2000, 800)},
                                    std::pair{"2e1", QSize(2000, 800)}}) {
    EXPECT_EQ(Vrx({L("render"), form, L("-o"), png, L("--scale"), L(scale)}).code, 0) << scale;
    EXPECT_EQ(QImage(png).size(), size) << scale;
    ASSERT_TRUE(QFile::remove(png));
  }
  for (const char* scale : {"0.049", "20.01", "-0.05", "", "1x"}) {
    const Result r = Vrx({L("render"), form, L("-o"), png, L("--scale"), L(scale)});
    EXPECT_EQ(r.code, 2) << scale;
    EXPECT_TRUE(
        r.err.startsWith(L("vrx render: --scale takes a number from 0.05 to 20, not \"") + L(scale) + u'"'))
        << r.err.toStdString();
    EXPECT_FALSE(QFile::exists(png)) << scale;
  }
}

TEST_F(RealCli, ConvertsFromStandardInputToStandardOutput) {
  const ProcessResult binary = RealVrx({L("convert"), L("-"), L("-"), L("--to"), L("binary")}, SmallForm);
  EXPECT_EQ(binary.code, 0);
  EXPECT_TRUE(binary.out.startsWith("TPF0"));
  EXPECT_EQ(binary.err, "");
  const ProcessResult text = RealVrx({L("convert"), L("-"), L("-")}, binary.out);
  EXPECT_EQ(text.code, 0);
  EXPECT_EQ(text.out, SmallForm);
}

TEST_F(RealCli, ResultsAndMessagesGoToTheirStreams) {
  const QString bad = Write("bad.dfm", "object Form1: TForm1\n  Left = ]\nend\n");
  const ProcessResult check = RealVrx({L("check"), bad});
  EXPECT_EQ(check.code, 1);
  EXPECT_TRUE(check.out.startsWith(bad.toUtf8() + ":2:10: error: ")) << check.out.constData();
  EXPECT_EQ(check.err, "");
  const ProcessResult convert = RealVrx({L("convert"), bad, L("-")});
  EXPECT_EQ(convert.code, 1);
  EXPECT_EQ(convert.out, "");
  EXPECT_TRUE(convert.err.startsWith("vrx convert: "));
  const ProcessResult unknown = RealVrx({L("fly")});
  EXPECT_EQ(unknown.code, 2);
  EXPECT_EQ(unknown.out, "");
  EXPECT_TRUE(unknown.err.contains("fly"));
  EXPECT_EQ(RealVrx({}).code, 2);
}

TEST_F(RealCli, LoadsThePackage) {
  const ProcessResult strict = RealVrx({L("check"), L("--strict"), Example()});
  EXPECT_EQ(strict.code, 0) << strict.out.constData();
  const ProcessResult rows = RealVrx({L("registrations")});
  EXPECT_EQ(rows.code, 0);
  EXPECT_TRUE(rows.out.contains("TVRXLEDLabel"));
  EXPECT_EQ(rows.err, "");
  EXPECT_EQ(RealVrx({L("registrations"), L("--labeled"), L("--json")}).code, 0);
  const ProcessResult value = RealVrx({L("get"), Example(), L("SpeedLED.LED.Thickness")});
  EXPECT_EQ(value.out, "6\n");
}

TEST_F(RenderCli, TheNameSaysWhichKindOfPicture) {
  const std::pair<const char*, QByteArray> rows[] = {{"a.jpg", "\xFF\xD8\xFF"},
                                                     {"a.JPEG", "\xFF\xD8\xFF"},
                                                     {"a.bmp", "BM"},
                                                     {"a.png", "\x89PNG"},
                                                     {"a", "\x89PNG"}};
  const QString form = Write("f.dfm",
                             "object Form1: TForm1\n  BorderStyle = bsNone\n  ClientHeight = 30\n  "
                             "ClientWidth = 70\n  Color = clRed\nend\n");
  for (const auto& [name, begin] : rows) {
    const Result r = Vrx({L("render"), form, L("-o"), Path(name)});
    EXPECT_EQ(r.code, 0) << name << r.err.toStdString();
    EXPECT_TRUE(Read(Path(name)).startsWith(begin)) << name;
    EXPECT_EQ(QImage::fromData(Read(Path(name))).size(), QSize(70, 30)) << name;
    EXPECT_GT(QImage::fromData(Read(Path(name))).pixelColor(35, 15).red(), 240) << name;
  }
  const Result r = Vrx({L("render"), form, L("-o"), Path("a.gif")});
  EXPECT_EQ(r.code, 2);
  EXPECT_TRUE(r.err.contains(L(".png, .jpg"))) << r.err.toStdString();
  EXPECT_FALSE(QFile::exists(Path("a.gif")));
}

TEST_F(RenderCli, ACaptionWithoutEndLooksLikeALongOne) {
  const auto picture = [&](const char* name, qsizetype size) {
    const QString form =
        Write("f.dfm",
              "object Form1: TForm1\n  ClientHeight = 60\n  ClientWidth = 300\n  object L: TLabel\n"
              "    Left = 5\n    Top = 6\n    Caption = '" +
                  QByteArray("word ").repeated(size / 5) + "'\n  end\nend\n");
    EXPECT_EQ(Vrx({L("render"), form, L("-o"), Path(name)}).code, 0);
    return QImage(Path(name));
  };
  EXPECT_EQ(picture("long.png", 1 << 20), picture("huge.png", 50 << 20));
}

TEST_F(RealCli, WhatALibraryWritesDoesNotReachThePerson) {
  QImage image(40, 30, QImage::Format_ARGB32);
  for (int y = 0; y < 30; ++y)
    for (int x = 0; x < 40; ++x) image.setPixelColor(x, y, QColor(x * 6, y * 8, x * y % 255, 255 - x));
  ASSERT_TRUE(image.save(Path("whole.png")));
  QByteArray bytes = Read(Path("whole.png"));
  const qsizetype data = bytes.indexOf("IDAT") + 8;
  for (qsizetype i = data; i < data + 20; ++i) bytes[i] = static_cast<char>(~bytes[i]);
  const QString damaged = Write("damaged.png", bytes);
  const ProcessResult r = RealVrx({L("effect3d"), damaged, L("--up"), Path("up.png")});
  EXPECT_EQ(r.code, 1);
  EXPECT_FALSE(r.err.contains("libpng")) << r.err.constData();
  EXPECT_TRUE(r.err.startsWith("vrx effect3d: ")) << r.err.constData();
  EXPECT_EQ(r.err.count('\n'), 1) << r.err.constData();
}
