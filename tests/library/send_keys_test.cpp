// Keys for real windows, read back key by key; and what a sender does when the desktop does not play along.
#include "library/components/SendKeys.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <QTest>
#include <csignal>

#include "tests/support/FakeDesktop.h"
#include "tests/support/OwnXServer.h"

namespace {
// One key or one window takes far less, on a slow and busy machine, too.
constexpr int Patience = 60'000;  // milliseconds
const QString Reader = QStringLiteral(VRX_BINARY_DIR "/bin/keyreader");

// A window system of its own, without a window manager.
class RealWindows : public testing::Test {
 protected:
  void SetUp() override {
    if (!OwnXServer::IsInstalled()) GTEST_SKIP() << "Xvfb is not installed";
    server_.emplace();
    sender_.Set(TVRXSendKeys::RaiseException, true);
    sender_.Set(TVRXSendKeys::Timeout, Patience);
  }
  void TearDown() override {
    readers_.clear();
    server_.reset();
  }

  struct Window {
    QProcess process;
    QByteArray text;
    ~Window() {
      process.kill();
      process.waitForFinished(Patience);
    }
    // Up to that line; the lines before it.
    QStringList Until(const char* line) {
      for (;;) {
        const qsizetype end = text.indexOf(line);
        if (end >= 0) {
          const QStringList lines = QString::fromLatin1(text.left(end)).split(u'\n', Qt::SkipEmptyParts);
          text = text.mid(end + qstrlen(line));
          return lines;
        }
        if (!process.waitForReadyRead(Patience)) break;
        text += process.readAllStandardOutput();
      }
      ADD_FAILURE() << "the window ended: " << text.toStdString();
      return {};
    }
  };
  Window& Open(const QString& title, const QStringList& options = {}) {
    auto& window = readers_.emplace_back(std::make_unique<Window>());
    window->process.start(Reader, QStringList{QStringLiteral("--tell")} + options + QStringList{title});
    window->Until("ready\n");
    return *window;
  }
  // What the window gets of a macro, behind which a key is pressed that nothing else has.
  std::string Typed(Window& window, const QString& macro) {
    EXPECT_TRUE(sender_.SendKeys(macro + QStringLiteral("{F12}"), true));
    const QStringList lines = window.Until("down F12\n");
    window.Until("up F12\n");
    return lines.join(u',').toStdString();
  }
  // The same without what is said of releasing keys.
  std::string Pressed(Window& window, const QString& macro) {
    QStringList keys;
    for (const QString& line : QString::fromStdString(Typed(window, macro)).split(u','))
      if (line.startsWith(u"down ")) keys << line.mid(5);
    return keys.join(u',').toStdString();
  }

  TVRXSendKeys sender_{nullptr};

 private:
  std::optional<OwnXServer> server_;
  std::vector<std::unique_ptr<Window>> readers_;
};
}  // namespace

TEST_F(RealWindows, GetEveryKeyOfTheTable) {
  Window& window = Open(QStringLiteral("Every key"));
  ASSERT_TRUE(sender_.AppActivate(QStringLiteral("Every key")));
  int tried = 0;
  for (const TVRXSupportedKey& key : VRXSupportedKeys()) {
    if (key.Key.size() == 1 && key.Key != u'~') continue;
    if (key.Key == QStringLiteral("{F12}")) continue;  // ends every reading
    const QByteArray symbol = VRXReadKeyMacro(key.Key).first().Key;
    const QString name = QString::fromLatin1(symbol);
    const QString locks = key.Key == QStringLiteral("{CAPSLOCK}") ? QStringLiteral(" Lock") : QString();
    QString expected = QStringLiteral("down %1,up %1%2").arg(name, locks);
    if (!locks.isEmpty()) expected += QStringLiteral(",down %1 Lock,up %1 Lock").arg(name);
    const QString macro = locks.isEmpty() ? key.Key : key.Key + key.Key;
    EXPECT_EQ(Typed(window, macro), expected.toStdString()) << key.Key.toStdString();
    ++tried;
  }
  EXPECT_EQ(tried, 42);
}

