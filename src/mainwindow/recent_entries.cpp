// The recent files as menu entries: see recent_entries.h.
#include "mainwindow/recent_entries.h"

#include "mainwindow/settings.h"
#include "shell/file_names.h"

std::vector<std::string> RecentNames() {
  std::vector<std::string> names;
  for (int position = 1; position <= TheRecentFiles.Count; ++position) {
    if (!TheRecentFiles[position].empty()) names.push_back(TheRecentFiles[position]);
  }
  return names;
}

namespace {

constexpr std::size_t kLongest = 60;  // characters

}  // namespace

std::string RecentEntry(int number, const std::string& name) {
  std::string entry = number < 10 ? "&" + std::to_string(number) : "1&0";
  entry += ' ';
  for (const char character : ShortenedName(name, kLongest)) {
    if (character == '&') entry += '&';
    entry += character;
  }
  return entry;
}
