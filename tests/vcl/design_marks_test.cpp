// What empty controls show on a form that is being designed, and captions that have no room.
#include "VclTest.h"
#include "tests/support/Contrast.h"
#include "vcl/DesignMarks.h"
#include "vcl/Form.h"
#include "vcl/FormColors.h"
#include "vcl/GlyphButton.h"
#include "vcl/GroupBox.h"
#include "vcl/ListView.h"
#include "vcl/TreeView.h"

namespace {
constexpr TFormColors kSchemes[] = {TFormColors::Light, TFormColors::Dark};

// On a designed form, under a name that its title does not show.
template <class C>
QImage Named(const char* name, const char* items = nullptr, bool designing = true) {
  TForm form(nullptr);
  form.SetDesigning(designing);
  C control(&form);
  control.SetCaption(QStringLiteral("Title"));
  control.SetName(QString::fromLatin1(name));
  control.SetBounds(0, 0, 161, 97);
  if constexpr (requires { control.Get(C::Items)->SetLines({}); })
    if (items) control.Get(C::Items)->SetLines({QString::fromLatin1(items)});
  return Draw(control);
}
template <class C>
void ExpectNamedWhileDesigned() {
  EXPECT_NE(Named<C>("Abc"), Named<C>("Wxyz"));
  EXPECT_EQ(Named<C>("Abc", nullptr, false), Named<C>("Wxyz", nullptr, false));
}
}  // namespace

TEST(DesignMarks, AnOutlineIsSeenOnAnyGround) {
  for (const TFormColors colors : kSchemes) {
    const FormColorScope scope(colors);
    for (const QColor& ground : {FormPalette().color(QPalette::Window), FormPalette().color(QPalette::Base),
                                 QColor(Qt::black), QColor(Qt::white), QColor(128, 128, 128)}) {
      QImage image(83, 41, QImage::Format_RGB32);
      image.fill(ground);
      QPainter painter(&image);
      TCanvas canvas(painter);
      PaintDesignFrame(canvas, image.rect());
      EXPECT_GE(Contrast(image), 3) << ground.name().toStdString();
    }
  }
}

TEST(DesignMarks, WordsAreLegibleInBothSchemes) {
  for (const TFormColors colors : kSchemes) {
    const FormColorScope scope(colors);
    TForm form(nullptr);
    form.SetDesigning(true);
    form.SetName(QStringLiteral("Words"));
    QImage image(120, 31, QImage::Format_RGB32);
    image.fill(FormPalette().color(QPalette::Window));
    QPainter painter(&image);
    TCanvas canvas(painter);
    PaintDesignName(canvas, image.rect(), form);
    EXPECT_GE(Contrast(image), 4);
  }
}

TEST(DesignMarks, EmptyControlsShowTheirNames) {
  ExpectNamedWhileDesigned<TTreeView>();
  ExpectNamedWhileDesigned<TListView>();
  ExpectNamedWhileDesigned<TRadioGroup>();
  EXPECT_EQ(Named<TRadioGroup>("Abc", "Here"), Named<TRadioGroup>("Wxyz", "Here"));
}

TEST(DesignMarks, AnEmptyRadioGroupHasAChoice) {
  const QImage designed = Named<TRadioGroup>("A"), running = Named<TRadioGroup>("A", nullptr, false);
  const QRect mark(4, 20, 20, 70);
  EXPECT_NE(designed.copy(mark), running.copy(mark));
}

TEST(SpeedButton, ACaptionThatIsTooLongStaysInside) {
  for (const char* caption : {"WWWWWWWWW", "SpeedButton1"}) {
    TSpeedButton button(nullptr);
    button.Set(TSpeedButton::Flat, true);
    button.SetCaption(QString::fromLatin1(caption));
    const QImage image = Draw(button, Qt::white);
    ASSERT_GT(CountPixels(image, Qt::white), 0);
    ASSERT_NE(CountPixels(image, Qt::white), image.width() * image.height()) << "something is written";
    for (const int x : {0, 1, image.width() - 2, image.width() - 1})
      EXPECT_EQ(CountPixels(image.copy(x, 0, 1, image.height()), Qt::white), image.height()) << x;
  }
}
