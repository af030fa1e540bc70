// The editor of face controllers: its lists, files, and what is refused.
#include <QDir>
#include <QTemporaryDir>

#include "dclstd/FontDialog.h"
#include "library/controls/CustomLabel.h"
#include "library/controls/Faced.h"
#include "library_design/ColorDialogs.h"
#include "library_design/FontDialogs.h"
#include "library_design/SettingEditors.h"
#include "package/component_editors/pVRXCEMain.h"
#include "package/property_editors/pVRXCPGetMain.h"
#include "tests/package/FaceDialogTest.h"
#include "vcl/Theme.h"

using namespace face_dialog;

TEST_F(FaceDialog, ShowsACopyAndSelectsTheFirstState) {
  TVRXFaceController face(nullptr);
  FillFace(face);
  face.SettingObjects()->SetObjName(0, QStringLiteral("Big"));
  face.States()->SynchronizeNames();
  auto& font = dynamic_cast<TFont&>(*face.SettingObjects()->Items(0));
  font.SetName(QStringLiteral("Nowhere"));
  font.SetSize(17);
  font.SetColor(clMaroon);
  Dlg d(nullptr);
  d.Edit(face);
  fields::ShowActive(d);
  EXPECT_EQ(d.windowTitle(), QStringLiteral("Face Controller Editor"));
  EXPECT_EQ(Text(Rows(d.controllerStateList)), "Normal|Checked");
  EXPECT_EQ(d.controllerStateList->currentRow(), 0);
  EXPECT_EQ(Text(Rows(d.stateObjectList)), "Big");
  EXPECT_EQ(Text(Rows(d.controllerObjectsList)), "Big|Color1|Bevel1");
  EXPECT_EQ(Text(Rows(d.controllerObjectsList, 1)), "TFont|TVRXColorObject|TVRXBevel");
  EXPECT_EQ(Text(Rows(d.controllerObjectsList, 2)),
            "{Nowhere-17-clMaroon}|clBtnFace|Inner bvNone, Outer bvNone");
  d.controllerStateList->setCurrentRow(1);
  EXPECT_EQ(Text(Rows(d.stateObjectList)), "Color1");
  AddStates(d, {"Pressed"});
  EXPECT_EQ(face.States()->Count(), 2) << "the controller itself is left alone";
  EXPECT_EQ(d.EditFaceController().States()->Count(), 3);
}

TEST_F(FaceDialog, OfStatesAloneTakesOnlyThese) {
  TVRXFaceController face(nullptr);
  FillFace(face);
  Dlg d(nullptr);
  d.Edit(*face.States());
  EXPECT_EQ(Text(Rows(d.controllerStateList)), "Normal|Checked");
  EXPECT_EQ(d.controllerObjectsList->topLevelItemCount(), 0);
}

TEST_F(FaceDialog, AddsTheCheckedStatesAndKeepsTheSelectedOne) {
  TVRXFaceController face(nullptr);
  FillFace(face);
  Dlg d(nullptr);
  d.Edit(face);
  fields::ShowActive(d);
  d.controllerStateList->setCurrentRow(1);
  modal::NextOf<AddDlg>([](AddDlg& add) {
    EXPECT_EQ(add.windowTitle(), QStringLiteral("Add States"));
    EXPECT_EQ(add.notUsedStates->count(), VRXCFCGetAvailableStatesCount() - 2);
    EXPECT_TRUE(add.notUsedStates->findItems(QStringLiteral("Checked"), Qt::MatchExactly).isEmpty());
    EXPECT_TRUE(add.btnOk->isDefault());
    Click(add.btnAll);
    EXPECT_EQ(add.Checked().size(), add.notUsedStates->count());
    Click(add.btnNone);
    EXPECT_EQ(add.Checked().size(), 0);
    Check(add, {"Read only", "Disabled"});
    Click(add.btnOk);
  });
  Click(d.btnAddState);
  EXPECT_EQ(Text(Rows(d.controllerStateList)), "Normal|Checked|Disabled|Read only")
      << "in the order of the list";
  EXPECT_EQ(d.EditFaceController().States()->Items(2)->getKind(), VRXCFCKindOf({skDisabled}));
  EXPECT_EQ(d.controllerStateList->currentRow(), 1);
  modal::NextOf<AddDlg>([](AddDlg& add) {
    Click(add.btnAll);
    Click(add.btnCancel);
  });
  Click(d.btnAddState);
  EXPECT_EQ(d.controllerStateList->count(), 4);
}

