#include "rtl/Registry.h"

#include <QStandardPaths>

#include "rtl/SettingsFormat.h"

namespace {
QString& StoragePath() {
  static QString path;
  return path;
}
}  // namespace

void TRegistry::SetStorageFile(const QString& file) { StoragePath() = file; }

QString TRegistry::StorageFile() {
  if (!StoragePath().isEmpty()) return StoragePath();
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         QStringLiteral("/orlenvo-designer/settings.ini");
}

TRegistry::TRegistry() : settings_(std::make_unique<QSettings>(StorageFile(), SettingsFormat())) {}
TRegistry::~TRegistry() = default;

QString TRegistry::Find(const QStringList& names, const QString& wanted) const {
  for (const QString& name : names)
    if (name.compare(wanted, Qt::CaseInsensitive) == 0) return name;
  return {};
}

void TRegistry::Select(const QString& path) const {
  while (!settings_->group().isEmpty()) settings_->endGroup();
  if (!path.isEmpty()) settings_->beginGroup(path);
}

// The path as it is spelled in the store; null when some part of it does not exist.
QString TRegistry::Resolve(const QString& key) const {
  QString path;
  for (const QString& part : key.split(u'\\', Qt::SkipEmptyParts)) {
    Select(path);
    const QString found = Find(settings_->childGroups(), part);
    if (found.isNull()) return {};
    path += (path.isEmpty() ? QString() : QStringLiteral("/")) + found;
  }
  return path;
}

bool TRegistry::OpenKey(const QString& key, bool canCreate) {
  QString path;
  bool existing = true;
  for (QString part : key.split(u'\\', Qt::SkipEmptyParts)) {
    if (existing) {
      Select(path);
      const QString found = Find(settings_->childGroups(), part);
      existing = !found.isNull();
      if (existing) part = found;
    }
    path += (path.isEmpty() ? QString() : QStringLiteral("/")) + part;
  }
  if (!existing && !canCreate) return false;
  path_ = path;
  Select(path_);
  return true;
}

bool TRegistry::KeyExists(const QString& key) const {
  const bool exists = !Resolve(key).isNull();
  Select(path_);
  return exists;
}

bool TRegistry::ValueExists(const QString& name) const {
  return !Find(settings_->childKeys(), name).isNull();
}

QString TRegistry::ReadString(const QString& name, const QString& otherwise) const {
  const QString key = Find(settings_->childKeys(), name);
  return key.isNull() ? otherwise : settings_->value(key).toString();
}

int TRegistry::ReadInteger(const QString& name, int otherwise) const {
  bool ok = false;
  const int value = ReadString(name).toInt(&ok);
  return ok ? value : otherwise;
}

bool TRegistry::ReadBool(const QString& name, bool otherwise) const {
  return ReadInteger(name, otherwise ? 1 : 0) != 0;
}

void TRegistry::WriteString(const QString& name, const QString& value) {
  const QString key = Find(settings_->childKeys(), name);
  settings_->setValue(key.isNull() ? name : key, value);
}
void TRegistry::WriteInteger(const QString& name, int value) { WriteString(name, QString::number(value)); }
void TRegistry::WriteBool(const QString& name, bool value) { WriteInteger(name, value ? 1 : 0); }

// In the file a text as others: "hex:" and the digits.
namespace {
const QString BinaryMark = QStringLiteral("hex:");
}

std::optional<QByteArray> TRegistry::ReadBinary(const QString& name) const {
  const QString text = ReadString(name);
  if (!text.startsWith(BinaryMark)) return {};
  const QByteArray digits = text.sliced(BinaryMark.size()).toLatin1().toLower();
  QByteArray bytes = QByteArray::fromHex(digits);
  if (bytes.toHex() != digits) return {};
  return bytes;
}
void TRegistry::WriteBinary(const QString& name, const QByteArray& value) {
  WriteString(name, BinaryMark + QString::fromLatin1(value.toHex()));
}

bool TRegistry::DeleteValue(const QString& name) {
  const QString key = Find(settings_->childKeys(), name);
  if (key.isNull()) return false;
  settings_->remove(key);
  return true;
}

void TRegistry::DeleteKey(const QString& key) {
  const QString path = Resolve(key);
  Select({});
  if (!path.isNull()) settings_->remove(path);
  Select(path_);
}

QStringList TRegistry::ValueNames() const { return settings_->childKeys(); }
QStringList TRegistry::KeyNames() const { return settings_->childGroups(); }

bool TRegistry::Flush() {
  settings_->sync();
  return settings_->status() == QSettings::NoError;
}

namespace {
QString SectionKey(const QString& key, const QString& section) { return key + u'\\' + section; }
}  // namespace

QString TRegIniFile::ReadString(const QString& section, const QString& name, const QString& otherwise) const {
  TRegistry registry;
  return registry.OpenKey(SectionKey(key_, section), false) ? registry.ReadString(name, otherwise)
                                                            : otherwise;
}
int TRegIniFile::ReadInteger(const QString& section, const QString& name, int otherwise) const {
  TRegistry registry;
  return registry.OpenKey(SectionKey(key_, section), false) ? registry.ReadInteger(name, otherwise)
                                                            : otherwise;
}
bool TRegIniFile::ReadBool(const QString& section, const QString& name, bool otherwise) const {
  return ReadInteger(section, name, otherwise ? 1 : 0) != 0;
}
void TRegIniFile::WriteString(const QString& section, const QString& name, const QString& value) {
  TRegistry registry;
  registry.OpenKey(SectionKey(key_, section), true);
  registry.WriteString(name, value);
  if (!registry.Flush()) failed_ = true;
}
void TRegIniFile::WriteInteger(const QString& section, const QString& name, int value) {
  WriteString(section, name, QString::number(value));
}
void TRegIniFile::WriteBool(const QString& section, const QString& name, bool value) {
  WriteInteger(section, name, value ? 1 : 0);
}
void TRegIniFile::EraseSection(const QString& section) {
  TRegistry registry;
  registry.DeleteKey(SectionKey(key_, section));
  if (!registry.Flush()) failed_ = true;
}
QStringList TRegIniFile::ReadSection(const QString& section) const {
  TRegistry registry;
  return registry.OpenKey(SectionKey(key_, section), false) ? registry.ValueNames() : QStringList();
}
void TRegIniFile::UpdateFile() {
  if (std::exchange(failed_, false))
    throw ERegistryException(
        QStringLiteral("The settings cannot be written to %1. Please check that the file "
                       "and its folder may be written.")
            .arg(TRegistry::StorageFile()));
}
