// Panels of dialog buttons: what their editor puts in, in which order, and what of that is one step.
#include <QGroupBox>
#include <QListWidget>
#include <QStackedWidget>

#include "package/component_editors/pVRXCEBars.h"
#include "package/dialogs/LinesTable.h"
#include "package/dialogs/pVRXDlgBtnEditorDlg.h"
#include "rtl/Registry.h"
#include "tests/package/ListEditorTest.h"
#include "vcl/CheckBox.h"

namespace {
TRegIniFile Settings() { return TRegIniFile(QStringLiteral("SOFTWARE\\Orlenvo\\Orlenvo-Kit 2025")); }
const QString Section = QStringLiteral("VRXDlgButtonEditor");

class DialogButtons : public ListEditors {
 protected:
  void SetUp() override {
    ListEditors::SetUp();
    Settings().EraseSection(Section);
    MakeForm();
  }
  void MakeForm() {
    session = FormSession::NewForm(QStringLiteral("Form1"), registry);
    panel = As<TVRXDlgButtonPanel>(
        session->CreateComponent(TVRXDlgButtonPanel::StaticClass(), nullptr, QRect(0, 0, 600, 41)));
  }
  TVRXDlgButtonPanel& Panel() {
    return *As<TVRXDlgButtonPanel>(session->GetComponent(QStringLiteral("VRXDlgButtonPanel1")));
  }
  std::string Names() {
    QStringList names;
    for (const TButton* button : Panel().Buttons()) names << button->Name();
    return names.join(u' ').toStdString();
  }
  void RunVerb(int index, const std::function<void(TVRXDlgBtnEditorDlg&)>& act) {
    modal::NextOf<TVRXDlgBtnEditorDlg>([&](TVRXDlgBtnEditorDlg& dialog) { act(dialog); });
    const auto editor = registry.GetComponentEditor(&Panel(), session.get());
    session->Run(QStringLiteral("a verb"), {&Panel()}, [&] { editor->ExecuteVerb(index); });
  }
  // "btnOK1 3|btnNo1 4"
  std::string Turns() {
    QStringList turns;
    for (const TButton* button : Panel().Buttons())
      turns << QStringLiteral("%1 %2").arg(button->Name()).arg(button->TabOrder());
    return turns.join(u'|').toStdString();
  }
  // "btnOK1 OK 1 default"
  static QJsonArray Describe(const TButton& button, int index, const QString& part) {
    return {index,
            part,
            button.ModalResult(),
            button.Default() ? 1 : 0,
            button.Cancel() ? 1 : 0,
            static_cast<int>(button.Tag())};
  }
  std::unique_ptr<FormSession> session;
  TVRXDlgButtonPanel* panel = nullptr;
};
}  // namespace

TEST_F(DialogButtons, ComeAsTheCasesSay) {
  const QJsonArray cases = Vectors("dialog_buttons.json")[QStringLiteral("cases")].toArray();
  EXPECT_GE(cases.size(), 100);
  for (const QJsonValue& value : cases) {
    const QJsonObject one = value.toObject();
    MakeForm();
    TVRXDlgBtnEditorDlg dialog(nullptr);
    dialog.SetPanel(*panel, *session);
    dialog.GetIniSettings();
    const int mask = one[QStringLiteral("mask")].toInt();
    session->Run(QStringLiteral("insert"), {}, [&] {
      dialog.InsertButtons(static_cast<std::uint16_t>(mask), one[QStringLiteral("gap")].toBool());
    });
    QJsonArray buttons;
    for (const TButton* button : panel->Buttons()) {
      int index = 0;
      while (index < VRXDialogButtonCount &&
             button->Name() !=
                 QStringLiteral("btn%1%2").arg(QString::fromLatin1(VRXDialogButton(index).Name)).arg(1))
        ++index;
      ASSERT_LT(index, VRXDialogButtonCount) << button->Name().toStdString();
      EXPECT_EQ(button->Caption(), VRXDialogButtonCaption(index));
      EXPECT_EQ(button->BoundsRect().size(), QSize(75, 25));
      EXPECT_EQ(button->Owner(), session->GetRoot());
      EXPECT_EQ(&button->ClassType(), &TVRXButton::StaticClass());
      buttons.append(Describe(*button, index, QString::fromLatin1(VRXDialogButton(index).Name)));
    }
    EXPECT_EQ(buttons, one[QStringLiteral("buttons")].toArray()) << mask;
  }
}

