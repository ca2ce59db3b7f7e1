// The program's surroundings as Windows tells them.
#include "platform/program.h"

#include <windows.h>
// After windows.h, on which it builds.
#include <shlobj.h>

#include "platform/files.h"
#include "platform/win32/end_hook.h"
#include "platform/win32/wide.h"

void (*EndHook)() = nullptr;

namespace {

constexpr const char* kBlanks = " \t";

// A folder without a trailing separator, unless it is a drive's root.
std::string WithoutSeparator(std::string folder) {
  while (folder.size() > 3 && folder.back() == '\\') folder.pop_back();
  return folder;
}

}  // namespace

std::string CommandLineText() {
  const std::string line = Bytes(GetCommandLineW());
  const bool quoted = line.starts_with('"');
  const std::size_t end = quoted ? line.find('"', 1) : line.find_first_of(kBlanks);
  if (end == std::string::npos) return {};
  const std::size_t first = line.find_first_not_of(kBlanks, end + 1);
  if (first == std::string::npos) return {};
  return line.substr(first, line.find_last_not_of(kBlanks) + 1 - first);
}

std::string ProgramFolder() {
  const std::string name =
      Bytes(AskText([](wchar_t* text, DWORD size) { return GetModuleFileNameW(nullptr, text, size); }));
  return WithoutSeparator(name.substr(0, name.rfind('\\') + 1));
}

std::string CurrentFolder() {
  return WithoutSeparator(Bytes(AskText([](wchar_t* text, DWORD size) { return GetCurrentDirectoryW(size, text); })));
}

std::string DocumentsFolder() {
  wchar_t folder[MAX_PATH] = L"";
  if (FAILED(SHGetFolderPathW(nullptr, CSIDL_PERSONAL, nullptr, SHGFP_TYPE_CURRENT, folder))) return {};
  return WithoutSeparator(Bytes(folder));
}

std::string TemporaryFolder() {
  return WithoutSeparator(Bytes(AskText([](wchar_t* text, DWORD size) { return GetTempPathW(size, text); })));
}

std::optional<std::string> EnvironmentValue(const std::string& name) {
  const std::wstring wide_name = Wide(name);
  SetLastError(ERROR_SUCCESS);
  const std::wstring value =
      AskText([&](wchar_t* text, DWORD size) { return GetEnvironmentVariableW(wide_name.c_str(), text, size); });
  if (value.empty() && GetLastError() != ERROR_SUCCESS) return std::nullopt;
  return Bytes(value);
}

std::chrono::year_month_day Today() {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  return {std::chrono::year{now.wYear}, std::chrono::month{now.wMonth}, std::chrono::day{now.wDay}};
}

void EndProgram() {
  Files::CloseAll();
  if (EndHook != nullptr) EndHook();
  ExitProcess(0);
}
