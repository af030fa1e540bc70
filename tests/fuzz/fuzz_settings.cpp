// Fuzz target: a file of settings, read through keys and values, changed, and read again.
#include <QDir>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>

#include "rtl/Registry.h"
#include "tests/fuzz/Target.h"

namespace {
using Values = QMap<QString, QString>;  // "KEY\\NAME"

void Walk(const QString& key, int depth, Values& values) {
  TRegistry registry;
  if (!registry.OpenKey(key, false)) return;
  for (const QString& name : registry.ValueNames()) {
    values[key + u'\\' + name] = registry.ReadString(name);
    registry.ReadInteger(name);
    registry.ReadBool(name);
  }
  if (depth == 0) return;
  for (const QString& child : registry.KeyNames())
    Walk(key.isEmpty() ? child : key + u'\\' + child, depth - 1, values);
}

Values All() {
  Values values;
  Walk({}, 8, values);
  return values;
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const QTemporaryDir folder;
  const QString name = folder.filePath(QStringLiteral("settings.ini"));
  {
    QFile file(name);
    Require(file.open(QIODevice::WriteOnly), "the file can be written");
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
  }
  TRegistry::SetStorageFile(name);
  const Values before = All();
  TRegIniFile ini(QStringLiteral("SOFTWARE\\Orlenvo\\Orlenvo-Kit 2025"));
  const QString odd = QStringLiteral("a\n;=\"@\\x7 , \u00E4\u202E%1").arg(size);
  ini.WriteString(QStringLiteral("Fuzz"), QStringLiteral("Value"), odd);
  ini.WriteInteger(QStringLiteral("Fuzz"), QStringLiteral("Number"), static_cast<int>(size));
  Require(ini.ReadString(QStringLiteral("Fuzz"), QStringLiteral("Value"), {}) == odd,
          "what was written can be read");
  Require(ini.ReadInteger(QStringLiteral("Fuzz"), QStringLiteral("Number"), -1) == static_cast<int>(size),
          "a number that was written can be read");
  const Values after = All();
  for (auto it = before.begin(); it != before.end(); ++it)
    Require(
        after.value(it.key()) == it.value() || it.key().contains(QStringLiteral("Fuzz"), Qt::CaseInsensitive),
        "a value that was not written stays");
  return 0;
}
