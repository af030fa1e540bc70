// A folder may include only what lies below it. The table is the one of docs/architecture.md.
#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
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

namespace {
QString Folder(const QString& path) { return path.section(u'/', 0, -2); }

// What each unit (a header and its source) includes of others, of all folders.
const QMap<QString, QStringList>& Includes() {
  static const QMap<QString, QStringList> all = [] {
    const QRegularExpression include(QStringLiteral("^#include \"([A-Za-z_0-9/]+)\\.h\""),
                                     QRegularExpression::MultilineOption);
    QMap<QString, QStringList> found;
    for (const QString& folder : Allowed().keys()) {
      QDirIterator it(QStringLiteral(VRX_SOURCE_DIR "/") + folder,
                      {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                      QDirIterator::Subdirectories);
      while (it.hasNext()) {
        QFile file(it.next());
        if (!file.open(QIODevice::ReadOnly)) continue;
        const QString path = file.fileName().mid(QStringLiteral(VRX_SOURCE_DIR "/").size());
        const QString unit = Folder(path) + u'/' + QFileInfo(path).completeBaseName();
        QStringList& includes = found[unit];
        auto matches = include.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext())
          if (const QString to = matches.next().captured(1); to != unit) includes << to;
      }
    }
    return found;
  }();
  return all;
}

// The units that a unit includes, directly or through others.
QSet<QString> ReachedFrom(const QString& unit) {
  QSet<QString> reached;
  QStringList open{unit};
  while (!open.isEmpty())
    for (const QString& to : Includes().value(open.takeLast()))
      if (!reached.contains(to)) {
        reached.insert(to);
        open << to;
      }
  return reached;
}
}  // namespace

TEST(Units, FormNoCircle) {
  int units = 0;
  for (const QString& unit : Includes().keys()) {
    EXPECT_FALSE(ReachedFrom(unit).contains(unit)) << qPrintable(unit) << " is reached from itself";
    ++units;
  }
  EXPECT_GT(units, 100);
}

TEST(Units, DialogsKnowNoLaunchers) {
  int files = 0;
  for (const char* folder : {"/package/dialogs", "/library_design", "/dclstd"}) {
    QDirIterator it(QStringLiteral(VRX_SOURCE_DIR) + QString::fromLatin1(folder), QDir::Files);
    while (it.hasNext()) {
      QFile file(it.next());
      ASSERT_TRUE(file.open(QIODevice::ReadOnly));
      EXPECT_FALSE(file.readAll().contains("#include \"package/property_editors/"))
          << qPrintable(file.fileName());
      ++files;
    }
  }
  EXPECT_GT(files, 40);
}

TEST(Units, OfAnOpenFormStandOnEachOtherWithoutCircles) {
  for (const char* name : {"FormSession", "BoundForm", "CommandRecorder", "UndoStack", "Selection",
                           "FileOnDisk", "Fingerprints", "PictureBudget", "RefusedData"}) {
    const QString unit = QStringLiteral("ide/") + QLatin1StringView(name);
    EXPECT_TRUE(QFile::exists(QStringLiteral(VRX_SOURCE_DIR) + u'/' + unit + QStringLiteral(".h"))) << name;
    EXPECT_FALSE(ReachedFrom(unit).contains(unit)) << name;
    EXPECT_EQ(ReachedFrom(unit).contains(QStringLiteral("ide/FormSession")),
              unit == QStringLiteral("ide/RefusedData"))
        << name;
  }
}

TEST(Units, AccessToPropertiesKnowsNothingOfComponents) {
  EXPECT_FALSE(ReachedFrom(QStringLiteral("rtl/PropAccess")).contains(QStringLiteral("rtl/Component")));
  EXPECT_TRUE(ReachedFrom(QStringLiteral("rtl/Component")).contains(QStringLiteral("rtl/PropAccess")));
}

TEST(Presets, RefuseARunWithoutTests) {
  QFile file(QStringLiteral(VRX_SOURCE_DIR "/CMakePresets.json"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QJsonObject presets = QJsonDocument::fromJson(file.readAll()).object();
  QMap<QString, QJsonObject> byName;
  int shown = 0;
  for (const QJsonValue& value : presets.value(QStringLiteral("testPresets")).toArray())
    byName.insert(value.toObject().value(QStringLiteral("name")).toString(), value.toObject());
  for (QJsonObject preset : byName) {
    if (preset.value(QStringLiteral("hidden")).toBool()) continue;
    ++shown;
    const QString name = preset.value(QStringLiteral("name")).toString();
    while (!preset.contains(QStringLiteral("execution")) && preset.contains(QStringLiteral("inherits")))
      preset = byName.value(preset.value(QStringLiteral("inherits")).toString());
    EXPECT_EQ(preset.value(QStringLiteral("execution"))
                  .toObject()
                  .value(QStringLiteral("noTestsAction"))
                  .toString(),
              QStringLiteral("error"))
        << qPrintable(name);
  }
  EXPECT_EQ(shown, presets.value(QStringLiteral("configurePresets")).toArray().size() - 1);
}
