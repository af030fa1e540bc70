// The editor of button faces, who opens it, and the verbs of buttons and of their controllers.
#include "library_design/ImageListDialogs.h"
#include "package/component_editors/pVRXCEMain.h"
#include "package/dialogs/pVRXMMButtonFaceEditorDlg.h"
#include "package/property_editors/pVRXPeMain.h"
#include "tests/package/ListEditorTest.h"

namespace {
using enum TVRXButtonState;
using Dlg = TVRXButtonFaceDlg;
using B = TVRXCustomMMButton;
using FC = TVRXMMButtonFaceController;

const QString NoPicture = QStringLiteral("No or no valid picture assigned for this state");

class ButtonFaceEditor : public ListEditors {
 protected:
  ButtonFaceEditor() : form(nullptr), designer2(&form) {
    small = MakeList("Small", {17, 11}, 3);
    tall = MakeList("Tall", {30, 60}, 2);
  }
  TImageList* MakeList(const char* name, QSize size, int count) {
    auto* list = new TImageList(&form);
    list->SetName(QString::fromLatin1(name));
    list->Set(TImageList::Width, size.width());
    list->Set(TImageList::Height, size.height());
    QList<QImage> images;
    for (int i = 0; i < count; ++i) {
      QImage image(size, QImage::Format_ARGB32);
      image.fill(QColor(40 + 60 * i, 200, 30));
      images << image;
    }
    list->SetPictures(images);
    return list;
  }
  TForm form;
  FakeDesigner designer2;
  TImageList *small, *tall;
};

void Click(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
QString Text(const TVRXButtonFaceIndices& face) {
  QStringList parts;
  for (const auto& index : face) parts << QStringLiteral("%1:%2").arg(index.ListIndex).arg(index.ImageIndex);
  return parts.join(u' ');
}
void Select(Dlg& d, TVRXButtonState state) {
  d.lb->setCurrentItem(d.lb->topLevelItem(static_cast<int>(state)));
}
int Selected(Dlg& d) { return d.lb->indexOfTopLevelItem(d.lb->currentItem()); }
// Chooses a picture in the dialog that is opened next; -1 is none.
void Choose(int image, int list = 0) {
  modal::NextOf<TVRXImageListDlg>([=](TVRXImageListDlg& d) {
    EXPECT_EQ(d.windowTitle(), QStringLiteral("Select Picture"));
    d.lists->setCurrentIndex(list);
    d.images[0]->setCurrentRow(image);
    d.accept();
  });
}
// A row as it is painted.
QImage RowPicture(Dlg& d, int row, int column) {
  const QRect rect = d.lb->visualRect(d.lb->model()->index(row, column));
  return d.lb->viewport()->grab(rect).toImage();
}
bool Shows(const QImage& image, QColor color) {
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y) == color) return true;
  return false;
}
}  // namespace

TEST_F(ButtonFaceEditor, HasARowForEachStateAndItsHeader) {
  Dlg d(nullptr);
  d.SetFace(*small, {});
  fields::ShowActive(d);
  EXPECT_EQ(d.windowTitle(), QStringLiteral("Button Face Editor"));
  EXPECT_EQ(d.lb->headerItem()->text(0) + u'|' + d.lb->headerItem()->text(1),
            QStringLiteral("State|Picture"));
  EXPECT_EQ(d.lb->header()->height(), 21);
  EXPECT_EQ(d.lb->topLevelItemCount(), 9);
  QStringList names;
  for (int i = 0; i < 9; ++i) {
    names << d.lb->topLevelItem(i)->data(0, Qt::AccessibleTextRole).toString();
    EXPECT_EQ(d.lb->topLevelItem(i)->text(0) + d.lb->topLevelItem(i)->text(1), QString())
        << "drawn from the face";
    EXPECT_EQ(d.lb->topLevelItem(i)->data(1, Qt::AccessibleTextRole).toString(), NoPicture);
  }
  EXPECT_EQ(
      names.join(u' ').toStdString(),
      "bsUp bsDown bsMouseOver bsDisabled bsFocused bsChecked bsCheckedDown bsCheckedOver bsCheckedDisabled");
  EXPECT_TRUE(d.OKButton->isDefault());
  EXPECT_EQ(d.sync->toolTip(), QStringLiteral("Synch bsUp/bsDown ListIndex with other button states.\r\n"
                                              "Use this feature if only bsUp/bsDown Images are available."));
  d.resize(d.width() + 133, d.height());
  QCoreApplication::processEvents();
  EXPECT_EQ(d.lb->header()->sectionSize(1), d.lb->width() - 112);
}

