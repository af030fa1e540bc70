// The editor of stored properties: what it offers, moves, excludes and writes, and its editors.
#include "package/experts/pVRXRegOS.h"

#include "library/controls/LEDLabel.h"
#include "package/experts/StorageTree.h"
#include "package/experts/pVRXOSPropForm.h"
#include "rtl/Registry.h"
#include "tests/package/ListEditorTest.h"

namespace {
using Form = TVRXOSPropForm;
using Item = TVRXPropertyStorageItem;

const QString Key = QStringLiteral("SOFTWARE\\Orlenvo\\Orlenvo-Kit 2025\\Editors\\TVRXObjectStorage");

// A component whose published properties a test chooses.
class TMade : public TComponent {
 public:
  TMade(TComponent* owner, const QString& name, const QJsonArray& properties)
      : TComponent(owner), cls_(Describe(properties)) {
    SetName(name);
  }
  const TClass& ClassType() const override { return cls_; }

 private:
  static TClassBuilder Describe(const QJsonArray& properties) {
    static std::deque<QByteArray> names;
    TClassBuilder builder = DescribeClass<TComponent>("TMade", TPersistent::StaticClass());
    for (const QJsonValue& property : properties) {
      const char* name = names.emplace_back(property[0].toString().toLatin1()).constData();
      if (property[1].toBool())
        static_cast<void>(std::move(builder).Event(name));
      else
        static_cast<void>(std::move(builder).Passive<int>(name, 0));
    }
    return builder;
  }
  TClass cls_;
};

std::string Pairs(const TVRXObjectStorage& storage) {
  QStringList pairs;
  for (int i = 0; i < storage.StoredProps()->Count(); ++i)
    pairs << storage.StoredProps()->Item(i)->DisplayName();
  return pairs.join(u' ').toStdString();
}
QStringList RowsOf(const QTreeWidget& list) {
  QStringList rows;
  for (int i = 0; i < list.topLevelItemCount(); ++i) {
    QString row = list.topLevelItem(i)->text(0);
    if (list.columnCount() > 1) row += u'.' + list.topLevelItem(i)->text(1);
    rows << row;
  }
  return rows;
}
QStringList TreeOf(const Form& form) {
  QStringList rows;
  for (int i = 0; i < form.Tree->rowCount(); ++i) {
    const QModelIndex branch = form.Tree->index(i, 0);
    QStringList properties;
    for (int j = 0; j < form.Tree->rowCount(branch); ++j)
      properties << form.Tree->index(j, 0, branch).data().toString();
    rows << branch.data().toString() + QStringLiteral(": ") + properties.join(u' ');
  }
  return rows;
}
std::string Text(const QStringList& rows) { return rows.join(u'|').toStdString(); }
int Nodes(const Form& form) {
  int nodes = 0;
  for (int i = 0; i < form.Tree->rowCount(); ++i) nodes += form.Tree->rowCount(form.Tree->index(i, 0));
  return nodes;
}

bool SelectNode(Form& form, const QString& component, const QString& property) {
  const QModelIndex node =
      property.isEmpty() ? form.Tree->FindComponent(component) : form.Tree->Find(component, property);
  if (node.isValid()) form.ComponentsTree->setCurrentIndex(node);
  return node.isValid();
}
bool SelectRow(QTreeWidget& list, const QString& row) {
  const auto at = RowsOf(list).indexOf(row);
  if (at >= 0) list.setCurrentItem(list.topLevelItem(static_cast<int>(at)));
  return at >= 0;
}
void Click(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }

void ClearExcluded() {
  while (!VRXExcludedProperties().isEmpty()) VRXIncludeProperty(VRXExcludedProperties().first());
  TRegistry registry;
  registry.DeleteKey(Key);
  registry.Flush();
}

class StorageDialog : public ListEditors {
 protected:
  StorageDialog() {
    const RegistrationScope scope(registry, this, "pVRXRegOS");
    pVRXRegOS::Register();
  }
  void SetUp() override {
    ListEditors::SetUp();
    pVRXRegOS::Initialization();
    ClearExcluded();
  }
  void TearDown() override {
    ClearExcluded();
    pVRXRegOS::Finalization();
  }
  static std::unique_ptr<Form> Shown(TVRXObjectStorage& storage) {
    auto form = std::make_unique<Form>(nullptr);
    form->Edit(storage);
    fields::ShowActive(*form);
    return form;
  }
  std::unique_ptr<FormSession> Sample() {
    return FormWith(
        "  object Led: TVRXLEDLabel\n    Left = 8\n    Top = 8\n  end\n"
        "  object Store: TVRXObjectStorage\n    Left = 40\n    Top = 48\n    StoredProps = <\n"
        "      item\n        ComponentName = 'Led'\n        Name = 'Width'\n        Later = 7\n      end\n"
        "      item\n        ComponentName = 'Led'\n        Name = 'Height'\n      end>\n  end\n",
        registry);
  }
};

using Chosen = std::vector<std::pair<QString, QString>>;
Chosen PairsIn(const QJsonArray& rows) {
  Chosen pairs;
  for (const QJsonValue& row : rows) pairs.emplace_back(row[0].toString(), row[1].toString());
  std::sort(pairs.begin(), pairs.end());
  return pairs;
}
Chosen PairsIn(const TVRXObjectStorage& storage) {
  Chosen pairs;
  for (int i = 0; i < storage.StoredProps()->Count(); ++i)
    pairs.emplace_back(storage.StoredProps()->Items(i)->Get(Item::ComponentName),
                       storage.StoredProps()->Items(i)->Get(Item::Name));
  std::sort(pairs.begin(), pairs.end());
  return pairs;
}
Chosen PairsIn(const QTreeWidget& list) {
  Chosen pairs;
  for (int i = 0; i < list.topLevelItemCount(); ++i)
    pairs.emplace_back(list.topLevelItem(i)->text(0), list.topLevelItem(i)->text(1));
  std::sort(pairs.begin(), pairs.end());
  return pairs;
}
QStringList StringsIn(const QJsonArray& array) {
  QStringList texts;
  for (const QJsonValue& value : array) texts << value.toString();
  texts.sort();
  return texts;
}

void Do(Form& form, const QJsonArray& op) {
  const QString what = op[0].toString();
  const auto at = [&](int i) { return op[i].toString(); };
  if (what == QStringLiteral("to")) {
    EXPECT_TRUE(SelectNode(form, at(1), at(2)));
    Click(form.ToBtn);
  } else if (what == QStringLiteral("from")) {
    EXPECT_TRUE(SelectRow(*form.PropListView, at(1) + u'.' + at(2)));
    Click(form.FromBtn);
  } else if (what == QStringLiteral("allDel")) {
    Click(form.AllDelBtn);
  } else if (what == QStringLiteral("exclAdd")) {
    EXPECT_TRUE(SelectNode(form, at(1), at(2)));
    Click(form.ExclAdd);
  } else if (what == QStringLiteral("exclDel")) {
    EXPECT_TRUE(SelectRow(*form.ExcludedPropertiesList, at(1)));
    Click(form.ExclDel);
  } else if (what == QStringLiteral("ok") || what == QStringLiteral("cancel")) {
    Click(what == QStringLiteral("ok") ? form.OkBtn : form.CancelBtn);
  } else {
    ADD_FAILURE() << what.toStdString();
  }
}
}  // namespace

