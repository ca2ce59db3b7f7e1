// The files of a test on the disk, in a new folder among the temporary files. Also makes the end of the
// program visible to tests, as it is in memory.
#include "support/files.h"

#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "platform/files.h"
#include "platform/program.h"
#include "platform/win32/end_hook.h"
#include "platform/win32/wide.h"

namespace {

[[maybe_unused]] const bool kEndHookSet = [] {
  EndHook = [] { throw ProgramEnded{}; };
  return true;
}();

std::string folder;
std::string former_folder;
std::vector<HANDLE> other_handles;

void Require(bool done, const std::string& what) {
  if (!done) throw std::runtime_error("test files: " + what + ", code " + std::to_string(GetLastError()));
}

template <typename Visit>
void ForEachIn(const std::string& where, Visit visit) {
  WIN32_FIND_DATAW entry{};
  HANDLE search = FindFirstFileW(SystemName(where + "\\*").c_str(), &entry);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    const std::string name = Bytes(entry.cFileName);
    const bool is_folder = (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (name != "." && name != "..") visit(name, is_folder);
  } while (FindNextFileW(search, &entry));
  FindClose(search);
}

void RemoveTree(const std::string& where) {
  ForEachIn(where, [&where](const std::string& name, bool is_folder) {
    const std::string full_name = where + "\\" + name;
    SetFileAttributesW(SystemName(full_name).c_str(), FILE_ATTRIBUTE_NORMAL);
    if (is_folder) {
      RemoveTree(full_name);
    } else {
      Require(DeleteFileW(SystemName(full_name).c_str()), "remove " + full_name);
    }
  });
  Require(RemoveDirectoryW(SystemName(where).c_str()), "remove " + where);
}

}  // namespace

namespace TestFiles {

void Start() {
  static int count = 0;
  former_folder = CurrentFolder();
  const std::string made =
      TemporaryFolder() + "\\FilerTest" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++count);
  Require(CreateDirectoryW(Wide(made).c_str(), nullptr), "make " + made);
  Require(SetCurrentDirectoryW(Wide(made).c_str()), "enter " + made);
  folder = CurrentFolder();
}

void Finish() {
  Files::CloseAll();
  ReleaseByOther();
  Require(SetCurrentDirectoryW(Wide(former_folder).c_str()), "return to " + former_folder);
  RemoveTree(folder);
}

std::string Folder() { return folder; }

void Put(const std::string& name, std::string_view bytes) {
  std::ofstream out(std::filesystem::path(SystemName(name)), std::ios::binary);
  out << bytes << std::flush;
  Require(out.good(), "put " + name);
}

std::optional<std::string> Get(const std::string& name) {
  std::ifstream in(std::filesystem::path(SystemName(name)), std::ios::binary);
  if (!in) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(in), {});
}

void SetReadOnly(const std::string& name, bool read_only) {
  const DWORD attributes = read_only ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL;
  Require(SetFileAttributesW(SystemName(name).c_str(), attributes), "set read-only " + name);
}

void MakeFolder(const std::string& name) {
  Require(CreateDirectoryW(SystemName(name).c_str(), nullptr) || GetLastError() == ERROR_ALREADY_EXISTS,
          "make " + name);
}

std::vector<std::string> List(const std::string& below) {
  std::vector<std::string> names;
  ForEachIn(below.empty() ? folder : folder + "\\" + below, [&names](const std::string& name, bool is_folder) {
    if (!is_folder) names.push_back(name);
  });
  std::sort(names.begin(), names.end());
  return names;
}

void HoldByOther(const std::string& name, bool against_readers) {
  const DWORD access = against_readers ? GENERIC_READ | GENERIC_WRITE : GENERIC_WRITE;
  const DWORD sharing = against_readers ? 0 : FILE_SHARE_READ;
  HANDLE file =
      CreateFileW(SystemName(name).c_str(), access, sharing, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  Require(file != INVALID_HANDLE_VALUE, "hold " + name);
  other_handles.push_back(file);
}

void ReleaseByOther() {
  for (HANDLE each : other_handles) CloseHandle(each);
  other_handles.clear();
}

}  // namespace TestFiles
