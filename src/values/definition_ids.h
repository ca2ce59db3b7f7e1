// The ids of FieldDefForm and FormulaDefForm, beside those that they share with other forms in resource.h.
#pragma once

// FieldDefForm and FormulaDefForm
#define IDD_FieldDefForm 116
#define IDD_FormulaDefForm 117
#define IDC_DescriptionBox 1400
#define IDC_TextOption 1401
#define IDC_NumberOption 1402
#define IDC_ChoiceCombo 1403
#define IDC_FieldTypeCombo 1404
#define IDC_AutoOption 1405
#define IDC_FixedOption 1406
#define IDC_TemplateBox 1407
#define IDC_FormulaBox 1408
#define IDC_InsertButton 1410
