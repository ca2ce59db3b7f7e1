// Full names out of folders and file names: see file_names.h.
#include "mainwindow/file_names.h"

#include <algorithm>

#include "platform/locale.h"
#include "platform/program.h"

std::string Global::FullFileName(std::string_view folder, std::string_view name) {
  if (name.empty()) return {};
  if (name.front() == '\\' || name.find(':') != std::string_view::npos) return std::string(name);
  std::string full = folder.empty() ? CurrentFolder() : std::string(folder);
  if (!full.ends_with('\\')) full += '\\';
  return full += name;
}

std::size_t NameStart(std::string_view file_name) { return file_name.find_last_of("\\/:") + 1; }

std::string NameWithoutFolder(std::string_view file_name) {
  return std::string(file_name.substr(NameStart(file_name)));
}

std::string FolderOf(std::string_view file_name) {
  const std::size_t start = NameStart(file_name);
  if (start == 0) return {};
  const std::size_t end = start - 1;
  const bool is_root = file_name[end] == ':' || end == 0 || file_name[end - 1] == ':';
  return std::string(file_name.substr(0, is_root ? start : end));
}

std::size_t TypeDot(std::string_view file_name) {
  const auto dot = file_name.rfind('.');
  return dot != std::string_view::npos && dot >= NameStart(file_name) ? dot : std::string_view::npos;
}

bool SameFile(std::string_view one, std::string_view other) {
  const auto compared = [](std::string_view name) {
    std::string full = UpperCase(name);
    std::replace(full.begin(), full.end(), '/', '\\');
    return full;
  };
  return compared(one) == compared(other);
}
