// What a person does in the style editor.
#include <QRadioButton>
#include <QTreeWidget>

#include "dclstd/EditValue.h"
#include "library_design/PictureDialog.h"
#include "package/styles/StyleDialogs.h"
#include "package/styles/StyleModel.h"
#include "package/styles/StylePreview.h"
#include "package/styles/StylesView.h"
#include "package/styles/pVRXStyleManProp.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Exceptions.h"
#include "vcl/PictureFile.h"
#include "vcl/Prompts.h"

using D = TfrmVRXStyleManProp;
using Node = TVRXStyleNode;

namespace {
const QString FileFilter = QStringLiteral("Style files (*.vrxstyles);;All files (*)");
const TVRXPropListItem* ItemOf(const QTreeWidgetItem* item) {
  return item ? static_cast<const TVRXPropListItem*>(item->data(0, D::PropertyRole).value<void*>()) : nullptr;
}
}  // namespace

// --- The edited manager

bool TfrmVRXStyleManProp::Execute(TVRXStyleManager& manager) {
  // Styles that nobody can read are not replaced unasked.
  const QString title = QString::fromLatin1(VRXStyleEditorTitle);
  if (!manager.Problem().isEmpty() &&
      !Prompts().ConfirmWarning(
          ApplicationOwner(), title,
          QStringLiteral(
              "The styles of %1 cannot be read and are kept as they are: %2. Start with no styles? "
              "What you make then takes their place.")
              .arg(manager.Name(), manager.Problem())))
    return false;
  TfrmVRXStyleManProp dialog(ApplicationOwner());
  dialog.SetData(manager);
  if (dialog.ShowModal() != mrOk) return false;
  dialog.GetData(manager);
  return true;
}

void TfrmVRXStyleManProp::SetData(const TVRXStyleManager& manager) {
  edited_ = &manager;
  manager_.SetStyles(manager.Styles());
  undo_.clear();
  redo_.clear();
  BuildStylesTreeView();
  FillPropTree(Grouping());
}
void TfrmVRXStyleManProp::GetData(TVRXStyleManager& manager) { manager.SetStyles(manager_.Styles()); }

void TfrmVRXStyleManProp::BuildStylesTreeView() {
  const QStringList open = Styles->Open();
  const Node* selected = Styles->Selected();
  const QString path = selected ? selected->StylePath() : QString();
  const QString property = selected && selected->IsProperty() ? selected->Name : QString();
  cut_ = nullptr;
  model_->Do([this] { tree_->Rebuild(); });
  Styles->Reopen(open);
  const Node* again = tree_->Find(path);
  if (again && !property.isEmpty())
    if (const Node* child = again->Child(property, true)) again = child;
  Styles->Select(again ? again : &tree_->Root());
  ShowPreviewControl();
}

// --- Steps

D::State TfrmVRXStyleManProp::Now() const {
  State state{manager_.Styles()};
  const std::function<void(const Node&)> walk = [&](const Node& node) {
    const QString path = node.StylePath();
    const TVRXStyles::Values* values = manager_.Styles().Find(path);
    for (const auto& child : node.Children)
      if (!child->IsProperty())
        walk(*child);
      else if (!values || !values->count({child->Name, child->TypeName}))
        state.Properties.push_back({path, child->Name, child->TypeName});
  };
  walk(tree_->Root());
  return state;
}

// The tree is made of the styles; for that moment properties without a value have one.
void TfrmVRXStyleManProp::GoTo(const State& state) {
  manager_.SetStyles(state.Styles);
  for (const Loose& property : state.Properties)
    manager_.WritePropValue(property.Style, property.Name, QString(), property.TypeName);
  BuildStylesTreeView();
  manager_.SetStyles(state.Styles);
  ShowPreviewControl();
}

void TfrmVRXStyleManProp::Step(const std::function<void()>& change) {
  SavePropValue();
  Change(change);
}
void TfrmVRXStyleManProp::Change(const std::function<void()>& change) {
  if (stepping_) return change();
  stepping_ = true;
  State before = Now();
  const auto end = [&] {
    stepping_ = false;
    if (cut_ && model_->IsGone(cut_)) cut_ = nullptr;
    if (Now() == before) return;
    undo_.push_back(std::move(before));
    redo_.clear();
  };
  try {
    model_->Do(change);
  } catch (...) {
    end();
    throw;
  }
  end();
  ShowPreviewControl();
}

