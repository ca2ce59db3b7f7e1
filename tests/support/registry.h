// The user's part of the registry, for a test that puts keys of its own there and removes them.
#pragma once

#include <string>

#include "platform/registry.h"

namespace TestRegistry {

// Makes the key when it is missing. A value of no text type holds the same bytes.
void Put(const std::string& key, const std::string& name, const std::string& text, unsigned long type = kRegistryText);
void AllowReadingOnly(const std::string& key);  // to everybody; not in memory, where nobody is refused anything
void Remove(const std::string& key);            // with all keys below it

}  // namespace TestRegistry
