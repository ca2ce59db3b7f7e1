// The files that hold the stories: read, compared with what a run saw, and written anew.
#pragma once

#include <memory>
#include <string>
#include <vector>

struct Act {
  std::vector<std::string> Before;  // titles, remarks and empty lines above it
  int Line = 0;                     // in the file, from 1
  std::string Text;
  std::vector<std::string> Given;  // the lines "| ..." below it
  std::vector<std::string> Seen;   // as the file has it
  std::vector<std::string> Now;    // as this run saw it
};

struct Tale {
  std::string Title;
  int Line = 0;
  bool InMemoryOnly = false;
  std::vector<Act> Acts;
};

struct StoryFile {
  std::string Path;
  std::string Name;                 // without folder and type
  std::vector<Tale> Tales{Tale()};  // the first one: what comes before each of the others
  std::vector<std::string> Tail;

  explicit StoryFile(const std::string& path);
  void Write() const;
};

// Fails the test, with the lines that differ, unless what was seen is as the file has it.
void ExpectAsWritten(const StoryFile& file, const Tale& tale);