namespace {
// The first style that is not as it was; above it, where one has gone.
QString FirstChanged(const TVRXStyles& before, const TVRXStyles& after) {
  for (const auto& [path, values] : after.All())
    if (const auto* old = before.Find(path); !old || *old != values) return path;
  for (const auto& [path, values] : before.All())
    if (!after.Find(path)) return VRXParentStyle(path);
  return {};
}
}  // namespace

void TfrmVRXStyleManProp::Travel(std::deque<State>& from, std::deque<State>& to) {
  SavePropValue();
  if (from.empty()) return;
  to.push_back(Now());
  const State state = std::move(from.back());
  from.pop_back();
  const QString changed = FirstChanged(to.back().Styles, state.Styles);
  GoTo(state);
  const Node* selected = Styles->Selected();
  if (!changed.isEmpty() && !(selected && selected->StylePath() == changed))
    Styles->Select(tree_->Find(changed));
}
void TfrmVRXStyleManProp::Undo() { Travel(undo_, redo_); }
void TfrmVRXStyleManProp::Redo() { Travel(redo_, undo_); }

// --- The property view

TVRXPropViewGrouping TfrmVRXStyleManProp::Grouping() const {
  return byType->isChecked() ? TVRXPropViewGrouping::pvgTypeName : TVRXPropViewGrouping::pvgClassName;
}

QTreeWidgetItem* TfrmVRXStyleManProp::PropertyItem(const TVRXPropListItem& item) const {
  auto* made = new QTreeWidgetItem({item.Name});
  made->setData(0, D::PropertyRole, QVariant::fromValue<void*>(const_cast<TVRXPropListItem*>(&item)));
  if (VRXIsExpandable(item)) made->addChild(new QTreeWidgetItem({QStringLiteral("Dummy")}));
  return made;
}

void TfrmVRXStyleManProp::FillPropTree(TVRXPropViewGrouping grouping) {
  const bool byClass = grouping == TVRXPropViewGrouping::pvgClassName;
  const TVRXPropList& registry = VRXStyleRegistry();
  if (!filtered_) {
    open_.clear();
    for (int i = 0; i < PropTree->topLevelItemCount(); ++i)
      if (PropTree->topLevelItem(i)->isExpanded()) open_ << PropTree->topLevelItem(i)->text(0);
  }
  filtered_ = !fltEdit->text().isEmpty();
  PropTree->clear();
  PropView->clear();
  QList<QTreeWidgetItem*> groups;
  for (const QString& group : byClass ? registry.ClassNames() : registry.TypeNames()) {
    auto* top = new QTreeWidgetItem({group});
    for (const TVRXPropListItem* item :
         byClass ? registry.ItemsOfClass(group, {}) : registry.ItemsOfType(group))
      if (VRXMatchesFilter(item->Name, fltEdit->text())) top->addChild(PropertyItem(*item));
    groups << top;
  }
  PropTree->addTopLevelItems(groups);
  PropTree->sortItems(0, Qt::AscendingOrder);
  // What was found is in sight.
  for (QTreeWidgetItem* top : groups)
    top->setExpanded(filtered_ ? top->childCount() > 0 : open_.contains(top->text(0)));
}

void TfrmVRXStyleManProp::PropTreeExpanding(QTreeWidgetItem* item) {
  const TVRXPropListItem* property = ItemOf(item);
  if (!property || item->childCount() != 1 || ItemOf(item->child(0))) return;
  qDeleteAll(item->takeChildren());
  for (const TVRXPropListItem* part : VRXStyleRegistry().ItemsOfClass(property->TypeName, property->Name))
    if (VRXMatchesFilter(part->Name, fltEdit->text())) item->addChild(PropertyItem(*part));
  item->sortChildren(0, Qt::AscendingOrder);
}

QTreeWidgetItem* TfrmVRXStyleManProp::SelectedProperty() const { return PropTree->selectedItems().value(0); }

