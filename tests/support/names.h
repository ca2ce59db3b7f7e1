// The names of forms, controls and menu entries, and what their templates say: read out of the program's id headers
// and .rc files when a test runs, so that stories speak of controls by the names that the code uses.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

namespace Names {

struct Template {
  std::string Name;  // "MainForm" for IDD_MainForm
  std::string Caption;
  std::map<int, std::string> Controls;  // and menu entries: "PersonCombo"; "LetterLabel[S]" for one of a row
  std::map<int, std::string> Texts;     // of controls
  std::set<int> Lines;                  // text boxes of several lines
  std::vector<int> MenuItems;           // in the order of the menu
};
const Template& Of(int form);

int ControlOf(const std::string& name);  // 0 when there is none

}  // namespace Names
