// Which key a virtual-key code means, for all that are told of keys.
#pragma once

#include <windows.h>

#include <optional>

#include "platform/form.h"

// Nothing for keys that nobody is told of.
std::optional<Key> KeyOfCode(WPARAM code);
