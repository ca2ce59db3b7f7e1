// The ids of dialog templates, controls, menu entries and icons: one list for code and templates. Those that only one
// form needs may stand beside it, in a *_ids.h.
// A control's id is IDC_ and its name; forms share the ids of controls of the same name.
#pragma once

// The dialog manager sends Enter and Esc to these two.
#define IDC_OKButton 1
#define IDC_CancelButton 2

#define IDI_Program 100
#define IDI_Document 101

#define IDD_MainForm 110
#define IDD_FileForm 111
#define IDD_CatPickForm 112
#define IDD_CatDefForm 113
#define IDD_FactForm 114
#define IDD_PickListForm 115
#define IDD_FieldDefForm 116
#define IDD_FormulaDefForm 117
#define IDD_DatePickForm 118
#define IDD_ReportForm 119
#define IDD_AboutForm 120
#define IDD_InputBox 190

// MainForm
#define IDC_PersonCombo 1000
#define IDC_NoteBox 1001
#define IDC_FatherCombo 1002
#define IDC_MotherCombo 1003
#define IDC_CatList 1004
#define IDC_PhotoPic 1005
#define IDC_CategoryFilterLabel 1006
#define IDC_AllLabel 1007
#define IDC_HintLabel 1008
#define IDC_HiddenPic 1009

#define IDC_NewButton 1020
#define IDC_OpenButton 1021
#define IDC_SaveButton 1022
#define IDC_AddPersonButton 1023
#define IDC_DeleteButton 1024
#define IDC_PhotoButton 1025
#define IDC_DataButton 1026
#define IDC_DefCatButton 1027
#define IDC_ExitButton 1028
#define IDC_HelpButton 1029

// Labels before the controls
#define IDC_PersonLabel 1040
#define IDC_NoteLabel 1041
#define IDC_FatherLabel 1042
#define IDC_MotherLabel 1043
#define IDC_CatLabel 1044
#define IDC_PhotoLabel 1045

// The letter tabs: IDC_LetterLabel is A, + 25 is Z.
#define IDC_LetterLabel 1100

// MainForm's menu; finding is ViewerForm's, too
#define IDC_NewItem 1200
#define IDC_OpenItem 1201
#define IDC_SaveItem 1202
#define IDC_ExitItem 1203
#define IDC_AddPersonItem 1210
#define IDC_DeletePersonItem 1211
#define IDC_RenameItem 1212
#define IDC_PhotoItem 1213
#define IDC_DataItem 1214
#define IDC_DefCatItem 1215
#define IDC_RemovePhotoItem 1216
#define IDC_AllNamesItem 1220
#define IDC_StartingLetterItem 1221
#define IDC_AllCategoryItem 1222
#define IDC_SelCategoryItem 1223
#define IDC_GivenNameItem 1224
#define IDC_SurnameOrderItem 1225
#define IDC_AddressRepItem 1230
#define IDC_ItemValuesItem 1231
#define IDC_DescendantItem 1232
#define IDC_ManualItem 1240
#define IDC_FilerHelpItem 1241
#define IDC_AboutItem 1242
#define IDC_FindItem 1626
#define IDC_FindNextItem 1627
#define IDC_FindPreviousItem 1628

// FileForm
#define IDC_NameLabel 1300
#define IDC_NameBox 1301
#define IDC_BrowseButton 1302

// CatPickForm
#define IDC_CategoryList 1310

// CatDefForm: IDC_CategoryNameBox is category 1, + 31 is 32.
#define IDC_CategoryNameBox 1320

// FieldDefForm and FormulaDefForm
#define IDC_DescriptionBox 1400
#define IDC_TextOption 1401
#define IDC_NumberOption 1402
#define IDC_ChoiceCombo 1403
#define IDC_FieldTypeCombo 1404
#define IDC_AutoOption 1405
#define IDC_FixedOption 1406
#define IDC_TemplateBox 1407
#define IDC_FormulaBox 1408
#define IDC_FieldNameCombo 1409
#define IDC_InsertButton 1410

// FactForm
#define IDC_CaptionLabel 1420
#define IDC_DataLabel 1421
#define IDC_DataBox 1422
#define IDC_AddFieldButton 1423
#define IDC_FormulaList 1424
#define IDC_AddFieldItem 1430
#define IDC_AddFormulaItem 1431
#define IDC_ChangeFieldItem 1432
#define IDC_ChangeFormulaItem 1433
#define IDC_DeleteFieldItem 1434
#define IDC_DeleteFormulaItem 1435
#define IDC_InsertDateItem 1436
#define IDC_HelpItem 1437

#define IDC_PickList 1440  // PickListForm

// DatePickForm and PreviewForm
#define IDC_PreviousButton 1454
#define IDC_NextButton 1455

// AboutForm
#define IDC_ProgramTitleLabel 1550
#define IDC_VersionLabel 1551
#define IDC_DescriptionLabel 1552

// ReportForm
#define IDC_CatFrame 1500
#define IDC_AllCatOption 1501
#define IDC_SelCatOption 1502
#define IDC_FieldFrame 1503
#define IDC_FieldList 1504
#define IDC_Label3 1505
#define IDC_PrintFileBox 1506

// The input box
#define IDC_PromptLabel 1390
#define IDC_AnswerBox 1391
