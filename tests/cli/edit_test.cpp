// vrx edit: the editor of one property, without the designer.
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTableView>

#include "CliTest.h"
#include "tests/support/Modal.h"

namespace {
const QByteArray Form =
    "object Form1: TForm1\n"
    "  Left = 0\n"
    "  Top = 0\n"
    "  Caption = 'Small'\n"
    "  object Days: TVRXSpecialDates\n"
    "    Dates = (\n"
    "      '2024-12-24;Christmas')\n"
    "    Left = 8\n"
    "    Top = 8\n"
    "  end\n"
    "  object Note: TMemo\n"
    "    Left = 8\n"
    "    Top = 60\n"
    "    Width = 90\n"
    "    Height = 45\n"
    "    Lines.Strings = (\n"
    "      'one')\n"
    "    TabOrder = 0\n"
    "  end\n"
    "  object View: TListView\n"
    "    Left = 8\n"
    "    Top = 120\n"
    "    Width = 90\n"
    "    Height = 45\n"
    "    Columns = <>\n"
    "    TabOrder = 1\n"
    "  end\n"
    "end\n";

class EditCli : public Cli {
 protected:
  EditCli() : form_(Write("form.dfm", Form)) {}
  Result Edit(const QString& property, const std::function<void(QDialog&)>& act,
              const QStringList& more = {}) {
    came_ = false;
    modal::Next([&, act](QDialog& dialog) {
      came_ = true;
      act(dialog);
    });
    return Vrx(QStringList{L("edit"), form_, property} + more);
  }
  static void AddDate(QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), L("Date List Property Editor"));
    dialog.findChild<QTableView*>(L("DList"))
        ->setCurrentIndex(dialog.findChild<QTableView*>(L("DList"))->model()->index(0, 0));
    dialog.findChild<QLineEdit*>(L("Des"))->setText(L("at home"));
  }
  QString form_;
  bool came_ = false;
};
}  // namespace

TEST_F(EditCli, OkWritesWhatChangedAndEndsWith0) {
  const Result r = Edit(L("Days.Dates"), [](QDialog& dialog) {
    AddDate(dialog);
    dialog.accept();
  });
  EXPECT_TRUE(came_);
  EXPECT_EQ(r.code, 0) << r.err.toStdString();
  EXPECT_EQ(r.err, QString());
  EXPECT_EQ(Read(form_), QByteArray(Form).replace("Christmas", "at home"));
}

TEST_F(EditCli, CancelWritesNothingAndEndsWith3) {
  const Result r = Edit(L("days.dates"), [](QDialog& dialog) {
    AddDate(dialog);
    dialog.reject();
  });
  EXPECT_TRUE(came_);
  EXPECT_EQ(r.code, 3);
  EXPECT_EQ(r.err, QString());
  EXPECT_EQ(Read(form_), Form);
  EXPECT_FALSE(QFile::exists(Path("out.dfm")));
}

TEST_F(EditCli, OkWithoutAChangeLeavesTheFileAlone) {
  QFile file(form_);
  ASSERT_TRUE(file.setPermissions(QFile::ReadOwner));
  const QDateTime before = QFileInfo(form_).lastModified();
  EXPECT_EQ(Edit(L("Note.Lines"), [](QDialog& dialog) { dialog.accept(); }).code, 0);
  EXPECT_EQ(QFileInfo(form_).lastModified(), before);
  EXPECT_EQ(Read(form_), Form);
}

TEST_F(EditCli, WritesToAnotherFileWhenAsked) {
  const Result r = Edit(L("Note.Lines"),
                        [](QDialog& dialog) {
                          auto* lines = dialog.findChild<QPlainTextEdit*>();
                          lines->selectAll();
                          lines->insertPlainText(L("two"));
                          dialog.accept();
                        },
                        {L("-o"), Path("out.dfm")});
  EXPECT_EQ(r.code, 0) << r.err.toStdString();
  EXPECT_EQ(Read(form_), Form);
  EXPECT_EQ(Read(Path("out.dfm")), QByteArray(Form).replace("'one'", "'two'"));
}

TEST_F(EditCli, PropertiesOfPartsAndOfTheFormHaveEditors) {
  for (const char* property : {"Note.Font", "Note.Font.Color", "Form1.Font"})
    EXPECT_EQ(Edit(L(property), [](QDialog& dialog) { dialog.reject(); }).code, 3) << property;
  EXPECT_EQ(Read(form_), Form);
}

