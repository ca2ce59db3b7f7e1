// The command line: what the program was started with.
#pragma once

#include <string>
#include <string_view>

struct StartOptions {
  std::string StartFile;       // the data file to open, as written
  std::string StartThing;      // PERSON: the thing to show at once
  std::string WorkingFolder;   // DIR: where file names without a folder belong
  std::string SettingsFolder;  // INIDIR: where the settings file is kept
};

// The options of this run, empty until MainForm has read the command line.
extern StartOptions TheStart;

// Takes a command line apart: an optional file name, then "/KEYWORD=value" as often as wanted. A value
// ends at the next "/", even inside quotes. When a keyword is unknown or an assignment has no "=", says
// that the parameters are ignored and leaves file and thing empty; folders already read stay.
StartOptions ParseCommandLine(std::string_view text);
