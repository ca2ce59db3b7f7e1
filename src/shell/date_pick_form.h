// DatePickForm: the choice of a date on a month's sheet.
#pragma once

#include <optional>

#include "platform/control_array.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/lists.h"
#include "platform/locale.h"
#include "resource.h"
#include "shell/calendar.h"
#include "shell/shell_ids.h"

inline constexpr int kSheetDays = 42;  // six weeks

class DatePickForm : public Form {
 public:
  // The date that is offered.
  explicit DatePickForm(CalendarDate date);
  std::optional<CalendarDate> Picked;  // after O.K.

 private:
  DropDownList MonthCombo{*this, IDC_MonthCombo};
  TextBox YearBox{*this, IDC_YearBox};
  Button PreviousButton{*this, IDC_PreviousButton};
  Button NextButton{*this, IDC_NextButton};
  ControlArray<Label, 7> WeekdayLabel{*this, IDC_WeekdayLabel};
  ControlArray<OptionButton, kSheetDays> DayButton{*this, IDC_DayButton};
  Label DateLabel{*this, IDC_DateLabel};
  Button TodayButton{*this, IDC_TodayButton};
  Button OKButton{*this, IDC_OKButton};
  Button CancelButton{*this, IDC_CancelButton};

  void Form_Load() override;
  void MonthCombo_Click();
  void YearBox_Change();
  void DayButton_Click(int cell);
  void TodayButton_Click();
  void OKButton_Click();
  bool Key_Press(Key key);

  int CellOf(CalendarDate date) const;
  bool SheetHasFocus() const;
  void GoTo(CalendarDate date);
  void ShowMonth();
  void ShowSheet();

  const int first_weekday_ = FirstWeekday();
  CalendarDate date_;
  CalendarDate before_typing_;  // a year
};
