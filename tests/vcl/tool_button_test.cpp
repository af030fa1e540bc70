// What a button of a tool bar shows: its own or its action's text and picture, as the bar says.
#include "VclTest.h"
#include "vcl/Action.h"
#include "vcl/Form.h"
#include "vcl/ImageList.h"
#include "vcl/ToolBar.h"

namespace {
struct Bar {
  TForm form{nullptr};
  TImageList images{&form}, disabled{&form};
  TAction action{&form};
  TToolBar bar{&form};
  TToolButton button{&form};
  Bar() {
    const auto list = [](TImageList& l, QColor first, QColor second) {
      QImage a(12, 10, QImage::Format_ARGB32), b(12, 10, QImage::Format_ARGB32);
      a.fill(first);
      b.fill(second);
      l.Set(TImageList::Width, 12);
      l.Set(TImageList::Height, 10);
      l.SetPictures({a, b});
    };
    list(images, Qt::red, Qt::green);
    list(disabled, Qt::blue, Qt::magenta);
    form.SetBounds(0, 0, 300, 200);
    bar.SetParent(&form);
    bar.Set(TToolBar::Images, &images);
    button.SetParent(&bar);
    button.SetBounds(0, 0, 90, 40);
    button.SetCaption(QStringLiteral("Wide"));
  }
  int Seen(QColor color) { return CountPixels(Draw(button), color); }
  int Ink() {
    const QImage image = Draw(button);
    int dark = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) dark += qGray(image.pixel(x, y)) < 60;
    return dark;
  }
};
}  // namespace

TEST(ToolButton, ShowsItsTextWhenTheBarShowsTextsUnlessItHidesIt) {
  const ThemeScope light(TTheme::Light);
  Bar b;
  EXPECT_EQ(b.Ink(), 0);
  b.bar.Set(TToolBar::ShowCaptions, true);
  EXPECT_GT(b.Ink(), 10);
  b.button.Set(TToolButton::ShowCaption, false);
  EXPECT_EQ(b.Ink(), 0);
}

TEST(ToolButton, OfTextsShowsItWithoutTheBarUnlessItHidesIt) {
  const ThemeScope light(TTheme::Light);
  Bar b;
  b.button.Set(TToolButton::Style, TToolButtonStyle::tbsTextButton);
  EXPECT_GT(b.Ink(), 10);
  b.button.Set(TToolButton::ShowCaption, false);
  EXPECT_EQ(b.Ink(), 0);
}

TEST(ToolButton, ShowsThePictureOfItsIndexOrOfItsAction) {
  Bar b;
  EXPECT_EQ(b.Seen(Qt::red) + b.Seen(Qt::green), 0);
  b.action.Set(TCustomAction::ImageIndex, 1);
  b.button.Set(TToolButton::Action, &b.action);
  EXPECT_EQ(b.Seen(Qt::green), 120);
  b.button.Set(TToolButton::ImageIndex, 0);
  EXPECT_EQ(b.Seen(Qt::red), 120);
  EXPECT_EQ(b.Seen(Qt::green), 0);
}

TEST(ToolButton, ThatIsDisabledShowsThePictureForThat) {
  Bar b;
  b.button.Set(TToolButton::ImageIndex, 0);
  b.bar.Set(TToolBar::DisabledImages, &b.disabled);
  EXPECT_EQ(b.Seen(Qt::red), 120);
  b.button.SetEnabled(false);
  EXPECT_EQ(b.Seen(Qt::red), 0);
  const QImage withList = Draw(b.button);
  b.bar.Set(TToolBar::DisabledImages, nullptr);
  EXPECT_NE(Draw(b.button), withList);
}