TEST_F(StorageDialog, MovesAndExcludesAsWorkedOut) {
  int number = 0;
  for (const QJsonValue& value : Vectors("storage_ops.json")[QStringLiteral("cases")].toArray()) {
    SCOPED_TRACE(number++);
    const QJsonObject start = value[QStringLiteral("start")].toObject();
    ClearExcluded();
    for (const QJsonValue& name : start[QStringLiteral("excluded")].toArray())
      VRXExcludeProperty(name.toString());
    std::unique_ptr<TMade> owner;
    TVRXObjectStorage* storage = nullptr;
    for (const QJsonValue& component : start[QStringLiteral("components")].toArray()) {
      const QString name = component[0].toString();
      if (!owner) {
        owner = std::make_unique<TMade>(nullptr, name, component[1].toArray());
      } else if (name == start[QStringLiteral("storage")].toString()) {
        storage = new TVRXObjectStorage(owner.get());
        storage->SetName(name);
      } else {
        new TMade(owner.get(), name, component[1].toArray());
      }
    }
    ASSERT_NE(storage, nullptr);
    for (const QJsonValue& pair : start[QStringLiteral("collection")].toArray())
      storage->StoredProps()->Add(pair[0].toString(), pair[1].toString());
    auto form = Shown(*storage);
    for (const QJsonValue& step : value[QStringLiteral("ops")].toArray()) {
      const QJsonArray op = step[QStringLiteral("op")].toArray();
      SCOPED_TRACE(QJsonDocument(op).toJson(QJsonDocument::Compact).toStdString());
      if (op[0].toString() == QStringLiteral("open"))
        form = Shown(*storage);
      else
        Do(*form, op);
      if (step.toObject().contains(QStringLiteral("collection"))) {
        EXPECT_EQ(PairsIn(*storage), PairsIn(step[QStringLiteral("collection")].toArray()));
        continue;
      }
      EXPECT_EQ(Nodes(*form), step[QStringLiteral("nodes")].toInt());
      EXPECT_EQ(form->PropListView->topLevelItemCount(), step[QStringLiteral("rows")].toInt());
      EXPECT_EQ(form->ExcludedPropertiesList->topLevelItemCount(), step[QStringLiteral("excluded")].toInt());
      if (const QJsonValue selected = step[QStringLiteral("selected")]; selected.isArray()) {
        const QModelIndex node = form->ComponentsTree->currentIndex();
        ASSERT_TRUE(form->Tree->IsProperty(node));
        EXPECT_EQ(form->Tree->ComponentOf(node), selected[0].toString());
        EXPECT_EQ(node.data().toString(), selected[1].toString());
      }
    }
    const QJsonObject end = value[QStringLiteral("end")].toObject();
    QStringList tree;
    for (const QJsonValue& branch : end[QStringLiteral("tree")].toArray()) {
      QStringList properties;
      for (const QJsonValue& name : branch[1].toArray()) properties << name.toString();
      tree << branch[0].toString() + QStringLiteral(": ") + properties.join(u' ');
    }
    EXPECT_EQ(Text(TreeOf(*form)), Text(tree));
    EXPECT_EQ(PairsIn(*form->PropListView), PairsIn(end[QStringLiteral("rows")].toArray()));
    QStringList excluded = VRXExcludedProperties();
    excluded.sort();
    EXPECT_EQ(excluded, StringsIn(end[QStringLiteral("excluded")].toArray()));
    Do(*form, {end[QStringLiteral("close")].toString()});
    EXPECT_EQ(PairsIn(*storage), PairsIn(end[QStringLiteral("collection")].toArray()));
    const auto editor = Of({storage}, "StoredProps");
    EXPECT_EQ(editor->GetValue(), end[QStringLiteral("value")].toString());
  }
  EXPECT_EQ(number, 62);
}

