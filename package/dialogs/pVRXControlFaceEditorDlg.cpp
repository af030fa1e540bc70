#include "package/dialogs/pVRXControlFaceEditorDlg.h"

#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QListWidget>
#include <QScopedValueRollback>
#include <QTreeWidget>

#include "designintf/ComponentIcons.h"
#include "library_design/Named.h"
#include "library_design/pVRXCommon.h"
#include "package/dialogs/FaceIcons.h"
#include "package/dialogs/ItemDrag.h"
#include "package/dialogs/RadioRows.h"
#include "rtl/Registry.h"

namespace {
const QString SettingsKey = QStringLiteral("SOFTWARE\\Orlenvo\\Orlenvo-Kit 2025\\TVRXFaceController");
const QString PathValue = QStringLiteral("FilePath");
QString RememberedPath() {
  TRegistry registry;
  return registry.OpenKey(SettingsKey, false) ? registry.ReadString(PathValue) : QString();
}

QString FontText(const TFont& font) {
  return QStringLiteral("{%1-%2-%3}").arg(font.Name()).arg(font.Size()).arg(ColorToString(font.Color()));
}
// Caption, class, and what there is to say of the object.
QStringList TextsOf(const TVRXCFCSettingObjects& settings, const TPersistent& object) {
  const auto* font = As<TFont>(&object);
  return {settings.NameOfObject(&object), QString::fromLatin1(object.ClassType().ClassName()),
          font ? FontText(*font) : VRXCFCDescriptionOf(object)};
}
QLabel* TitleOf(QWidget& list, const QString& text) {
  auto* title = new QLabel(text, list.parentWidget());
  title->setBuddy(&list);
  list.setAccessibleName(text);
  return title;
}
}  // namespace

TVRXControlFaceEditorDlg::TVRXControlFaceEditorDlg(QWidget* owner)
    : RowDialog(QStringLiteral("Face Controller Editor"), owner), rememberedPath_(RememberedPath()) {
  auto* grid = new QGridLayout;
  grid->addLayout(StatePart(), 0, 0);
  grid->addLayout(SettingPart(), 0, 1);
  grid->setColumnStretch(0, 2);
  grid->setColumnStretch(1, 3);
  grid->setHorizontalSpacing(16);
  auto* box = new QVBoxLayout(this);
  box->addLayout(grid, 1);
  box->addLayout(LastLine());
  new ItemDrag(*controllerObjectsList, *stateObjectList,
               [this](const QModelIndex&) { Guarded([this] { AddToState(); }); });
  VRXSetThemeMode(*this, 1);
  SetTabSequence();
  FormCreate();
  setSizeGripEnabled(true);
  resize(QSize(820, 480).expandedTo(minimumSizeHint()));
}

// Here, because the path is kept however the dialog ends. There is nobody left to tell of a failure.
TVRXControlFaceEditorDlg::~TVRXControlFaceEditorDlg() {
  Retire();
  if (edFilePath->text() == rememberedPath_) return;
  TRegistry registry;
  registry.OpenKey(SettingsKey, true);
  registry.WriteString(PathValue, edFilePath->text());
  registry.Flush();
}

QToolButton* TVRXControlFaceEditorDlg::SpeedButton(const char* name, const char* hint, const char* drawing,
                                                   std::function<void()> click) {
  auto* button = Named(new QToolButton(this), name, hint);
  button->setAccessibleName(QString::fromLatin1(hint).section(u'\r', 0, 0));
  button->setIcon(DrawnIcon(drawing));
  button->setIconSize({20, 20});
  button->setAutoRaise(true);
  Follows(button);
  connect(button, &QToolButton::clicked, this, [this, click = std::move(click)] { Guarded(click); });
  return button;
}

QAction* TVRXControlFaceEditorDlg::MenuAction(QMenu& menu, const char* name, const char* text,
                                              std::function<void()> act) {
  QAction* action = menu.addAction(QString::fromLatin1(text));
  action->setObjectName(QString::fromLatin1(name));
  connect(action, &QAction::triggered, this, [this, act = std::move(act)] { Guarded(act); });
  return action;
}

