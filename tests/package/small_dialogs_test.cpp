// The library's dialogs of light and shadow, formats, image lists and single values.
#include <QListWidget>
#include <QTest>

#include "library/controls/AniCtrl.h"
#include "library/controls/Clock.h"
#include "library/values/DateTimeFormat.h"
#include "library_design/DateTimeFormatDialog.h"
#include "library_design/Font3DDialog.h"
#include "library_design/ImageListDialogs.h"
#include "library_design/ValueDialogs.h"
#include "library_design/pVRXPeCore.h"
#include "rtl/Exceptions.h"
#include "tests/designintf/DesignTest.h"
#include "tests/support/Modal.h"
#include "vcl/Form.h"

namespace {
QImage Plain(QColor color) {
  QImage picture(16, 16, QImage::Format_ARGB32);
  picture.fill(color);
  return picture;
}
TImageList* NewList(TForm& form, const char* name, QList<QImage> pictures) {
  auto* list = new TImageList(&form);
  list->SetName(QString::fromLatin1(name));
  if (!pictures.isEmpty()) list->SetPictures(pictures);
  return list;
}
}  // namespace

TEST(Font3DDialog, WritesOnOkOnly) {
  TVRXFont3D font;
  font.Set(TVRXFont3D::OffsetX, -3);
  const auto change = [](TVRXFont3DEditorDlg& dialog) {
    EXPECT_EQ(dialog.edx->value(), -3);
    dialog.cmbstyle->setCurrentIndex(7);
    dialog.eddepth[1]->setValue(200);
    dialog.edy->setValue(-128);
    EXPECT_EQ(dialog.test->Font3D()->Get(TVRXFont3D::Style), TVRX3DTextStyle::tdShadow)
        << "the preview follows";
  };
  modal::NextOf<TVRXFont3DEditorDlg>([&](auto& dialog) {
    change(dialog);
    dialog.reject();
  });
  EXPECT_FALSE(VRXCPGetFont3D(font));
  EXPECT_EQ(font.Get(TVRXFont3D::Style), TVRX3DTextStyle::tdNone);
  modal::NextOf<TVRXFont3DEditorDlg>([&](auto& dialog) {
    change(dialog);
    dialog.accept();
  });
  EXPECT_TRUE(VRXCPGetFont3D(font));
  EXPECT_EQ(font.Get(TVRXFont3D::Style), TVRX3DTextStyle::tdShadow);
  EXPECT_EQ(font.Get(TVRXFont3D::ShadowDepth), 200);
  EXPECT_EQ(font.Get(TVRXFont3D::OffsetY), -128);
  EXPECT_EQ(font.Get(TVRXFont3D::OffsetX), -3);
  modal::NextOf<TVRXFont3DEditorDlg>([&](auto& dialog) {
    dialog.reset->click();
    dialog.accept();
  });
  EXPECT_TRUE(VRXCPGetFont3D(font));
  EXPECT_EQ(font.Get(TVRXFont3D::OffsetX), 0);
}

TEST(DateTimeFormatDialog, ShowsWhatTheFormatMakesOfAMoment) {
  QString format = QStringLiteral("yy hh");
  modal::NextOf<TVRXDateTimeFormatDlg>([&](auto& dialog) {
    EXPECT_EQ(dialog.edformat->text(), format);
    EXPECT_EQ(dialog.test->Caption(), QStringLiteral("31 17"));
    QTest::keyClicks(dialog.edformat, QStringLiteral(":nn"));
    EXPECT_EQ(dialog.test->Caption(), QStringLiteral("31 17:05"));
    dialog.accept();
  });
  EXPECT_TRUE(VRXCPGetDateTimeFormat(format));
  EXPECT_EQ(format, QStringLiteral("yy hh:nn"));
}

TEST(DateTimeFormatDialog, WhatIsNoFormatIsToldAndCannotBeTaken) {
  QString format = QStringLiteral("hh");
  modal::NextOf<TVRXDateTimeFormatDlg>([&](auto& dialog) {
    EXPECT_EQ(dialog.problem->text(), QString());
    dialog.edformat->setText(QStringLiteral("hh 'x"));
    EXPECT_FALSE(dialog.ok->isEnabled());
    EXPECT_EQ(dialog.problem->text(), QStringLiteral("The quote at place 4 is not closed."));
    EXPECT_EQ(dialog.test->Caption(), QString());
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    dialog.edformat->setText(QStringLiteral("hh 'x'"));
    EXPECT_TRUE(dialog.ok->isEnabled());
    EXPECT_EQ(dialog.problem->text(), QString());
    dialog.reject();
  });
  EXPECT_FALSE(VRXCPGetDateTimeFormat(format));
  EXPECT_EQ(format, QStringLiteral("hh"));
}

