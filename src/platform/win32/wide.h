// Between the program's texts and the system's: see references.h.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "platform/references.h"

inline std::wstring Wide(std::string_view text) {
  const std::u16string wide = Widen(text);
  return {wide.begin(), wide.end()};
}

inline std::string Bytes(std::wstring_view text) { return Narrow(std::u16string(text.begin(), text.end())); }

// A file's name as the system takes it, also when the full one has more than 259 characters.
std::wstring SystemName(std::string_view name);

// Asks the system for a text of unknown length: `ask` fills a buffer and returns the text's length, or at least the
// buffer's size when that was too small.
template <typename Ask>
std::wstring AskText(Ask ask) {
  std::wstring text(MAX_PATH, L'\0');
  for (;;) {
    const DWORD size = ask(text.data(), static_cast<DWORD>(text.size()));
    const bool fits = size < text.size();
    text.resize(fits ? size : text.size() * 2);
    if (fits) return text;
  }
}