QMenu* TVRXControlFaceEditorDlg::MenuOf(QWidget& list, const char* name) {
  auto* menu = new QMenu(this);
  menu->setObjectName(QString::fromLatin1(name));
  list.setContextMenuPolicy(Qt::CustomContextMenu);
  connect(&list, &QWidget::customContextMenuRequested, menu,
          [menu, &list](const QPoint& at) { menu->popup(list.mapToGlobal(at)); });
  return menu;
}

QLayout* TVRXControlFaceEditorDlg::StatePart() {
  auto* tools = new QHBoxLayout;
  tools->setSpacing(2);
  const auto add = [&](QToolButton*& button, const char* name, const char* hint, const char* drawing,
                       int tag) {
    button = SpeedButton(name, hint, drawing, [this, tag] { StateHandler(tag); });
    tools->addWidget(button);
  };
  add(btnLoad, "btnLoad", "Load List", face_icons::Load, tagLoad);
  add(btnSave, "btnSave", "Save List", face_icons::Save, tagSave);
  add(btnAddState, "btnAddState", "Add State", face_icons::Add, tagAdd);
  add(remove, "remove", "Remove Item", face_icons::Remove, tagRemove);
  add(clear, "clear", "Clear List", face_icons::Clear, tagClear);
  tools->addStretch(1);
  controllerStateList = Named(new QListWidget(this), "controllerStateList", "");
  controllerStateList->setItemDelegate(new RadioRows(controllerStateList));
  Follows(controllerStateList);
  connect(controllerStateList, &QListWidget::currentRowChanged, this, [this] {
    if (!refreshing_) Guarded([this] { RefreshStateObjects(); });
  });
  stateObjectList = Named(new QListWidget(this), "stateObjectList", "");
  stateObjectList->setIconSize({20, 20});
  Follows(stateObjectList);
  connect(stateObjectList, &QListWidget::itemDoubleClicked, this,
          [this] { Guarded([this] { EditStateObject(); }); });
  popMnuStateObjects = MenuOf(*stateObjectList, "popMnuStateObjects");
  mnuEdit = MenuAction(*popMnuStateObjects, "mnuEdit", "Edit...", [this] { EditStateObject(); });
  mnuRemove =
      MenuAction(*popMnuStateObjects, "mnuRemove", "Remove", [this] { SettingHandler(tagRemoveFromState); });
  popMnuStateObjects->setDefaultAction(mnuEdit);
  auto* part = new QVBoxLayout;
  part->addWidget(TitleOf(*controllerStateList, QStringLiteral("State settings")));
  part->addLayout(tools);
  part->addWidget(controllerStateList, 1);
  part->addSpacing(8);
  part->addWidget(TitleOf(*stateObjectList, QStringLiteral("Assigned objects for checked state")));
  part->addWidget(stateObjectList, 1);
  return part;
}

