// DatePickForm: see date_pick_form.h.
#include "shell/date_pick_form.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "platform/program.h"
#include "shell/help.h"
#include "shell/messages.h"

namespace {

constexpr std::array<std::string_view, 12> kMonths = {"January",   "February", "March",    "April",
                                                      "May",       "June",     "July",     "August",
                                                      "September", "October",  "November", "December"};
constexpr std::array<std::string_view, 7> kWeekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                       "Thursday", "Friday", "Saturday"};

int YearNumber(CalendarDate date) { return static_cast<int>(date.year()); }
unsigned MonthNumber(CalendarDate date) { return static_cast<unsigned>(date.month()); }
unsigned DayNumber(CalendarDate date) { return static_cast<unsigned>(date.day()); }

// "Wednesday, August 5, 2026"
std::string InWords(CalendarDate date) {
  const std::chrono::weekday weekday{std::chrono::sys_days{date}};
  return std::string(kWeekdays[weekday.c_encoding()]) + ", " + std::string(kMonths[MonthNumber(date) - 1]) + " " +
         std::to_string(DayNumber(date)) + ", " + std::to_string(YearNumber(date));
}

}  // namespace

DatePickForm::DatePickForm(CalendarDate date)
    : Form(IDD_DatePickForm), date_(WithinCalendar(date)), before_typing_(date_) {
  for (int cell = 0; cell < kSheetDays; ++cell) {
    DayButton[cell].Click = [this, cell] { DayButton_Click(cell); };
  }
  MonthCombo.Click = [this] { MonthCombo_Click(); };
  YearBox.GotFocus = [this] { before_typing_ = date_; };
  YearBox.Change = [this] { YearBox_Change(); };
  PreviousButton.Click = [this] { GoTo(PlusMonths(date_, -1)); };
  NextButton.Click = [this] { GoTo(PlusMonths(date_, 1)); };
  TodayButton.Click = [this] { TodayButton_Click(); };
  OKButton.Click = [this] { OKButton_Click(); };
  CancelButton.Click = [this] { Close(); };
  HelpKey = Global::HelpOn(HelpPages::kDatePickForm);
  KeyDown = [this](Key key) { return Key_Press(key); };
}

void DatePickForm::Form_Load() {
  std::vector<ListEntry> months;
  months.reserve(std::size(kMonths));
  for (const std::string_view month : kMonths) months.push_back({std::string(month), 0});
  MonthCombo.Fill(months);
  for (int column = 0; column < 7; ++column) {
    WeekdayLabel[column].SetText(kWeekdays[static_cast<std::size_t>(first_weekday_ + column) % 7].substr(0, 2));
  }
  YearBox.SetTextLimit(4);
  ShowMonth();
  DayButton[CellOf(date_)].SetFocus();
}

int DatePickForm::CellOf(CalendarDate date) const {
  return FirstColumn(date, first_weekday_) + static_cast<int>(DayNumber(date)) - 1;
}

bool DatePickForm::SheetHasFocus() const {
  return std::any_of(DayButton.begin(), DayButton.end(), [](const OptionButton& each) { return each.HasFocus(); });
}

void DatePickForm::GoTo(CalendarDate date) {
  if (date == date_) return;
  date_ = date;
  ShowMonth();
}

// The controls tell of being filled, too: they lead to the date that is shown already.
void DatePickForm::ShowMonth() {
  MonthCombo.Select(static_cast<int>(MonthNumber(date_)) - 1);
  if (YearOf(YearBox.Text()) != YearNumber(date_)) YearBox.SetText(std::to_string(YearNumber(date_)));
  DateLabel.SetText(InWords(date_));
  ShowSheet();
}

// The chosen day gets the mark and the focus before the cells around the month go, so that no hidden one has them.
void DatePickForm::ShowSheet() {
  const CalendarDate first = FirstOfMonth(date_);
  const int first_cell = CellOf(first);
  const int last_cell = CellOf(LastOfMonth(date_));
  const int today_cell = FirstOfMonth(Today()) == first ? CellOf(Today()) : -1;
  const bool had_focus = SheetHasFocus();
  for (int cell = first_cell; cell <= last_cell; ++cell) {
    const std::string number = std::to_string(cell - first_cell + 1);
    DayButton[cell].SetText(cell == today_cell ? "(" + number + ")" : number);
    DayButton[cell].SetBold(cell == today_cell);
    DayButton[cell].SetVisible(true);
  }
  DayButton[CellOf(date_)].SetChecked(true);
  if (had_focus) DayButton[CellOf(date_)].SetFocus();
  for (int cell = 0; cell < kSheetDays; ++cell) {
    if (cell < first_cell || cell > last_cell) DayButton[cell].SetVisible(false);
  }
}

void DatePickForm::MonthCombo_Click() {
  if (MonthCombo.Selected() < 0) return;
  GoTo(InMonth(date_, YearNumber(date_), static_cast<unsigned>(MonthCombo.Selected() + 1)));
}

// A year that is not typed to its end yet leaves the sheet where it is. On the way to the end it may be one without
// the day, a leap day: that of the date before the typing counts.
void DatePickForm::YearBox_Change() {
  if (!YearBox.HasFocus()) return;
  if (const std::optional<int> year = YearOf(YearBox.Text())) {
    GoTo(InMonth(before_typing_, *year, MonthNumber(before_typing_)));
  }
}

void DatePickForm::DayButton_Click(int cell) {
  GoTo(PlusDays(FirstOfMonth(date_), cell - FirstColumn(date_, first_weekday_)));
}

void DatePickForm::TodayButton_Click() {
  GoTo(WithinCalendar(Today()));
  DayButton[CellOf(date_)].SetFocus();
}

bool DatePickForm::Key_Press(Key key) {
  if (!SheetHasFocus()) return false;
  switch (key) {
    case Key::Left:
      GoTo(PlusDays(date_, -1));
      return true;
    case Key::Right:
      GoTo(PlusDays(date_, 1));
      return true;
    case Key::Up:
      GoTo(PlusDays(date_, -7));
      return true;
    case Key::Down:
      GoTo(PlusDays(date_, 7));
      return true;
    case Key::PageUp:
      GoTo(PlusMonths(date_, -1));
      return true;
    case Key::PageDown:
      GoTo(PlusMonths(date_, 1));
      return true;
    case Key::Home:
      GoTo(FirstOfMonth(date_));
      return true;
    case Key::End:
      GoTo(LastOfMonth(date_));
      return true;
    default:
      return false;
  }
}

void DatePickForm::OKButton_Click() {
  if (!YearOf(YearBox.Text())) {
    Global::Say("Please type a year from 100 to 9998.", Icon::Exclamation);
    YearBox.SetFocus();
    YearBox.SelectAll();
    return;
  }
  Picked = date_;
  Close();
}
