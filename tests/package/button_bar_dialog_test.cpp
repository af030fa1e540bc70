// The editor of button bars, its verbs, and the window of its sections.
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>

#include "library_design/Font3DDialog.h"
#include "library_design/ImageListDialogs.h"
#include "library_design/LookDialogs.h"
#include "tests/package/ButtonBarTest.h"

TEST_F(ButtonBars, OfferTheVerbsOfTheirTable) {
  const auto editor = registry.GetComponentEditor(&Bar(), session.get());
  QStringList verbs;
  for (int i = 0; i < editor->GetVerbCount(); ++i) verbs << editor->GetVerb(i);
  EXPECT_EQ(verbs.join(u'|').toStdString(),
            "Component-Editor|Font3D|Font|Bevel|-|Section Editor|Add Section|Next section|Prev section|-|"
            "Add item");
}

TEST_F(ButtonBars, VerbsAddAndOpenSections) {
  RunVerb(6);
  EXPECT_EQ(CaptionOf(Bar(), 2), QStringLiteral("Section 2"));
  RunVerb(10);
  RunVerb(10);
  EXPECT_EQ(Bar().Current()->Items()->At(1).Get(TVRXBarItem::Caption), QStringLiteral("Item 1"));
  RunVerb(8);
  EXPECT_EQ(Bar().CurrentIndex(), 1);
  RunVerb(7);
  EXPECT_EQ(Bar().CurrentIndex(), 2);
  for (int i = 0; i < 5; ++i) session->Undo();
  EXPECT_EQ(session->Bytes(), bytes);
  session->Run(QStringLiteral("empty"), {}, [&] { Bar().Sections()->Clear(); });
  const QByteArray empty = session->Bytes();
  RunVerb(10);
  EXPECT_EQ(session->Bytes(), empty) << "an item needs a section";
  RunVerb(6);
  EXPECT_EQ(CaptionOf(Bar(), 0), QStringLiteral("Section 0"));
  modal::NextOf<TVRXBevelEditorDlg>([](auto& dialog) {
    dialog.edwidth->setValue(4);
    dialog.accept();
  });
  RunVerb(3);
  EXPECT_EQ(Bar().Bevel()->Get(TVRXBevel::Width), 4);
}

TEST_F(ButtonBars, TheEditorWorksOnACopyAndGivesItBackAsOneStep) {
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    EXPECT_EQ(dialog.bbar->SectionCount(), 2);
    dialog.btnSectionAdd->click();
    dialog.btnAddItem->click();
    EXPECT_EQ(Bar().SectionCount(), 2);
    dialog.reject();
  });
  EXPECT_EQ(session->Bytes(), bytes);
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) { dialog.accept(); });
  EXPECT_EQ(session->Bytes(), bytes) << "OK without a touch";
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    dialog.btnSectionAdd->click();
    dialog.btnAddItem->click();
    dialog.pages->setCurrentIndex(1);
    dialog.lih->setValue(50);
    dialog.sih->setValue(20);
    dialog.VRXCheckBox1->click();
    dialog.accept();
  });
  EXPECT_EQ(Bar().SectionCount(), 3);
  EXPECT_EQ(Bar().BoundsRect(), QRect(8, 8, 130, 300)) << "its place is its own";
  EXPECT_EQ(Bar().Align(), TAlign::alLeft);
  EXPECT_EQ(Bar().Get(B::LargeItemHeight), 50);
  EXPECT_EQ(Bar().Get(B::SmallItemHeight), 20);
  EXPECT_TRUE(Bar().Get(B::Transparent));
  session->Undo();
  EXPECT_EQ(session->Bytes(), bytes);
}