TEST_F(DialogButtons, AreChosenAsTheCasesSay) {
  const QJsonArray cases = Vectors("dialog_buttons.json")[QStringLiteral("choice")].toArray();
  EXPECT_GE(cases.size(), 10);
  for (const QJsonValue& value : cases) {
    const QJsonObject one = value.toObject();
    Settings().EraseSection(Section);
    MakeForm();
    RunVerb(0, [&](TVRXDlgBtnEditorDlg& dialog) {
      EXPECT_EQ(dialog.pages->currentIndex(), 0);
      if (one[QStringLiteral("radio")] == QStringLiteral("group")) {
        const QRect item =
            dialog.list2->visualItemRect(dialog.list2->item(one[QStringLiteral("index")].toInt()));
        QTest::mouseClick(dialog.list2->viewport(), Qt::LeftButton, {}, item.center());
        EXPECT_TRUE(dialog.rb2->isChecked());
      } else {
        dialog.rb2->setChecked(true);
        for (const QJsonValue& item : one[QStringLiteral("checked")].toArray())
          dialog.items[static_cast<std::size_t>(item.toInt())]->click();
        dialog.rb1->setChecked(true);
        EXPECT_EQ(dialog.Mask(), one[QStringLiteral("mask")].toInt());
      }
      dialog.accept();
    });
    const int mask = one[QStringLiteral("mask")].toInt();
    QStringList expected;
    for (int i = 0; i < VRXDialogButtonCount; ++i)
      if ((mask >> i & 1) != 0)
        expected << QStringLiteral("btn%1%2").arg(QString::fromLatin1(VRXDialogButton(i).Name)).arg(1);
    EXPECT_EQ(Names(), expected.join(u' ').toStdString());
    bool gap = false;
    for (const TButton* button : Panel().Buttons()) gap = gap || button->Tag() == 10;
    EXPECT_EQ(gap, one[QStringLiteral("gap")].toBool());
  }
}

TEST_F(DialogButtons, HaveTheTextsOfTheirDialog) {
  TVRXDlgBtnEditorDlg dialog(nullptr);
  EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Panel Buttons Editor"));
  QStringList texts;
  for (const QCheckBox* item : dialog.items) texts << item->text();
  for (int i = 0; i < dialog.list2->count(); ++i) texts << dialog.list2->item(i)->text();
  EXPECT_EQ(texts.join(u'|').toStdString(),
            "mbYes|mbNo|mbOk |mbCancel|mbAbort|mbRetry|mbIgnore,|mbAll|mbNoToAll|mbYesToAll|mbHelp|"
            "Ok, Cancel, Help|Ok, Cancel, Help (with Gap)|Ok, Cancel|Yes, No, Cancel|Abort,Retry,Ignore");
  EXPECT_EQ(dialog.Down->toolTip(), QStringLiteral("Move item down"));
}

