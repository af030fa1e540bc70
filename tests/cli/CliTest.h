// Runs vrx inside the test with streams of strings, and the real program beside it.
#pragma once
#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "cli/Commands.h"

struct Result {
  int code = -1;
  QString out, err;
  QStringList Lines() const { return out.split(u'\n', Qt::SkipEmptyParts); }
};

inline Result Vrx(const QStringList& arguments) {
  Result r;
  QTextStream out(&r.out), err(&r.err);
  Console console{out, err};
  r.code = RunVrx(arguments, console);
  out.flush();
  err.flush();
  return r;
}

struct ProcessResult {
  int code = -1;
  QByteArray out, err;
};
inline ProcessResult RealVrx(const QStringList& arguments, const QByteArray& input = {}) {
  QProcess process;
  process.start(QStringLiteral(VRX_BINARY_DIR "/bin/vrx"), arguments);
  process.write(input);
  process.closeWriteChannel();
  ProcessResult r;
  if (!process.waitForFinished(-1)) return r;
  if (process.exitStatus() == QProcess::NormalExit) r.code = process.exitCode();
  r.out = process.readAllStandardOutput();
  r.err = process.readAllStandardError();
  return r;
}

// Files of one test.
class Cli : public testing::Test {
 protected:
  QString Path(const char* name) const { return folder_.filePath(QString::fromLatin1(name)); }
  QString Write(const char* name, const QByteArray& bytes) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
    return Path(name);
  }
  static QByteArray Read(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
  }
  static QString Example() { return QStringLiteral(VRX_SOURCE_DIR "/examples/control-panel.dfm"); }
  static QString Case(const char* name) {
    return QStringLiteral(VRX_SOURCE_DIR "/tests/cli/cases/") + QString::fromLatin1(name);
  }
  static QString L(const char* text) { return QString::fromUtf8(text); }

 private:
  QTemporaryDir folder_;
};

inline const QByteArray SmallForm =
    "object Form1: TForm1\n"
    "  Left = 0\n"
    "  Top = 0\n"
    "  Caption = 'Small'\n"
    "  ClientHeight = 100\n"
    "  ClientWidth = 200\n"
    "  Color = clBtnFace\n"
    "  Font.Charset = DEFAULT_CHARSET\n"
    "  Font.Color = clWindowText\n"
    "  Font.Height = -12\n"
    "  Font.Name = 'Tahoma'\n"
    "  Font.Style = []\n"
    "  PixelsPerInch = 96\n"
    "  object Go: TButton\n"
    "    Left = 8\n"
    "    Top = 16\n"
    "    Width = 75\n"
    "    Height = 25\n"
    "    Caption = 'Go'\n"
    "    TabOrder = 0\n"
    "    OnClick = GoClick\n"
    "  end\n"
    "  object Note: TLabel\n"
    "    Left = 8\n"
    "    Top = 60\n"
    "    Width = 30\n"
    "    Height = 15\n"
    "    Caption = 'Note'\n"
    "    FocusControl = Go\n"
    "  end\n"
    "end\n";
