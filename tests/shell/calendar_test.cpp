// The calendar and its month's sheet: moving about by days and months, the ends, and what the dialog makes of keys.
#include "shell/calendar.h"

#include "platform/program.h"
#include "resource.h"
#include "shell/date_pick_form.h"
#include "shell/date_pick_ids.h"
#include "support/fresh_test.h"

namespace {

CalendarDate Date(int year, unsigned month, unsigned day) {
  return {std::chrono::year{year}, std::chrono::month{month}, std::chrono::day{day}};
}

TEST(CalendarTest, MovesByDaysAndMonths) {
  EXPECT_EQ(PlusDays(Date(2023, 12, 31), 1), Date(2024, 1, 1));
  EXPECT_EQ(PlusDays(Date(2024, 3, 1), -1), Date(2024, 2, 29));
  EXPECT_EQ(PlusDays(Date(1900, 2, 28), 1), Date(1900, 3, 1));    // no leap year
  EXPECT_EQ(PlusDays(Date(1582, 10, 4), 7), Date(1582, 10, 11));  // no days are left out
  EXPECT_EQ(PlusMonths(Date(2024, 1, 31), 1), Date(2024, 2, 29));
  EXPECT_EQ(PlusMonths(Date(2023, 12, 15), 1), Date(2024, 1, 15));
  EXPECT_EQ(PlusMonths(Date(2024, 1, 15), -1), Date(2023, 12, 15));
  EXPECT_EQ(InMonth(Date(2024, 2, 29), 2023, 2), Date(2023, 2, 28));
  EXPECT_EQ(FirstOfMonth(Date(2024, 2, 10)), Date(2024, 2, 1));
  EXPECT_EQ(LastOfMonth(Date(2024, 2, 10)), Date(2024, 2, 29));
}

TEST(CalendarTest, EndsAtTheYears100And9998) {
  EXPECT_EQ(PlusDays(Date(100, 1, 3), -7), Date(100, 1, 1));
  EXPECT_EQ(PlusMonths(Date(100, 1, 3), -1), Date(100, 1, 1));
  EXPECT_EQ(PlusDays(Date(9998, 12, 30), 7), Date(9998, 12, 31));
  EXPECT_EQ(PlusMonths(Date(9998, 12, 30), 1), Date(9998, 12, 31));
  EXPECT_EQ(WithinCalendar(Date(9999, 1, 1)), Date(9998, 12, 31));
  EXPECT_EQ(YearOf("100"), 100);
  EXPECT_EQ(YearOf(" 9998 "), 9998);
  for (const char* text : {"", "99", "9999", "2026x", "x", "20 26", "-200", "99999999999"}) {
    EXPECT_EQ(YearOf(text), std::nullopt) << text;
  }
}

TEST(CalendarTest, KnowsTheWeekday) {
  EXPECT_EQ(FirstColumn(Date(2026, 8, 5)), 6);  // August 1, 2026 is a Saturday
  EXPECT_EQ(FirstColumn(Date(2026, 2, 5)), 0);  // a Sunday
  EXPECT_EQ(FirstColumn(Date(1600, 1, 1)), 6);
}

class DatePickFormTest : public FreshTest {
 protected:
  // Opens the dialog at a date, lets the person act, and tells what was picked: "2026-8-5", or "" for nothing.
  std::string Use(CalendarDate date, std::function<void()> acts) {
    DatePickForm form(date);
    user.UsesForm(IDD_DatePickForm, std::move(acts));
    form.ShowModal();
    if (!form.Picked) return "";
    return std::to_string(static_cast<int>(form.Picked->year())) + "-" +
           std::to_string(static_cast<unsigned>(form.Picked->month())) + "-" +
           std::to_string(static_cast<unsigned>(form.Picked->day()));
  }

  std::string Shown() { return user.Sees(IDC_DateLabel); }