TEST_F(DialogButtons, OfOneDialogAreOneStep) {
  const QByteArray before = session->Bytes();
  RunVerb(0, [&](TVRXDlgBtnEditorDlg& dialog) {
    dialog.items[2]->click();
    dialog.items[3]->click();
    dialog.ext1->setValue(90);
    dialog.ext2->setValue(30);
    dialog.chkr2->click();
    dialog.accept();
  });
  EXPECT_EQ(Names(), "btnOK1 btnCancel1");
  EXPECT_EQ(Panel().Get(TVRXDlgButtonPanel::ButtonAlignment), TVRXButtonAlignment::baRightBottom);
  const int right = Panel().Width() - 8;
  EXPECT_EQ(Panel().Buttons()[1]->BoundsRect(), QRect(right - 90, 5, 90, 30));
  EXPECT_EQ(Panel().Buttons()[0]->BoundsRect(), QRect(right - 188, 5, 90, 30));
  const QByteArray after = session->Bytes();
  session->Undo();
  EXPECT_EQ(session->Bytes(), before);
  EXPECT_TRUE(Panel().Buttons().empty());
  session->Redo();
  EXPECT_EQ(session->Bytes(), after);
  EXPECT_EQ(Names(), "btnOK1 btnCancel1");
  // What is there gives its names away.
  RunVerb(0, [&](TVRXDlgBtnEditorDlg& dialog) { dialog.accept(); });
  EXPECT_EQ(Names(), "btnOK1 btnCancel1 btnOK2 btnCancel2");
  RunVerb(0, [&](TVRXDlgBtnEditorDlg& dialog) {
    dialog.chkr->setChecked(true);
    dialog.items[2]->click();
    dialog.items[3]->click();
    dialog.accept();
  });
  EXPECT_EQ(Names(), "") << "an empty choice only empties the panel";
  session->Undo();
  EXPECT_EQ(Names(), "btnOK1 btnCancel1 btnOK2 btnCancel2");
}

TEST_F(DialogButtons, WithoutAChosenGroupNothingIsDone) {
  RunVerb(0, [&](TVRXDlgBtnEditorDlg& dialog) {
    dialog.items[0]->click();
    dialog.accept();
  });
  const QByteArray before = session->Bytes();
  RunVerb(0, [&](TVRXDlgBtnEditorDlg& dialog) {
    dialog.chkr->setChecked(true);
    dialog.rb2->click();
    dialog.accept();
  });
  EXPECT_EQ(session->Bytes(), before);
}

