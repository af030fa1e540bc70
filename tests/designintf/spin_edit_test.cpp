// A spin edit shows what it is given, and changes only what a person changes.
#include "dclstd/SpinEdit.h"

#include <gtest/gtest.h>

#include "tests/support/Fields.h"

using namespace fields;

class SpinEditTest : public testing::Test {
 protected:
  SpinEditTest() {
    edit = new SpinEdit(100, 3, &window);
    edit->setMinimum(10);
    other = new QLineEdit(&window);
    other->move(0, 60);
    QObject::connect(edit, &QSpinBox::valueChanged, [this](int v) { reported.push_back(v); });
    ShowActive(window);
    edit->setFocus();
  }
  void Leave() { other->setFocus(); }
  std::vector<int> reported;  // what goes last still reports
  QWidget window;
  SpinEdit* edit;
  QLineEdit* other;
  using Values = std::vector<int>;
};

TEST_F(SpinEditTest, ShowsWithoutReporting) {
  edit->Show(50);
  EXPECT_EQ(edit->value(), 50);
  EXPECT_EQ(edit->text(), QStringLiteral("50"));
  EXPECT_EQ(reported, Values{});
}

TEST_F(SpinEditTest, ShowsAValueOutsideOfItsRangeAndKeepsIt) {
  for (const int value : {300, -12345, INT_MAX, INT_MIN}) {
    Leave();
    edit->Show(value);
    EXPECT_EQ(edit->text(), QString::number(value));
    EXPECT_EQ(edit->Shown(), value);
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    Leave();
    EXPECT_EQ(edit->text(), QString::number(value));
    EXPECT_EQ(edit->Shown(), value);
  }
  EXPECT_EQ(reported, Values{});
}

TEST_F(SpinEditTest, AValueOutsideOfItsRangeIsReplacedByWhatIsTyped) {
  edit->Show(300);
  Type(*edit, QStringLiteral("50"));
  EXPECT_EQ(edit->Shown(), 50);
  EXPECT_EQ(reported.back(), 50);
}

TEST_F(SpinEditTest, AlsoByTheLimitThatIsNearest) {
  edit->Show(300);
  Type(*edit, QStringLiteral("100"));
  EXPECT_EQ(edit->Shown(), 100);
  ASSERT_FALSE(reported.empty());
  EXPECT_EQ(reported.back(), 100);
}

TEST_F(SpinEditTest, OneThatIsTypedOverByNothingComesBack) {
  edit->Show(300);
  edit->selectAll();
  QTest::keyClick(edit, Qt::Key_Delete);
  EXPECT_EQ(edit->text(), QString());
  Leave();
  EXPECT_EQ(edit->text(), QStringLiteral("300"));
  EXPECT_EQ(reported, Values{});
}

TEST_F(SpinEditTest, ANumberOverTheLimitIsTypedAsItIsAndBecomesTheLimit) {
  const auto type = [&](const char* text) {
    edit->Show(50);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, QString::fromLatin1(text));
    reported.clear();
  };
  type("400");
  EXPECT_EQ(edit->text(), QStringLiteral("400"));
  Leave();
  EXPECT_EQ(edit->text(), QStringLiteral("100"));
  EXPECT_EQ(reported, Values{100});
  type("999");
  QTest::keyClick(edit, Qt::Key_Return);
  EXPECT_EQ(edit->text(), QStringLiteral("100"));
  EXPECT_EQ(reported, Values{100});
  type("201");
  QTest::keyClick(edit, Qt::Key_Down);
  EXPECT_EQ(edit->value(), 99);
  type("400");
  edit->EndTyping();
  EXPECT_EQ(edit->value(), 100);
  type("4");
  Leave();
  EXPECT_EQ(edit->value(), 10) << "the limit that is nearest";
  edit->Show(-5);
  edit->setFocus();
  edit->selectAll();
  reported.clear();
  QTest::keyClicks(edit, QStringLiteral("3"));
  Leave();
  EXPECT_EQ(edit->Shown(), 10) << "in place of a value outside of the range, too";
  EXPECT_EQ(edit->text(), QStringLiteral("10"));
  EXPECT_EQ(reported, Values{10});
}

TEST_F(SpinEditTest, WhatIsNoNumberCannotBeTyped) {
  edit->Show(50);
  edit->selectAll();
  QTest::keyClicks(edit, QStringLiteral("-7x"));
  EXPECT_EQ(edit->text(), QStringLiteral("7")) << "nothing below zero in this range";
}

TEST_F(SpinEditTest, AStepFromOutsideLeadsToTheLimit) {
  edit->Show(300);
  QTest::keyClick(edit, Qt::Key_Down);
  EXPECT_EQ(edit->Shown(), 100);
  EXPECT_EQ(edit->text(), QStringLiteral("100"));
  QTest::keyClick(edit, Qt::Key_Down);
  EXPECT_EQ(edit->Shown(), 99);
  edit->Show(-5);
  QTest::keyClick(edit, Qt::Key_Up);
  EXPECT_EQ(edit->Shown(), 10);
  EXPECT_EQ(reported, (Values{100, 99, 10}));
}

TEST_F(SpinEditTest, ATextThatIsBeingTypedIsLeftAlone) {
  edit->setMinimum(0);
  // A value that takes no 0, and says so at once.
  QObject::connect(edit, &QSpinBox::valueChanged, [this](int v) { edit->Show(std::max(1, v)); });
  edit->selectAll();
  QTest::keyClicks(edit, QStringLiteral("08"));
  EXPECT_EQ(edit->text(), QStringLiteral("08"));
  EXPECT_EQ(edit->value(), 8);
  Leave();
  EXPECT_EQ(edit->text(), QStringLiteral("8"));
  edit->setFocus();
  QTest::keyClicks(edit, QStringLiteral("0"));
  Leave();
  EXPECT_EQ(edit->text(), QStringLiteral("1")) << "what was kept is shown when the typing is done";
  edit->setFocus();
  QTest::keyClicks(edit, QStringLiteral("0"));
  QTest::keyClick(edit, Qt::Key_Return);
  EXPECT_EQ(edit->text(), QStringLiteral("1"));
  QTest::keyClicks(edit, QStringLiteral("0"));
  QTest::keyClick(edit, Qt::Key_Up);
  EXPECT_EQ(edit->text(), QStringLiteral("2"));
}

TEST_F(SpinEditTest, ReturnReportsNothingThatIsNotNew) {
  edit->Show(50);
  QTest::keyClick(edit, Qt::Key_Return);
  EXPECT_EQ(reported, Values{});
}
