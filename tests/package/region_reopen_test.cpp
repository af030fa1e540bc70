// A mask that has been built before is opened again.
#include "package/property_editors/pVRXCPGetMain.h"
#include "rtl/PropAccess.h"
#include "tests/package/RegionDialogTest.h"

using namespace pixeltest;

class RegionReopen : public PictureDialogTest {
 protected:
  void Build(bool window, int style, TVRXColorDepth depth = TVRXColorDepth::spfDefault) {
    const std::vector<TColor> colors{clSilver, clBlue};
    mask.SetColorDepth(depth);
    const TRegionBuild build =
        window ? BuildWindowRegion(BarOnSilver(), colors, static_cast<TRegionBorder>(style), nullptr)
               : BuildButtonRegion(BarOnSilver(), colors, static_cast<TRegionButton>(style), nullptr);
    mask.SetRegionData(build.RegionData());
    mask.SetBorderPicture(build.Border);
    if (window) return;
    mask.SetStatePicture(0, build.First);
    mask.SetStatePicture(1, build.Second);
  }
  // As it comes from a form file.
  void Reload() {
    TVRXRegionMask read;
    for (const TPropInfo* prop : TVRXRegionMask::StaticClass().Properties())
      SetProp(read, *prop, GetProp(mask, *prop));
    mask.Assign(&read);
  }
  QByteArrayList Bytes() const {
    QByteArrayList all;
    for (const char* name : {"RegionData", "BorderPicture", "FirstPicture", "SecondPicture"})
      all << GetBinaryProp(mask, TVRXRegionMask::StaticClass().GetProp(name));
    return all;
  }
  bool Open(bool window, std::function<void(TVRXfrmRegionFromBMPdlg&)> act) {
    modal::NextOf<TVRXfrmRegionFromBMPdlg>([act = std::move(act)](auto& dlg) {
      act(dlg);
      if (dlg.isVisible()) dlg.reject();
    });
    return VRXCPGetRegionMask(mask, window);
  }
  static QStringList Listed(const TVRXfrmRegionFromBMPdlg& dlg) {
    QStringList texts;
    for (int i = 0; i < dlg.cl->count(); ++i) texts << dlg.cl->item(i)->text();
    return texts;
  }
  TVRXRegionMask mask;
};

TEST_F(RegionReopen, KeepsThePictureAndTheColoursOfAWindow) {
  Build(true, 0);
  Reload();
  Open(true, [](auto& dlg) {
    EXPECT_TRUE(dlg.Image1->Picture() == BarOnSilver());
    EXPECT_EQ(dlg.DimLabel->text(), QStringLiteral("Bitmap size: 14x11"));
    EXPECT_EQ(Listed(dlg), QStringList({QStringLiteral("clSilver"), QStringLiteral("clBlue")}));
    EXPECT_EQ(dlg.cb->currentText(), QStringLiteral("None"));
    EXPECT_EQ(dlg.note->text(), QString());
    EXPECT_TRUE(dlg.OKButton->isEnabled());
    EXPECT_FALSE(dlg.BuildButton->isEnabled());
  });
}

TEST_F(RegionReopen, KeepsThePictureTheColoursAndTheLookOfAButton) {
  for (int look = 0; look < 3; ++look) {
    Build(false, look);
    Reload();
    Open(false, [look](auto& dlg) {
      EXPECT_TRUE(dlg.Image1->Picture() == BarOnSilver());
      EXPECT_EQ(Listed(dlg), QStringList({QStringLiteral("clSilver"), QStringLiteral("clBlue")}));
      EXPECT_EQ(dlg.cb2->currentIndex(), look);
      EXPECT_TRUE(dlg.OKButton->isEnabled());
    });
  }
}

