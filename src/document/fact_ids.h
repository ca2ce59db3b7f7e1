// The ids of FactForm and PickListForm, beside those that they share with other forms in resource.h.
#pragma once

// FactForm
#define IDD_FactForm 114
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

// PickListForm
#define IDD_PickListForm 115
#define IDC_PickList 1440