TEST_F(ButtonBars, TheLiveBarOpensSelectsRenamesAndScrolls) {
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    B& bar = *dialog.bbar;
    EXPECT_EQ(dialog.ClickedItem(), 0);
    Click(dialog, bar.ItemRect(1).center());
    EXPECT_EQ(dialog.ClickedItem(), 1);
    Click(dialog, bar.SectionRect(1).center());
    EXPECT_EQ(bar.CurrentIndex(), 1);
    EXPECT_EQ(dialog.ClickedItem(), 0) << "another section";
    dialog.btnSectionRename->click();
    ASSERT_NE(dialog.view->Editor(), nullptr);
    EXPECT_EQ(dialog.view->Editor()->text(), QStringLiteral("Notes"));
    EXPECT_EQ(dialog.view->Editor()->geometry(), bar.SectionRect(1));
    QTest::keyClicks(dialog.view->Editor(), QStringLiteral("Ideas"));
    QTest::keyClick(dialog.view->Editor(), Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible()) << "Return is for the name";
    EXPECT_EQ(CaptionOf(bar, 1), QStringLiteral("Ideas"));
    dialog.view->RenSection(0);
    QTest::keyClicks(dialog.view->Editor(), QStringLiteral("Not this"));
    QTest::keyClick(dialog.view->Editor(), Qt::Key_Escape);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(CaptionOf(bar, 0), QStringLiteral("Mail"));
    // With the keys, too.
    dialog.view->setFocus();
    QTest::keyClick(dialog.view, Qt::Key_PageUp);
    EXPECT_EQ(bar.CurrentIndex(), 0);
    QTest::keyClick(dialog.view, Qt::Key_Down);
    EXPECT_EQ(dialog.ClickedItem(), 1);
    QTest::keyClick(dialog.view, Qt::Key_F2);
    ASSERT_NE(dialog.view->Editor(), nullptr);
    QTest::keyClicks(dialog.view->Editor(), QStringLiteral("Sent"));
    Click(dialog, bar.ItemRect(0).center());
    EXPECT_EQ(bar.Current()->Items()->At(1).Get(TVRXBarItem::Caption), QStringLiteral("Sent"));
    for (int i = 0; i < 20; ++i) dialog.btnAddItem->click();
    EXPECT_GT(bar.TopItem(), 0) << "what is new is seen";
    bar.ScrollTo(0);
    QTest::mouseClick(dialog.view, Qt::LeftButton, {}, ScrollArrow(bar));
    EXPECT_EQ(bar.TopItem(), 1);
    fields::Wheel(*dialog.view, -1);
    EXPECT_EQ(bar.TopItem(), 2);
    dialog.accept();
  });
  EXPECT_EQ(CaptionOf(Bar(), 1), QStringLiteral("Ideas"));
  EXPECT_EQ(Bar().CurrentIndex(), 0);
}

TEST_F(ButtonBars, TheMenuOfTheLiveBarDeletesAndRenames) {
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    B& bar = *dialog.bbar;
    const auto choose = [&](const char* text) {
      const auto menu = dialog.view->MakeMenu();
      for (QAction* action : menu->actions())
        if (action->text().remove(u'&') == QString::fromLatin1(text) && action->isEnabled())
          return action->trigger();
      ADD_FAILURE() << text;
    };
    Click(dialog, bar.ItemRect(1).center());
    choose("Rename item");
    ASSERT_NE(dialog.view->Editor(), nullptr);
    QTest::keyClicks(dialog.view->Editor(), QStringLiteral("Gone"));
    QTest::keyClick(dialog.view->Editor(), Qt::Key_Enter);
    EXPECT_EQ(bar.Current()->Items()->At(1).Get(TVRXBarItem::Caption), QStringLiteral("Gone"));
    choose("Delete item");
    EXPECT_EQ(bar.Current()->ItemCount(), 1);
    choose("Small images");
    EXPECT_TRUE(bar.Current()->Get(TVRXBarSection::SmallImages));
    choose("Delete section");
    choose("Delete section");
    EXPECT_FALSE(dialog.btnSectionRename->isEnabled());
    EXPECT_FALSE(dialog.chkParentFont->isEnabled());
    dialog.btnSectionFontClick();
    dialog.btnSectionFont3DClick();
    dialog.lgbtnClick();
    dialog.sgbtnClick();
    dialog.smalllbxDblClick();
    dialog.btnAddItemClick();
    EXPECT_EQ(bar.SectionCount(), 0) << "without sections nothing of that does anything";
    choose("Add section");
    EXPECT_EQ(CaptionOf(bar, 0), QStringLiteral("Section 0"));
    EXPECT_TRUE(dialog.btnSectionRename->isEnabled());
    dialog.reject();
  });
}

