// Bars, sliders and fields with arrows: each shows the values it has.
#include "VclTest.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "vcl/DateTimePicker.h"
#include "vcl/Form.h"
#include "vcl/HeaderControl.h"
#include "vcl/LabeledEdit.h"
#include "vcl/ProgressBar.h"
#include "vcl/ScrollBar.h"
#include "vcl/SpinEdit.h"
#include "vcl/StatusBar.h"
#include "vcl/TrackBar.h"
#include "vcl/UpDown.h"

namespace {
// Whether the change is to be seen.
template <class C, class F>
bool Shows(C& control, F change) {
  const QImage before = Draw(control);
  change();
  return Draw(control) != before;
}
}  // namespace

TEST(ProgressBar, ShowsHowFarItIs) {
  TProgressBar bar(nullptr);
  EXPECT_TRUE(Shows(bar, [&] { bar.Set(TProgressBar::Position, 40); }));
  EXPECT_TRUE(Shows(bar, [&] { bar.Set(TProgressBar::Max, 50); }));
  EXPECT_TRUE(Shows(bar, [&] { bar.Set(TProgressBar::Min, 30); }));
  EXPECT_TRUE(Shows(bar, [&] { bar.Set(TProgressBar::BarShowText, true); }));
  const QImage across = Draw(bar);
  bar.Set(TProgressBar::BarShowText, false);
  const QImage right = Draw(bar);
  bar.Set(TProgressBar::Orientation, TProgressBarOrientation::pbRightToLeft);
  EXPECT_NE(Draw(bar), right);
  bar.SetBounds(0, 0, 17, 150);
  EXPECT_TRUE(Shows(bar, [&] { bar.Set(TProgressBar::Orientation, TProgressBarOrientation::pbVertical); }));
  EXPECT_TRUE(Shows(bar, [&] { bar.Set(TProgressBar::Orientation, TProgressBarOrientation::pbTopDown); }));
}

TEST(TrackBar, ShowsPositionAndTicks) {
  TTrackBar bar(nullptr);
  EXPECT_TRUE(Shows(bar, [&] { bar.Set(TTrackBar::Position, 4); }));
  EXPECT_TRUE(Shows(bar, [&] { bar.Set(TTrackBar::Reversed, true); }));
  EXPECT_TRUE(Shows(bar, [&] { bar.Set(TTrackBar::Frequency, 5); }));
  EXPECT_TRUE(Shows(bar, [&] { bar.Set(TTrackBar::TickMarks, TTickMark::tmTopLeft); }));
  EXPECT_TRUE(Shows(bar, [&] { bar.Set(TTrackBar::TickStyle, TTickStyle::tsNone); }));
  EXPECT_TRUE(Shows(bar, [&] { bar.Set(TTrackBar::Orientation, TTrackBarOrientation::trVertical); }));
}

TEST(ScrollBar, TurnsWithItsKind) {
  TScrollBar bar(nullptr);
  EXPECT_EQ(bar.BoundsRect(), QRect(0, 0, 121, 17));
  EXPECT_TRUE(Shows(bar, [&] { bar.Set(TScrollBar::Position, 60); }));
  EXPECT_TRUE(Shows(bar, [&] { bar.Set(TScrollBar::PageSize, 40); }));
  bar.SetKind(TScrollBarKind::sbVertical);
  EXPECT_EQ(bar.BoundsRect(), QRect(0, 0, 17, 121));
  bar.BeginLoading();
  bar.SetKind(TScrollBarKind::sbHorizontal);
  bar.Loaded();
  EXPECT_EQ(bar.BoundsRect(), QRect(0, 0, 17, 121)) << "a file gives the sides itself";
}

