// Dates that the system has no format for, written alike on both platforms.
#pragma once

#include <string>

inline constexpr int kFirstKnownYear = 1601;  // the first one that Windows formats

inline std::string IsoDate(int year, unsigned month, unsigned day) {
  const auto padded = [](unsigned number, std::size_t width) {
    std::string digits = std::to_string(number);
    if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
    return digits;
  };
  return padded(static_cast<unsigned>(year), 4) + "-" + padded(month, 2) + "-" + padded(day, 2);
}