TEST_F(FaceDialog, AfterARemovalTheStateIsNotOfferedAgainUntilTheListIsCleared) {
  TVRXFaceController face(nullptr);
  FillFace(face);
  Dlg d(nullptr);
  d.Edit(face);
  fields::ShowActive(d);
  const auto offered = [&] {
    bool found = false;
    modal::NextOf<AddDlg>([&](AddDlg& add) {
      found = !add.notUsedStates->findItems(QStringLiteral("Checked"), Qt::MatchExactly).isEmpty();
      Click(add.btnCancel);
    });
    Click(d.btnAddState);
    return found;
  };
  d.controllerStateList->setCurrentRow(1);
  Click(d.remove);
  EXPECT_EQ(Text(Rows(d.controllerStateList)), "Normal");
  EXPECT_EQ(d.controllerStateList->currentRow(), 0) << "the last one was removed";
  EXPECT_FALSE(offered());
  prompts.yes = true;
  Click(d.clear);
  EXPECT_EQ(d.controllerStateList->count(), 0);
  EXPECT_EQ(Text(prompts.asked), "Do you really want to delete list of states?");
  EXPECT_TRUE(offered());
}

TEST_F(FaceDialog, RemovingAStateSelectsTheOneThatTookItsPlace) {
  Dlg d(nullptr);
  fields::ShowActive(d);
  AddStates(d, {"Normal", "Disabled", "Focused"});
  EXPECT_EQ(d.controllerStateList->currentRow(), 0) << "nothing was selected before";
  d.controllerStateList->setCurrentRow(1);
  Click(d.remove);
  EXPECT_EQ(Text(Rows(d.controllerStateList)), "Normal|Focused");
  EXPECT_EQ(d.controllerStateList->currentRow(), 1);
  Click(d.remove);
  EXPECT_EQ(d.controllerStateList->currentRow(), 0);
  Click(d.remove);
  Click(d.remove);
  EXPECT_EQ(d.controllerStateList->count(), 0);
}

TEST_F(FaceDialog, ClearsOnlyWhatIsThereAndWasConfirmed) {
  TVRXFaceController face(nullptr);
  Dlg empty(nullptr);
  fields::ShowActive(empty);
  Click(empty.clear);
  Click(empty.VRXSpeedButton4);
  EXPECT_TRUE(prompts.asked.isEmpty()) << "an empty list asks nothing";
  FillFace(face);
  Dlg d(nullptr);
  d.Edit(face);
  fields::ShowActive(d);
  Click(d.clear);
  Click(d.VRXSpeedButton4);
  EXPECT_EQ(TextOf(d.EditFaceController()), TextOf(face)) << "answered with no";
  EXPECT_EQ(Text(prompts.asked),
            "Do you really want to delete list of states?|Do you really want to delete list of object "
            "settings?\rNote: All state settings will be cleared as well!");
  prompts.yes = true;
  Click(d.VRXSpeedButton4);
  EXPECT_EQ(d.controllerObjectsList->topLevelItemCount(), 0);
  EXPECT_EQ(d.controllerStateList->count(), 0);
  EXPECT_EQ(d.stateObjectList->count(), 0);
  EXPECT_EQ(d.EditFaceController().SettingObjects()->Count(), 0);
  EXPECT_TRUE(d.UsedStates().isEmpty());
}

