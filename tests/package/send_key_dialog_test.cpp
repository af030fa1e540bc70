// The editor that tries keystroke macros out.
#include "package/dialogs/pVRXSendKeyEditorDlg.h"

#include <gtest/gtest.h>

#include "designintf/DesignRegistry.h"
#include "package/component_editors/pVRXCEBars.h"
#include "package/dialogs/LinesTable.h"
#include "rtl/Registry.h"
#include "tests/designintf/DesignTest.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/Fields.h"
#include "tests/support/Modal.h"
#include "tests/support/Prompted.h"

namespace {
// One answer of the worker takes far less, on a slow and busy machine, too.
constexpr int Patience = 60'000;  // milliseconds
constexpr char Key[] = "SOFTWARE\\Orlenvo\\Orlenvo-Kit 2025";

class SendKeyDialog : public testing::Test {
 protected:
  void SetUp() override {
    scene.windows = {{7, QStringLiteral("Notes of Monday"), 0}, {8, QStringLiteral("Mail"), 0}};
    SetDesktopMaker([this] { return std::make_unique<FakeDesktop>(scene); });
    TRegIniFile(QString::fromLatin1(Key)).EraseSection(QStringLiteral("TVRXSendKey"));
  }
  void TearDown() override { SetDesktopMaker({}); }
  // An open dialog that has listed the windows.
  struct Open {
    explicit Open(SendKeyDialog& test) : test_(test) {
      fields::ShowActive(dlg);
      Settle();
    }
    ~Open() {
      dlg.sk.reset();
      test_.scene.gone.tryAcquire(1, Patience);
    }
    Open(const Open&) = delete;
    Open& operator=(const Open&) = delete;
    void Settle() {
      // What the worker tells comes behind its end.
      ASSERT_TRUE(QTest::qWaitFor([this] { return !dlg.sk->IsBusy(); }, Patience));
      QCoreApplication::processEvents();
      QCoreApplication::processEvents();
    }
    TVRXSendKeyEditorDlg dlg{nullptr};

   private:
    SendKeyDialog& test_;
  };
  static void DoubleClick(QAbstractItemView& view, int row) {
    const QRect rect = view.visualRect(view.model()->index(row, 0));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, rect.center());
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, rect.center());
  }
  QString Setting(const char* name) const {
    return TRegIniFile(QString::fromLatin1(Key))
        .ReadString(QStringLiteral("TVRXSendKey"), QString::fromLatin1(name), QStringLiteral("none"));
  }
  Scene scene;
  ScriptedPrompts prompts;
};
}  // namespace

