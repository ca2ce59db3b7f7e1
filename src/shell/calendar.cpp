// The calendar that dates are picked from: see calendar.h.
#include "shell/calendar.h"

#include <algorithm>
#include <charconv>

#include "platform/text.h"

namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;

constexpr CalendarDate kFirstDate{year{kFirstYear}, month{1}, day{1}};
constexpr CalendarDate kLastDate{year{kLastYear}, month{12}, day{31}};

CalendarDate DayOrLast(std::chrono::year_month when, day wanted) {
  const CalendarDate last{when / std::chrono::last};
  return {when.year(), when.month(), std::min(wanted, last.day())};
}

}  // namespace

CalendarDate WithinCalendar(CalendarDate date) { return std::clamp(date, kFirstDate, kLastDate); }

CalendarDate PlusDays(CalendarDate date, int days) { return WithinCalendar(sys_days{date} + std::chrono::days{days}); }

CalendarDate PlusMonths(CalendarDate date, int months) {
  const std::chrono::year_month when = date.year() / date.month() + std::chrono::months{months};
  return WithinCalendar(DayOrLast(when, date.day()));
}

CalendarDate InMonth(CalendarDate date, int wanted_year, unsigned wanted_month) {
  return WithinCalendar(DayOrLast(year{wanted_year} / month{wanted_month}, date.day()));
}

CalendarDate FirstOfMonth(CalendarDate date) { return {date.year(), date.month(), day{1}}; }
CalendarDate LastOfMonth(CalendarDate date) { return {date.year() / date.month() / std::chrono::last}; }

int FirstColumn(CalendarDate date, int first_weekday) {
  const std::chrono::weekday first{sys_days{FirstOfMonth(date)}};
  return static_cast<int>((first - std::chrono::weekday{static_cast<unsigned>(first_weekday)}).count());
}

std::optional<int> YearOf(std::string_view text) {
  text = Trim(text);
  int number = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (failure != std::errc() || end != text.data() + text.size()) return std::nullopt;
  if (number < kFirstYear || number > kLastYear) return std::nullopt;
  return number;
}
