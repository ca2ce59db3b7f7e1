// The settings file Torvane.INI with the list of recently saved files.
//
//   TORVANE V5.0 INI                     versions 1 to 5
//   [TOP10FILES]                         only when the list is not empty
//   *N; NAME=full file name              for each position, in the record syntax of segments.h
#pragma once

#include <string>

#include "shell/recent_files.h"

// Where the settings file is: in the settings folder of the command line (the separator before the name
// is doubled, which the system reads as one), else in the current folder.
std::string SettingsFileName();

// Reads the settings file into the list. A missing or unreadable file leaves the list empty, silently; a
// header of another format is said. An unknown section ends the program.
void LoadSettings();

// Reads the records of "[TOP10FILES]" and returns the section head behind them, empty at the end of the
// file. The count becomes the number of the last record. Stops at a number above 10, and with a message
// at a key other than NAME.
std::string ReadRecentFilesSection();

// Writes the settings file anew; a failure is said, and list and file stay.
void SaveSettings();

// Puts a saved file at position 1 of the list, where it was already in it from there, and writes the
// settings file.
void RememberRecentFile(const std::string& file_name);
