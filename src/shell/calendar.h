// The calendar that dates are picked from: the Gregorian one, also for the years before it was in use, from 100
// to 9998. Moving beyond either end stops there.
#pragma once

#include <chrono>
#include <optional>
#include <string_view>

using CalendarDate = std::chrono::year_month_day;

inline constexpr int kFirstYear = 100;
inline constexpr int kLastYear = 9998;

// The date, or the nearest end of the calendar.
CalendarDate WithinCalendar(CalendarDate date);

CalendarDate PlusDays(CalendarDate date, int days);

// The same day of another month; in a shorter month its last day.
CalendarDate PlusMonths(CalendarDate date, int months);
CalendarDate InMonth(CalendarDate date, int year, unsigned month);

CalendarDate FirstOfMonth(CalendarDate date);
CalendarDate LastOfMonth(CalendarDate date);

// The column of the month's first day, 0..6, in a sheet whose weeks begin on that day (0 is Sunday).
int FirstColumn(CalendarDate date, int first_weekday);

// The year that a text names, without regard to blanks around it; nothing for any other text or year.
std::optional<int> YearOf(std::string_view text);
