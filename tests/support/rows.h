// Tables of a test as text, a row "given => expected".
#pragma once

#include <string>
#include <utility>
#include <vector>

// The rows of a text, parted by " | " or line ends.
inline std::vector<std::pair<std::string, std::string>> Rows(std::string text) {
  std::vector<std::pair<std::string, std::string>> rows;
  for (auto at = text.find(" | "); at != std::string::npos; at = text.find(" | ", at)) text.replace(at, 3, "\n");
  for (std::size_t at = 0, end = 0; at < text.size(); at = end + 1) {
    end = std::min(text.find('\n', at), text.size());
    const std::string row = text.substr(at, end - at);
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