TEST_F(ButtonBars, ImageListsAreChosenAndTheirPicturesGivenToItems) {
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    B& bar = *dialog.bbar;
    EXPECT_EQ(dialog.small->text(), QStringLiteral("(none)"));
    for (QToolButton* button : {dialog.smallbtn, dialog.largebtn}) {
      modal::NextOf<TVRXImageListDlg>([&](TVRXImageListDlg& lists) {
        lists.lists->setCurrentIndex(1);
        lists.images[0]->setCurrentRow(3);
        lists.accept();
      });
      button->click();
    }
    EXPECT_EQ(bar.Get(B::SmallImageList), &Pictures());
    EXPECT_EQ(bar.Get(B::LargeImageList), &Pictures());
    EXPECT_EQ(dialog.large->text(), QStringLiteral("Pictures"));
    EXPECT_EQ(bar.Current()->Get(TVRXBarSection::ListIndex), 3);
    EXPECT_EQ(dialog.edImg->value(), 3);
    EXPECT_EQ(dialog.smalllbx->count(), 30);
    EXPECT_EQ(dialog.smalllbx->item(29)->text(), QStringLiteral("29"));
    Click(dialog, bar.ItemRect(1).center());
    const TVRXBarItem& item = bar.Current()->Items()->At(1);
    dialog.smalllbx->scrollToBottom();
    DoubleClick(*dialog.smalllbx, 25);
    EXPECT_EQ(item.Get(TVRXBarItem::ImageIndex), 25);
    EXPECT_EQ(dialog.largelbx->currentRow(), 25);
    EXPECT_EQ(dialog.largelbx->verticalScrollBar()->value(), dialog.smalllbx->verticalScrollBar()->value());
    DoubleClick(*dialog.largelbx, 2);
    EXPECT_EQ(item.Get(TVRXBarItem::ImageIndex), 2);
    EXPECT_EQ(dialog.smalllbx->currentRow(), 25) << "its selection stays";
    EXPECT_EQ(dialog.smalllbx->verticalScrollBar()->value(), dialog.largelbx->verticalScrollBar()->value());
    EXPECT_EQ(bar.Current()->Items()->At(0).Get(TVRXBarItem::ImageIndex), -1);
    // What a click shows.
    Click(dialog, bar.ItemRect(0).center());
    EXPECT_EQ(dialog.smalllbx->currentRow(), -1);
    Click(dialog, bar.ItemRect(1).center());
    EXPECT_EQ(dialog.smalllbx->currentRow(), 2);
    dialog.edImg->setValue(7);
    EXPECT_EQ(bar.Current()->Get(TVRXBarSection::ListIndex), 7);
    EXPECT_EQ(dialog.smalllbx->currentRow(), 7);
    EXPECT_EQ(dialog.largelbx->currentRow(), 7);
    dialog.accept();
  });
  EXPECT_EQ(Bar().Get(B::LargeImageList), &Pictures());
  EXPECT_EQ(Bar().Sections()->At(0).Items()->At(1).Get(TVRXBarItem::ImageIndex), 2);
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    EXPECT_EQ(dialog.small->text(), QStringLiteral("Pictures"));
    EXPECT_EQ(dialog.edImg->value(), 7);
    dialog.reject();
  });
}

TEST_F(ButtonBars, GlyphsComeFromFiles) {
  QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("glyph.png"));
  QImage image(12, 9, QImage::Format_ARGB32);
  image.fill(Qt::red);
  ASSERT_TRUE(image.save(file));
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    B& bar = *dialog.bbar;
    Click(dialog, bar.ItemRect(1).center());
    dialog.lgbtn->click();
    EXPECT_EQ(bar.Current()->Items()->At(1).Glyph(false), nullptr) << "no file was chosen";
    prompts.file = file;
    dialog.lgbtn->click();
    ASSERT_NE(bar.Current()->Items()->At(1).Glyph(false), nullptr);
    EXPECT_EQ(bar.Current()->Items()->At(1).LargeGlyph()->Image().size(), QSize(12, 9));
    EXPECT_EQ(bar.Current()->Items()->At(1).Glyph(true), nullptr);
    dialog.sgbtn->click();
    EXPECT_NE(bar.Current()->Items()->At(1).Glyph(true), nullptr);
    EXPECT_EQ(bar.Current()->Items()->At(0).Glyph(true), nullptr);
    prompts.file = QStringLiteral(VRX_SOURCE_DIR "/README.md");
    dialog.lgbtn->click();
    EXPECT_EQ(prompts.warned.size(), 1);
    EXPECT_TRUE(dialog.isVisible());
    dialog.accept();
  });
  EXPECT_NE(Bar().Sections()->At(0).Items()->At(1).Glyph(false), nullptr);
}

TEST_F(ButtonBars, FontsOfSectionsAreTheirOwnOnceTheyAreChosen) {
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    EXPECT_TRUE(dialog.chkParentFont->isChecked());
    modal::NextOf<TVRXFont3DEditorDlg>([](auto& font) {
      font.cmbstyle->setCurrentIndex(1);
      font.accept();
    });
    dialog.btnSectionFont3D->click();
    EXPECT_FALSE(dialog.chkParentFont->isChecked());
    EXPECT_FALSE(dialog.bbar->Current()->Get(TVRXBarSection::ParentFont));
    dialog.chkParentFont->click();
    EXPECT_TRUE(dialog.bbar->Current()->Get(TVRXBarSection::ParentFont));
    dialog.reject();
  });
}

