// The surface on Windows: its window, its size in cells, and what the user does to it.
#include "platform/surface.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/win32/internals.h"
#include "platform/win32/keys.h"
#include "platform/win32/surface_work.h"

namespace {

constexpr UINT_PTR kDragTimer = 1;
constexpr UINT kDragInterval = 50;  // milliseconds
constexpr WPARAM kControlA = 1, kControlC = 3;

bool IsDown(int key) { return GetKeyState(key) < 0; }

int Setting(UINT which, int otherwise) {
  UINT value = 0;
  return SystemParametersInfoW(which, 0, &value, 0) ? static_cast<int>(std::min(value, 0x7FFFU)) : otherwise;
}

// Rounds down also below 0, where the mouse is left of the window or above it.
int Cells(LONG pixels, LONG size) {
  return static_cast<int>(pixels >= 0 ? pixels / size : -((size - 1 - pixels) / size));
}

int BarOf(Surface::Bar bar) { return bar == Surface::Bar::Across ? SB_HORZ : SB_VERT; }

}  // namespace

void RegisterSurfaceClass() {
  WNDCLASSW kind{};
  kind.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
  kind.lpfnWndProc = DefWindowProcW;
  kind.hInstance = GetModuleHandleW(nullptr);
  kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  kind.lpszClassName = kSurfaceClass;
  RegisterClassW(&kind);
}

int Surface::Columns() const { return PeerOf().Work->Columns; }
int Surface::Rows() const { return PeerOf().Work->Rows; }
void Surface::SetTextSize(double points) { PeerOf().Work->SetTextSize(points); }
double Surface::TextSize() const { return PeerOf().Work->TextSize; }
void Surface::Show(Page page) { PeerOf().Work->Show(std::move(page), std::nullopt); }
void Surface::ShowOnPaper(Page page, const Sheet& sheet, const PaperView& view) {
  PeerOf().Work->Show(std::move(page), sheet, view);
}
double Surface::Width() const { return PeerOf().Work->Points(true); }
double Surface::Height() const { return PeerOf().Work->Points(false); }

void Surface::SetScroll(Bar bar, int range, int shown, int position) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  // Never hidden, which would change the size and with it what there is to scroll.
  info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
  info.nMax = std::max(0, range - 1);
  info.nPage = static_cast<UINT>(std::max(1, shown));
  info.nPos = position;
  SetScrollInfo(PeerOf().Window, BarOf(bar), &info, TRUE);
}

SurfaceWork::SurfaceWork(Control::Peer& peer) : peer_(peer) {
  MeasureCells();
  Measure();
}

SurfaceWork::~SurfaceWork() { DeleteObject(font_); }

HWND SurfaceWork::Window() const { return peer_.Window; }
Surface& SurfaceWork::Owner() { return static_cast<Surface&>(*peer_.Self); }

template <typename Handler, typename... Arguments>
void SurfaceWork::Tell(const Handler& handler, const Arguments&... arguments) {
  const Handler kept = handler;
  if (kept) peer_.Owner->PeerOf().Guard([&] { kept(arguments...); });
}

void SurfaceWork::SetTextSize(double points) {
  TextSize = points;
  MeasureCells();
  Measure();
  InvalidateRect(Window(), nullptr, FALSE);
}

void SurfaceWork::Show(Page page, const std::optional<Sheet>& sheet, const PaperView& view) {
  Shown = std::move(page);
  Paper = sheet;
  View = view;
  InvalidateRect(Window(), nullptr, FALSE);
}

double SurfaceWork::Points(bool across) const {
  RECT inside{};
  GetClientRect(Window(), &inside);
  return (across ? inside.right : inside.bottom) * 72.0 / GetDpiForWindow(Window());
}

void SurfaceWork::MeasureCells() {
  DeleteObject(font_);
  font_ = MakeFixedFont(static_cast<int>(std::lround(TextSize * GetDpiForWindow(Window()) / 72)), 0);
  HDC screen = GetDC(Window());
  HGDIOBJ before = SelectObject(screen, font_);
  TEXTMETRICW metrics{};
  GetTextMetricsW(screen, &metrics);
  SIZE digit{};
  GetTextExtentPoint32W(screen, L"0", 1, &digit);
  SelectObject(screen, before);
  ReleaseDC(Window(), screen);
  cell_ = {std::max(1L, digit.cx), std::max(1L, metrics.tmHeight)};
  margin_ = cell_.cx / 2;
}

void SurfaceWork::Measure() {
  RECT inside{};
  GetClientRect(Window(), &inside);
  Columns = std::max(1, static_cast<int>((inside.right - margin_) / cell_.cx));
  Rows = std::max(1, static_cast<int>(inside.bottom / cell_.cy));
}

void SurfaceWork::MayHaveResized() {
  const int columns = Columns;
  const int rows = Rows;
  Measure();
  InvalidateRect(Window(), nullptr, FALSE);
  if (columns != Columns || rows != Rows) Tell(Owner().Resize);
}

Cell SurfaceWork::CellAt(POINT point) const { return {Cells(point.x - margin_, cell_.cx), Cells(point.y, cell_.cy)}; }

RECT SurfaceWork::RectOf(const Cell& cell, int columns, int rows) const {
  const LONG left = margin_ + cell.Column * cell_.cx;
  const LONG top = cell.Row * cell_.cy;
  return {left, top, left + columns * cell_.cx, top + rows * cell_.cy};
}

