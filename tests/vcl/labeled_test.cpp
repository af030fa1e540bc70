// A control with a label of its own beside it.
#include "vcl/Labeled.h"
#include "VclTest.h"
#include "rtl/PropAccess.h"
#include "vcl/Form.h"
#include "vcl/Panel.h"

namespace {
class TLabeledPanel : public Labeled<TPanel> {
  VRX_CLASS(TLabeledPanel)
 public:
  using Labeled::Labeled;
};
const TClass& TLabeledPanel::StaticClass() {
  static const TClass cls(Labeled<TPanel>::Describe<TLabeledPanel>("TLabeledPanel"));
  return cls;
}

struct Scene {
  TForm form{nullptr};
  TLabeledPanel panel{&form};
  CountingHost host;
  Scene() {
    panel.SetParent(&form);
    panel.SetBounds(60, 50, 80, 31);
    panel.EditLabel()->SetCaption(QStringLiteral("Amount"));
    form.SetHost(&host);
  }
  ~Scene() { form.SetHost(nullptr); }
};
}  // namespace

TEST(Labeled, HasThePropertiesOfItsBaseAndOfTheLabel) {
  Scene s;
  for (const char* name : {"EditLabel", "LabelPosition", "LabelSpacing", "BevelOuter", "Caption"})
    EXPECT_NE(TLabeledPanel::StaticClass().FindProp(name), nullptr) << name;
  const TPropInfo& label = TLabeledPanel::StaticClass().GetProp("EditLabel");
  EXPECT_TRUE(label.IsPart());
  EXPECT_TRUE(IsStoredProp(s.panel, label));
  ResetProp(s.panel, label);
  EXPECT_FALSE(IsStoredProp(s.panel, label));
  EXPECT_EQ(s.panel.LabelSpacing(), 3);
  EXPECT_EQ(s.panel.LabelPosition(), TLabelPosition::lpAbove);
}

TEST(Labeled, StandsAtEachSideAtItsDistance) {
  Scene s;
  for (const int spacing : {0, 3, 11}) {
    s.panel.SetLabelSpacing(spacing);
    s.panel.SetLabelPosition(TLabelPosition::lpAbove);
    EXPECT_EQ(s.panel.LabelBounds().bottom() + 1, -spacing);
    EXPECT_EQ(s.panel.LabelBounds().left(), 0);
    s.panel.SetLabelPosition(TLabelPosition::lpBelow);
    EXPECT_EQ(s.panel.LabelBounds().top(), 31 + spacing);
    s.panel.SetLabelPosition(TLabelPosition::lpLeft);
    EXPECT_EQ(s.panel.LabelBounds().right() + 1, -spacing);
    EXPECT_NEAR(s.panel.LabelBounds().center().y(), 15, 1);
    s.panel.SetLabelPosition(TLabelPosition::lpRight);
    EXPECT_EQ(s.panel.LabelBounds().left(), 80 + spacing);
  }
}

TEST(Labeled, IsPaintedOutsideOfItsBounds) {
  Scene s;
  const auto above = [&] {
    const QImage picture = Draw(s.form);
    int ink = 0;
    for (int y = 30; y < 47; ++y)
      for (int x = 60; x < 140; ++x) ink += picture.pixelColor(x, y) != picture.pixelColor(5, 5);
    return ink;
  };
  EXPECT_GT(above(), 20);
  s.panel.SetLabelPosition(TLabelPosition::lpBelow);
  EXPECT_EQ(above(), 0);
  s.panel.SetLabelPosition(TLabelPosition::lpAbove);
  s.panel.EditLabel()->SetCaption({});
  EXPECT_EQ(above(), 0);
  EXPECT_EQ(s.panel.PaintExtent(), QRect(0, 0, 80, 31));
}

TEST(Labeled, TakesTheControlsFontUntilItHasOneOfItsOwn) {
  Scene s;
  const int before = s.panel.LabelBounds().height();
  s.panel.Font()->SetHeight(-40);
  EXPECT_GT(s.panel.LabelBounds().height(), before);
  s.panel.EditLabel()->Font()->SetHeight(-10);
  EXPECT_FALSE(s.panel.EditLabel()->ParentFont());
  EXPECT_LT(s.panel.LabelBounds().height(), before + 2);
}

TEST(Labeled, TellsItsHostOfEveryChange) {
  Scene s;
  const auto told = [&](auto change) { return s.host.changes = 0, change(), s.host.changes; };
  EXPECT_EQ(told([&] { s.panel.EditLabel()->SetCaption(QStringLiteral("Sum")); }), 1);
  EXPECT_EQ(told([&] { s.panel.EditLabel()->SetCaption(QStringLiteral("Sum")); }), 0);
  EXPECT_EQ(told([&] { s.panel.SetLabelSpacing(9); }), 1);
  EXPECT_EQ(told([&] { s.panel.SetLabelPosition(TLabelPosition::lpLeft); }), 1);
  EXPECT_EQ(told([&] { s.panel.SetLabelPosition(TLabelPosition::lpLeft); }), 0);
}

TEST(Labeled, TheTextFollowsTheNameUntilSomebodyChangesIt) {
  TForm form(nullptr);
  auto* panel = new TLabeledPanel(&form);
  panel->SetDesigning(true);
  panel->SetName(QStringLiteral("Panel1"));
  EXPECT_EQ(panel->EditLabel()->Caption(), QStringLiteral("Panel1"));
  panel->EditLabel()->SetCaption(QStringLiteral("Amount"));
  panel->SetName(QStringLiteral("Panel2"));
  EXPECT_EQ(panel->EditLabel()->Caption(), QStringLiteral("Amount"));
}

TEST(Labeled, TheSizeThatAFileGivesTheLabelIsKeptAndChangesNothing) {
  Scene s;
  TBoundLabel& label = *s.panel.EditLabel();
  const QRect place = s.panel.LabelBounds();
  for (const auto& [name, value] : {std::pair("Width", 53), std::pair("Height", 13)}) {
    const TPropInfo& property = TBoundLabel::StaticClass().GetProp(name);
    EXPECT_EQ(property.Visibility, TPropVisibility::Streamed) << name;
    EXPECT_FALSE(IsStoredProp(label, property)) << "not in a new form";
    SetOrdProp(label, property, value);
    EXPECT_EQ(GetOrdProp(label, property), value);
    EXPECT_TRUE(IsStoredProp(label, property)) << name;
  }
  EXPECT_EQ(s.panel.LabelBounds(), place);
}
