// The package's main unit: its unit table and the entry points that the IDE calls.
#include "designintf/Package.h"

#include <QObject>
#include <string_view>

#include "UnitNames.h"
#include "package/experts/pVRXHideNonVC.h"
#include "package/experts/pVRXRegOS.h"
#include "package/registration/VRX_RegMain.h"
#include "package/registration/VRX_RegMainEditors.h"
#include "package/styles/pVRXStyleManProp.h"

namespace {
// What units do when the package is loaded and unloaded, and their Register procedures. All other units are
// in the table by name, because it is what the IDE is told the package contains.
constexpr TUnitEntry kWork[] = {
    {"pVRXHideNonVC", nullptr, &TVRXHideNonVCfrm::Free, nullptr},
    {"pVRXStyleManProp", &pVRXStyleManProp::Initialization, &pVRXStyleManProp::Finalization, nullptr},
    {"pVRXRegOS", &pVRXRegOS::Initialization, &pVRXRegOS::Finalization, &pVRXRegOS::Register},
    {"VRX_RegMainEditors", nullptr, nullptr, &VRX_RegMainEditors::Register},
    {"VRX_RegMain", nullptr, nullptr, &VRX_RegMain::Register},
};

constexpr const TUnitEntry* WorkOf(std::string_view name) {
  for (const TUnitEntry& work : kWork)
    if (name == work.Name) return &work;
  return nullptr;
}
constexpr bool IsUnit(std::string_view name) {
  for (const char* unit : kUnitNames)
    if (name == unit) return true;
  return false;
}
constexpr bool AllWorkIsOfUnits() {
  for (const TUnitEntry& work : kWork)
    if (!IsUnit(work.Name)) return false;
  return true;
}
static_assert(AllWorkIsOfUnits(), "a unit that works is not in the description record");

// In the order of the description record.
const std::vector<TUnitEntry>& Units() {
  static const std::vector<TUnitEntry> units = [] {
    std::vector<TUnitEntry> all;
    for (const char* name : kUnitNames)
      all.push_back(WorkOf(name) ? *WorkOf(name) : TUnitEntry{name, nullptr, nullptr, nullptr});
    return all;
  }();
  return units;
}
}  // namespace

class VRXPackage : public QObject, public IDesignPackage {
  Q_OBJECT
  Q_INTERFACES(IDesignPackage)
  Q_PLUGIN_METADATA(IID VRX_DESIGN_PACKAGE_IID FILE "dclvrxmain220.json")

 public:
  void Initialize() override {
    if (loads_++ > 0) return;
    for (const TUnitEntry& unit : Units())
      if (unit.Initialization) unit.Initialization();
  }
  void Finalize() override {
    if (loads_ == 0 || --loads_ > 0) return;
    for (auto it = Units().rbegin(); it != Units().rend(); ++it)
      if (it->Finalization) it->Finalization();
  }
  const std::vector<TUnitEntry>& GetPackageInfoTable() const override { return Units(); }

 private:
  int loads_ = 0;
};

#include "Package.moc"
