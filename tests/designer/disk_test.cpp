// Another program changes or removes the file of the open form.
#include "designer/DifferenceDialog.h"
#include "designer/MessageBar.h"
#include "tests/designer/DesignerTest.h"

using namespace designer;

namespace {
const QByteArray Theirs = QByteArray(Sample).replace("Caption = 'Main'", "Caption = 'Theirs'");

class Disk : public DesignerTest {
 protected:
  void Change() {
    Select("Button1");
    Key(Qt::Key_Right);
    ASSERT_TRUE(Session().IsModified());
    ours_ = Session().Bytes();
  }
  void Replace(const QByteArray& bytes) { Write(file_, bytes); }
  void ComeBack() {
    QEvent activated(QEvent::WindowActivate);
    QCoreApplication::sendEvent(window_.get(), &activated);
  }
  MessageBar& Bar() { return *window_->findChild<MessageBar*>(); }
  std::string Told() { return Bar().Text().toStdString(); }
  void ClickOnBar(const char* name) {
    auto* button = Bar().findChild<QAbstractButton*>(QLatin1StringView(name));
    ASSERT_NE(button, nullptr) << name;
    ASSERT_TRUE(button->isVisible());
    QTest::mouseClick(button, Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  // Presses a button of the difference view, which shows these lines.
  void ChooseInView(const char* name, const char* left, const char* right) {
    modal::NextOf<DifferenceDialog>([=](DifferenceDialog& view) {
      const auto text = [&](const char* side) {
        return view.findChild<QPlainTextEdit*>(QLatin1StringView(side))->toPlainText();
      };
      EXPECT_TRUE(text("onDisk").contains(QLatin1StringView(left))) << text("onDisk").toStdString();
      EXPECT_FALSE(text("onDisk").contains(QLatin1StringView(right)));
      EXPECT_TRUE(text("here").contains(QLatin1StringView(right))) << text("here").toStdString();
      EXPECT_FALSE(text("here").contains(QLatin1StringView(left)));
      for (QAbstractButton* b : view.findChildren<QAbstractButton*>())
        if (b->objectName() == QLatin1StringView(name)) return QTest::mouseClick(b, Qt::LeftButton);
      view.reject();
    });
  }
  std::string Caption() { return Session().Form().Caption().toStdString(); }

  QByteArray ours_;
};
}  // namespace

// --- Saving

TEST_F(Disk, SavingOverAForeignChangeAsksAndCancelWritesNothing) {
  Change();
  Replace(Theirs);
  prompts_.fileAnswers = {TFileAnswer::Cancel};
  EXPECT_FALSE(window_->Save());
  ASSERT_EQ(prompts_.questions.size(), 1);
  EXPECT_TRUE(prompts_.questions[0].contains(QStringLiteral("main.dfm")));
  EXPECT_EQ(Read(file_), Theirs);
  EXPECT_TRUE(window_->isWindowModified());
  EXPECT_EQ(Session().Bytes(), ours_);
}

TEST_F(Disk, OverwriteWritesTheForm) {
  Change();
  Replace(Theirs);
  prompts_.fileAnswers = {TFileAnswer::Overwrite};
  EXPECT_TRUE(window_->Save());
  EXPECT_EQ(Read(file_), ours_);
  EXPECT_FALSE(window_->isWindowModified());
  Key(Qt::Key_Right);
  EXPECT_TRUE(window_->Save());  // the file is ours again
  EXPECT_EQ(prompts_.questions.size(), 1);
}

TEST_F(Disk, ReloadTakesTheFileAndKeepsTheSelection) {
  Change();
  Replace(Theirs);
  prompts_.fileAnswers = {TFileAnswer::Reload};
  EXPECT_FALSE(window_->Save());
  EXPECT_EQ(Caption(), "Theirs");
  EXPECT_EQ(Read(file_), Theirs);
  EXPECT_FALSE(window_->isWindowModified());
  EXPECT_EQ(Selected(), "Button1");
}

TEST_F(Disk, ReloadOfAFileThatIsNoFormTellsAndKeepsTheForm) {
  Change();
  Replace("not a form");
  prompts_.fileAnswers = {TFileAnswer::Reload};
  EXPECT_FALSE(window_->Save());
  EXPECT_EQ(Session().Bytes(), ours_);
  EXPECT_TRUE(window_->isWindowModified());
  ASSERT_EQ(prompts_.warnings.size(), 1);
  expectedWarnings_ = prompts_.warnings;
}

TEST_F(Disk, BothVersionsCanBeSeenBeforeChoosing) {
  Change();
  Replace(Theirs);
  prompts_.fileAnswers = {TFileAnswer::ShowBoth, TFileAnswer::ShowBoth, TFileAnswer::ShowBoth};
  ChooseInView("none", "Left = 240", "Left = 248");
  EXPECT_FALSE(window_->Save());
  EXPECT_EQ(Read(file_), Theirs);
  ChooseInView("overwrite", "'Theirs'", "'Main'");
  EXPECT_TRUE(window_->Save());
  EXPECT_EQ(Read(file_), ours_);
  Replace(Theirs);
  Key(Qt::Key_Right);
  ChooseInView("reload", "'Theirs'", "'Main'");
  EXPECT_FALSE(window_->Save());
  EXPECT_EQ(Caption(), "Theirs");
}

TEST_F(Disk, WhatChangesWhileThePersonDecidesIsAskedAgain) {
  Change();
  Replace(Theirs);
  const QByteArray later = QByteArray(Theirs).replace("'Theirs'", "'Later'");
  prompts_.fileAnswers = {TFileAnswer::Overwrite, TFileAnswer::Cancel};
  prompts_.whileAsking = [&] { Replace(later); };
  EXPECT_FALSE(window_->Save());
  EXPECT_EQ(prompts_.questions.size(), 2);
  EXPECT_EQ(Read(file_), later);
}

TEST_F(Disk, TheContentDecidesAndNotTheTime) {
  Change();
  Replace(Sample);  // written again, the same bytes
  EXPECT_TRUE(window_->Save());
  EXPECT_TRUE(prompts_.questions.isEmpty());
  // The same size and time, other bytes.
  Key(Qt::Key_Right);
  const QDateTime time = QFileInfo(file_).lastModified();
  const QByteArray other = QByteArray(ours_).replace("'Main'", "'Niam'");
  Replace(other);
  QFile file(file_);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  ASSERT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
  file.close();
  EXPECT_FALSE(window_->Save());
  EXPECT_EQ(prompts_.questions.size(), 1);
  EXPECT_EQ(Read(file_), other);
}

TEST_F(Disk, AFileThatHoldsWhatWouldBeSavedIsNoQuestion) {
  Change();
  Replace(ours_);
  EXPECT_TRUE(window_->Save());
  EXPECT_TRUE(prompts_.questions.isEmpty());
  EXPECT_FALSE(window_->isWindowModified());
}

TEST_F(Disk, ARemovedFileIsSavedAgainWithANotice) {
  Change();
  ASSERT_TRUE(QFile::remove(file_));
  EXPECT_TRUE(window_->Save());
  EXPECT_TRUE(prompts_.questions.isEmpty());
  EXPECT_EQ(Read(file_), ours_);
  EXPECT_NE(Told().find("saved again"), std::string::npos) << Told();
}

TEST_F(Disk, SaveAsUnderTheSameNameAsksToo) {
  Change();
  Replace(Theirs);
  prompts_.fileName = file_;
  EXPECT_FALSE(window_->SaveAs());
  EXPECT_EQ(prompts_.questions.size(), 1);
  EXPECT_EQ(Read(file_), Theirs);
}

TEST_F(Disk, SaveAsUnderAnotherNameLeavesTheForeignChangeAlone) {
  Change();
  Replace(Theirs);
  prompts_.fileName = folder_.filePath(QStringLiteral("other.dfm"));
  EXPECT_TRUE(window_->SaveAs());
  EXPECT_EQ(Read(file_), Theirs);
  EXPECT_EQ(Read(prompts_.fileName), ours_);
  EXPECT_TRUE(prompts_.questions.isEmpty());
}

TEST_F(Disk, SaveOnClosingKeepsTheWindowWhenTheQuestionIsCancelled) {
  Change();
  Replace(Theirs);
  prompts_.answer = TAnswer::Yes;
  EXPECT_FALSE(window_->close());
  EXPECT_EQ(prompts_.questions.size(), 2);
  EXPECT_EQ(Read(file_), Theirs);
}

// --- Coming back to the window

TEST_F(Disk, ComingBackTellsOnceAndAsksNothing) {
  ComeBack();
  EXPECT_EQ(Told(), "");
  Replace(Theirs);
  ComeBack();
  EXPECT_NE(Told().find("main.dfm"), std::string::npos);
  ClickOnBar("messageClose");
  EXPECT_EQ(Told(), "");
  ComeBack();
  EXPECT_EQ(Told(), "");
  Replace(QByteArray(Theirs).replace("'Theirs'", "'Later'"));
  ComeBack();
  EXPECT_NE(Told(), "");
  EXPECT_TRUE(prompts_.questions.isEmpty());
}

TEST_F(Disk, TheBarReloads) {
  Replace(Theirs);
  ComeBack();
  ClickOnBar("reloadChanged");
  EXPECT_TRUE(prompts_.confirmations.isEmpty());
  EXPECT_EQ(Caption(), "Theirs");
  EXPECT_EQ(Told(), "");
  ComeBack();
  EXPECT_EQ(Told(), "");
}

TEST_F(Disk, TheBarSaysThatReloadingGivesUpChanges) {
  Change();
  Replace(Theirs);
  ComeBack();
  EXPECT_NE(Told().find("gives up"), std::string::npos) << Told();
}

TEST_F(Disk, ReloadOnTheBarAsksBeforeItGivesUpChanges) {
  Change();
  Replace(Theirs);
  ComeBack();
  prompts_.confirm = false;
  ClickOnBar("reloadChanged");
  EXPECT_EQ(Session().Bytes(), ours_);
  EXPECT_NE(Told(), "");
  prompts_.confirm = true;
  ClickOnBar("reloadChanged");
  EXPECT_EQ(Caption(), "Theirs");
  EXPECT_EQ(prompts_.confirmations.size(), 2);
}

TEST_F(Disk, TheBarShowsBothVersions) {
  Change();
  Replace(Theirs);
  ComeBack();
  ChooseInView("overwrite", "'Theirs'", "'Main'");
  ClickOnBar("showBoth");
  EXPECT_EQ(Read(file_), ours_);
  EXPECT_TRUE(prompts_.questions.isEmpty());
  EXPECT_FALSE(window_->isWindowModified());
}

TEST_F(Disk, AFileThatIsAsItWasAgainTakesTheBarAway) {
  Replace(Theirs);
  ComeBack();
  ASSERT_NE(Told(), "");
  Replace(Sample);
  ComeBack();
  EXPECT_EQ(Told(), "");
}

TEST_F(Disk, ARemovedFileIsToldAndCanBeSavedThoughNothingChangedHere) {
  ASSERT_TRUE(QFile::remove(file_));
  EXPECT_FALSE(Action("save").isEnabled());
  ComeBack();
  EXPECT_NE(Told().find("removed"), std::string::npos) << Told();
  EXPECT_TRUE(Action("save").isEnabled());
  ClickOnBar("saveAgain");
  EXPECT_EQ(Read(file_), Sample);
  EXPECT_FALSE(Action("save").isEnabled());
}

TEST_F(Disk, AnotherFormTakesTheBarAway) {
  Replace(Theirs);
  ComeBack();
  ASSERT_NE(Told(), "");
  window_->NewForm();
  EXPECT_EQ(Told(), "");
  ComeBack();
  EXPECT_EQ(Told(), "");
}

TEST_F(Disk, OpeningAFormTakesAwayWhatADeadProcessLeft) {
  const QString leftover = folder_.filePath(QStringLiteral(".main.dfm.0123456789abcdef.vrxsave"));
  Write(leftover, "half a fo");
  ASSERT_TRUE(window_->OpenForm(file_));
  EXPECT_FALSE(QFile::exists(leftover));
}