TEST_F(ButtonBars, TheTextsAreThoseOfTheEditor) {
  TVRXButtonBarEditorDlg dialog(nullptr);
  EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Button Bar Editor"));
  QStringList labels;
  for (const QLabel* label : dialog.findChildren<QLabel*>()) labels << label->text();
  for (const char* text :
       {"Current section list index:", "(small/large)",
        "Large item height:", "Smal item height:", "Small image list", "Large image list", "Bar properties",
        "Use ButtonBar context menu to rename or delete items.",
        "Double click on desired image in image list or click buttons above to browse for bitmap files."})
    EXPECT_TRUE(labels.contains(QString::fromLatin1(text))) << text;
}

TEST_F(ButtonBars, TheSelectedItemIsTheOneThatWasChosen) {
  session->Run(QStringLiteral("select"), {&Bar()}, [&] { Bar().Set(B::ItemIndex, 1); });
  const QByteArray selected = session->Bytes();
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    dialog.pages->setCurrentIndex(1);
    dialog.accept();
  });
  EXPECT_EQ(session->Bytes(), selected) << "nobody chose another one";
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    Click(dialog, dialog.bbar->ItemRect(0).center());
    dialog.accept();
  });
  EXPECT_EQ(Bar().Get(B::ItemIndex), 0);
  session->Undo();
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    Click(dialog, dialog.bbar->SectionRect(1).center());
    dialog.accept();
  });
  EXPECT_EQ(Bar().CurrentIndex(), 1);
  EXPECT_EQ(Bar().Get(B::ItemIndex), -1) << "the open section has none";
  session->Undo();
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    dialog.view->setFocus();
    for (int i = 0; i < 2; ++i) QTest::keyClick(dialog.view, Qt::Key_Delete);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.bbar->Current()->ItemCount(), 0);
    QTest::keyClick(dialog.view, Qt::Key_Delete);
    EXPECT_EQ(dialog.bbar->SectionCount(), 2) << "Delete is for items";
    EXPECT_FALSE(dialog.lgbtn->isEnabled());
    dialog.accept();
  });
  EXPECT_EQ(Bar().Get(B::ItemIndex), -1);
}

TEST_F(ButtonBars, TheKeyDeletesTheSelectedItemAndTheNextOneIsSelected) {
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    dialog.btnAddItem->click();
    Click(dialog, dialog.bbar->ItemRect(1).center());
    QTest::keyClick(dialog.view, Qt::Key_Delete);
    ASSERT_EQ(dialog.bbar->Current()->ItemCount(), 2);
    EXPECT_EQ(dialog.ClickedItem(), 1);
    EXPECT_EQ(dialog.bbar->Current()->Items()->At(1).Get(TVRXBarItem::Caption), QStringLiteral("Item 2"));
    dialog.menu->Set(TVRXButtonBarPopupMenu::Commands, {});
    QTest::keyClick(dialog.view, Qt::Key_Delete);
    EXPECT_EQ(dialog.bbar->Current()->ItemCount(), 2) << "the menu does not offer it";
    dialog.reject();
  });
}

TEST_F(ButtonBars, TheListIndexIsThatOfTheOpenSection) {
  session->Run(QStringLiteral("index"), {&Bar()}, [&] {
    Bar().Sections()->At(0).Set(TVRXBarSection::ListIndex, 4);
    Bar().Set(B::SmallImageList, &Pictures());
  });
  const QByteArray before = session->Bytes();
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    EXPECT_EQ(dialog.edImg->Shown(), 4);
    Click(dialog, dialog.bbar->SectionRect(1).center());
    EXPECT_EQ(dialog.edImg->Shown(), 1) << "of a section without items";
    EXPECT_EQ(dialog.smalllbx->currentRow(), 1);
    dialog.btnSectionAdd->click();
    EXPECT_EQ(dialog.edImg->Shown(), -1);
    dialog.btnAddItem->click();
    EXPECT_EQ(dialog.edImg->Shown(), -1);
    EXPECT_EQ(dialog.bbar->Current()->Get(TVRXBarSection::ListIndex), -1);
    dialog.reject();
  });
  EXPECT_EQ(session->Bytes(), before);
}

TEST_F(ButtonBars, WhatIsSelectedWhenTheEditorOpensHasItsPictureSelected) {
  session->Run(QStringLiteral("pictures"), {&Bar()}, [&] {
    Bar().Set(B::SmallImageList, &Pictures());
    Bar().Set(B::LargeImageList, &Pictures());
    Bar().Sections()->At(0).Items()->At(0).Set(TVRXBarItem::ImageIndex, 12);
  });
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    EXPECT_EQ(dialog.bbar->Get(B::ItemIndex), 0);
    EXPECT_EQ(dialog.smalllbx->currentRow(), 12);
    EXPECT_EQ(dialog.largelbx->currentRow(), 12);
    dialog.reject();
  });
}

