// The page of a month: which days it shows and where, and what can be hit.
#include "library/controls/Calendar.h"
#include "rtl/Clock.h"
#include "rtl/Exceptions.h"
#include "tests/library/VisibleProperties.h"
#include "vcl/Form.h"

namespace {
TDateTime DateTimeOf(QDate day) { return {static_cast<double>(QDate(1899, 12, 30).daysTo(day))}; }

// Today is the first of January 2000, a Saturday, unless `now_` says more.
class Calendar : public testing::Test {
 protected:
  Calendar() {
    calendar_.SetBounds(0, 0, 227, 189);
    calendar_.Set(TVRXCalendar::FirstDayOfWeek, TCalDayOfWeek::dowMonday);
    calendar_.SetDate(DateTimeOf({2024, 2, 14}));
  }
  QDate HitDay(QDate day) const {
    const TVRXCalendar::Hit hit = calendar_.HitAt(calendar_.DayRect(day).center());
    return hit.part == TVRXCalendarPart::Day ? hit.day : QDate();
  }
  std::int64_t now_ = 0;
  TVRXCalendar calendar_{nullptr};

 private:
  TClockOverride clock_{[this] { return now_; }};
};
}  // namespace

TEST_F(Calendar, ShowsSixWeeksFromTheDayThatWeeksBeginWith) {
  // The first of February 2024 is a Thursday.
  EXPECT_TRUE(calendar_.DayRect({2024, 1, 28}).isEmpty());
  EXPECT_FALSE(calendar_.DayRect({2024, 1, 29}).isEmpty());
  EXPECT_FALSE(calendar_.DayRect({2024, 3, 10}).isEmpty());
  EXPECT_TRUE(calendar_.DayRect({2024, 3, 11}).isEmpty());
  EXPECT_EQ(calendar_.DayRect({2024, 2, 5}).left(), calendar_.DayRect({2024, 1, 29}).left());
  calendar_.Set(TVRXCalendar::FirstDayOfWeek, TCalDayOfWeek::dowSunday);
  EXPECT_FALSE(calendar_.DayRect({2024, 1, 28}).isEmpty());
  EXPECT_TRUE(calendar_.DayRect({2024, 3, 10}).isEmpty());
  calendar_.Set(TVRXCalendar::FirstDayOfWeek, TCalDayOfWeek::dowThursday);
  EXPECT_EQ(calendar_.DayRect({2024, 2, 1}).left(), calendar_.DayRect({2024, 2, 29}).left());
  EXPECT_TRUE(calendar_.DayRect({2024, 1, 31}).isEmpty());
}

TEST_F(Calendar, EveryDayIsHitToItsLastPixelAndNoTwoShareOne) {
  QRegion all;
  for (QDate day(2024, 1, 29); day <= QDate(2024, 3, 10); day = day.addDays(1)) {
    const QRect rect = calendar_.DayRect(day);
    EXPECT_FALSE(all.intersects(rect));
    all += rect;
    for (const QPoint corner : {rect.topLeft(), rect.topRight(), rect.bottomLeft(), rect.bottomRight()}) {
      EXPECT_EQ(calendar_.HitAt(corner).part, TVRXCalendarPart::Day);
      EXPECT_EQ(calendar_.HitAt(corner).day, day);
    }
  }
  EXPECT_EQ(all.boundingRect().left(), 2);
  EXPECT_EQ(all.boundingRect().right(), 227 - 3);
  EXPECT_EQ(calendar_.HitAt({1, 100}).part, TVRXCalendarPart::None);
}

TEST_F(Calendar, TitleButtonsAndTodayAreParts) {
  for (const auto part : {TVRXCalendarPart::Title, TVRXCalendarPart::PreviousMonth,
                          TVRXCalendarPart::NextMonth, TVRXCalendarPart::Today}) {
    EXPECT_EQ(calendar_.HitAt(calendar_.PartRect(part).topLeft()).part, part);
    EXPECT_EQ(calendar_.HitAt(calendar_.PartRect(part).bottomRight()).part, part);
  }
  EXPECT_LT(calendar_.PartRect(TVRXCalendarPart::PreviousMonth).right(),
            calendar_.PartRect(TVRXCalendarPart::NextMonth).left());
  calendar_.Set(TVRXCalendar::ShowButtons, false);
  EXPECT_TRUE(calendar_.PartRect(TVRXCalendarPart::NextMonth).isEmpty());
  EXPECT_EQ(calendar_.HitAt({5, 5}).part, TVRXCalendarPart::Title);
  calendar_.Set(TVRXCalendar::ShowToday, false);
  EXPECT_TRUE(calendar_.PartRect(TVRXCalendarPart::Today).isEmpty());
  EXPECT_EQ(calendar_.HitAt({100, 185}).part, TVRXCalendarPart::Day);
}

