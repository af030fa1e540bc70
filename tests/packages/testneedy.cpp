#include "tests/packages/TestPackage.h"

class NeedyPackage : public TestPackage {
  Q_OBJECT
  Q_INTERFACES(IDesignPackage)
  Q_PLUGIN_METADATA(IID VRX_DESIGN_PACKAGE_IID FILE "testneedy.json")
 public:
  const std::vector<TUnitEntry>& GetPackageInfoTable() const override {
    static const std::vector<TUnitEntry> units{{"testneedy", [] { Note("init needy"); }}};
    return units;
  }
};

#include "testneedy.moc"
