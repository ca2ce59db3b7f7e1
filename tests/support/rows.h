// Tables of a test as text, a row "given => expected".
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

// The text with each part replaced by another.
inline std::string Replaced(std::string text, const std::string& part, const std::string& by) {
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + by.size())) {
    text.replace(at, part.size(), by);
  }
  return text;
}

// The parts of a text between the marks.
inline std::vector<std::string> Parts(const std::string& text, const std::string& mark) {
  std::vector<std::string> parts;
  for (std::size_t at = 0, end = 0; end != std::string::npos; at = end + mark.size()) {
    end = text.find(mark, at);
    parts.push_back(text.substr(at, end - at));
  }
  return parts;
}

// The rows of a text, parted by " | " or line ends.
inline std::vector<std::pair<std::string, std::string>> Rows(const std::string& table) {
  std::vector<std::pair<std::string, std::string>> rows;
  for (const std::string& row : Parts(Replaced(table, " | ", "\n"), "\n")) {
    const std::size_t arrow = row.find(" => ");
    if (arrow != std::string::npos) rows.emplace_back(row.substr(0, arrow), row.substr(arrow + 4));
  }
  return rows;
}

// What stands before the first mark, and what behind it; all before it when there is none.
inline std::pair<std::string, std::string> Halves(const std::string& text, char mark) {
  const std::size_t at = std::min(text.find(mark), text.size());
  return {text.substr(0, at), text.substr(std::min(at + 1, text.size()))};
}

// What is told of each given text is what its row expects.
template <class Told>
void ExpectRows(const std::string& rows, Told told) {
  for (const auto& [given, expected] : Rows(rows)) EXPECT_EQ(told(given), expected) << given;
}

// The same where the mark parts what is given in two, or in three.
template <class Told>
void ExpectRows(const std::string& rows, char mark, Told told) {
  ExpectRows(rows, [&](const std::string& given) {
    const auto [first, rest] = Halves(given, mark);
    if constexpr (std::is_invocable_v<Told, std::string, std::string>) {
      return told(first, rest);
    } else {
      const auto [second, third] = Halves(rest, mark);
      return told(first, second, third);
    }
  });
}
