// What becomes of a file whose saving fails late, or is cut off at any step.
#include "forms/SafeFile.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <csignal>

#include "tests/forms/FormTest.h"

using namespace formtest;

namespace {
const QByteArray Old = "object Old: T\nend\n";
const QByteArray New = "object New: T\n  Tag = 1\nend\n";

enum class Step { Write, Sync, Close, Rename, SyncFolder };
constexpr Step AllSteps[] = {Step::Write, Step::Sync, Step::Close, Step::Rename, Step::SyncFolder};

// `real` after `before`, unless that gives an error number.
template <class R, class... A>
std::function<R(A...)> Failing(std::function<int()> before, std::function<R(A...)> real) {
  return [=](A... arguments) -> R {
    const int error = before();
    if (error == 0) return real(arguments...);
    errno = error;
    return -1;
  };
}

class SafeFile : public testing::Test {
 protected:
  SafeFile() { Put(File(), Old); }
  ~SafeFile() override { forms::Steps() = forms::SystemSteps(); }

  QString File(const char* name = "unit1.dfm") const { return folder_.filePath(QLatin1StringView(name)); }
  static void Put(const QString& file, const QByteArray& bytes) {
    QFile out(file);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    ASSERT_EQ(out.write(bytes), bytes.size());
  }
  // Everything in the folder, hidden files too.
  QStringList Files() const {
    return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden | QDir::System);
  }
  QStringList Leftovers() const {
    return QDir(folder_.path()).entryList({QStringLiteral(".*.vrxsave")}, QDir::Files | QDir::Hidden);
  }
  static struct stat Stat(const QString& file) {
    struct stat s {};
    EXPECT_EQ(::stat(QFile::encodeName(file).constData(), &s), 0);
    return s;
  }

  // At this step `before` runs; when it gives an error number, the step fails with it.
  static void At(Step step, std::function<int()> before) {
    forms::SaveSteps& steps = forms::Steps();
    const forms::SaveSteps system = forms::SystemSteps();
    if (step == Step::Write) steps.write = Failing(before, system.write);
    if (step == Step::Sync) steps.sync = Failing(before, system.sync);
    if (step == Step::Close)
      steps.close = [before, system](int fd) {
        const int error = before();
        const int result = system.close(fd);  // it is closed even when that tells of an error
        if (error == 0) return result;
        errno = error;
        return -1;
      };
    if (step == Step::Rename) steps.rename = Failing(before, system.rename);
    if (step == Step::SyncFolder) steps.syncFolder = Failing(before, system.syncFolder);
  }
  QString Refusal(const QByteArray* expected = nullptr) const {
    try {
      forms::ReplaceFile(File(), New, expected);
      return {};
    } catch (const Exception& e) {
      return e.Message();
    }
  }
  // Saves in a process of its own that dies at the step.
  void DieAt(Step step) const {
    const pid_t child = fork();
    if (child == 0) {
      At(step, [] { return kill(getpid(), SIGKILL); });
      forms::ReplaceFile(File(), New);
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));
  }

  QTemporaryDir folder_;
};
}  // namespace

TEST_F(SafeFile, AnErrorAtAnyStepIsToldAndLeavesTheOldFileAlone) {
  for (const Step step : {Step::Write, Step::Sync, Step::Close, Step::Rename})
    for (const int error : {EIO, ENOSPC, EDQUOT}) {
      forms::Steps() = forms::SystemSteps();
      At(step, [=] { return error; });
      const QString told = Refusal();
      EXPECT_TRUE(told.contains(File()) && told.contains(qt_error_string(error)) &&
                  told.contains(QStringLiteral("unchanged")))
          << static_cast<int>(step) << told.toStdString();
      EXPECT_EQ(ReadBytes(File()), Old);
      EXPECT_EQ(Files(), QStringList{QStringLiteral("unit1.dfm")});
    }
}

TEST_F(SafeFile, AnErrorInANewFileLeavesNone) {
  ASSERT_TRUE(QFile::remove(File()));
  At(Step::Sync, [] { return EIO; });
  EXPECT_FALSE(Refusal().isEmpty());
  EXPECT_EQ(Files(), QStringList());
}

TEST_F(SafeFile, AFolderThatDoesNotReachTheDiskIsTold) {
  At(Step::SyncFolder, [] { return EIO; });
  const QString told = Refusal();
  EXPECT_TRUE(told.contains(File()) && told.contains(QStringLiteral("was written"))) << told.toStdString();
  EXPECT_EQ(ReadBytes(File()), New);
  EXPECT_EQ(Files(), QStringList{QStringLiteral("unit1.dfm")});
}

TEST_F(SafeFile, AFileSystemThatSyncsFoldersItselfIsFine) {
  At(Step::SyncFolder, [] { return EINVAL; });
  EXPECT_EQ(Refusal(), QString());
}

TEST_F(SafeFile, TheBytesReachTheDiskBeforeTheNameAndTheFolderAfterIt) {
  std::string order;
  for (const Step step : AllSteps)
    At(step, [&order, step] {
      order += "wscrf"[static_cast<int>(step)];
      return 0;
    });
  EXPECT_EQ(Refusal(), QString());
  EXPECT_EQ(order, "wscrf");
}