TEST_F(StorageDialog, ButtonsFollowWhatIsSelected) {
  for (const QJsonValue& value : Vectors("storage_ops.json")[QStringLiteral("buttons")].toArray()) {
    SCOPED_TRACE(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact).toStdString());
    ClearExcluded();
    VRXExcludeProperty(QStringLiteral("Hint"));
    QJsonArray properties;
    properties.append(QJsonArray{QStringLiteral("Left"), false});
    TMade owner(nullptr, QStringLiteral("Main"), properties);
    auto* storage = new TVRXObjectStorage(&owner);
    for (int i = 0; i < value[QStringLiteral("rows")].toInt(); ++i)
      storage->StoredProps()->Add(QStringLiteral("Gone"), QStringLiteral("P%1").arg(i));
    const auto form = Shown(*storage);
    form->ComponentsTree->selectionModel()->clear();
    form->PropListView->selectionModel()->clear();
    form->ExcludedPropertiesList->selectionModel()->clear();
    if (const int level = value[QStringLiteral("treeLevel")].toInt(); level > 0)
      SelectNode(*form, QStringLiteral("Main"), level == 2 ? QStringLiteral("Left") : QString());
    if (value[QStringLiteral("rowSelected")].toBool())
      form->PropListView->setCurrentItem(form->PropListView->topLevelItem(0));
    if (value[QStringLiteral("excludedSelected")].toBool())
      SelectRow(*form->ExcludedPropertiesList, QStringLiteral("Hint"));
    EXPECT_EQ(form->ToBtn->isEnabled(), value[QStringLiteral("to")].toBool());
    EXPECT_EQ(form->ExclAdd->isEnabled(), value[QStringLiteral("exclAdd")].toBool());
    EXPECT_EQ(form->FromBtn->isEnabled(), value[QStringLiteral("from")].toBool());
    EXPECT_EQ(form->AllDelBtn->isEnabled(), value[QStringLiteral("allDel")].toBool());
    EXPECT_EQ(form->ExclDel->isEnabled(), value[QStringLiteral("exclDel")].toBool());
  }
}

