// Drawing pages of fixed-pitch text: on the screen at a font's own cells, on paper at those of a sheet.
#pragma once

#include <windows.h>

#include <string>

#include "platform/page.h"

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

// Draws the text and rules of a page in black. Where one of the page's columns begins does not depend on the device,
// so that a preview and the printer agree.
void DrawOnPaper(HDC target, const Page& page, const Sheet& sheet, const OnDevice& place);
