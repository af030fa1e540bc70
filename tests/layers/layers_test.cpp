// A folder may include only what lies below it. The table is the one of docs/architecture.md.
#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

namespace {
const QMap<QString, QSet<QString>>& Allowed() {
  static const QMap<QString, QSet<QString>> table{
      {"rtl", {}},
      {"forms", {"rtl"}},
      {"vcl", {"rtl"}},
      {"designintf", {"vcl", "rtl"}},
      {"dclstd", {"designintf", "vcl", "rtl"}},
      {"library", {"vcl", "rtl"}},
      {"library_design", {"library", "dclstd", "designintf", "vcl", "rtl"}},
      {"package", {"library_design", "library", "dclstd", "designintf", "vcl", "rtl"}},
      {"ide", {"forms", "designintf", "vcl", "rtl"}},
      {"designer", {"ide", "forms", "dclstd", "designintf", "vcl", "rtl"}},
      {"cli", {"ide", "library", "forms", "dclstd", "designintf", "vcl", "rtl"}},
  };
  return table;
}
}  // namespace

class Layer : public testing::TestWithParam<const char*> {};

TEST_P(Layer, IncludesOnlyWhatLiesBelow) {
  const QString folder = QString::fromLatin1(GetParam());
  const QString root = QStringLiteral(VRX_SOURCE_DIR);
  const QRegularExpression include(QStringLiteral("^\\s*#include \"([a-z_]+)/"),
                                   QRegularExpression::MultilineOption);
  int files = 0;
  QDirIterator it(root + u'/' + folder, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                  QDirIterator::Subdirectories);
  while (it.hasNext()) {
    QFile file(it.next());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    ++files;
    auto matches = include.globalMatch(QString::fromUtf8(file.readAll()));
    while (matches.hasNext()) {
      const QString target = matches.next().captured(1);
      if (target == folder || !(Allowed().contains(target) || target == QStringLiteral("tests"))) continue;
      EXPECT_TRUE(Allowed()[folder].contains(target))
          << qPrintable(file.fileName()) << " includes " << qPrintable(target);
    }
  }
  EXPECT_GT(files, 1);
}

INSTANTIATE_TEST_SUITE_P(Every, Layer,
                         testing::Values("rtl", "forms", "vcl", "designintf", "dclstd", "library",
                                         "library_design", "package", "ide", "designer", "cli"));