TEST_F(RealWindows, GetModifiersGroupsRepeatsAndLetters) {
  Window& window = Open(QStringLiteral("Letters"));
  ASSERT_TRUE(sender_.AppActivate(QStringLiteral("Letters")));
  EXPECT_EQ(Typed(window, QStringLiteral("a")), "down a,up a");
  EXPECT_EQ(Pressed(window, QStringLiteral("aZ7;")), "a,Shift_L,Z Shift,7,semicolon");
  EXPECT_EQ(Typed(window, QStringLiteral("+a")), "down Shift_L,down A Shift,up A Shift,up Shift_L Shift");
  EXPECT_EQ(Typed(window, QStringLiteral("^(bc)")),
            "down Control_L,down b Control,up b Control,down c Control,up c Control,up Control_L Control");
  EXPECT_EQ(Pressed(window, QStringLiteral("%+{F4}")), "Alt_L,Shift_L Alt,F4 Shift Alt");
  EXPECT_EQ(Pressed(window, QStringLiteral("{x 3}~")), "x,x,x,Return");
  EXPECT_EQ(Pressed(window, QStringLiteral("{{}{}}")), "Shift_L,braceleft Shift,Shift_L,braceright Shift");
  EXPECT_EQ(Pressed(window, QStringLiteral("1{TAB}\n")), "1,Tab,Return");
}

TEST_F(RealWindows, GetCharactersThatNoKeyTypes) {
  Window& window = Open(QStringLiteral("Letters"));
  ASSERT_TRUE(sender_.AppActivate(QStringLiteral("Letters")));
  EXPECT_EQ(Pressed(window, QStringLiteral("\u00E9a\u20ACb\u00E9")), "eacute,a,U20AC,b,eacute");
  EXPECT_EQ(Pressed(window, QStringLiteral("+\u20AC{\u0416 2}")), "Shift_L,U20AC Shift,U0416,U0416");
  // More of them than there are keys to spare.
  QString many;
  QStringList expected;
  for (char16_t c = 0x3041; c < 0x3041 + 60; ++c) {
    many += QChar(c);
    expected << QStringLiteral("U%1").arg(c, 4, 16, QChar(u'0')).toUpper();
  }
  EXPECT_EQ(Pressed(window, many), expected.join(u',').toStdString());
}

TEST_F(RealWindows, AreFoundByCaptionAndByItsBeginning) {
  Window& long1 = Open(QStringLiteral("Notes of Monday"));
  Window& short1 = Open(QStringLiteral("Notes"));
  Window& other = Open(QStringLiteral("Caf\u00E9 \u20AC"), {QStringLiteral("--child")});
  ASSERT_TRUE(sender_.AppActivate(QStringLiteral("Notes")));
  EXPECT_EQ(Pressed(short1, QStringLiteral("1")), "1");
  ASSERT_TRUE(sender_.AppActivate(QStringLiteral("notes OF")));
  EXPECT_EQ(Pressed(long1, QStringLiteral("2")), "2");
  ASSERT_TRUE(sender_.AppActivate(QStringLiteral("Caf\u00E9")));
  EXPECT_EQ(Pressed(other, QStringLiteral("3")), "3") << "a window in the window has the keyboard";
  EXPECT_EQ(Pressed(other, QStringLiteral("4")), "4");
  EXPECT_THROW(sender_.AppActivate(QStringLiteral("otes")), ESendKeysError);
  EXPECT_TRUE(sender_.LastError().contains(QStringLiteral("\"otes\"")));
  QStringList captions;
  bool came = false;
  sender_.BeginWindows([&](const QStringList& all, const QString& error) {
    EXPECT_EQ(error, QString());
    captions = all;
    came = true;
  });
  EXPECT_FALSE(came) << "it waits for nothing";
  ASSERT_TRUE(QTest::qWaitFor([&] { return came; }, Patience));
  captions.sort();
  EXPECT_EQ(captions.join(u'|').toStdString(), "Caf\u00E9 \u20AC|Notes|Notes of Monday");
}

