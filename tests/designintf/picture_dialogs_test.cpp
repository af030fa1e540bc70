// The dialogs of pictures and image lists: what they take over, and that they take nothing else.
#include "dclstd/ImageListDialog.h"
#include "dclstd/PictureEditor.h"
#include "tests/designintf/StandardDialogTest.h"
#include "vcl/GlyphButton.h"
#include "vcl/Image.h"
#include "vcl/PictureFile.h"

using namespace fields;

// --- Pictures

class PictureEditor : public StandardDialogs {
 protected:
  void Run(TPropertyEditor& editor, std::function<void(PictureEditorDialog&)> act) {
    modal::NextOf<PictureEditorDialog>([act = std::move(act)](PictureEditorDialog& dialog) {
      act(dialog);
      if (dialog.isVisible()) dialog.ok->click();
    });
    editor.Edit();
  }
  TImage image{nullptr}, other{nullptr};
};

TEST_F(PictureEditor, TakesThePictureOfAFileAsItIs) {
  const auto editor = Of({&image, &other}, "Picture");
  EXPECT_EQ(editor->GetValue(), QStringLiteral("(None)"));
  prompts.file = FileOf(Ring(20, 12, Qt::darkGreen), "ring.png");
  Run(*editor, [](PictureEditorDialog& dialog) {
    EXPECT_FALSE(dialog.save->isEnabled());
    Click(dialog.load);
    EXPECT_TRUE(dialog.facts->text().startsWith(QStringLiteral("20 x 12, PNG, ")));
    EXPECT_EQ(dialog.view->Image().size(), QSize(20, 12));
    EXPECT_FALSE(dialog.transparent->isVisible());
  });
  EXPECT_EQ(image.Get(TImage::Picture)->FileBytes(), Read(prompts.file));
  EXPECT_EQ(other.Get(TImage::Picture)->FileBytes(), Read(prompts.file));
  EXPECT_EQ(editor->GetValue(), QStringLiteral("(TPngImage)"));
  EXPECT_EQ(designer.modified, 1);
}

TEST_F(PictureEditor, CancelAndOkWithoutATouchChangeNothing) {
  image.Get(TImage::Picture)->SetFileBytes(PictureToBytes(Ring(20, 12, Qt::red), "png"));
  const QByteArray before = image.Get(TImage::Picture)->Data();
  const auto editor = Of({&image}, "Picture");
  Run(*editor, [](PictureEditorDialog&) {});
  Run(*editor, [](PictureEditorDialog& dialog) {
    Click(dialog.clear);
    EXPECT_EQ(dialog.facts->text(), QStringLiteral("No picture"));
    dialog.cancel->click();
  });
  EXPECT_EQ(image.Get(TImage::Picture)->Data(), before);
  EXPECT_EQ(designer.modified, 0);
  Run(*editor, [](PictureEditorDialog& dialog) { Click(dialog.clear); });
  EXPECT_TRUE(image.Get(TImage::Picture)->Empty());
}

TEST_F(PictureEditor, CopiesPastesAndSaves) {
  const QImage ring = Ring(20, 12, Qt::blue);
  image.Get(TImage::Picture)->SetFileBytes(PictureToBytes(ring, "png"));
  prompts.saveAs = folder.filePath(QStringLiteral("saved.png"));
  Run(*Of({&image}, "Picture"), [](PictureEditorDialog& dialog) {
    Click(dialog.save);
    QTest::keyClick(&dialog, Qt::Key_C, Qt::ControlModifier);
  });
  EXPECT_EQ(designer.modified, 0);
  EXPECT_EQ(Read(prompts.saveAs), image.Get(TImage::Picture)->FileBytes());
  Run(*Of({&other}, "Picture"), [](PictureEditorDialog& dialog) { Click(dialog.paste); });
  EXPECT_EQ(other.Get(TImage::Picture)->Image().convertToFormat(QImage::Format_ARGB32), ring);
}

TEST_F(PictureEditor, AFileThatIsNoPictureIsToldOf) {
  prompts.file = FileWith("no picture at all", "text.png");
  Run(*Of({&image}, "Picture"), [](PictureEditorDialog& dialog) { Click(dialog.load); });
  EXPECT_EQ(prompts.warned.size(), 1);
  EXPECT_TRUE(image.Get(TImage::Picture)->Empty());
}