TEST(DateTimeFormatDialog, EveryUsualFormatIsOneAndIsTakenByAClick) {
  QString format;
  modal::NextOf<TVRXDateTimeFormatDlg>([&](auto& dialog) {
    EXPECT_EQ(dialog.usual->currentRow(), -1);
    EXPECT_GE(dialog.usual->count(), 8);
    for (int i = 0; i < dialog.usual->count(); ++i) {
      dialog.usual->setCurrentRow(i);
      EXPECT_TRUE(dialog.ok->isEnabled());
      EXPECT_TRUE(dialog.usual->item(i)->text().startsWith(dialog.Format()));
      EXPECT_TRUE(dialog.usual->item(i)->text().endsWith(dialog.test->Caption()));
      EXPECT_EQ(dialog.usual->currentRow(), i);
    }
    dialog.edformat->setText(QStringLiteral("d"));
    EXPECT_EQ(dialog.usual->currentRow(), -1) << "it is none of them";
    dialog.usual->setCurrentRow(0);
    dialog.accept();
  });
  EXPECT_TRUE(VRXCPGetDateTimeFormat(format));
  EXPECT_EQ(format, QStringLiteral("hh:nn"));
}

TEST(DateTimeFormatProperty, RefusesWhatIsNoFormat) {
  TVRXClock clock(nullptr);
  FakeDesigner designer;
  TVRXDateTimeFormatProperty editor(&designer,
                                    {{&clock, &TVRXClock::StaticClass().GetProp("CustomDateTimeFormat")}});
  editor.SetValue(QStringLiteral("dd.mm"));
  EXPECT_EQ(clock.Get(TVRXClock::CustomDateTimeFormat), QStringLiteral("dd.mm"));
  EXPECT_THROW(editor.SetValue(QStringLiteral("ddddd")), EConvertError);
  EXPECT_EQ(clock.Get(TVRXClock::CustomDateTimeFormat), QStringLiteral("dd.mm"));
  modal::NextOf<TVRXDateTimeFormatDlg>([&](auto& dialog) { dialog.reject(); });
  const int before = designer.modified;
  editor.Edit();
  EXPECT_EQ(designer.modified, before);
  modal::NextOf<TVRXDateTimeFormatDlg>([&](auto& dialog) {
    dialog.edformat->setText(QStringLiteral("hh"));
    dialog.accept();
  });
  editor.Edit();
  EXPECT_EQ(clock.Get(TVRXClock::CustomDateTimeFormat), QStringLiteral("hh"));
}

TEST(ImageListDialogs, ChooseAListAndPicturesOfIt) {
  TForm form(nullptr);
  FakeDesigner designer(&form);
  NewList(form, "First", {Plain(Qt::red)});
  TImageList* second = NewList(form, "Second", {Plain(Qt::red), Plain(Qt::green), Plain(Qt::blue)});
  TCustomImageList* list = nullptr;
  int index0 = -1, index1 = -1;
  const auto choose = [&](bool ok) {
    modal::NextOf<TVRXImageListDlg>([&, ok](auto& dialog) {
      EXPECT_EQ(dialog.lists->count(), 3);
      EXPECT_TRUE(dialog.images[1]->isVisible());
      dialog.lists->setCurrentIndex(2);
      EXPECT_EQ(dialog.images[0]->count(), 3);
      EXPECT_EQ(dialog.facts->text(), QStringLiteral("3 pictures"));
      dialog.images[0]->setCurrentRow(2);
      dialog.images[1]->setCurrentRow(1);
      ok ? dialog.accept() : dialog.reject();
    });
    return VRXCPGetIMLExt(designer, list, index0, index1);
  };
  EXPECT_FALSE(choose(false));
  EXPECT_EQ(list, nullptr);
  EXPECT_EQ(index0, -1);
  EXPECT_TRUE(choose(true));
  EXPECT_EQ(list, second);
  EXPECT_EQ(index0, 2);
  EXPECT_EQ(index1, 1);
  modal::NextOf<TVRXImageListDlg>([&](auto& dialog) {
    EXPECT_EQ(dialog.List(), second);
    EXPECT_EQ(dialog.images[0]->currentRow(), 2);
    EXPECT_FALSE(dialog.images[1]->isVisible());
    dialog.lists->setCurrentIndex(1);
    EXPECT_EQ(dialog.images[0]->currentRow(), -1) << "another list has other pictures";
    dialog.accept();
  });
  EXPECT_TRUE(VRXCPGetIML(designer, list, index0));
  EXPECT_EQ(list->Name(), QStringLiteral("First"));
  EXPECT_EQ(index0, -1);
}