TEST_F(RealWindows, WithoutACaptionAreNotListedAndOfLongOnesTheBeginningIs) {
  Open(QString(300, u'x'));
  Open(QStringLiteral(" "));
  Window& nameless = Open(QString());
  EXPECT_TRUE(sender_.AppActivate(QString(300, u'x').left(255)));
  QStringList captions;
  bool came = false;
  sender_.BeginWindows([&](const QStringList& all, const QString&) {
    captions = all;
    came = true;
  });
  ASSERT_TRUE(QTest::qWaitFor([&] { return came; }, Patience));
  captions.sort();
  EXPECT_EQ(captions.join(u'|').toStdString(), " |" + std::string(255, 'x'));
  nameless.process.kill();
}

TEST_F(RealWindows, KeysThatWereBorrowedAreGivenBack) {
  Window& window = Open(QStringLiteral("Letters"));
  const auto type = [&](char16_t first) {
    TVRXSendKeys sender(nullptr);
    sender.Set(TVRXSendKeys::RaiseException, true);
    sender.Set(TVRXSendKeys::Timeout, Patience);
    ASSERT_TRUE(sender.AppActivate(QStringLiteral("Letters")));
    // As many as there are keys to spare, at least.
    QString many;
    QStringList expected, keys;
    for (char16_t c = first; c < first + 60; ++c) {
      many += QChar(c);
      expected << QStringLiteral("U%1").arg(c, 4, 16, QChar(u'0')).toUpper();
    }
    EXPECT_TRUE(sender.SendKeys(many + QStringLiteral("{F12}"), true));
    for (const QString& line : window.Until("down F12\n"))
      if (line.startsWith(u"down ")) keys << line.mid(5);
    window.Until("up F12\n");
    EXPECT_EQ(keys.join(u',').toStdString(), expected.join(u',').toStdString());
  };
  type(0x3041);
  type(0x4E00);
}

TEST_F(RealWindows, OfStartedProgramsAreFound) {
  EXPECT_TRUE(sender_.Shell(Reader));
  EXPECT_EQ(sender_.AppCaption(), QStringLiteral("Key reader"));
  EXPECT_EQ(sender_.AppFileName(), Reader);
  EXPECT_TRUE(sender_.AppActivate(sender_.AppCaption()));
  EXPECT_THROW(sender_.Shell(QStringLiteral("/no/such/program")), ESendKeysError);
  EXPECT_TRUE(sender_.LastError().contains(QStringLiteral("/no/such/program")));
  EXPECT_THROW(sender_.Shell(QStringLiteral(VRX_SOURCE_DIR "/README.md")), ESendKeysError);
  // A program without a window.
  sender_.Set(TVRXSendKeys::Timeout, 1000);
  sender_.Set(TVRXSendKeys::RaiseException, false);
  EXPECT_FALSE(sender_.Shell(QStringLiteral("/bin/true")));
  EXPECT_TRUE(sender_.LastError().contains(QStringLiteral("no window"))) << sender_.LastError().toStdString();
  EXPECT_EQ(sender_.AppFileName(), Reader) << "what was started is still that";
}

TEST_F(RealWindows, ThatAreGoneGetNoKeys) {
  {
    Window& window = Open(QStringLiteral("Short life"));
    Open(QStringLiteral("Another"));
    ASSERT_TRUE(sender_.AppActivate(QStringLiteral("Short life")));
    window.process.kill();
    window.process.waitForFinished(Patience);
  }
  sender_.Set(TVRXSendKeys::Timeout, 50);
  EXPECT_THROW(sender_.SendKeys(QStringLiteral("abc"), true), ESendKeysError);
  EXPECT_TRUE(sender_.LastError().contains(QStringLiteral("0 of 3 keys")))
      << sender_.LastError().toStdString();
  EXPECT_TRUE(sender_.AppActivate(QStringLiteral("Another"))) << "and nothing else is broken by that";
}

