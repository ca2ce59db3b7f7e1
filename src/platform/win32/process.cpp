// Starting other programs on Windows.
#include "platform/process.h"

#include <windows.h>

#include "platform/runtime_error.h"
#include "platform/win32/wide.h"

long StartProgram(const std::string& command_line) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION process{};
  std::wstring writable = Wide(command_line);  // the system may write into it
  if (!CreateProcessW(nullptr, writable.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process)) {
    const DWORD code = GetLastError();
    // Whether the program or only its folder is missing makes no difference to who wants it started.
    throw RuntimeError(code == ERROR_PATH_NOT_FOUND || code == ERROR_DIRECTORY ? static_cast<int>(kFileNotFound)
                                                                               : ErrorNumberOfSystemCode(code));
  }
  AllowSetForegroundWindow(process.dwProcessId);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return static_cast<long>(process.dwProcessId);
}
