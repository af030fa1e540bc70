#include "dclstd/StandardVerbs.h"

#include "dclstd/ActionListWindow.h"
#include "dclstd/CellsDialog.h"
#include "dclstd/ImageListDialog.h"
#include "dclstd/MenuWindow.h"
#include "designintf/EditorSource.h"
#include "rtl/Collection.h"
#include "rtl/Strings.h"
#include "vcl/Grid.h"
#include "vcl/ListItems.h"
#include "vcl/Picture.h"
#include "vcl/Previewed.h"
#include "vcl/TreeNodes.h"

namespace {
bool Is(const TPropInfo& property, const TClass& cls) {
  return property.IsPart() && property.PropType->ClassType().InheritsFrom(cls);
}
bool IsItems(const TPropInfo& property) {
  return Is(property, TCollection::StaticClass()) || Is(property, TTreeNodes::StaticClass()) ||
         Is(property, TListItems::StaticClass());
}
const TPropInfo* PictureOf(const TPersistent& component) {
  const TPropInfo* property = component.ClassType().FindProp("Picture");
  return property && Is(*property, TPicture::StaticClass()) ? property : nullptr;
}
}  // namespace

std::vector<const TPropInfo*> TStandardEditor::Listed() const {
  std::vector<const TPropInfo*> listed;
  for (const TPropInfo* p : GetComponent()->ClassType().Properties())
    if (p->Visibility == TPropVisibility::Published && Is(*p, TCollection::StaticClass()))
      listed.push_back(p);
  for (const char* name : {"Items", "Lines", "Tabs"})
    if (const TPropInfo* p = GetComponent()->ClassType().FindProp(name);
        p && (Is(*p, TStrings::StaticClass()) || IsItems(*p)))
      listed.push_back(p);
  return listed;
}

int TStandardEditor::Previews() const { return dynamic_cast<const IPreviewed*>(GetComponent()) ? 1 : 0; }

QString TStandardEditor::GetVerb(int index) const {
  if (index == 0 && Previews()) return QObject::tr("Preview...");
  const auto listed = Listed();
  index -= Previews();
  if (index < 0 || index >= static_cast<int>(listed.size())) return {};
  const TPropInfo& property = *listed[static_cast<std::size_t>(index)];
  const QString name = QString::fromLatin1(property.Name);
  return IsItems(property) ? QObject::tr("%1 Editor...").arg(name) : QObject::tr("Edit %1...").arg(name);
}

void TStandardEditor::ExecuteVerb(int index) {
  if (auto* dialog = dynamic_cast<IPreviewed*>(GetComponent()); dialog && index == 0)
    return dialog->Preview();
  const auto listed = Listed();
  index -= Previews();
  if (index >= 0 && index < static_cast<int>(listed.size()))
    EditProperty(*listed[static_cast<std::size_t>(index)]);
}

// By whatever editor the property has.
void TStandardEditor::EditProperty(const TPropInfo& property) {
  if (!Source()) return;
  std::unique_ptr<TPropertyEditor> editor;
  Source()->GetComponentProperties({GetComponent()}, GetDesigner(), [&](std::unique_ptr<TPropertyEditor> e) {
    if (e->GetPropInfo().Name == property.Name) editor = std::move(e);
  });
  if (!editor) return;
  PackageCall([call = CallOf(*editor, "Edit")] { return call; }, [&] { editor->Edit(); });
}

void TStandardEditor::Edit() {
  if (Previews()) return ExecuteVerb(0);
  const auto listed = Listed();
  if (!listed.empty() && IsItems(*listed.front())) return EditProperty(*listed.front());
  if (const TPropInfo* picture = PictureOf(*GetComponent())) return EditProperty(*picture);
  TDefaultEditor::Edit();
}

QString TStringGridEditor::GetVerb(int index) const {
  return index == GetVerbCount() - 1 ? QObject::tr("Edit Cells...") : TStandardEditor::GetVerb(index);
}
// Forms of one family have no texts of cells: their programs would not know what to do with them.
QString TStringGridEditor::GetVerbProblem(int index) const {
  if (index != GetVerbCount() - 1) return TStandardEditor::GetVerbProblem(index);
  const auto* grid = As<TStringGrid>(GetComponent());
  return !grid || grid->IsOfOtherFamily() || grid->IsKept(&TStringGrid::Cells)
             ? QString()
             : QObject::tr("forms of this kind keep no cells; the program fills %1").arg(grid->Name());
}
void TStringGridEditor::ExecuteVerb(int index) {
  if (index != GetVerbCount() - 1) return TStandardEditor::ExecuteVerb(index);
  if (auto* grid = As<TStringGrid>(GetComponent()); grid && GetDesigner() && EditCells(*grid))
    GetDesigner()->Modified();
}

void TOneVerbEditor::ExecuteVerb(int index) {
  if (index == 0 && GetDesigner()) Run(*GetDesigner());
}

QString TMenuEditor::Verb() const { return QObject::tr("Menu Designer..."); }
void TMenuEditor::Run(IDesigner& designer) {
  if (auto* menu = As<TMenu>(GetComponent())) ComponentWindow::Show<MenuWindow>(designer, *menu);
}

QString TActionListEditor::Verb() const { return QObject::tr("Action List Editor..."); }
void TActionListEditor::Run(IDesigner& designer) {
  if (auto* list = As<TActionList>(GetComponent())) ComponentWindow::Show<ActionListWindow>(designer, *list);
}

QString TImageListEditor::Verb() const { return QObject::tr("Image List Editor..."); }
void TImageListEditor::Run(IDesigner& designer) {
  if (auto* list = As<TCustomImageList>(GetComponent()); list && EditImageList(*list)) designer.Modified();
}
