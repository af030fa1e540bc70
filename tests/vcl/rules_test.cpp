// What follows from a value that somebody chooses, and what is refused; a file that is read says all itself.
#include "VclTest.h"
#include "rtl/Class.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "vcl/ComboBox.h"
#include "vcl/Edit.h"
#include "vcl/Form.h"
#include "vcl/GlyphButton.h"
#include "vcl/Grid.h"
#include "vcl/GroupBox.h"
#include "vcl/ListBox.h"
#include "vcl/Memo.h"
#include "vcl/Panel.h"
#include "vcl/PictureFile.h"
#include "vcl/ProgressBar.h"
#include "vcl/ScrollBar.h"
#include "vcl/StatusBar.h"
#include "vcl/ToolBar.h"
#include "vcl/TrackBar.h"
#include "vcl/TreeView.h"
#include "vcl/UpDown.h"

namespace {
std::int64_t Value(const TPersistent& p, const char* name) {
  return GetOrdProp(p, p.ClassType().GetProp(name));
}
void Choose(TPersistent& p, const char* name, std::int64_t v) {
  SetOrdProp(p, p.ClassType().GetProp(name), v);
}
bool Stored(const TPersistent& p, const char* name) { return IsStoredProp(p, p.ClassType().GetProp(name)); }
QString Refusal(TPersistent& p, const char* name, std::int64_t v) {
  const std::int64_t before = Value(p, name);
  try {
    Choose(p, name, v);
  } catch (const EPropertyError& e) {
    EXPECT_EQ(Value(p, name), before);
    return e.Message();
  }
  ADD_FAILURE() << name << " takes " << v;
  return {};
}
void Reads(TComponent& c, std::initializer_list<std::pair<const char*, std::int64_t>> values) {
  c.BeginLoading();
  for (const auto& [name, v] : values) Choose(c, name, v);
  c.Loaded();
}
}  // namespace

TEST(GridRules, WhatIsFixedLeavesACell) {
  TStringGrid grid(nullptr);
  grid.SetName(QStringLiteral("Grid"));
  const QString refusal = Refusal(grid, "FixedCols", 5);
  EXPECT_TRUE(refusal.contains(QStringLiteral("FixedCols of Grid cannot be 5: ColCount is 5. Use 0 to 4.")))
      << refusal.toStdString();
  Refusal(grid, "FixedRows", 7);
  Refusal(grid, "FixedCols", -1);
  EXPECT_TRUE(Refusal(grid, "ColCount", 0).contains(QStringLiteral("ColCount of Grid cannot be 0")));
  Refusal(grid, "RowCount", 0);
  Choose(grid, "FixedCols", 4);
  Choose(grid, "ColCount", 3);
  EXPECT_EQ(Value(grid, "FixedCols"), 2);
  Choose(grid, "RowCount", 1);
  EXPECT_EQ(Value(grid, "FixedRows"), 0);
}

TEST(GridRules, AFileAndACopyAreTakenAsTheyAre) {
  TStringGrid grid(nullptr), copy(nullptr);
  Reads(grid, {{"FixedCols", 9}, {"ColCount", 0}, {"RowCount", 2}, {"FixedRows", 3}});
  for (TStringGrid* g : {&grid, &copy}) {
    copy.Assign(&grid);
    EXPECT_EQ(Value(*g, "FixedCols"), 9);
    EXPECT_EQ(Value(*g, "ColCount"), 0);
    EXPECT_EQ(Value(*g, "FixedRows"), 3);
  }
}

TEST(GridRules, TheOtherFamilyHasGridsOfNothing) {
  TForm form(nullptr);
  form.Set(TForm::LCLVersion, QStringLiteral("3.0"));
  TStringGrid grid(&form);
  Choose(grid, "FixedCols", 5);
  Refusal(grid, "FixedCols", 6);
  Choose(grid, "ColCount", 0);
  EXPECT_EQ(Value(grid, "FixedCols"), 0);
}

