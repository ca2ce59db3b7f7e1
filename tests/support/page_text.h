// A page as the rows of text that a person reads, for comparing.
#pragma once

#include <string>
#include <vector>

#include "platform/page.h"
#include "platform/references.h"

// Hits stand in <>, what is selected in []. Rows without text are left out at the end only.
inline std::vector<std::string> RowsOf(const Page& page, bool marked = false) {
  std::vector<std::string> rows;
  std::vector<std::size_t> ends;  // in cells
  for (const TextRun& run : page.Runs) {
    const auto row = static_cast<std::size_t>(run.At.Row), column = static_cast<std::size_t>(run.At.Column);
    if (rows.size() <= row) {
      rows.resize(row + 1);
      ends.resize(row + 1);
    }
    if (column > ends[row]) rows[row].append(column - ends[row], ' ');
    ends[row] = column + CountCharacters(run.Text);
    const bool plain = !marked || run.Style == Ink::Plain;
    const char* const marks = run.Style == Ink::Hit ? "<>" : "[]";
    if (!plain) rows[row] += marks[0];
    rows[row] += run.Text;
    if (!plain) rows[row] += marks[1];
  }
  for (std::string& row : rows) row.erase(row.find_last_not_of(' ') + 1);
  return rows;
}
