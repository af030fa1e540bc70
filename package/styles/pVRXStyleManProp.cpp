#include "package/styles/pVRXStyleManProp.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QRadioButton>
#include <QSplitter>
#include <QTreeWidget>

#include "designintf/ComponentIcons.h"
#include "designintf/TextChoices.h"
#include "library/controls/Faced.h"
#include "library_design/Named.h"
#include "library_design/pVRXCommon.h"
#include "package/dialogs/FaceIcons.h"
#include "package/styles/StyleDrag.h"
#include "package/styles/StylePreview.h"
#include "package/styles/StylesView.h"
#include "package/styles/pVRXCstMain.h"
#include "vcl/Prompts.h"

using D = TfrmVRXStyleManProp;

namespace {
// What a control that names its style can take; states are styles of others.
QStringList StylesFor(const TPersistent& object) {
  const auto* control = dynamic_cast<const TControl*>(&object);
  const bool takes = control && control->ClassType().FindProp(VRXStyleManagerRef.Name);
  const TVRXStyleManager* manager = takes ? control->Get(VRXStyleManagerRef) : nullptr;
  if (!manager) return {};
  QStringList names;
  manager->GetStyleNames(names);
  names.removeIf([&](const QString& path) { return manager->IsStateStyle(VRXStyleName(path)); });
  return names;
}
}  // namespace

void pVRXStyleManProp::Initialization() {
  VRXCreateStyleRegistry();
  VRXEditStyles = &TfrmVRXStyleManProp::Execute;
  RegisterTextChoices(VRXStyleRef.Name, &StylesFor);
}
void pVRXStyleManProp::Finalization() {
  RegisterTextChoices(VRXStyleRef.Name, nullptr);
  VRXEditStyles = nullptr;
  VRXFreeStyleRegistry();
}

namespace {
constexpr const char* ComponentDrawing =
    "pen line 1.5 brush fill box 3 7 12 12 2 pen accent 2 path 18.5 3 18.5 11 path 14.5 7 22 7";
constexpr const char* CreateDrawing =
    "pen line 1.5 brush fill box 3 4 9 7 1 box 3 14 9 7 1 pen accent 2 path 14.5 7.5 20 7.5 20 17.5 14.5 "
    "17.5 "
    "path 17 15 14.5 17.5 17 20";
QTreeWidget* List(QWidget* parent, const char* name, const char* hint) {
  auto* list = Named(new QTreeWidget(parent), name, hint);
  list->setUniformRowHeights(true);
  list->setEditTriggers(QAbstractItemView::NoEditTriggers);
  return list;
}
}  // namespace