TEST(BitBtnKind, GivesTheButtonItsValuesWhichAreNotStored) {
  TBitBtn button(nullptr);
  Choose(button, "Kind", 1);
  EXPECT_EQ(button.ShownCaption(), QStringLiteral("OK"));
  EXPECT_EQ(Value(button, "Default"), 1);
  EXPECT_EQ(Value(button, "ModalResult"), 1);
  for (const char* name : {"Caption", "Default", "Cancel", "ModalResult", "Glyph"})
    EXPECT_FALSE(Stored(button, name)) << name;
  EXPECT_TRUE(Stored(button, "Kind"));
  Choose(button, "Kind", 2);
  EXPECT_EQ(Value(button, "Default"), 0);
  EXPECT_EQ(Value(button, "Cancel"), 1);
  EXPECT_EQ(Value(button, "ModalResult"), 2);
  button.SetCaption(QStringLiteral("Back"));
  EXPECT_TRUE(Stored(button, "Caption"));
  Choose(button, "Kind", 0);
  EXPECT_EQ(button.ShownCaption(), QStringLiteral("Back"));
  EXPECT_EQ(Value(button, "Cancel"), 1);
  EXPECT_TRUE(Stored(button, "ModalResult") && Stored(button, "Cancel") && !Stored(button, "Default"));
}

TEST(BitBtnKind, AnotherValueEndsItAndKeepsTheRest) {
  TBitBtn button(nullptr);
  Choose(button, "Kind", 4);
  Choose(button, "Default", 1);
  EXPECT_EQ(Value(button, "Kind"), 4) << "no other value";
  Choose(button, "Default", 0);
  EXPECT_EQ(Value(button, "Kind"), 0);
  EXPECT_EQ(Value(button, "ModalResult"), 6);
  EXPECT_EQ(button.Caption(), QStringLiteral("&Yes"));
  Choose(button, "Kind", 5);
  QImage picture(5, 3, QImage::Format_RGB32);
  picture.fill(Qt::red);
  TGlyph glyph;
  glyph.SetData(PictureToBytes(picture, "BMP"));
  button.Get(TBitBtn::Glyph)->Assign(&glyph);
  EXPECT_EQ(Value(button, "Kind"), 0);
  EXPECT_EQ(Value(button, "ModalResult"), 7);
}

TEST(BitBtnKind, IsReadAsItIs) {
  TBitBtn button(nullptr);
  Reads(button, {{"Kind", 1}});
  EXPECT_TRUE(button.Caption().isEmpty());
  EXPECT_EQ(button.ShownCaption(), QStringLiteral("OK"));
  EXPECT_EQ(Value(button, "ModalResult"), 1) << "as the kind has it";
  EXPECT_FALSE(Stored(button, "Caption"));
  Choose(button, "Kind", 0);
  EXPECT_EQ(button.Caption(), QStringLiteral("OK"));
  EXPECT_EQ(button.ModalResult(), 1);
}

TEST(BitBtnKind, OfTheOtherFamilySetsValuesThatAreStored) {
  TForm form(nullptr);
  form.Set(TForm::LCLVersion, QStringLiteral("3.0"));
  TBitBtn button(&form), read(&form);
  Choose(button, "Kind", 6);
  EXPECT_EQ(Value(button, "ModalResult"), 8);
  EXPECT_EQ(Value(button, "DefaultCaption"), 1);
  EXPECT_TRUE(Stored(button, "ModalResult") && Stored(button, "Caption"));
  Choose(button, "ModalResult", 3);
  EXPECT_EQ(Value(button, "Kind"), 6);
  Reads(read, {{"Kind", 1}});
  EXPECT_EQ(Value(read, "ModalResult"), 0);
  EXPECT_EQ(Value(read, "Default"), 0);
}

TEST(BitBtnKind, ShowsItsMark) {
  TBitBtn button(nullptr);
  button.SetCaption(QStringLiteral(" "));
  const QImage bare = Draw(button);
  Reads(button, {{"Kind", 2}});
  EXPECT_NE(Draw(button), bare);
}

namespace {
struct Bar {
  TForm form{nullptr};
  TToolBar bar{&form};
  TToolButton a{&form}, b{&form};
  Bar() {
    form.SetBounds(0, 0, 800, 200);
    bar.SetParent(&form);
    a.SetParent(&bar);
    b.SetParent(&bar);
    a.SetCaption(QStringLiteral("Go"));
    b.SetCaption(QStringLiteral("Something very wide indeed"));
  }
  int Text(const TToolButton& button) { return TextExtent(button.Caption(), *button.Font()).width(); }
};
}  // namespace

