// Finds, checks, loads and unloads design-time packages.
#pragma once
#include <QObject>
#include <QPluginLoader>

#include "designintf/DesignRegistry.h"
#include "designintf/Package.h"

class PackageManager : public QObject {
  Q_OBJECT
 public:
  // Looks for packages and libraries in these folders, in order. What packages register goes to the registry,
  // which outlives the manager.
  explicit PackageManager(QStringList folders, DesignRegistry& registry = DesignRegistry::Current());
  ~PackageManager() override;
  // The folders beside the running program.
  static QStringList DefaultFolders();
  static QString DefaultPackage() { return QStringLiteral("dclvrxmain220"); }

  // The record of a package, found by name (no regard to case) or given as a file, without running its code.
  // Throws Exception with cause and fix when there is none.
  TPackageRecord ReadRecord(const QString& nameOrFile);
  // Loads the package: its required packages are checked in order, its units initialised, its Register
  // procedures called. Loading a loaded package does nothing. On failure everything is taken back and
  // Exception tells cause and fix.
  void Load(const QString& nameOrFile);
  // Drops the package's registrations and finalises it. The package is gone, too, when its Finalize throws;
  // EPackageError tells of it then.
  void Unload(const QString& name);
  // What is loaded, unloaded and loaded again in the same order: so packages register by options that are
  // others now. Throws as Load and Unload do; the packages after the one that failed are gone then, too.
  void LoadAgain();
  DesignRegistry& Registry() const { return registry_; }
  bool IsLoaded(const QString& name) const;
  QStringList LoadedPackages() const;
  // What is odd but did not stop anything: other files that claim a package's name.
  const QStringList& Warnings() const { return warnings_; }

 signals:
  // Rows of a package came or went; open forms make their components anew. When a package goes, its code is
  // still there to destroy the old ones.
  void ClassesChanged();

 private:
  struct Loaded {
    TPackageRecord record;
    std::unique_ptr<QPluginLoader> loader;
    IDesignPackage* package;
  };
  QString FindFile(const QString& nameOrFile);
  static TPackageRecord RecordIn(const QString& file, const QString& nameOrFile);
  void RequireRequirements(const TPackageRecord& record);
  QString WhyMissing(const TPackageRecord& record, const QString& required, const QStringList& provided);

  QStringList folders_;
  DesignRegistry& registry_;
  std::vector<Loaded> loaded_;
  QStringList warnings_;
};
