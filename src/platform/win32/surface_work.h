// What a surface is on Windows: a window of a class of its own, drawn here.
#pragma once

#include <windows.h>

#include <optional>

#include "platform/surface.h"
#include "platform/win32/page_draw.h"

// The name of the class in the templates; it must be registered before a template uses it.
inline constexpr const wchar_t* kSurfaceClass = L"LarkspurSurface";
void RegisterSurfaceClass();

class SurfaceWork {
 public:
  explicit SurfaceWork(Control::Peer& peer);

  // Takes a message of the window; false when the window's own procedure is to have it too.
  bool Take(UINT message, WPARAM first, LPARAM second, LRESULT& result);

  void SetTextSize(double points);
  void Show(Page page, const std::optional<Sheet>& sheet);

  // Where a cell is in the window.
  RECT RectOf(const Cell& cell, int columns = 1, int rows = 1) const;

  double TextSize = 10;
  int Columns = 1, Rows = 1;
  Page Shown;
  std::optional<Sheet> Paper;

 private:
  HWND Window() const;
  Surface& Owner();
  void MeasureCells();
  void Measure();
  void MayHaveResized();
  Cell CellAt(POINT point) const;

  void Paint(HDC given);
  void DrawCells(HDC target, const RECT& inside) const;
  void DrawRun(HDC target, const TextRun& run) const;
  void DrawLines(HDC target, const RECT& inside) const;
  void DrawPaper(HDC target, const RECT& inside) const;

  bool TakeMouse(UINT message, WPARAM first, LPARAM second);
  void TellMouse(MousePress::Act act, bool shift);
  void StopDragging();
  void TakeWheel(WPARAM first, bool tilted);
  void TakeScroll(Surface::Bar bar, int request);
  bool TakeKey(WPARAM code);

  // Raises an event of the owner's; what its handler throws is carried to the message loop.
  template <typename Handler, typename... Arguments>
  void Tell(const Handler& handler, const Arguments&... arguments);

  Control::Peer& peer_;
  HFONT font_ = nullptr;
  SIZE cell_{8, 16};
  LONG margin_ = 2;  // left of the first column
  bool dragging_ = false;
  POINT mouse_{};       // where it was last
  int wheel_left_ = 0;  // turned, but no whole cell yet

 public:
  ~SurfaceWork();
  SurfaceWork(const SurfaceWork&) = delete;
  SurfaceWork& operator=(const SurfaceWork&) = delete;
};
