// The ids that several rooms share: of controls, menu entries and icons, one list for code and templates. Those that
// only one room needs stand in its *_ids.h. A control's id is IDC_ and its name; forms share the ids of controls of the
// same name.
#pragma once

// The dialog manager sends Enter and Esc to these two.
#define IDC_OKButton 1
#define IDC_CancelButton 2

// Icons
#define IDI_Program 100
#define IDI_Document 101

// The input box
#define IDD_InputBox 190
#define IDC_PromptLabel 1390
#define IDC_AnswerBox 1391

// Controls and menu entries
#define IDC_PersonCombo 1000
#define IDC_CatList 1004
#define IDC_OpenButton 1021
#define IDC_PersonLabel 1040
#define IDC_OpenItem 1201
#define IDC_ExitItem 1203
#define IDC_AboutItem 1242
#define IDC_FindItem 1626
#define IDC_FindNextItem 1627
#define IDC_FindPreviousItem 1628
#define IDC_NameLabel 1300
#define IDC_NameBox 1301
#define IDC_BrowseButton 1302
#define IDC_FieldNameCombo 1409
#define IDC_PreviousButton 1454
#define IDC_NextButton 1455