bool SurfaceWork::Take(UINT message, WPARAM first, LPARAM second, LRESULT& result) {
  switch (message) {
    case WM_PAINT:
      Paint(nullptr);
      return true;
    case WM_PRINTCLIENT:
      Paint(reinterpret_cast<HDC>(first));
      return true;
    case WM_ERASEBKGND:
      result = TRUE;
      return true;
    case WM_SIZE:
      MayHaveResized();
      return false;
    case WM_DPICHANGED_AFTERPARENT:
      MeasureCells();
      MayHaveResized();
      return false;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_SYSCOLORCHANGE:
      InvalidateRect(Window(), nullptr, FALSE);
      return false;
    case WM_GETDLGCODE:
      result = DLGC_WANTARROWS | DLGC_WANTCHARS;  // without the second, letters would be access keys
      return true;
    case WM_SETCURSOR:
      if (LOWORD(second) != HTCLIENT || Paper) return false;
      SetCursor(LoadCursorW(nullptr, IDC_IBEAM));
      result = TRUE;
      return true;
    case WM_KEYDOWN:
      return TakeKey(first);
    case WM_CHAR:
      if (first == kControlA) Tell(Owner().SelectAllKey);
      if (first == kControlC) Tell(Owner().CopyKey);
      return true;
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
      TakeWheel(first, message == WM_MOUSEHWHEEL);
      return true;
    case WM_VSCROLL:
    case WM_HSCROLL:
      TakeScroll(message == WM_VSCROLL ? Surface::Bar::Down : Surface::Bar::Across, LOWORD(first));
      return true;
    default:
      return TakeMouse(message, first, second);
  }
}

bool SurfaceWork::TakeMouse(UINT message, WPARAM first, LPARAM second) {
  const bool shift = (first & MK_SHIFT) != 0;
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      mouse_ = {static_cast<short>(LOWORD(second)), static_cast<short>(HIWORD(second))};
      peer_.Owner->PeerOf().Guard([this] { peer_.Self->SetFocus(); });
      SetCapture(Window());
      dragging_ = true;
      SetTimer(Window(), kDragTimer, kDragInterval, nullptr);
      TellMouse(message == WM_LBUTTONDOWN ? MousePress::Act::Press : MousePress::Act::DoubleClick, shift);
      return true;
    case WM_MOUSEMOVE: {
      const POINT before = mouse_;
      mouse_ = {static_cast<short>(LOWORD(second)), static_cast<short>(HIWORD(second))};
      // A hand is never quite still: within the cell nothing has moved.
      if (dragging_ && CellAt(before) != CellAt(mouse_)) TellMouse(MousePress::Act::Drag, shift);
      return true;
    }
    case WM_TIMER: {
      RECT inside{};
      GetClientRect(Window(), &inside);
      if (first == kDragTimer && dragging_ && !PtInRect(&inside, mouse_)) TellMouse(MousePress::Act::Drag, false);
      return true;
    }
    case WM_LBUTTONUP:
      if (dragging_) ReleaseCapture();
      return true;
    case WM_CAPTURECHANGED:
      StopDragging();
      return true;
    default:
      return false;
  }
}

void SurfaceWork::TellMouse(MousePress::Act act, bool shift) {
  Tell(Owner().Mouse, MousePress{act, CellAt(mouse_), shift});
}

void SurfaceWork::StopDragging() {
  dragging_ = false;
  KillTimer(Window(), kDragTimer);
}

void SurfaceWork::TakeWheel(WPARAM first, bool tilted) {
  const bool control = (LOWORD(first) & MK_CONTROL) != 0;
  const bool across = tilted || (LOWORD(first) & MK_SHIFT) != 0;
  int cells = control ? 1 : Setting(across ? SPI_GETWHEELSCROLLCHARS : SPI_GETWHEELSCROLLLINES, 3);
  cells = std::min(cells, across ? Columns : Rows);  // the setting may be "a page"
  wheel_left_ += (tilted ? 1 : -1) * static_cast<short>(HIWORD(first)) * cells;
  const int whole = wheel_left_ / WHEEL_DELTA;
  wheel_left_ -= whole * WHEEL_DELTA;
  if (whole != 0) Tell(Owner().Wheel, WheelTurn{whole, across, control});
}

void SurfaceWork::TakeScroll(Surface::Bar bar, int request) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  GetScrollInfo(Window(), BarOf(bar), &info);
  const int page = std::max(1, static_cast<int>(info.nPage) - 1);
  int position = info.nPos;
  // The requests of both bars have the same numbers.
  if (request == SB_LINEUP) position -= 1;
  if (request == SB_LINEDOWN) position += 1;
  if (request == SB_PAGEUP) position -= page;
  if (request == SB_PAGEDOWN) position += page;
  if (request == SB_TOP) position = info.nMin;
  if (request == SB_BOTTOM) position = info.nMax;
  if (request == SB_THUMBTRACK || request == SB_THUMBPOSITION) position = info.nTrackPos;
  position = std::clamp(position, 0, std::max(0, info.nMax + 1 - static_cast<int>(info.nPage)));
  if (position != info.nPos) Tell(Owner().Scroll, bar, position);
}

bool SurfaceWork::TakeKey(WPARAM code) {
  if (code == VK_INSERT && IsDown(VK_CONTROL)) Tell(Owner().CopyKey);
  const std::optional<Key> key = KeyOfCode(code);
  if (!key) return false;
  Tell(Owner().KeyDown, KeyPress{*key, IsDown(VK_SHIFT), IsDown(VK_CONTROL)});
  return true;
}
