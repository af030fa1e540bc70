#include "package/registration/VRX_RegMain.h"

#include "designintf/DesignIntf.h"
#include "library/LibraryClasses.h"
#include "library/controls/Button3D.h"
#include "library/controls/LEDLabel.h"
#include "library_design/pVRXCommon.h"
#include "package/component_editors/pVRXCEMain.h"
#include "package/property_editors/pVRXPeMain.h"

const std::vector<TPageRow>& PageRows() {
  using enum TPageCall;
  static const std::vector<TPageRow> rows{
      {Components, "VRX Ext", false, {"TVRXLEDLabel"}},
      {Components, "VRX MM", false, {"TVRX3DEffectButton", "TVRXShapeControl", "TVRXWndButtonShape"}},
  };
  return rows;
}

void RegisterPages(const std::vector<TPageRow>& rows,
                   const std::function<const TClass*(const QByteArray&)>& find,
                   const std::function<void(const QByteArray&)>& editors) {
  for (const TPageRow& row : rows) {
    // Asked at each call: the option belongs to the moment of registration.
    if (row.LabeledOnly && !VRXEditorOption(TVRXEditorOption::LabeledVariants)) continue;
    std::vector<const TClass*> classes;
    for (const QByteArray& name : row.Classes)
      if (const TClass* cls = find(name)) classes.push_back(cls);
    if (!classes.empty()) {
      if (row.Call == TPageCall::Components)
        RegisterComponents(QString::fromLatin1(row.Name), classes);
      else
        RegisterActions(QString::fromLatin1(row.Name), classes, nullptr);
    }
    editors(row.Name);
  }
}

void VRX_RegMain::Register() {
  RegisterPages(PageRows(), FindLibraryClass, [](const QByteArray& page) {
    if (page == "VRX Ext") {
      RegisterPropertyEditor(TVRXLED::StaticTypeInfo(), nullptr, {}, VRX_PROPERTY_EDITOR(TVRXLEDProperty));
      RegisterComponentEditor(TVRXLEDCustomLabel::StaticClass(),
                              VRX_COMPONENT_EDITOR(TVRXLEDLabelComponentEditor));
    }
    if (page == "VRX MM")
      RegisterComponentEditor(TVRXCustom3DButton::StaticClass(),
                              VRX_COMPONENT_EDITOR(TVRXExtGraphicButtonComponentEditor));
  });
}