TEST_F(ButtonFaceEditor, DrawsNamesTextsAndPictures) {
  Dlg d(nullptr);
  TVRXButtonFaceIndices face{};
  face[1] = {1, 2};
  face[2] = {1, 9};  // not in the list
  d.SetFace(*small, face);
  fields::ShowActive(d);
  Select(d, bsFocused);
  const QColor third(40 + 120, 200, 30);
  EXPECT_TRUE(Shows(RowPicture(d, 1, 1), third));
  EXPECT_EQ(RowPicture(d, 1, 1).pixelColor(1, 3), RowPicture(d, 1, 1).pixelColor(0, 0))
      << "2 beyond the section";
  EXPECT_EQ(RowPicture(d, 1, 1).pixelColor(2, 3), third);
  EXPECT_EQ(RowPicture(d, 0, 1), RowPicture(d, 2, 1)) << "the text for none, and for one that is not valid";
  EXPECT_NE(RowPicture(d, 0, 1), RowPicture(d, 1, 1));
  EXPECT_NE(RowPicture(d, 0, 0), RowPicture(d, 2, 0)) << "names";
  EXPECT_FALSE(d.IsValidRow(2));
}

TEST_F(ButtonFaceEditor, ThePictureOfTheFocusedRowHasItsOwnColours) {
  Dlg d(nullptr);
  TVRXButtonFaceIndices face{};
  face[1] = {1, 2};
  d.SetFace(*small, face);
  fields::ShowActive(d);
  d.lb->setFocus(Qt::TabFocusReason);
  QTest::keyClick(d.lb, Qt::Key_Down);
  ASSERT_EQ(Selected(d), 1);
  EXPECT_EQ(QApplication::focusWidget(), d.lb);
  const QImage row = RowPicture(d, 1, 1);
  const QImage picture = small->Image(2);
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      ASSERT_EQ(row.pixelColor(2 + x, y), picture.pixelColor(x, y)) << x << ' ' << y;
  EXPECT_NE(RowPicture(d, 1, 0), RowPicture(d, 0, 0)) << "the row is marked all the same";
}

TEST_F(ButtonFaceEditor, EveryStateIsSeenWhole) {
  Dlg d(nullptr);
  TVRXButtonFaceIndices face{};
  face[0] = {1, 1};
  d.SetFace(*tall, face);
  fields::ShowActive(d);
  EXPECT_EQ(d.RowHeight(), 40);
  const QRect last = d.lb->visualItemRect(d.lb->topLevelItem(8));
  EXPECT_LE(last.bottom(), d.lb->viewport()->rect().bottom());
  EXPECT_LE(d.lb->fontMetrics().horizontalAdvance(QStringLiteral("bsCheckedDisabled")),
            d.lb->header()->sectionSize(0) - 2);
}

TEST_F(ButtonFaceEditor, RowsAreAsHighAsTheTallestPictureUpToForty) {
  TVRXImageListContainer container(&form);
  for (TImageList* list : {small, tall})
    static_cast<TVRXImageListItem*>(container.Get(TVRXImageListContainer::Lists)->Add())
        ->Set(TVRXImageListItem::ImageList, list);
  Dlg d(nullptr);
  TVRXButtonFaceIndices face{};
  face[0] = {1, 0};
  face[1] = {2, 1};
  d.SetFace(container, face);
  EXPECT_EQ(d.RowHeight(), 0) << "reckoned when it is shown";
  fields::ShowActive(d);
  const auto height = [&] { return d.lb->visualItemRect(d.lb->topLevelItem(0)).height(); };
  EXPECT_EQ(d.RowHeight(), 40);
  EXPECT_EQ(height(), 40);
  EXPECT_EQ(d.DrawFlags(1), 1552u);
  EXPECT_EQ(d.DrawFlags(0), 0u);
  const QColor second(100, 200, 30);
  Select(d, bsFocused);
  const QImage row = RowPicture(d, 1, 1);
  EXPECT_EQ(row.pixelColor(2 + 19, 39), second) << "made to fit: 20 pixels wide";
  EXPECT_NE(row.pixelColor(2 + 22, 20), second);
  Select(d, bsDown);
  Click(d.nopicture);
  EXPECT_EQ(d.RowHeight(), 11);
  EXPECT_EQ(height(), std::max(11, d.fontMetrics().height() + 4));
  EXPECT_EQ(d.DrawFlags(0), 0u);
  Click(d.VRXButton1);
  EXPECT_EQ(d.RowHeight(), 40);
  // These leave the rows as high as they are.
  Click(d.ClearAll);
  EXPECT_EQ(d.RowHeight(), 40);
  for (int i = 0; i < 9; ++i) EXPECT_FALSE(d.IsValidRow(i));
}

