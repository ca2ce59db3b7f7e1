// The ids of the main window's commands that have no other place, and of TickAllForm.
#pragma once

#define IDC_UndoItem 1260
#define IDC_RedoItem 1261
#define IDC_TickAllItem 1262
#define IDC_GoXRef1Item 1263
#define IDC_GoXRef2Item 1264
#define IDC_LinksHereItem 1265
#define IDC_BackItem 1266
#define IDC_ForwardItem 1267

// The recent files: IDC_RecentItem is the latest, + 9 the tenth.
#define IDC_RecentItem 1290

#define IDD_TickAllForm 140
#define IDC_CategoryCombo 1270
#define IDC_TickOption 1271
#define IDC_UntickOption 1272