TEST_F(StorageDialog, LooksAsItIsSpecified) {
  TMade owner(nullptr, QStringLiteral("Main"), {});
  auto* storage = new TVRXObjectStorage(&owner);
  const auto form = Shown(*storage);
  EXPECT_EQ(form->windowTitle(), QStringLiteral("Stored Properties"));
  EXPECT_EQ(form->size(), QSize(632, 417));
  EXPECT_EQ(form->minimumSize(), form->maximumSize());
  EXPECT_EQ(form->Label1->text(), QStringLiteral("Excluded Properties"));
  EXPECT_EQ(form->Label1->font().pixelSize(), 16);
  QStringList texts;
  for (const QAbstractButton* button :
       {static_cast<QAbstractButton*>(form->ToBtn), static_cast<QAbstractButton*>(form->FromBtn),
        static_cast<QAbstractButton*>(form->ExclAdd), static_cast<QAbstractButton*>(form->ExclDel),
        static_cast<QAbstractButton*>(form->AllDelBtn), static_cast<QAbstractButton*>(form->OkBtn)})
    texts << button->text();
  EXPECT_EQ(Text(texts), ">|<|>|<|<<|&OK");
  EXPECT_TRUE(form->OkBtn->isDefault());
  EXPECT_EQ(form->PropListView->headerItem()->text(0), QStringLiteral("Component"));
  EXPECT_EQ(form->PropListView->headerItem()->text(1), QStringLiteral("Property"));
  EXPECT_EQ(form->ExcludedPropertiesList->headerItem()->text(0), QStringLiteral("Property"));
}

TEST_F(StorageDialog, OffersTheFormAndWhoeverHasANameButNotTheStorageAndNoEvents) {
  const auto session = Sample();
  auto& storage = dynamic_cast<TVRXObjectStorage&>(*session->GetComponent(QStringLiteral("Store")));
  new TVRXLEDLabel(storage.Owner());
  const auto form = Shown(storage);
  QStringList components;
  for (int i = 0; i < form->Tree->rowCount(); ++i) components << form->Tree->index(i, 0).data().toString();
  EXPECT_EQ(Text(components), "Form1|Led");
  EXPECT_TRUE(SelectNode(*form, QStringLiteral("Led"), QStringLiteral("Caption")));
  EXPECT_FALSE(form->Tree->Find(QStringLiteral("Led"), QStringLiteral("OnClick")).isValid());
  EXPECT_FALSE(form->Tree->Find(QStringLiteral("Led"), QStringLiteral("Width")).isValid()) << "it is stored";
  EXPECT_FALSE(form->Tree->Find(QStringLiteral("Led"), QStringLiteral("ExplicitLeft")).isValid());
  EXPECT_EQ(form->IsPropertyExist(QStringLiteral("Led"), QStringLiteral("Width")), true);
  EXPECT_EQ(form->IsPropertyExist(QStringLiteral("Form1"), QStringLiteral("Width")), false);
}

