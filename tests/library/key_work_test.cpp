// What a sender of keys takes for the window of a program, and how it goes on after a failure.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "library/components/SendKeys.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/Waiting.h"

namespace {
constexpr int Short = 300;  // milliseconds in which nothing comes
const QString True = QStringLiteral("/bin/true");

// A window more whenever somebody looks, of this process.
class Growing : public FakeDesktop {
 public:
  Growing(Scene& scene, std::int64_t process) : FakeDesktop(scene), scene_(scene), process_(process) {}
  std::vector<TVRXDesktopWindow> Windows() override {
    const auto now = scene_.windows;
    scene_.windows.push_back({20 + now.size(), QStringLiteral("Started"), process_});
    return now;
  }

 private:
  Scene& scene_;
  std::int64_t process_;
};

class KeyWorking : public testing::Test {
 protected:
  static void SetUpTestSuite() { folder_ = std::make_unique<QTemporaryDir>(); }
  static void TearDownTestSuite() { folder_.reset(); }
  void SetUp() override {
    Use([this] { return std::make_unique<FakeDesktop>(scene_); });
    const QString name = folder_->filePath(QStringLiteral("program"));
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\nexec sleep 10\n");
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    lasting_ = name;
    sender_->Set(TVRXSendKeys::Timeout, Short);
  }
  void TearDown() override {
    sender_.reset();
    SetDesktopMaker({});
  }
  void Use(std::function<std::unique_ptr<IDesktop>()> make) {
    SetDesktopMaker([this, make = std::move(make)] {
      ++desktops_;
      return make();
    });
  }
  std::string Done() const { return scene_.done.join(u' ').toStdString(); }

  static inline std::unique_ptr<QTemporaryDir> folder_;  // programs may look at it behind the end of a test
  QString lasting_;                                      // a program that opens no window
  Scene scene_;
  int desktops_ = 0;  // made so far
  std::unique_ptr<TVRXSendKeys> sender_ = std::make_unique<TVRXSendKeys>(nullptr);
};
}  // namespace

TEST_F(KeyWorking, AWindowThatWasThereIsNotTheOneOfAProgram) {
  EXPECT_FALSE(sender_->Shell(lasting_));
  EXPECT_TRUE(sender_->LastError().contains(QStringLiteral("opened no window within 0.3 seconds")))
      << sender_->LastError().toStdString();
}

TEST_F(KeyWorking, AProgramThatHasEndedIsToldAsThat) {
  EXPECT_FALSE(sender_->Shell(True));
  EXPECT_TRUE(sender_->LastError().contains(QStringLiteral("ended and opened no window")))
      << sender_->LastError().toStdString();
}

TEST_F(KeyWorking, ANewWindowThatTellsNoProcessIsTheProgramsOne) {
  Use([this] { return std::make_unique<Growing>(scene_, 0); });
  EXPECT_TRUE(sender_->Shell(lasting_));
  EXPECT_EQ(sender_->AppCaption(), QStringLiteral("Started"));
}

TEST_F(KeyWorking, ANewWindowOfAnotherProgramIsTakenOnlyFromOneThatHandsOver) {
  Use([this] { return std::make_unique<Growing>(scene_, QCoreApplication::applicationPid()); });
  EXPECT_FALSE(sender_->Shell(lasting_));
  EXPECT_TRUE(sender_->Shell(True)) << "it has ended, and another one opened a window";
  EXPECT_EQ(sender_->AppCaption(), QStringLiteral("Started"));
}

TEST_F(KeyWorking, AfterAFailureTheDesktopIsOpenedAnew) {
  EXPECT_TRUE(sender_->AppActivate(QStringLiteral("Fake")));
  EXPECT_TRUE(sender_->SendKeys(QStringLiteral("a"), true));
  EXPECT_EQ(desktops_, 1);
  EXPECT_FALSE(sender_->AppActivate(QStringLiteral("Nobody")));
  EXPECT_TRUE(sender_->AppActivate(QStringLiteral("Fake")));
  EXPECT_EQ(desktops_, 2);
}

TEST_F(KeyWorking, AWindowThatWasNotFoundLeavesNoneThatKeysAreFor) {
  EXPECT_TRUE(sender_->AppActivate(QStringLiteral("Fake")));
  EXPECT_FALSE(sender_->AppActivate(QStringLiteral("Nobody")));
  scene_.keyboard = false;  // neither has it
  EXPECT_TRUE(sender_->SendKeys(QStringLiteral("a"), true)) << sender_->LastError().toStdString();
  EXPECT_EQ(Done(), "U0061");
}

TEST_F(KeyWorking, AProgramThatDoesNotStartIsNotTheStartedOne) {
  Use([this] { return std::make_unique<Growing>(scene_, 0); });
  ASSERT_TRUE(sender_->Shell(lasting_));
  bool told = false;
  sender_->BeginShell(QStringLiteral("/no/such/program"), [&](const QString& error) {
    EXPECT_TRUE(error.contains(QStringLiteral("/no/such/program")));
    told = true;
  });
  ASSERT_TRUE(QTest::qWaitFor([&] { return told; }, WaitLimit));
  EXPECT_EQ(sender_->AppFileName(), lasting_);
  EXPECT_EQ(sender_->AppCaption(), QStringLiteral("Started"));
}
