// What controls show of their actions, and that it stays the actions'.
#include "VclTest.h"
#include "rtl/PropAccess.h"
#include "vcl/Action.h"
#include "vcl/CheckBox.h"
#include "vcl/Form.h"
#include "vcl/GlyphButton.h"
#include "vcl/ToolBar.h"

namespace {
// A control beside its like that has the values of its own; they look alike when the first shows its
// action's.
template <class T>
struct Beside {
  TForm form{nullptr};
  TAction action{&form};
  T client{&form}, model{&form};
  Beside() {
    form.SetBounds(0, 0, 300, 200);
    form.SetDesigning(true);
    for (T* c : {&client, &model}) {
      c->SetParent(&form);
      c->SetBounds(10, 10, 120, 30);
      c->SetCaption({});
    }
    action.Set(TCustomAction::Caption, QStringLiteral("&Open"));
    client.Set(TControl::Action, &action);
  }
  bool Alike() { return Draw(client) == Draw(model); }
};

template <class T>
class ClientOfAction : public testing::Test {};
using Clients = testing::Types<TButton, TCheckBox, TRadioButton, TBitBtn, TSpeedButton>;
TYPED_TEST_SUITE(ClientOfAction, Clients);
}  // namespace

TYPED_TEST(ClientOfAction, ShowsItsCaptionUnlessItHasOneOfItsOwn) {
  const ThemeScope light(TTheme::Light);
  Beside<TypeParam> b;
  EXPECT_FALSE(b.Alike());
  b.model.SetCaption(QStringLiteral("&Open"));
  EXPECT_TRUE(b.Alike());
  EXPECT_EQ(b.client.Caption(), QString()) << "showing only";
  b.client.SetCaption(QStringLiteral("Own"));
  b.model.SetCaption(QStringLiteral("Own"));
  EXPECT_TRUE(b.Alike());
}

TYPED_TEST(ClientOfAction, ShowsThatItIsDisabled) {
  const ThemeScope light(TTheme::Light);
  Beside<TypeParam> b;
  b.model.SetCaption(QStringLiteral("&Open"));
  b.action.Set(TCustomAction::Enabled, false);
  EXPECT_FALSE(b.Alike());
  b.model.SetEnabled(false);
  EXPECT_TRUE(b.Alike());
  EXPECT_TRUE(b.client.Enabled());
  EXPECT_FALSE(IsStoredProp(b.client, b.client.ClassType().GetProp("Enabled")));
}

TYPED_TEST(ClientOfAction, IsDisabledByItselfWhateverTheActionIs) {
  const ThemeScope light(TTheme::Light);
  Beside<TypeParam> b;
  b.model.SetCaption(QStringLiteral("&Open"));
  for (TypeParam* c : {&b.client, &b.model}) c->SetEnabled(false);
  EXPECT_TRUE(b.Alike());
}

namespace {
template <class T>
void ExpectChecked(const char* property) {
  const ThemeScope light(TTheme::Light);
  Beside<T> b;
  b.model.SetCaption(QStringLiteral("&Open"));
  b.action.Set(TCustomAction::Checked, true);
  if constexpr (std::same_as<T, TSpeedButton>)
    for (T* c : {&b.client, &b.model}) c->Set(TSpeedButton::GroupIndex, 1);
  EXPECT_FALSE(b.Alike());
  SetOrdProp(b.model, b.model.ClassType().GetProp(property), 1);
  EXPECT_TRUE(b.Alike());
  EXPECT_EQ(GetOrdProp(b.client, b.client.ClassType().GetProp(property)), 0);
  // By itself, too. (Of a group that unchecks the other one.)
  const QImage checked = Draw(b.model);
  b.action.Set(TCustomAction::Checked, false);
  EXPECT_NE(Draw(b.client), checked);
  SetOrdProp(b.client, b.client.ClassType().GetProp(property), 1);
  EXPECT_EQ(Draw(b.client), checked);
}
}  // namespace

TEST(ActionLook, AClientShowsThatItsActionIsChecked) {
  ExpectChecked<TCheckBox>("Checked");
  ExpectChecked<TRadioButton>("Checked");
  ExpectChecked<TSpeedButton>("Down");
}

TEST(ActionLook, AToolButtonShowsThatItsActionIsCheckedAndDisabled) {
  const ThemeScope light(TTheme::Light);
  TForm form(nullptr);
  TAction action(&form);
  TToolBar bar(&form);
  TToolButton button(&form);
  form.SetBounds(0, 0, 300, 200);
  bar.SetParent(&form);
  bar.Set(TToolBar::ShowCaptions, true);
  button.SetParent(&bar);
  button.SetBounds(0, 0, 90, 40);
  button.SetCaption(QStringLiteral("Wide"));
  const auto pictures = [&] {
    std::vector<QImage> all{Draw(button)};
    button.Set(TToolButton::Down, true);
    all.push_back(Draw(button));
    button.Set(TToolButton::Down, false);
    button.SetEnabled(false);
    all.push_back(Draw(button));
    button.SetEnabled(true);
    return all;
  };
  const std::vector<QImage> own = pictures();
  EXPECT_NE(own[0], own[1]);
  EXPECT_NE(own[0], own[2]);
  button.Set(TControl::Action, &action);
  EXPECT_EQ(Draw(button), own[0]);
  action.Set(TCustomAction::Checked, true);
  EXPECT_EQ(Draw(button), own[1]);
  action.Set(TCustomAction::Checked, false);
  action.Set(TCustomAction::Enabled, false);
  EXPECT_EQ(Draw(button), own[2]);
}