TEST_F(PictureEditor, OfAGlyphTellsWhatIsTransparent) {
  TSpeedButton button(nullptr);
  prompts.file = FileOf(OnFuchsia(18, 10, Qt::yellow), "glyph.bmp");
  Run(*Of({&button}, "Glyph"), [](PictureEditorDialog& dialog) {
    EXPECT_FALSE(dialog.transparent->isVisible());
    Click(dialog.load);
    EXPECT_TRUE(dialog.transparent->isVisible());
    EXPECT_EQ(dialog.transparent->text(), QStringLiteral("Transparent: clFuchsia"));
    EXPECT_EQ(dialog.view->Image().pixelColor(17, 9).alpha(), 0);
    EXPECT_EQ(dialog.view->Image().pixelColor(2, 2), QColor(Qt::yellow));
  });
  EXPECT_EQ(button.Get(TSpeedButton::Glyph)->FileBytes(), Read(prompts.file));
}

TEST_F(PictureEditor, AFileIsDroppedIn) {
  const QString file = FileOf(Ring(9, 21, Qt::red), "drop.png");
  Run(*Of({&image}, "Picture"), [&](PictureEditorDialog& dialog) {
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(file)});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &mime, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&dialog, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&dialog, &drop);
  });
  EXPECT_EQ(image.Get(TImage::Picture)->Image().size(), QSize(9, 21));
}

// --- Image lists

class ImageListEditor : public StandardDialogs {
 protected:
  ImageListEditor() {
    list.Set(TCustomImageList::Width, 12);
    list.Set(TCustomImageList::Height, 8);
    list.SetPictures({Ring(12, 8, Qt::red), Ring(12, 8, Qt::green), Ring(12, 8, Qt::blue)});
  }
  // As the component's verb does it.
  void Run(std::function<void(ImageListDialog&)> act) {
    modal::NextOf<ImageListDialog>([act = std::move(act)](ImageListDialog& dialog) {
      act(dialog);
      if (dialog.isVisible()) dialog.ok->click();
    });
    const auto editor = registry.GetComponentEditor(&list, &designer);
    EXPECT_EQ(editor->GetVerb(0), QStringLiteral("Image List Editor..."));
    editor->Edit();
  }
  static void Pick(ImageListDialog& dialog, std::initializer_list<int> rows) {
    dialog.strip->clearSelection();
    for (const int row : rows) dialog.strip->item(row)->setSelected(true);
  }
  // The colour of each, at the ring.
  std::string Colors() {
    QStringList colors;
    for (int i = 0; i < list.Count(); ++i) colors << list.Image(i).pixelColor(2, 3).name();
    return colors.join(u' ').toStdString();
  }
  TImageList list{nullptr};
};

TEST_F(ImageListEditor, UntouchedAndCancelledItChangesNothing) {
  const QByteArray before = list.Data();
  Run([](ImageListDialog& dialog) {
    EXPECT_EQ(dialog.strip->count(), 3);
    EXPECT_EQ(dialog.facts->text(), QStringLiteral("3 pictures of 12 x 8"));
    Pick(dialog, {1});
  });
  Run([](ImageListDialog& dialog) {
    Click(dialog.clear);
    EXPECT_EQ(dialog.strip->count(), 0);
    dialog.cancel->click();
  });
  EXPECT_EQ(list.Data(), before);
  EXPECT_EQ(designer.modified, 0);
}

TEST_F(ImageListEditor, AddsManyFilesBehindTheSelectedOne) {
  prompts.files = {FileOf(Ring(12, 8, Qt::cyan), "a.png"), FileOf(OnFuchsia(12, 8, Qt::yellow), "b.bmp")};
  Run([](ImageListDialog& dialog) {
    Pick(dialog, {0});
    Click(dialog.add);
    EXPECT_EQ(dialog.strip->count(), 5);
    EXPECT_TRUE(dialog.strip->item(1)->isSelected());
    EXPECT_TRUE(dialog.strip->item(2)->isSelected());
  });
  EXPECT_EQ(Colors(), "#ff0000 #00ffff #ffff00 #00ff00 #0000ff");
  EXPECT_EQ(list.Image(2).pixelColor(11, 7).alpha(), 0) << "the lower left colour is transparent";
  EXPECT_TRUE(prompts.questions.isEmpty());
  EXPECT_EQ(designer.modified, 1);
}