  // The days of the sheet in their places: "." for a place without one.
  std::string Sheet() {
    std::string text;
    for (int cell = 0; cell < kSheetDays; ++cell) {
      text += (user.SeesVisible(IDC_DayButton + cell) ? user.Sees(IDC_DayButton + cell) : ".") + " ";
    }
    return text;
  }
};

TEST_F(DatePickFormTest, ShowsAMonthsSheet) {
  const std::string picked = Use(Date(2015, 2, 14), [this] {
    EXPECT_EQ(user.SeesSelected(IDC_MonthCombo), "February");
    EXPECT_EQ(user.Sees(IDC_YearBox), "2015");
    EXPECT_EQ(Shown(), "Saturday, February 14, 2015");
    EXPECT_TRUE(user.SeesFocusOn(IDC_DayButton + 13));
    EXPECT_EQ(Sheet(),
              "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28 "
              ". . . . . . . . . . . . . . ");
    user.Picks(IDC_MonthCombo, "August");
    EXPECT_EQ(Shown(), "Friday, August 14, 2015");
    EXPECT_EQ(Sheet(),
              ". . . . . . 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28 29 30 31 "
              ". . . . . ");
    user.Clicks(IDC_DayButton + 6 + 30);
    EXPECT_EQ(Shown(), "Monday, August 31, 2015");
    user.Picks(IDC_MonthCombo, "September");
    EXPECT_EQ(Shown(), "Wednesday, September 30, 2015");
    user.Clicks(IDC_PreviousButton);
    user.Clicks(IDC_PreviousButton);
    user.Clicks(IDC_NextButton);
    EXPECT_EQ(Shown(), "Sunday, August 30, 2015");
    user.Clicks(IDC_OKButton);
  });
  EXPECT_EQ(picked, "2015-8-30");
}

TEST_F(DatePickFormTest, IsWalkedByKeys) {
  const std::string picked = Use(Date(2023, 12, 28), [this] {
    const std::pair<Key, const char*> walk[] = {
        {Key::Right, "Friday, December 29, 2023"},      {Key::Down, "Friday, January 5, 2024"},
        {Key::Left, "Thursday, January 4, 2024"},       {Key::Up, "Thursday, December 28, 2023"},
        {Key::End, "Sunday, December 31, 2023"},        {Key::PageDown, "Wednesday, January 31, 2024"},
        {Key::PageDown, "Thursday, February 29, 2024"}, {Key::PageUp, "Monday, January 29, 2024"},
        {Key::Home, "Monday, January 1, 2024"}};
    for (const auto& [key, date] : walk) {
      user.Presses(key);
      EXPECT_EQ(Shown(), date);
    }
    EXPECT_EQ(user.SeesSelected(IDC_MonthCombo), "January");
    EXPECT_EQ(user.Sees(IDC_YearBox), "2024");
    EXPECT_TRUE(user.SeesFocusOn(IDC_DayButton + 1));
    user.MovesTo(IDC_YearBox);  // here the keys are the box's own
    user.Presses(Key::Left);
    EXPECT_EQ(Shown(), "Monday, January 1, 2024");
    user.Types(IDC_YearBox, "2025");  // of the day that the sheet was moved to
    user.Presses(Key::Enter);
  });
  EXPECT_EQ(picked, "2025-1-1");
}

TEST_F(DatePickFormTest, TakesYearsFrom100To9998) {
  const std::string picked = Use(Date(2024, 2, 29), [this] {
    user.Types(IDC_YearBox, "99");
    EXPECT_EQ(Shown(), "Thursday, February 29, 2024");
    user.Reads("Please type a year from 100 to 9998.", Icon::Exclamation);
    user.Clicks(IDC_OKButton);
    EXPECT_TRUE(user.SeesFocusOn(IDC_YearBox));
    user.Types(IDC_YearBox, "9999");
    user.Reads("Please type a year from 100 to 9998.", Icon::Exclamation);
    user.Clicks(IDC_OKButton);
    user.Types(IDC_YearBox, "202");  // on the way to 2028, which has the day again
    EXPECT_EQ(Shown(), "Sunday, February 28, 202");
    user.Types(IDC_YearBox, "2028");
    EXPECT_EQ(Shown(), "Tuesday, February 29, 2028");
    user.Types(IDC_YearBox, "101");
    EXPECT_EQ(Shown(), "Monday, February 28, 101");
    user.Clicks(IDC_OKButton);
  });
  EXPECT_EQ(picked, "101-2-28");
  EXPECT_EQ(Use(Date(9998, 12, 31),
                [this] {
                  user.Presses(Key::Right);
                  EXPECT_EQ(Shown(), "Thursday, December 31, 9998");
                  user.Presses(Key::Escape);
                }),
            "");
}

TEST_F(DatePickFormTest, MarksTodayAndLeadsToIt) {
  const CalendarDate today = Today();
  DatePickForm form(Date(1815, 6, 18));
  user.UsesForm(IDD_DatePickForm, [&] {
    EXPECT_EQ(Shown(), "Sunday, June 18, 1815");
    user.Clicks(IDC_TodayButton);
    const int cell = FirstColumn(today) + static_cast<int>(static_cast<unsigned>(today.day())) - 1;
    EXPECT_TRUE(user.SeesFocusOn(IDC_DayButton + cell));
    EXPECT_EQ(user.Sees(IDC_DayButton + cell), "(" + std::to_string(static_cast<unsigned>(today.day())) + ")");
    user.Clicks(IDC_PreviousButton);
    EXPECT_EQ(Sheet().find('('), std::string::npos);
    user.Clicks(IDC_TodayButton);
    user.Clicks(IDC_OKButton);
  });
  form.ShowModal();
  EXPECT_EQ(form.Picked, today);
}

}  // namespace
