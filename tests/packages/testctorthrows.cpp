#include "tests/packages/TestPackage.h"

class CtorThrowsPackage : public TestPackage {
  Q_OBJECT
  Q_INTERFACES(IDesignPackage)
  Q_PLUGIN_METADATA(IID VRX_DESIGN_PACKAGE_IID FILE "testctorthrows.json")
 public:
  CtorThrowsPackage() { throw 42; }
  const std::vector<TUnitEntry>& GetPackageInfoTable() const override {
    static const std::vector<TUnitEntry> units{{"testctorthrows", [] { Note("init testctorthrows"); }}};
    return units;
  }
};

#include "testctorthrows.moc"
