// The calendar, against the library's own over the 400 years after which it begins anew.
#include "shell/calendar.h"

#include <gtest/gtest.h>

#include "support/rows.h"

namespace {

using std::chrono::days;
using std::chrono::months;
using std::chrono::sys_days;
using std::chrono::year_month;

CalendarDate Date(int year, unsigned month, unsigned day) {
  return {std::chrono::year{year}, std::chrono::month{month}, std::chrono::day{day}};
}

TEST(CalendarTest, MovesAsTheLibraryDoes) {
  for (sys_days day{Date(1582, 10, 4)}; day < sys_days{Date(1983, 1, 1)}; day += days{5}) {
    const CalendarDate date = day;
    const year_month month = date.year() / date.month();
    for (const int step : {-7, -1, 1, 7}) ASSERT_EQ(PlusDays(date, step), CalendarDate{day + days{step}});
    for (const int step : {-13, -1, 1, 12}) {
      const year_month other = month + months{step};
      const CalendarDate last = other / std::chrono::last;
      ASSERT_EQ(PlusMonths(date, step), std::min(last, CalendarDate{other / date.day()}));
      ASSERT_EQ(InMonth(date, int{other.year()}, unsigned{other.month()}), PlusMonths(date, step));
    }
    ASSERT_EQ(FirstOfMonth(date), CalendarDate{month / 1});
    ASSERT_EQ(LastOfMonth(date), CalendarDate{month / std::chrono::last});
    for (int first = 0; first < 7; ++first) {
      const std::chrono::weekday above{sys_days{month / 1} - days{FirstColumn(date, first)}};
      ASSERT_TRUE(FirstColumn(date, first) < 7 && above.c_encoding() == static_cast<unsigned>(first));
    }
  }
}

TEST(CalendarTest, EndsAtTheYears100And9998) {
  EXPECT_EQ(PlusDays(Date(100, 1, 3), -7), Date(100, 1, 1));
  EXPECT_EQ(PlusMonths(Date(100, 1, 3), -1), Date(100, 1, 1));
  EXPECT_EQ(PlusDays(Date(9998, 12, 30), 7), Date(9998, 12, 31));
  EXPECT_EQ(PlusMonths(Date(9998, 12, 30), 1), Date(9998, 12, 31));
  EXPECT_EQ(WithinCalendar(Date(9999, 1, 1)), Date(9998, 12, 31));
  ExpectRows(
      "100 => 100 |  9998  => 9998 |  => 0 | 99 => 0 | 9999 => 0 | 2026x => 0 | x => 0 | 20 26 => 0 | -200 => 0"
      " | 99999999999 => 0",
      [](const std::string& text) { return std::to_string(YearOf(text).value_or(0)); });
}

}  // namespace