TEST_F(FaceDialog, AddsAnObjectOfEachKindAndSevenStyles) {
  Dlg d(nullptr);
  fields::ShowActive(d);
  const std::pair<const char*, const char*> buttons[] = {{"btnAddFont", "Add TFont object"},
                                                         {"btnAddFont3D", "Add Font3D object"},
                                                         {"btnAddFontFx", "Add FontFx object"},
                                                         {"btnAddFillObject", "Add FillObject"},
                                                         {"btnAddBitmapEffect", "Add BitmapEffect object"},
                                                         {"btnAddBevel", "Add Bevel Object"},
                                                         {"btnAddColor", "Add Color object"}};
  int kind = 0;
  for (const auto& [name, hint] : buttons) {
    QToolButton* button = AddButton(d, name);
    EXPECT_EQ(button->toolTip(), QString::fromLatin1(hint));
    EXPECT_FALSE(button->icon().isNull());
    Click(button);
    const TVRXCFCSettingObjects& settings = *d.EditFaceController().SettingObjects();
    EXPECT_EQ(static_cast<int>(VRXCFCGetSettingsKindObject(settings.Items(kind))), kind + 1) << name;
    EXPECT_EQ(settings.Count(), ++kind);
  }
  EXPECT_EQ(AddButton(d, "btnAddStyles")->toolTip(), QStringLiteral("Add state style objects"));
  Click(AddButton(d, "btnAddStyles"));
  EXPECT_EQ(d.controllerObjectsList->topLevelItemCount(), 7 + 7);
  EXPECT_EQ(Text(Rows(d.controllerObjectsList, 2).mid(7)),
            ".Disabled|.Focused|.MouseOver|.Pressed|.Checked|.Default|.ReadOnly");
}

TEST_F(FaceDialog, AssignsObjectsByDraggingAndByTheMenu) {
  TVRXFaceController face(nullptr);
  FillFace(face);
  Dlg d(nullptr);
  d.Edit(face);
  fields::ShowActive(d);
  Drag(*d.controllerObjectsList, 2, *d.stateObjectList);
  EXPECT_EQ(Text(Rows(d.stateObjectList)), "Font1|Bevel1");
  Drag(*d.controllerObjectsList, 2, *d.stateObjectList);
  EXPECT_EQ(Text(Rows(d.stateObjectList)), "Font1|Bevel1") << "once is enough";
  Drag(*d.controllerObjectsList, 1, *d.stateObjectList, true);
  Drag(*d.controllerObjectsList, 1, *d.controllerStateList);
  EXPECT_EQ(Text(Rows(d.stateObjectList)), "Font1|Bevel1") << "ended, or dropped elsewhere";
  EXPECT_TRUE(d.isVisible()) << "Escape ended the dragging, not the dialog";
  d.controllerObjectsList->setCurrentItem(d.controllerObjectsList->topLevelItem(1));
  emit d.PopupMenu1->aboutToShow();
  EXPECT_TRUE(d.mnuAddToState->isEnabled());
  EXPECT_TRUE(d.mnuProperties->isEnabled());
  EXPECT_EQ(d.PopupMenu1->defaultAction(), d.mnuProperties);
  d.mnuAddToState->trigger();
  EXPECT_EQ(Text(Rows(d.stateObjectList)), "Font1|Bevel1|Color1");
  d.stateObjectList->setCurrentRow(1);
  EXPECT_EQ(d.popMnuStateObjects->defaultAction(), d.mnuEdit);
  d.mnuRemove->trigger();
  EXPECT_EQ(Text(Rows(d.stateObjectList)), "Font1|Color1");
  EXPECT_EQ(d.EditFaceController().States()->Items(0)->Count(), 2);
  EXPECT_EQ(d.EditFaceController().SettingObjects()->Count(), 3) << "the object itself stays";
}

TEST_F(FaceDialog, WithoutAStateNothingIsAssigned) {
  Dlg d(nullptr);
  fields::ShowActive(d);
  emit d.PopupMenu1->aboutToShow();
  EXPECT_FALSE(d.mnuAddToState->isEnabled());
  EXPECT_FALSE(d.mnuProperties->isEnabled());
  Click(AddButton(d, "btnAddFont"));
  emit d.PopupMenu1->aboutToShow();
  EXPECT_FALSE(d.mnuAddToState->isEnabled());
  EXPECT_TRUE(d.mnuProperties->isEnabled());
  Drag(*d.controllerObjectsList, 0, *d.stateObjectList);
  d.mnuAddToState->trigger();
  d.mnuEdit->trigger();
  d.mnuRemove->trigger();
  Click(d.remove);
  EXPECT_EQ(d.stateObjectList->count(), 0);
}