QLayout* TVRXControlFaceEditorDlg::SettingPart() {
  auto* tools = new QHBoxLayout;
  tools->setSpacing(2);
  const auto add = [&](QToolButton*& button, const char* name, const char* hint, const char* drawing,
                       int tag) {
    button = SpeedButton(name, hint, drawing, [this, tag] { SettingHandler(tag); });
    tools->addWidget(button);
  };
  add(VRXSpeedButton1, "VRXSpeedButton1", "Load Settings List\r\nAll current settings will be lost!",
      face_icons::Load, tagLoadSettings);
  add(VRXSpeedButton2, "VRXSpeedButton2", "Saves Settings List to a file", face_icons::Save, tagSaveSettings);
  add(VRXSpeedButton3, "VRXSpeedButton3", "Remove Item", face_icons::Remove, tagRemoveSetting);
  add(VRXSpeedButton4, "VRXSpeedButton4", "Clear List", face_icons::Clear, tagClearSettings);
  add(btnProp, "btnProp", "Properties", face_icons::Properties, tagProperties);
  tools->addSpacing(12);
  using enum TVRXCFCSettingObjectKind;
  static constexpr struct {
    const char *name, *hint;
    TVRXCFCSettingObjectKind kind;
  } kinds[] = {{"btnAddFont", "Add TFont object", okFont},
               {"btnAddFont3D", "Add Font3D object", okFont3D},
               {"btnAddFontFx", "Add FontFx object", okFontFx},
               {"btnAddFillObject", "Add FillObject", okFillObject},
               {"btnAddBitmapEffect", "Add BitmapEffect object", okBitmapEffect},
               {"btnAddBevel", "Add Bevel Object", okBevel},
               {"btnAddColor", "Add Color object", okColor},
               {"btnAddStyles", "Add state style objects", okStyle}};
  for (const auto& row : kinds) {
    addButtons.push_back(SpeedButton(row.name, row.hint,
                                     face_icons::Kinds[static_cast<std::size_t>(row.kind)],
                                     [this, kind = row.kind] { AddSettings(kind); }));
    tools->addWidget(addButtons.back());
  }
  tools->addStretch(1);
  controllerObjectsList =
      Named(new QTreeWidget(this), "controllerObjectsList",
            "F2 gives an object another name; dragged to the list of a state it applies there");
  controllerObjectsList->setHeaderLabels(
      {QStringLiteral("Name"), QStringLiteral("Class"), QStringLiteral("Description")});
  controllerObjectsList->setRootIsDecorated(false);
  controllerObjectsList->setUniformRowHeights(true);
  controllerObjectsList->setIconSize({20, 20});
  controllerObjectsList->setEditTriggers(QAbstractItemView::EditKeyPressed);
  controllerObjectsList->header()->resizeSection(0, 150);
  controllerObjectsList->header()->resizeSection(1, 130);
  Follows(controllerObjectsList);
  connect(controllerObjectsList, &QTreeWidget::itemDoubleClicked, this,
          [this] { Guarded([this] { SettingHandler(tagProperties); }); });
  connect(controllerObjectsList, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item, int column) {
    if (!refreshing_ && column == 0) Guarded([&] { Renamed(item); });
  });
  PopupMenu1 = MenuOf(*controllerObjectsList, "PopupMenu1");
  mnuProperties =
      MenuAction(*PopupMenu1, "mnuProperties", "Properties", [this] { SettingHandler(tagProperties); });
  mnuAddToState = MenuAction(*PopupMenu1, "mnuAddToState", "Add to state", [this] { AddToState(); });
  PopupMenu1->setDefaultAction(mnuProperties);
  connect(PopupMenu1, &QMenu::aboutToShow, this, [this] {
    mnuAddToState->setEnabled(SelectedState() >= 0);
    mnuProperties->setEnabled(SelectedSetting() >= 0);
  });
  auto* part = new QVBoxLayout;
  part->addWidget(
      TitleOf(*controllerObjectsList, QStringLiteral("Available settings for this face controller")));
  part->addLayout(tools);
  part->addWidget(controllerObjectsList, 1);
  return part;
}

QLayout* TVRXControlFaceEditorDlg::LastLine() {
  edFilePath =
      Named(new QLineEdit(rememberedPath_, this), "edFilePath", "Where the files are looked for first");
  auto* label = new QLabel(QStringLiteral("Default FilePath:"), this);
  label->setBuddy(edFilePath);
  Follows(edFilePath);
  btnBrowse = Named(new QToolButton(this), "btnBrowse", "Choose another folder");
  btnBrowse->setText(QStringLiteral("..."));
  Follows(btnBrowse);
  connect(btnBrowse, &QToolButton::clicked, this, [this] { Guarded([this] { browseClick(); }); });
  OkButton(btnOk, "btnOk");
  CancelButton(btnCancel, "btnCancel");
  auto* line = new QHBoxLayout;
  line->addWidget(label);
  line->addWidget(edFilePath, 1);
  line->addWidget(btnBrowse);
  line->addSpacing(16);
  line->addWidget(btnOk);
  line->addWidget(btnCancel);
  return line;
}