TEST_F(DialogButtons, ClicksChooseTheirHalfAndADoubleClickConfirms) {
  RunVerb(0, [&](TVRXDlgBtnEditorDlg& dialog) {
    EXPECT_TRUE(dialog.rb1->isChecked());
    const auto click = [&](int row) {
      QTest::mouseClick(dialog.list2->viewport(), Qt::LeftButton, {},
                        dialog.list2->visualItemRect(dialog.list2->item(row)).center());
    };
    click(4);
    EXPECT_TRUE(dialog.rb2->isChecked());
    dialog.items[5]->click();
    EXPECT_TRUE(dialog.rb1->isChecked());
    EXPECT_FALSE(dialog.rb2->isChecked());
    click(2);
    QTest::mouseDClick(dialog.list2->viewport(), Qt::LeftButton, {},
                       dialog.list2->visualItemRect(dialog.list2->item(2)).center());
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_EQ(Names(), "btnOK1 btnCancel1");
  RunVerb(0, [&](TVRXDlgBtnEditorDlg& dialog) {
    EXPECT_TRUE(dialog.rb2->isChecked()) << "as it was left";
    EXPECT_EQ(dialog.list2->currentRow(), 2);
    dialog.items[5]->click();  // off again
    QTest::mouseClick(dialog.items[7], Qt::LeftButton, {}, QPoint(8, dialog.items[7]->height() / 2));
    QTest::mouseDClick(dialog.items[7], Qt::LeftButton, {}, QPoint(8, dialog.items[7]->height() / 2));
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(dialog.items[7]->isChecked());
  });
  EXPECT_EQ(Names(), "btnOK1 btnCancel1 btnAll1");
}

TEST_F(DialogButtons, SettingsAreKeptWhenConfirmedOnly) {
  RunVerb(0, [&](TVRXDlgBtnEditorDlg& dialog) {
    EXPECT_EQ(dialog.ext1->value(), 75);
    EXPECT_EQ(dialog.ext2->value(), 25);
    EXPECT_EQ(dialog.Mask(), 0);
    EXPECT_FALSE(dialog.chkr->isChecked());
    EXPECT_FALSE(dialog.chkr2->isChecked());
    EXPECT_EQ(dialog.list2->currentRow(), -1);
    EXPECT_TRUE(dialog.rb1->isChecked());
    dialog.ext1->setValue(99);
    dialog.reject();
  });
  const auto read = [](const char* name) {
    return Settings().ReadInteger(Section, QString::fromLatin1(name), -99);
  };
  EXPECT_EQ(read("Width"), -99);
  RunVerb(0, [&](TVRXDlgBtnEditorDlg& dialog) {
    dialog.ext1->setValue(99);
    dialog.ext2->setValue(31);
    dialog.items[1]->click();
    dialog.items[10]->click();
    dialog.chkr->click();
    dialog.chkr2->click();
    dialog.list2->setCurrentRow(3);
    dialog.rb2->setChecked(true);
    dialog.accept();
  });
  EXPECT_EQ(read("Width"), 99);
  EXPECT_EQ(read("Height"), 31);
  EXPECT_EQ(read("CheckGroup"), 1026);
  EXPECT_EQ(read("RemoveButtons"), 1);
  EXPECT_EQ(read("RightBottom"), 1);
  EXPECT_EQ(read("RadioGroup"), 3);
  EXPECT_EQ(read("Checked"), 1);
  // A mask may hold what the dialog has no item for.
  Settings().WriteInteger(Section, QStringLiteral("CheckGroup"), 2049);
  Settings().WriteInteger(Section, QStringLiteral("Width"), 9999);
  Settings().WriteInteger(Section, QStringLiteral("Height"), -5);
  RunVerb(0, [&](TVRXDlgBtnEditorDlg& dialog) {
    EXPECT_TRUE(dialog.items[0]->isChecked());
    EXPECT_EQ(dialog.ext1->text(), QStringLiteral("500")) << "what could not be typed is cut";
    EXPECT_EQ(dialog.ext2->text(), QStringLiteral("0"));
    dialog.ext2->setValue(31);
    dialog.items[3]->click();
    EXPECT_EQ(dialog.Mask(), 2057);
    dialog.rb1->setChecked(true);
    dialog.accept();
  });
  EXPECT_EQ(Names(), "btnYes1 btnCancel1 btnClose1");
  EXPECT_EQ(read("CheckGroup"), 2057);
  EXPECT_EQ(read("Width"), 500);
  EXPECT_EQ(Panel().Buttons()[0]->BoundsRect().size(), QSize(500, 31));
}

TEST_F(DialogButtons, ChangeTheirOrderAsOneStep) {
  RunVerb(0, [&](TVRXDlgBtnEditorDlg& dialog) {
    for (const std::size_t i : {0, 1, 3}) dialog.items[i]->click();
    dialog.accept();
  });
  const QByteArray before = session->Bytes();
  const int left = Panel().Buttons()[0]->Left();
  RunVerb(1, [&](TVRXDlgBtnEditorDlg& dialog) {
    EXPECT_EQ(dialog.pages->currentIndex(), 1);
    ASSERT_EQ(dialog.lb->model()->rowCount(), 3);
    EXPECT_EQ(dialog.lb->model()->index(1, 0).data().toString(), QStringLiteral("btnNo1"));
    EXPECT_EQ(dialog.lb->model()->index(1, 1).data().toString(), VRXDialogButtonCaption(1));
    EXPECT_EQ(dialog.lb->CurrentRow(), 0);
    EXPECT_FALSE(dialog.up->isEnabled());
    EXPECT_TRUE(dialog.Down->isEnabled());
    dialog.Down->click();
    EXPECT_TRUE(dialog.up->isEnabled());
    dialog.Down->click();
    EXPECT_FALSE(dialog.Down->isEnabled());
    EXPECT_EQ(dialog.lb->CurrentRow(), 2);
    dialog.lb->Select(1);
    dialog.up->click();
    EXPECT_EQ(Names(), "btnYes1 btnNo1 btnCancel1") << "not before it is confirmed";
    dialog.accept();
  });
  EXPECT_EQ(Names(), "btnCancel1 btnNo1 btnYes1");
  EXPECT_EQ(Panel().Buttons()[0]->Left(), left);
  EXPECT_EQ(Panel().Buttons()[1]->Left(), left + 83);
  session->Undo();
  EXPECT_EQ(session->Bytes(), before);
  EXPECT_EQ(Names(), "btnYes1 btnNo1 btnCancel1");
  const QString command = session->UndoText();
  RunVerb(1, [&](TVRXDlgBtnEditorDlg& dialog) { dialog.accept(); });
  EXPECT_EQ(session->Bytes(), before);
  EXPECT_EQ(session->UndoText(), command) << "an order that nobody changed is no step";
}

TEST_F(DialogButtons, TakeTheirTurnBehindTheTabStopsThatAreThere) {
  auto* check =
      As<TCheckBox>(session->CreateComponent(TCheckBox::StaticClass(), panel, QRect(400, 8, 90, 19)));
  session->Run(QStringLiteral("turn"), {check}, [&] { check->SetTabOrder(4); });
  RunVerb(0, [&](TVRXDlgBtnEditorDlg& dialog) {
    for (const std::size_t i : {0, 1, 3}) dialog.items[i]->click();
    dialog.accept();
  });
  EXPECT_EQ(Turns(), "btnYes1 5|btnNo1 6|btnCancel1 7");
  EXPECT_TRUE(session->Bytes().contains("TabOrder = 7"));
  RunVerb(1, [&](TVRXDlgBtnEditorDlg& dialog) {
    dialog.lb->Select(2);
    dialog.up->click();
    dialog.up->click();
    dialog.accept();
  });
  EXPECT_EQ(Turns(), "btnCancel1 5|btnYes1 6|btnNo1 7");
  session->Undo();
  EXPECT_EQ(Turns(), "btnYes1 5|btnNo1 6|btnCancel1 7");
}

TEST_F(DialogButtons, RowsOfTheOrderAreDraggedToo) {
  RunVerb(0, [&](TVRXDlgBtnEditorDlg& dialog) {
    for (const std::size_t i : {0, 1, 3}) dialog.items[i]->click();
    dialog.accept();
  });
  RunVerb(1, [&](TVRXDlgBtnEditorDlg& dialog) {
    const auto rect = [&](int row) { return dialog.lb->visualRect(dialog.lb->model()->index(row, 0)); };
    QWidget* view = dialog.lb->viewport();
    QTest::mousePress(view, Qt::LeftButton, {}, rect(0).center());
    for (const int dy : {4, 40, 0}) {
      const QPoint at = QPoint(rect(2).center().x(), rect(2).bottom() - 2 - dy);
      QMouseEvent move(QEvent::MouseMove, at, view->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
      QCoreApplication::sendEvent(view, &move);
    }
    QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(rect(2).center().x(), rect(2).bottom() - 2));
    EXPECT_EQ(dialog.lb->CurrentRow(), 2);
    EXPECT_FALSE(dialog.Down->isEnabled());
    dialog.accept();
  });
  EXPECT_EQ(Names(), "btnNo1 btnCancel1 btnYes1");
}

TEST_F(DialogButtons, ThatStandCloseTogetherChangePlacesWithinThePanel) {
  RunVerb(0, [&](TVRXDlgBtnEditorDlg& dialog) {
    for (const std::size_t i : {0, 1}) dialog.items[i]->click();
    dialog.accept();
  });
  session = FormSession::FromBytes(
      session->Bytes().replace("Left = 8", "Left = 0").replace("Left = 91", "Left = 75"), {}, registry);
  ASSERT_EQ(Panel().Buttons()[1]->Left(), 75);
  RunVerb(1, [&](TVRXDlgBtnEditorDlg& dialog) {
    dialog.Down->click();
    dialog.accept();
  });
  EXPECT_EQ(Names(), "btnNo1 btnYes1");
  EXPECT_EQ(Panel().Buttons()[0]->Left(), 0);
  EXPECT_EQ(Panel().Buttons()[1]->Left(), 75);
}

TEST_F(DialogButtons, ADoubleClickOnThePanelIsCalledAsItsVerb) {
  modal::NextOf<TVRXDlgBtnEditorDlg>([](TVRXDlgBtnEditorDlg& dialog) {
    dialog.items[2]->click();
    dialog.accept();
  });
  session->Edit(Panel());
  EXPECT_EQ(Names(), "btnOK1");
  EXPECT_EQ(session->UndoText(), QStringLiteral("Add Buttons..."));
}

TEST_F(DialogButtons, OfAnEmptyPanelHaveNoOrder) {
  RunVerb(1, [&](TVRXDlgBtnEditorDlg& dialog) {
    EXPECT_EQ(dialog.lb->CurrentRow(), -1);
    EXPECT_FALSE(dialog.up->isEnabled());
    EXPECT_FALSE(dialog.Down->isEnabled());
    dialog.accept();
  });
  EXPECT_EQ(Names(), "");
}

TEST_F(DialogButtons, VerbsStandBeforeThoseOfPanels) {
  const auto editor = registry.GetComponentEditor(panel, session.get());
  QStringList verbs;
  for (int i = 0; i < editor->GetVerbCount(); ++i) verbs << editor->GetVerb(i);
  EXPECT_EQ(verbs.join(u'|').toStdString(),
            "Add Buttons...|Change Button Order...|-|Bevel|Color|Transparent: False");
  editor->ExecuteVerb(5);
  EXPECT_TRUE(panel->Get(TVRXSimplePanel::Transparent));
}

TEST_F(DialogButtons, AGroupIsChosenWithTheKeysToo) {
  RunVerb(0, [&](TVRXDlgBtnEditorDlg& dialog) {
    fields::ShowActive(dialog);
    EXPECT_TRUE(dialog.rb1->isChecked());
    dialog.list2->setFocus();
    for (const auto key : {Qt::Key_Down, Qt::Key_End}) QTest::keyClick(dialog.list2, key);
    EXPECT_EQ(dialog.list2->currentRow(), 4);
    EXPECT_TRUE(dialog.rb2->isChecked());
    dialog.accept();
  });
  EXPECT_EQ(Names(), "btnAbort1 btnRetry1 btnIgnore1");
}

TEST_F(DialogButtons, TheOrderIsChangedWithTheKeysAlone) {
  RunVerb(0, [&](TVRXDlgBtnEditorDlg& dialog) {
    for (const std::size_t i : {0, 1}) dialog.items[i]->click();
    dialog.accept();
  });
  RunVerb(1, [&](TVRXDlgBtnEditorDlg& dialog) {
    fields::ShowActive(dialog);
    EXPECT_EQ(QApplication::focusWidget(), dialog.lb);
    QWidget* focus = dialog.lb;
    for (int i = 0; i < 10 && focus && focus != dialog.Down; ++i) {
      QTest::keyClick(focus, Qt::Key_Tab);
      focus = QApplication::focusWidget();
    }
    EXPECT_EQ(focus, dialog.Down);
    QTest::keyClick(dialog.Down, Qt::Key_Space);
    dialog.accept();
  });
  EXPECT_EQ(Names(), "btnNo1 btnYes1");
}

TEST_F(DialogButtons, AButtonWithoutATurnGetsNoneByAnotherOrder) {
  RunVerb(0, [&](TVRXDlgBtnEditorDlg& dialog) {
    for (const std::size_t i : {0, 1, 3}) dialog.items[i]->click();
    dialog.accept();
  });
  session->Run(QStringLiteral("turn"), {Panel().Buttons()[1]},
               [&] { Panel().Buttons()[1]->SetTabOrder(-1); });
  RunVerb(1, [&](TVRXDlgBtnEditorDlg& dialog) {
    dialog.Down->click();
    dialog.accept();
  });
  EXPECT_EQ(Names(), "btnNo1 btnYes1 btnCancel1");
  const std::vector<TButton*> buttons = Panel().Buttons();
  EXPECT_EQ(buttons[0]->TabOrder(), -1);
  EXPECT_GE(buttons[1]->TabOrder(), 0);
  EXPECT_LT(buttons[1]->TabOrder(), buttons[2]->TabOrder());
}

TEST_F(DialogButtons, AnEmptyChoiceLeavesThePanelsAlignmentAlone) {
  RunVerb(0, [&](TVRXDlgBtnEditorDlg& dialog) {
    dialog.chkr2->setChecked(true);
    dialog.accept();
  });
  EXPECT_EQ(Panel().Get(TVRXDlgButtonPanel::ButtonAlignment), TVRXButtonAlignment::baLeftTop);
}