void TfrmVRXStyleManProp::PropTreeClick() {
  PropView->clear();
  const TVRXPropListItem* selected = ItemOf(PropTree->currentItem());
  if (!selected) return;
  QList<QTreeWidgetItem*> rows;
  for (const TVRXPropListItem* item : VRXStyleRegistry().ItemsOf(selected->Name))
    rows << new QTreeWidgetItem({item->ClassName, item->TypeName, item->Parent});
  PropView->addTopLevelItems(rows);
  PropView->sortItems(0, Qt::AscendingOrder);
}

QString TfrmVRXStyleManProp::PropertyPathOf(const QTreeWidgetItem* item) const {
  QStringList path;
  const TVRXPropListItem* first = nullptr;
  for (; item && ItemOf(item); item = item->parent()) {
    first = ItemOf(item);
    path.prepend(first->Name);
  }
  // Grouped by types, properties of parts are listed by themselves.
  if (first && !first->Parent.isEmpty()) path.prepend(first->Parent);
  return path.join(u'.');
}

void TfrmVRXStyleManProp::DropFromProperties(QTreeWidgetItem* item, Node* at) {
  if (!item) return;
  const bool grouped = Grouping() == TVRXPropViewGrouping::pvgTypeName;
  Node* made = nullptr;
  Node* const target = at ? at->Style() : &tree_->Root();
  Step([&] {
    if (const TVRXPropListItem* property = ItemOf(item)) {
      tree_->DropProperty(*property, PropertyPathOf(item), at);
      made = target->Child(PropertyPathOf(item), true);
    } else {
      made = tree_->DropClass(item->text(0), at, grouped, cbStateStyles->isChecked());
    }
  });
  Styles->expand(model_->IndexOf(target));
  if (made && !made->IsProperty()) Styles->Select(made);
}

void TfrmVRXStyleManProp::DropStyle(Node* dragged, Node* at, bool copy) {
  if (!dragged) return;
  Node* const target = at ? at->Style() : &tree_->Root();
  if (dragged == at || (dragged->IsProperty() && dragged->Parent == target && dragged->Parent == at)) return;
  Step([&] { tree_->Drop(*dragged, at, copy); });
  Styles->expand(model_->IndexOf(target));
}

// --- Styles

void TfrmVRXStyleManProp::bttLoadFromFileClick() {
  const QString file = Prompts().OpenFileName(this, bttLoadFromFile->toolTip(), {}, FileFilter);
  if (file.isEmpty()) return;
  SavePropValue();
  State before = Now();
  manager_.LoadFromFile(file);
  BuildStylesTreeView();
  undo_.push_back(std::move(before));
  redo_.clear();
}
void TfrmVRXStyleManProp::btnSaveToFileClick() {
  SavePropValue();
  QString file =
      Prompts().SaveFileName(this, btnSaveToFile->toolTip(), QStringLiteral("styles.vrxstyles"), FileFilter);
  if (file.isEmpty()) return;
  if (!file.section(u'/', -1).contains(u'.')) file += QStringLiteral(".vrxstyles");
  manager_.SaveToFile(file);
}

void TfrmVRXStyleManProp::btnAddStyleClick() {
  SavePropValue();
  Node* made = nullptr;
  StyleInputDialog dialog(this, StyleInputDialog::StylePrompt, [&](const QString& name) {
    Step([&] { made = tree_->AddStyle(Styles->Selected(), name, cbStateStyles->isChecked()); });
    return made != nullptr;
  });
  if (dialog.ShowModal() == mrOk) Styles->Select(made);
}

void TfrmVRXStyleManProp::btnDeleteStyleClick() {
  SavePropValue();
  Node* const node = Styles->Selected();
  // The neighbor of the same kind is next, so that who deletes several properties does not come to the style.
  Node *next = node ? node->Parent : nullptr, *before = nullptr;
  if (next) {
    bool behind = false;
    for (const auto& child : node->Parent->Children) {
      if (child->IsProperty() != node->IsProperty()) continue;
      if (behind) {
        before = child.get();
        break;
      }
      behind = child.get() == node;
      if (!behind) before = child.get();
    }
    if (before) next = before;
  }
  bool deleted = false;
  Step([&] { deleted = tree_->Delete(node, cbConfirmDeletion->isChecked()); });
  if (deleted) Styles->Select(next);
}

