// The real registry, for tests.
#include "support/registry.h"

#include <windows.h>
// After windows.h, on which it builds.
#include <sddl.h>

#include <stdexcept>

namespace {

void Require(LSTATUS status, const std::string& what) {
  if (status != ERROR_SUCCESS) throw std::runtime_error("test registry: " + what + ", code " + std::to_string(status));
}

}  // namespace

namespace TestRegistry {

void Put(const std::string& key, const std::string& name, const std::string& text, unsigned long type) {
  Require(RegSetKeyValueA(HKEY_CURRENT_USER, key.c_str(), name.c_str(), type, text.c_str(),
                          static_cast<DWORD>(text.size() + 1)),
          "put " + key);
}

void AllowReadingOnly(const std::string& key) {
  constexpr const char* kReadAndDelete = "D:P(A;;KRWDSD;;;WD)";
  PSECURITY_DESCRIPTOR rights = nullptr;
  ConvertStringSecurityDescriptorToSecurityDescriptorA(kReadAndDelete, SDDL_REVISION_1, &rights, nullptr);
  HKEY open = nullptr;
  Require(RegOpenKeyExA(HKEY_CURRENT_USER, key.c_str(), 0, WRITE_DAC, &open), "open " + key);
  const LSTATUS status = RegSetKeySecurity(open, DACL_SECURITY_INFORMATION, rights);
  RegCloseKey(open);
  LocalFree(rights);
  Require(status, "limit " + key);
}

void Remove(const std::string& key) { RegDeleteTreeA(HKEY_CURRENT_USER, key.c_str()); }

}  // namespace TestRegistry
