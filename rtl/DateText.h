// Moments as texts: the same everywhere, for files and inspectors, and as the person's country writes them.
#pragma once
#include <QDateTime>
#include <QLocale>
#include <optional>

#include "rtl/TypeInfo.h"

// Day and time of day. The fraction counts away from midnight, before the first day, too.
QDateTime SplitDateTime(TDateTime value);
TDateTime JoinDateTime(const QDateTime& value);

// What there is to say of a value.
enum class TMomentPart : std::uint8_t { Both, Date, Time };
// The value with that part of the other one.
TDateTime WithPart(TDateTime value, TDateTime from, TMomentPart part);

// "2024-03-09", "13:05:00", "2024-03-09 13:05:00"; nothing for 0.
QString DateTimeToText(TDateTime value);
// The part alone; a time is told at midnight, too.
QString DateTimeToText(TDateTime value, TMomentPart part);
// The reverse, or a number of days; nothing when the text is neither.
std::optional<TDateTime> TextToDateTime(const QString& text);

// The formats of a country: its short date, with all digits of the year, and its time with seconds.
QString DateFormatOf(const QLocale& locale = {});
QString TimeFormatOf(const QLocale& locale = {});
QString DateToStr(TDateTime value, const QLocale& locale = {});
QString TimeToStr(TDateTime value, const QLocale& locale = {});
// Throw EConvertError for what is not written in that way.
TDateTime StrToDate(const QString& text, const QLocale& locale = {});
TDateTime StrToTime(const QString& text, const QLocale& locale = {});
