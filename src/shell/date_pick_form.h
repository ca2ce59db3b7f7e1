// DatePickForm: the choice of a date on a month's sheet.
#pragma once

#include <array>
#include <memory>
#include <optional>

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/lists.h"
#include "shell/calendar.h"

inline constexpr int kSheetDays = 42;  // six weeks

class DatePickForm : public Form {
 public:
  // The date that is offered.
  explicit DatePickForm(CalendarDate date);
  std::optional<CalendarDate> Picked;  // after O.K.

 private:
  DropDownList MonthCombo;
  TextBox YearBox;
  Button PreviousButton, NextButton;
  std::array<std::unique_ptr<OptionButton>, kSheetDays> DayButton;
  Label DateLabel;
  Button TodayButton;
  Button OKButton;
  Button CancelButton;

  void Form_Load() override;
  void MonthCombo_Click();
  void YearBox_Change();
  void DayButton_Click(int cell);
  void TodayButton_Click();
  void OKButton_Click();
  bool Key_Press(Key key);

  OptionButton& Cell(int cell) { return *DayButton[static_cast<std::size_t>(cell)]; }
  int CellOf(CalendarDate date) const;
  bool SheetHasFocus() const;
  void GoTo(CalendarDate date);
  void ShowMonth();
  void ShowSheet();

  CalendarDate date_;
  CalendarDate before_typing_;  // a year
};