TEST_F(SafeFile, WritingGoesOnAfterInterruptionsAndInPieces) {
  int calls = 0;
  forms::Steps().write = [&](int fd, const void* bytes, std::size_t size) -> ssize_t {
    if (++calls % 2 == 1) {
      errno = EINTR;
      return -1;
    }
    return ::write(fd, bytes, std::min<std::size_t>(size, 3));
  };
  EXPECT_EQ(Refusal(), QString());
  EXPECT_EQ(ReadBytes(File()), New);
}

TEST_F(SafeFile, AProcessThatDiesLeavesAWholeFileAndTheNextSaveCleansUp) {
  for (const Step step : AllSteps) {
    Put(File(), Old);
    DieAt(step);
    EXPECT_EQ(ReadBytes(File()), step == Step::SyncFolder ? New : Old) << static_cast<int>(step);
    EXPECT_EQ(Leftovers().size(), step == Step::SyncFolder ? 0 : 1) << static_cast<int>(step);
    EXPECT_EQ(Refusal(), QString());
    EXPECT_EQ(Files(), QStringList{QStringLiteral("unit1.dfm")}) << static_cast<int>(step);
  }
}

TEST_F(SafeFile, WhatASaveLeftCanBeTakenAwayWithoutSaving) {
  DieAt(Step::Rename);
  forms::RemoveLeftovers(File());
  EXPECT_EQ(Files(), QStringList{QStringLiteral("unit1.dfm")});
  EXPECT_EQ(ReadBytes(File()), Old);
}

TEST_F(SafeFile, OnlyItsOwnLeftoversGo) {
  const QStringList others{QStringLiteral(".unit1.dfm.swp"),
                           QStringLiteral(".unit1.dfm.vrxsave"),
                           QStringLiteral(".unit1.dfm.0123456789abcdeg.vrxsave"),
                           QStringLiteral(".unit1.dfm.x.0123456789abcdef.vrxsave"),
                           QStringLiteral(".unit2.dfm.0123456789abcdef.vrxsave"),
                           QStringLiteral("unit1.dfm.0123456789abcdef.vrxsave")};
  for (const QString& name : others) Put(folder_.filePath(name), "keep");
  const QString folder = folder_.filePath(QStringLiteral(".unit1.dfm.0123456789abcde0.vrxsave"));
  ASSERT_TRUE(QDir().mkdir(folder));
  Put(File(".unit1.dfm.0123456789abcdef.vrxsave"), "half a fo");
  EXPECT_EQ(Refusal(), QString());
  QStringList expected = others;
  expected << QStringLiteral("unit1.dfm");
  expected.sort();
  QStringList found = Files();
  found.sort();
  EXPECT_EQ(found, expected);
  EXPECT_TRUE(QFileInfo(folder).isDir());
}

TEST_F(SafeFile, AFileThatAnotherProcessIsSavingIsLeftAlone) {
  int ready[2], go[2];
  ASSERT_EQ(pipe(ready), 0);
  ASSERT_EQ(pipe(go), 0);
  const pid_t child = fork();
  if (child == 0) {
    At(Step::Rename, [&] {
      char c = 0;
      return ::write(ready[1], &c, 1) == 1 && ::read(go[0], &c, 1) == 1 ? 0 : EIO;
    });
    try {
      forms::ReplaceFile(File(), New);
      _exit(0);
    } catch (const Exception&) {
      _exit(1);
    }
  }
  char c = 0;
  ASSERT_EQ(::read(ready[0], &c, 1), 1);
  forms::RemoveLeftovers(File());
  EXPECT_EQ(Leftovers().size(), 1);
  forms::ReplaceFile(File(), "object Between: T\nend\n");
  EXPECT_EQ(Leftovers().size(), 1);
  ASSERT_EQ(::write(go[1], &c, 1), 1);
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  EXPECT_EQ(ReadBytes(File()), New);
  EXPECT_EQ(Files(), QStringList{QStringLiteral("unit1.dfm")});
}

TEST_F(SafeFile, PermissionsAndAttributesAreKept) {
  for (const mode_t mode : {0600u, 0640u, 0664u, 0755u}) {
    ASSERT_EQ(::chmod(QFile::encodeName(File()).constData(), mode), 0);
    EXPECT_EQ(Refusal(), QString());
    EXPECT_EQ(Stat(File()).st_mode & 07777, mode);
  }
  const QByteArray name = QFile::encodeName(File());
  if (::setxattr(name.constData(), "user.note", "kept", 4, 0) != 0) GTEST_SKIP() << "no attributes here";
  EXPECT_EQ(Refusal(), QString());
  char value[8];
  EXPECT_EQ(::getxattr(name.constData(), "user.note", value, sizeof value), 4);
}

