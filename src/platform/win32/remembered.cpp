// What the programs keep in the registry of Windows.
#include <windows.h>

#include "platform/registry.h"
#include "platform/win32/wide.h"

void Remember(const std::string& name, const std::string& text) {
  const std::wstring value = Wide(text);
  RegSetKeyValueW(HKEY_CURRENT_USER, Wide(kOwnKey).c_str(), Wide(name).c_str(), REG_SZ, value.c_str(),
                  static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
}

std::string Remembered(const std::string& name) {
  std::wstring value(32768, L'\0');
  auto size = static_cast<DWORD>(value.size() * sizeof(wchar_t));
  const LSTATUS status = RegGetValueW(HKEY_CURRENT_USER, Wide(kOwnKey).c_str(), Wide(name).c_str(), RRF_RT_REG_SZ,
                                      nullptr, value.data(), &size);
  if (status != ERROR_SUCCESS) return {};
  value.resize(value.find(L'\0'));
  return Bytes(value);
}
