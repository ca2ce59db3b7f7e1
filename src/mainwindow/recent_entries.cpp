// The recent files as menu entries: see recent_entries.h.
#include "mainwindow/recent_entries.h"

#include "mainwindow/settings.h"

std::vector<std::string> RecentNames() {
  std::vector<std::string> names;
  for (int position = 1; position <= TheRecentFiles.Count; ++position) {
    if (!TheRecentFiles[position].empty()) names.push_back(TheRecentFiles[position]);
  }
  return names;
}

namespace {

constexpr std::size_t kLongest = 60;

// A drive or machine stays, and as many of the last folders as there is room for; the file's own name stays whole.
std::string Shortened(const std::string& name) {
  const std::string dots = "...";
  const std::size_t root = name.find_first_of("\\/", 2);
  if (name.size() <= kLongest || root == std::string::npos) return name;
  const std::size_t taken = root + 1 + dots.size();
  const std::size_t room = kLongest > taken ? kLongest - taken : 0;
  std::size_t tail = room < name.size() ? name.find_first_of("\\/", name.size() - room) : root;
  if (tail == std::string::npos) tail = name.find_last_of("\\/");
  return tail <= root ? name : name.substr(0, root + 1) + dots + name.substr(tail);
}

}  // namespace

std::string RecentEntry(int number, const std::string& name) {
  std::string entry = number < 10 ? "&" + std::to_string(number) : "1&0";
  entry += ' ';
  for (const char character : Shortened(name)) {
    if (character == '&') entry += '&';
    entry += character;
  }
  return entry;
}
