// What drops down from a field is shown while the field alone is selected.
#include "DesignerTest.h"
#include "library/controls/ListBoxes.h"
#include "vcl/DropDown.h"

using namespace designer;

namespace {
QRect OpenBelow(FormSurface& surface, TComponent& field) {
  const QRect rect = surface.WidgetRect(field);
  return {QPoint(rect.left(), rect.bottom() + 4), QSize(rect.width(), 40)};
}
QImage Shown(FormSurface& surface, const QRect& rect) { return surface.grab(rect).toImage(); }

class DropDownTest : public DesignerTest {
 protected:
  TVRXListComboBox& Field(QPoint at) {
    auto* made =
        Session().CreateComponent(TVRXListComboBox::StaticClass(), nullptr, QRect(at, QSize(160, 24)));
    auto& field = dynamic_cast<TVRXListComboBox&>(*made);
    Session().Run(QStringLiteral("items"), {&field}, [&] {
      field.Get(TVRXListComboBox::Items)
          ->SetLines({QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("Three")});
    });
    return field;
  }
};
}  // namespace

TEST_F(DropDownTest, IsShownWhileTheFieldAloneIsSelected) {
  TVRXListComboBox& field = Field({248, 120});
  Session().Select({Session().GetRoot()});
  const QRect below = OpenBelow(Surface(), field);
  const QImage closed = Shown(Surface(), below);
  Session().Select({&field});
  const QImage open = Shown(Surface(), below);
  EXPECT_NE(open, closed);
  Session().Run(QStringLiteral("choose"), {&field}, [&] { field.Set(TVRXListComboBox::ItemIndex, 1); });
  EXPECT_NE(Shown(Surface(), below), open);
  Session().Select({&field, &Get("Button1")});
  EXPECT_EQ(Shown(Surface(), below), closed);
}

TEST_F(DropDownTest, HidesNothingThatStandsOnTheForm) {
  TVRXListComboBox& field = Field({240, 120});
  auto* button =
      As<TControl>(Session().CreateComponent(TButton::StaticClass(), nullptr, QRect(240, 150, 80, 24)));
  const QRect below = OpenBelow(Surface(), field);
  Session().Select({Session().GetRoot()});
  const QImage closed = Shown(Surface(), below);
  Session().Select({&field});
  EXPECT_EQ(Shown(Surface(), below), closed);
  EXPECT_EQ(Surface().ComponentAt(Surface().WidgetRect(*button).center()), button);
  Session().Run(QStringLiteral("move"), {button}, [&] { button->SetBounds(240, 280, 80, 24); });
  const QImage open = Shown(Surface(), below);
  EXPECT_NE(open, closed);
  // Nor an icon.
  auto* timer = Session().CreateComponent(TTimer::StaticClass(), nullptr, QRect(320, 150, 0, 0));
  Session().Select({Session().GetRoot()});
  const QImage withTimer = Shown(Surface(), below);
  Session().Select({&field});
  EXPECT_EQ(Shown(Surface(), below), withTimer);
  EXPECT_EQ(Surface().ComponentAt(Surface().WidgetRect(*timer).center()), timer);
}

// The container is behind the field anyway, and what stands beside it counts.
TEST_F(DropDownTest, OfAFieldInAContainerHidesNothingAroundIt) {
  auto* made =
      Session().CreateComponent(TVRXListComboBox::StaticClass(), &Get("Panel1"), QRect(16, 88, 160, 24));
  auto& field = dynamic_cast<TVRXListComboBox&>(*made);
  const QRect below = OpenBelow(Surface(), field);
  Session().Select({Session().GetRoot()});
  const QImage closed = Shown(Surface(), below);
  Session().Select({&field});
  EXPECT_NE(Shown(Surface(), below), closed);
  auto* button = Session().CreateComponent(TButton::StaticClass(), nullptr, QRect(40, 140, 80, 24));
  Session().Select({Session().GetRoot()});
  const QImage withButton = Shown(Surface(), below);
  Session().Select({&field});
  EXPECT_EQ(Shown(Surface(), below), withButton);
  EXPECT_EQ(Surface().ComponentAt(Surface().WidgetRect(*button).center()), button);
}

TEST_F(DropDownTest, OpensAboveWhereThereIsNoRoomBelow) {
  TVRXListComboBox& field = Field({240, 292});
  const QRect rect = Surface().WidgetRect(field);
  const QRect above(rect.left(), rect.top() - 44, rect.width(), 40);
  Session().Select({Session().GetRoot()});
  const QImage closed = Shown(Surface(), above);
  Session().Select({&field});
  EXPECT_NE(Shown(Surface(), above), closed);
}
