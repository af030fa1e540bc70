// Keys of the whole desktop, pressed for real.
#include "library/components/GlobalHotKey.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>

#include "library/keys/XDesktop.h"
#include "library/keys/XKeyGrab.h"
#include "tests/support/OwnXServer.h"

namespace {
class HotKeys : public testing::Test {
 protected:
  void SetUp() override {
    if (!OwnXServer::IsInstalled()) GTEST_SKIP() << "Xvfb is not installed";
    server_.emplace();
    desktop_ = OpenXDesktop();
    key_.SetName(QStringLiteral("Boss"));
    Ask(key_, "Ctrl+Alt+K");
  }
  void TearDown() override {
    key_.Stop();
    desktop_.reset();
    server_.reset();
  }
  static void Ask(TVRXGlobalHotKey& key, const char* text) {
    key.Set(TVRXGlobalHotKey::HotKey, TextToShortCut(QLatin1StringView(text)));
  }
  // With these keys held.
  void Press(const char* key, std::initializer_list<const char*> held) {
    for (const char* hold : held) desktop_->Hold(hold, 0);
    desktop_->Press(key, 0);
    for (const char* hold : held) desktop_->Release(hold, 0);
  }
  // Of what was pressed nothing is on its way any more once a last key has been heard.
  void Settle() {
    bool last = false;
    const XKeyGrab grab(TextToShortCut(QStringLiteral("Shift+F11")), [&] { last = true; });
    Press("F11", {"Shift_L"});
    EXPECT_TRUE(QTest::qWaitFor([&] { return last; }, WaitLimit));
    QCoreApplication::processEvents();
  }
  int CountAfter(const char* key, std::initializer_list<const char*> held) {
    heard_ = 0;
    Press(key, held);
    Settle();
    return heard_;
  }
  static std::string Refusal(TVRXGlobalHotKey& key) {
    try {
      key.Start([] {});
    } catch (const EHotKeyError& error) {
      return error.what();
    }
    return {};
  }
  std::optional<OwnXServer> server_;
  std::unique_ptr<IDesktop> desktop_;
  TVRXGlobalHotKey key_{nullptr};
  int heard_ = 0;
};
}  // namespace

TEST_F(HotKeys, AreHeardWithTheirModifiersAndNoOthers) {
  EXPECT_FALSE(key_.HasKey());
  key_.Start([this] { ++heard_; });
  EXPECT_TRUE(key_.HasKey());
  EXPECT_EQ(CountAfter("k", {"Control_L", "Alt_L"}), 1);
  EXPECT_EQ(CountAfter("k", {"Control_L"}), 0);
  EXPECT_EQ(CountAfter("k", {"Control_L", "Alt_L", "Shift_L"}), 0);
  EXPECT_EQ(CountAfter("j", {"Control_L", "Alt_L"}), 0);
}

TEST_F(HotKeys, AreHeardWhateverLocksAreOn) {
  key_.Start([this] { ++heard_; });
  for (const char* lock : {"Num_Lock", "Caps_Lock"}) {
    desktop_->Press(lock, 0);
    EXPECT_EQ(CountAfter("k", {"Control_L", "Alt_L"}), 1) << lock;
  }
  for (const char* lock : {"Num_Lock", "Caps_Lock"}) desktop_->Press(lock, 0);
}

TEST_F(HotKeys, AreOneEventAPress) {
  key_.Start([this] { ++heard_; });
  heard_ = 0;
  for (const char* hold : {"Control_L", "Alt_L", "k"}) desktop_->Hold(hold, 0);
  // The keyboard repeats what is held.
  QTest::qWait(900);
  for (const char* hold : {"k", "Alt_L", "Control_L"}) desktop_->Release(hold, 0);
  Settle();
  EXPECT_EQ(heard_, 1);
}

TEST_F(HotKeys, HaveTheirKeysFromEveryPartOfTheKeyboard) {
  const std::pair<const char*, const char*> rows[] = {
      {"Ctrl+7", "7"},          {"Ctrl+F12", "F12"},     {"Ctrl+PgDn", "Next"},
      {"Ctrl+Down", "Down"},    {"Ctrl+Del", "Delete"},  {"Ctrl+.", "period"},
      {"Ctrl+\\", "backslash"}, {"Ctrl+Space", "space"}, {"Ctrl+Num -", "KP_Subtract"}};
  for (const auto& [text, name] : rows) {
    Ask(key_, text);
    key_.Start([this] { ++heard_; });
    EXPECT_EQ(CountAfter(name, {"Control_L"}), 1) << text;
  }
}

