// What a design-time package tells the IDE before it runs, and the entry points it is run through.
#pragma once
#include <QByteArrayList>
#include <QJsonObject>
#include <QString>
#include <QtPlugin>

#include "rtl/PackageIds.h"

struct TPackageUnit {
  QString Name;
  bool MainUnit = false;
  bool PackageUnit = false;
};

// The description record; read from the library's metadata, without running its code.
struct TPackageRecord {
  QString Name;
  QString Description;
  bool NeverBuild = false;
  bool DesignOnly = false;
  bool RunOnly = false;
  QStringList Requires;
  std::vector<TPackageUnit> Contains;
  // Names of packages that this library itself provides; a design package provides its own.
  QStringList Provides;

  static TPackageRecord FromJson(const QJsonObject& metaData);
  QJsonObject ToJson() const;
};

// One unit: what it does when the package is loaded and unloaded, and its Register procedure; any may be
// null.
struct TUnitEntry {
  const char* Name;
  void (*Initialization)() = nullptr;
  void (*Finalization)() = nullptr;
  void (*Register)() = nullptr;
};

class IDesignPackage {
 public:
  virtual ~IDesignPackage() = default;
  // Runs the units' initialisations in order, each once however often it is called, and the finalisations in
  // reverse when the last call is taken back.
  virtual void Initialize() = 0;
  virtual void Finalize() = 0;
  virtual const std::vector<TUnitEntry>& GetPackageInfoTable() const = 0;
};

Q_DECLARE_INTERFACE(IDesignPackage, VRX_DESIGN_PACKAGE_IID)
