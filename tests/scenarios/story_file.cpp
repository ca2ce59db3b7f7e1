// Reading and writing files of stories: see story_file.h.
#include "scenarios/story_file.h"

#include <gtest/gtest.h>

#include <fstream>

#include "support/update.h"

namespace {

constexpr const char *kTitle = "== ", *kIndent = "    ";

std::string Joined(const std::vector<std::string>& lines, const char* before) {
  std::string text;
  for (const std::string& line : lines) text += before + line + "\n";
  return text;
}

}  // namespace

bool StoryLine::IsAct() const { return !Text.empty() && !Text.starts_with('#') && !Text.starts_with(kTitle); }

StoryFile::StoryFile(const std::string& path) : Path(path), Tales(1) {
  std::ifstream in(path);
  int number = 0;
  for (std::string line; std::getline(in, line);) {
    ++number;
    if (line.starts_with(kTitle)) Tales.emplace_back();
    if (line.starts_with(kIndent)) {
      Tales.back().back().Seen.push_back(line.substr(4));
    } else {
      Tales.back().push_back({number, line});
    }
  }
}

void StoryFile::Compare(std::size_t tale) {
  for (StoryLine& act : Tales[tale]) {
    if (UpdatesGolden) {
      act.Seen = act.Now;
    } else {
      EXPECT_EQ(Joined(act.Seen, ""), Joined(act.Now, "")) << Path << ":" << act.Number << ": " << act.Text;
    }
    act.Now.clear();
  }
  if (!UpdatesGolden) return;
  std::ofstream out(Path, std::ios::binary);
  for (const Tale& each : Tales) {
    for (const StoryLine& line : each) out << line.Text << "\n" << Joined(line.Seen, kIndent);
  }
}
