// The registry of the in-memory machine, for tests.
#include "support/registry.h"

#include "platform/headless/machine.h"

namespace TestRegistry {

void Put(const std::string& key, const std::string& name, const std::string& text, unsigned long type) {
  Machine::SetRegistryValue(RegistryRoot::CurrentUser, key, name, text, type);
}

void AllowReadingOnly(const std::string& /*key*/) {}

void Remove(const std::string& key) { Machine::RemoveRegistryKey(RegistryRoot::CurrentUser, key); }

}  // namespace TestRegistry
