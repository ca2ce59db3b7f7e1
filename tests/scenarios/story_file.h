// The files that hold stories: read, compared with what a run saw, and written anew.
#pragma once

#include <string>
#include <vector>

// A line that a person wrote - a title, an act, a remark - and what is indented below it.
struct StoryLine {
  int Number = 0;  // in the file, from 1
  std::string Text;
  std::vector<std::string> Seen = {}, Now = {};  // as the file has it; as this run saw it

  bool IsAct() const;
};

using Tale = std::vector<StoryLine>;  // from a title up to the next one

struct StoryFile {
  std::string Path;
  std::vector<Tale> Tales = {};  // the first one is what stands above all titles

  explicit StoryFile(const std::string& path);
  // Fails the test, with the lines that differ, unless what was seen is as the file has it; or makes it so.
  void Compare(std::size_t tale);
};
