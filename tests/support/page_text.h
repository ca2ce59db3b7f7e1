// A page as the rows of text that a person reads, and texts in a line, for comparing.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "platform/page.h"
#include "platform/references.h"

// "a | b | c"; of many, the first one and the last.
inline std::string Joined(const std::vector<std::string>& texts, const std::string& between) {
  constexpr std::size_t kMany = 10;
  if (texts.size() > kMany) return texts.front() + " ... " + texts.back() + " (" + std::to_string(texts.size()) + ")";
  std::string line;
  for (const std::string& text : texts) line += (&text == texts.data() ? "" : between) + text;
  return line;
}

// Hits stand in <>, what is selected in []; what would stand on something else is told with its column.
inline std::vector<std::string> RowsOf(const Page& page) {
  std::vector<std::string> rows;
  std::vector<int> ends;  // in cells
  for (const TextRun& run : page.Runs) {
    const auto at = static_cast<std::size_t>(run.At.Row);
    rows.resize(std::max(rows.size(), at + 1));
    ends.resize(rows.size());
    std::string& row = rows[at];
    if (run.At.Column < ends[at]) row += "(at " + std::to_string(run.At.Column) + ")";
    row.append(static_cast<std::size_t>(std::max(0, run.At.Column - ends[at])), ' ');
    ends[at] = run.At.Column + static_cast<int>(CountCharacters(run.Text));
    const char* const marks[] = {"", "", "<", ">", "[", "]"};
    const std::size_t style = 2 * static_cast<std::size_t>(run.Style);
    row += marks[style] + run.Text + marks[style + 1];
  }
  for (std::string& row : rows) row.erase(row.find_last_not_of(' ') + 1);
  return rows;
}

// The grid's lines by cell, direction and length: "0,3>40 5,1v3".
inline std::string RulesOf(const Page& page) {
  std::vector<std::string> rules;
  for (const auto& [at, length, down] : page.Rules) {
    rules.push_back(std::to_string(at.Column) + "," + std::to_string(at.Row) + (down ? "v" : ">") +
                    std::to_string(length));
  }
  return Joined(rules, " ");
}
