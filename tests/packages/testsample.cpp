#include "tests/packages/TestPackage.h"

class TSampleGauge : public TGraphicControl {
  VRX_CLASS(TSampleGauge)
 public:
  explicit TSampleGauge(TComponent* owner) : TGraphicControl(owner) { SetBounds(0, 0, 60, 20); }
  int Level() const { return level_; }
  void SetLevel(int v) { level_ = v; }
  void Paint(TCanvas& canvas) override { canvas.FillRect(ClientRect(), clRed); }

 private:
  int level_ = 0;
};
const TClass& TSampleGauge::StaticClass() {
  static const TClass cls(DescribeClass<TSampleGauge>("TSampleGauge", TGraphicControl::StaticClass())
                              .Published("Level", &TSampleGauge::Level, &TSampleGauge::SetLevel, 0));
  return cls;
}

namespace {
class TLevelProperty : public TIntegerProperty {
 public:
  using TIntegerProperty::TIntegerProperty;
};
class TGaugeEditor : public TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
};
void RegisterFirst() {
  Note("register first");
  RegisterComponents(QStringLiteral("Samples"), {&TSampleGauge::StaticClass()});
  RegisterComponentEditor(TSampleGauge::StaticClass(), VRX_COMPONENT_EDITOR(TGaugeEditor));
}
void RegisterSecond() {
  Note("register second");
  RegisterPropertyEditor(TypeInfoOf<int>::Get(), &TSampleGauge::StaticClass(), "Level",
                         VRX_PROPERTY_EDITOR(TLevelProperty));
  RegisterPropertiesInCategory(QStringLiteral("Gauges"), TSampleGauge::StaticClass(),
                               {QStringLiteral("Level")});
}
const std::vector<TUnitEntry>& Units() {
  static const std::vector<TUnitEntry> units{
      {"testsample", [] { Note("init first"); }, [] { Note("final first"); }, RegisterFirst},
      {"Second", [] { Note("init second"); }, [] { Note("final second"); }, RegisterSecond}};
  return units;
}
}  // namespace

class SamplePackage : public TestPackage {
  Q_OBJECT
  Q_INTERFACES(IDesignPackage)
  Q_PLUGIN_METADATA(IID VRX_DESIGN_PACKAGE_IID FILE "testsample.json")
 public:
  const std::vector<TUnitEntry>& GetPackageInfoTable() const override { return Units(); }
};

#include "testsample.moc"
