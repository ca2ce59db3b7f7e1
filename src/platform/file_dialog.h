// The system's own dialog for choosing a file. It never moves the process's current folder.
#pragma once

#include <string>

struct FileChoice {
  bool ForWriting = false;   // choose a name to write; otherwise an existing file
  std::string Caption;       // the dialog's title
  std::string Folder;        // where to start; empty = current folder
  std::string Pattern;       // what is listed: "*.FIL"
  std::string PatternTitle;  // how the pattern is named: "Filer data files"
  std::string Name;          // the name offered
};

// Shows the dialog; returns the full name chosen, empty when cancelled. With ForWriting it asks
// nothing about existing files: that question belongs to the caller.
std::string ChooseFile(const FileChoice& choice);