TEST_F(Calendar, AWeekHasTheNumberOfTheYearThatMostOfItIsIn) {
  calendar_.Set(TVRXCalendar::WeekNumbers, true);
  const QRect day = calendar_.DayRect({2024, 2, 12});
  const TVRXCalendar::Hit hit = calendar_.HitAt({4, day.center().y()});
  EXPECT_EQ(hit.part, TVRXCalendarPart::WeekNumber);
  EXPECT_EQ(hit.day, QDate(2024, 2, 12));
  EXPECT_EQ(TVRXCalendar::WeekNumberOf({2024, 2, 12}), 7);
  EXPECT_EQ(TVRXCalendar::WeekNumberOf({2023, 12, 31}), 1) << "weeks from Sunday on";
  EXPECT_EQ(TVRXCalendar::WeekNumberOf({2024, 12, 30}), 1);
  const QPoint last(4, calendar_.DayRect({2024, 3, 5}).center().y());
  EXPECT_EQ(calendar_.HitAt(last).part, TVRXCalendarPart::WeekNumber);
  calendar_.Set(TVRXCalendar::ShowTrailingDays, false);
  EXPECT_EQ(calendar_.HitAt(last).part, TVRXCalendarPart::None) << "a week without days";
  calendar_.Set(TVRXCalendar::WeekNumbers, false);
  EXPECT_EQ(calendar_.HitAt({4, day.center().y()}).part, TVRXCalendarPart::Day);
}

TEST_F(Calendar, OnlyDaysBetweenTheEndsCanBeChosen) {
  calendar_.SetMinDate(DateTimeOf({2024, 2, 5}));
  calendar_.SetMaxDate(DateTimeOf({2024, 2, 20}));
  EXPECT_EQ(HitDay({2024, 2, 5}), QDate(2024, 2, 5));
  EXPECT_EQ(HitDay({2024, 2, 20}), QDate(2024, 2, 20));
  EXPECT_EQ(HitDay({2024, 2, 4}), QDate());
  EXPECT_EQ(HitDay({2024, 2, 21}), QDate());
  calendar_.Set(TVRXCalendar::ShowTrailingDays, false);
  EXPECT_TRUE(calendar_.DayRect({2024, 1, 31}).isEmpty());
  EXPECT_FALSE(calendar_.DayRect({2024, 2, 1}).isEmpty());
}

TEST_F(Calendar, TheDateStaysBetweenItsEndsAndTheEndsInOrder) {
  TForm form(nullptr);
  auto* calendar = new TVRXCalendar(&form);
  calendar->SetName(QStringLiteral("Days"));
  calendar->SetDate(DateTimeOf({2024, 2, 14}));
  calendar->SetMaxDate(DateTimeOf({2024, 2, 10}));
  EXPECT_EQ(calendar->Day(), QDate(2024, 2, 10));
  calendar->SetMinDate(DateTimeOf({2024, 2, 3}));
  calendar->SetDate(DateTimeOf({2020, 1, 1}));
  EXPECT_EQ(calendar->Day(), QDate(2024, 2, 3));
  calendar->SetDate({});
  EXPECT_EQ(calendar->DateOf(), TDateTime{}) << "today, whatever the ends are";
  try {
    calendar->SetMinDate(DateTimeOf({2024, 2, 11}));
    FAIL();
  } catch (const EPropertyError& e) {
    EXPECT_TRUE(e.Message().contains(QStringLiteral("Days"))) << e.Message().toStdString();
    EXPECT_TRUE(e.Message().contains(QStringLiteral("2024-02-11")));
  }
  EXPECT_EQ(calendar->MinDateOf(), DateTimeOf({2024, 2, 3}));
  calendar->BeginLoading();
  calendar->SetMinDate(DateTimeOf({2024, 2, 11}));
  calendar->SetDate(DateTimeOf({2030, 2, 11}));
  EXPECT_EQ(calendar->Day(), QDate(2030, 2, 11)) << "a file is taken as it is";
  calendar->Loaded();
}

TEST_F(Calendar, WithoutADateItShowsTodayAndTomorrowTheNextDay) {
  TForm form(nullptr);
  auto* calendar = new TVRXCalendar(&form);
  calendar->SetParent(&form);
  EXPECT_EQ(calendar->Day(), QDate(2000, 1, 1));
  const QImage before = Draw(*calendar, Qt::white);
  now_ = 24 * 3'600'000 - 1;
  EXPECT_EQ(TRepaintTimer::RunDue(), 0);
  EXPECT_EQ(Draw(*calendar, Qt::white), before);
  now_ += 1;
  EXPECT_EQ(TRepaintTimer::RunDue(), 1);
  EXPECT_EQ(calendar->Day(), QDate(2000, 1, 2));
  EXPECT_NE(Draw(*calendar, Qt::white), before);
}

