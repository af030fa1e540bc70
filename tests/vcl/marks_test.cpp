// "&" in texts: a mark in captions, a letter in what fields and lists hold.
#include "VclTest.h"
#include "vcl/CheckBox.h"
#include "vcl/ColorBox.h"
#include "vcl/ComboBox.h"
#include "vcl/Edit.h"
#include "vcl/GroupBox.h"
#include "vcl/Label.h"
#include "vcl/ListBox.h"
#include "vcl/Memo.h"
#include "vcl/Panel.h"
#include "vcl/StaticText.h"
#include "vcl/StatusBar.h"

namespace {
const QString Marked = QStringLiteral("R&D"), Plain = QStringLiteral("RD"), Doubled = QStringLiteral("R&&D");

// Whether the two texts look alike: what is marked only has a line below a letter.
template <class C>
QImage Shown(const std::function<void(C&, const QString&)>& set, const QString& text) {
  C control(nullptr);
  control.SetBounds(0, 0, 150, 50);
  set(control, QStringLiteral("any"));  // what sizes itself has done so
  set(control, text);
  return Draw(control);
}
template <class C>
int WidthOf(const std::function<void(C&, const QString&)>& set, const QString& text) {
  const QImage without = Shown(set, QString()), with = Shown(set, text);
  int left = with.width(), right = -1;
  for (int y = 0; y < with.height(); ++y)
    for (int x = 0; x < with.width(); ++x)
      if (with.pixel(x, y) != without.pixel(x, y)) {
        left = std::min(left, x);
        right = std::max(right, x);
      }
  return right - left;
}
template <class C>
void ExpectLetter(std::type_identity_t<std::function<void(C&, const QString&)>> set) {
  EXPECT_GT(WidthOf<C>(set, Marked), WidthOf<C>(set, Plain) + 3) << C::StaticClass().ClassName().constData();
  EXPECT_GT(WidthOf<C>(set, Doubled), WidthOf<C>(set, Marked) + 3)
      << C::StaticClass().ClassName().constData();
}
template <class C>
void ExpectMark(std::type_identity_t<std::function<void(C&, const QString&)>> set) {
  EXPECT_LE(WidthOf<C>(set, Marked), WidthOf<C>(set, Plain) + 1) << C::StaticClass().ClassName().constData();
  EXPECT_GT(WidthOf<C>(set, Doubled), WidthOf<C>(set, Plain) + 3) << C::StaticClass().ClassName().constData();
}
}  // namespace

TEST(Marks, ListsAndFieldsShowTheLetter) {
  ExpectLetter<TListBox>([](TListBox& c, const QString& t) { c.Get(TListBox::Items)->SetLines({t}); });
  ExpectLetter<TCheckListBox>([](TCheckListBox& c, const QString& t) {
    c.Get(TListBox::Items)->SetLines({QStringLiteral("x"), t});
  });
  ExpectLetter<TComboBox>([](TComboBox& c, const QString& t) { c.SetText(t); });
  ExpectLetter<TEdit>([](TEdit& c, const QString& t) { c.SetText(t); });
  ExpectLetter<TMemo>([](TMemo& c, const QString& t) { c.Get(TMemo::Lines)->SetLines({t}); });
  ExpectLetter<TStatusBar>([](TStatusBar& c, const QString& t) { c.Set(TStatusBar::SimpleText, t); });
}

TEST(Marks, CaptionsHaveThem) {
  ExpectMark<TLabel>([](TLabel& c, const QString& t) { c.SetCaption(t); });
  ExpectMark<TStaticText>([](TStaticText& c, const QString& t) { c.SetCaption(t); });
  ExpectMark<TCheckBox>([](TCheckBox& c, const QString& t) { c.SetCaption(t); });
  ExpectMark<TPanel>([](TPanel& c, const QString& t) { c.SetCaption(t); });
  ExpectMark<TRadioGroup>([](TRadioGroup& c, const QString& t) {
    c.Get(TRadioGroup::Items)->SetLines(t.isEmpty() ? QStringList(QStringLiteral(" ")) : QStringList(t));
  });
}

TEST(Marks, ALabelThatShowsNoneShowsTheLetter) {
  const auto plain = [](TLabel& c, const QString& t) {
    c.SetShowAccelChar(false);
    c.SetCaption(t);
  };
  ExpectLetter<TLabel>(plain);
  TLabel label(nullptr);
  label.SetCaption(Marked);
  const int marked = label.Width();
  label.SetShowAccelChar(false);
  EXPECT_GT(label.Width(), marked) << "and has room for it";
}

TEST(RadioGroup, TheFirstItemStandsBelowTheLineWithATitleAndWithout) {
  for (const char* title : {"", "Kind"})
    for (const int height : {22, 44, 90}) {
      TRadioGroup group(nullptr);
      group.SetCaption(QString::fromLatin1(title));
      group.SetBounds(0, 0, 120, height);
      const QImage without = Draw(group);
      group.Get(TRadioGroup::Items)->SetLines({QStringLiteral("One"), QStringLiteral("Two")});
      const QImage with = Draw(group);
      int first = height;
      for (int y = height - 1; y >= 0; --y)
        for (int x = 8; x < 100; ++x)
          if (with.pixel(x, y) != without.pixel(x, y)) first = y;
      const int line = TextExtent(QStringLiteral("Wg"), *group.Font()).height();
      EXPECT_LT(first, height) << title << height;
      EXPECT_GE(first, std::min(line, height / 2)) << title << height;
    }
}