TEST(ToolBarTexts, MakeTheButtonsAsWideAsTheyNeed) {
  Bar s;
  EXPECT_EQ(s.a.Width(), 23);
  Choose(s.bar, "ShowCaptions", 1);
  const int wide = s.bar.Get(TToolBar::ButtonWidth), high = s.bar.Get(TToolBar::ButtonHeight);
  EXPECT_GE(wide, s.Text(s.b));
  EXPECT_EQ(s.a.Width(), wide);
  EXPECT_EQ(s.b.Left(), wide);
  s.b.SetCaption(QStringLiteral("Something very wide indeed, and more"));
  EXPECT_GT(s.bar.Get(TToolBar::ButtonWidth), wide);
  s.b.SetCaption(QStringLiteral("Something very wide indeed"));
  EXPECT_EQ(s.bar.Get(TToolBar::ButtonWidth), wide);
  Choose(s.bar, "ShowCaptions", 0);
  EXPECT_EQ(s.bar.Get(TToolBar::ButtonWidth), 23);
  EXPECT_EQ(s.bar.Get(TToolBar::ButtonHeight), 22);
  EXPECT_GE(high, 22);
}

TEST(ToolBarTexts, AButtonThatSizesItselfIsAsWideAsItNeeds) {
  Bar s;
  Choose(s.bar, "ShowCaptions", 1);
  Choose(s.bar, "List", 1);
  const int all = s.a.Width();
  Choose(s.a, "AutoSize", 1);
  EXPECT_LT(s.a.Width(), all);
  EXPECT_GE(s.a.Width(), s.Text(s.a));
  EXPECT_EQ(s.b.Width(), all);
  EXPECT_EQ(s.b.Left(), s.a.Width());
  Choose(s.a, "AutoSize", 0);
  EXPECT_EQ(s.a.Width(), all);
}

TEST(ToolBarTexts, GrowByTheDifferenceAndNotWhenTheyAreRead) {
  Bar s;
  Reads(s.bar, {{"ShowCaptions", 1}, {"ButtonWidth", 40}});
  EXPECT_EQ(s.bar.Get(TToolBar::ButtonWidth), 40);
  s.bar.Set(TToolBar::Indent, 3);
  EXPECT_EQ(s.bar.Get(TToolBar::ButtonWidth), 40) << "has nothing to do with it";
  const int before = s.Text(s.b);
  s.b.SetCaption(s.b.Caption() + QStringLiteral(" WW"));
  EXPECT_EQ(s.bar.Get(TToolBar::ButtonWidth), 40 + s.Text(s.b) - before);
}

TEST(TrackBarRules, TheSidesChangePlacesWithTheDirection) {
  TTrackBar bar(nullptr);
  Choose(bar, "Orientation", 1);
  EXPECT_EQ(bar.BoundsRect(), QRect(0, 0, 45, 150));
  Reads(bar, {{"Orientation", 0}});
  EXPECT_EQ(bar.BoundsRect(), QRect(0, 0, 45, 150));
}

TEST(Ranges, ThePositionStaysWithinItsEnds) {
  TTrackBar track(nullptr);
  TScrollBar scroll(nullptr);
  TUpDown arrows(nullptr);
  TProgressBar progress(nullptr);
  for (TWinControl* c : std::initializer_list<TWinControl*>{&track, &scroll, &arrows, &progress}) {
    SCOPED_TRACE(c->ClassType().ClassName().constData());
    const std::int64_t max = Value(*c, "Max");
    Choose(*c, "Position", max + 50);
    EXPECT_EQ(Value(*c, "Position"), max);
    Choose(*c, "Position", -3);
    EXPECT_EQ(Value(*c, "Position"), 0);
    Choose(*c, "Min", 4);
    EXPECT_EQ(Value(*c, "Position"), 4);
    Choose(*c, "Position", 9);
    Choose(*c, "Max", 7);
    EXPECT_EQ(Value(*c, "Position"), 7);
    EXPECT_FALSE(Refusal(*c, "Max", 3).isEmpty());
    EXPECT_FALSE(Refusal(*c, "Min", 8).isEmpty());
    Reads(*c, {{"Position", 500}, {"Min", 90}, {"Max", 20}});
    EXPECT_EQ(Value(*c, "Position"), 500);
    EXPECT_EQ(Value(*c, "Min"), 90);
    std::unique_ptr<TComponent> copy(c->ClassType().NewComponent(nullptr));
    copy->Assign(c);
    EXPECT_EQ(Value(*copy, "Position"), 500);
    EXPECT_EQ(Value(*copy, "Max"), 20);
  }
}

