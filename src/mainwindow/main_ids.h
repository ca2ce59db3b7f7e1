// The ids of the main window's commands that have no other place, and of TickAllForm.
#pragma once

#define IDC_UndoItem 1260
#define IDC_RedoItem 1261
#define IDC_TickAllItem 1262
#define IDC_StatusLabel 1046
#define IDC_ModifiedLabel 1047

#define IDD_TickAllForm 140
#define IDC_CategoryCombo 1270
#define IDC_TickOption 1271
#define IDC_UntickOption 1272
