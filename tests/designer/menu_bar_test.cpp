// The form's menu as a menu bar on the surface.
#include "DesignerTest.h"
#include "dclstd/ComponentWindow.h"
#include "ide/Tiles.h"
#include "vcl/Menu.h"

using namespace designer;

namespace {
const QByteArray Form = R"(object Main: TMain
  ClientHeight = 200
  ClientWidth = 300
  Menu = MainMenu1
  object MainMenu1: TMainMenu
    Left = 200
    Top = 150
    object File1: TMenuItem
      Caption = '&File'
      object Open1: TMenuItem
        Caption = '&Open'
      end
      object Recent1: TMenuItem
        Caption = '&Recent'
        object First1: TMenuItem
          Caption = 'first'
        end
      end
    end
    object Help1: TMenuItem
      Caption = '&Help'
    end
    object Hidden1: TMenuItem
      Caption = 'Hidden'
      Visible = False
    end
  end
end
)";

class MenuBarTest : public DesignerTest {
 protected:
  MenuBarTest() : DesignerTest(Form) {}
  bool Covers(const char* name, QPoint at) { return Surface().WidgetRect(Get(name)).contains(at); }
};
}  // namespace

TEST_F(MenuBarTest, TheFormShowsItsMenuAboveTheClientArea) {
  const TForm& form = Session().Form();
  ASSERT_GT(form.MenuBarHeight(), 10);
  EXPECT_EQ(form.ClientRect().size(), QSize(300, 200)) << "the file's";
  EXPECT_EQ(form.FrameMargins().top(), 31 + form.MenuBarHeight());
  const QRect file = Surface().WidgetRect(Get("File1")), help = Surface().WidgetRect(Get("Help1"));
  EXPECT_EQ(file.height(), form.MenuBarHeight());
  EXPECT_EQ(help.left(), file.right() + 1);
  EXPECT_EQ(file.top(), FormSurface::Desk + 31);
  // Texts are there, on the surface and in pictures of the form.
  const auto inked = [](const QImage& image, const QRect& r) {
    QSet<QRgb> colors;
    for (int y = r.top(); y <= r.bottom(); ++y)
      for (int x = r.left(); x <= r.right(); ++x) colors.insert(image.pixel(x, y));
    return colors.size() > 3;
  };
  EXPECT_TRUE(inked(Surface().grab().toImage(), help));
  const QImage picture = RenderRoot(Session(), 1);
  EXPECT_EQ(picture.size(), form.OuterSize());
  EXPECT_TRUE(inked(picture, help.translated(-FormSurface::Desk, -FormSurface::Desk)));
  EXPECT_FALSE(inked(picture, QRect(200, 33, 60, 15))) << "what is not visible is not there";
}

TEST_F(MenuBarTest, AClickOpensADropDownAndSelectsTheItem) {
  const QPoint below = At("File1") + QPoint(0, 30);
  EXPECT_EQ(Surface().ComponentAt(below), &Session().Form());
  Click(At("File1"));
  EXPECT_EQ(Selected(), "File1");
  EXPECT_TRUE(Covers("Open1", below));
  Click(below);
  EXPECT_EQ(Selected(), "Open1");
  Click(At("Recent1"));
  EXPECT_EQ(Selected(), "Recent1");
  Click(At("First1"));
  EXPECT_EQ(Selected(), "First1");
  Click(Surface().WidgetRect(Session().Form()).bottomRight() - QPoint(60, 120));
  EXPECT_EQ(Selected(), "Main");
  EXPECT_EQ(Surface().ComponentAt(below), &Session().Form()) << "closed again";
  EXPECT_FALSE(Session().CanUndo());
}

TEST_F(MenuBarTest, ACaptionThatChangesIsShownAtOnce) {
  const int before = Surface().WidgetRect(Get("Help1")).left();
  Session().Run(QStringLiteral("caption"), {}, [&] {
    dynamic_cast<TMenuItem&>(Get("File1")).Set(TMenuItem::Caption, QStringLiteral("A long caption"));
  });
  EXPECT_GT(Surface().WidgetRect(Get("Help1")).left(), before);
  const int height = Surface().sizeHint().height();
  Session().DeleteComponents({&Get("MainMenu1")});
  EXPECT_LT(Surface().sizeHint().height(), height);
  EXPECT_EQ(Session().Form().MenuBarHeight(), 0);
  Session().Undo();
  EXPECT_EQ(Surface().sizeHint().height(), height);
  EXPECT_EQ(Session().Form().ClientRect().size(), QSize(300, 200));
}

TEST_F(MenuBarTest, ADoubleClickOnTheMenuOpensItsWindow) {
  const QPoint tile = Surface().WidgetRect(Get("MainMenu1")).center();
  QTest::mouseDClick(&Surface(), Qt::LeftButton, {}, tile);
  ASSERT_EQ(ComponentWindow::All().size(), 1);
  ComponentWindow* window = ComponentWindow::All()[0];
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Editing MainMenu1"));
  // Keys of the main window work in it, so that what is done there can be taken back there.
  EXPECT_EQ(window->parentWidget(), window_.get());
  EXPECT_FALSE(Session().CanUndo());
}
