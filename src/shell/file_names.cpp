// Full names out of folders and file names: see file_names.h.
#include "shell/file_names.h"

#include <algorithm>
#include <initializer_list>

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

std::string ShortenedName(const std::string& name, std::size_t most) {
  constexpr std::string_view kSeparators = "\\/";
  const std::size_t root = name.find_first_of(kSeparators, 2);
  if (name.size() <= most || root == std::string::npos) return name;
  const std::string head = name.substr(0, root + 1) + "...";
  const std::size_t room = most - std::min(most, head.size());
  const std::size_t own = NameStart(name) - 1;
  const std::size_t tail = std::min(own, name.find_first_of(kSeparators, name.size() - room));
  return tail <= root ? name : head + name.substr(tail);
}

std::size_t TypeDot(std::string_view file_name) {
  const auto dot = file_name.rfind('.');
  return dot != std::string_view::npos && dot >= NameStart(file_name) ? dot : std::string_view::npos;
}

namespace {

bool IsOfType(std::string_view file_name, std::initializer_list<std::string_view> types) {
  const std::size_t dot = TypeDot(file_name);
  const std::string type = dot == std::string_view::npos ? std::string() : UpperCase(file_name.substr(dot + 1));
  return std::find(types.begin(), types.end(), type) != types.end();
}

}  // namespace

bool IsDataFile(std::string_view file_name) { return IsOfType(file_name, {"FIL"}); }

bool IsPicture(std::string_view file_name) {
  return IsOfType(file_name, {"JPG", "JPEG", "PNG", "BMP", "GIF", "TIF", "TIFF"});
}

namespace {

std::string WithBackslashes(std::string_view file_name) {
  std::string name(file_name);
  std::replace(name.begin(), name.end(), '/', '\\');
  return name;
}

}  // namespace

bool SameFile(std::string_view one, std::string_view other) {
  return UpperCase(WithBackslashes(one)) == UpperCase(WithBackslashes(other));
}

std::vector<std::string> PhotoPlaces(const std::string& name, const std::string& data_file,
                                     const std::string& working_folder) {
  const std::string photo = WithBackslashes(name);
  const std::string folder = FolderOf(WithBackslashes(data_file));
  const std::string in_working_folder = Global::FullFileName(working_folder, photo);
  if (folder.empty()) return {in_working_folder};
  if (in_working_folder != photo) return {Global::FullFileName(folder, photo), in_working_folder};
  std::vector<std::string> places = {photo};
  for (auto at = photo.find_last_of("\\:"); at != std::string::npos && at + 1 < photo.size();
       at = at == 0 ? std::string::npos : photo.find_last_of("\\:", at - 1)) {
    if (photo[at + 1] != '\\') places.push_back(Global::FullFileName(folder, photo.substr(at + 1)));
  }
  return places;
}
