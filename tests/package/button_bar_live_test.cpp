// The editor of button bars: what mouse, wheel and keys do to the live bar, and what the pages show of it.
#include <QLineEdit>
#include <QMenu>
#include <QTabWidget>
#include <QTemporaryDir>

#include "library_design/FillDialog.h"
#include "tests/package/ButtonBarTest.h"
#include "tests/support/Waiting.h"

namespace {
// Keeps where files are looked for first.
class Folders : public ScriptedPrompts {
 public:
  QString OpenFileName(QWidget*, const QString&, const QString& folder, const QString&) override {
    asked << folder;
    return file;
  }
  QStringList asked;
};
QString Picture(const QTemporaryDir& folder) {
  const QString file = folder.filePath(QStringLiteral("glyph.png"));
  QImage image(12, 9, QImage::Format_ARGB32);
  image.fill(Qt::red);
  EXPECT_TRUE(image.save(file));
  return file;
}
}  // namespace

TEST_F(ButtonBars, ItemsAreDraggedInAScrolledSection) {
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    B& bar = *dialog.bbar;
    for (int i = 0; i < 10; ++i) dialog.btnAddItem->click();
    bar.ScrollTo(4);
    Drag(dialog, bar.ItemRect(4).center(), bar.ItemRect(5).center() + QPoint(0, 9));
    EXPECT_EQ(ItemsOf(bar), "In|Out|Item 2|Item 3|Item 5|Item 4|Item 6|Item 7|Item 8|Item 9|Item 10|Item 11");
    Drag(dialog, bar.ItemRect(5).center(), bar.ItemRect(4).topLeft() + QPoint(9, 2));
    EXPECT_EQ(ItemsOf(bar), "In|Out|Item 2|Item 3|Item 4|Item 5|Item 6|Item 7|Item 8|Item 9|Item 10|Item 11");
    dialog.reject();
  });
}

TEST_F(ButtonBars, TheContextMenuIsForWhatIsBelowTheMouse) {
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    B& bar = *dialog.bbar;
    const auto menuAt = [&](QPoint at, QContextMenuEvent::Reason reason) {
      QContextMenuEvent event(reason, at, dialog.view->mapToGlobal(at));
      QCoreApplication::sendEvent(dialog.view, &event);
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(menu, nullptr);
      menu->close();
      delete menu;  // before anything takes it for the window that is in front
    };
    const QPoint second = bar.ItemRect(1).center();
    menuAt(second, QContextMenuEvent::Keyboard);
    EXPECT_EQ(bar.Get(B::ItemIndex), 0) << "by its key it is for what is selected";
    menuAt(second, QContextMenuEvent::Mouse);
    EXPECT_EQ(bar.Get(B::ItemIndex), 1);
    menuAt(bar.SectionRect(1).center(), QContextMenuEvent::Mouse);
    EXPECT_EQ(bar.CurrentIndex(), 1);
    dialog.reject();
  });
}

TEST_F(ButtonBars, ScrollByTheirStepAndAsLongAsTheButtonIsHeld) {
  session->Run(QStringLiteral("steps"), {&Bar()}, [&] {
    Bar().Set(B::ScrollStep, 2);
    Bar().Set(B::ScrollDelay, 10u);
  });
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    B& bar = *dialog.bbar;
    for (int i = 0; i < 100; ++i) bar.AddItem();
    bar.ScrollTo(0);
    fields::Wheel(*dialog.view, -1);
    EXPECT_EQ(bar.TopItem(), 2);
    fields::Wheel(*dialog.view, 1);
    EXPECT_EQ(bar.TopItem(), 0);
    const QPoint arrow = ScrollArrow(bar);
    QTest::mousePress(dialog.view, Qt::LeftButton, {}, arrow);
    EXPECT_EQ(bar.TopItem(), 2);
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.TopItem() >= 8; }, WaitLimit));
    QTest::mouseRelease(dialog.view, Qt::LeftButton, {}, arrow);
    const int there = bar.TopItem();
    QTest::qWait(100);
    EXPECT_EQ(bar.TopItem(), there);
    dialog.reject();
  });
}

