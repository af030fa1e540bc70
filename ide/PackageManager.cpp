#include "ide/PackageManager.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include "designintf/DesignIntf.h"
#include "rtl/Exceptions.h"

namespace {
// What the host's own layers stand for.
const QStringList& HostPackages() {
  static const QStringList names{QStringLiteral("rtl220"), QStringLiteral("vcl220"),
                                 QStringLiteral("vclx220"), QStringLiteral("designide220"),
                                 QStringLiteral("dclstd220")};
  return names;
}

QJsonObject MetaData(const QString& file) { return QPluginLoader(file).metaData(); }

bool IsDesignPackage(const QJsonObject& meta) {
  return meta.value(QStringLiteral("IID")).toString() == QLatin1StringView(VRX_DESIGN_PACKAGE_IID);
}
bool IsLibrary(const QJsonObject& meta) {
  return meta.value(QStringLiteral("IID")).toString() == QLatin1StringView(VRX_LIBRARY_PACKAGE_IID);
}
TPackageRecord RecordOf(const QJsonObject& meta) {
  return TPackageRecord::FromJson(meta.value(QStringLiteral("MetaData")).toObject());
}

// A package is foreign code and may throw anything.
QString CurrentExceptionMessage() {
  try {
    throw;
  } catch (const std::exception& e) {
    return ExceptionMessage(e);
  } catch (...) {
    return PackageManager::tr("An error of an unknown kind occurred.");
  }
}

QFileInfoList Libraries(const QString& folder) {
  return QDir(folder).entryInfoList({QStringLiteral("*.so")}, QDir::Files, QDir::Name);
}
}  // namespace

PackageManager::PackageManager(QStringList folders) : folders_(std::move(folders)) {}

PackageManager::~PackageManager() {
  while (!loaded_.empty()) Unload(loaded_.back().record.Name);
}

QStringList PackageManager::DefaultFolders() {
  const QDir bin(QCoreApplication::applicationDirPath());
  return {bin.filePath(QStringLiteral("../packages")), bin.filePath(QStringLiteral("../lib"))};
}

QString PackageManager::FindFile(const QString& nameOrFile) const {
  if (nameOrFile.contains(u'/')) {
    if (!QFileInfo::exists(nameOrFile))
      throw Exception(
          tr("Package %1 cannot be loaded: there is no such file. Check the path.").arg(nameOrFile));
    return nameOrFile;
  }
  for (const QString& folder : folders_)
    for (const QFileInfo& file : Libraries(folder)) {
      const QJsonObject meta = MetaData(file.filePath());
      if (IsDesignPackage(meta) && RecordOf(meta).Name == nameOrFile) return file.filePath();
      // A file of that name that cannot be read is worth telling about.
      if (meta.isEmpty() && file.completeBaseName() == nameOrFile) return file.filePath();
    }
  throw Exception(
      tr("Package %1 cannot be loaded: it was not found in %2. Build the project or put the package there.")
          .arg(nameOrFile, QDir::cleanPath(folders_.value(0))));
}

TPackageRecord PackageManager::ReadRecord(const QString& nameOrFile) const {
  const QString file = FindFile(nameOrFile);
  const QJsonObject meta = MetaData(file);
  if (!IsDesignPackage(meta))
    throw Exception(
        tr("Package %1 cannot be loaded: %2 is not a design-time package or is damaged. Build it again.")
            .arg(QFileInfo(nameOrFile).completeBaseName(), QDir::cleanPath(file)));
  return RecordOf(meta);
}

QString PackageManager::MissingRequirement(const TPackageRecord& record) const {
  QStringList provided = HostPackages();
  for (const QString& folder : folders_)
    for (const QFileInfo& file : Libraries(folder))
      if (const QJsonObject meta = MetaData(file.filePath()); IsLibrary(meta))
        provided += RecordOf(meta).Provides;
  for (const Loaded& l : loaded_) provided << l.record.Name;
  for (const QString& name : record.Requires)
    if (!provided.contains(name, Qt::CaseInsensitive)) return name;
  return {};
}

void PackageManager::RunRegisterProcedures(IDesignPackage& package) {
  for (const TUnitEntry& unit : package.GetPackageInfoTable()) {
    if (!unit.Register) continue;
    const RegistrationScope scope(&package, unit.Name);
    unit.Register();
  }
}

void PackageManager::Load(const QString& nameOrFile) {
  const TPackageRecord record = ReadRecord(nameOrFile);
  if (IsLoaded(record.Name)) return;
  if (const QString missing = MissingRequirement(record); !missing.isEmpty())
    throw Exception(tr("Package %1 cannot be loaded: it requires package %2, which is not there. Install the "
                       "library that "
                       "provides %2.")
                        .arg(record.Name, missing));
  auto loader = std::make_unique<QPluginLoader>(FindFile(nameOrFile));
  // The code stays mapped after unloading: a window that is still being destroyed may need it.
  loader->setLoadHints(QLibrary::PreventUnloadHint | QLibrary::ResolveAllSymbolsHint);
  auto* package = qobject_cast<IDesignPackage*>(loader->instance());
  if (!package)
    throw Exception(
        tr("Package %1 cannot be loaded: %2. Build the package again for this version of the designer.")
            .arg(record.Name, loader->errorString()));
  bool initialised = false;
  try {
    package->Initialize();
    initialised = true;
    RunRegisterProcedures(*package);
  } catch (...) {
    UnregisterPackage(package);
    if (initialised) package->Finalize();
    loader->unload();
    throw Exception(tr("Package %1 failed to register: %2 Update or remove the package.")
                        .arg(record.Name, CurrentExceptionMessage()));
  }
  loaded_.push_back({record, std::move(loader), package});
  emit ClassesChanged();
}

void PackageManager::Unload(const QString& name) {
  const auto it = std::find_if(loaded_.begin(), loaded_.end(), [&](const Loaded& l) {
    return l.record.Name.compare(name, Qt::CaseInsensitive) == 0;
  });
  if (it == loaded_.end()) return;
  UnregisterPackage(it->package);
  emit ClassesChanged();
  it->package->Finalize();
  it->loader->unload();
  loaded_.erase(it);
}

bool PackageManager::IsLoaded(const QString& name) const {
  return LoadedPackages().contains(name, Qt::CaseInsensitive);
}

QStringList PackageManager::LoadedPackages() const {
  QStringList names;
  for (const Loaded& l : loaded_) names << l.record.Name;
  return names;
}
