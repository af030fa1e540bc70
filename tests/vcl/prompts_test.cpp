#include <gtest/gtest.h>

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include "tests/support/Modal.h"
#include "vcl/Prompts.h"

TEST(Prompts, ANameOutOfAFileIsNoMarkup) {
  const QString text = QStringLiteral("<b>Button1</b> & <img src='/etc/hostname'>");
  const auto look = [&](const std::function<void()>& ask) {
    bool seen = false;
    modal::NextOf<QMessageBox>([&](QMessageBox& box) {
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      EXPECT_EQ(box.text(), text);
      seen = true;
      box.reject();
    });
    ask();
    EXPECT_TRUE(seen);
  };
  look([&] { Prompts().Inform(nullptr, QStringLiteral("t"), text); });
  look([&] { Prompts().Warn(nullptr, QStringLiteral("t"), text); });
  look([&] { EXPECT_EQ(Prompts().AskToSave(nullptr, text), TAnswer::Cancel); });
  look([&] { EXPECT_EQ(Prompts().AskFileChanged(nullptr, QStringLiteral("t"), text), TFileAnswer::Cancel); });
  look([&] { EXPECT_FALSE(Prompts().Confirm(nullptr, QStringLiteral("t"), text)); });
}

namespace {
// Types a name in the file dialog that comes next. It gets the file when no question comes; one whether a
// file may be replaced is answered with No, and the dialog is cancelled.
void TypeName(const QString& name, bool asks) {
  modal::NextOf<QFileDialog>([=](QFileDialog& dialog) {
    auto* field = dialog.findChild<QLineEdit*>();
    ASSERT_TRUE(field);
    field->setText(name);
    if (asks)
      modal::NextOf<QMessageBox>([&](QMessageBox& box) {
        EXPECT_TRUE(box.text().contains(QStringLiteral("already exists"))) << box.text().toStdString();
        box.button(QMessageBox::No)->click();
      });
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(dialog.isVisible(), asks);
    if (asks) dialog.reject();
  });
}
QString Made(const QTemporaryDir& folder, const char* name) {
  QFile file(folder.filePath(QString::fromLatin1(name)));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  return file.fileName();
}
}  // namespace

TEST(Prompts, ANameWithoutAnEndingGetsItBeforeAFileIsReplaced) {
  const QTemporaryDir folder;
  const auto save = [&](const char* typed, const char* start, const char* filter, bool asks = false) {
    TypeName(QString::fromLatin1(typed), asks);
    const QString name =
        Prompts().SaveFileName(nullptr, QStringLiteral("t"), folder.filePath(QString::fromLatin1(start)),
                               QString::fromLatin1(filter));
    return name.mid(folder.path().size()).toStdString();
  };
  const char* const states = "States ((*.fcstates)) (*.fcstates)";
  EXPECT_EQ(save("mine", "*.fcstates", states), "/mine.fcstates");
  Made(folder, "mine.fcstates");
  EXPECT_EQ(save("mine", "*.fcstates", states, true), "") << "not taken without a question";
  EXPECT_EQ(save("mine.old", "*.fcstates", states), "/mine.old") << "an ending that is typed is kept";
  EXPECT_EQ(save("a", "*.FCSettings", "(*.fcsettings)"), "/a.fcsettings");
  EXPECT_EQ(save("a", "b.lfm", "Forms (*.dfm *.lfm);;All files (*)"), "/a.lfm");
  EXPECT_EQ(save("a", "b.form", "Forms (*.dfm *.lfm);;All files (*)"), "/a.dfm");
  EXPECT_EQ(save("a", "", "Text files (*.txt);;All files (*.*)"), "/a.txt");
  EXPECT_EQ(save("a", "picture.png", "*.png;;*"), "/a.png");
}

TEST(Prompts, AFileIsFoundByItsNameWithoutTheEnding) {
  const QTemporaryDir folder;
  const QString file = Made(folder, "mine.fcstates");
  TypeName(QStringLiteral("mine"), false);
  EXPECT_EQ(
      Prompts().OpenFileName(nullptr, QStringLiteral("t"), folder.filePath(QStringLiteral("*.fcstates")),
                             QStringLiteral("(*.fcstates)")),
      file);
  const QString plain = Made(folder, "plain");
  TypeName(QStringLiteral("plain"), false);
  EXPECT_EQ(Prompts().OpenFileName(nullptr, QStringLiteral("t"), folder.path(), QStringLiteral("(*.dfm)")),
            plain);
}
