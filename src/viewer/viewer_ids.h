// The ids of the report viewer's dialog templates, controls and menu entries, beside those that it shares with the main
// program's forms in resource.h.
#pragma once

#define IDD_ViewerForm 130
#define IDD_PreviewForm 131

// ViewerForm
#define IDC_ReportSurface 1600
#define IDC_PrintButton 1601
#define IDC_PreviewButton 1602
#define IDC_FindLabel 1603
#define IDC_FindBox 1604
#define IDC_FindNextButton 1605
#define IDC_FindPreviousButton 1606
#define IDC_HitLabel 1607
#define IDC_FileLabel 1608
#define IDC_LinesLabel 1609
#define IDC_ZoomLabel 1610
#define IDC_ReloadItem 1620
#define IDC_SaveTextItem 1621
#define IDC_PreviewItem 1622
#define IDC_PrintItem 1623
#define IDC_CopyItem 1624
#define IDC_SelectAllItem 1625
#define IDC_ZoomInItem 1629
#define IDC_ZoomOutItem 1630
#define IDC_ZoomNormalItem 1631
#define IDC_ContentsItem 1632

// PreviewForm
#define IDC_PreviewSurface 1640
#define IDC_PageLabel 1641
#define IDC_PageBoxLabel 1642
#define IDC_PageBox 1643
#define IDC_PaperZoomLabel 1644
#define IDC_PaperZoomCombo 1645
