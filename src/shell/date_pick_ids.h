// The ids of DatePickForm's controls, beside those that it shares with other forms in resource.h.
#pragma once

#define IDC_MonthCombo 1450
#define IDC_YearBox 1451
#define IDC_TodayButton 1452
#define IDC_DateLabel 1453
#define IDC_DayButton 1460  // the sheet's upper left corner, + 41 its lower right one
