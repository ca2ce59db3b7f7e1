// The calendar: against the library's own over the 400 years after which it begins anew; and what its dialog makes of
// keys, clicks and years.
#include "shell/calendar.h"

#include "platform/program.h"
#include "resource.h"
#include "shell/date_pick_form.h"
#include "shell/date_pick_ids.h"
#include "support/fresh_test.h"
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
  for (sys_days day{Date(1582, 10, 4)}; day < sys_days{Date(1983, 1, 1)}; day += days{3}) {
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
    ASSERT_EQ(FirstColumn(date), static_cast<int>(std::chrono::weekday{sys_days{month / 1}}.c_encoding()));
  }
}

TEST(CalendarTest, EndsAtTheYears100And9998) {
  EXPECT_EQ(PlusDays(Date(100, 1, 3), -7), Date(100, 1, 1));
  EXPECT_EQ(PlusMonths(Date(100, 1, 3), -1), Date(100, 1, 1));
  EXPECT_EQ(PlusDays(Date(9998, 12, 30), 7), Date(9998, 12, 31));
  EXPECT_EQ(PlusMonths(Date(9998, 12, 30), 1), Date(9998, 12, 31));
  EXPECT_EQ(WithinCalendar(Date(9999, 1, 1)), Date(9998, 12, 31));
  for (const auto& [text, year] :
       Rows("100 => 100 |  9998  => 9998 |  => 0 | 99 => 0 | 9999 => 0 | 2026x => 0 | x => 0 "
            "| 20 26 => 0 | -200 => 0 | 99999999999 => 0")) {
    EXPECT_EQ(YearOf(text).value_or(0), std::stoi(year)) << text;
  }
}

class DatePickFormTest : public FreshTest {
 protected:
  // The date in words, and the days of the sheet in their places: "." for a place without one.
  std::string Seen() {
    std::string text = user.Sees(IDC_DateLabel) + ":";
    for (int cell = 0; cell < kSheetDays; ++cell) {
      text += " " + (user.SeesVisible(IDC_DayButton + cell) ? user.Sees(IDC_DayButton + cell) : ".");
      if (user.SeesFocusOn(IDC_DayButton + cell)) text += "*";
    }
    return text.substr(0, text.find_last_not_of(" .") + 1);
  }
  void Refuses(const char* year) {
    user.Types(IDC_YearBox, year);
    user.Reads("Please type a year from 100 to 9998.", Icon::Exclamation);
    user.Clicks(IDC_OKButton);
    EXPECT_TRUE(user.SeesFocusOn(IDC_YearBox));
  }
};

TEST_F(DatePickFormTest, IsUsedByKeysClicksAndYears) {
  DatePickForm form(Date(2023, 12, 28));
  user.UsesForm(IDD_DatePickForm, [this] {
    const std::pair<Key, const char*> walk[] = {
        {Key::Right, "Friday, December 29, 2023"},      {Key::Down, "Friday, January 5, 2024"},
        {Key::Left, "Thursday, January 4, 2024"},       {Key::Up, "Thursday, December 28, 2023"},
        {Key::End, "Sunday, December 31, 2023"},        {Key::PageDown, "Wednesday, January 31, 2024"},
        {Key::PageDown, "Thursday, February 29, 2024"}, {Key::PageUp, "Monday, January 29, 2024"},
        {Key::Home, "Monday, January 1, 2024"}};
    for (const auto& [key, date] : walk) {
      user.Presses(key);
      EXPECT_EQ(user.Sees(IDC_DateLabel), date);
    }
    EXPECT_EQ(Seen(),
              "Monday, January 1, 2024: . 1* 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 "
              "26 27 28 29 30 31");
    EXPECT_EQ(user.SeesSelected(IDC_MonthCombo) + user.Sees(IDC_YearBox), "January2024");
    for (const char* month : {"March", "April", "May", "June", "July", "August", "September", "October", "November"}) {
      user.Picks(IDC_MonthCombo, month);
      EXPECT_NE(user.Sees(IDC_DateLabel).find(std::string(", ") + month + " 1, 2024"), std::string::npos);
    }
    user.Clicks(IDC_DayButton + 5 + 29);
    user.Clicks(IDC_PreviousButton);
    user.Clicks(IDC_PreviousButton);
    user.Clicks(IDC_NextButton);
    EXPECT_EQ(user.Sees(IDC_DateLabel), "Wednesday, October 30, 2024");
    user.Picks(IDC_MonthCombo, "February");
    EXPECT_EQ(Seen(),
              "Thursday, February 29, 2024: . . . . 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 "
              "23 24 25 26 27 28 29");
    Refuses("99");
    Refuses("9999");
    user.Presses(Key::Left);         // in this box the keys are its own
    user.Types(IDC_YearBox, "202");  // on the way to 2028, which has the day again
    EXPECT_EQ(user.Sees(IDC_DateLabel), "Sunday, February 28, 202");
    user.Types(IDC_YearBox, "2028");
    EXPECT_EQ(user.Sees(IDC_DateLabel), "Tuesday, February 29, 2028");
    user.Types(IDC_YearBox, "101");
    user.Presses(Key::Enter);
  });
  form.ShowModal();
  EXPECT_EQ(form.Picked, Date(101, 2, 28));
}

TEST_F(DatePickFormTest, MarksTodayAndLeadsToIt) {
  const CalendarDate today = Today();
  DatePickForm form(Date(9998, 12, 31));
  user.UsesForm(IDD_DatePickForm, [&] {
    user.Presses(Key::Right);
    EXPECT_EQ(user.Sees(IDC_DateLabel), "Thursday, December 31, 9998");
    user.Clicks(IDC_TodayButton);
    EXPECT_NE(Seen().find(" (" + std::to_string(unsigned{today.day()}) + ")*"), std::string::npos);
    user.Clicks(IDC_PreviousButton);
    EXPECT_EQ(Seen().find('('), std::string::npos);
    user.Clicks(IDC_TodayButton);
    user.Clicks(IDC_OKButton);
  });
  form.ShowModal();
  EXPECT_EQ(form.Picked, today);
}

}  // namespace
