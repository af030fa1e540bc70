// Short cuts for tests of the dialogs that load and show pictures.
#pragma once
#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include "designintf/CustomColors.h"
#include "library_design/ProgressBar.h"
#include "tests/support/Modal.h"
#include "tests/support/Prompted.h"
#include "tests/support/Waiting.h"
#include "vcl/Bitmap.h"

namespace pixeltest {

using ::ScriptedPrompts;

// Events are handled after every step of a run, however fast the machine is.
class RunSteps {
 public:
  RunSteps() { RunProgress::SetInterval(0); }
  ~RunSteps() { RunProgress::SetInterval(RunProgress::UsualInterval); }
  // Posted between two clicks of a test, this waits until the run that the second one starts handles events.
  void Next(std::function<void()> act) {
    QMetaObject::invokeMethod(&context_, std::move(act), Qt::QueuedConnection);
  }

 private:
  QObject context_;
};

class PictureDialogTest : public testing::Test {
 protected:
  void SetUp() override {
    SaveIDECustomColors({});
    ASSERT_TRUE(folder.isValid());
  }
  // The file that the next file dialog answers with.
  void Offer(const TBitmap& picture) {
    prompts.file = folder.filePath(QStringLiteral("picture.png"));
    ASSERT_TRUE(picture.Image().save(prompts.file));
  }
  QTemporaryDir folder;
  ScriptedPrompts prompts;
};

inline void Click(QWidget* widget) { QTest::mouseClick(widget, Qt::LeftButton); }

// Chooses an entry of a drop-down list with the keyboard.
inline void Choose(QComboBox* combo, const QString& text) {
  const int row = combo->findText(text);
  ASSERT_GE(row, 0) << text.toStdString();
  combo->showPopup();
  combo->view()->setCurrentIndex(combo->model()->index(row, 0));
  QTest::keyClick(combo->view(), Qt::Key_Return);
}

// Every pixel has a colour of its own.
inline TColor ColorAt(int x, int y) { return RGBColor(x * 4, y * 5, 100); }
inline TBitmap Colorful(int width, int height) {
  TBitmap picture(width, height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) picture.SetPixel(x, y, ColorAt(x, y));
  return picture;
}
inline TBitmap Plain(int width, int height, TColor color) {
  TBitmap picture(width, height);
  picture.Fill(color);
  return picture;
}
// A red bar and a blue dot on silver.
inline TBitmap BarOnSilver() {
  TBitmap picture = Plain(14, 11, clSilver);
  for (int x = 3; x < 10; ++x) picture.SetPixel(x, 5, clRed);
  picture.SetPixel(8, 2, clBlue);
  return picture;
}

}  // namespace pixeltest