TEST(UpDown, GoesToTheSideOfItsField) {
  TForm form(nullptr);
  auto* edit = new TEdit(&form);
  edit->SetParent(&form);
  edit->SetBounds(20, 30, 100, 25);
  TUpDown arrows(&form);
  arrows.SetParent(&form);
  arrows.SetAssociate(edit);
  EXPECT_EQ(arrows.BoundsRect(), QRect(120, 30, 17, 25));
  EXPECT_THROW(arrows.SetAssociate(&arrows), EPropertyError);
  arrows.SetAssociate(nullptr);
  arrows.Set(TUpDown::AlignButton, TUDAlignButton::udLeft);
  arrows.SetAssociate(edit);
  EXPECT_EQ(arrows.BoundsRect(), QRect(3, 30, 17, 25));
  delete edit;
  EXPECT_EQ(arrows.Associate(), nullptr);
}

TEST(SpinEdit, ShowsItsNumber) {
  TSpinEdit whole(nullptr);
  EXPECT_TRUE(Shows(whole, [&] { whole.Set(TSpinEdit::Value, 1234); }));
  TFloatSpinEdit broken(nullptr);
  broken.Set(TFloatSpinEdit::Value, 2.5);
  EXPECT_TRUE(Shows(broken, [&] { broken.Set(TFloatSpinEdit::DecimalPlaces, 4); }));
}

TEST(HeaderControl, SectionsShareWhatIsLeftAndKeepTheirLimits) {
  THeaderControl header(nullptr);
  header.SetBounds(0, 0, 300, 20);
  THeaderSections& sections = *header.Get(THeaderControl::Sections);
  for (int i = 0; i < 4; ++i) sections.Add();
  sections.Item(1)->Set(THeaderSection::AutoSize, true);
  sections.Item(2)->Set(THeaderSection::AutoSize, true);
  sections.Item(2)->Set(THeaderSection::MaxWidth, 60);
  sections.Item(3)->Set(THeaderSection::Visible, false);
  EXPECT_EQ(header.SectionRects(),
            (std::vector<QRect>{{0, 0, 50, 20}, {50, 0, 125, 20}, {175, 0, 60, 20}, {235, 0, 0, 20}}));
  EXPECT_TRUE(Shows(header, [&] { sections.Item(0)->Set(THeaderSection::Text, QStringLiteral("Name")); }));
  EXPECT_TRUE(
      Shows(header, [&] { sections.Item(0)->Set(THeaderSection::Alignment, TAlignment::taRightJustify); }));
}

TEST(HeaderControl, ShowsItsMarksItsBorderAndItsStyle) {
  THeaderControl header(nullptr);
  header.SetBounds(0, 0, 300, 30);
  THeaderSections& sections = *header.Get(THeaderControl::Sections);
  for (int i = 0; i < 2; ++i) sections.Add()->Set(THeaderSection::Text, QStringLiteral("Name"));
  const auto mark = [&](const auto& property) {
    return Shows(header, [&] { sections.Item(1)->Set(property, true); });
  };
  EXPECT_FALSE(mark(THeaderSection::Checked));
  EXPECT_FALSE(mark(THeaderSection::CheckBox));
  EXPECT_TRUE(Shows(header, [&] { header.Set(THeaderControl::CheckBoxes, true); }));
  EXPECT_TRUE(Shows(header, [&] { sections.Item(1)->Set(THeaderSection::Checked, false); }));
  EXPECT_TRUE(Shows(header, [&] { header.Set(THeaderControl::Style, THeaderStyle::hsFlat); }));
  header.Set(THeaderControl::BorderWidth, 4);
  EXPECT_EQ(header.SectionRects(), (std::vector<QRect>{{4, 4, 50, 22}, {54, 4, 50, 22}}));
  header.Set(THeaderControl::BorderWidth, 1'000'000);
  EXPECT_TRUE(header.SectionRects()[0].isEmpty());
}

