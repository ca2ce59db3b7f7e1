// Reading and writing files of stories: see story_file.h.
#include "scenarios/story_file.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>

#include "support/update.h"

namespace {

constexpr const char *kTitle = "== ", *kIndent = "    ";

std::string Joined(const std::vector<std::string>& lines, const char* before) {
  std::string text;
  for (const std::string& line : lines) text += before + line + "\n";
  return text;
}

std::shared_ptr<StoryFile> Read(const std::string& path) {
  auto file = std::make_shared<StoryFile>(StoryFile{path, {}});
  std::ifstream in(path);
  int number = 0;
  for (std::string line; std::getline(in, line);) {
    ++number;
    if (line.starts_with(kIndent)) {
      file->Lines.back().Seen.push_back(line.substr(4));
    } else {
      file->Lines.push_back({number, line});
    }
  }
  return file;
}

void Register(const std::string& suite, const std::filesystem::path& path, const MakeStory& make) {
  const auto file = Read(path.generic_string());
  Tale above{file, 0, 0}, tale{file, 0, 0};
  const auto is_title = [&](std::size_t at) {
    return at == file->Lines.size() || file->Lines[at].Text.starts_with(kTitle);
  };
  while (!is_title(above.To)) ++above.To;
  for (tale.From = above.To; tale.From < file->Lines.size(); tale.From = tale.To) {
    tale.To = tale.From + 1;
    while (!is_title(tale.To)) ++tale.To;
    std::string name = file->Lines[tale.From].Text.substr(3);
    const auto is_mark = [](char each) { return std::isalnum(static_cast<unsigned char>(each)) == 0; };
    std::replace_if(name.begin(), name.end(), is_mark, '_');
    testing::RegisterTest((suite + "/" + path.stem().string()).c_str(), name.c_str(), nullptr, nullptr,
                          file->Path.c_str(), file->Lines[tale.From].Number,
                          [=]() -> testing::Test* { return make(above, tale); });
  }
}

}  // namespace

std::vector<StoryLine*> Tale::Acts() const {
  std::vector<StoryLine*> acts;
  for (std::size_t at = From; at < To; ++at) {
    const std::string& text = File->Lines[at].Text;
    const bool other = text.empty() || text.starts_with('#') || text.starts_with(kTitle) || text.starts_with("only ");
    if (!other) acts.push_back(&File->Lines[at]);
  }
  return acts;
}

bool Tale::Says(const std::string& line) const {
  return std::any_of(File->Lines.begin() + static_cast<std::ptrdiff_t>(From),
                     File->Lines.begin() + static_cast<std::ptrdiff_t>(To),
                     [&](const StoryLine& each) { return each.Text == line; });
}

void Tale::Compare() const {
  for (StoryLine* act : Acts()) {
    if (UpdatesGolden) {
      act->Seen = act->Now;
    } else {
      EXPECT_EQ(Joined(act->Seen, ""), Joined(act->Now, "")) << File->Path << ":" << act->Number << ": " << act->Text;
    }
    act->Now.clear();
  }
  if (!UpdatesGolden) return;
  std::ofstream out(File->Path, std::ios::binary);
  for (const StoryLine& line : File->Lines) out << line.Text << "\n" << Joined(line.Seen, kIndent);
}

bool RegisterStories(const std::string& suite, const std::string& folder, const MakeStory& make) {
  std::set<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(FILER_SOURCE_DIR "/tests/" + folder)) {
    if (entry.path().extension() == ".txt") paths.insert(entry.path());
  }
  for (const auto& path : paths) Register(suite, path, make);
  return true;
}
