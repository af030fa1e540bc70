#include <stdexcept>

#include "tests/packages/TestPackage.h"

// A control that works, one that cannot be made, and editors that throw whatever they like.
class TBadGauge : public TGraphicControl {
  VRX_CLASS(TBadGauge)
 public:
  explicit TBadGauge(TComponent* owner) : TGraphicControl(owner) { SetBounds(0, 0, 60, 20); }
  int Level() const { return level_; }
  void SetLevel(int v) { level_ = v; }
  int Mark() const { return mark_; }
  void SetMark(int v) { mark_ = v; }
  void Paint(TCanvas&) override {}

 private:
  int level_ = 0, mark_ = 0;
};
const TClass& TBadGauge::StaticClass() {
  static const TClass cls(DescribeClass<TBadGauge>("TBadGauge", TGraphicControl::StaticClass())
                              .Published("Level", &TBadGauge::Level, &TBadGauge::SetLevel, 0)
                              .Published("Mark", &TBadGauge::Mark, &TBadGauge::SetMark, 0));
  return cls;
}
class TNeverMade : public TGraphicControl {
  VRX_CLASS(TNeverMade)
 public:
  explicit TNeverMade(TComponent* owner) : TGraphicControl(owner) { throw 42; }
  void Paint(TCanvas&) override {}
};
const TClass& TNeverMade::StaticClass() {
  static const TClass cls(DescribeClass<TNeverMade>("TNeverMade", TGraphicControl::StaticClass()));
  return cls;
}

namespace {
class TBadLevelProperty : public TIntegerProperty {
 public:
  using TIntegerProperty::TIntegerProperty;
  QString GetValue() const override { throw 42; }
  void SetValue(const QString& value) override {
    TIntegerProperty::SetValue(value);
    throw 42;
  }
};
class TBadMarkProperty : public TIntegerProperty {
 public:
  TBadMarkProperty(IDesigner* designer, TInstProps props) : TIntegerProperty(designer, std::move(props)) {
    throw std::runtime_error("No mark today.");
  }
};
class TBadGaugeEditor : public TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
  int GetVerbCount() const override { return 1; }
  void ExecuteVerb(int) override {
    static_cast<TBadGauge*>(GetComponent())->SetLeft(77);
    throw 42;
  }
};
void RegisterAll() {
  RegisterComponents(QStringLiteral("Bad"), {&TBadGauge::StaticClass(), &TNeverMade::StaticClass()});
  RegisterComponentEditor(TBadGauge::StaticClass(), VRX_COMPONENT_EDITOR(TBadGaugeEditor));
  RegisterPropertyEditor(TypeInfoOf<int>::Get(), &TBadGauge::StaticClass(), "Level",
                         VRX_PROPERTY_EDITOR(TBadLevelProperty));
  RegisterPropertyEditor(TypeInfoOf<int>::Get(), &TBadGauge::StaticClass(), "Mark",
                         VRX_PROPERTY_EDITOR(TBadMarkProperty));
}
}  // namespace

class BadEndPackage : public TestPackage {
  Q_OBJECT
  Q_INTERFACES(IDesignPackage)
  Q_PLUGIN_METADATA(IID VRX_DESIGN_PACKAGE_IID FILE "testbadend.json")
 public:
  const std::vector<TUnitEntry>& GetPackageInfoTable() const override {
    static const std::vector<TUnitEntry> units{{"testbadend", nullptr,
                                                [] {
                                                  Note("final badend");
                                                  throw 42;
                                                },
                                                RegisterAll}};
    return units;
  }
};

#include "testbadend.moc"