TEST_F(FaceDialog, RenamesInPlaceAndStatesFollow) {
  TVRXFaceController face(nullptr);
  FillFace(face);
  Dlg d(nullptr);
  d.Edit(face);
  fields::ShowActive(d);
  Rename(d, 0, QStringLiteral("Headline"));
  EXPECT_TRUE(d.isVisible()) << "Return was for the name";
  EXPECT_EQ(Text(Rows(d.controllerObjectsList)), "Headline|Color1|Bevel1");
  EXPECT_EQ(Text(Rows(d.stateObjectList)), "Headline");
  EXPECT_EQ(d.EditFaceController().States()->Items(0)->Items(0),
            d.EditFaceController().SettingObjects()->Items(0));
  Rename(d, 0, QStringLiteral("bevel1"));
  EXPECT_EQ(Text(prompts.informed), "This name exists in object list already!");
  EXPECT_EQ(Text(Rows(d.controllerObjectsList)), "Headline|Color1|Bevel1");
  Rename(d, 0, QStringLiteral("headline"));
  EXPECT_EQ(prompts.informed.size(), 1) << "its own name is not another one's";
  EXPECT_EQ(Text(Rows(d.stateObjectList)), "headline");
  Rename(d, 2, QStringLiteral("Bevel1"));
  EXPECT_EQ(prompts.informed.size(), 1);
}

namespace {
// Answers with the message boxes that a person sees.
struct RealPrompts {
  explicit RealPrompts(IPrompts& own) : own_(own) { SetPrompts(nullptr); }
  ~RealPrompts() { SetPrompts(&own_); }
  IPrompts& own_;
};
}  // namespace

TEST_F(FaceDialog, ANameThatIsThereIsToldOnceAndTheRowHasTheFocusAgain) {
  TVRXFaceController face(nullptr);
  FillFace(face);
  Dlg d(nullptr);
  d.Edit(face);
  fields::ShowActive(d);
  const RealPrompts real(prompts);
  for (const bool clicksOk : {false, true}) {
    d.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&d));
    int boxes = 0;
    QTimer answers;
    QObject::connect(&answers, &QTimer::timeout, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box) return;
      ++boxes;
      EXPECT_EQ(box->text(), QStringLiteral("This name exists in object list already!"));
      box->accept();
    });
    answers.start(0);
    QTreeWidget* list = d.controllerObjectsList;
    list->setFocus();
    list->setCurrentItem(list->topLevelItem(1));
    QTest::keyClick(list, Qt::Key_F2);
    auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(field, nullptr);
    field->setText(QStringLiteral("Bevel1"));
    if (clicksOk)
      QTest::mousePress(d.btnOk, Qt::LeftButton);
    else
      QTest::keyClick(field, Qt::Key_Return);
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
    EXPECT_EQ(boxes, 1);
    EXPECT_FALSE(d.btnOk->isDown());
    EXPECT_TRUE(d.isVisible());
    EXPECT_EQ(d.focusWidget(), list);
    EXPECT_EQ(list->indexOfTopLevelItem(list->currentItem()), 1);
    EXPECT_EQ(Text(Rows(list)), "Font1|Color1|Bevel1");
  }
}

TEST_F(FaceDialog, ASavedNameWithoutAnEndingDoesNotReplaceAFileUnasked) {
  QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("mine.fcstates"));
  QFile there(file);
  ASSERT_TRUE(there.open(QIODevice::WriteOnly));
  there.write("mine");
  there.close();
  Dlg d(nullptr);
  fields::ShowActive(d);
  d.edFilePath->setText(folder.path());
  const RealPrompts real(prompts);
  modal::NextOf<QFileDialog>([](QFileDialog& dialog) {
    auto* name = dialog.findChild<QLineEdit*>();
    EXPECT_EQ(name->text(), QStringLiteral("*.fcstates"));
    name->setText(QStringLiteral("mine"));
    modal::NextOf<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::No)->click(); });
    QTest::keyClick(name, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    dialog.reject();
  });
  Click(d.btnSave);
  ASSERT_TRUE(there.open(QIODevice::ReadOnly));
  EXPECT_EQ(there.readAll(), QByteArray("mine"));
}