TEST_F(EditCli, WaitsForAWindowThatStaysOpen) {
  QTimer timer;
  int rounds = 0;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->isVisible() && ++rounds > 3) window->close();
  });
  timer.start(0);
  const Result r = Vrx({L("edit"), form_, L("View.Columns")});
  EXPECT_EQ(r.code, 0) << r.err.toStdString();
  EXPECT_GT(rounds, 3);
  EXPECT_EQ(Read(form_), Form);
}

TEST_F(EditCli, WhatTheEditorSaysIsSaidOnce) {
  const QString form = Write("button.dfm",
                             "object Form1: TForm1\n  Left = 0\n  Top = 0\n  object Go: TVRXMMButton\n"
                             "    Left = 8\n    Top = 8\n  end\nend\n");
  const QByteArray before = Read(form);
  int boxes = 0;
  modal::NextOf<QMessageBox>([&](QMessageBox& box) {
    ++boxes;
    EXPECT_EQ(box.text(), L("Can't run Editor because no ButtonFaceImageList is selected."));
    box.accept();
  });
  const Result r = Vrx({L("edit"), form, L("Go.ButtonFace")});
  EXPECT_EQ(boxes, 1);
  EXPECT_EQ(r.code, 1);
  EXPECT_EQ(r.err + r.out, QString());
  EXPECT_EQ(Read(form), before);
}

TEST_F(EditCli, SaysWhatIsWrong) {
  const auto error = [&](const QStringList& arguments, int code, const char* text) {
    const Result r = Vrx(QStringList{L("edit")} + arguments);
    EXPECT_EQ(r.code, code) << text;
    EXPECT_TRUE(r.err.contains(L(text))) << r.err.toStdString();
  };
  error({form_, L("Ghost.Lines")}, 1, "has no component named \"Ghost\"");
  error({form_, L("Note.Ghost")}, 1, "Note: TMemo has no property \"Ghost\"");
  error({form_, L("Note.Font.Ghost")}, 1, "Note: TMemo has no property \"Font.Ghost\"");
  error({form_, L("Note.Left")}, 1, "Note.Left has no editor dialog; vrx set changes it");
  error({Path("none.dfm"), L("Note.Lines")}, 1, "none.dfm");
  error({form_}, 2, "COMPONENT.PROPERTY are needed");
  error({form_, L("Note")}, 2, "COMPONENT.PROPERTY are needed");
  error({form_, L("Note.Lines"), L("--wrong")}, 2, "unknown option --wrong");
  EXPECT_EQ(Read(form_), Form);
}

TEST_F(EditCli, WhatItsEditorRefusesIsTold) {
  const QByteArray odd = QByteArray(Form).replace("2024-12-24;", "2024-99-24;");
  form_ = Write("odd.dfm", odd);
  const Result r = Vrx({L("edit"), form_, L("Days.Dates")});
  EXPECT_EQ(r.code, 1);
  EXPECT_TRUE(r.err.contains(L("Days.Dates: "))) << r.err.toStdString();
  EXPECT_TRUE(r.err.contains(L("2024-99-24"))) << r.err.toStdString();
  EXPECT_EQ(Read(form_), odd);
}

TEST_F(EditCli, TheRealProgramTellsWithoutADisplay) {
  const QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
  QProcess process;
  QProcessEnvironment bare = all;
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) bare.remove(L(name));
  process.setProcessEnvironment(bare);
  process.start(L(VRX_BINARY_DIR "/bin/vrx"), {L("edit"), form_, L("Days.Dates")});
  ASSERT_TRUE(process.waitForFinished(-1));
  EXPECT_EQ(process.exitCode(), 1);
  EXPECT_TRUE(process.readAllStandardError().contains("There is no display"));
  const ProcessResult wrong = RealVrx({L("edit"), form_, L("Ghost.Dates")});
  EXPECT_EQ(wrong.code, 1);
  EXPECT_TRUE(wrong.err.contains("Ghost"));
}

TEST_F(EditCli, HelpTellsOfIt) {
  EXPECT_TRUE(Vrx({L("--help")}).out.contains(L("vrx edit FORM COMPONENT.PROPERTY [-o OUT]")));
  const Result r = Vrx({L("edit"), L("--help")});
  EXPECT_EQ(r.code, 0);
  EXPECT_TRUE(r.out.contains(L("Exit code 3 when it is cancelled")));
}
