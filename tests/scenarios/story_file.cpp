// Reading and writing story files: see story_file.h.
#include "scenarios/story_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

StoryFile::StoryFile(const std::string& path) : Path(path), Name(std::filesystem::path(path).stem().string()) {
  std::ifstream in(path);
  int number = 0;
  for (std::string line; std::getline(in, line);) {
    ++number;
    std::vector<Act>& acts = Tales.back().Acts;
    if (line.starts_with("== ")) {
      Tales.push_back({line.substr(3), number, Tales[0].InMemoryOnly, {}});
      Tail.push_back(line);
    } else if (line == "only in memory") {
      Tales.back().InMemoryOnly = true;
      Tail.push_back(line);
    } else if (line.empty() || line.starts_with('#')) {
      Tail.push_back(line);
    } else if (line.starts_with("|") && !acts.empty()) {
      acts.back().Given.push_back(line.substr(std::min<std::size_t>(2, line.size())));
    } else if (line.starts_with("    ") && !acts.empty()) {
      acts.back().Seen.push_back(line.substr(4));
    } else {
      acts.push_back({std::move(Tail), number, line, {}, {}, {}});
      Tail.clear();
    }
  }
}

void StoryFile::Write() const {
  std::ofstream out(Path, std::ios::binary);
  for (const Tale& tale : Tales) {
    for (const Act& act : tale.Acts) {
      for (const std::string& line : act.Before) out << line << "\n";
      out << act.Text << "\n";
      for (const std::string& line : act.Given) out << "| " << line << "\n";
      for (const std::string& line : act.Seen) out << "    " << line << "\n";
    }
  }
  for (const std::string& line : Tail) out << line << "\n";
}

void ExpectAsWritten(const StoryFile& file, const Tale& tale) {
  for (const Act& act : tale.Acts) {
    if (act.Seen == act.Now) continue;
    std::string text = act.Text;
    for (const std::string& line : act.Seen) {
      const bool still = std::find(act.Now.begin(), act.Now.end(), line) != act.Now.end();
      text += (still ? "\n      " : "\n    - ") + line;
    }
    for (const std::string& line : act.Now) {
      const bool known = std::find(act.Seen.begin(), act.Seen.end(), line) != act.Seen.end();
      if (!known) text += "\n    + " + line;
    }
    ADD_FAILURE_AT(file.Path.c_str(), act.Line) << text;
  }
}
