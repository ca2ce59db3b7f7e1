// The recent files as entries of the File menu.
#pragma once

#include <string>
#include <vector>

// The names of the list of recent files, the latest first, without the places that a settings file left empty.
std::vector<std::string> RecentNames();

// What entry `number` (1 to 10) says for a file: "&1 C:\...\Home.FIL", folders left out of the middle of a long name.
std::string RecentEntry(int number, const std::string& name);