TEST_F(StorageDialog, AnUntouchedOkKeepsTheBytesAlsoWhereTheOrderIsAnother) {
  const auto session = Sample();
  const QByteArray before = session->Bytes();
  auto& storage = *session->GetComponent(QStringLiteral("Store"));
  Edit<Form>(*session, storage, "StoredProps", [](Form& form) { Click(form.OkBtn); });
  EXPECT_EQ(session->Bytes(), before);
  EXPECT_FALSE(session->CanUndo());
  Edit<Form>(*session, storage, "StoredProps", [](Form& form) {
    SelectRow(*form.PropListView, QStringLiteral("Led.Height"));
    Click(form.FromBtn);
    EXPECT_TRUE(SelectNode(form, QStringLiteral("Led"), QStringLiteral("Height")));
    Click(form.ToBtn);
    Click(form.OkBtn);
  });
  EXPECT_EQ(session->Bytes(), before) << "there and back";
}

TEST_F(StorageDialog, OkIsOneStepThatUndoTakesBackToTheBytes) {
  const auto session = Sample();
  const QByteArray before = session->Bytes();
  const auto storage = [&]() -> TVRXObjectStorage& {
    return dynamic_cast<TVRXObjectStorage&>(*session->GetComponent(QStringLiteral("Store")));
  };
  Edit<Form>(*session, storage(), "StoredProps", [](Form& form) {
    SelectNode(form, QStringLiteral("Form1"), QStringLiteral("Caption"));
    QTest::keyClick(form.ComponentsTree, Qt::Key_Space);
    Click(form.ToBtn);
    SelectNode(form, QStringLiteral("Led"), QStringLiteral("LED"));
    Click(form.ToBtn);
    Click(form.OkBtn);
  });
  EXPECT_EQ(Pairs(storage()), "Form1.Caption Led.Height Led.LED Led.Width") << "sorted";
  const QByteArray after = session->Bytes();
  EXPECT_TRUE(after.contains("Later = 7")) << "what nobody knows of an item that stays";
  session->Undo();
  EXPECT_EQ(session->Bytes(), before);
  EXPECT_FALSE(session->CanUndo());
  session->Redo();
  EXPECT_EQ(session->Bytes(), after);
}

TEST_F(StorageDialog, WhatIsKeptFollowsARenamedComponentAndUndoTakesBothBack) {
  const auto session = Sample();
  const QByteArray before = session->Bytes();
  session->Rename(*session->GetComponent(QStringLiteral("Led")), QStringLiteral("Lamp"));
  QByteArray wanted = before;
  wanted.replace("ComponentName = 'Led'", "ComponentName = 'Lamp'").replace("object Led:", "object Lamp:");
  EXPECT_NE(wanted.count("ComponentName = 'Lamp'"), 0);
  EXPECT_EQ(session->Bytes(), wanted);
  session->Undo();
  EXPECT_EQ(session->Bytes(), before);
  EXPECT_FALSE(session->CanUndo());
  session->Redo();
  EXPECT_EQ(session->Bytes(), wanted);
}

TEST_F(StorageDialog, CancelKeepsTheCollectionButExclusionsStay) {
  const auto session = Sample();
  const QByteArray before = session->Bytes();
  auto& storage = *session->GetComponent(QStringLiteral("Store"));
  Edit<Form>(*session, storage, "StoredProps", [](Form& form) {
    SelectNode(form, QStringLiteral("Led"), QStringLiteral("Top"));
    Click(form.ToBtn);
    SelectNode(form, QStringLiteral("Led"), QStringLiteral("Tag"));
    Click(form.ExclAdd);
    Click(form.AllDelBtn);
    Click(form.CancelBtn);
  });
  EXPECT_EQ(session->Bytes(), before);
  EXPECT_FALSE(session->CanUndo());
  EXPECT_EQ(VRXExcludedProperties(), QStringList{QStringLiteral("Tag")});
}

