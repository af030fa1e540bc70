// The package's main unit: its unit table and the entry points that the IDE calls.
#include "designintf/Package.h"

#include <QObject>

#include "package/registration/VRX_RegMain.h"
#include "package/registration/VRX_RegMainEditors.h"

namespace {
// In the order of the description record. Units that have neither start-up work nor a Register procedure are
// here by name, because the table is what the IDE is told the package contains.
const std::vector<TUnitEntry>& Units() {
  static const std::vector<TUnitEntry> units{
      {"dclvrxmain220"},
      {"pVRXValueListDlg"},
      {"SysInit"},
      {"pVRXControlFaceEditorDlgAddState"},
      {"pVRXControlFaceEditorDlg"},
      {"pVRXDateListEditorDlg"},
      {"pVRXVldRegExpEditor"},
      {"pVRXTeethEditorDlg"},
      {"pVRXStyleManProp"},
      {"pVRXCstMain"},
      {"pVRXCPGetMain"},
      {"pVRXLightEditorDlg"},
      {"pVRXBmpRegionEditorDlg"},
      {"pVRXPointListEditorDlg"},
      {"pVRXShapeEditorDlg"},
      {"pVRXCaptionEditorDlg"},
      {"pVRXSimpleBevelEditorDlg"},
      {"pVRXShadowEditorDlg"},
      {"pVRX3DEffectEditorDlg"},
      {"pVRXLEDEditorDlg"},
      {"pVRXSendKeyEditorDlg"},
      {"pVRXOSPropForm"},
      {"pVRXRegOS"},
      {"pVRXMMButtonFaceEditorDlg"},
      {"pVRXHideNonVC"},
      {"pVRXGraphicLabelEditorDlg"},
      {"pVRXFilterPropertyEditorDlg"},
      {"pVRXDlgBtnEditorDlg"},
      {"pVRXButtonBarEditorDlg"},
      {"pVRXPeMain"},
      {"pVRXCEMain"},
      {"VRX_RegMainEditors", nullptr, nullptr, &VRX_RegMainEditors::Register},
      {"VRX_RegMain", nullptr, nullptr, &VRX_RegMain::Register},
  };
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
