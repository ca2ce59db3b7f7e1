// The ids of the contract tests' form, for code and template.
#pragma once

#define IDC_CancelButton 2

#define IDD_TestForm 5000

#define IDC_TitleLabel 5010
#define IDC_LineBox 5011
#define IDC_LinesBox 5012
#define IDC_RedOption 5013
#define IDC_GreenOption 5014
#define IDC_FirstButton 5015
#define IDC_SmallOption 5016
#define IDC_LargeOption 5017
#define IDC_NameCombo 5018
#define IDC_KindDrop 5019
#define IDC_EntryList 5020
#define IDC_TickList 5021
#define IDC_ShownPic 5022
#define IDC_GroupFrame 5023
#define IDC_TextSurface 5024

#define IDC_PlainItem 5030