TEST(Ranges, ARadioGroupChoosesAmongItsItems) {
  TRadioGroup group(nullptr);
  Choose(group, "ItemIndex", 2);
  EXPECT_EQ(Value(group, "ItemIndex"), -1);
  group.Get(TRadioGroup::Items)->SetLines({QStringLiteral("One"), QStringLiteral("Two")});
  Choose(group, "ItemIndex", 2);
  EXPECT_EQ(Value(group, "ItemIndex"), 1);
  Choose(group, "ItemIndex", -7);
  EXPECT_EQ(Value(group, "ItemIndex"), -1);
  Reads(group, {{"ItemIndex", 8}});
  EXPECT_EQ(Value(group, "ItemIndex"), 8);
}

TEST(Floating, WhatNoEdgeHoldsKeepsTheRatioOfItsMiddle) {
  TPanel box(nullptr);
  box.Set(TPanel::BevelOuter, TBevelCut::bvNone);
  box.SetBounds(0, 0, 400, 200);
  TPanel inner(&box);
  inner.SetParent(&box);
  inner.SetBounds(100, 40, 100, 20);
  inner.SetAnchors({});
  EXPECT_EQ(inner.BoundsRect(), QRect(100, 40, 100, 20));
  box.SetBounds(0, 0, 600, 100);
  EXPECT_EQ(inner.BoundsRect(), QRect(175, 15, 100, 20));
  box.SetBounds(0, 0, 400, 200);
  EXPECT_EQ(inner.BoundsRect(), QRect(100, 40, 100, 20));
  inner.SetAnchors({TAnchorKind::akTop});
  box.SetBounds(0, 0, 800, 900);
  EXPECT_EQ(inner.BoundsRect(), QRect(250, 40, 100, 20));
}

TEST(FieldHeight, StaysWithoutAFrame) {
  TForm form(nullptr);
  TEdit edit(&form);
  edit.SetParent(&form);
  edit.SetText(QStringLiteral("as high as its text"));
  const int high = edit.Height();
  edit.Set(TEdit::BorderStyle, TBorderStyle::bsNone);
  EXPECT_EQ(edit.Height(), high);
  TEdit read(&form);
  read.SetParent(&form);
  Reads(read, {{"Height", 27}});
  read.Set(TEdit::BorderStyle, TBorderStyle::bsNone);
  EXPECT_EQ(read.Height(), 27);
}

TEST(FieldHeight, OfAComboFollowsFontAndItems) {
  TForm form(nullptr);
  TComboBox box(&form);
  box.SetParent(&form);
  const int text = TextExtent(QStringLiteral("Wg"), *box.Font()).height();
  box.Font()->SetHeight(-30);
  EXPECT_EQ(box.Height(), TextExtent(QStringLiteral("Wg"), *box.Font()).height() + 8);
  EXPECT_GT(TextExtent(QStringLiteral("Wg"), *box.Font()).height(), text);
  box.Set(TComboBox::ItemHeight, 25);
  box.Set(TComboBox::Style, TComboBoxStyle::csOwnerDrawFixed);
  EXPECT_EQ(box.Height(), 31);
  box.Set(TComboBox::ItemHeight, 40);
  EXPECT_EQ(box.Height(), 46);
  TComboBox read(&form);
  read.SetParent(&form);
  Reads(read, {{"Height", 33}, {"Style", 2}});
  EXPECT_EQ(read.Height(), 33);
  Choose(read, "Style", 1);
  EXPECT_EQ(read.Height(), 33) << "room for the list is given by hand";
  read.SetBounds(0, 0, 145, 120);
  EXPECT_EQ(read.Height(), 120);
}

TEST(Containers, TheseTakeNoControls) {
  for (const TClass* cls :
       {&TStatusBar::StaticClass(), &TMemo::StaticClass(), &TListBox::StaticClass(),
        &TTreeView::StaticClass(), &TProgressBar::StaticClass(), &TRadioGroup::StaticClass()}) {
    const std::unique_ptr<TComponent> c(cls->NewComponent(nullptr));
    EXPECT_FALSE(dynamic_cast<TControl&>(*c).AcceptsControls()) << cls->ClassName().constData();
  }
  EXPECT_TRUE(TGroupBox(nullptr).AcceptsControls());
}