TEST_F(SendKeyDialog, ADoubleClickInsertsTheKeyAtTheCaret) {
  Open open(*this);
  auto& dlg = open.dlg;
  dlg.m->setPlainText(QStringLiteral("ab"));
  dlg.m->moveCursor(QTextCursor::Start);
  dlg.m->moveCursor(QTextCursor::Right);
  EXPECT_EQ(dlg.lb2->model()->rowCount(), 46);
  EXPECT_EQ(dlg.lb2->model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Key"));
  EXPECT_EQ(dlg.lb2->model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Description"));
  dlg.lb2DblClick();
  EXPECT_EQ(dlg.m->toPlainText(), QStringLiteral("ab")) << "no row is selected";
  DoubleClick(*dlg.lb2, 0);
  EXPECT_EQ(dlg.m->toPlainText(), QStringLiteral("a+b"));
  EXPECT_TRUE(dlg.m->hasFocus());
  dlg.lb2->scrollToBottom();
  DoubleClick(*dlg.lb2, 45);
  EXPECT_EQ(dlg.m->toPlainText(), QStringLiteral("a+{F16}b"));
  dlg.lb2->setFocus();
  QTest::keyClick(dlg.lb2, Qt::Key_Return);
  EXPECT_EQ(dlg.m->toPlainText(), QStringLiteral("a+{F16}{F16}b"));
  EXPECT_TRUE(scene.done.isEmpty()) << "Return in the list sends nothing";
}

TEST_F(SendKeyDialog, ListsTheWindowsAndTakesOne) {
  Open open(*this);
  auto& dlg = open.dlg;
  ASSERT_EQ(dlg.lb->count(), 2);
  dlg.pages->setCurrentIndex(1);
  dlg.lbDblClick();
  EXPECT_EQ(dlg.wnd->text(), QString()) << "no line is selected";
  DoubleClick(*dlg.lb, 1);
  EXPECT_EQ(dlg.wnd->text(), QStringLiteral("Mail"));
  EXPECT_TRUE(dlg.m->hasFocus());
  scene.windows.push_back({9, QStringLiteral("New"), 0});
  dlg.Update->click();
  open.Settle();
  EXPECT_EQ(dlg.lb->count(), 3);
  EXPECT_EQ(dlg.lb->item(2)->text(), QStringLiteral("New"));
}

TEST_F(SendKeyDialog, SendsTheMacroToTheWindow) {
  Open open(*this);
  auto& dlg = open.dlg;
  dlg.m->setPlainText(QStringLiteral("+a~"));
  dlg.wnd->setText(QStringLiteral("Notes"));
  dlg.Button3->click();
  EXPECT_FALSE(dlg.Button3->isEnabled());
  open.Settle();
  EXPECT_EQ(scene.done.join(u' ').toStdString(), "down Shift_L U0061 up Shift_L Return");
  EXPECT_EQ(dlg.state->text(), QStringLiteral("Sent: 2 keys"));
  EXPECT_TRUE(dlg.Button3->isEnabled());
  EXPECT_TRUE(prompts.warned.isEmpty());
}

TEST_F(SendKeyDialog, TellsWhatIsWrong) {
  Open open(*this);
  auto& dlg = open.dlg;
  dlg.m->setPlainText(QStringLiteral("a{NO}"));
  EXPECT_TRUE(dlg.state->text().startsWith(QStringLiteral("Place 3 of the macro")));
  dlg.wnd->setText(QStringLiteral("Mail"));
  dlg.Button3->click();
  ASSERT_EQ(prompts.warned.size(), 1);
  EXPECT_EQ(prompts.warned[0], dlg.state->text());
  EXPECT_TRUE(dlg.Button3->isEnabled());
  dlg.m->setPlainText(QStringLiteral("a"));
  EXPECT_EQ(dlg.state->text(), QString());
  for (const char* caption : {"No such window", ""}) {
    dlg.wnd->setText(QString::fromLatin1(caption));
    dlg.Button3->click();
    open.Settle();
  }
  ASSERT_EQ(prompts.warned.size(), 3);
  EXPECT_TRUE(prompts.warned[1].contains(QStringLiteral("No such window")));
  EXPECT_TRUE(scene.done.isEmpty());
  EXPECT_TRUE(dlg.isVisible());
}

TEST_F(SendKeyDialog, ASlowDesktopDoesNotStopIt) {
  QSemaphore begun, goOn;
  scene.press = [&](const QByteArray&) {
    begun.release();
    goOn.acquire();
  };
  Open open(*this);
  auto& dlg = open.dlg;
  dlg.m->setPlainText(QStringLiteral("abc"));
  dlg.wnd->setText(QStringLiteral("Mail"));
  dlg.Button3->click();
  ASSERT_TRUE(begun.tryAcquire(1, Patience));
  dlg.m->moveCursor(QTextCursor::End);
  QTest::keyClicks(dlg.m, QStringLiteral("d"));
  EXPECT_EQ(dlg.m->toPlainText(), QStringLiteral("abcd")) << "it can be typed in meanwhile";
  dlg.Close->click();
  EXPECT_FALSE(dlg.isVisible());
  goOn.release(10);
}

TEST_F(SendKeyDialog, AProgramThatDoesNotStartLeavesNoWindow) {
  Open open(*this);
  auto& dlg = open.dlg;
  dlg.wnd->setText(QStringLiteral("Mail"));
  dlg.Button1->click();
  EXPECT_EQ(dlg.wnd->text(), QStringLiteral("Mail")) << "no file was chosen";
  prompts.file = QStringLiteral("/no/such/program");
  dlg.Button1->click();
  open.Settle();
  EXPECT_EQ(dlg.wnd->text(), QString());
  EXPECT_TRUE(dlg.state->text().contains(prompts.file)) << dlg.state->text().toStdString();
  EXPECT_TRUE(dlg.Button1->isEnabled());
}

TEST_F(SendKeyDialog, AStartedProgramsWindowIsTaken) {
  Open open(*this);
  auto& dlg = open.dlg;
  prompts.file = QStringLiteral("/bin/true");
  // A window more whenever somebody looks.
  class Growing : public FakeDesktop {
   public:
    explicit Growing(Scene& s) : FakeDesktop(s), scene_(s) {}
    std::vector<TVRXDesktopWindow> Windows() override {
      const auto now = scene_.windows;
      scene_.windows.push_back({20 + now.size(), QStringLiteral("Started"), 0});
      return now;
    }

   private:
    Scene& scene_;
  };
  dlg.sk = std::make_unique<TVRXSendKeys>(nullptr);
  SetDesktopMaker([this] { return std::make_unique<Growing>(scene); });
  dlg.Button1->click();
  open.Settle();
  open.Settle();
  EXPECT_EQ(dlg.wnd->text(), QStringLiteral("Started"));
  EXPECT_GE(dlg.lb->findItems(QStringLiteral("Started"), Qt::MatchExactly).size(), 1);
  prompts.file = QStringLiteral("/no/such/program");
  dlg.Button1->click();
  open.Settle();
  EXPECT_EQ(dlg.wnd->text(), QString()) << "one that failed has none, whatever was started before";
  dlg.last->setChecked(true);
  dlg.Close->click();
  EXPECT_EQ(Setting("filename"), prompts.file);
  EXPECT_TRUE(TRegIniFile(QString::fromLatin1(Key))
                  .ReadBool(QStringLiteral("TVRXSendKey"), QStringLiteral("LoadLast"), false));
}

TEST_F(SendKeyDialog, RemembersTheLastProgramOnlyWhenToldTo) {
  TRegIniFile settings(QString::fromLatin1(Key));
  settings.WriteBool(QStringLiteral("TVRXSendKey"), QStringLiteral("LoadLast"), true);
  settings.WriteString(QStringLiteral("TVRXSendKey"), QStringLiteral("FILENAME"),
                       QStringLiteral("/no/such/program"));
  {
    Open open(*this);
    EXPECT_TRUE(open.dlg.last->isChecked());
    EXPECT_TRUE(open.dlg.state->text().contains(QStringLiteral("/no/such/program")))
        << "it was to be started";
    EXPECT_EQ(open.dlg.wnd->text(), QString());
    open.dlg.reject();
  }
  EXPECT_EQ(Setting("FileName"), QStringLiteral("/no/such/program"));
  {
    Open open(*this);
    open.dlg.last->setChecked(false);
    open.dlg.reject();
  }
  EXPECT_EQ(Setting("FileName"), QString());
  Open open(*this);
  EXPECT_FALSE(open.dlg.last->isChecked());
  EXPECT_EQ(open.dlg.state->text(), QString());
}

TEST_F(SendKeyDialog, TheVerbOpensItWithWhatTheComponentHas) {
  TVRXSendKeys keys(nullptr);
  keys.Set(TVRXSendKeys::Keys, QStringLiteral("a{TAB}"));
  keys.Set(TVRXSendKeys::WindowCaption, QStringLiteral("Mail"));
  FakeDesigner designer;
  TVRXSendKeyComponentEditor editor(&keys, &designer);
  ASSERT_EQ(editor.GetVerbCount(), 1);
  EXPECT_EQ(editor.GetVerb(0), QStringLiteral("SendKeys Test-Editor"));
  for (const bool doubleClick : {false, true}) {
    modal::NextOf<TVRXSendKeyEditorDlg>([](TVRXSendKeyEditorDlg& dlg) {
      EXPECT_EQ(dlg.m->toPlainText(), QStringLiteral("a{TAB}"));
      EXPECT_EQ(dlg.wnd->text(), QStringLiteral("Mail"));
      dlg.m->setPlainText(QStringLiteral("other"));
      dlg.reject();
    });
    doubleClick ? editor.Edit() : editor.ExecuteVerb(0);
    ASSERT_TRUE(scene.gone.tryAcquire(1, Patience));
  }
  EXPECT_EQ(keys.Get(TVRXSendKeys::Keys), QStringLiteral("a{TAB}"));
  EXPECT_EQ(designer.modified, 0);
}
