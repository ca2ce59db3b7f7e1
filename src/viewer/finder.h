// Finding a text in a report, capital or small letters of the page alike. Hits do not overlap and lie within one line.
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

  // Where in a part of a report the first hit at or behind `from` begins; npos when there is none, or nothing is
  // sought.
  std::size_t In(const ReportText& text, std::string_view part, std::size_t from) const;

  std::size_t CountIn(const ReportText& text, std::string_view part) const;

  // The first hit that begins at or behind a place, and the last one that begins before it.
  std::optional<Place> Next(const ReportText& text, const Place& from) const;
  std::optional<Place> Previous(const ReportText& text, const Place& before) const;

 private:
  bool SameFarCharacters(const ReportText& text, const char* column) const;

  std::string sought_;  // in capitals, and in columns as a report
  std::u32string far_;  // the characters that stand as references in it, 0 in all other columns
  bool has_far_ = false;
  std::array<char, 256> capital_{};  // of every character
};
