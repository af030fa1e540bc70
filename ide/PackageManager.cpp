#include "ide/PackageManager.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include "designintf/PackageCall.h"
#include "rtl/Exceptions.h"

namespace {
// What the host's own layers stand for.
const QStringList& HostPackages() {
  static const QStringList names{QStringLiteral("rtl220"), QStringLiteral("vcl220"),
                                 QStringLiteral("vclx220"), QStringLiteral("designide220"),
                                 QStringLiteral("dclstd220")};
  return names;
}

// The loader looks for a relative name in its own folders.
QString Loadable(const QString& file) { return QFileInfo(file).absoluteFilePath(); }

QJsonObject MetaData(const QString& file) { return QPluginLoader(Loadable(file)).metaData(); }

bool IsDesignPackage(const QJsonObject& meta) {
  return meta.value(QStringLiteral("IID")).toString() == QLatin1StringView(VRX_DESIGN_PACKAGE_IID);
}
bool IsLibrary(const QJsonObject& meta) {
  return meta.value(QStringLiteral("IID")).toString() == QLatin1StringView(VRX_LIBRARY_PACKAGE_IID);
}
TPackageRecord RecordOf(const QJsonObject& meta) {
  return TPackageRecord::FromJson(meta.value(QStringLiteral("MetaData")).toObject());
}

QFileInfoList Libraries(const QString& folder) {
  return QDir(folder).entryInfoList({QStringLiteral("*.so")}, QDir::Files, QDir::Name);
}
}  // namespace

PackageManager::PackageManager(QStringList folders, DesignRegistry& registry)
    : folders_(std::move(folders)), registry_(registry) {}

PackageManager::~PackageManager() {
  while (!loaded_.empty()) {
    try {
      Unload(loaded_.back().record.Name);
    } catch (const Exception& e) {
      TellPackageProblem(e.Message());
    }
  }
}

QStringList PackageManager::DefaultFolders() {
  const QDir bin(QCoreApplication::applicationDirPath());
  return {bin.filePath(QStringLiteral("../packages")), bin.filePath(QStringLiteral("../lib"))};
}

// The file of that name is the package, in whichever folder it stands; without one it is whatever file says
// that it is the package. A file that only claims the name never stands before the one that bears it.
QString PackageManager::FindFile(const QString& nameOrFile) {
  if (nameOrFile.contains(u'/')) {
    if (!QFileInfo::exists(nameOrFile))
      throw Exception(
          tr("Package %1 cannot be loaded: there is no such file. Check the path.").arg(nameOrFile));
    return nameOrFile;
  }
  const auto isName = [&](const QString& name) { return name.compare(nameOrFile, Qt::CaseInsensitive) == 0; };
  QStringList named, claiming;
  for (const QString& folder : folders_)
    for (const QFileInfo& file : Libraries(folder)) {
      const QJsonObject meta = MetaData(file.filePath());
      // A file of that name that cannot be read is worth telling about.
      const bool fits = meta.isEmpty() || (IsDesignPackage(meta) && isName(RecordOf(meta).Name));
      if (isName(file.completeBaseName()) && fits)
        named << file.filePath();
      else if (!meta.isEmpty() && fits)
        claiming << file.filePath();
    }
  const QStringList all = named + claiming;
  if (all.isEmpty())
    throw Exception(tr("Package %1 cannot be loaded: it was not found in %2. Build the project or put the "
                       "package there.")
                        .arg(nameOrFile, QDir::cleanPath(folders_.value(0))));
  for (const QString& other : all.mid(1)) {
    const QString warning = tr("Package %1 is taken from %2; %3 claims the same name and is ignored. Remove "
                               "one of them.")
                                .arg(nameOrFile, QDir::cleanPath(all[0]), QDir::cleanPath(other));
    if (!warnings_.contains(warning)) warnings_ << warning;
  }
  return all[0];
}

TPackageRecord PackageManager::ReadRecord(const QString& nameOrFile) {
  return RecordIn(FindFile(nameOrFile), nameOrFile);
}

TPackageRecord PackageManager::RecordIn(const QString& file, const QString& nameOrFile) {
  const QJsonObject meta = MetaData(file);
  TPackageRecord record = IsDesignPackage(meta) ? RecordOf(meta) : TPackageRecord();
  if (record.Name.isEmpty())
    throw Exception(
        tr("Package %1 cannot be loaded: %2 is not a design-time package or is damaged. Build it again.")
            .arg(QFileInfo(nameOrFile).completeBaseName(), QDir::cleanPath(file)));
  return record;
}

void PackageManager::RequireRequirements(const TPackageRecord& record) {
  QStringList provided = HostPackages();
  for (const QString& folder : folders_)
    for (const QFileInfo& file : Libraries(folder))
      if (const QJsonObject meta = MetaData(file.filePath()); IsLibrary(meta))
        provided += RecordOf(meta).Provides;
  for (const Loaded& l : loaded_) provided << l.record.Name;
  for (const QString& name : record.Requires)
    if (!provided.contains(name, Qt::CaseInsensitive))
      throw Exception(tr("Package %1 cannot be loaded: it requires package %2, %3")
                          .arg(record.Name, name, WhyMissing(record, name, provided)));
}