TEST_F(FaceDialog, RowsWithMarksStandApart) {
  ApplyTheme(TTheme::Light);
  AddDlg add(nullptr);
  add.SetUsedStates({});
  fields::ShowActive(add);
  const auto height = [&](int row) {
    return add.notUsedStates->visualItemRect(add.notUsedStates->item(row)).height();
  };
  const QStyle& style = *add.notUsedStates->style();
  EXPECT_GE(height(1), style.pixelMetric(QStyle::PM_IndicatorHeight, nullptr, add.notUsedStates) + 4);
}

TEST_F(FaceDialog, EditsAnObjectFromBothLists) {
  TVRXFaceController face(nullptr);
  FillFace(face);
  Dlg d(nullptr);
  d.Edit(face);
  fields::ShowActive(d);
  d.controllerStateList->setCurrentRow(1);
  d.stateObjectList->setCurrentRow(0);
  const auto color = [&] {
    return As<TVRXColorObject>(d.EditFaceController().SettingObjects()->Items(1))
        ->Get(TVRXColorObject::Color);
  };
  // Cancelled first.
  modal::NextOf<ColorEnhDialog>([](auto& dialog) { dialog.reject(); });
  d.mnuEdit->trigger();
  EXPECT_EQ(color(), clBtnFace);
  EXPECT_EQ(d.controllerObjectsList->indexOfTopLevelItem(d.controllerObjectsList->currentItem()), 1)
      << "it is shown in the other list";
  modal::NextOf<ColorEnhDialog>([](auto& dialog) {
    for (QLineEdit* edit : dialog.template findChildren<QLineEdit*>())
      if (edit->toolTip().contains(QStringLiteral("BBGGRR"))) {
        edit->selectAll();
        QTest::keyClicks(edit, QStringLiteral("clMaroon"));
      }
    dialog.accept();
  });
  emit d.stateObjectList->itemDoubleClicked(d.stateObjectList->item(0));
  EXPECT_EQ(color(), clMaroon);
  EXPECT_EQ(Rows(d.controllerObjectsList, 2)[1], QStringLiteral("clMaroon"));
  int came = 0;
  d.controllerObjectsList->setCurrentItem(d.controllerObjectsList->topLevelItem(0));
  modal::NextOf<FontDialog>([&](auto& dialog) {
    ++came;
    dialog.reject();
  });
  emit d.controllerObjectsList->itemDoubleClicked(d.controllerObjectsList->topLevelItem(0), 0);
  modal::NextOf<FontDialog>([&](auto& dialog) {
    ++came;
    dialog.reject();
  });
  Click(d.btnProp);
  EXPECT_EQ(came, 2);
}

TEST_F(FaceDialog, EverySettingObjectHasAnEditor) {
  for (int kind = 1; kind <= 9; ++kind) {
    TVRXFaceController face(nullptr);
    TPersistent& object =
        *face.SettingObjects()->Items(face.AddSettingObject(static_cast<TVRXCFCSettingObjectKind>(kind)));
    int came = 0;
    modal::Next([&](QDialog& dialog) {
      ++came;
      dialog.reject();
    });
    EXPECT_FALSE(VRXCPGetSettingEditor(object)) << kind;
    EXPECT_EQ(came, 1) << kind;
  }
  TVRXLED stranger;
  EXPECT_FALSE(VRXCPGetSettingEditor(stranger));
}

TEST_F(FaceDialog, RemovingAnObjectTakesItFromTheStates) {
  TVRXFaceController face(nullptr);
  FillFace(face);
  Dlg d(nullptr);
  d.Edit(face);
  fields::ShowActive(d);
  Click(d.VRXSpeedButton3);
  EXPECT_EQ(d.controllerObjectsList->topLevelItemCount(), 3) << "none is selected";
  d.controllerObjectsList->setCurrentItem(d.controllerObjectsList->topLevelItem(0));
  Click(d.VRXSpeedButton3);
  EXPECT_EQ(Text(Rows(d.controllerObjectsList)), "Color1|Bevel1");
  EXPECT_EQ(d.stateObjectList->count(), 0);
}