TEST_F(ImageListEditor, ALargerPictureIsCutOrMadeSmaller) {
  QImage wide(24, 8, QImage::Format_ARGB32);
  wide.fill(Qt::red);
  QPainter(&wide).fillRect(12, 0, 12, 8, Qt::blue);
  for (const int x : {0, 12}) wide.setPixelColor(x, 0, Qt::transparent);
  prompts.files = {FileOf(wide, "wide.png")};
  Run([](ImageListDialog& dialog) {
    Click(dialog.clear);
    Click(dialog.add);
    EXPECT_EQ(dialog.strip->count(), 2);
  });
  ASSERT_EQ(prompts.questions.size(), 1);
  EXPECT_EQ(Colors(), "#ff0000 #0000ff");
  prompts.confirm = false;
  Run([](ImageListDialog& dialog) {
    Click(dialog.clear);
    Click(dialog.add);
  });
  ASSERT_EQ(list.Count(), 1);
  EXPECT_EQ(list.Image(0).size(), QSize(12, 8));
  EXPECT_EQ(list.Image(0).pixelColor(10, 4), QColor(Qt::blue));
}

TEST_F(ImageListEditor, MovesDeletesAndReplaces) {
  prompts.file = FileOf(Ring(12, 8, Qt::black), "black.png");
  Run([](ImageListDialog& dialog) {
    Pick(dialog, {1, 2});
    EXPECT_FALSE(dialog.on->isEnabled());
    EXPECT_FALSE(dialog.replace->isEnabled());
    QTest::keyClick(dialog.strip, Qt::Key_Left, Qt::ControlModifier);
  });
  EXPECT_EQ(Colors(), "#00ff00 #0000ff #ff0000");
  Run([](ImageListDialog& dialog) {
    Pick(dialog, {0});
    QTest::keyClick(dialog.strip, Qt::Key_Delete);
    EXPECT_TRUE(dialog.strip->item(0)->isSelected()) << "the next one";
    Click(dialog.replace);
  });
  EXPECT_EQ(Colors(), "#000000 #ff0000");
}

