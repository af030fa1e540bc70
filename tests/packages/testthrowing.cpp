#include "tests/packages/TestPackage.h"

class THalfWay : public TComponent {
  VRX_CLASS(THalfWay)
 public:
  using TComponent::TComponent;
};
const TClass& THalfWay::StaticClass() {
  static const TClass cls(DescribeClass<THalfWay>("THalfWay", TComponent::StaticClass()));
  return cls;
}

class ThrowingPackage : public TestPackage {
  Q_OBJECT
  Q_INTERFACES(IDesignPackage)
  Q_PLUGIN_METADATA(IID VRX_DESIGN_PACKAGE_IID FILE "testthrowing.json")
 public:
  const std::vector<TUnitEntry>& GetPackageInfoTable() const override {
    static const std::vector<TUnitEntry> units{
        {"testthrowing", [] { Note("init throwing"); }, [] { Note("final throwing"); },
         [] {
           RegisterComponents(QStringLiteral("Half"), {&THalfWay::StaticClass()});
           throw Exception(QStringLiteral("The gauge is out of order."));
         }}};
    return units;
  }
};

#include "testthrowing.moc"
