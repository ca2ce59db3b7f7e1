// A page as the rows of text that a person reads, for comparing.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "platform/page.h"
#include "platform/references.h"

// Hits stand in <>, what is selected in []; what would stand on something else is told with its column.
inline std::vector<std::string> RowsOf(const Page& page, bool marked = false) {
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
    const std::size_t style = marked ? 2 * static_cast<std::size_t>(run.Style) : 0;
    row += marks[style] + run.Text + marks[style + 1];
  }
  for (std::string& row : rows) row.erase(row.find_last_not_of(' ') + 1);
  return rows;
}
