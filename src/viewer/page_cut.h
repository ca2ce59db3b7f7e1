// What part of a report stands on one page, on the screen or on paper: titles and headings at the top and columns at
// the left stay, the rest is a window over the lines.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/page.h"
#include "viewer/report_text.h"

struct PageCut {
  int Rows = 1;  // of the page
  int Columns = 1;
  int HeadRows = 0;     // the report's first lines, which stay at the top
  int LeftColumns = 0;  // its first columns, which stay at the left
  Index Top = 0;        // the line below the head
  Index Left = 0;       // the column behind those at the left
};

// How many of the lines or columns that shall stay do: all, or none when less than a third of the room would be left
// to the others.
int Staying(Index wanted, int room);

// A cut at the report's beginning, for a page of that size.
PageCut CutFor(const ReportText& text, int rows, int columns);

// True for the titles as long as they fit: they do not move sideways.
bool KeepsStill(const ReportText& text, const PageCut& cut, int row);

// A part of a line and where it stands on the page.
struct Piece {
  Cell At;
  Place From;
  std::string_view Text;
};

std::vector<Piece> PiecesOf(const ReportText& text, const PageCut& cut);

// The columns behind which a heading ends: two blanks or more follow in all heading lines, and the place is the middle
// of the first two.
std::vector<Index> ColumnEdges(const ReportText& text);

// The lines of the grid, when the report asks for one: under each row, at the column edges and at the columns that
// stay.
std::vector<Rule> GridOf(const ReportText& text, const PageCut& cut);
