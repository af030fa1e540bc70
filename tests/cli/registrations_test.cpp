// vrx registrations: every call of the package, in order, with and without the labeled variants. The real
// program is run, because a process knows each class once.
#include "CliTest.h"
#include "rtl/ClassRegistry.h"

namespace {
using RegistrationsCli = Cli;

// The table of calls; those that begin with "?" are made only for labeled variants.
QStringList Table(bool labeled) {
  QStringList calls;
  QFile file(QStringLiteral(VRX_SOURCE_DIR "/tests/cli/cases/registrations.txt"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts))
    if (labeled || !line.startsWith(u'?')) calls << (line.startsWith(u'?') ? u' ' + line.mid(1) : line);
  return calls;
}
// What the program prints, without how many calls there are.
QStringList Printed(const QString& out) {
  QStringList lines = out.split(u'\n', Qt::SkipEmptyParts).mid(2);
  for (QString& line : lines)
    if (!line.startsWith(u' ')) line = line.section(u' ', 0, 0);
  return lines;
}
}  // namespace

TEST_F(RegistrationsCli, AreTheCallsOfTheTableInBothStatesOfTheOption) {
  for (const bool labeled : {false, true}) {
    QStringList arguments{L("registrations")};
    if (labeled) arguments << L("--labeled");
    const ProcessResult r = RealVrx(arguments);
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.err, "");
    const QStringList wanted = Table(labeled), made = Printed(QString::fromUtf8(r.out));
    ASSERT_GT(wanted.size(), 90);
    for (qsizetype i = 0; i < std::max(wanted.size(), made.size()); ++i)
      ASSERT_EQ(made.value(i).toStdString(), wanted.value(i).toStdString()) << "call " << i + 1;
    EXPECT_TRUE(r.out.startsWith(labeled ? "Package dclvrxmain220: 91 registrations in 3 units\n"
                                         : "Package dclvrxmain220: 89 registrations in 3 units\n"))
        << r.out.left(80).constData();
  }
}

// A script may ask for both in one process.
TEST_F(RegistrationsCli, FollowTheOptionFromCallToCall) {
  for (const bool labeled : {true, false, true}) {
    const Result r =
        Vrx(labeled ? QStringList{L("registrations"), L("--labeled")} : QStringList{L("registrations")});
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.out.count(L("\"VRX Labeled\"")), labeled ? 2 : 0);
    EXPECT_NE(FindClass("TVRXLabeledCalendarEdit"), nullptr) << "forms may hold them all the same";
  }
}
