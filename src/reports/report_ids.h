// The ids of ReportForm, beside those that it shares with other forms in resource.h.
#pragma once

// ReportForm
#define IDD_ReportForm 119
#define IDC_CatFrame 1500
#define IDC_AllCatOption 1501
#define IDC_SelCatOption 1502
#define IDC_FieldFrame 1503
#define IDC_FieldList 1504
#define IDC_Label3 1505
#define IDC_PrintFileBox 1506