TfrmVRXStyleManProp::TfrmVRXStyleManProp(QWidget* owner)
    : RowDialog(QString::fromLatin1(VRXStyleEditorTitle), owner) {
  setObjectName(QStringLiteral("frmVRXStyleManProp"));
  tree_ = std::make_unique<TVRXStyleTree>(manager_, VRXStyleRegistry(),
                                          [this, show = VRXStyleBoxesOf(this)](const TVRXStyleBox& box) {
                                            return model_->Aside([&] { return show(box); });
                                          });
  model_ = new StyleModel(*tree_, this);
  auto* left = new QWidget(this);
  left->setLayout(PropertyPart());
  auto* right = new QWidget(this);
  auto* column = new QVBoxLayout(right);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(StylePart(), 3);
  column->addLayout(PreviewPart(), 1);
  auto* halves = new QSplitter(this);
  halves->addWidget(left);
  halves->addWidget(right);
  halves->setStretchFactor(0, 2);
  halves->setStretchFactor(1, 3);
  halves->setChildrenCollapsible(false);
  OkButton(OkBtn, "OkBtn");
  CancelButton(CancelBtn, "CancelBtn");
  auto* box = new QVBoxLayout(this);
  box->addWidget(halves, 1);
  box->addLayout(ButtonLine({OkBtn, CancelBtn}));
  BuildMenus();
  // Only styles stand below the root, which keeps no values.
  const auto ofRoot = [this](const QModelIndex& at) {
    const TVRXStyleNode* node = model_->NodeAt(at);
    return !node || node->IsRoot();
  };
  auto& fromProperties =
      *new StyleDrag(*PropTree, *Styles, [this](const QModelIndex& from, const QModelIndex& to, bool) {
        Guarded([&] { DropFromProperties(PropTree->itemFromIndex(from), model_->NodeAt(to)); });
      });
  fromProperties.Takes = [this, ofRoot](const QModelIndex& from, const QModelIndex& to) {
    return !PropTree->itemFromIndex(from)->data(0, PropertyRole).value<void*>() || !ofRoot(to);
  };
  auto& fromStyles =
      *new StyleDrag(*Styles, *Styles, [this](const QModelIndex& from, const QModelIndex& to, bool copy) {
        Guarded([&] { DropStyle(model_->NodeAt(from), model_->NodeAt(to), copy); });
      });
  fromStyles.Takes = [this, ofRoot](const QModelIndex& from, const QModelIndex& to) {
    return !model_->NodeAt(from)->IsProperty() || !ofRoot(to);
  };
  VRXSetThemeMode(*this, 1);
  SetTabSequence();
  FormCreate();
  setSizeGripEnabled(true);
  FillPropTree(Grouping());
  Styles->Select(&tree_->Root());
  resize(QSize(692, 532).expandedTo(minimumSizeHint()));
}

// The views are gone before what they show.
TfrmVRXStyleManProp::~TfrmVRXStyleManProp() {
  if (Styles->Delegate().Editor()) SavePropValue();
  Retire();
  hide();
  Styles->setModel(nullptr);
}

QToolButton* TfrmVRXStyleManProp::SpeedButton(const char* name, const char* text, const char* hint,
                                              const char* drawing, void (D::*click)()) {
  auto* button = Named(new QToolButton(this), name, hint);
  button->setText(QString::fromLatin1(text));
  button->setIcon(DrawnIcon(drawing));
  button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  button->setAutoRaise(true);
  Follows(button);
  connect(button, &QToolButton::clicked, this, [this, click] { Guarded([&] { (this->*click)(); }); });
  return button;
}

QLayout* TfrmVRXStyleManProp::PropertyPart() {
  PVGrouping = Named(new QGroupBox(QStringLiteral("Group properties by"), this), "PVGrouping", "");
  const auto radio = [&](const char* name, const char* text) {
    auto* made = Named(new QRadioButton(QString::fromLatin1(text), PVGrouping), name, "");
    Follows(made);
    connect(made, &QRadioButton::toggled, this, [this](bool on) {
      if (on) Guarded([this] { FillPropTree(Grouping()); });
    });
    return made;
  };
  byType = radio("byType", "Type");
  byComponent = radio("byComponent", "Component");
  auto* columns = new QHBoxLayout(PVGrouping);
  columns->addWidget(byType);
  columns->addWidget(byComponent);
  fltEdit = Named(new QLineEdit(this), "fltEdit", "*Color is everything that ends so");
  fltEdit->setPlaceholderText(QStringLiteral("Set filter here"));
  Follows(fltEdit);
  fltClear = Named(new QToolButton(this), "fltClear", "");
  fltClear->setText(QStringLiteral("Clear"));
  fltClear->setEnabled(false);
  Follows(fltClear);
  connect(fltEdit, &QLineEdit::textChanged, this, [this] {
    fltClear->setEnabled(!fltEdit->text().isEmpty());
    Guarded([this] { FillPropTree(Grouping()); });
  });
  connect(fltClear, &QToolButton::clicked, fltEdit, &QLineEdit::clear);
  PropTree = List(this, "PropTree", "Drag&drop properties to the style tree from here");
  PropTree->setHeaderHidden(true);
  PropTree->setAccessibleName(QStringLiteral("Properties"));
  Follows(PropTree);
  connect(PropTree, &QTreeWidget::itemExpanded, this,
          [this](QTreeWidgetItem* item) { Guarded([&] { PropTreeExpanding(item); }); });
  connect(PropTree, &QTreeWidget::currentItemChanged, this, [this] { Guarded([this] { PropTreeClick(); }); });
  Label1 = Named(new QLabel(QStringLiteral("Selected property is used  in:"), this), "Label1", "");
  PropView = List(this, "PropView", "");
  PropView->setHeaderLabels(
      {QStringLiteral("Class"), QStringLiteral("Property type"), QStringLiteral("Container")});
  PropView->setRootIsDecorated(false);
  PropView->setAccessibleName(Label1->text());
  Label1->setBuddy(PropView);
  Follows(PropView);
  auto* filter = new QHBoxLayout;
  filter->addWidget(fltEdit, 1);
  filter->addWidget(fltClear);
  auto* part = new QVBoxLayout;
  part->setContentsMargins(0, 0, 0, 0);
  part->addWidget(PVGrouping);
  part->addLayout(filter);
  part->addWidget(PropTree, 3);
  part->addWidget(Label1);
  part->addWidget(PropView, 1);
  byComponent->setChecked(true);
  return part;
}

