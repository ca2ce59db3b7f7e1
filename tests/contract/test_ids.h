// The ids of the contract tests' two forms, for code and templates.
#pragma once

#define IDC_OKButton 1
#define IDC_CancelButton 2

#define IDD_TestForm 5000
#define IDD_BareForm 5001

#define IDC_TitleLabel 5010
#define IDC_HintLabel 5011
#define IDC_LineBox 5012
#define IDC_LinesBox 5013
#define IDC_FirstButton 5014
#define IDC_SecondButton 5015
#define IDC_RedOption 5016
#define IDC_GreenOption 5017
#define IDC_SmallOption 5018
#define IDC_LargeOption 5019
#define IDC_NameCombo 5020
#define IDC_KindDrop 5021
#define IDC_EntryList 5022
#define IDC_TickList 5023
#define IDC_PhotoPic 5024
#define IDC_GroupFrame 5025

// The test form's menu
#define IDC_PlainItem 5040
#define IDC_TickItem 5041
#define IDC_GreyItem 5042

// The bare form, with neither OK nor Cancel
#define IDC_BareBox 5050
#define IDC_TextSurface 5051
