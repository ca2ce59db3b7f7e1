// Full names out of folders and file names: see file_names.h.
#include "mainwindow/file_names.h"

#include "platform/program.h"

std::string Global::FullFileName(std::string_view folder, std::string_view name) {
  if (name.empty()) return {};
  if (name.front() == '\\' || name.find(':') != std::string_view::npos) return std::string(name);
  std::string full = folder.empty() ? CurrentFolder() : std::string(folder);
  if (!full.ends_with('\\')) full += '\\';
  return full += name;
}

std::string FolderOf(std::string_view file_name) {
  const auto end = file_name.find_last_of("\\:");
  if (end == std::string_view::npos) return {};
  const bool is_root = file_name[end] == ':' || end == 0 || file_name[end - 1] == ':';
  return std::string(file_name.substr(0, is_root ? end + 1 : end));
}
