// The help pages: their names, and showing one in the user's web browser. They lie in the program's folder.
#pragma once

#include <string>

#include "platform/control.h"

namespace HelpPages {

inline constexpr const char* kManual = "";  // Larkspur_Manual.htm
inline constexpr const char* kFiler = "Larkspur_Filer.htm";
inline constexpr const char* kCatDefForm = "Larkspur_People_CatDefForm.htm";
inline constexpr const char* kCatPickForm = "Larkspur_CatPickForm.htm";
inline constexpr const char* kDatePickForm = "Larkspur_DatePickForm.htm";
inline constexpr const char* kFactForm = "Larkspur_FactForm.htm";
inline constexpr const char* kFieldDefForm = "Larkspur_FieldDefForm.htm";
inline constexpr const char* kFileForm = "Larkspur_FileForm.htm";
inline constexpr const char* kFindForm = "Larkspur_FindForm.htm";
inline constexpr const char* kFormulaDefForm = "Larkspur_FormulaDefForm.htm";
inline constexpr const char* kPickListForm = "Larkspur_PickListForm.htm";
inline constexpr const char* kReportForm = "Larkspur_ReportForm.htm";
inline constexpr const char* kViewer = "Larkspur_Viewer.htm";

}  // namespace HelpPages

namespace Global {

// Shows a page in the browser that is registered for ".HTM"; the empty page is the manual. Without one, asks
// whether the user wants to look for a browser, and remembers nothing of the answer.
void ShowHelpPage(const std::string& page);

// An event's handler that does so.
Event HelpOn(const char* page);

}  // namespace Global
