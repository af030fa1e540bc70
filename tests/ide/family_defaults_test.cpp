// Forms of the other family of frameworks leave out what is at that family's default.
#include "SessionTest.h"
#include "rtl/PropAccess.h"
#include "vcl/PageControl.h"
#include "vcl/SpinEdit.h"
#include "vcl/StatusBar.h"

namespace {
QByteArray Form(bool other) {
  return QByteArray("object Form1: TForm1\n  Left = 10\n  Height = 200\n  Top = 10\n  Width = 300\n") +
         (other ? "  LCLVersion = '2.2.0.4'\n" : "") +
         "  object Bar: TStatusBar\n    Left = 0\n    Height = 23\n    Top = 177\n    Width = 300\n    "
         "Panels = <>\n"
         "  end\nend\n";
}
class FamilyDefaults : public testing::TestWithParam<bool> {
 protected:
  void SetUp() override {
    ide::RegisterAll();
    session_ = FormSession::FromBytes(Form(GetParam()));
  }
  TComponent& Bar() const { return *session_->Form().FindComponent(QStringLiteral("Bar")); }
  const TPropInfo& Prop(const TComponent& c, const char* name) const { return c.ClassType().GetProp(name); }
  void Set(bool simple) {
    session_->Run(QStringLiteral("set"), {&Bar()},
                  [&] { SetOrdProp(Bar(), Prop(Bar(), "SimplePanel"), simple); });
  }
  std::unique_ptr<FormSession> session_;
};
}  // namespace

TEST_P(FamilyDefaults, AreTheValuesOfWhatTheFileLeavesOut) {
  EXPECT_EQ(GetOrdProp(Bar(), Prop(Bar(), "SimplePanel")), GetParam());
  EXPECT_TRUE(session_->Findings().empty());
  EXPECT_EQ(session_->Bytes(), Form(GetParam()));
}

TEST_P(FamilyDefaults, AreLeftOutAndTheOtherValueIsWritten) {
  Set(!GetParam());
  const QByteArray line = GetParam() ? "SimplePanel = False" : "SimplePanel = True";
  EXPECT_EQ(ide::ChangedLines(Form(GetParam()), session_->Bytes()), QByteArrayList{"+" + line});
  const auto again = FormSession::FromBytes(session_->Bytes());
  EXPECT_EQ(ide::StateOf(*again), ide::StateOf(*session_));
  Set(GetParam());
  EXPECT_EQ(session_->Bytes(), Form(GetParam()));
  session_->Undo();
  session_->Undo();
  EXPECT_EQ(session_->Bytes(), Form(GetParam()));
}

TEST_P(FamilyDefaults, AreWhatANewComponentHas) {
  TComponent* spin = session_->CreateComponent(TSpinEdit::StaticClass(), nullptr, QRect(8, 8, 60, 24));
  EXPECT_EQ(GetOrdProp(*spin, Prop(*spin, "MaxValue")), GetParam() ? 100 : 0);
  EXPECT_FALSE(session_->Bytes().contains("MaxValue"));
  EXPECT_EQ(ide::StateOf(session_->Bytes()), ide::StateOf(*session_));
}

TEST_P(FamilyDefaults, AreWhatResettingGives) {
  Set(!GetParam());
  session_->Run(QStringLiteral("reset"), {&Bar()}, [&] { ResetProp(Bar(), Prop(Bar(), "SimplePanel")); });
  EXPECT_EQ(session_->Bytes(), Form(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Families, FamilyDefaults, testing::Bool(),
                         [](const auto& i) { return i.param ? "Other" : "First"; });
