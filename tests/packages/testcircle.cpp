#include "tests/packages/TestPackage.h"

class CirclePackage : public TestPackage {
  Q_OBJECT
  Q_INTERFACES(IDesignPackage)
  Q_PLUGIN_METADATA(IID VRX_DESIGN_PACKAGE_IID FILE "testcircle.json")
 public:
  const std::vector<TUnitEntry>& GetPackageInfoTable() const override {
    static const std::vector<TUnitEntry> units{{"testcircle", [] { Note("init circle"); }}};
    return units;
  }
};

#include "testcircle.moc"
