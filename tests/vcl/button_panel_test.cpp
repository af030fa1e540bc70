// The row of buttons at the lower edge of a dialog.
#include "VclTest.h"
#include "rtl/PropAccess.h"
#include "vcl/ButtonPanel.h"
#include "vcl/Form.h"

namespace {
struct Scene {
  TForm form{nullptr};
  TButtonPanel panel{&form};
  Scene() {
    form.SetSizeIsClient(true);
    form.SetBounds(0, 0, 460, 300);
    panel.SetParent(&form);
  }
  // The columns in which anything differs from a panel without buttons.
  std::vector<std::pair<int, int>> Buttons() {
    const QImage with = Draw(panel);
    const TPanelButtons shown = panel.Get(TButtonPanel::ShowButtons);
    panel.Set(TButtonPanel::ShowButtons, {});
    const QImage without = Draw(panel);
    panel.Set(TButtonPanel::ShowButtons, shown);
    std::vector<std::pair<int, int>> columns;
    int end = -9;
    for (int x = 0; x < with.width(); ++x) {
      bool differs = false;
      for (int y = 0; y < with.height(); ++y) differs = differs || with.pixel(x, y) != without.pixel(x, y);
      if (!differs) continue;
      if (x > end + 3) columns.push_back({x, x});
      end = columns.back().second = x;
    }
    return columns;
  }
};
}  // namespace

TEST(ButtonPanel, StandsAtTheLowerEdge) {
  Scene s;
  EXPECT_EQ(s.panel.BoundsRect(), QRect(0, 258, 460, 42));
  EXPECT_TRUE(IsDefaultValue(s.panel, s.panel.ClassType().GetProp("Align")));
}

TEST(ButtonPanel, ShowsTheButtonsItIsAskedForHelpAtTheLeft) {
  using enum TPanelButton;
  Scene s;
  const auto all = s.Buttons();
  ASSERT_EQ(all.size(), 4u);
  EXPECT_LT(all.front().first, 12);
  EXPECT_GT(all.back().second, 460 - 12);
  s.panel.Set(TButtonPanel::ShowButtons, {pbOK, pbCancel});
  const auto two = s.Buttons();
  ASSERT_EQ(two.size(), 2u);
  EXPECT_GT(two.front().first, 230);
  s.panel.Set(TButtonPanel::Spacing, 16);
  const auto apart = s.Buttons();
  ASSERT_EQ(apart.size(), 2u);
  EXPECT_GT(apart[1].first - apart[0].second, two[1].first - two[0].second + 5);
}

TEST(ButtonPanel, ShowsWhatItsButtonsSay) {
  Scene s;
  const QImage before = Draw(s.panel);
  s.panel.Get(TButtonPanel::OKButton)->Set(TPanelBitBtn::Caption, QStringLiteral("Go ahead with it"));
  const QImage named = Draw(s.panel);
  EXPECT_NE(named, before);
  s.panel.Get(TButtonPanel::OKButton)->Set(TPanelBitBtn::Enabled, false);
  EXPECT_NE(Draw(s.panel), named);
  const QImage bevel = Draw(s.panel);
  s.panel.Set(TButtonPanel::ShowBevel, false);
  EXPECT_NE(Draw(s.panel).copy(0, 0, 460, 1), bevel.copy(0, 0, 460, 1));
  const QImage usual = Draw(s.panel);
  s.panel.Set(TButtonPanel::DefaultButton, TPanelButton::pbCancel);
  EXPECT_NE(Draw(s.panel), usual);
}

TEST(ButtonPanel, ANarrowOneShowsWhatFits) {
  Scene s;
  s.form.SetBounds(0, 0, 190, 300);
  EXPECT_EQ(s.Buttons().size(), 2u);
  s.form.SetBounds(0, 0, 40, 300);
  EXPECT_EQ(s.Buttons().size(), 0u);
}

TEST(ButtonPanel, ALowOneShowsWholeButtons) {
  Scene s;
  s.panel.SetAlign(TAlign::alNone);
  s.panel.SetBounds(0, 0, 460, 26);
  s.panel.Set(TButtonPanel::ShowBevel, false);
  s.panel.Set(TButtonPanel::ShowButtons, {TPanelButton::pbOK});
  const QImage low = Draw(s.panel);
  s.panel.Set(TButtonPanel::Spacing, 30);
  ASSERT_EQ(s.Buttons().size(), 1u);
  s.panel.Set(TButtonPanel::ShowButtons, {});
  const QImage none = Draw(s.panel);
  int rows = 0;
  for (int y = 0; y < low.height(); ++y) {
    bool differs = false;
    for (int x = 0; x < low.width(); ++x) differs = differs || low.pixel(x, y) != none.pixel(x, y);
    rows += differs;
  }
  EXPECT_GE(rows, 24);
}
