// The files of a test on the disk, in a new folder among the temporary files. Also makes the end of the
// program visible to tests, as it is in memory.
#include "support/files.h"

#include <gtest/gtest.h>
#include <share.h>
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

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

fs::path folder, former_folder;
std::vector<std::unique_ptr<std::FILE, int (*)(std::FILE*)>> held_by_other;

// Files may be read-only, and have longer names than the library takes.
void RemoveTree(const fs::path& where) {
  for (const auto& each : fs::directory_iterator(where)) {
    const std::wstring name = SystemName(Bytes(each.path().wstring()));
    SetFileAttributesW(name.c_str(), FILE_ATTRIBUTE_NORMAL);
    if (!DeleteFileW(name.c_str())) RemoveTree(each.path());
  }
  fs::remove(where);
}

}  // namespace

namespace TestFiles {

void Start() {
  static int count = 0;
  former_folder = fs::current_path();
  folder =
      fs::temp_directory_path() / ("FilerTest" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++count));
  fs::create_directory(folder);
  fs::current_path(folder);
  RegDeleteTreeA(HKEY_CURRENT_USER, kOwnKey);
}

void Finish() {
  Files::CloseAll();
  ReleaseByOther();
  fs::current_path(former_folder);
  RemoveTree(folder);
}

std::string Folder() { return Bytes(folder.wstring()); }

void Put(const std::string& name, std::string_view bytes) {
  std::ofstream out(fs::path(SystemName(name)), std::ios::binary);
  out << bytes << std::flush;
  EXPECT_TRUE(out.good()) << name;
}

std::optional<std::string> Get(const std::string& name) {
  std::ifstream in(fs::path(SystemName(name)), std::ios::binary);
  if (!in) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(in), {});
}

void SetReadOnly(const std::string& name, bool read_only) {
  fs::permissions(SystemName(name), fs::perms::owner_write,
                  read_only ? fs::perm_options::remove : fs::perm_options::add);
}

void MakeFolder(const std::string& name) { fs::create_directory(SystemName(name)); }

std::vector<std::string> List(const std::string& below) {
  std::vector<std::string> names;
  std::error_code none;
  for (const auto& each : fs::directory_iterator(folder / Wide(below), none)) {
    if (!each.is_directory(none)) names.push_back(Bytes(each.path().filename().wstring()));
  }
  std::sort(names.begin(), names.end());
  return names;
}

void HoldByOther(const std::string& name, bool against_readers) {
  const int against = against_readers ? _SH_DENYRW : _SH_DENYWR;
  held_by_other.emplace_back(_wfsopen(SystemName(name).c_str(), L"r+b", against), std::fclose);
  EXPECT_NE(held_by_other.back(), nullptr) << name;
}

void ReleaseByOther() { held_by_other.clear(); }

}  // namespace TestFiles
