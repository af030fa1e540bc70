// Results of the region dialog that are older than what is set in it.
#include "tests/package/RegionDialogTest.h"

using namespace pixeltest;

class OlderRegion : public RegionDialog {
 protected:
  void SetUp() override {
    RegionDialog::SetUp();
    Load(BarOnSilver());
    PressAt(Qt::LeftButton, 0, 0);
    PressAt(Qt::LeftButton, 8, 2);
    Build();
    region = dlg.mask->RegionData();
    picture = dlg.mask->BorderPicture();
    ASSERT_FALSE(region.isEmpty());
    ASSERT_FALSE(Marked());
  }
  void Build() {
    dlg.pages->setCurrentIndex(1);
    Click(dlg.BuildButton);
    dlg.pages->setCurrentIndex(0);
  }
  void Remove(int row) {
    dlg.cl->setCurrentRow(row);
    QTest::keyClick(dlg.cl, Qt::Key_Delete);
  }
  bool Marked() const { return !dlg.note->text().isEmpty(); }
  // OK can still take what was built, which is what is shown, and Return does not.
  void ExpectOlder() {
    EXPECT_TRUE(Marked());
    EXPECT_TRUE(dlg.BuildButton->isEnabled());
    EXPECT_TRUE(dlg.OKButton->isEnabled());
    EXPECT_EQ(dlg.mask->RegionData(), region);
    EXPECT_EQ(dlg.mask->BorderPicture(), picture);
    dlg.pages->setCurrentIndex(1);
    QCoreApplication::processEvents();
    EXPECT_EQ(dlg.Result->sizeHint(), picture.size());
    for (QWidget* field : std::initializer_list<QWidget*>{dlg.cb, dlg.colb, dlg.cl}) {
      field->setFocus();
      QTest::keyClick(field, Qt::Key_Return);
      ASSERT_TRUE(dlg.isVisible()) << field->objectName().toStdString();
    }
    dlg.pages->setCurrentIndex(0);
  }
  void ExpectFresh() {
    EXPECT_FALSE(Marked());
    EXPECT_TRUE(dlg.OKButton->isEnabled());
    EXPECT_FALSE(dlg.BuildButton->isEnabled());
  }
  QByteArray region;
  QImage picture;
};

TEST_F(OlderRegion, IsMarkedWhenAColourIsRemoved) {
  Remove(1);
  ExpectOlder();
  Build();
  ExpectFresh();
  EXPECT_NE(dlg.mask->RegionData(), region);
}

TEST_F(OlderRegion, IsMarkedWhenAColourIsPicked) {
  PressAt(Qt::LeftButton, 3, 5);
  ExpectOlder();
  Remove(2);
  EXPECT_FALSE(Marked()) << "it is of these colours again";
  EXPECT_TRUE(dlg.BuildButton->isEnabled());
}

TEST_F(OlderRegion, IsMarkedWhenAnotherPictureIsLoaded) {
  PressAt(Qt::RightButton, 0, 0);
  MoveTo(dlg.zoom, CellPlace(10, 10));
  ASSERT_FALSE(dlg.ViewLabel->text().isEmpty());
  ASSERT_FALSE(dlg.cc->text().isEmpty());
  Load(Colorful(9, 7));
  ExpectOlder();
  EXPECT_EQ(dlg.ViewLabel->text(), QString());
  EXPECT_EQ(dlg.cc->text(), QString());
  EXPECT_EQ(dlg.zoom->ColorAt(CellPlace(10, 10)), std::nullopt);
  Load(BarOnSilver());
  EXPECT_FALSE(Marked()) << "it is of this picture";
}

TEST_F(OlderRegion, IsMarkedWhenTheStyleIsChanged) {
  dlg.pages->setCurrentIndex(1);
  Choose(dlg.cb, QStringLiteral("Lowered"));
  ExpectOlder();
}

TEST_F(OlderRegion, IsNotWhatAnotherDepthMakes) {
  dlg.pages->setCurrentIndex(1);
  Choose(dlg.colb, QStringLiteral("spfMono"));
  dlg.ccb->click();
  ExpectFresh();
}

TEST_F(OlderRegion, IsConfirmedByTheButton) {
  Remove(0);
  dlg.OKButton->setFocus();
  QTest::keyClick(dlg.OKButton, Qt::Key_Return);
  EXPECT_FALSE(dlg.isVisible());
  EXPECT_EQ(dlg.result(), QDialog::Accepted);
  EXPECT_EQ(dlg.mask->RegionData(), region);
}
