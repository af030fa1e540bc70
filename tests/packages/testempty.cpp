#include "tests/packages/TestPackage.h"

class EmptyPackage : public TestPackage {
  Q_OBJECT
  Q_INTERFACES(IDesignPackage)
  Q_PLUGIN_METADATA(IID VRX_DESIGN_PACKAGE_IID FILE "testempty.json")
 public:
  const std::vector<TUnitEntry>& GetPackageInfoTable() const override {
    static const std::vector<TUnitEntry> units{{"testempty", [] { Note("init testempty"); }}};
    return units;
  }
};

#include "testempty.moc"