QLayout* TfrmVRXStyleManProp::StylePart() {
  auto* tools = new QGridLayout;
  tools->setSpacing(2);
  const auto add = [&](QToolButton*& button, int place, const char* name, const char* text, const char* hint,
                       const char* drawing, void (D::*click)()) {
    button = SpeedButton(name, text, hint, drawing, click);
    button->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
    tools->addWidget(button, place / 3, place % 3);
  };
  using namespace face_icons;
  add(bttLoadFromFile, 0, "bttLoadFromFile", "Load from file", "Load styles from file", Load,
      &D::bttLoadFromFileClick);
  add(btnSaveToFile, 1, "btnSaveToFile", "Save to file", "Save styles to file", Save, &D::btnSaveToFileClick);
  add(btnAddStyle, 2, "btnAddStyle", "Add style", "Add style to style tree", Add, &D::btnAddStyleClick);
  add(btnDeleteStyle, 3, "btnDeleteStyle", "Delete style/prop", "Delete style or property from style tree",
      Remove, &D::btnDeleteStyleClick);
  add(btnAddComponent, 4, "btnAddComponent", "Add component", "Add component to property tree",
      ComponentDrawing, &D::btnAddComponentClick);
  add(btnCreateStyle, 5, "btnCreateStyle", "Create style", "Add component to property tree", CreateDrawing,
      &D::btnCreateStyleClick);
  Styles = Named(new StylesView(model_, *tree_, this), "Styles", "");
  Styles->setAccessibleName(QStringLiteral("Styles"));
  Follows(Styles);
  connect(Styles->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this] { Guarded([this] { ShowPreviewControl(); }); });
  connect(Styles, &QTreeView::clicked, this, [this](const QModelIndex& index) {
    if (index.column() == 1 && model_->NodeAt(index)->IsProperty()) Styles->QAbstractItemView::edit(index);
  });
  connect(Styles, &StylesView::ChoosePicture, this,
          [this](const QModelIndex& index) { Guarded([&] { ChoosePicture(*model_->NodeAt(index)); }); });
  Styles->Delegate().Named = [this](TVRXStyleNode& style, const QString& name) {
    Guarded([&] { Change([&] { tree_->Rename(style, name); }); });
    Styles->scrollTo(Styles->currentIndex());
  };
  Styles->Delegate().Valued = [this](TVRXStyleNode& property, const TVRXStyleValue& value) {
    Guarded([&] { Change([&] { tree_->SetValue(property, value); }); });
  };
  const auto check = [&](QCheckBox*& box, const char* name, const char* text, const char* hint, bool on) {
    box = Named(new QCheckBox(QString::fromLatin1(text), this), name, hint);
    box->setChecked(on);
    Follows(box);
  };
  check(cbStateStyles, "cbStateStyles", "Add state styles automatically", "", true);
  check(cbConfirmDeletion, "cbConfirmDeletion", "Confirm style/property deletion", "", true);
  auto* options = new QHBoxLayout;
  options->addWidget(cbStateStyles);
  options->addWidget(cbConfirmDeletion);
  options->addStretch(1);
  auto* part = new QVBoxLayout;
  part->addLayout(tools);
  part->addWidget(Styles, 1);
  part->addLayout(options);
  return part;
}