void TVRXControlFaceEditorDlg::browseClick() {
  const QString folder =
      QFileDialog::getExistingDirectory(this, QStringLiteral("Default FilePath"), edFilePath->text());
  if (!folder.isEmpty()) edFilePath->setText(QDir::toNativeSeparators(folder));
}

// --- The edited controller

void TVRXControlFaceEditorDlg::Edit(const TVRXFaceController& controller) {
  controller_.Assign(&controller);
  RefreshSettings();
  RefreshStates();
  RefreshStateObjects();
}
void TVRXControlFaceEditorDlg::Edit(const TVRXCFCStateObjects& states) {
  controller_.States()->Assign(&states);
  RefreshSettings();
  RefreshStates();
  RefreshStateObjects();
}

void TVRXControlFaceEditorDlg::FormActivate() {
  if (!activated && SelectedState() < 0) SelectState(0);
  if (!activated) controllerStateList->setFocus();
  RowDialog::FormActivate();
}

// Return in the field of a name takes the name.
bool TVRXControlFaceEditorDlg::ReturnConfirms() const {
  const QWidget* focus = focusWidget();
  return !focus || focus == controllerObjectsList || !controllerObjectsList->isAncestorOf(focus);
}

int TVRXControlFaceEditorDlg::SelectedState() const { return controllerStateList->currentRow(); }
TVRXCFCStateObject* TVRXControlFaceEditorDlg::State() const {
  return SelectedState() < 0 ? nullptr : controller_.States()->Items(SelectedState());
}
int TVRXControlFaceEditorDlg::SelectedSetting() const {
  return controllerObjectsList->indexOfTopLevelItem(controllerObjectsList->currentItem());
}
void TVRXControlFaceEditorDlg::SelectState(int index) {
  const int count = controllerStateList->count();
  if (count > 0) controllerStateList->setCurrentRow(index >= 0 && index < count ? index : 0);
}

void TVRXControlFaceEditorDlg::RefreshSettings() {
  const QScopedValueRollback quiet(refreshing_, true);
  const int selected = SelectedSetting();
  controllerObjectsList->clear();
  const TVRXCFCSettingObjects& settings = *controller_.SettingObjects();
  for (int i = 0; i < settings.Count(); ++i) {
    const TPersistent* object = settings.Items(i);
    auto* item =
        new QTreeWidgetItem(object ? TextsOf(settings, *object)
                                   : QStringList{settings.Setting(i)->Get(TVRXCFCSettingObject::ObjName)});
    item->setIcon(
        0, DrawnIcon(face_icons::Kinds[static_cast<std::size_t>(VRXCFCGetSettingsKindObject(object))]));
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    controllerObjectsList->addTopLevelItem(item);
  }
  if (selected >= 0 && settings.Count() > 0)
    controllerObjectsList->setCurrentItem(
        controllerObjectsList->topLevelItem(std::min(selected, settings.Count() - 1)));
}

// The list of used states only grows here: a state that was removed is not offered again.
void TVRXControlFaceEditorDlg::RefreshStates() {
  const QScopedValueRollback quiet(refreshing_, true);
  controllerStateList->clear();
  for (int i = 0; i < controller_.States()->Count(); ++i) {
    QString text = VRXCFCGetStateDescription(controller_.States()->Items(i)->getKind());
    if (text.isEmpty()) text = QStringLiteral("unknown state!!!");
    if (!used_.contains(text)) used_ << text;
    controllerStateList->addItem(text);
  }
}

void TVRXControlFaceEditorDlg::RefreshStateObjects() {
  stateObjectList->clear();
  const TVRXCFCStateObject* state = State();
  for (int i = 0; state && i < state->Count(); ++i) {
    const TPersistent* object = state->Items(i);
    auto* item = new QListWidgetItem(state->Names()[i], stateObjectList);
    item->setIcon(
        DrawnIcon(face_icons::Kinds[static_cast<std::size_t>(VRXCFCGetSettingsKindObject(object))]));
    if (object)
      item->setToolTip(TextsOf(*controller_.SettingObjects(), *object).mid(1).join(QStringLiteral("\n")));
  }
}
