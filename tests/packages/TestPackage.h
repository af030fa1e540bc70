// What the test packages share: they note what happens to them in a property of the application.
#pragma once
#include <QCoreApplication>
#include <QObject>
#include <QVariant>

#include "designintf/DesignIntf.h"
#include "designintf/Package.h"
#include "rtl/Exceptions.h"
#include "vcl/Control.h"

namespace {

void Note(const char* what) {
  QStringList log = qApp->property("packageLog").toStringList();
  log << QString::fromLatin1(what);
  qApp->setProperty("packageLog", log);
}

class TestPackage : public QObject, public IDesignPackage {
 public:
  void Initialize() override {
    if (loads_++ > 0) return;
    for (const TUnitEntry& unit : GetPackageInfoTable())
      if (unit.Initialization) unit.Initialization();
  }
  void Finalize() override {
    if (loads_ == 0 || --loads_ > 0) return;
    const auto& units = GetPackageInfoTable();
    for (auto it = units.rbegin(); it != units.rend(); ++it)
      if (it->Finalization) it->Finalization();
  }

 private:
  int loads_ = 0;
};

}  // namespace