TEST(SendKeys, WithoutAnXDisplayItSaysSo) {
  const QByteArray before = qgetenv("DISPLAY");
  qunsetenv("DISPLAY");
  TVRXSendKeys sender(nullptr);
  EXPECT_FALSE(sender.AppActivate(QStringLiteral("Anything")));
  EXPECT_TRUE(sender.LastError().contains(QStringLiteral("no X display")));
  qputenv("DISPLAY", ":no-such-display");
  EXPECT_FALSE(sender.SendKeys(QStringLiteral("a"), true));
  EXPECT_TRUE(sender.LastError().contains(QStringLiteral(":no-such-display")));
  sender.Set(TVRXSendKeys::RaiseException, true);
  EXPECT_THROW(sender.Shell(QStringLiteral("/bin/true")), ESendKeysError);
  before.isEmpty() ? qunsetenv("DISPLAY") : qputenv("DISPLAY", before);
}

TEST(SendKeys, AWindowIsMeantByItsCaptionFirst) {
  const std::vector<TVRXDesktopWindow> windows{{1, QStringLiteral("Editor - a"), 0},
                                               {2, QStringLiteral("EDITOR"), 0},
                                               {3, QStringLiteral("editor"), 0},
                                               {4, QStringLiteral("Editor"), 0},
                                               {5, QStringLiteral("editor b"), 0}};
  const auto found = [&](const char* caption) {
    const TVRXDesktopWindow* window = VRXFindWindow(windows, QString::fromLatin1(caption));
    return window ? window->Id : 0;
  };
  EXPECT_EQ(found("Editor"), 4u);
  EXPECT_EQ(found("EDITOR"), 2u);
  EXPECT_EQ(found("eDITOR"), 2u);
  EXPECT_EQ(found("editor "), 5u);
  EXPECT_EQ(found("Edi"), 1u);
  EXPECT_EQ(found("EDITOR -"), 1u);
  EXPECT_EQ(found("itor"), 0u);
  EXPECT_EQ(found(""), 0u);
}

namespace {
class Sending : public testing::Test {
 protected:
  void SetUp() override {
    SetDesktopMaker([this] { return std::make_unique<FakeDesktop>(scene_); });
    sender_->Set(TVRXSendKeys::RaiseException, true);
    sender_->Set(TVRXSendKeys::Timeout, 0);
  }
  void TearDown() override {
    sender_.reset();
    SetDesktopMaker({});
  }
  std::string Done() const { return scene_.done.join(u' ').toStdString(); }
  Scene scene_;
  std::unique_ptr<TVRXSendKeys> sender_ = std::make_unique<TVRXSendKeys>(nullptr);
};
}  // namespace

TEST_F(Sending, FindsMistakesBeforeAnythingIsSent) {
  EXPECT_THROW(sender_->SendKeys(QStringLiteral("ab{"), true), EKeyMacroError);
  EXPECT_THROW(sender_->SendKeys(QStringLiteral("ab{"), false), EKeyMacroError);
  EXPECT_THROW(sender_->BeginSend(QStringLiteral("Fake"), QStringLiteral("ab{"), {}), EKeyMacroError);
  sender_->Set(TVRXSendKeys::RaiseException, false);
  EXPECT_FALSE(sender_->SendKeys(QStringLiteral("ab)"), true));
  EXPECT_TRUE(sender_->LastError().startsWith(QStringLiteral("Place 3")));
  EXPECT_EQ(Done(), "");
}

TEST_F(Sending, StopsWhenTheKeyboardGoesElsewhereAndHoldsNothing) {
  ASSERT_TRUE(sender_->AppActivate(QStringLiteral("Fake")));
  scene_.press = [this](const QByteArray& key) {
    if (key == "U0062") scene_.keyboard = false;
  };
  EXPECT_THROW(sender_->SendKeys(QStringLiteral("^+(abcd)"), true), ESendKeysError);
  EXPECT_EQ(Done(), "down Control_L down Shift_L U0061 U0062 up Shift_L up Control_L");
  EXPECT_TRUE(sender_->LastError().contains(QStringLiteral("2 of 4 keys")))
      << sender_->LastError().toStdString();
}