QLayout* TfrmVRXStyleManProp::PreviewPart() {
  Label2 = Named(new QLabel(QStringLiteral("Preview control with applied style"), this), "Label2", "");
  Label2->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  const auto check = [&](QCheckBox*& box, const char* name, const char* text, const char* hint, bool on,
                         std::function<void(bool)> changed) {
    box = Named(new QCheckBox(QString::fromLatin1(text), this), name, hint);
    box->setChecked(on);
    Follows(box);
    connect(box, &QCheckBox::toggled, this,
            [this, changed = std::move(changed)](bool now) { Guarded([&] { changed(now); }); });
  };
  check(cbCtlXp, "cbCtlXp", "Use XP themes", "Override CtlXP property value (VRX controls only)", false,
        [this](bool on) { PreviewPanel->SetThemed(on); });
  check(cbAlign, "cbAlign", "Align to panel", "Align preview control to the panel", false, [this](bool on) {
    PreviewPanel->SetAligned(on);
    ApplyStyleToPreviewControl();
  });
  check(cbUseBgr, "cbUseBgr", "Use background", "Make preview panel backgrounded", true,
        [this](bool on) { PreviewPanel->SetGround(on); });
  check(cbCascade, "cbCascade", "Cascade styles", "Apply all ancestor styles", true,
        [this](bool) { ApplyStyleToPreviewControl(); });
  PreviewPanel = Named(new StylePreview(this), "PreviewPanel", "");
  OwnColors({PreviewPanel});
  // Beside the control, which has all of their height then.
  auto* options = new QVBoxLayout;
  for (QCheckBox* box : {cbCtlXp, cbAlign, cbUseBgr, cbCascade}) options->addWidget(box);
  options->addStretch(1);
  auto* beside = new QHBoxLayout;
  beside->addLayout(options);
  beside->addWidget(PreviewPanel, 1);
  auto* part = new QVBoxLayout;
  part->addWidget(Label2);
  part->addLayout(beside, 1);
  return part;
}

QAction* TfrmVRXStyleManProp::Action(QMenu& menu, QWidget& of, const char* name, const char* text,
                                     const QKeySequence& key, const std::function<void()>& act) {
  auto* action = menu.addAction(QString::fromLatin1(text));
  action->setObjectName(QString::fromLatin1(name));
  action->setShortcut(key);
  action->setShortcutContext(Qt::WidgetShortcut);
  of.addAction(action);
  connect(action, &QAction::triggered, this, [this, act] { Guarded(act); });
  return action;
}

