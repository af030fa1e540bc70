// A region dialog that is on the screen, with a picture to work on.
#pragma once
#include "package/dialogs/pVRXBmpRegionEditorDlg.h"
#include "tests/package/PixelDialogTest.h"

class RegionDialog : public pixeltest::PictureDialogTest {
 protected:
  void SetUp() override {
    PictureDialogTest::SetUp();
    dlg.SetLabels();
    dlg.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dlg, WaitLimit));
  }
  void Load(const TBitmap& picture) {
    Offer(picture);
    pixeltest::Click(dlg.LoadButton);
    QCoreApplication::processEvents();
  }
  // Where a pixel of the picture, which is in the middle, is seen.
  QPoint PlaceOf(int x, int y) const {
    const TBitmap& picture = dlg.Image1->Picture();
    return {(dlg.Image1->width() - picture.Width()) / 2 + x,
            (dlg.Image1->height() - picture.Height()) / 2 + y};
  }
  void PressAt(Qt::MouseButton button, int x, int y) {
    QTest::mouseClick(dlg.Image1, button, Qt::NoModifier, PlaceOf(x, y));
  }
  // The middle of a cell of the zoom box.
  QPoint CellPlace(int column, int row) const {
    return {(2 * column + 1) * dlg.zoom->width() / 40, (2 * row + 1) * dlg.zoom->height() / 40};
  }
  TColor CellColor(int column, int row) const {
    return dlg.zoom->ColorAt(CellPlace(column, row)).value_or(clNone);
  }
  void PressCell(int column, int row) {
    QTest::mouseClick(dlg.zoom, Qt::LeftButton, Qt::NoModifier, CellPlace(column, row));
  }
  static void MoveTo(QWidget* widget, QPoint place) {
    QMouseEvent move(QEvent::MouseMove, place, widget->mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
  }
  std::string Listed() const {
    QStringList texts;
    for (int i = 0; i < dlg.cl->count(); ++i) texts << dlg.cl->item(i)->text();
    return texts.join(u' ').toStdString();
  }
  TVRXfrmRegionFromBMPdlg dlg{nullptr};
};
