// Forms that inherit, from the command line: pictures show what the ancestor has, an edit writes the
// difference, and the ancestor's file is never written.
#include <QImage>

#include "CliTest.h"

namespace {
const QByteArray Base = R"(object Base: TBase
  Left = 0
  Top = 0
  ClientHeight = 120
  ClientWidth = 200
  object Patch: TPanel
    Left = 20
    Top = 30
    Width = 100
    Height = 60
    BevelOuter = bvNone
    Caption = ''
    Color = clRed
    ParentBackground = False
    TabOrder = 0
  end
end
)";
const QByteArray Derived = "inherited Derived: TDerived\n  Caption = 'Derived'\nend\n";
using InheritedCli = Cli;

int RedPixels(const QImage& image) {
  int red = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) red += image.pixelColor(x, y) == QColor(Qt::red);
  return red;
}
}  // namespace

TEST_F(InheritedCli, APictureShowsWhatIsInherited) {
  const QString form = Write("Derived.dfm", Derived);
  EXPECT_EQ(Vrx({QStringLiteral("render"), form, QStringLiteral("-o"), Path("alone.png")}).code, 0);
  EXPECT_EQ(RedPixels(QImage(Path("alone.png"))), 0);
  Write("Base.dfm", Base);
  Write("Derived.pas", "type TDerived = class(TBase) end;");
  EXPECT_EQ(Vrx({QStringLiteral("render"), form, QStringLiteral("-o"), Path("whole.png")}).code, 0);
  EXPECT_EQ(RedPixels(QImage(Path("whole.png"))), 100 * 60);
  EXPECT_EQ(Read(form), Derived);
}

TEST_F(InheritedCli, AnEditWritesTheDifferenceAndNotTheAncestor) {
  const QString form = Write("Derived.dfm", Derived);
  const QString base = Write("Base.dfm", Base);
  Write("Derived.pas", "type TDerived = class(TBase) end;");
  EXPECT_EQ(Vrx({QStringLiteral("get"), form, QStringLiteral("Patch.Color")}).out, QStringLiteral("clRed\n"));
  EXPECT_EQ(
      Vrx({QStringLiteral("get"), form, QStringLiteral("Patch")}).out,
      QStringLiteral("Left = 20\nTop = 30\nWidth = 100\nHeight = 60\nBevelOuter = bvNone\nCaption = ''\n"
                     "Color = clRed\nParentBackground = False\nTabOrder = 0\n"));
  const Result set = Vrx({QStringLiteral("set"), form, QStringLiteral("Patch.Left=25")});
  EXPECT_EQ(set.code, 0) << set.err.toStdString();
  EXPECT_EQ(Read(form).toStdString(),
            QByteArray(Derived)
                .replace("end\n", "  inherited Patch: TPanel\n    Left = 25\n  end\nend\n")
                .toStdString());
  EXPECT_EQ(Vrx({QStringLiteral("set"), form, QStringLiteral("Patch.Left=20")}).code, 0);
  EXPECT_EQ(Read(form), Derived);
  EXPECT_EQ(Read(base), Base);
  const Result renamed = Vrx({QStringLiteral("set"), form, QStringLiteral("Patch.Name='Other'")});
  EXPECT_EQ(renamed.code, 1);
  EXPECT_EQ(Read(form), Derived);
}

TEST_F(InheritedCli, AMissingAncestorIsANoteOfTheCheck) {
  const QString form = Write("Derived.dfm", Derived);
  const Result r = Vrx({QStringLiteral("check"), form});
  EXPECT_EQ(r.code, 0);
  EXPECT_EQ(r.Lines().size(), 1) << r.out.toStdString();
  EXPECT_TRUE(r.out.startsWith(form + QStringLiteral(":1:1: note: TDerived is inherited, but Derived.pas")))
      << r.out.toStdString();
}
