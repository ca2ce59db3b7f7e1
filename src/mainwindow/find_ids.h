// The ids of FindForm.
#pragma once

#define IDD_FindForm 141
#define IDC_WordsBox 1280
#define IDC_PlaceCombo 1281
#define IDC_ValueCombo 1282
#define IDC_ComparisonCombo 1283
#define IDC_ValueBox 1284
#define IDC_ValueLabel 1285
#define IDC_HitList 1286
#define IDC_CountLabel 1287