TEST_F(StorageDialog, AnExcludedNameIsOfferedForNoComponentOfAnyFormAlsoAfterARestart) {
  {
    const auto session = Sample();
    const auto form =
        Shown(dynamic_cast<TVRXObjectStorage&>(*session->GetComponent(QStringLiteral("Store"))));
    SelectNode(*form, QStringLiteral("Led"), QStringLiteral("Tag"));
    Click(form->ExclAdd);
    EXPECT_FALSE(form->Tree->Find(QStringLiteral("Form1"), QStringLiteral("Tag")).isValid());
  }
  TRegistry kept;
  ASSERT_TRUE(kept.OpenKey(Key, false));
  EXPECT_EQ(kept.ReadBinary(QStringLiteral("ExcludedProperties")), QByteArray("Tag\r\n")) << "at once";
  pVRXRegOS::Finalization();
  EXPECT_TRUE(VRXExcludedProperties().isEmpty());
  pVRXRegOS::Initialization();
  EXPECT_EQ(VRXExcludedProperties(), QStringList{QStringLiteral("Tag")});
  EXPECT_TRUE(VRXIsExcludedProperty(QStringLiteral("TAG")));
  const auto session = Sample();
  const auto form = Shown(dynamic_cast<TVRXObjectStorage&>(*session->GetComponent(QStringLiteral("Store"))));
  EXPECT_FALSE(form->Tree->Find(QStringLiteral("Form1"), QStringLiteral("Tag")).isValid());
  EXPECT_FALSE(form->Tree->Find(QStringLiteral("Led"), QStringLiteral("Tag")).isValid());
  SelectRow(*form->ExcludedPropertiesList, QStringLiteral("Tag"));
  form->ExcludedPropertiesList->setFocus();
  QTest::keyClick(form->ExcludedPropertiesList, Qt::Key_Delete);
  EXPECT_TRUE(form->Tree->Find(QStringLiteral("Led"), QStringLiteral("Tag")).isValid());
  TRegistry again;
  again.OpenKey(Key, false);
  EXPECT_EQ(again.ReadBinary(QStringLiteral("ExcludedProperties")), QByteArray());
}

TEST_F(StorageDialog, WithoutAKeyTheListIsEmptyAndLookingWritesNone) {
  pVRXRegOS::Initialization();
  EXPECT_TRUE(VRXExcludedProperties().isEmpty());
  EXPECT_TRUE(prompts.warned.isEmpty());
  pVRXRegOS::Finalization();
  EXPECT_FALSE(TRegistry().KeyExists(Key));
}

TEST_F(StorageDialog, UnloadingKeepsWhatIsNotSavedYet) {
  VRXExcludeProperty(
      QString::fromUtf8("Gr\xC3\xB6\xC3\x9F"
                        "e"));
  pVRXRegOS::Finalization();
  pVRXRegOS::Initialization();
  EXPECT_EQ(VRXExcludedProperties(), QStringList{QString::fromUtf8("Gr\xC3\xB6\xC3\x9F"
                                                                   "e")});
}

TEST_F(StorageDialog, ASettingsFileThatCannotBeWrittenIsToldAndTheListStays) {
  const QString file = TRegistry::StorageFile();
  TRegistry::SetStorageFile(QStringLiteral("/proc/nowhere/settings.ini"));
  {
    const auto session = Sample();
    const auto form =
        Shown(dynamic_cast<TVRXObjectStorage&>(*session->GetComponent(QStringLiteral("Store"))));
    SelectNode(*form, QStringLiteral("Led"), QStringLiteral("Tag"));
    Click(form->ExclAdd);
    EXPECT_EQ(prompts.warned.size(), 1);
    EXPECT_TRUE(prompts.warned.value(0).contains(QStringLiteral("/proc/nowhere/settings.ini")));
    EXPECT_TRUE(form->isVisible());
  }
  TRegistry::SetStorageFile(file);
  EXPECT_EQ(VRXExcludedProperties(), QStringList{QStringLiteral("Tag")});
}