TEST_F(ButtonBars, LongNamesAreRenamedWhole) {
  const QString name(40'000, u'x');
  session->Run(QStringLiteral("name"), {&Bar()}, [&] { Bar().RenSection(0, name); });
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    dialog.btnSectionRename->click();
    ASSERT_NE(dialog.view->Editor(), nullptr);
    EXPECT_EQ(dialog.view->Editor()->text(), name);
    QTest::keyClick(dialog.view->Editor(), Qt::Key_End);
    QTest::keyClicks(dialog.view->Editor(), QStringLiteral("!"));
    QTest::keyClick(dialog.view->Editor(), Qt::Key_Return);
    EXPECT_EQ(CaptionOf(*dialog.bbar, 0), name + u'!');
    dialog.reject();
  });
}

TEST_F(ButtonBars, WithTheKeyboardAnItemIsSelectedThatShowsTheFocus) {
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    fields::ShowActive(dialog);
    for (const bool mouse : {true, false}) {
      dialog.pages->setFocus();
      dialog.bbar->Set(B::ItemIndex, -1);
      dialog.view->setFocus(mouse ? Qt::MouseFocusReason : Qt::TabFocusReason);
      EXPECT_TRUE(dialog.view->hasFocus());
      EXPECT_EQ(dialog.bbar->Get(B::ItemIndex), mouse ? -1 : 0);
    }
    dialog.reject();
  });
}

TEST_F(ButtonBars, ThePageOfTheBarShowsItAsItIs) {
  session->Run(QStringLiteral("look"), {&Bar()}, [&] {
    Bar().Set(B::LargeItemHeight, 71);
    Bar().Set(B::SmallItemHeight, 19);
    Bar().Set(B::Transparent, true);
  });
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    EXPECT_EQ(dialog.lih->Shown(), 71);
    EXPECT_EQ(dialog.sih->Shown(), 19);
    EXPECT_TRUE(dialog.VRXCheckBox1->isChecked());
    dialog.VRXCheckBox1->click();
    EXPECT_FALSE(dialog.bbar->Get(B::Transparent));
    dialog.reject();
  });
}

TEST_F(ButtonBars, AnotherPageBeginsWithTheFirstItem) {
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    Click(dialog, dialog.bbar->ItemRect(1).center());
    EXPECT_EQ(dialog.ClickedItem(), 1);
    dialog.pages->setCurrentIndex(1);
    EXPECT_EQ(dialog.ClickedItem(), 0);
    dialog.reject();
  });
}

TEST_F(ButtonBars, AnItemWithAPictureOfItsOwnHasNoneOfTheListSelected) {
  session->Run(QStringLiteral("pictures"), {&Bar()}, [&] {
    Bar().Set(B::SmallImageList, &Pictures());
    Bar().Set(B::LargeImageList, &Pictures());
    Bar().Sections()->At(0).Items()->At(1).Set(TVRXBarItem::ImageIndex, 12);
  });
  QTemporaryDir folder;
  prompts.file = Picture(folder);
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    Click(dialog, dialog.bbar->ItemRect(1).center());
    EXPECT_EQ(dialog.largelbx->currentRow(), 12);
    dialog.lgbtn->click();
    EXPECT_EQ(dialog.largelbx->currentRow(), -1);
    EXPECT_EQ(dialog.smalllbx->currentRow(), 12);
    dialog.reject();
  });
}

TEST_F(ButtonBars, GlyphsAreLookedForWhereTheLastOneWas) {
  QTemporaryDir folder;
  Folders folders;
  folders.file = Picture(folder);
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    dialog.lgbtn->click();
    folders.file.clear();
    dialog.sgbtn->click();
    dialog.reject();
  });
  SetPrompts(&prompts);
  ASSERT_EQ(folders.asked.size(), 2);
  EXPECT_EQ(folders.asked[1], folder.path());
}

TEST_F(ButtonBars, TheFillOfTheBarHasTheLargePictures) {
  TImageList little(nullptr);
  session->Run(QStringLiteral("pictures"), {&Bar()}, [&] { Bar().Set(B::LargeImageList, &Pictures()); });
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    dialog.bbar->Set(B::SmallImageList, &little);
    dialog.bbar->FillObject()->Set(TVRXFillObject::Kind, TVRXFillKind::fkBitmap);
    modal::NextOf<TVRXFillEditorDlg>([&](TVRXFillEditorDlg& fill) {
      EXPECT_EQ(fill.test->Get(TVRXBaseShape::ShapeFillImageList), &Pictures());
      fill.reject();
    });
    dialog.btnFillObject->click();
    dialog.reject();
  });
}
