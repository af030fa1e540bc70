// Saving replaces a file in one step or leaves it alone.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "forms/SafeFile.h"
#include "tests/forms/FormTest.h"

using namespace formtest;

namespace {
class Save : public testing::Test {
 protected:
  ~Save() override { forms::Steps() = forms::SystemSteps(); }
  QString File(const char* name = "unit1.dfm") const { return folder_.filePath(QLatin1StringView(name)); }
  void Put(const QString& file, const QByteArray& bytes) const {
    QFile out(file);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    ASSERT_EQ(out.write(bytes), bytes.size());
  }
  // Runs `action` in a process of its own; its result is the exit code.
  template <class F>
  static int InChild(F action) {
    const pid_t child = fork();
    if (child == 0) _exit(action());
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  QTemporaryDir folder_;
};

bool SavingThrows(const QString& file, const QByteArray& bytes) {
  try {
    forms::WriteFile(file, bytes);
    return false;
  } catch (const Exception& e) {
    return e.Message().contains(file);
  }
}

forms::Document Load(const QString& file) {
  return forms::Document::Parse(forms::ReadFile(file), forms::DialectOfName(file));
}

QByteArray BigForm(char letter, int lines) {
  QByteArray text = "object Main: TMain\n";
  for (int i = 0; i < lines; ++i)
    text += "  P" + QByteArray::number(i) + " = '" + QByteArray(60, letter) + "'\n";
  return text + "end\n";
}
}  // namespace

TEST_F(Save, WritesAndReplacesAFile) {
  forms::WriteFile(File(), "object A: T\nend\n");
  EXPECT_EQ(forms::ReadFile(File()), "object A: T\nend\n");
  forms::WriteFile(File(), "TPF0\x01T");
  EXPECT_EQ(forms::ReadFile(File()), "TPF0\x01T");
  EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files), QStringList{QStringLiteral("unit1.dfm")});
}

TEST_F(Save, LoadedAndSavedFormsAreTheSameFile) {
  const QByteArray bytes = "\xEF\xBB\xBFobject A: T\r\n  P = 'x'\r\nend";
  Put(File(), bytes);
  forms::WriteFile(File("copy.dfm"), Load(File()).Write());
  EXPECT_EQ(ReadBytes(File("copy.dfm")), bytes);
}

TEST_F(Save, AFolderThatIsGoneIsReported) {
  const QString file = folder_.filePath(QStringLiteral("gone/unit1.dfm"));
  EXPECT_TRUE(SavingThrows(file, "x"));
  EXPECT_FALSE(QFile::exists(file));
}

TEST_F(Save, AFolderThatTakesNoFilesLeavesTheOldFile) {
  // Works for every user: nobody can create files there.
  const QByteArray before = ReadBytes(QStringLiteral("/proc/self/comm"));
  EXPECT_TRUE(SavingThrows(QStringLiteral("/proc/self/comm"), "x"));
  EXPECT_TRUE(SavingThrows(QStringLiteral("/proc/unit1.dfm"), "x"));
  EXPECT_EQ(ReadBytes(QStringLiteral("/proc/self/comm")), before);
}

TEST_F(Save, AFolderOrADeviceIsNotReplacedByAFile) {
  ASSERT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("dir.dfm")));
  EXPECT_TRUE(SavingThrows(File("dir.dfm"), "x"));
  EXPECT_TRUE(QFileInfo(File("dir.dfm")).isDir());
}

TEST_F(Save, ALinkStaysALink) {
  Put(File("real.dfm"), "old");
  ASSERT_TRUE(QFile::link(File("real.dfm"), File("link.dfm")));
  forms::WriteFile(File("link.dfm"), "new");
  EXPECT_TRUE(QFileInfo(File("link.dfm")).isSymLink());
  EXPECT_EQ(ReadBytes(File("real.dfm")), "new");
}

TEST_F(Save, PermissionsAreKept) {
  Put(File(), "old");
  const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
  ASSERT_TRUE(QFile::setPermissions(File(), permissions));
  forms::WriteFile(File(), "new");
  EXPECT_EQ(QFile::permissions(File()) & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther),
            QFile::ReadGroup);
}

TEST_F(Save, AFullDiskLeavesTheOldFile) {
  Put(File(), "object Old: T\nend\n");
  const QByteArray big = BigForm('x', 5000);
  for (const rlim_t limit : {rlim_t{0}, rlim_t{1000}, static_cast<rlim_t>(big.size() - 1)}) {
    const QString file = File();
    const int result = InChild([&] {
      std::signal(SIGXFSZ, SIG_IGN);
      const rlimit files{limit, limit};
      if (setrlimit(RLIMIT_FSIZE, &files) != 0) return 2;
      return SavingThrows(file, big) ? 0 : 1;
    });
    EXPECT_EQ(result, 0) << limit;
    EXPECT_EQ(ReadBytes(File()), "object Old: T\nend\n") << limit;
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files).size(), 1) << limit;
  }
}

TEST_F(Save, FilesThatCannotBeReadAreReported) {
  EXPECT_THROW(forms::ReadFile(File("none.dfm")), Exception);
  EXPECT_THROW(forms::ReadFile(folder_.path()), Exception);
  Put(File(), "not a form");
  EXPECT_THROW(Load(File()), EFormError);
}

TEST_F(Save, StandardOutputIsWrittenWithoutChanges) {
  const QByteArray bytes("TPF0\0\r\n\xFF", 8);
  const QString file = File("out");
  EXPECT_EQ(InChild([&] {
              if (!std::freopen(file.toLocal8Bit().constData(), "wb", stdout)) return 2;
              forms::WriteFile(QStringLiteral("-"), bytes);
              std::fflush(stdout);
              return 0;
            }),
            0);
  EXPECT_EQ(ReadBytes(file), bytes);
  EXPECT_EQ(InChild([&] {
              if (!std::freopen("/dev/full", "wb", stdout)) return 2;
              try {
                forms::WriteFile(QStringLiteral("-"), bytes);
                return 1;
              } catch (const Exception&) {
                return 0;
              }
            }),
            0);
}

TEST_F(Save, StandardInputIsReadToItsEnd) {
  const QByteArray bytes = BigForm('i', 2000);
  Put(File(), bytes);
  const QString file = File();
  EXPECT_EQ(InChild([&] {
              if (!std::freopen(file.toLocal8Bit().constData(), "rb", stdin)) return 2;
              return Load(QStringLiteral("-")).Write() == bytes ? 0 : 1;
            }),
            0);
}
