// Faces in the real window: edited from there, one step each, and seen on the form.
#include "designer/CommandPalette.h"
#include "designer/SearchField.h"
#include "library/controls/MMButton.h"
#include "package/dialogs/pVRXControlFaceEditorDlg.h"
#include "package/dialogs/pVRXMMButtonFaceEditorDlg.h"
#include "tests/designer/DesignerTest.h"

using namespace designer;

namespace {
class Faces : public DesignerTest {
 protected:
  // Types the text where all commands are found, and takes the first one.
  void Run(const char* text) {
    Action("commands").trigger();
    CommandPalette* shown = nullptr;
    for (auto* palette : window_->findChildren<CommandPalette*>())
      if (palette->isVisible()) shown = palette;
    ASSERT_NE(shown, nullptr);
    QTest::keyClicks(&shown->Field(), QLatin1StringView(text));
    QTest::keyClick(&shown->Field(), Qt::Key_Return);
    QCoreApplication::processEvents();
  }
  QImage Painted(TControl& control) {
    QImage image(control.Width(), control.Height(), QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintControl(control, painter);
    return image;
  }
};
}  // namespace

TEST_F(Faces, OfAControllerAreEditedAsOneStep) {
  auto* face = As<TVRXFaceController>(
      Session().CreateComponent(TVRXFaceController::StaticClass(), nullptr, QRect(300, 250, 0, 0)));
  auto* button = As<TVRXMMButton>(
      Session().CreateComponent(TVRXMMButton::StaticClass(), nullptr, QRect(16, 200, 120, 40)));
  Session().Run(QStringLiteral("refer"), {}, [&] { button->Set(VRXFaceControllerRef, face); });
  const QByteArray before = Session().Bytes();
  const QImage plain = Painted(*button);
  Session().Select({face});
  modal::NextOf<TVRXControlFaceEditorDlg>([](TVRXControlFaceEditorDlg& d) {
    d.AddSettings(TVRXCFCSettingObjectKind::okFillObject);
    d.btnOk->click();
  });
  Run("State settings");
  EXPECT_TRUE(Session().Bytes().contains("ObjName = 'FillObject1'")) << Session().Bytes().toStdString();
  EXPECT_TRUE(Session().IsModified());
  Session().Run(QStringLiteral("assign"), {},
                [&] { face->States()->Add()->Add(face->SettingObjects()->Items(0), true); });
  EXPECT_NE(Painted(*button), plain);
  Session().Undo();
  Session().Undo();
  EXPECT_EQ(Session().Bytes(), before);
  EXPECT_EQ(Painted(*button), plain);
}

TEST_F(Faces, OfAButtonAreChosenFromItsMenu) {
  auto* images =
      As<TImageList>(Session().CreateComponent(TImageList::StaticClass(), nullptr, QRect(340, 250, 0, 0)));
  auto* button = As<TVRXMMButton>(
      Session().CreateComponent(TVRXMMButton::StaticClass(), nullptr, QRect(16, 200, 120, 40)));
  QImage picture(16, 16, QImage::Format_ARGB32);
  picture.fill(Qt::magenta);
  Session().Run(QStringLiteral("pictures"), {}, [&] {
    images->SetPictures({picture});
    button->Set(TVRXMMButton::ButtonFaceImageList, images);
  });
  const QByteArray before = Session().Bytes();
  Session().Select({button});
  modal::NextOf<TVRXButtonFaceDlg>([](TVRXButtonFaceDlg& d) {
    modal::Next([](QDialog& chooser) {
      chooser.findChild<QListWidget*>(QStringLiteral("images"))->setCurrentRow(0);
      chooser.accept();
    });
    d.SelectBtn->click();
    d.sync->click();
    d.OKButton->click();
  });
  Run("ButtonFace");
  EXPECT_TRUE(Session().Bytes().contains("ButtonFace.Indices = (")) << Session().Bytes().toStdString();
  int magenta = 0;
  const QImage shown = Painted(*button);
  for (int y = 0; y < shown.height(); ++y)
    for (int x = 0; x < shown.width(); ++x) magenta += shown.pixelColor(x, y) == QColor(Qt::magenta);
  EXPECT_EQ(magenta, 16 * 16);
  Session().Undo();
  EXPECT_EQ(Session().Bytes(), before);
}