TEST(ImageListDialogs, AnotherListThatHasThePictureKeepsIt) {
  TForm form(nullptr);
  FakeDesigner designer(&form);
  TImageList* first = NewList(form, "First", {Plain(Qt::red), Plain(Qt::green), Plain(Qt::blue)});
  TImageList* second = NewList(form, "Second", {Plain(Qt::red), Plain(Qt::green)});
  TCustomImageList* list = nullptr;
  int index = 1;
  modal::NextOf<TVRXImageListDlg>([](auto& dialog) {
    dialog.lists->setCurrentIndex(2);
    EXPECT_EQ(dialog.images[0]->currentRow(), 1);
    dialog.accept();
  });
  EXPECT_TRUE(VRXCPGetIML(designer, list, index));
  EXPECT_EQ(list, second);
  EXPECT_EQ(index, 1);
  modal::NextOf<TVRXImageListDlg>([](auto& dialog) {
    dialog.lists->setCurrentIndex(0);
    dialog.lists->setCurrentIndex(1);
    EXPECT_EQ(dialog.images[0]->currentRow(), 1) << "also behind none";
    dialog.images[0]->setCurrentRow(0);
    dialog.lists->setCurrentIndex(2);
    EXPECT_EQ(dialog.images[0]->currentRow(), 0) << "what was chosen last";
    dialog.lists->setCurrentIndex(1);
    dialog.accept();
  });
  EXPECT_TRUE(VRXCPGetIML(designer, list, index));
  EXPECT_EQ(list, first);
  EXPECT_EQ(index, 0);
}

TEST(ImageListDialogs, AFormWithoutListsSaysSo) {
  TForm form(nullptr);
  FakeDesigner designer(&form);
  TCustomImageList* list = nullptr;
  int index = 4;
  modal::NextOf<TVRXImageListDlg>([](auto& dialog) {
    EXPECT_EQ(dialog.facts->text(), QStringLiteral("The form has no image list."));
    dialog.accept();
  });
  EXPECT_TRUE(VRXCPGetIML(designer, list, index));
  EXPECT_EQ(index, 4) << "nobody took it away";
}

TEST(ImageListDialogs, AComponentGetsTheListAndThePicture) {
  TForm form(nullptr);
  FakeDesigner designer(&form);
  TImageList* list = NewList(form, "Pictures", {Plain(Qt::red), Plain(Qt::green)});
  TVRXAniCtrl control(nullptr);
  modal::NextOf<TVRXImageListDlg>([](auto& dialog) {
    dialog.lists->setCurrentIndex(1);
    dialog.images[0]->setCurrentRow(1);
    dialog.accept();
  });
  EXPECT_TRUE(VRXCPGetImageListOf(control, "ImageList", designer));
  EXPECT_EQ(control.Get(TVRXAniCtrl::ImageList), list);
  EXPECT_EQ(control.Get(TVRXAniCtrl::ImageIndex), 1);
  modal::NextOf<TVRXImageListDlg>([](auto& dialog) { dialog.accept(); });
  EXPECT_FALSE(VRXCPGetImageListOf(control, "ImageList", designer)) << "nothing else was chosen";
  control.Set(TVRXAniCtrl::ImageList, nullptr);
}

