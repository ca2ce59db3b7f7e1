// Finding a text in a report, capital or small letters alike. Hits do not overlap and lie within one line.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "viewer/report_text.h"

class Finder {
 public:
  Finder() = default;
  explicit Finder(std::string_view sought);

  bool Empty() const { return sought_.empty(); }
  Index Length() const { return static_cast<Index>(sought_.size()); }

  // Where the first hit at or behind `from` begins; npos when there is none, or nothing is sought.
  std::size_t In(std::string_view text, std::size_t from) const;

  std::size_t CountIn(std::string_view text) const;

  // The first hit that begins at or behind a place, and the last one that begins before it.
  std::optional<Place> Next(const ReportText& text, const Place& from) const;
  std::optional<Place> Previous(const ReportText& text, const Place& before) const;

 private:
  std::string sought_;               // in capitals
  std::array<char, 256> capital_{};  // of every character
};
