// The registry of Windows.
#include "platform/registry.h"

#include <windows.h>

#include "platform/win32/wide.h"

namespace {

// The registry is read in the code page of the system, whatever page the program's texts are in.
std::string ToRegistry(const std::string& text) {
  const std::wstring wide = Wide(text);
  const int length = static_cast<int>(wide.size());
  std::string bytes(4 * wide.size(), '\0');
  const int size = WideCharToMultiByte(CP_ACP, 0, wide.c_str(), length, bytes.data(), static_cast<int>(bytes.size()),
                                       nullptr, nullptr);
  bytes.resize(static_cast<std::size_t>(size));
  return bytes;
}

std::string FromRegistry(const std::string& bytes) {
  const int size = static_cast<int>(bytes.size());
  std::wstring wide(bytes.size(), L'\0');
  wide.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, bytes.c_str(), size, wide.data(), size)));
  return Bytes(wide);
}

}  // namespace

struct RegistryKey::Peer {
  HKEY Key = nullptr;
};

RegistryKey::RegistryKey(RegistryRoot root, const std::string& path) : peer_(std::make_unique<Peer>()) {
  constexpr REGSAM kAccess =
      KEY_QUERY_VALUE | KEY_SET_VALUE | KEY_CREATE_SUB_KEY | KEY_ENUMERATE_SUB_KEYS | KEY_NOTIFY | KEY_CREATE_LINK;
  static_assert(kAccess == 63);
  HKEY from = root == RegistryRoot::CurrentUser ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
  const std::string name = ToRegistry(path);
  const LSTATUS status = RegOpenKeyExA(from, name.c_str(), 0, kAccess, &peer_->Key);
  // Ordinary users may not write below the machine's root.
  if (status == ERROR_ACCESS_DENIED) RegOpenKeyExA(from, name.c_str(), 0, KEY_READ, &peer_->Key);
}

RegistryKey::~RegistryKey() {
  if (IsOpen()) RegCloseKey(peer_->Key);
}

bool RegistryKey::IsOpen() const { return peer_->Key != nullptr; }

std::optional<RegistryValue> RegistryKey::Query(const std::string& name) const {
  if (!IsOpen()) return std::nullopt;
  DWORD type = 0;
  DWORD size = 0;
  const LSTATUS status = RegQueryValueExA(peer_->Key, ToRegistry(name).c_str(), nullptr, &type, nullptr, &size);
  if (status != ERROR_SUCCESS) return std::nullopt;
  return RegistryValue{type, size};
}

std::optional<std::string> RegistryKey::ReadText(const std::string& name, std::size_t size) const {
  if (!IsOpen()) return std::nullopt;
  std::string text(size, '\0');
  auto bytes = static_cast<DWORD>(size);
  const LSTATUS status = RegQueryValueExA(peer_->Key, ToRegistry(name).c_str(), nullptr, nullptr,
                                          reinterpret_cast<BYTE*>(text.data()), &bytes);
  if (status != ERROR_SUCCESS) return std::nullopt;
  text.resize(bytes);
  return FromRegistry(text.substr(0, text.find('\0')));  // the size counts the end mark, where there is one
}