TEST_F(SafeFile, NobodyElseReadsAPrivateFileWhileItIsSaved) {
  ASSERT_EQ(::chmod(QFile::encodeName(File()).constData(), 0600), 0);
  At(Step::Write, [&] {
    EXPECT_EQ(Leftovers().size(), 1);
    EXPECT_EQ(Stat(folder_.filePath(Leftovers().value(0))).st_mode & 077, 0u);
    return 0;
  });
  EXPECT_EQ(Refusal(), QString());
}

TEST_F(SafeFile, ANewFileGetsTheUsersMask) {
  ASSERT_TRUE(QFile::remove(File()));
  const mode_t before = ::umask(027);
  EXPECT_EQ(Refusal(), QString());
  ::umask(before);
  EXPECT_EQ(Stat(File()).st_mode & 0777, 0640u);
}

TEST_F(SafeFile, TheOwnerIsKept) {
  if (::geteuid() != 0) GTEST_SKIP() << "only the administrator can give files away";
  ASSERT_EQ(::chown(QFile::encodeName(File()).constData(), 1234, 2345), 0);
  EXPECT_EQ(Refusal(), QString());
  EXPECT_EQ(Stat(File()).st_uid, 1234u);
  EXPECT_EQ(Stat(File()).st_gid, 2345u);
}

TEST_F(SafeFile, ChainsOfLinksEndAtTheFileThatIsReplaced) {
  ASSERT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("deep")));
  ASSERT_TRUE(QFile::link(QStringLiteral("../unit1.dfm"), File("deep/a.dfm")));
  ASSERT_TRUE(QFile::link(QStringLiteral("deep/a.dfm"), File("b.dfm")));
  forms::ReplaceFile(File("b.dfm"), New);
  EXPECT_TRUE(QFileInfo(File("b.dfm")).isSymLink());
  EXPECT_TRUE(QFileInfo(File("deep/a.dfm")).isSymLink());
  EXPECT_FALSE(QFileInfo(File()).isSymLink());
  EXPECT_EQ(ReadBytes(File()), New);
}

TEST_F(SafeFile, ALinkToNoFileYetMakesThatFile) {
  ASSERT_TRUE(QFile::link(QStringLiteral("new.dfm"), File("link.dfm")));
  forms::ReplaceFile(File("link.dfm"), New);
  EXPECT_TRUE(QFileInfo(File("link.dfm")).isSymLink());
  EXPECT_EQ(ReadBytes(File("new.dfm")), New);
}

TEST_F(SafeFile, LinksInACircleAreRefused) {
  ASSERT_TRUE(QFile::link(File("a.dfm"), File("b.dfm")));
  ASSERT_TRUE(QFile::link(File("b.dfm"), File("a.dfm")));
  EXPECT_THROW(forms::ReplaceFile(File("a.dfm"), New), Exception);
}

TEST_F(SafeFile, OtherNamesOfAHardLinkedFileKeepTheOldBytes) {
  ASSERT_EQ(::link(QFile::encodeName(File()).constData(), QFile::encodeName(File("other.dfm")).constData()),
            0);
  EXPECT_EQ(Refusal(), QString());
  EXPECT_EQ(ReadBytes(File()), New);
  EXPECT_EQ(ReadBytes(File("other.dfm")), Old);
}

TEST_F(SafeFile, DevicesAreWrittenToAndNotReplaced) {
  ASSERT_TRUE(QFile::link(QStringLiteral("/dev/null"), File("nowhere")));
  forms::ReplaceFile(File("nowhere"), New);
  EXPECT_TRUE(S_ISCHR(Stat(QStringLiteral("/dev/null")).st_mode));
  EXPECT_THROW(forms::ReplaceFile(QStringLiteral("/dev/full"), New), Exception);
}

TEST_F(SafeFile, ALongNameLeavesRoomForTheNewFile) {
  const QString file = folder_.filePath(QString(255, u'n'));
  forms::ReplaceFile(file, New);
  EXPECT_EQ(ReadBytes(file), New);
}

TEST_F(SafeFile, AFileThatIsNotWhatTheWriterReadIsLeftAlone) {
  EXPECT_EQ(Refusal(&Old), QString());
  const QByteArray third = "object Third: T\nend\n";
  Put(File(), third);
  EXPECT_THROW(forms::ReplaceFile(File(), New, &Old), forms::EFileChanged);
  EXPECT_EQ(ReadBytes(File()), third);
  ASSERT_TRUE(QFile::remove(File()));
  EXPECT_THROW(forms::ReplaceFile(File(), New, &Old), forms::EFileChanged);
  EXPECT_EQ(Files(), QStringList());
  Put(File(), New);  // somebody wrote the same
  EXPECT_EQ(Refusal(&Old), QString());
}

TEST_F(SafeFile, AChangeUpToTheLastMomentIsSeen) {
  At(Step::Close, [&] {
    Put(File(), "late");
    return 0;
  });
  EXPECT_THROW(forms::ReplaceFile(File(), New, &Old), forms::EFileChanged);
  EXPECT_EQ(ReadBytes(File()), "late");
  EXPECT_EQ(Files(), QStringList{QStringLiteral("unit1.dfm")});
}