TEST_F(ButtonFaceEditor, EveryActionChangesTheFaceAndKeepsTheRow) {
  Dlg d(nullptr);
  TVRXButtonFaceIndices face{};
  face[0] = {1, 1};
  face[8] = {1, 2};
  d.SetFace(*small, face);
  fields::ShowActive(d);
  Select(d, bsDown);
  Choose(2);
  Click(d.SelectBtn);
  EXPECT_EQ(Text(d.Face()).toStdString(), "1:1 1:2 0:0 0:0 0:0 0:0 0:0 0:0 1:2");
  EXPECT_EQ(Selected(d), 1);
  modal::NextOf<TVRXImageListDlg>([](TVRXImageListDlg& dialog) {
    EXPECT_EQ(dialog.images[0]->currentRow(), 2) << "it starts from what there is";
    dialog.images[0]->setCurrentRow(0);
    dialog.reject();
  });
  const QPoint row = d.lb->visualItemRect(d.lb->topLevelItem(1)).center();
  QTest::mouseClick(d.lb->viewport(), Qt::LeftButton, {}, row);
  QTest::mouseDClick(d.lb->viewport(), Qt::LeftButton, {}, row);
  EXPECT_EQ(Text(d.Face()).section(u' ', 1, 1), QStringLiteral("1:2"));
  Click(d.sync);
  EXPECT_EQ(Text(d.Face()).toStdString(), "1:1 1:2 1:1 1:1 1:1 1:2 1:2 1:2 1:2");
  EXPECT_EQ(Selected(d), 1);
  Select(d, bsMouseOver);
  Choose(0);
  Click(d.SelectBtn);
  Click(d.synchot);
  EXPECT_EQ(Text(d.Face()).toStdString(), "1:1 1:2 1:0 1:1 1:0 1:2 1:2 1:0 1:2");
  EXPECT_EQ(Selected(d), 2);
  Choose(-1);
  Click(d.SelectBtn);
  EXPECT_EQ(Text(d.Face()).section(u' ', 2, 2), QStringLiteral("0:0"));
  Select(d, bsUp);
  Click(d.nopicture);
  EXPECT_EQ(Text(d.Face()).section(u' ', 0, 0), QStringLiteral("0:0"));
  Click(d.ClearAll);
  EXPECT_EQ(d.Face(), TVRXButtonFaceIndices{});
  EXPECT_EQ(Selected(d), 0);
  Click(d.VRXButton1);
  EXPECT_EQ(d.Face(), face);
  d.lb->clearSelection();
  Click(d.nopicture);
  Click(d.SelectBtn);
  EXPECT_EQ(d.Face(), face) << "without a row nothing is done";
}

TEST_F(ButtonFaceEditor, ThePicturesOfTheChooserHaveTheFocus) {
  int list = 0, image = 0;
  modal::NextOf<TVRXImageListDlg>([](TVRXImageListDlg& d) {
    EXPECT_EQ(d.focusWidget(), d.images[0]);
    EXPECT_EQ(d.images[0]->currentRow(), 0) << "there was none";
    QTest::keyClick(d.images[0], Qt::Key_Return);
  });
  EXPECT_TRUE(VRXCPGetIML(*small, list, image));
  EXPECT_EQ(std::pair(list, image), std::pair(1, 0));
  image = 1;
  modal::NextOf<TVRXImageListDlg>([](TVRXImageListDlg& d) {
    QTest::keyClick(d.images[0], Qt::Key_Right);
    QTest::keyClick(d.images[0], Qt::Key_Return);
  });
  EXPECT_TRUE(VRXCPGetIML(*small, list, image));
  EXPECT_EQ(std::pair(list, image), std::pair(1, 2));
}

