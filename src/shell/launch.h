// Starting other programs: by their path, or by the file type for which they are registered.
#pragma once

#include <cstdint>
#include <string>

#include "platform/registry.h"

namespace APISubs {

// What LaunchProgram gives when it fails; everything from 0 on is success.
inline constexpr std::int16_t kNotRegistered = -1;
inline constexpr std::int16_t kUnknownProgram = -2;
inline constexpr std::int16_t kStartFailed = -3;

// Starts a program in a normal window with one argument, or with none when that is empty. A program that begins
// with "." is a file type: the program registered for it is started, without the options it is registered with.
// Names between two "%" in the program stand for environment variables. Both texts are rewritten to what the
// command line holds in the end. Says what went wrong, but not always that nothing is registered.
std::int16_t LaunchProgram(std::string& program, std::string& argument);

// True when a program is registered for a file type, such as LaunchProgram looks for. Says nothing, and ends nothing.
bool IsRegistered(const std::string& type);

// The text of a value of a key below the user's root or, where that has no such value, below the machine's; the
// empty name is the key's default value. Empty when there is no such key, which is said. Ends the program when
// the key is there and the value is not.
std::string ReadRegistryText(const std::string& key, const std::string& name);

// The text of a value of an open key. Ends the program when it cannot be read or is no text.
std::string ReadRegistryValue(const RegistryKey& key, const std::string& name);

}  // namespace APISubs