TEST_F(Sending, GoesOnElsewhereWhenItIsToldTo) {
  ASSERT_TRUE(sender_->AppActivate(QStringLiteral("Fake")));
  scene_.keyboard = false;
  sender_->Set(TVRXSendKeys::KeepTarget, false);
  EXPECT_TRUE(sender_->SendKeys(QStringLiteral("ab"), true));
  EXPECT_EQ(Done(), "U0061 U0062");
}

TEST_F(Sending, AWindowThatDoesNotTakeTheKeyboardIsAnError) {
  scene_.keyboard = false;
  EXPECT_THROW(sender_->AppActivate(QStringLiteral("Fake")), ESendKeysError);
  EXPECT_TRUE(sender_->LastError().contains(QStringLiteral("\"Fake\"")));
}

TEST_F(Sending, TheLockOfCapitalsIsTakenOffMeanwhileUnlessTheMacroTurnsIt) {
  scene_.locked = true;
  EXPECT_TRUE(sender_->SendKeys(QStringLiteral("a"), true));
  EXPECT_EQ(Done(), "U0061 Caps_Lock");
  scene_.done.clear();
  EXPECT_TRUE(sender_->SendKeys(QStringLiteral("{CAPSLOCK}a"), true));
  EXPECT_EQ(Done(), "Caps_Lock U0061");
}

TEST_F(Sending, NobodyWaitsForASlowDesktop) {
  QSemaphore begun, goOn;
  scene_.press = [&](const QByteArray&) {
    begun.release();
    goOn.acquire();
  };
  bool told = false;
  sender_->BeginSend(QStringLiteral("Fake"), QStringLiteral("ab"), [&](const QString& error) {
    EXPECT_EQ(error, QString());
    told = true;
  });
  ASSERT_TRUE(begun.tryAcquire(1, Patience));  // the first key is on its way, and this thread is free
  EXPECT_TRUE(sender_->IsBusy());
  QCoreApplication::processEvents();
  EXPECT_FALSE(told);
  goOn.release(2);
  ASSERT_TRUE(QTest::qWaitFor([&] { return told; }, Patience));
  EXPECT_EQ(Done(), "U0061 U0062");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !sender_->IsBusy(); }, Patience));
}

TEST_F(Sending, WithoutWaitingIsDoneInTurn) {
  EXPECT_TRUE(sender_->SendKeys(QStringLiteral("a"), false));
  EXPECT_TRUE(sender_->SendKeys(QStringLiteral("b"), false));
  EXPECT_TRUE(sender_->SendKeys(QStringLiteral("c"), true));
  EXPECT_EQ(Done(), "U0061 U0062 U0063");
}

TEST_F(Sending, CanBeStopped) {
  QSemaphore begun, goOn;
  scene_.press = [&](const QByteArray&) {
    begun.release();
    goOn.acquire();
  };
  QStringList errors;
  const auto note = [&](const QString& error) { errors << error; };
  sender_->BeginSend(QStringLiteral("Fake"), QStringLiteral("+(abc)"), note);
  sender_->BeginSend(QStringLiteral("Fake"), QStringLiteral("d"), note);
  ASSERT_TRUE(begun.tryAcquire(1, Patience));
  sender_->Stop();
  goOn.release(10);
  ASSERT_TRUE(QTest::qWaitFor([&] { return errors.size() == 2; }, Patience));
  EXPECT_EQ(errors.join(u'|'), QStringLiteral("It was stopped.|It was stopped."));
  EXPECT_EQ(Done(), "down Shift_L U0061 up Shift_L");
}

TEST_F(Sending, FreedMeanwhileItTellsNobody) {
  QSemaphore begun, goOn;
  scene_.press = [&](const QByteArray&) {
    begun.release();
    goOn.acquire();
  };
  bool told = false;
  sender_->BeginSend(QStringLiteral("Fake"), QStringLiteral("abc"), [&](const QString&) { told = true; });
  ASSERT_TRUE(begun.tryAcquire(1, Patience));
  goOn.release(1);
  sender_.reset();
  goOn.release(10);
  ASSERT_TRUE(scene_.gone.tryAcquire(1, Patience));
  for (int i = 0; i < 10; ++i) QCoreApplication::processEvents();
  EXPECT_FALSE(told);
}
