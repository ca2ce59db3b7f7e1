// Cutting pages out of a report: see page_cut.h.
#include "viewer/page_cut.h"

#include <algorithm>

namespace {

// Adds the part of a line that begins at a column and fills so many cells from `at` on.
void AddPiece(std::vector<Piece>& pieces, std::string_view line, const Place& from, const Cell& at, int width) {
  const auto column = static_cast<std::size_t>(from.Column);
  if (width <= 0) return;
  // Empty pieces too: a selected line end has its place on the page.
  const std::string_view part = column < line.size() ? line.substr(column, static_cast<std::size_t>(width)) : "";
  pieces.push_back({at, from, part});
}

int RowsInUse(const ReportText& text, const PageCut& cut) {
  const Index lines = std::max<Index>(0, text.Count() - cut.Top);
  return static_cast<int>(std::min<Index>(cut.Rows, cut.HeadRows + lines));
}

}  // namespace

int Staying(Index wanted, int room) { return wanted * 3 <= Index{room} * 2 ? static_cast<int>(wanted) : 0; }

PageCut CutFor(const ReportText& text, int rows, int columns) {
  PageCut cut;
  cut.Rows = rows;
  cut.Columns = columns;
  cut.HeadRows = Staying(text.HeadLines(), rows);
  cut.LeftColumns = Staying(text.Header().Left, columns);
  cut.Top = cut.HeadRows;
  cut.Left = cut.LeftColumns;
  return cut;
}

bool KeepsStill(const ReportText& text, const PageCut& cut, int row) {
  const Index titles = std::min<Index>(cut.HeadRows, text.TitleLines());
  if (row >= titles) return false;
  for (Index line = 0; line < titles; ++line) {
    if (static_cast<Index>(text.Line(line).size()) > cut.Columns) return false;
  }
  return true;
}

std::vector<Piece> PiecesOf(const ReportText& text, const PageCut& cut) {
  std::vector<Piece> pieces;
  const int rows = RowsInUse(text, cut);
  for (int row = 0; row < rows; ++row) {
    const Index number = row < cut.HeadRows ? row : cut.Top + row - cut.HeadRows;
    const std::string_view line = text.Line(number);
    if (KeepsStill(text, cut, row)) {
      AddPiece(pieces, line, {number, 0}, {0, row}, cut.Columns);
      continue;
    }
    AddPiece(pieces, line, {number, 0}, {0, row}, cut.LeftColumns);
    AddPiece(pieces, line, {number, cut.Left}, {cut.LeftColumns, row}, cut.Columns - cut.LeftColumns);
  }
  return pieces;
}

std::vector<Index> ColumnEdges(const ReportText& text) {
  const Index first = std::max(text.TitleLines(), text.HeadLines() - text.Header().Headings);
  std::string shadow;  // not blank where any heading line is not
  for (Index line = first; line < text.HeadLines(); ++line) {
    const std::string_view heading = text.Line(line);
    if (shadow.size() < heading.size()) shadow.resize(heading.size(), ' ');
    for (std::size_t column = 0; column < heading.size(); ++column) {
      if (heading[column] != ' ') shadow[column] = heading[column];
    }
  }
  shadow.erase(shadow.find_last_not_of(' ') + 1);
  std::vector<Index> edges;
  for (std::size_t gap = shadow.find("  "); gap != std::string::npos; gap = shadow.find("  ", gap)) {
    if (gap > 0) edges.push_back(static_cast<Index>(gap) + 1);
    gap = shadow.find_first_not_of(' ', gap);
  }
  if (!shadow.empty()) edges.push_back(static_cast<Index>(shadow.size()) + 1);
  return edges;
}

std::vector<Rule> GridOf(const ReportText& text, const PageCut& cut) {
  std::vector<Rule> rules;
  if (!text.Header().Grid) return rules;
  const int rows = RowsInUse(text, cut);
  for (int row = cut.HeadRows; row < rows; ++row) rules.push_back({{0, row + 1}, cut.Columns, false});
  const int first = static_cast<int>(std::min<Index>(cut.HeadRows, text.TitleLines()));
  std::vector<Index> edges = ColumnEdges(text);
  if (cut.LeftColumns > 0) edges.push_back(cut.LeftColumns);
  for (const Index edge : edges) {
    const bool stays = edge <= cut.LeftColumns;
    const Index column = stays ? edge : edge - cut.Left + cut.LeftColumns;
    if (!stays && (edge <= cut.Left || column > cut.Columns)) continue;
    rules.push_back({{static_cast<int>(column), first}, rows - first, true});
  }
  return rules;
}
