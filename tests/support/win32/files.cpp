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
#include "platform/registry.h"
#include "platform/win32/end_hook.h"
#include "platform/win32/wide.h"

namespace {

namespace fs = std::filesystem;

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

// Files may be read-only, and have longer names than the library takes.
void RemoveTree(const fs::path& where) {
  for (const auto& each : fs::directory_iterator(where)) {
    const std::wstring name = SystemName(Bytes(each.path().wstring()));
    SetFileAttributesW(name.c_str(), FILE_ATTRIBUTE_NORMAL);
    if (!DeleteFileW(name.c_str())) RemoveTree(each.path());
  }
  Require(RemoveDirectoryW(where.c_str()), "remove " + where.string());
}

}  // namespace

namespace TestFiles {

void Start() {
  static int count = 0;
  former_folder = CurrentFolder();
  const std::string name = "\\FilerTest" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++count);
  const std::wstring made = Wide(TemporaryFolder() + name);
  Require(CreateDirectoryW(made.c_str(), nullptr) && SetCurrentDirectoryW(made.c_str()), "make " + name);
  folder = CurrentFolder();
  RegDeleteTreeA(HKEY_CURRENT_USER, kOwnKey);
}

void Finish() {
  Files::CloseAll();
  ReleaseByOther();
  Require(SetCurrentDirectoryW(Wide(former_folder).c_str()), "return to " + former_folder);
  RemoveTree(Wide(folder));
}

std::string Folder() { return folder; }

void Put(const std::string& name, std::string_view bytes) {
  std::ofstream out(fs::path(SystemName(name)), std::ios::binary);
  out << bytes << std::flush;
  Require(out.good(), "put " + name);
}

std::optional<std::string> Get(const std::string& name) {
  std::ifstream in(fs::path(SystemName(name)), std::ios::binary);
  if (!in) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(in), {});
}

void SetReadOnly(const std::string& name, bool read_only) {
  const DWORD attributes = read_only ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL;
  Require(SetFileAttributesW(SystemName(name).c_str(), attributes), "set read-only " + name);
}

void MakeFolder(const std::string& name) { fs::create_directory(fs::path(SystemName(name))); }

std::vector<std::string> List(const std::string& below) {
  std::vector<std::string> names;
  std::error_code none;
  for (const auto& each : fs::directory_iterator(Wide(folder + "\\" + below), none)) {
    if (!each.is_directory(none)) names.push_back(Bytes(each.path().filename().wstring()));
  }
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
