// The names of forms, controls and menu entries, and what their templates say: read out of the program's id headers
// and .rc files when a test runs, so that stories speak of controls by the names that the code uses.
#pragma once

#include <string>
#include <vector>

namespace Names {

// "PersonCombo" for IDC_PersonCombo on that form; "LetterLabel[S]", "CategoryNameBox[2]" for one of a row.
std::string OfControl(int form, int id);
int ControlOf(const std::string& name);  // 0 when there is none
std::string OfForm(int template_id);     // "MainForm" for IDD_MainForm
std::string Caption(int form, int id);   // the text that the template gives a control; the form's own for id 0
bool HasLines(int form, int id);         // a text box of several lines
std::vector<int> MenuItems(int form);    // in the order of the menu

}  // namespace Names
