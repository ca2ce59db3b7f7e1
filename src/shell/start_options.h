// What the program was started with: the window fills it in, whoever makes names out of folders reads it.
#pragma once

#include <string>

struct StartOptions {
  std::string StartFile;       // the data file to open, as written
  std::string StartThing;      // PERSON: the thing to show at once
  std::string WorkingFolder;   // DIR: where file names without a folder belong
  std::string SettingsFolder;  // INIDIR: where the settings file is kept
};

// The options of this run, empty until MainForm has read the command line.
inline StartOptions TheStart;
