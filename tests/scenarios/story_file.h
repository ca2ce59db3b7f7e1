// The files that hold stories: read, made test cases of, compared with what a run saw, and written anew.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

// A line that a person wrote - a title, an act, a remark - and what is indented below it.
struct StoryLine {
  int Number = 0;  // in the file, from 1
  std::string Text;
  std::vector<std::string> Seen = {}, Now = {};  // as the file has it; as this run saw it
};

struct StoryFile {
  std::string Path;
  std::vector<StoryLine> Lines;
};

// One story: the lines from its title up to the next one; or what stands above all titles.
struct Tale {
  std::shared_ptr<StoryFile> File;
  std::size_t From, To;

  std::vector<StoryLine*> Acts() const;
  bool Says(const std::string& line) const;
  // Fails the test, with the lines that differ, unless what was seen is as the file has it; or makes it so.
  void Compare() const;
};

// Makes each story in the files of tests/`folder` a test case "suite/file.title", which `make` makes of the story and
// of what stands above the titles.
using MakeStory = std::function<testing::Test*(const Tale& above, const Tale& tale)>;
bool RegisterStories(const std::string& suite, const std::string& folder, const MakeStory& make);