TEST(StatusBar, TheLastPanelReachesToTheEnd) {
  TStatusBar bar(nullptr);
  bar.SetBounds(0, 0, 300, 22);
  TStatusPanels& panels = *bar.Get(TStatusBar::Panels);
  panels.Add()->Set(TStatusPanel::Width, 80);
  panels.Add();
  EXPECT_EQ(bar.PanelRects(), (std::vector<QRect>{{0, 2, 80, 20}, {82, 2, 218, 20}}));
  EXPECT_TRUE(Shows(bar, [&] { panels.Item(0)->Set(TStatusPanel::Text, QStringLiteral("Ready")); }));
  EXPECT_TRUE(Shows(bar, [&] { panels.Item(0)->Set(TStatusPanel::Bevel, TStatusPanelBevel::pbNone); }));
  bar.Set(TStatusBar::SimpleText, QStringLiteral("Working"));
  EXPECT_TRUE(Shows(bar, [&] { bar.Set(TStatusBar::SimplePanel, true); }));
  EXPECT_TRUE(Shows(bar, [&] { bar.Set(TStatusBar::SizeGrip, false); }));
}

TEST(DateTimePicker, ShowsTheDayAndTheTimeInItsFormat) {
  TDateTimePicker picker(nullptr);
  picker.Set(TDateTimePicker::Date, TDateTime{40273});
  picker.Set(TDateTimePicker::Time, TDateTime{0.547337048607005300});
  picker.Set(TDateTimePicker::Format, QStringLiteral("yyyy-MM-dd"));
  EXPECT_EQ(picker.ShownText().toStdString(), "2010-04-05");
  picker.Set(TDateTimePicker::Format, QString());
  picker.Set(TDateTimePicker::Kind, TDateTimeKind::dtkTime);
  EXPECT_EQ(picker.ShownText().toStdString(), "13:08:10");
  EXPECT_TRUE(Shows(picker, [&] { picker.Set(TDateTimePicker::ShowCheckbox, true); }));
}

TEST(MonthCalendar, ShowsTheMonthOfItsDayAndTodayWithoutOne) {
  const QDate today = QDate::currentDate();
  EXPECT_LE(today.daysTo(DayOf({})), 1);
  EXPECT_EQ(DayOf({40273}), QDate(2010, 4, 5));
  EXPECT_LE(today.daysTo(DayOf({1e300})), 1) << "what is no day is none";
  TMonthCalendar calendar(nullptr);
  EXPECT_TRUE(Shows(calendar, [&] { calendar.Set(TMonthCalendar::Date, TDateTime{40273}); }));
  EXPECT_TRUE(Shows(calendar, [&] { calendar.Set(TMonthCalendar::Date, TDateTime{40274}); }));
  EXPECT_TRUE(
      Shows(calendar, [&] { calendar.Set(TMonthCalendar::FirstDayOfWeek, TCalDayOfWeek::dowFriday); }));
  EXPECT_TRUE(Shows(calendar, [&] { calendar.Set(TMonthCalendar::WeekNumbers, true); }));
  EXPECT_TRUE(Shows(calendar, [&] { calendar.Get(TMonthCalendar::CalColors)->SetTitleBackColor(clRed); }));
}

TEST(LabeledEdit, IsAFieldWithALabel) {
  TLabeledEdit edit(nullptr);
  edit.EditLabel()->SetCaption(QStringLiteral("Name"));
  EXPECT_LT(edit.LabelBounds().top(), 0);
  EXPECT_TRUE(edit.PaintExtent().contains(edit.LabelBounds()));
}

TEST(FloatSpinEdit, StepsByOneUnlessItIsToldOtherwise) {
  TFloatSpinEdit edit(nullptr);
  const TPropInfo& step = TFloatSpinEdit::StaticClass().GetProp("Increment");
  EXPECT_EQ(GetFloatProp(edit, step), 1);
  EXPECT_FALSE(IsStoredProp(edit, step));
  SetFloatProp(edit, step, 0.25L);
  EXPECT_EQ(edit.Increment(), 0.25);
  EXPECT_TRUE(IsStoredProp(edit, step));
  ResetProp(edit, step);
  EXPECT_EQ(edit.Increment(), 1);
  edit.SetIncrement(0);
  EXPECT_EQ(edit.Increment(), 1) << "no step is none";
  for (const char* name : {"MaxValue", "MinValue", "Value"})
    EXPECT_EQ(GetFloatProp(edit, TFloatSpinEdit::StaticClass().GetProp(name)), 0) << name;
  EXPECT_EQ(edit.Get(TFloatSpinEdit::DecimalPlaces), 2);
}
