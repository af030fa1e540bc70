#include "tests/packages/TestPackage.h"

class InitThrowsPackage : public TestPackage {
  Q_OBJECT
  Q_INTERFACES(IDesignPackage)
  Q_PLUGIN_METADATA(IID VRX_DESIGN_PACKAGE_IID FILE "testinitthrows.json")
 public:
  const std::vector<TUnitEntry>& GetPackageInfoTable() const override {
    static const std::vector<TUnitEntry> units{
        {"testinitthrows", [] { throw Exception(QStringLiteral("The unit does not start.")); }, nullptr,
         [] { Note("register"); }}};
    return units;
  }
};

#include "testinitthrows.moc"