// What can be dragged can be done with the keys.
void TfrmVRXStyleManProp::BuildMenus() {
  StylesMenu = new QMenu(this);
  QMenu& menu = *StylesMenu;
  mnuEdit = Action(menu, *Styles, "mnuEdit", "Edit", {}, [this] {
    if (Styles->Selected()) Styles->EditSelected();
  });
  menu.addSeparator();
  mnuCut = Action(menu, *Styles, "mnuCut", "Cut", QKeySequence::Cut, [this] { Cut(false); });
  mnuCopy = Action(menu, *Styles, "mnuCopy", "Copy", QKeySequence::Copy, [this] { Cut(true); });
  mnuPaste = Action(menu, *Styles, "mnuPaste", "Paste", QKeySequence::Paste, [this] { Paste(); });
  menu.addSeparator();
  mnuAddStyle = Action(menu, *Styles, "mnuAddStyle", "Add style...", QKeySequence(Qt::Key_Insert),
                       [this] { btnAddStyleClick(); });
  mnuAddStates = Action(menu, *Styles, "mnuAddStates", "Add state styles", {}, [this] {
    TVRXStyleNode* node = Styles->Selected();
    if (node && !node->Style()->IsRoot()) Step([&] { tree_->AddStateStyles(*node->Style()); });
  });
  mnuDelete = Action(menu, *Styles, "mnuDelete", "Delete", QKeySequence(Qt::Key_Delete),
                     [this] { btnDeleteStyleClick(); });
  menu.addSeparator();
  mnuUndo = Action(menu, *Styles, "mnuUndo", "Undo", QKeySequence::Undo, [this] { Undo(); });
  mnuRedo = Action(menu, *Styles, "mnuRedo", "Redo", QKeySequence::Redo, [this] { Redo(); });
  mnuRedo->setShortcuts({QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
  // Wherever the keys are: who has dragged something is still on the other side.
  for (QAction* action : {mnuUndo, mnuRedo}) {
    action->setShortcutContext(Qt::WindowShortcut);
    addAction(action);
  }
  mnuEdit->setShortcuts({QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)});
  PropMenu = new QMenu(this);
  mnuAddToStyle = Action(*PropMenu, *PropTree, "mnuAddToStyle", "Add to the selected style",
                         QKeySequence(Qt::Key_Insert), [this] {
                           if (QTreeWidgetItem* item = SelectedProperty())
                             DropFromProperties(item, Styles->Selected());
                         });
  const auto opens = [](QWidget* view, QMenu* opened) {
    view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(view, &QWidget::customContextMenuRequested, opened, [view, opened](const QPoint& at) {
      opened->popup(static_cast<QAbstractScrollArea*>(view)->viewport()->mapToGlobal(at));
    });
  };
  opens(Styles, StylesMenu);
  opens(PropTree, PropMenu);
  // Keys work while the menu is closed, so all is enabled but while it is open.
  connect(StylesMenu, &QMenu::aboutToShow, this, &D::UpdateMenu);
  connect(StylesMenu, &QMenu::aboutToHide, this, [this] {
    for (QAction* action : StylesMenu->actions()) action->setEnabled(true);
  });
}

void TfrmVRXStyleManProp::UpdateMenu() {
  const TVRXStyleNode* node = Styles->Selected();
  const bool own = node && !node->IsRoot();
  mnuEdit->setEnabled(own);
  mnuCut->setEnabled(own);
  mnuCopy->setEnabled(own && node->IsProperty());
  mnuPaste->setEnabled(cut_ != nullptr);
  mnuAddStates->setEnabled(node && !node->Style()->IsRoot() && node->Style()->Kind != TVRXStyleKind::State);
  mnuDelete->setEnabled(own);
  mnuUndo->setEnabled(!undo_.empty());
  mnuRedo->setEnabled(!redo_.empty());
}

// In the filter and on a row it means these, not the whole.
bool TfrmVRXStyleManProp::ReturnConfirms() const {
  const QWidget* focus = focusWidget();
  return !Styles->Delegate().Editor() && focus != fltEdit && focus != Styles && focus != PropTree;
}

// Escape closes an editor, a list, a message: one too many does not throw the work away.
void TfrmVRXStyleManProp::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && !undo_.empty() &&
      !Prompts().Confirm(this, QString::fromLatin1(VRXStyleEditorTitle),
                         QStringLiteral("Close without the changes that were made here?")))
    return;
  RowDialog::keyPressEvent(event);
}

void TfrmVRXStyleManProp::done(int result) {
  SavePropValue();
  RowDialog::done(result);
}
