#include "package/experts/ExcludedProperties.h"

#include "rtl/Registry.h"

namespace {
const QString Key = QStringLiteral("SOFTWARE\\Orlenvo\\Orlenvo-Kit 2025\\Editors\\TVRXObjectStorage");
const QString ValueName = QStringLiteral("ExcludedProperties");

struct ExcludedList {
  QStringList names;
  QStringList kept;  // what the settings are known to hold
};
// Never destroyed: a program that ends with the package loaded unloads it after its own objects are gone.
ExcludedList& Excluded() {
  static auto& list = *new ExcludedList;
  return list;
}

// One name a line.
QByteArray BytesOf(const QStringList& names) {
  QByteArray bytes;
  for (const QString& name : names) bytes += name.toUtf8() + "\r\n";
  return bytes;
}
QStringList NamesIn(const QByteArray& bytes) {
  QStringList names;
  for (const QByteArray& line : bytes.split('\n'))
    if (const QString name = QString::fromUtf8(line).trimmed(); !name.isEmpty()) names << name;
  return names;
}
}  // namespace

const QStringList& VRXExcludedProperties() { return Excluded().names; }
bool VRXIsExcludedProperty(const QString& name) {
  return Excluded().names.contains(name, Qt::CaseInsensitive);
}
void VRXExcludeProperty(const QString& name) { Excluded().names << name; }
bool VRXIncludeProperty(const QString& name) {
  QStringList& names = Excluded().names;
  for (qsizetype i = 0; i < names.size(); ++i)
    if (names[i].compare(name, Qt::CaseInsensitive) == 0) {
      names.removeAt(i);
      return true;
    }
  return false;
}

void SaveExcludedProperties() {
  TRegistry registry;
  registry.OpenKey(Key, true);
  registry.WriteBinary(ValueName, BytesOf(Excluded().names));
  if (!registry.Flush())
    throw ERegistryException(
        QStringLiteral("The excluded properties cannot be written to %1. Please check that the file and its "
                       "folder may be written.")
            .arg(TRegistry::StorageFile()));
  Excluded().kept = Excluded().names;
}

void LoadExcludedProperties() {
  Excluded() = {};
  TRegistry registry;
  if (!registry.OpenKey(Key, false)) return;
  if (const auto bytes = registry.ReadBinary(ValueName)) Excluded().names = Excluded().kept = NamesIn(*bytes);
}

// What is in the settings already is not written again: a program that only looks at forms changes nothing
// of the user's.
void DropExcludedProperties() {
  try {
    if (Excluded().names != Excluded().kept) SaveExcludedProperties();
  } catch (const ERegistryException&) {
    // It was told when the list was changed.
  }
  Excluded() = {};
}