TEST(ImageListDialogs, AnIndexThatCannotBeShownStaysWithoutATouch) {
  TForm form(nullptr);
  FakeDesigner designer(&form);
  TImageList* list = NewList(form, "Empty", {});
  for (TCustomImageList* of :
       {static_cast<TCustomImageList*>(nullptr), static_cast<TCustomImageList*>(list)}) {
    TVRXAniCtrl control(nullptr);
    control.Set(TVRXAniCtrl::ImageList, of);
    control.Set(TVRXAniCtrl::ImageIndex, 5);
    modal::NextOf<TVRXImageListDlg>([](auto& dialog) { dialog.accept(); });
    EXPECT_FALSE(VRXCPGetImageListOf(control, "ImageList", designer));
    EXPECT_EQ(control.Get(TVRXAniCtrl::ImageIndex), 5);
    control.Set(TVRXAniCtrl::ImageList, nullptr);
  }
}

TEST(ValueDialogs, ChooseANameOfAnEnumeration) {
  TVRXClock clock(nullptr);
  modal::NextOf<TVRXSelectValueDlg>([](auto& dialog) {
    EXPECT_EQ(dialog.names->currentRow(), 1);
    EXPECT_EQ(dialog.names->item(3)->text(), QStringLiteral("cnRoman"));
    dialog.names->setCurrentRow(3);
    dialog.accept();
  });
  EXPECT_TRUE(VRXCPSelectValueDialog(clock, "Numerals"));
  EXPECT_EQ(clock.Get(TVRXClock::Numerals), TVRXClockNumerals::cnRoman);
  modal::NextOf<TVRXSelectValueDlg>([](auto& dialog) {
    dialog.names->setCurrentRow(0);
    dialog.reject();
  });
  EXPECT_FALSE(VRXCPSelectValueDialog(clock, "Numerals"));
  EXPECT_EQ(clock.Get(TVRXClock::Numerals), TVRXClockNumerals::cnRoman);
  EXPECT_THROW(VRXCPSelectValueDialog(clock, "Hint"), EPropertyError);
}

TEST(ValueDialogs, CheckTheElementsOfASet) {
  TVRXClock clock(nullptr);
  modal::NextOf<TVRXSelectValueDlg>([](auto& dialog) {
    EXPECT_EQ(dialog.names->count(), 4);
    EXPECT_EQ(dialog.names->item(0)->checkState(), Qt::Checked);
    EXPECT_EQ(dialog.names->item(2)->checkState(), Qt::Unchecked);
    dialog.names->item(0)->setCheckState(Qt::Unchecked);
    dialog.names->item(2)->setCheckState(Qt::Checked);
    dialog.accept();
  });
  EXPECT_TRUE(VRXCPSelectValueDialog(clock, "Anchors"));
  EXPECT_EQ(clock.Anchors(), (TAnchors{TAnchorKind::akTop, TAnchorKind::akRight}));
  modal::NextOf<TVRXSelectValueDlg>([](auto& dialog) { dialog.accept(); });
  EXPECT_FALSE(VRXCPSelectValueDialog(clock, "Anchors"));
}

TEST(ValueDialogs, ACaptionIsTakenOnOkOnly) {
  QString caption = QStringLiteral("&Old");
  modal::NextOf<TVRXTextDlg>([](auto& dialog) {
    EXPECT_EQ(dialog.text->text(), QStringLiteral("&Old"));
    dialog.text->setText(QStringLiteral("New"));
    dialog.reject();
  });
  EXPECT_FALSE(VRXCPGetCaption(caption));
  EXPECT_EQ(caption, QStringLiteral("&Old"));
  modal::NextOf<TVRXTextDlg>([](auto& dialog) {
    dialog.text->setText(QStringLiteral("New"));
    dialog.ok->click();
  });
  EXPECT_TRUE(VRXCPGetCaption(caption));
  EXPECT_EQ(caption, QStringLiteral("New"));
}

TEST(ValueDialogs, ASettingThatIsNoneOfItsTypeIsToldAndTheDialogStays) {
  TVRXClock clock(nullptr);
  modal::NextOf<TVRXTextDlg>([&](auto& dialog) {
    dialog.text->setText(QStringLiteral("no colour"));
    dialog.ok->click();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(dialog.problem->text().isEmpty());
    EXPECT_EQ(clock.Get(TVRXClock::FaceColor), clWindow);
    dialog.text->setText(QStringLiteral("clRed"));
    EXPECT_TRUE(dialog.problem->text().isEmpty());
    dialog.ok->click();
  });
  EXPECT_TRUE(VRXCPGetSettingEditor(clock, "FaceColor"));
  EXPECT_EQ(clock.Get(TVRXClock::FaceColor), clRed);
}