TEST_F(StorageDialog, ADoubleClickStoresAndDeleteTakesOff) {
  const auto session = Sample();
  const auto form = Shown(dynamic_cast<TVRXObjectStorage&>(*session->GetComponent(QStringLiteral("Store"))));
  SelectNode(*form, QStringLiteral("Led"), QStringLiteral("Top"));
  form->ComponentsTree->scrollTo(form->ComponentsTree->currentIndex());
  const QPoint at = form->ComponentsTree->visualRect(form->ComponentsTree->currentIndex()).center();
  QTest::mouseClick(form->ComponentsTree->viewport(), Qt::LeftButton, {}, at);
  QTest::mouseDClick(form->ComponentsTree->viewport(), Qt::LeftButton, {}, at);
  EXPECT_EQ(Text(RowsOf(*form->PropListView)), "Led.Height|Led.Top|Led.Width");
  SelectRow(*form->PropListView, QStringLiteral("Led.Width"));
  form->PropListView->setFocus();
  QTest::keyClick(form->PropListView, Qt::Key_Delete);
  EXPECT_EQ(Text(RowsOf(*form->PropListView)), "Led.Height|Led.Top");
  EXPECT_TRUE(form->Tree->Find(QStringLiteral("Led"), QStringLiteral("Width")).isValid());
}

TEST_F(StorageDialog, AnOpenBranchStaysOpenWhenTheTreeIsBuiltAnew) {
  const auto session = Sample();
  const auto form = Shown(dynamic_cast<TVRXObjectStorage&>(*session->GetComponent(QStringLiteral("Store"))));
  SelectNode(*form, QStringLiteral("Led"), QStringLiteral("Tag"));
  ASSERT_TRUE(form->ComponentsTree->isExpanded(form->Tree->FindComponent(QStringLiteral("Led"))));
  Click(form->AllDelBtn);
  EXPECT_TRUE(form->ComponentsTree->isExpanded(form->Tree->FindComponent(QStringLiteral("Led"))));
  EXPECT_FALSE(form->ComponentsTree->isExpanded(form->Tree->FindComponent(QStringLiteral("Form1"))));
  EXPECT_EQ(form->ComponentsTree->currentIndex().data().toString(), QStringLiteral("Tag"));
}

TEST_F(StorageDialog, TheEditorsAreRegisteredInOrderAndOpenIt) {
  QStringList calls;
  for (const TRegistration& row : registry.Rows())
    if (row.Procedure == "pVRXRegOS")
      calls << (row.PropertyEditor
                    ? QString::fromLatin1(row.PropertyType->Name + " " + row.ComponentClass->ClassName() +
                                          " " + row.PropertyEditor->Name)
                : row.ComponentEditor
                    ? QString::fromLatin1(row.ComponentClass->ClassName() + " " + row.ComponentEditor->Name)
                    : row.PageOrCategory + u' ' + QString::fromLatin1(row.Classes[0]->ClassName()));
  EXPECT_EQ(Text(calls),
            "VRX Sys TVRXObjectStorage|TVRXObjectStorage TVRXOSComponentEditor|TVRXPropertyStorage "
            "TVRXObjectStorage TVRXPropertiesProperty");
  TVRXObjectStorage storage(nullptr);
  const auto property = Of({&storage}, "StoredProps");
  using enum TPropertyAttribute;
  EXPECT_EQ(property->GetAttributes(), (TPropertyAttributes{paDialog, paMultiSelect, paReadOnly}));
  EXPECT_EQ(property->GetValue(), QStringLiteral("(0 selected)"));
  const auto editor = registry.GetComponentEditor(&storage, &designer);
  EXPECT_EQ(editor->GetVerbCount(), 1);
  EXPECT_EQ(editor->GetVerb(0), QStringLiteral("Editor"));
  EXPECT_EQ(editor->GetVerb(1), QString());
  modal::NextOf<Form>([](Form& form) { Click(form.CancelBtn); });
  editor->ExecuteVerb(0);
  EXPECT_EQ(designer.modified, 0);
  modal::NextOf<Form>([](Form& form) { Click(form.OkBtn); });
  editor->ExecuteVerb(0);
  EXPECT_EQ(designer.modified, 1);
}

