// A page of fixed-pitch text as plain data, measured in character cells: what a surface shows and what a printer
// prints, so that both show the same.
#pragma once

#include <string>
#include <vector>

// A place among the cells: the first column and row are 0.
struct Cell {
  int Column = 0;
  int Row = 0;
  bool operator==(const Cell&) const = default;
};

// How a run of text stands out. A printer knows only plain text.
enum class Ink { Plain, Hit, Selected };

// Text on one row, a character a cell.
struct TextRun {
  Cell At;
  std::string Text;
  Ink Style = Ink::Plain;
};

// A thin line from the upper left corner of a cell along the upper edges (across) or the left ones (down) of so
// many cells.
struct Rule {
  Cell At;
  int Length = 0;
  bool Down = false;
};

struct Page {
  std::vector<TextRun> Runs;
  std::vector<Rule> Rules;
  int HeadRows = 0;         // rows at the top that stay: a surface gives them a ground of their own
  int LeftColumns = 0;      // columns at the left that stay: a line parts them from the others
  int LeftFrom = 0;         // the row from which that line goes down
  bool ShowsCaret = false;  // at Caret, while the surface has the focus
  Cell Caret;
};

// A sheet of paper with the margins that nothing is printed on, and the size of the text, in points (1/72 inch).
struct Sheet {
  double Width = 595;  // A4
  double Height = 842;
  double Left = 36, Top = 36, Right = 36, Bottom = 36;
  double TextSize = 10;

  double CellWidth() const { return TextSize * 0.55; }
  double CellHeight() const { return TextSize * 1.2; }
  int Columns() const { return Whole((Width - Left - Right) / CellWidth()); }
  int Rows() const { return Whole((Height - Top - Bottom) / CellHeight()); }

 private:
  static int Whole(double cells) { return cells < 1 ? 1 : static_cast<int>(cells + 0.001); }
};
