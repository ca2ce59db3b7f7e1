// The ids of FileForm, AboutForm and DatePickForm, beside those that they share with other forms in resource.h.
#pragma once

// FileForm
#define IDD_FileForm 111

// AboutForm
#define IDD_AboutForm 120
#define IDC_ProgramTitleLabel 1550
#define IDC_VersionLabel 1551
#define IDC_DescriptionLabel 1552
#define IDC_CopyrightLabel 1553

// DatePickForm
#define IDD_DatePickForm 118
#define IDC_MonthCombo 1450
#define IDC_YearBox 1451
#define IDC_TodayButton 1452
#define IDC_DateLabel 1453
#define IDC_WeekdayLabel 1560  // above the sheet, + 6 the last one
#define IDC_DayButton 1460     // the sheet's upper left corner, + 41 its lower right one