void TfrmVRXStyleManProp::btnAddComponentClick() {
  StyleInputDialog dialog(this, StyleInputDialog::ClassPrompt,
                          [this](const QString& name) { return tree_->AddComponent(name); });
  if (dialog.ShowModal() != mrOk) return;
  if (byComponent->isChecked())
    FillPropTree(Grouping());
  else
    byComponent->setChecked(true);
}

void TfrmVRXStyleManProp::btnCreateStyleClick() {
  const QTreeWidgetItem* selected = SelectedProperty();
  const bool isClass = byComponent->isChecked() && selected && !ItemOf(selected);
  const TClass* cls = isClass ? FindClass(selected->text(0).toLatin1()) : nullptr;
  if (!cls) {
    tree_->CreateStyles({}, {});
    return;
  }
  std::vector<const TComponent*> components;
  QStringList names;
  const TComponent* form = edited_ ? edited_->Owner() : nullptr;
  if (form)
    for (const TComponent* component : form->Components())
      if (component != edited_ && component->InheritsFrom(*cls) && !component->Name().isEmpty()) {
        components.push_back(component);
        names << component->Name();
      }
  StyleComponentsDialog dialog(this, names);
  if (dialog.ShowModal() != mrOk) return;
  std::vector<const TComponent*> checked;
  for (const int row : dialog.Checked()) checked.push_back(components[static_cast<std::size_t>(row)]);
  if (checked.empty()) return;
  SavePropValue();
  State before = Now();
  const QStringList open = Styles->Open();
  model_->Do([&] { tree_->CreateStyles(selected->text(0), checked); });
  BuildStylesTreeView();
  Styles->Reopen(open);
  Styles->Select(tree_->Find(selected->text(0)));
  undo_.push_back(std::move(before));
  redo_.clear();
}

void TfrmVRXStyleManProp::Cut(bool copy) {
  SavePropValue();
  Node* node = Styles->Selected();
  if (!node) return;
  cut_ = node;
  cutCopies_ = copy && node->IsProperty();
}
void TfrmVRXStyleManProp::Paste() {
  SavePropValue();
  if (!cut_) return;
  Node* const node = cut_;
  if (!cutCopies_) cut_ = nullptr;
  DropStyle(node, Styles->Selected(), cutCopies_);
}

// --- Values

void TfrmVRXStyleManProp::SavePropValue() { Styles->Delegate().Finish(); }
QRect TfrmVRXStyleManProp::GetValueRect(const Node& property) const {
  return Styles->visualRect(model_->IndexOf(&property, 1));
}

void TfrmVRXStyleManProp::ChoosePicture(Node& property) {
  TBitmap picture;
  if (VRXCPGetPicture(this, picture)) {
    const QByteArray bytes = PictureToBytes(picture.Image(), "BMP");
    Step([&] { tree_->SetValue(property, bytes); });
  } else if (VRXStyleBoxesOf(this)(VRXStyleBox(TVRXStyleMessage::ClearBitmap))) {
    Step([&] { tree_->ClearValue(property); });
  }
  ApplyStyleToPreviewControl();
}

// --- The preview

QString TfrmVRXStyleManProp::PreviewClass() const {
  const Node* node = Styles->Selected();
  return node ? TVRXStyleTree::FindAncestorStyle(node->Style()) : QString();
}

void TfrmVRXStyleManProp::ShowPreviewControl() {
  if (stepping_) return;
  PreviewPanel->ShowControl(PreviewClass());
  ApplyStyleToPreviewControl();
}
void TfrmVRXStyleManProp::ApplyStyleToPreviewControl() {
  if (stepping_) return;
  const Node* node = Styles->Selected();
  if (!PreviewPanel->Control() || !node) {
    Label2->setText(QStringLiteral("Preview control with applied style"));
    return;
  }
  PreviewPanel->ApplyStyle(manager_, node->StylePath(), cbCascade->isChecked());
  Label2->setText(
      QStringLiteral("Preview control: %1 styled with '%2'").arg(PreviewClass(), node->Style()->Name));
}
