// The order of children in forms that inherit: what a file says of it, and what an edit writes.
#include "ide/ChildOrder.h"

#include <random>

#include "tests/ide/SessionTest.h"
#include "tests/support/InheritedForms.h"
#include "vcl/PageControl.h"

using namespace ide;

namespace {
QByteArray Lines(const char* kind, const std::vector<QByteArray>& names) {
  QByteArray text;
  for (const QByteArray& name : names) text += QByteArray("  ") + kind + ' ' + name + "\n  end\n";
  return text;
}

class ChildOrder : public testing::Test {
 protected:
  ChildOrder() {
    RegisterAll();
    files_.Write("Base.dfm", "object Base: TBase\n" +
                                 Lines("object", {"A: TButton", "B: TButton", "C: TButton", "D: TPanel"}) +
                                 Lines("object", {"Tick: TTimer"}) + "end\n");
  }
  std::unique_ptr<FormSession> With(const QByteArray& children) const {
    return Of("inherited Derived: TDerived\n" + children + "end\n");
  }
  std::unique_ptr<FormSession> Of(const QByteArray& form) const {
    files_.Write("Derived.dfm", form);
    return FormSession::Open(files_.Path("Derived.dfm"));
  }
  static std::string Order(const FormSession& session) {
    QStringList names;
    for (const TControl* c : session.Form().Controls()) names << c->Name();
    return names.join(u' ').toStdString();
  }
  static void Move(FormSession& session, const QString& name, int to) {
    auto* control = dynamic_cast<TControl*>(session.GetComponent(name));
    session.Run(QStringLiteral("move"), {control}, [&] { session.Form().SetControlIndex(control, to); });
  }
  // As somebody sees it who opens the file.
  void ExpectKept(const FormSession& session) const {
    const QByteArray bytes = session.Bytes();
    EXPECT_EQ(Order(*Of(bytes)), Order(session)) << bytes.toStdString();
  }
  inherited_forms::Files files_;
};
}  // namespace

TEST_F(ChildOrder, OwnChildrenComeBehindTheInheritedOnesUnlessTheyHaveAPlace) {
  EXPECT_EQ(Order(*With({})), "A B C D");
  EXPECT_EQ(Order(*With(Lines("object", {"X: TButton"}))), "A B C D X");
  EXPECT_EQ(Order(*With(Lines("object", {"X: TButton [0]"}))), "X A B C D");
  EXPECT_EQ(Order(*With(Lines("object", {"X: TButton [2]", "Y: TButton [1]"}))), "A B C D X Y")
      << "what the file writes keeps its order when a program would make another";
  EXPECT_EQ(Order(*With(Lines("object", {"X: TButton [1]", "Y: TButton [3]"}))), "A X B Y C D");
  EXPECT_EQ(Order(*With(Lines("inherited", {"C: TButton [0]"}))), "C A B D");
  EXPECT_EQ(Order(*With(Lines("inherited", {"A: TButton [99]"}))), "B C D A");
  EXPECT_EQ(Order(*With(Lines("inherited", {"C: TButton [-7]"}))), "C A B D");
}

TEST_F(ChildOrder, AMoveWritesPlacesAndUndoTakesThemBack) {
  struct Row {
    const char* name;
    int to;
    const char* order;
    const char* lines;
  };
  const Row rows[] = {
      {"X", 0, "X A B C D", "-object X: TButton|+object X: TButton [0]"},
      {"X", 3, "A B C X D", "-object X: TButton|+object X: TButton [3]"},
      {"C", 0, "C A B D X", "+inherited C: TButton [0]|+end"},
      {"A", 1, "B A C D X", "+inherited B: TButton [0]|+end"},
  };
  for (const Row& row : rows) {
    const auto session = With(Lines("object", {"X: TButton"}));
    const QByteArray before = session->Bytes();
    Move(*session, QString::fromLatin1(row.name), row.to);
    const QByteArray after = session->Bytes();
    EXPECT_EQ(Order(*session), row.order);
    EXPECT_EQ(ChangedLines(before, after).join('|').toStdString(), row.lines);
    ExpectKept(*session);
    for (int round = 0; round < 2; ++round) {
      session->Undo();
      EXPECT_EQ(session->Bytes(), before);
      EXPECT_EQ(Order(*session), "A B C D X");
      session->Redo();
      EXPECT_EQ(session->Bytes(), after);
      EXPECT_EQ(Order(*session), row.order);
    }
  }
}

TEST_F(ChildOrder, WhatDoesNotStandBesideOthersInAnotherOrderGetsNoPlace) {
  const auto session = With({});
  session->CreateComponent(TButton::StaticClass(), nullptr, {8, 8, 75, 25});
  EXPECT_FALSE(session->Bytes().contains('['));
  Move(*session, QStringLiteral("Button1"), 0);
  EXPECT_TRUE(session->Bytes().contains("object Button1: TButton [0]"));
  Move(*session, QStringLiteral("Button1"), 4);
  EXPECT_FALSE(session->Bytes().contains(" ["));
  ExpectKept(*session);
}

TEST_F(ChildOrder, ItemsOfInheritedMenusAndPagesStayWhereTheyArePut) {
  files_.Write("Base.dfm",
               "object Base: TBase\n  object Pages: TPageControl\n    object One: TTabSheet\n    end\n"
               "    object Two: TTabSheet\n    end\n  end\n  object Main: TMainMenu\n"
               "    object Open1: TMenuItem\n    end\n    object Exit1: TMenuItem\n    end\n  end\nend\n");
  const auto session = With({});
  auto& two = dynamic_cast<TTabSheet&>(*session->GetComponent(QStringLiteral("Two")));
  session->Run(QStringLiteral("page"), {&two},
               [&] { SetOrdProp(two, two.ClassType().GetProp("PageIndex"), 0); });
  EXPECT_TRUE(session->Bytes().contains("inherited Two: TTabSheet [0]\n")) << session->Bytes().toStdString();
  auto* print =
      session->CreateComponent(TMenuItem::StaticClass(), session->GetComponent(QStringLiteral("Main")), {});
  session->Run(QStringLiteral("up"), {print}, [&] { As<TNestedComponent>(print)->SetNestedIndex(1); });
  EXPECT_TRUE(session->Bytes().contains(": TMenuItem [1]\n")) << session->Bytes().toStdString();
  EXPECT_EQ(StateOf(*Of(session->Bytes())), StateOf(*session));
}

TEST_F(ChildOrder, RandomOrdersAreReadAgainAsTheyWereWritten) {
  for (unsigned seed = 1; seed <= 30; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto session = With(Lines("object", {"X: TButton", "Y: TPanel"}));
    const QByteArray first = session->Bytes();
    for (int step = 0; step < 8; ++step) {
      const auto& controls = session->Form().Controls();
      const auto count = static_cast<unsigned>(controls.size());
      TControl* const chosen = controls[random() % count];
      const bool own = session->ObjectOf(*chosen)->kind == forms::ObjectKind::Object;
      if (own && count > 4 && random() % 4 == 0)
        session->DeleteComponents({chosen});
      else if (random() % 4 == 0)
        session->CreateComponent(TButton::StaticClass(), nullptr, {8, 8, 75, 25});
      else
        Move(*session, chosen->Name(), static_cast<int>(random() % count));
      ExpectKept(*session);
      if (HasFailure()) return;
    }
    while (session->CanUndo()) session->Undo();
    EXPECT_EQ(session->Bytes(), first);
    EXPECT_EQ(Order(*session), "A B C D X Y");
  }
}