TEST_F(ButtonFaceEditor, ChoosesAmongTheListsOfAContainer) {
  TVRXImageListContainer container(&form);
  for (TImageList* list : {small, static_cast<TImageList*>(nullptr), tall})
    static_cast<TVRXImageListItem*>(container.Get(TVRXImageListContainer::Lists)->Add())
        ->Set(TVRXImageListItem::ImageList, list);
  int list = 0, image = 0;
  Choose(1, 1);
  EXPECT_TRUE(VRXCPGetIML(container, list, image));
  EXPECT_EQ(std::pair(list, image), std::pair(3, 1)) << "a place without a list still counts";
  modal::NextOf<TVRXImageListDlg>([](TVRXImageListDlg& d) {
    EXPECT_EQ(fields::Texts(*d.lists).join(u'|'), QStringLiteral("Small (3)|Tall (2)"));
    EXPECT_EQ(d.lists->currentIndex(), 1);
    EXPECT_EQ(d.images[0]->currentRow(), 1);
    d.accept();
  });
  EXPECT_FALSE(VRXCPGetIML(container, list, image)) << "nothing else was chosen";
  // A picture that is not there any more stays until another one is chosen.
  image = 7;
  modal::NextOf<TVRXImageListDlg>([](TVRXImageListDlg& d) {
    fields::TabThrough(d);
    d.accept();
  });
  EXPECT_FALSE(VRXCPGetIML(container, list, image));
  EXPECT_EQ(std::pair(list, image), std::pair(3, 7));
}

TEST_F(ButtonFaceEditor, IsRefusedWithoutAListAndForAConnectedButton) {
  TVRXMMButton button(&form);
  EXPECT_FALSE(VRXCPGetButtonFaceMM(button, nullptr));
  FC controller(&form);
  EXPECT_FALSE(VRXCPGetButtonFaceMM(controller, nullptr));
  button.Set(B::ButtonFaceController, &controller);
  EXPECT_FALSE(VRXCPGetButtonFaceMM(button, small));
  EXPECT_FALSE(VRXCPGetButtonFaceMM(button, nullptr));
  const QString noList = QStringLiteral("Can't run Editor because no ButtonFaceImageList is selected.");
  EXPECT_EQ(
      prompts.informed,
      (QStringList{noList, noList,
                   QStringLiteral(
                       "Can't run Editor because control is connected to a ButtonFaceController component."),
                   noList}));
}

TEST_F(ButtonFaceEditor, WritesBackOnOkOnly) {
  const auto expect = [&](auto& component) {
    for (const bool ok : {false, true}) {
      modal::NextOf<Dlg>([&](Dlg& d) {
        Choose(1);
        Click(d.SelectBtn);
        Click(ok ? d.OKButton : d.CancelButton);
      });
      EXPECT_EQ(VRXCPGetButtonFaceMM(component, small), ok);
      EXPECT_EQ(Text(component.GetButtonFaceIndices()).section(u' ', 0, 1),
                ok ? QStringLiteral("1:1 0:0") : QStringLiteral("0:0 0:0"));
    }
    modal::NextOf<Dlg>([&](Dlg& d) { Click(d.OKButton); });
    EXPECT_FALSE(VRXCPGetButtonFaceMM(component, small)) << "nothing else was chosen";
  };
  TVRXMMButton button(&form);
  TVRXShapeButton shape(&form);
  FC controller(&form);
  expect(button);
  expect(shape);
  expect(controller);
  TVRXLEDLabel stranger(&form);
  EXPECT_FALSE(VRXCPGetButtonFaceMM(stranger, small));
}

TEST_F(ButtonFaceEditor, IsThatOfThePropertyOfButtonsAndControllers) {
  const QByteArray images = "object Images: TImageList\n  Left = 8\n  Top = 9\nend\n";
  for (const char* cls : {"TVRXMMButton", "TVRXShapeButton", "TVRXMMButtonFaceController"}) {
    SCOPED_TRACE(cls);
    const auto session = FormWith(images + "object Face: " + cls + "\n  Left = 0\n  Top = 0\n" +
                                      "  ButtonFaceImageList = Images\nend\n",
                                  registry);
    auto* list = As<TImageList>(session->Form().FindComponent(QStringLiteral("Images")));
    QImage picture(16, 16, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    session->Run(QStringLiteral("pictures"), {list}, [&] {
      list->SetPictures({picture, picture.mirrored()});
    });
    TComponent& component = *session->Form().FindComponent(QStringLiteral("Face"));
    const QByteArray before = session->Bytes();
    EXPECT_FALSE(Of({&component}, "ButtonFace")->GetAttributes().Contains(TPropertyAttribute::paMultiSelect));
    Edit<Dlg>(*session, component, "ButtonFace", [](Dlg& d) {
      Choose(1);
      Click(d.SelectBtn);
      Click(d.OKButton);
    });
    EXPECT_TRUE(session->Bytes().contains("ButtonFace.Indices = (\n")) << session->Bytes().toStdString();
    session->Undo();
    EXPECT_EQ(session->Bytes(), before);
  }
  TVRX3DEffectButton button(&form);
  bool came = false;
  modal::Next([&](QDialog& dialog) {
    came = true;
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("3D Effect Editor"));
    dialog.reject();
  });
  Of({&button}, "ButtonFace")->Edit();
  EXPECT_TRUE(came);
}