TEST_F(FaceDialog, SavesAndLoadsBothFiles) {
  QTemporaryDir folder;
  TVRXFaceController face(nullptr);
  FillFace(face);
  Dlg d(nullptr);
  d.Edit(face);
  fields::ShowActive(d);
  d.edFilePath->setText(folder.path());
  const std::string path = folder.path().toStdString();
  // Cancelled, or the pattern left as it stands.
  Click(d.btnSave);
  prompts.file = folder.filePath(QStringLiteral("*.fcstates"));
  Click(d.btnSave);
  Click(d.btnLoad);
  EXPECT_TRUE(QDir(folder.path()).entryList(QDir::Files).isEmpty());
  const std::string statesFilter = "States and Settings ((*.fcstates)) (*.fcstates)";
  EXPECT_EQ(Text(prompts.asked), "save " + path + "/*.fcstates|" + statesFilter + "|save " + path +
                                     "/*.fcstates|" + statesFilter + "|open " + path + "/*.fcstates|" +
                                     statesFilter);
  EXPECT_TRUE(prompts.warned.isEmpty());
  prompts.asked.clear();
  prompts.file = folder.filePath(QStringLiteral("mine.fcstates"));
  Click(d.btnSave);
  prompts.file = folder.filePath(QStringLiteral("mine.fcsettings"));
  Click(d.VRXSpeedButton2);
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).join(u' '),
            QStringLiteral("mine.fcsettings mine.fcstates"));
  EXPECT_EQ(prompts.asked[1].toStdString(),
            "save " + path + "/*.fcSettings|FaceController Settings (*.fcsettings) (*.fcsettings)");

  Dlg other(nullptr);
  fields::ShowActive(other);
  AddStates(other, {"Focused"});
  Click(AddButton(other, "btnAddStyles"));
  prompts.file = folder.filePath(QStringLiteral("mine.fcstates"));
  Click(other.btnLoad);
  EXPECT_EQ(TextOf(other.EditFaceController()), TextOf(face));
  EXPECT_EQ(Text(Rows(other.controllerStateList)), "Normal|Checked");
  EXPECT_EQ(other.controllerStateList->currentRow(), 0);
  EXPECT_EQ(Text(Rows(other.stateObjectList)), "Font1");
  EXPECT_EQ(Text(other.UsedStates()), "Normal|Checked") << "emptied before";
  prompts.asked.clear();
  prompts.file = folder.filePath(QStringLiteral("mine.fcsettings"));
  Click(other.VRXSpeedButton1);
  EXPECT_EQ(prompts.asked[0].toStdString(),
            "open *.fcSettings|FaceController Settings ((*.fcsettings)) (*.fcsettings)");
  EXPECT_EQ(Text(Rows(other.controllerObjectsList)), "Font1|Color1|Bevel1");
  EXPECT_EQ(other.controllerStateList->count(), 0) << "loading settings drops all states";
  EXPECT_EQ(other.stateObjectList->count(), 0);
  EXPECT_TRUE(other.UsedStates().isEmpty());
}

TEST_F(FaceDialog, ADamagedFileIsToldWithItsLineAndChangesNothing) {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("bad.fcstates"));
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("FaceController states 1\nsetting okFont\nend\n");
  file.close();
  TVRXFaceController face(nullptr);
  FillFace(face);
  Dlg d(nullptr);
  d.Edit(face);
  fields::ShowActive(d);
  prompts.file = path;
  Click(d.btnLoad);
  EXPECT_EQ(Text(prompts.warned),
            path.toStdString() + " cannot be read: line 2: a setting needs its kind and its name in quotes.");
  Click(d.VRXSpeedButton1);
  EXPECT_EQ(prompts.warned.size(), 2);
  EXPECT_TRUE(d.isVisible());
  EXPECT_EQ(TextOf(d.EditFaceController()), TextOf(face));
  EXPECT_EQ(Text(Rows(d.controllerStateList)), "Normal|Checked");
  EXPECT_EQ(Text(d.UsedStates()), "Normal|Checked");
}

TEST_F(FaceDialog, AStateThatNobodyKnowsIsShownAsThat) {
  TVRXFaceController face(nullptr);
  face.States()->Add()->setKind(VRXCFCKindOf({skDisabled, skFocused, skPressed}));
  Dlg d(nullptr);
  d.Edit(face);
  EXPECT_EQ(Text(Rows(d.controllerStateList)), "unknown state!!!");
}

