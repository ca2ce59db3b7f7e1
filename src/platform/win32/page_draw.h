// Drawing pages of fixed-pitch text: on the screen at a font's own cells, on paper at those of a sheet.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "platform/page.h"
#include "platform/win32/wide.h"

// An object of the drawing system, deleted with its owner.
template <typename Object>
class Drawn {
 public:
  explicit Drawn(Object object) : object_(object) {}
  ~Drawn() { DeleteObject(object_); }
  Drawn(const Drawn&) = delete;
  Drawn& operator=(const Drawn&) = delete;
  Object Get() const { return object_; }

 private:
  Object object_;
};

// A fixed-pitch font that the system has, of that height without leading, and of that width of a character (0: its
// natural one). The caller deletes it.
HFONT MakeFixedFont(int height, int width);

// How a sheet lies on a device: where its upper left corner is, and how many device units a point has.
struct OnDevice {
  POINT Corner;
  double AcrossPoint;
  double DownPoint;
};

// The text of a run, and how far each of its units goes on when `width_of` tells the width of a cell, counted from the
// run's first: the halves of a character lie in one, and the second goes on.
struct CellText {
  std::wstring Text;
  std::vector<INT> Steps;
  int Cells = 0;
};
template <typename WidthOf>
CellText InCells(const TextRun& run, WidthOf width_of) {
  CellText cells{Wide(run.Text), {}, 0};
  for (const wchar_t unit : cells.Text) cells.Steps.push_back(IS_HIGH_SURROGATE(unit) ? 0 : width_of(cells.Cells++));
  return cells;
}

// Draws the text and rules of a page in black. Where one of the page's columns begins does not depend on the device,
// so that a preview and the printer agree.
void DrawOnPaper(HDC target, const Page& page, const Sheet& sheet, const OnDevice& place);
