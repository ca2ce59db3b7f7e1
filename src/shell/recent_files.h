// The list of recently saved files: the settings file keeps it, the file-name dialogs offer it.
#pragma once

#include <array>
#include <string>

inline constexpr int kRecentFiles = 10;

// The files saved last, the latest at position 1.
struct RecentFileList {
  int Count = 0;
  std::string& operator[](int position) { return names_.at(static_cast<std::size_t>(position - 1)); }

 private:
  std::array<std::string, kRecentFiles> names_;
};

inline RecentFileList TheRecentFiles;
