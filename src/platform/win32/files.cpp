// Text files on the disk: numbered handles over the system's own, reading and writing in large blocks.
#include "platform/files.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <memory>
#include <new>
#include <optional>
#include <stdexcept>

#include "platform/line_reader.h"
#include "platform/runtime_error.h"
#include "platform/win32/wide.h"

namespace {

constexpr int kLastHandle = 255;
constexpr std::size_t kPendingSize = 65536;
constexpr std::size_t kLargestRead = 16U << 20;
constexpr ULONGLONG kRenamePatience = 2000;  // milliseconds
constexpr DWORD kRenamePause = 50;

[[noreturn]] void Fail(DWORD code) { throw RuntimeError(ErrorNumberOfSystemCode(code)); }

struct HandleCloser {
  using pointer = HANDLE;
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using SystemFile = std::unique_ptr<HANDLE, HandleCloser>;

struct Stream {
  Files::Mode Mode = Files::Mode::Input;
  SystemFile File;
  std::unique_ptr<LineReader> Reader;
  std::string Pending;           // written, but not yet handed to the system
  std::optional<DWORD> Refusal;  // the code that bytes were refused with: they are lost
};

std::array<std::unique_ptr<Stream>, kLastHandle + 1> open_files;

bool InRange(int handle) { return handle >= 1 && handle <= kLastHandle; }

std::unique_ptr<Stream>& Slot(int handle) {
  if (!InRange(handle)) throw RuntimeError(kBadFileNumber);
  return open_files[static_cast<std::size_t>(handle)];
}

Stream& Opened(int handle, Files::Mode mode) {
  const auto& file = Slot(handle);
  if (!file || file->Mode != mode) throw RuntimeError(kBadFileNumber);
  return *file;
}

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

SystemFile OpenSystemFile(const std::wstring& name, Files::Mode mode) {
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
  if (mode != Files::Mode::Input && HasAttribute(name, FILE_ATTRIBUTE_READONLY)) Fail(ERROR_ACCESS_DENIED);
  HANDLE file = CreateFileW(name.c_str(), access, sharing, nullptr, creation, flags, nullptr);
  if (file == INVALID_HANDLE_VALUE) Fail(GetLastError());
  return SystemFile(file);
}

LineReader::Source ReadFrom(HANDLE file) {
  return [file](char* block, std::size_t size) {
    DWORD count = 0;
    if (!ReadFile(file, block, static_cast<DWORD>(size), &count, nullptr)) Fail(GetLastError());
    return static_cast<std::size_t>(count);
  };
}

// Hands bytes to the system. What it once refused is lost, so that from then on every call on the file
// fails alike, up to its Close.
void Send(Stream& file, std::string_view bytes) {
  while (!bytes.empty()) {
    DWORD count = 0;
    const DWORD size = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1U << 30));
    SetLastError(ERROR_SUCCESS);
    if (!WriteFile(file.File.get(), bytes.data(), size, &count, nullptr) || count == 0) {
      const DWORD code = GetLastError();
      file.Refusal = code == ERROR_SUCCESS ? ERROR_DISK_FULL : code;
      Fail(*file.Refusal);
    }
    bytes.remove_prefix(count);
  }
}

void SendPending(Stream& file) {
  if (file.Refusal) Fail(*file.Refusal);
  Send(file, file.Pending);
  file.Pending.clear();
}

void Append(Stream& file, std::string_view bytes) {
  if (file.Refusal) Fail(*file.Refusal);
  if (file.Pending.size() + bytes.size() > kPendingSize) SendPending(file);
  if (bytes.size() > kPendingSize) {
    Send(file, bytes);
  } else {
    file.Pending.append(bytes);
  }
}

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

namespace Files {

int FreeHandle() {
  for (int handle = 1; handle <= kLastHandle; ++handle) {
    if (!IsOpen(handle)) return handle;
  }
  throw RuntimeError(kBadFileNumber);
}

void Open(int handle, const std::string& name, Mode mode) {
  auto& slot = Slot(handle);
  if (slot) throw RuntimeError(kBadFileNumber);
  auto file = std::make_unique<Stream>();
  file->Mode = mode;
  if (mode == Mode::Output) file->Pending.reserve(kPendingSize);  // first: opening empties the file
  file->File = OpenSystemFile(CheckedName(name), mode);
  if (mode == Mode::Input) file->Reader = std::make_unique<LineReader>(ReadFrom(file->File.get()));
  slot = std::move(file);
}

bool IsOpen(int handle) { return InRange(handle) && open_files[static_cast<std::size_t>(handle)] != nullptr; }

bool AtEnd(int handle) { return Opened(handle, Mode::Input).Reader->AtEnd(); }

std::string_view ReadLine(int handle) {
  if (const auto line = Opened(handle, Mode::Input).Reader->Read()) return *line;
  throw RuntimeError(kInputPastEnd);
}

std::string ReadAll(const std::string& name) {
  const SystemFile file = OpenSystemFile(CheckedName(name), Mode::Input);
  LARGE_INTEGER size{};
  if (!GetFileSizeEx(file.get(), &size)) Fail(GetLastError());
  const auto read = ReadFrom(file.get());
  std::string bytes;
  try {
    // One byte more, so that its end is found without making room anew.
    bytes.resize(static_cast<std::size_t>(size.QuadPart) + 1);
    std::size_t end = 0;
    for (;;) {
      if (end == bytes.size()) bytes.resize(end + kPendingSize);  // another program is writing it
      const std::size_t count = read(bytes.data() + end, std::min(bytes.size() - end, kLargestRead));
      if (count == 0) break;
      end += count;
    }
    bytes.resize(end);
  } catch (const std::bad_alloc&) {
    throw RuntimeError(kOutOfMemory);
  } catch (const std::length_error&) {
    throw RuntimeError(kOutOfMemory);
  }
  return bytes;
}

void Write(int handle, std::string_view bytes) { Append(Opened(handle, Mode::Output), bytes); }

void WriteLine(int handle, std::string_view text) {
  Stream& file = Opened(handle, Mode::Output);
  Append(file, text);
  Append(file, "\r\n");
}

void Flush(int handle) {
  Stream& file = Opened(handle, Mode::Output);
  SendPending(file);
  if (!FlushFileBuffers(file.File.get())) {
    file.Refusal = GetLastError();
    Fail(*file.Refusal);
  }
}

void Close(int handle) {
  if (!IsOpen(handle)) return;
  const auto file = std::move(open_files[static_cast<std::size_t>(handle)]);
  if (file->Mode == Mode::Output) SendPending(*file);
  if (!CloseHandle(file->File.release())) Fail(GetLastError());
}

void CloseAll() {
  for (int handle = 1; handle <= kLastHandle; ++handle) {
    try {
      Close(handle);
    } catch (const RuntimeError&) {
      // The program is ending: nobody is left to tell.
    }
  }
}

void Erase(const std::string& name) {
  if (!DeleteFileW(CheckedName(name).c_str())) Fail(GetLastError());
}

void Rename(const std::string& from, const std::string& to) { Move(CheckedName(from), CheckedName(to), 0); }

void Replace(const std::string& from, const std::string& to) {
  // As when opening a file for writing.
  if (HasAttribute(SystemName(to), FILE_ATTRIBUTE_READONLY)) Fail(ERROR_ACCESS_DENIED);
  Move(CheckedName(from), CheckedName(to), MOVEFILE_REPLACE_EXISTING);
}

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