TEST_F(StorageDialog, ItsRegistrationDoesNotMoveThePage) {
  DesignRegistry own;
  const auto unit = [&](const char* name, void (*registers)()) {
    const RegistrationScope scope(own, this, name);
    registers();
  };
  unit("pVRXRegOS", &pVRXRegOS::Register);
  unit("VRX_RegMain", &VRX_RegMain::Register);
  QStringList pages;
  for (const TPalettePage& page : own.PalettePages()) pages << page.Name;
  EXPECT_GT(pages.indexOf(QStringLiteral("VRX Sys")), pages.indexOf(QStringLiteral("VRX MM")));
}

// Moves at random; a plain list of what should be where agrees after each.
TEST_F(StorageDialog, RandomMovesAgreeWithAPlainList) {
  std::mt19937 random(20261122);
  const auto pick = [&](qsizetype count) {
    return static_cast<int>(random() % static_cast<unsigned>(count));
  };
  for (int round = 0; round < 12; ++round) {
    ClearExcluded();
    QMap<QString, QStringList> all;
    const QStringList names{QStringLiteral("Caption"), QStringLiteral("Color"), QStringLiteral("Hint"),
                            QStringLiteral("Left"), QStringLiteral("Tag")};
    std::unique_ptr<TMade> owner;
    for (const char* component : {"Main", "Box", "Edit"}) {
      QJsonArray properties;
      for (const QString& name : names)
        if (pick(3) > 0)
          properties.append(QJsonArray{name, false}), all[QString::fromLatin1(component)] << name;
      if (!owner)
        owner = std::make_unique<TMade>(nullptr, QString::fromLatin1(component), properties);
      else
        new TMade(owner.get(), QString::fromLatin1(component), properties);
      all[QString::fromLatin1(component)];
    }
    auto* storage = new TVRXObjectStorage(owner.get());
    auto form = Shown(*storage);
    Chosen stored;
    QStringList excluded;
    for (int step = 0; step < 60; ++step) {
      const QModelIndex branch = form->Tree->index(pick(form->Tree->rowCount()), 0);
      const bool node = form->Tree->rowCount(branch) > 0;
      const QModelIndex property =
          node ? form->Tree->index(pick(form->Tree->rowCount(branch)), 0, branch) : QModelIndex();
      const QString component = branch.data().toString(), name = property.data().toString();
      switch (pick(5)) {
        case 0:
        case 1:
          if (!node) break;
          SelectNode(*form, component, name);
          Click(form->ToBtn);
          stored.emplace_back(component, name);
          break;
        case 2:
          if (stored.empty()) break;
          {
            const auto at = stored.begin() + pick(static_cast<qsizetype>(stored.size()));
            SelectRow(*form->PropListView, at->first + u'.' + at->second);
            stored.erase(at);
          }
          Click(form->FromBtn);
          // One of an excluded name is shown until the tree is built anew.
          form->UpdatePropertiesTree();
          break;
        case 3:
          if (!node || excluded.size() > 2) break;
          SelectNode(*form, component, name);
          Click(form->ExclAdd);
          excluded << name;
          break;
        default:
          if (excluded.isEmpty()) break;
          SelectRow(*form->ExcludedPropertiesList, excluded.takeAt(pick(excluded.size())));
          Click(form->ExclDel);
      }
      if (pick(15) == 0) {
        Click(form->OkBtn);
        form = Shown(*storage);
      }
      std::sort(stored.begin(), stored.end());
      ASSERT_EQ(PairsIn(*form->PropListView), stored);
      QStringList tree;
      for (auto i = all.cbegin(); i != all.cend(); ++i) {
        QStringList left;
        for (const QString& p : *i)
          if (!excluded.contains(p) &&
              !std::binary_search(stored.begin(), stored.end(), std::pair(i.key(), p)))
            left << p;
        tree << i.key() + QStringLiteral(": ") + left.join(u' ');
      }
      ASSERT_EQ(Text(TreeOf(*form)), Text(tree));
    }
    Click(form->OkBtn);
    ASSERT_EQ(PairsIn(*storage), stored);
  }
}
