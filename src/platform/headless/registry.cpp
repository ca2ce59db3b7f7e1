// The registry of the in-memory machine: what a test put there.
#include "platform/registry.h"

#include <algorithm>
#include <map>
#include <utility>

#include "platform/headless/machine.h"
#include "platform/locale.h"

namespace {

struct Value {
  unsigned long Type;
  std::string Text;
};

using Path = std::pair<RegistryRoot, std::string>;  // in capitals

std::map<Path, std::map<std::string, Value>> keys;
bool reading_fails = false;

bool IsWithin(const Path& path, const Path& key) {
  return path == key || (path.first == key.first && path.second.starts_with(key.second + "\\"));
}

}  // namespace

namespace Machine {

void SetRegistryValue(RegistryRoot root, const std::string& key, const std::string& name, const std::string& text,
                      unsigned long type) {
  keys[{root, UpperCase(key)}][UpperCase(name)] = {type, text};
}

void RemoveRegistryKey(RegistryRoot root, const std::string& key) {
  std::erase_if(keys, [&](const auto& each) { return IsWithin(each.first, {root, UpperCase(key)}); });
}

void FailRegistryReads(bool fail) { reading_fails = fail; }

}  // namespace Machine

struct RegistryKey::Peer {
  Path Name;
  bool Open;
};

RegistryKey::RegistryKey(RegistryRoot root, const std::string& path)
    : peer_(std::make_unique<Peer>(Peer{{root, UpperCase(path)}, false})) {
  peer_->Open =
      std::any_of(keys.begin(), keys.end(), [this](const auto& each) { return IsWithin(each.first, peer_->Name); });
}

RegistryKey::~RegistryKey() = default;

bool RegistryKey::IsOpen() const { return peer_->Open; }

std::optional<RegistryValue> RegistryKey::Query(const std::string& name) const {
  if (!keys.contains(peer_->Name)) return std::nullopt;
  const auto& values = keys.at(peer_->Name);
  const auto found = values.find(UpperCase(name));
  if (found == values.end()) return std::nullopt;
  return RegistryValue{found->second.Type, found->second.Text.size() + 1};
}

std::optional<std::string> RegistryKey::ReadText(const std::string& name, std::size_t size) const {
  const std::optional<RegistryValue> value = Query(name);
  if (!value || value->Size > size || reading_fails) return std::nullopt;
  return keys.at(peer_->Name).at(UpperCase(name)).Text;
}

void Remember(const std::string& name, const std::string& text) {
  Machine::SetRegistryValue(RegistryRoot::CurrentUser, kOwnKey, name, text);
}

std::string Remembered(const std::string& name) {
  constexpr std::size_t kAnySize = 32768;
  return RegistryKey(RegistryRoot::CurrentUser, kOwnKey).ReadText(name, kAnySize).value_or("");
}
