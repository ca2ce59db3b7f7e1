// Small text functions that the file formats and names share. A blank is character 32 only: tabs and
// control characters are text.
#pragma once

#include <string>
#include <string_view>

constexpr std::string_view TrimLeft(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

constexpr std::string_view TrimRight(std::string_view text) { return text.substr(0, text.find_last_not_of(' ') + 1); }

constexpr std::string_view Trim(std::string_view text) { return TrimLeft(TrimRight(text)); }

// A whole number with one blank before it unless it is negative, as messages quote numbers.
inline std::string SignedText(int number) { return (number < 0 ? "" : " ") + std::to_string(number); }