TEST_F(Calendar, TheChosenDayAndTodayAreMarkedWhereTheyStand) {
  visible::Apply(calendar_, QStringLiteral("SelectedColor=clLime TodayColor=clFuchsia"));
  calendar_.SetDate(DateTimeOf({2000, 1, 20}));
  const QImage image = Draw(calendar_, Qt::white);
  const QRect chosen = calendar_.DayRect({2000, 1, 20});
  EXPECT_EQ(image.pixelColor(chosen.topLeft() + QPoint(2, 2)), QColor(Qt::green));
  EXPECT_EQ(image.pixelColor(chosen.bottomRight() - QPoint(2, 2)), QColor(Qt::green));
  EXPECT_NE(image.pixelColor(chosen.topLeft() - QPoint(1, 1)), QColor(Qt::green));
  EXPECT_NE(image.pixelColor(chosen.bottomRight() + QPoint(1, 1)), QColor(Qt::green));
  const QRect today = calendar_.DayRect({2000, 1, 1});
  int round = 0;
  for (int x = today.left(); x <= today.right(); ++x)
    round += image.pixelColor(x, today.center().y()).green() < 120 &&
             image.pixelColor(x, today.center().y()).red() > 200;
  EXPECT_GE(round, 2) << "both sides of the circle";
}

TEST_F(Calendar, EveryPropertyIsSeen) {
  const double february = DateTimeOf({2000, 1, 12}).Days;
  const QByteArray date = "Date=" + QByteArray::number(february + 3),
                   min = "MinDate=" + QByteArray::number(february - 5),
                   max = "MaxDate=" + QByteArray::number(february + 9);
  visible::ExpectAll<TVRXCalendar>(
      {{"", date.constData()},
       {date.constData(), min.constData()},
       {date.constData(), max.constData()},
       {"", "BorderStyle=bsNone"},
       {"", "CalColors.BackColor=clYellow"},
       {"", "CalColors.MonthBackColor=clYellow"},
       {"", "CalColors.TextColor=clRed"},
       {"", "CalColors.TitleBackColor=clRed"},
       {"", "CalColors.TitleTextColor=clRed"},
       {"", "CalColors.TrailingTextColor=clRed"},
       {"", "Enabled=False"},
       {"FirstDayOfWeek=dowSunday", "FirstDayOfWeek=dowMonday"},
       {"", "GridLines=True"},
       {"", "SelectedColor=clRed"},
       {"", "SelectedTextColor=clRed"},
       {"", "ShowButtons=False"},
       {"", "ShowToday=False"},
       {"", "ShowTodayCircle=False"},
       {"", "ShowTrailingDays=False"},
       {"", "TodayColor=clBlue"},
       {"", "WeekNumbers=True"},
       {"", "WeekendColor=clLime"}},
      {227, 189}, {QStringLiteral("Font."), QStringLiteral("ParentFont"), QStringLiteral("AutoSize")});
}

TEST_F(Calendar, SizesItselfSoThatTheNumbersHaveRoom) {
  calendar_.SetAutoSize(true);
  const int narrow = calendar_.Width(), low = calendar_.Height();
  calendar_.Set(TVRXCalendar::WeekNumbers, true);
  EXPECT_GT(calendar_.Width(), narrow);
  calendar_.Set(TVRXCalendar::ShowToday, false);
  EXPECT_LT(calendar_.Height(), low);
}

TEST(CalendarHeadings, DaysDifferInEveryCountry) {
  for (const QLocale& locale :
       QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
    SCOPED_TRACE(locale.name().toStdString());
    // Some countries have one name for two days.
    QSet<QString> names, usual;
    for (int day = 1; day <= 7; ++day) {
      names.insert(DayHeading(locale, day));
      usual.insert(locale.dayName(day, QLocale::ShortFormat));
    }
    EXPECT_GE(names.size(), usual.size());
  }
  EXPECT_EQ(DayHeading(QLocale(QLocale::German), 2), QStringLiteral("Di"));
}

TEST(CalendarHeadings, TheMonthStandsAsTheCountryWritesIt) {
  const QDate day(2026, 11, 3);
  const auto written = [&](const char* country) {
    return MonthHeading(QLocale(QString::fromLatin1(country)), day);
  };
  EXPECT_EQ(written("en_US"), QStringLiteral("November 2026"));
  EXPECT_EQ(written("de_DE"), QStringLiteral("November 2026"));
  EXPECT_EQ(written("sv_SE"), QStringLiteral("november 2026"));
  EXPECT_EQ(written("ja_JP"), QString::fromUtf8("2026\u5e7411\u6708"));
  EXPECT_TRUE(written("ar_EG").contains(QString::fromUtf8("\u0662\u0660\u0662\u0666")));
  EXPECT_EQ(PlainNumber(QLocale(QStringLiteral("ar_EG")), 28), QString::fromUtf8("\u0662\u0668"));
  EXPECT_EQ(PlainNumber(QLocale(QStringLiteral("de_DE")), 1234), QStringLiteral("1234"));
}
