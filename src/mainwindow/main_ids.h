// The ids of the main window's dialog templates, controls and menu entries, and of the dialogs that only it opens.
#pragma once

// MainForm
#define IDD_MainForm 110
#define IDC_NoteBox 1001
#define IDC_FatherCombo 1002
#define IDC_MotherCombo 1003
#define IDC_PhotoPic 1005
#define IDC_CategoryFilterLabel 1006
#define IDC_AllLabel 1007
#define IDC_HintLabel 1008
#define IDC_HiddenPic 1009
#define IDC_NewButton 1020
#define IDC_SaveButton 1022
#define IDC_AddPersonButton 1023
#define IDC_DeleteButton 1024
#define IDC_PhotoButton 1025
#define IDC_DataButton 1026
#define IDC_DefCatButton 1027
#define IDC_ExitButton 1028
#define IDC_HelpButton 1029
#define IDC_NoteLabel 1041
#define IDC_FatherLabel 1042
#define IDC_MotherLabel 1043
#define IDC_CatLabel 1044
#define IDC_PhotoLabel 1045

// The letter tabs: IDC_LetterLabel is A, + 25 is Z.
#define IDC_LetterLabel 1100

// The menu
#define IDC_NewItem 1200
#define IDC_SaveItem 1202
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
#define IDC_UndoItem 1260
#define IDC_RedoItem 1261
#define IDC_TickAllItem 1262
#define IDC_StatusLabel 1046
#define IDC_ModifiedLabel 1047
#define IDC_GoXRef1Item 1263
#define IDC_GoXRef2Item 1264
#define IDC_LinksHereItem 1265
#define IDC_BackItem 1266
#define IDC_ForwardItem 1267

// The recent files: IDC_RecentItem is the latest, + 9 the tenth.
#define IDC_RecentItem 1290

// CatPickForm
#define IDD_CatPickForm 112
#define IDC_CategoryList 1310

// CatDefForm: IDC_CategoryNameBox is category 1, + 31 is 32.
#define IDD_CatDefForm 113
#define IDC_CategoryNameBox 1320

// TickAllForm
#define IDD_TickAllForm 140
#define IDC_CategoryCombo 1270
#define IDC_TickOption 1271
#define IDC_UntickOption 1272