TEST_F(ButtonBars, TheOrderIsChangedByDraggingAndWithTheKeys) {
  RunVerb(0, [&](TVRXButtonBarEditorDlg& dialog) {
    B& bar = *dialog.bbar;
    dialog.btnAddItem->click();
    const auto items = [&] { return ItemsOf(bar); };
    const auto drag = [&](QPoint from, QPoint to, bool escape = false) { Drag(dialog, from, to, escape); };
    const auto low = [](const QRect& r) { return QPoint(r.center().x(), r.bottom() - 2); };
    drag(bar.ItemRect(0).center(), low(bar.ItemRect(1)), true);
    EXPECT_TRUE(dialog.isVisible()) << "Escape ends what is dragged";
    EXPECT_EQ(items(), "In|Out|Item 2");
    drag(bar.ItemRect(0).center(), low(bar.ItemRect(1)));
    EXPECT_EQ(items(), "Out|In|Item 2");
    EXPECT_EQ(bar.Get(B::ItemIndex), 1) << "what is moved stays selected";
    EXPECT_EQ(dialog.ClickedItem(), 1);
    drag(bar.ItemRect(1).center(), bar.ItemRect(0).topLeft() + QPoint(20, 2));
    EXPECT_EQ(items(), "In|Out|Item 2");
    drag(bar.ItemRect(0).center(), bar.ItemRect(0).center() + QPoint(0, 2));
    EXPECT_EQ(items(), "In|Out|Item 2") << "a trembling click";
    QTest::keyClick(dialog.view, Qt::Key_Up, Qt::ControlModifier);
    QTest::keyClick(dialog.view, Qt::Key_Down, Qt::ControlModifier);
    QTest::keyClick(dialog.view, Qt::Key_Down, Qt::ControlModifier);
    QTest::keyClick(dialog.view, Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(items(), "Out|Item 2|In");
    EXPECT_EQ(dialog.ClickedItem(), 2);
    // Headings among headings; the section that was pressed is open.
    drag(bar.SectionRect(1).center(), bar.SectionRect(0).topLeft() + QPoint(20, 2));
    EXPECT_EQ(CaptionOf(bar, 0), QStringLiteral("Notes"));
    EXPECT_EQ(bar.CurrentIndex(), 0);
    QTest::keyClick(dialog.view, Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(CaptionOf(bar, 1), QStringLiteral("Notes")) << "without an item it is the section";
    EXPECT_EQ(bar.CurrentIndex(), 1);
    QTest::keyClick(dialog.view, Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(CaptionOf(bar, 0), QStringLiteral("Notes"));
    dialog.accept();
  });
  EXPECT_EQ(CaptionOf(Bar(), 1), QStringLiteral("Mail"));
  session->Undo();
  EXPECT_EQ(session->Bytes(), bytes);
}

TEST_F(ButtonBars, VerbsThatLeadNowhereSayWhy) {
  const auto problems = [&] {
    const auto editor = registry.GetComponentEditor(&Bar(), session.get());
    QString told;
    for (const int i : {6, 7, 8, 10}) told += editor->GetVerbProblem(i).isEmpty() ? u'+' : u'-';
    return told.toStdString();
  };
  EXPECT_EQ(problems(), "++-+");
  RunVerb(7);
  EXPECT_EQ(problems(), "+-++");
  session->Run(QStringLiteral("empty"), {}, [&] { Bar().Sections()->Clear(); });
  EXPECT_EQ(problems(), "+---");
}

TEST_F(ButtonBars, SectionsHaveTheirWindow) {
  for (const bool doubleClick : {true, false}) {
    if (doubleClick)
      session->Edit(Bar());
    else
      RunVerb(5);
    ASSERT_EQ(ComponentWindow::All().size(), 1);
    auto* window = dynamic_cast<TVRXButtonBarCollectionEditor*>(ComponentWindow::All().first());
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->Collection(), Bar().Sections());
    window->AddItem();
    EXPECT_EQ(CaptionOf(Bar(), 2), QStringLiteral("Section 2"));
    session->Undo();
    EXPECT_EQ(session->Bytes(), bytes);
    window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  const auto editor = Of({&Bar()}, "Sections", session.get());
  EXPECT_NE(dynamic_cast<TVRXButtonBarCollectionProperty*>(editor.get()), nullptr);
}
