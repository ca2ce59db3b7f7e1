// The program's surroundings as Windows tells them.
#include "platform/program.h"

#include <windows.h>
// After windows.h, on which it builds.
#include <shlobj.h>

#include "platform/files.h"
#include "platform/win32/end_hook.h"

void (*EndHook)() = nullptr;

namespace {

constexpr const char* kBlanks = " \t";

// Asks the system for a text of unknown length: `ask` fills a buffer and returns the text's length, or at
// least the buffer's size when that was too small.
template <typename Ask>
std::string AskText(Ask ask) {
  std::string text(MAX_PATH, '\0');
  for (;;) {
    const DWORD size = ask(text.data(), static_cast<DWORD>(text.size()));
    const bool fits = size < text.size();
    text.resize(fits ? size : text.size() * 2);
    if (fits) return text;
  }
}

// A folder without a trailing separator, unless it is a drive's root.
std::string WithoutSeparator(std::string folder) {
  while (folder.size() > 3 && folder.back() == '\\') folder.pop_back();
  return folder;
}

}  // namespace

std::string CommandLineText() {
  const std::string line = GetCommandLineA();
  const bool quoted = line.starts_with('"');
  const std::size_t end = quoted ? line.find('"', 1) : line.find_first_of(kBlanks);
  if (end == std::string::npos) return {};
  const std::size_t first = line.find_first_not_of(kBlanks, end + 1);
  if (first == std::string::npos) return {};
  return line.substr(first, line.find_last_not_of(kBlanks) + 1 - first);
}

std::string ProgramFolder() {
  const std::string name = AskText([](char* text, DWORD size) { return GetModuleFileNameA(nullptr, text, size); });
  return WithoutSeparator(name.substr(0, name.rfind('\\') + 1));
}

std::string CurrentFolder() {
  return WithoutSeparator(AskText([](char* text, DWORD size) { return GetCurrentDirectoryA(size, text); }));
}

std::string DocumentsFolder() {
  char folder[MAX_PATH] = "";
  if (FAILED(SHGetFolderPathA(nullptr, CSIDL_PERSONAL, nullptr, SHGFP_TYPE_CURRENT, folder))) return {};
  return WithoutSeparator(folder);
}

std::string TemporaryFolder() {
  return WithoutSeparator(AskText([](char* text, DWORD size) { return GetTempPathA(size, text); }));
}

std::optional<std::string> EnvironmentValue(const std::string& name) {
  SetLastError(ERROR_SUCCESS);
  std::string value =
      AskText([&](char* text, DWORD size) { return GetEnvironmentVariableA(name.c_str(), text, size); });
  if (value.empty() && GetLastError() != ERROR_SUCCESS) return std::nullopt;
  return value;
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