TEST_F(FaceDialog, RemembersItsFolderHoweverItEnds) {
  Remember(QStringLiteral("/before"));
  {
    Dlg d(nullptr);
    EXPECT_EQ(d.edFilePath->text(), QStringLiteral("/before"));
    d.edFilePath->setText(QStringLiteral("/some where"));
    d.reject();
    EXPECT_EQ(Remembered(), QStringLiteral("/before"));
  }
  EXPECT_EQ(Remembered(), QStringLiteral("/some where"));
}

TEST_F(FaceDialog, TheVerbTakesTheCopyOnOkAndSaysNothingToTheDesigner) {
  TForm form(nullptr);
  auto* face = new TVRXFaceController(&form);
  FillFace(*face);
  FakeDesigner fake(&form);
  TVRXFaceControllerEditor editor(face, &fake);
  ASSERT_EQ(editor.GetVerbCount(), 1);
  EXPECT_EQ(editor.GetVerb(0), QStringLiteral("State settings"));
  EXPECT_EQ(editor.GetVerb(1), QString());
  const QByteArray before = TextOf(*face);
  for (const bool ok : {false, true}) {
    modal::NextOf<Dlg>([&](Dlg& d) {
      Click(AddButton(d, "btnAddBevel"));
      Click(ok ? d.btnOk : d.btnCancel);
    });
    editor.ExecuteVerb(0);
    EXPECT_EQ(TextOf(*face) == before, !ok);
  }
  EXPECT_EQ(face->SettingObjects()->Count(), 4);
  EXPECT_EQ(fake.modified, 0);
}

namespace {
using FaceForm = ListEditors;
}
TEST_F(FaceForm, KeepsControllersAndControlsShowThem) {
  const auto session = FormWith(
      "object Face: TVRXFaceController\n  Left = 8\n  Top = 9\nend\n"
      "object Text: TVRXStaticText\n  Left = 0\n  Top = 0\n  Width = 90\n  Height = 40\n"
      "  AutoSize = False\n  FaceController = Face\nend\n",
      registry);
  auto* face = As<TVRXFaceController>(session->Form().FindComponent(QStringLiteral("Face")));
  auto* text = As<TVRXStaticText>(session->Form().FindComponent(QStringLiteral("Text")));
  ASSERT_NE(face, nullptr);
  ASSERT_EQ(text->Get(VRXFaceControllerRef), face);
  const QByteArray before = session->Bytes();
  // OK without a touch is no command.
  const auto run = [&](const std::function<void(Dlg&)>& act) {
    modal::NextOf<Dlg>([&](Dlg& d) {
      fields::ShowActive(d);
      act(d);
      d.btnOk->click();
    });
    const auto editor = session->Registry().GetComponentEditor(face, session.get());
    session->Run(QStringLiteral("State settings"), {face}, [&] { editor->ExecuteVerb(0); });
  };
  run([](Dlg&) {});
  EXPECT_EQ(session->Bytes(), before);
  EXPECT_FALSE(session->CanUndo());
  run([](Dlg& d) {
    Click(AddButton(d, "btnAddColor"));
    Click(AddButton(d, "btnAddFillObject"));
    Rename(d, 0, QStringLiteral("Red \u00FC"));
    AddStates(d, {"Normal", "Disabled + Checked"});
    d.controllerStateList->setCurrentRow(0);
    Drag(*d.controllerObjectsList, 0, *d.stateObjectList);
  });
  const QByteArray after = session->Bytes();
  EXPECT_TRUE(
      after.contains("object Face: TVRXFaceController\n  Left = 8\n  Top = 9\n    SettingObjects = <"))
      << after.toStdString();
  EXPECT_TRUE(after.contains("ObjName = 'Red '#252\n")) << after.toStdString();
  EXPECT_TRUE(after.contains("Kind = [skDisabled, skChecked]")) << after.toStdString();
  // The same after reading it again.
  const auto again = FormSession::FromBytes(after, {}, registry);
  auto* read = As<TVRXFaceController>(again->Form().FindComponent(QStringLiteral("Face")));
  EXPECT_EQ(TextOf(*read), TextOf(*face));
  EXPECT_EQ(read->States()->Items(0)->Items(0), read->SettingObjects()->Items(0));
  EXPECT_EQ(again->Bytes(), after);
  session->Undo();
  EXPECT_EQ(session->Bytes(), before);
}