namespace {
template <class E>
QString Verbs(TComponent& component, IDesigner* designer = nullptr) {
  const E editor(&component, designer);
  QStringList verbs;
  for (int i = 0; i < editor.GetVerbCount(); ++i) verbs << editor.GetVerb(i);
  return verbs.join(u'|');
}
}  // namespace

TEST_F(ButtonFaceEditor, VerbsOfButtonsStandInFrontOfWhatAllHave) {
  using E = TVRXExtGraphicButtonComponentEditor;
  const QString base = QStringLiteral("Caption|Font|Down: False|Enabled: True");
  TVRX3DEffectButton button3d(&form);
  TVRXShapeButton shape(&form);
  TVRXMMButton button(&form);
  EXPECT_EQ(Verbs<E>(button3d), QStringLiteral("Button-Editor|") + base);
  EXPECT_EQ(Verbs<E>(shape), base) << "neither of the two families with an editor";
  EXPECT_EQ(Verbs<E>(button), QStringLiteral("Select ButtonFace|") + base);
  TImageList empty(&form);
  button.Set(B::ButtonFaceImageList, &empty);
  EXPECT_EQ(Verbs<E>(button).section(u'|', 0, 0), QStringLiteral("Select ButtonFace")) << "no pictures in it";
  button.Set(B::ButtonFaceImageList, small);
  EXPECT_EQ(Verbs<E>(button), QStringLiteral("ButtonFace|") + base);
  E editor(&button, &designer2);
  EXPECT_EQ(editor.GetVerb(5) + editor.GetVerb(-1), QString());
  editor.ExecuteVerb(4);
  EXPECT_FALSE(button.Enabled());
  EXPECT_EQ(designer2.modified, 1);
  modal::NextOf<Dlg>([](Dlg& d) { Click(d.CancelButton); });
  editor.ExecuteVerb(0);
  EXPECT_EQ(designer2.modified, 1);
  modal::NextOf<Dlg>([](Dlg& d) {
    Choose(2);
    Click(d.SelectBtn);
    Click(d.OKButton);
  });
  editor.ExecuteVerb(0);
  EXPECT_EQ(designer2.modified, 2);
  EXPECT_EQ(Text(button.GetButtonFaceIndices()).section(u' ', 0, 0), QStringLiteral("1:2"));
}

TEST_F(ButtonFaceEditor, AListIsChosenWhereThereIsNone) {
  TVRXMMButton button(&form);
  FC controller(&form);
  TVRXExtGraphicButtonComponentEditor editor(&button, &designer2);
  TVRXButtonFaceControllerEditor controllerEditor(&controller, &designer2);
  const auto choose = [&](TComponentEditor& which, int verb, const char* name, bool ok) {
    modal::NextOf<TVRXImageListDlg>([=](TVRXImageListDlg& d) {
      EXPECT_FALSE(d.images[0]->isVisible() || d.images[1]->isVisible()) << "the list alone is taken";
      d.lists->setCurrentIndex(d.lists->findText(QString::fromLatin1(name), Qt::MatchStartsWith));
      ok ? d.accept() : d.reject();
    });
    which.ExecuteVerb(verb);
  };
  choose(editor, 0, "Tall", false);
  EXPECT_EQ(button.Get(B::ButtonFaceImageList), nullptr);
  EXPECT_EQ(designer2.modified, 0);
  choose(editor, 0, "Tall", true);
  EXPECT_EQ(button.Get(B::ButtonFaceImageList), tall);
  EXPECT_EQ(designer2.modified, 1);
  EXPECT_EQ(Verbs<TVRXButtonFaceControllerEditor>(controller), QStringLiteral("Select ButtonFaceImageList"));
  choose(controllerEditor, 0, "Small", true);
  EXPECT_EQ(controller.Get(FC::ButtonFaceImageList), small);
  EXPECT_EQ(designer2.modified, 2);
  EXPECT_EQ(Verbs<TVRXButtonFaceControllerEditor>(controller),
            QStringLiteral("ButtonFace-Editor|Select ButtonFaceImageList"));
  modal::NextOf<Dlg>([](Dlg& d) { Click(d.CancelButton); });
  controllerEditor.ExecuteVerb(0);
  EXPECT_EQ(designer2.modified, 2);
  choose(controllerEditor, 1, "(none)", true);
  EXPECT_EQ(controller.Get(FC::ButtonFaceImageList), nullptr);
  EXPECT_EQ(designer2.modified, 3);
  EXPECT_EQ(controllerEditor.GetVerbCount(), 1);
}