namespace {
// The name without the version at its end.
QString WithoutVersion(QString name) {
  while (!name.isEmpty() && name.back().isDigit()) name.chop(1);
  return name.toLower();
}
}  // namespace

// The rest of a sentence, and what to do.
QString PackageManager::WhyMissing(const TPackageRecord& record, const QString& required,
                                   const QStringList& provided) {
  for (const QString& other : provided)
    if (WithoutVersion(other) == WithoutVersion(required))
      return tr("and here is %1. Build the package for this version.").arg(other);
  try {
    const TPackageRecord found = ReadRecord(required);
    if (found.Requires.contains(record.Name, Qt::CaseInsensitive))
      return tr("which requires %1. Neither can be first: one of them must be built without the other.")
          .arg(record.Name);
    return tr("which is not loaded. Load %1 first.").arg(required);
  } catch (const Exception&) {
    return tr("which is not there. Install the library that provides %1.").arg(required);
  }
}

namespace {
template <class F>
decltype(auto) Call(const TPackageRecord& record, const QString& call, F&& f) {
  return PackageCall([&] { return TPackageCall{record.Name, call}; }, std::forward<F>(f));
}

void RunRegisterProcedures(DesignRegistry& registry, const TPackageRecord& record, IDesignPackage& package) {
  const auto& units =
      *Call(record, QStringLiteral("GetPackageInfoTable"), [&] { return &package.GetPackageInfoTable(); });
  for (const TUnitEntry& unit : units) {
    if (!unit.Register) continue;
    const RegistrationScope scope(registry, &package, unit.Name);
    Call(record, QStringLiteral("Register of %1").arg(QString::fromLatin1(unit.Name)),
         [&] { unit.Register(); });
  }
}

void Finalize(const TPackageRecord& record, IDesignPackage& package) {
  Call(record, QStringLiteral("Finalize"), [&] { package.Finalize(); });
}
}  // namespace

void PackageManager::Load(const QString& nameOrFile) {
  const QString file = FindFile(nameOrFile);
  const TPackageRecord record = RecordIn(file, nameOrFile);
  if (IsLoaded(record.Name)) return;
  RequireRequirements(record);
  auto loader = std::make_unique<QPluginLoader>(Loadable(file));
  // The code stays mapped after unloading: a window that is still being destroyed may need it.
  loader->setLoadHints(QLibrary::PreventUnloadHint | QLibrary::ResolveAllSymbolsHint);
  IDesignPackage* package = nullptr;
  bool initialised = false;
  try {
    package = Call(record, QStringLiteral("constructor"),
                   [&] { return qobject_cast<IDesignPackage*>(loader->instance()); });
    if (!package)
      throw Exception(
          tr("Package %1 cannot be loaded: %2. Build the package again for this version of the designer.")
              .arg(record.Name, loader->errorString()));
    registry_.NamePackage(package, record.Name);
    Call(record, QStringLiteral("Initialize"), [&] { package->Initialize(); });
    initialised = true;
    RunRegisterProcedures(registry_, record, *package);
  } catch (const EPackageError& e) {
    if (package) registry_.UnregisterPackage(package);
    QString message = tr("Package %1 cannot be loaded: %2 failed: %3 Update or remove the package.")
                          .arg(record.Name, e.Where().Call, e.Reason());
    try {
      if (initialised) Finalize(record, *package);
    } catch (const EPackageError& last) {
      message += u' ' + tr("%1 failed, too: %2").arg(last.Where().Call, last.Reason());
    }
    loader->unload();
    throw Exception(message);
  }
  loaded_.push_back({record, std::move(loader), package});
  emit ClassesChanged();
}

void PackageManager::Unload(const QString& name) {
  const auto it = std::find_if(loaded_.begin(), loaded_.end(), [&](const Loaded& l) {
    return l.record.Name.compare(name, Qt::CaseInsensitive) == 0;
  });
  if (it == loaded_.end()) return;
  registry_.UnregisterPackage(it->package);
  emit ClassesChanged();
  const Loaded going = std::move(*it);
  loaded_.erase(it);
  const auto unload = qScopeGuard([&] { going.loader->unload(); });
  Finalize(going.record, *going.package);
}

void PackageManager::LoadAgain() {
  QStringList files;
  for (const Loaded& l : loaded_) files << l.loader->fileName();
  while (!loaded_.empty()) Unload(loaded_.back().record.Name);
  for (const QString& file : files) Load(file);
}

bool PackageManager::IsLoaded(const QString& name) const {
  return LoadedPackages().contains(name, Qt::CaseInsensitive);
}

QStringList PackageManager::LoadedPackages() const {
  QStringList names;
  for (const Loaded& l : loaded_) names << l.record.Name;
  return names;
}