// The value has nothing but the painted picture; the dialog says so.
TEST_F(RegionReopen, ShowsAWindowsPictureWithItsBorderAndTheStyle) {
  for (int style = 1; style < 6; ++style) {
    Build(true, style);
    Reload();
    Open(true, [&](auto& dlg) {
      EXPECT_TRUE(dlg.Image1->Picture() == TBitmap::FromImage(mask.BorderPicture()));
      EXPECT_NE(dlg.note->text(), QString());
      EXPECT_TRUE(dlg.OKButton->isEnabled());
      Offer(Colorful(9, 7));
      Click(dlg.LoadButton);
    });
  }
}

TEST_F(RegionReopen, BuildsAgainWhatItIs) {
  for (const bool window : {true, false}) {
    Build(window, 0);
    Reload();
    const QByteArrayList before = Bytes();
    EXPECT_TRUE(Open(window, [](auto& dlg) {
      dlg.BuildButton->setEnabled(true);
      dlg.pages->setCurrentIndex(1);
      Click(dlg.BuildButton);
      Click(dlg.OKButton);
    }));
    EXPECT_EQ(Bytes(), before);
  }
}

TEST_F(RegionReopen, OkWithoutATouchKeepsEveryByte) {
  for (int depth = 0; depth <= static_cast<int>(TVRXColorDepth::spf16bit); ++depth)
    for (const bool window : {true, false}) {
      Build(window, 1, static_cast<TVRXColorDepth>(depth));
      Reload();
      const QByteArrayList before = Bytes();
      EXPECT_TRUE(Open(window, [](auto& dlg) { Click(dlg.OKButton); }));
      EXPECT_EQ(Bytes(), before) << depth;
      EXPECT_EQ(static_cast<int>(mask.ColorDepth()), depth);
    }
}

TEST_F(RegionReopen, DepthAndCompressionCanBeChangedAlone) {
  Build(true, 2);
  Reload();
  const QByteArrayList before = Bytes();
  EXPECT_TRUE(Open(true, [](auto& dlg) {
    dlg.pages->setCurrentIndex(1);
    Choose(dlg.colb, QStringLiteral("spf4bit"));
    Click(dlg.OKButton);
  }));
  EXPECT_EQ(mask.ColorDepth(), TVRXColorDepth::spf4bit);
  EXPECT_EQ(Bytes()[0], before[0]);
  EXPECT_LT(Bytes()[1].size(), before[1].size());
  EXPECT_TRUE(Open(true, [](auto& dlg) {
    dlg.pages->setCurrentIndex(1);
    dlg.ccb->click();
    Click(dlg.OKButton);
  }));
  EXPECT_TRUE(mask.Compress());
  EXPECT_EQ(Bytes()[0], before[0]);
  EXPECT_TRUE(Bytes()[1].startsWith("\x89PNG"));
}

// With fewer colours the picture no longer leads to its region.
TEST_F(RegionReopen, ListsNoColoursThatLeadElsewhere) {
  Build(true, 0, TVRXColorDepth::spfMono);
  Reload();
  EXPECT_TRUE(Open(true, [](auto& dlg) {
    EXPECT_FALSE(dlg.Image1->Picture().Empty());
    EXPECT_EQ(Listed(dlg), QStringList());
    Click(dlg.OKButton);
  }));
}

TEST_F(RegionReopen, MarksTheResultWhenSomethingIsChanged) {
  Build(true, 0);
  Reload();
  Open(true, [](auto& dlg) {
    dlg.cl->setCurrentRow(0);
    QTest::keyClick(dlg.cl, Qt::Key_Delete);
    EXPECT_NE(dlg.note->text(), QString());
    EXPECT_TRUE(dlg.BuildButton->isEnabled());
    QTest::keyClick(dlg.cl, Qt::Key_Return);
    EXPECT_TRUE(dlg.isVisible());
  });
}

TEST_F(RegionReopen, AnEmptyMaskHasNothingToConfirm) {
  Open(true, [](auto& dlg) {
    EXPECT_FALSE(dlg.OKButton->isEnabled());
    EXPECT_TRUE(dlg.Image1->Picture().Empty());
  });
}
