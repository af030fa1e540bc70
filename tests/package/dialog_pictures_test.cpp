// Pictures that are neither square nor opaque in the dialogs that load them, and builds that fail.
#include "package/property_editors/pVRXCPGetMain.h"
#include "tests/package/EffectDialogTest.h"
#include "tests/package/RegionDialogTest.h"

using namespace pixeltest;

namespace {
// Wider than high, with a hole at the lower left.
QImage Holed() {
  QImage image(19, 8, QImage::Format_ARGB32);
  image.fill(QColor(10, 20, 30));
  for (int y = 3; y < 8; ++y)
    for (int x = 0; x < 7 - y / 2; ++x) image.setPixel(x, y, qRgba(200, 100, 50, 0));
  image.setPixel(18, 0, qRgb(1, 2, 3));
  return image;
}
bool InHole(int x, int y) { return qAlpha(Holed().pixel(x, y)) == 0; }

void ExpectHoled(const TBitmap& picture) {
  ASSERT_EQ(picture.Width(), 19);
  ASSERT_EQ(picture.Height(), 8);
  for (int y = 0; y < 8; ++y)
    for (int x = 0; x < 19; ++x)
      EXPECT_EQ(picture.Pixel(x, y), InHole(x, y) ? clFuchsia : FromQColor(Holed().pixelColor(x, y)))
          << x << ' ' << y;
}
}  // namespace

class HoledEffect : public EffectDialog {};
class HoledRegion : public RegionDialog {};

TEST_F(HoledEffect, IsCutOutOfAllThreePictures) {
  prompts.file = folder.filePath(QStringLiteral("holed.png"));
  ASSERT_TRUE(Holed().save(prompts.file));
  Show([&] {
    Click(dlg.btngetpic);
    ExpectHoled(pictures[0]);
    ExpectHoled(dlg.BtnImg->Picture());
    Click(dlg.EXECUTE);
  });
  TBitmap up, down, disabled;
  VRXDrawButton3D(pictures[0], up, down, disabled, clFuchsia, clWhite, clGray, clWhite, clNone, clNone,
                  clBlack, false, 2, nullptr);
  EXPECT_TRUE(pictures[1] == up);
  EXPECT_TRUE(pictures[2] == down);
  EXPECT_TRUE(pictures[3] == disabled);
}

TEST_F(HoledEffect, IsTransparentInTheButton) {
  prompts.file = folder.filePath(QStringLiteral("holed.png"));
  ASSERT_TRUE(Holed().save(prompts.file));
  TVRXCustom3DButton button(nullptr);
  modal::NextOf<TVRX3DEffectEditorDlg>([](auto& shown) {
    Click(shown.btngetpic);
    Click(shown.EXECUTE);
    Click(shown.Ok);
  });
  EXPECT_TRUE(VRXCPGetButtonFace3D(button));
  EXPECT_NE(button.Width(), button.Height());
  for (const auto state : {TVRX3DButtonState::Up, TVRX3DButtonState::Down, TVRX3DButtonState::Disabled}) {
    const QImage& shown = button.ButtonFace()->Picture(state);
    EXPECT_EQ(shown.size(), QSize(button.Width(), button.Height()));
    EXPECT_EQ(qAlpha(shown.pixel(0, shown.height() - 1)), 0);
    EXPECT_EQ(qAlpha(shown.pixel(shown.width() / 2, shown.height() / 2)), 255);
  }
}

TEST_F(HoledRegion, LeavesItsHoleOut) {
  prompts.file = folder.filePath(QStringLiteral("holed.png"));
  ASSERT_TRUE(Holed().save(prompts.file));
  Click(dlg.LoadButton);
  QCoreApplication::processEvents();
  ExpectHoled(dlg.Image1->Picture());
  EXPECT_EQ(dlg.DimLabel->text(), QStringLiteral("Bitmap size: 19x8"));
  PressAt(Qt::LeftButton, 0, 7);
  EXPECT_EQ(Listed(), "clFuchsia");
  dlg.pages->setCurrentIndex(1);
  Click(dlg.BuildButton);
  const QImage shown = dlg.mask->Shown(0);
  ASSERT_EQ(shown.size(), QSize(19, 8));
  // The last column is never part of a region.
  for (int y = 0; y < 8; ++y)
    for (int x = 0; x < 18; ++x)
      EXPECT_EQ(qAlpha(shown.pixel(x, y)), InHole(x, y) ? 0 : 255) << x << ' ' << y;
}

class SecondBuild : public RegionDialog {
 protected:
  void SetUp() override {
    RegionDialog::SetUp();
    Load(BarOnSilver());
    PressAt(Qt::LeftButton, 0, 0);
    dlg.pages->setCurrentIndex(1);
    Click(dlg.BuildButton);
    first_ = dlg.mask->RegionData();
    ASSERT_FALSE(first_.isEmpty());
    Choose(dlg.cb, QStringLiteral("Raised"));
  }
  // The first result is still there, can be confirmed, and the second build can be tried again.
  void ExpectFirst() {
    EXPECT_EQ(dlg.mask->RegionData(), first_);
    EXPECT_TRUE(dlg.OKButton->isEnabled());
    EXPECT_TRUE(dlg.BuildButton->isEnabled());
    EXPECT_TRUE(dlg.pages->isEnabled());
    EXPECT_TRUE(dlg.Progress->isHidden());
  }

 private:
  QByteArray first_;
};

TEST_F(SecondBuild, ThatIsRefusedLeavesTheFirstToBeConfirmed) {
  dlg.cl->clear();
  Click(dlg.BuildButton);
  EXPECT_EQ(prompts.informed.size(), 1);
  ExpectFirst();
}

TEST_F(SecondBuild, ThatFailsLeavesTheFirstToBeConfirmed) {
  dlg.cl->addItem(QStringLiteral("no colour at all"));
  Click(dlg.BuildButton);
  EXPECT_EQ(prompts.warned.size(), 1);
  ExpectFirst();
  dlg.cl->clear();  // nothing is drawn in such a colour
  Click(dlg.OKButton);
  EXPECT_EQ(dlg.result(), QDialog::Accepted);
}

TEST_F(SecondBuild, ThatIsEndedLeavesTheFirst) {
  RunSteps steps;
  steps.Next([this] { Click(dlg.CancelButton); });
  Click(dlg.BuildButton);
  EXPECT_FALSE(dlg.isVisible());
  ExpectFirst();
}