TEST_F(ImageListEditor, PicturesAreDraggedToAnotherPlace) {
  const auto drag = [](ImageListDialog& dialog, int from, int to, bool behind) {
    QWidget* area = dialog.strip->viewport();
    const QPoint start = dialog.strip->visualItemRect(dialog.strip->item(from)).center();
    const QRect target = dialog.strip->visualItemRect(dialog.strip->item(to));
    const QPoint end(behind ? target.right() + 2 : target.left() + 1, target.center().y());
    QTest::mousePress(area, Qt::LeftButton, {}, start);
    QMouseEvent move(QEvent::MouseMove, end, area->mapToGlobal(end), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(area, &move);
    QTest::mouseRelease(area, Qt::LeftButton, {}, end);
  };
  Run([&](ImageListDialog& dialog) {
    drag(dialog, 0, 1, true);
    EXPECT_TRUE(dialog.strip->item(1)->isSelected());
    drag(dialog, 2, 0, false);
  });
  EXPECT_EQ(Colors(), "#0000ff #00ff00 #ff0000");
  EXPECT_EQ(designer.modified, 1);
  Run([&](ImageListDialog& dialog) {
    drag(dialog, 0, 2, true);
    dialog.cancel->click();
  });
  Run([&](ImageListDialog& dialog) {
    drag(dialog, 1, 0, true);
    EXPECT_FALSE(dialog.Changed()) << "where it is";
  });
  EXPECT_EQ(Colors(), "#0000ff #00ff00 #ff0000");
  EXPECT_EQ(designer.modified, 1);
}

TEST_F(ImageListEditor, SizeAndTransparentColourCanBeChanged) {
  prompts.files = {FileOf(OnFuchsia(12, 8, Qt::yellow), "b.bmp")};
  Run([](ImageListDialog& dialog) {
    Click(dialog.clear);
    EXPECT_FALSE(dialog.transparent->isEnabled());
    Click(dialog.add);
    EXPECT_EQ(dialog.transparent->Selected(), clFuchsia);
    dialog.transparent->SetSelected(clYellow);
    emit dialog.transparent->Change();
    EXPECT_EQ(dialog.Images()[0].pixelColor(2, 2).alpha(), 0);
    EXPECT_EQ(dialog.Images()[0].pixelColor(11, 7), QColor(255, 0, 255));
    dialog.width->setValue(24);
    dialog.height->setValue(20);
  });
  EXPECT_EQ(list.Get(TCustomImageList::Width), 24);
  EXPECT_EQ(list.Get(TCustomImageList::Height), 20);
  ASSERT_EQ(list.Count(), 1);
  EXPECT_EQ(list.Image(0).size(), QSize(24, 20));
}

TEST_F(ImageListEditor, PicturesKeepTheirShape) {
  QImage tall(6, 16, QImage::Format_ARGB32);
  tall.fill(QColor(200, 100, 0, 128));
  prompts.files = {FileOf(tall, "tall.png")};
  Run([](ImageListDialog& dialog) {
    Click(dialog.clear);
    Click(dialog.add);
  });
  ASSERT_EQ(list.Count(), 1);
  const QImage half = list.Image(0);  // 3 x 8 in 12 x 8
  EXPECT_EQ(half.pixelColor(5, 0).alpha(), 128);
  EXPECT_EQ(half.pixelColor(5, 7).alpha(), 128);
  EXPECT_EQ(half.pixelColor(3, 4).alpha(), 0);
  EXPECT_EQ(half.pixelColor(7, 4).alpha(), 0);
  Run([](ImageListDialog& dialog) { dialog.width->setValue(30); });
  const QImage wide = list.Image(0);  // what was 12 x 8 in 30 x 8
  ASSERT_EQ(wide.size(), QSize(30, 8));
  EXPECT_EQ(wide.pixelColor(14, 4).alpha(), 128);
  EXPECT_EQ(wide.pixelColor(12, 4).alpha(), 0);
  EXPECT_EQ(wide.pixelColor(16, 4).alpha(), 0);
}

TEST_F(ImageListEditor, OpensOnTheFirstPictureOnQuietGroundInBothThemes) {
  for (const TTheme theme : {TTheme::Light, TTheme::Dark}) {
    ApplyTheme(theme);
    Run([](ImageListDialog& dialog) {
      EXPECT_TRUE(dialog.strip->item(0)->isSelected());
      EXPECT_EQ(dialog.strip->selectedItems().size(), 1);
      EXPECT_TRUE(dialog.remove->isEnabled());
      const QImage icon = dialog.strip->item(1)->icon().pixmap(dialog.strip->iconSize()).toImage();
      QSet<QRgb> ground;
      for (int x = 0; x < icon.width(); ++x) {
        EXPECT_GT(icon.pixelColor(x, 0).lightness(), 150);
        ground.insert(icon.pixel(x, 0));
      }
      EXPECT_EQ(ground.size(), 2) << "where the picture is transparent";
    });
  }
}

TEST_F(ImageListEditor, APictureThatCouldBeTransparentAndIsNotLeavesOutItsCornersColour) {
  prompts.files = {FileOf(OnFuchsia(12, 8, Qt::yellow).convertToFormat(QImage::Format_ARGB32), "opaque.png")};
  Run([](ImageListDialog& dialog) {
    Click(dialog.clear);
    Click(dialog.add);
    EXPECT_EQ(dialog.transparent->Selected(), clFuchsia);
    EXPECT_EQ(dialog.facts->text(), QStringLiteral("1 picture of 12 x 8"));
  });
  EXPECT_EQ(list.Image(0).pixelColor(0, 7).alpha(), 0);
}

TEST_F(ImageListEditor, APictureOfOneColourStaysAsItIs) {
  QImage plain(12, 8, QImage::Format_RGB32);
  plain.fill(Qt::darkCyan);
  prompts.files = {FileOf(plain, "plain.png")};
  Run([](ImageListDialog& dialog) {
    Click(dialog.clear);
    Click(dialog.add);
    EXPECT_EQ(dialog.transparent->Selected(), clNone);
  });
  EXPECT_EQ(list.Image(0).pixelColor(0, 7), QColor(Qt::darkCyan));
  EXPECT_EQ(list.Image(0).pixelColor(5, 3), QColor(Qt::darkCyan));
}

TEST_F(ImageListEditor, ExportsAllSideBySide) {
  prompts.saveAs = folder.filePath(QStringLiteral("all.png"));
  Run([](ImageListDialog& dialog) { Click(dialog.exportAll); });
  const QImage all(prompts.saveAs);
  EXPECT_EQ(all.size(), QSize(36, 8));
  EXPECT_EQ(all.pixelColor(26, 3), QColor(Qt::blue));
  EXPECT_EQ(all.pixelColor(0, 0).alpha(), 0);
  EXPECT_EQ(designer.modified, 0);
}
