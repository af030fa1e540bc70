#include "tests/packages/TestPackage.h"

namespace {
struct Bomb {
  Bomb() { throw 42; }
};
const Bomb bomb;
}  // namespace

class StaticThrowsPackage : public TestPackage {
  Q_OBJECT
  Q_INTERFACES(IDesignPackage)
  Q_PLUGIN_METADATA(IID VRX_DESIGN_PACKAGE_IID FILE "teststaticthrows.json")
 public:
  const std::vector<TUnitEntry>& GetPackageInfoTable() const override {
    static const std::vector<TUnitEntry> units{{"teststaticthrows", [] { Note("init teststaticthrows"); }}};
    return units;
  }
};

#include "teststaticthrows.moc"
