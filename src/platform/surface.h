// A surface: a control that shows a page of fixed-pitch text with scroll bars, and tells what the user does to it
// in character cells. What is shown where, and what a key does, is for the program to say.
#pragma once

#include "platform/control.h"
#include "platform/form.h"
#include "platform/page.h"

// A key pressed while the surface has the focus.
struct KeyPress {
  Key What;
  bool Shift = false;
  bool Control = false;
};

// The mouse's left button was pressed, the mouse moved with it down, or a word was clicked twice. Dragging may leave
// the surface, at any side; while it is outside, it is told again and again.
struct MousePress {
  enum class Act { Press, Drag, DoubleClick };
  Act What;
  Cell At;
  bool Shift = false;
};

// The wheel was turned: positive is downwards or to the right.
struct WheelTurn {
  int Cells;     // rows or columns, as many as the user has set for a notch
  bool Across;   // Shift was held, or the wheel was tilted
  bool Control;  // Ctrl was held: Cells counts notches
};

// How much of a sheet of paper a surface shows.
struct PaperView {
  int Percent = 0;           // of its true size; 0: as large as fits
  double Left = 0, Top = 0;  // the point at the surface's upper left corner, where the sheet is larger than that
};

class Surface : public Control {
 public:
  enum class Bar { Across, Down };

  Surface(Form& owner, int id) : Control(owner, id, Kind::Surface) {}

  // How many whole cells fit on it; never less than 1.
  int Columns() const;
  int Rows() const;

  // The size of the text in points; 10 until it is set. May change Columns and Rows, without an event.
  void SetTextSize(double points);
  double TextSize() const;

  // Shows the page from the upper left corner; what does not fit is cut off.
  void Show(Page page);

  // Shows the page as it would come out on the sheet.
  void ShowOnPaper(Page page, const Sheet& sheet, const PaperView& view = {});

  // How many points of a sheet in its true size there is room for.
  double Width() const;
  double Height() const;

  // Sets a scroll bar for `range` rows or columns of which `shown` are in view, from `position` on. A bar that has
  // nothing to scroll is greyed. Raises nothing.
  void SetScroll(Bar bar, int range, int shown, int position);

  // The user moved a scroll bar to a position within its range. The bar itself moves by SetScroll only.
  std::function<void(Bar bar, int position)> Scroll;

  Event Resize;  // Columns or Rows changed, with the form or the screen's resolution
  std::function<void(const KeyPress&)> KeyDown;
  std::function<void(const MousePress&)> Mouse;
  std::function<void(const WheelTurn&)> Wheel;
  Event CopyKey;       // Ctrl+C or Ctrl+Ins
  Event SelectAllKey;  // Ctrl+A
};