TEST_F(HotKeys, AreGivenBackWhenTheyAreNotWanted) {
  key_.Start([this] { ++heard_; });
  key_.Set(TVRXGlobalHotKey::Enabled, false);
  EXPECT_FALSE(key_.HasKey());
  EXPECT_EQ(CountAfter("k", {"Control_L", "Alt_L"}), 0);
  key_.Set(TVRXGlobalHotKey::Enabled, true);
  EXPECT_EQ(CountAfter("k", {"Control_L", "Alt_L"}), 1);
  Ask(key_, "Ctrl+J");
  EXPECT_EQ(CountAfter("k", {"Control_L", "Alt_L"}), 0);
  EXPECT_EQ(CountAfter("j", {"Control_L"}), 1);
  key_.Stop();
  EXPECT_EQ(CountAfter("j", {"Control_L"}), 0);
  {
    TVRXGlobalHotKey other(nullptr);
    Ask(other, "Ctrl+J");
    other.Start([this] { ++heard_; });
    EXPECT_EQ(CountAfter("j", {"Control_L"}), 1);
  }
  Ask(key_, "Ctrl+J");
  EXPECT_EQ(Refusal(key_), "") << "the one that was freed has let it go";
}

TEST_F(HotKeys, BelongToOneAtATime) {
  key_.Start([] {});
  TVRXGlobalHotKey other(nullptr);
  Ask(other, "Ctrl+Alt+K");
  EXPECT_EQ(Refusal(other),
            "Ctrl+Alt+K is taken already, here or by another program. Choose another key, or free that one.");
  EXPECT_FALSE(other.HasKey());
  Ask(other, "Ctrl+J");
  other.Start([this] { ++heard_; });
  Ask(other, "Ctrl+Alt+K");
  EXPECT_FALSE(other.HasKey());
  EXPECT_TRUE(other.LastError().startsWith(QStringLiteral("Ctrl+Alt+K is taken")));
  key_.Stop();
  other.Set(TVRXGlobalHotKey::Enabled, false);
  other.Set(TVRXGlobalHotKey::Enabled, true);
  EXPECT_EQ(other.LastError(), QString());
  EXPECT_EQ(CountAfter("k", {"Control_L", "Alt_L"}), 1);
}

TEST_F(HotKeys, MayBeFreedByWhoHearsOfThem) {
  auto key = std::make_unique<TVRXGlobalHotKey>(nullptr);
  Ask(*key, "Ctrl+L");
  key->Start([&] {
    ++heard_;
    key.reset();
  });
  EXPECT_EQ(CountAfter("l", {"Control_L"}), 1);
  EXPECT_EQ(key, nullptr);
}

TEST_F(HotKeys, AreNotTakenWhileTheFormIsDesigned) {
  key_.SetDesigning(true);
  EXPECT_EQ(Refusal(key_), "Boss takes its key when the form runs, not while it is designed.");
  key_.SetDesigning(false);
  Ask(key_, "Shift+A");
  EXPECT_EQ(Refusal(key_), "Shift+A would be taken from every program: add Ctrl or Alt.");
  EXPECT_FALSE(key_.HasKey());
}

TEST_F(HotKeys, NeedAKeyboardAndADisplay) {
  Ask(key_, "Ctrl+F24");
  EXPECT_EQ(Refusal(key_), "The keyboard has no key for Ctrl+F24. Choose another one.");
  const QByteArray display = qgetenv("DISPLAY");
  qunsetenv("DISPLAY");
  EXPECT_EQ(Refusal(key_).find("This session has no X display (DISPLAY is not set). Ctrl+F24"), 0u);
  qputenv("DISPLAY", ":9999");
  EXPECT_EQ(Refusal(key_).find("The X display \":9999\" cannot be opened."), 0u);
  qputenv("DISPLAY", display);
}

TEST_F(HotKeys, OutliveAServerThatGoes) {
  key_.Start([this] { ++heard_; });
  desktop_.reset();
  server_->End();
  QTest::qWait(50);
  EXPECT_EQ(heard_, 0);
  key_.Stop();
  EXPECT_FALSE(key_.HasKey());
}
