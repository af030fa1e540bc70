// Formats of dates and times: what each placeholder becomes, and what is no format.
#include "library/values/DateTimeFormat.h"

#include <gtest/gtest.h>

#include "rtl/Exceptions.h"

namespace {
const QDateTime Afternoon(QDate(2031, 7, 4), QTime(17, 5, 9, 42));
const QDateTime Midnight(QDate(1999, 12, 25), QTime(0, 30, 0, 0));

std::string Text(const char* format, const QDateTime& moment = Afternoon) {
  return VRXFormatDateTime(QString::fromUtf8(format), moment, QLocale::c()).toStdString();
}
std::string Refusal(const char* format) {
  try {
    VRXCheckDateTimeFormat(QString::fromUtf8(format));
  } catch (const EConvertError& error) {
    return error.Message().toStdString();
  }
  return "taken";
}
}  // namespace

TEST(DateTimeFormat, EveryPlaceholderIsItsPartOfTheMoment) {
  struct Row {
    const char* format;
    const char* afternoon;
    const char* midnight;
  };
  constexpr Row rows[] = {
      {"", "", ""},
      {"d", "4", "25"},
      {"dd", "04", "25"},
      {"ddd", "Fri", "Sat"},
      {"dddd", "Friday", "Saturday"},
      {"m", "7", "12"},
      {"mm", "07", "12"},
      {"mmm", "Jul", "Dec"},
      {"mmmm", "July", "December"},
      {"yy", "31", "99"},
      {"yyyy", "2031", "1999"},
      {"h", "17", "0"},
      {"hh", "17", "00"},
      {"n", "5", "30"},
      {"nn", "05", "30"},
      {"s", "9", "0"},
      {"ss", "09", "00"},
      {"z", "42", "0"},
      {"zzz", "042", "000"},
      {"h am/pm", "5 pm", "12 am"},
      {"hh a/p", "05 p", "12 a"},
      {"h:nn ampm", "5:05 PM", "12:30 AM"},
      {"am/pm h", "pm 5", "am 12"},
      {"hh:mm", "17:05", "00:30"},
      {"h.m.s", "17.5.9", "0.30.0"},
      {"mm hh mm", "07 17 05", "12 00 30"},
      {"hh nn mm", "17 05 07", "00 30 12"},
      {"DD.MM.YYYY HH:NN:SS", "04.07.2031 17:05:09", "25.12.1999 00:30:00"},
      {"d\"d\"d", "4d4", "25d25"},
      {"'it is' h \"o'clock\"", "it is 17 o'clock", "it is 0 o'clock"},
      {"''d\"\"", "4", "25"},
      {"dd/mm/yyyy, (hh)!", "04/07/2031, (17)!", "25/12/1999, (00)!"},
      {"yyyymmddhhnnsszzz", "20310704170509042", "19991225003000000"},
      {"\xE2\x82\xAC d", "\xE2\x82\xAC 4", "\xE2\x82\xAC 25"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.format);
    EXPECT_EQ(Text(row.format), row.afternoon);
    EXPECT_EQ(Text(row.format, Midnight), row.midnight);
    EXPECT_EQ(Refusal(row.format), "taken");
  }
}

TEST(DateTimeFormat, TheTwelfthHourIsTwelveOnBothSidesOfNoon) {
  const auto at = [](int hour) { return Text("h am/pm", QDateTime(QDate(2000, 1, 1), QTime(hour, 0))); };
  EXPECT_EQ(at(0), "12 am");
  EXPECT_EQ(at(1), "1 am");
  EXPECT_EQ(at(11), "11 am");
  EXPECT_EQ(at(12), "12 pm");
  EXPECT_EQ(at(13), "1 pm");
  EXPECT_EQ(at(23), "11 pm");
}

TEST(DateTimeFormat, WhatIsNoFormatIsRefusedWithItsReason) {
  EXPECT_EQ(Refusal("hh:nn 'o clock"), "The quote at place 7 is not closed.");
  EXPECT_EQ(Refusal("hh:xx"), "\"xx\" is no placeholder of a date or a time. Put text in quotes.");
  EXPECT_EQ(Refusal("ddddd"), "\"ddddd\" is no placeholder of a date or a time. Put text in quotes.");
  for (const char* wrong : {"\"", "'a\"", "y", "yyy", "yyyyy", "hhh", "nnn", "sss", "zz", "zzzz", "mmmmm",
                            "Q", "a", "ap", "am", "\xC3\xBC"}) {
    EXPECT_NE(Refusal(wrong), "taken") << wrong;
    EXPECT_THROW(Text(wrong), EConvertError) << wrong;
  }
}

TEST(DateTimeFormat, TheTextLastsAsLongAsItsSmallestPart) {
  const QTime time(17, 5, 9, 42);
  const auto next = [&](const char* format) {
    return VRXNextDateTimeText(QString::fromLatin1(format), time);
  };
  EXPECT_EQ(next("hh:nn:ss"), 958);
  EXPECT_EQ(next("ss dd"), 958);
  EXPECT_EQ(next("hh:nn"), 50958);
  EXPECT_EQ(next("h am/pm"), 50958);
  EXPECT_EQ(next("zzz"), 1);
  EXPECT_EQ(next("dddd"), 24890958);
  EXPECT_EQ(next("'hh'"), next("yyyy"));
}
