// The editor of face controllers: names that stand twice or are none, which row is selected, and its folder.
#include <QTemporaryDir>

#include "tests/package/FaceDialogTest.h"

using namespace face_dialog;

TEST_F(FaceDialog, ANameOfNothingIsNone) {
  TVRXFaceController face(nullptr);
  FillFace(face);
  Dlg d(nullptr);
  d.Edit(face);
  fields::ShowActive(d);
  Rename(d, 1, QString());
  EXPECT_EQ(Text(Rows(d.controllerObjectsList)), "Font1|Color1|Bevel1");
  EXPECT_EQ(TextOf(d.EditFaceController()), TextOf(face));
  EXPECT_TRUE(prompts.informed.isEmpty()) << "there is nothing to tell";
}

TEST_F(FaceDialog, ANameThatAFormGaveTwiceMayStay) {
  TVRXFaceController face(nullptr);
  FillFace(face);
  face.SettingObjects()->Setting(2)->Set(TVRXCFCSettingObject::ObjName, QStringLiteral("Color1"));
  Dlg d(nullptr);
  d.Edit(face);
  fields::ShowActive(d);
  Rename(d, 2, QStringLiteral("Color1"));
  EXPECT_TRUE(prompts.informed.isEmpty());
  Rename(d, 2, QStringLiteral("color1"));
  EXPECT_EQ(prompts.informed.size(), 1) << "another name that is there";
  EXPECT_EQ(Text(Rows(d.controllerObjectsList)), "Font1|Color1|Color1");
}

TEST_F(FaceDialog, TheRowThatTookThePlaceOfARemovedOneIsSelected) {
  TVRXFaceController face(nullptr);
  FillFace(face);
  Dlg d(nullptr);
  d.Edit(face);
  fields::ShowActive(d);
  QTreeWidget* list = d.controllerObjectsList;
  const auto selected = [&] { return list->indexOfTopLevelItem(list->currentItem()); };
  list->setCurrentItem(list->topLevelItem(1));
  Click(d.VRXSpeedButton3);
  EXPECT_EQ(Text(Rows(list)), "Font1|Bevel1");
  EXPECT_EQ(selected(), 1);
  Click(d.VRXSpeedButton3);
  EXPECT_EQ(selected(), 0) << "behind the last there is none";
}

TEST_F(FaceDialog, BeginsInTheListOfStates) {
  TVRXFaceController face(nullptr);
  FillFace(face);
  Dlg d(nullptr);
  d.Edit(face);
  fields::ShowActive(d);
  EXPECT_EQ(QApplication::focusWidget(), d.controllerStateList);
  QTest::keyClick(d.controllerStateList, Qt::Key_Down);
  EXPECT_EQ(Text(Rows(d.stateObjectList)), "Color1");
}

TEST_F(FaceDialog, AnotherFolderIsTakenWhenItIsChosen) {
  QTemporaryDir folder;
  Dlg d(nullptr);
  d.edFilePath->setText(QStringLiteral("/before"));
  fields::ShowActive(d);
  for (const bool chosen : {false, true}) {
    modal::NextOf<QFileDialog>([&](QFileDialog& dialog) {
      dialog.selectFile(folder.path());
      static_cast<QDialog&>(dialog).done(chosen ? QDialog::Accepted : QDialog::Rejected);
    });
    Click(d.btnBrowse);
    EXPECT_EQ(d.edFilePath->text(), chosen ? folder.path() : QStringLiteral("/before"));
  }
}
