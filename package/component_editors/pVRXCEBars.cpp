#include "package/component_editors/pVRXCEBars.h"

#include "dclstd/EditValue.h"
#include "library_design/Font3DDialog.h"
#include "library_design/FontDialogs.h"
#include "library_design/LookDialogs.h"
#include "package/component_editors/pVRXCEMain.h"
#include "package/dialogs/pVRXButtonBarEditorDlg.h"
#include "package/dialogs/pVRXDlgBtnEditorDlg.h"
#include "package/dialogs/pVRXSendKeyEditorDlg.h"

const TVRXSendKeyComponentEditor::Verbs TVRXSendKeyComponentEditor::Table = {
    {"SendKeys Test-Editor",
     [](TVRXSendKeys& keys) {
       TVRXSendKeyEditorDlg dialog(ApplicationOwner());
       dialog.Compose(keys.Get(TVRXSendKeys::Keys), keys.Get(TVRXSendKeys::WindowCaption));
       dialog.ShowModal();
       return false;
     }},
};

const TVRXSimplePanelComponentEditor::Verbs TVRXSimplePanelComponentEditor::Table = {
    {"Bevel", Launch(&TVRXSimplePanel::Bevel, VRXCPGetBevel)},
    {"Color",
     [](TVRXSimplePanel& panel) {
       TColor color = panel.Color();
       if (!VRXCPGetColorCP(color)) return false;
       panel.SetColor(color);
       return true;
     }},
    Flag("Transparent"),
};

namespace {
using ButtonsVerb = VerbOf<TVRXDlgButtonPanel>;
ButtonsVerb EditButtons(const char* caption, bool order) {
  return {caption, [order](TVRXDlgButtonPanel& panel, IDesigner& designer) {
            TVRXDlgBtnEditorDlg dialog(ApplicationOwner());
            dialog.SetPanel(panel, designer);
            dialog.GetIniSettings();
            if (order) dialog.ShowOrder();
            if (dialog.ShowModal() != mrOk) return false;
            dialog.SetIniSettings();
            dialog.Execute();
            return true;
          }};
}
}  // namespace
const TVRXDlgButtonComponentEditor::Verbs TVRXDlgButtonComponentEditor::Table = {
    EditButtons("Add Buttons...", false),
    EditButtons("Change Button Order...", true),
    "-",
};

void TVRXButtonBarCollectionEditor::MakeItem(TCollection& collection) {
  const QString caption = QStringLiteral("Section %1").arg(collection.Count());
  static_cast<TVRXBarSection*>(collection.Add())->Set(TVRXBarSection::Caption, caption);
}

namespace {
bool EditSections(TVRXButtonBar& bar, IDesigner& designer) {
  ComponentWindow::Show<TVRXButtonBarCollectionEditor>(designer, bar, PartPath(*bar.Sections()));
  return false;
}
bool EditBar(TVRXButtonBar& bar, IDesigner& designer) {
  TVRXButtonBarEditorDlg dialog(ApplicationOwner());
  dialog.SetBar(bar, designer);
  if (dialog.ShowModal() != mrOk) return false;
  dialog.TakeBar(bar);
  return true;
}
QString WithoutSection(const TVRXButtonBar& bar) {
  return bar.Current() ? QString() : QObject::tr("%1 has no sections").arg(bar.Name());
}
// Why no section stands so far from the open one.
std::function<QString(const TVRXButtonBar&)> WithoutNeighbour(int by) {
  return [by](const TVRXButtonBar& bar) {
    const int to = bar.CurrentIndex() + by;
    if (!bar.Current() || (to >= 0 && to < bar.SectionCount())) return WithoutSection(bar);
    return QObject::tr("%1 has no other section there").arg(bar.Name());
  };
}
using BarVerb = VerbOf<TVRXButtonBar>;
}  // namespace

void TVRXButtonBarCollectionProperty::Edit() {
  auto* sections = As<TVRXBarSections>(GetObjectValue());
  auto* bar = sections ? As<TVRXButtonBar>(sections->GetOwner()) : nullptr;
  if (bar && Designer()) EditSections(*bar, *Designer());
}

const TVRXButtonBarComponentEditor::Verbs TVRXButtonBarComponentEditor::Table = {
    {"Component-Editor", EditBar},
    {"Font3D", Launch(&TVRXButtonBar::Font3D, VRXCPGetFont3D)},
    {"Font", Launch(&TVRXButtonBar::Font, VRXCPGetFont)},
    {"Bevel", Launch(&TVRXButtonBar::Bevel, VRXCPGetBevel)},
    "-",
    {"Section Editor", EditSections},
    {"Add Section", [](TVRXButtonBar& bar) { bar.AddSection(); }},
    BarVerb("Next section", [](TVRXButtonBar& bar) { bar.NextSection(); }).Unless(WithoutNeighbour(1)),
    BarVerb("Prev section", [](TVRXButtonBar& bar) { bar.PrevSection(); }).Unless(WithoutNeighbour(-1)),
    "-",
    BarVerb("Add item", [](TVRXButtonBar& bar) { bar.AddItem(); }).Unless(WithoutSection),
};
bool TVRXButtonBarComponentEditor::EditProperty(const TPropertyEditor& property) const {
  return property.GetName().compare(QStringLiteral("Sections"), Qt::CaseInsensitive) == 0;
}
