// How a moment is written: a text with placeholders.
//
//   d dd          day of the month           h hh    hour
//   ddd dddd      name of the weekday        n nn    minute; also m, mm behind an hour
//   m mm          month                      s ss    second
//   mmm mmmm      name of the month          z zzz   millisecond
//   yy yyyy       year                       am/pm, a/p, ampm   half of the day; hours then go to 12
//
// Big letters mean the same. Text stands in quotes of either kind; other signs stand for themselves.
#pragma once
#include <QDateTime>
#include <QLocale>

struct TTypeInfo;
const TTypeInfo& TVRXDateTimeFormat();  // a string that is such a format

// Throws EConvertError, with the reason, for what is no format.
void VRXCheckDateTimeFormat(const QString& format);
QString VRXFormatDateTime(const QString& format, const QDateTime& moment, const QLocale& locale = QLocale());
// In how many milliseconds the text can be another one: at the next millisecond, second, minute or day.
int VRXNextDateTimeText(const QString& format, const QTime& time);
