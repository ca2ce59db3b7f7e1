// Files on the disk.
#include <windows.h>

#include <algorithm>
#include <utility>

#include "platform/runtime_error.h"
#include "platform/system_file.h"
#include "platform/win32/wide.h"

namespace {

constexpr ULONGLONG kRenamePatience = 2000;  // milliseconds
constexpr DWORD kRenamePause = 50;

[[noreturn]] void Fail(DWORD code) { throw RuntimeError(ErrorNumberOfSystemCode(code)); }

constexpr std::wstring_view kDevices = L"\\\\.\\", kLongForm = L"\\\\?\\";

std::wstring FullNameOf(const std::wstring& name) {
  return AskText([&](wchar_t* text, DWORD size) { return GetFullPathNameW(name.c_str(), size, text, nullptr); });
}

// Turns away what the system would take for something else than a file of that name: an empty name, one
// cut short by a NUL, and the devices (a document saved to "NUL" would be lost without a word).
std::wstring CheckedName(const std::string& name) {
  if (name.find_first_not_of(' ') == std::string::npos) throw RuntimeError(kPathFileAccess);
  if (name.find('\0') != std::string::npos) throw RuntimeError(kBadFileNumber);
  const std::wstring full_name = FullNameOf(Wide(name));
  if (full_name.starts_with(kDevices) || full_name.starts_with(kLongForm)) throw RuntimeError(kBadFileNumber);
  return SystemName(name);
}

bool HasAttribute(const std::wstring& name, DWORD attribute) {
  const DWORD attributes = GetFileAttributesW(name.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & attribute) != 0;
}

class DiskFile : public SystemFile {
 public:
  ~DiskFile() override {
    if (file_ != nullptr) CloseHandle(file_);
  }

  void Take(HANDLE file) { file_ = file; }

  std::uint64_t Size() override {
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file_, &size)) Fail(GetLastError());
    return static_cast<std::uint64_t>(size.QuadPart);
  }

  std::size_t Read(char* block, std::size_t size) override {
    DWORD count = 0;
    if (!ReadFile(file_, block, static_cast<DWORD>(size), &count, nullptr)) Fail(GetLastError());
    return count;
  }

  void Write(std::string_view bytes) override {
    while (!bytes.empty()) {
      DWORD count = 0;
      const DWORD size = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1U << 30));
      SetLastError(ERROR_SUCCESS);
      if (!WriteFile(file_, bytes.data(), size, &count, nullptr) || count == 0) {
        const DWORD code = GetLastError();
        Fail(code == ERROR_SUCCESS ? ERROR_DISK_FULL : code);
      }
      bytes.remove_prefix(count);
    }
  }

  void Flush() override {
    if (!FlushFileBuffers(file_)) Fail(GetLastError());
  }

  void Close() override {
    if (!CloseHandle(std::exchange(file_, nullptr))) Fail(GetLastError());
  }

 private:
  HANDLE file_ = nullptr;
};

// Whether another try at renaming may succeed: virus scanners and indexers hold on to fresh files for a
// moment. A file that is read-only, or away, stays so.
bool MayPass(DWORD code, const std::wstring& name) {
  if (code == ERROR_SHARING_VIOLATION || code == ERROR_LOCK_VIOLATION) return true;
  return code == ERROR_ACCESS_DENIED && !HasAttribute(name, FILE_ATTRIBUTE_READONLY);
}

void Move(const std::wstring& from, const std::wstring& to, DWORD flags) {
  if (HasAttribute(from, FILE_ATTRIBUTE_DIRECTORY)) throw RuntimeError(kPathFileAccess);
  const ULONGLONG start = GetTickCount64();
  while (!MoveFileExW(from.c_str(), to.c_str(), flags)) {
    const DWORD code = GetLastError();
    if (!MayPass(code, from) || GetTickCount64() - start >= kRenamePatience) Fail(code);
    Sleep(kRenamePause);
  }
}

}  // namespace

std::wstring SystemName(std::string_view name) {
  constexpr std::size_t kLongestName = MAX_PATH - 1;
  std::wstring wide = Wide(name);
  const std::wstring full_name = FullNameOf(wide);
  if (full_name.size() <= kLongestName || full_name.starts_with(kDevices) || full_name.starts_with(kLongForm)) {
    return wide;
  }
  // "\\server\folder" has another long form than "C:\folder".
  const bool is_network = full_name.starts_with(L"\\\\");
  return std::wstring(kLongForm) + (is_network ? L"UNC" + full_name.substr(1) : full_name);
}

std::unique_ptr<SystemFile> SystemFile::Open(const std::string& name, Files::Mode mode) {
  const std::wstring system_name = CheckedName(name);
  DWORD access = GENERIC_WRITE;
  DWORD sharing = FILE_SHARE_READ;
  DWORD creation = OPEN_EXISTING;
  DWORD flags = FILE_ATTRIBUTE_NORMAL;
  if (mode == Files::Mode::Input) {
    access = GENERIC_READ;
    sharing = FILE_SHARE_READ | FILE_SHARE_WRITE;
    flags |= FILE_FLAG_SEQUENTIAL_SCAN;
  } else if (mode == Files::Mode::Output) {
    creation = CREATE_ALWAYS;
  }
  // Where the files lie on another kind of system, its administrator is let through; the flag counts all the same.
  if (mode != Files::Mode::Input && HasAttribute(system_name, FILE_ATTRIBUTE_READONLY)) Fail(ERROR_ACCESS_DENIED);
  auto file = std::make_unique<DiskFile>();  // first: once the file is open, nothing may fail any more
  HANDLE opened = CreateFileW(system_name.c_str(), access, sharing, nullptr, creation, flags, nullptr);
  if (opened == INVALID_HANDLE_VALUE) Fail(GetLastError());
  file->Take(opened);
  return file;
}

namespace Files {

void Erase(const std::string& name) {
  if (!DeleteFileW(CheckedName(name).c_str())) Fail(GetLastError());
}

void Rename(const std::string& from, const std::string& to) { Move(CheckedName(from), CheckedName(to), 0); }

void Replace(const std::string& from, const std::string& to) {
  // As when opening a file for writing.
  if (HasAttribute(SystemName(to), FILE_ATTRIBUTE_READONLY)) Fail(ERROR_ACCESS_DENIED);
  Move(CheckedName(from), CheckedName(to), MOVEFILE_REPLACE_EXISTING);
}

bool IsFolder(const std::string& name) { return HasAttribute(SystemName(name), FILE_ATTRIBUTE_DIRECTORY); }

std::uint64_t ChangedAt(const std::string& name) {
  WIN32_FILE_ATTRIBUTE_DATA told{};
  if (!GetFileAttributesExW(SystemName(name).c_str(), GetFileExInfoStandard, &told)) return 0;
  return std::uint64_t{told.ftLastWriteTime.dwHighDateTime} << 32 | told.ftLastWriteTime.dwLowDateTime;
}

bool Exists(const std::string& name) {
  try {
    const DWORD attributes = GetFileAttributesW(CheckedName(name).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
  } catch (const RuntimeError&) {
    return false;
  }
}

}  // namespace Files
