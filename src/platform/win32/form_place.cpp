// Where a form appears on the screen, and where it stood before.
#include <algorithm>
#include <sstream>

#include "platform/win32/internals.h"

namespace {

// Moves the window there, but keeps it on the work area, and no larger than that if it can be resized; the upper left
// corner counts most.
void MoveOnto(const RECT& area, HWND window, const RECT& wanted, bool resizes) {
  LONG width = wanted.right - wanted.left;
  LONG height = wanted.bottom - wanted.top;
  if (resizes) {
    width = std::min(width, area.right - area.left);
    height = std::min(height, area.bottom - area.top);
  }
  const LONG left = std::max(std::min(wanted.left, area.right - width), area.left);
  const LONG top = std::max(std::min(wanted.top, area.bottom - height), area.top);
  SetWindowPos(window, nullptr, left, top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

std::string Form::Place() const {
  WINDOWPLACEMENT placement{};
  placement.length = sizeof placement;
  if (!peer_->Sizes.Resizes() || !GetWindowPlacement(peer_->Window, &placement)) return {};
  const bool maximized = placement.showCmd == SW_SHOWMAXIMIZED || (placement.flags & WPF_RESTORETOMAXIMIZED) != 0;
  const RECT& rect = placement.rcNormalPosition;
  std::ostringstream text;
  text << rect.left << ' ' << rect.top << ' ' << rect.right << ' ' << rect.bottom << ' ' << maximized << ' '
       << GetDpiForWindow(peer_->Window);
  return text.str();
}

void Form::SetPlace(std::string_view place) {
  std::istringstream text{std::string(place)};
  StoodAt stood{};
  int dpi = 0;
  text >> stood.Rect.left >> stood.Rect.top >> stood.Rect.right >> stood.Rect.bottom >> stood.Maximized >> dpi;
  if (!text || dpi <= 0 || stood.Rect.left >= stood.Rect.right || stood.Rect.top >= stood.Rect.bottom) return;
  // The screen may write larger or smaller by now.
  const int now = static_cast<int>(GetDpiForWindow(peer_->Window));
  stood.Rect.right = stood.Rect.left + MulDiv(stood.Rect.right - stood.Rect.left, now, dpi);
  stood.Rect.bottom = stood.Rect.top + MulDiv(stood.Rect.bottom - stood.Rect.top, now, dpi);
  peer_->Stood = stood;
}

void Form::Peer::Place(HWND owner) const {
  // Twice, since the form changes its size on the way to a screen of another resolution.
  for (int pass = 0; pass < 2; ++pass) {
    RECT own{};
    GetWindowRect(Window, &own);
    if (Below != nullptr) {
      RECT above{};
      GetWindowRect(Below->PeerOf().Window, &above);
      OffsetRect(&own, above.left - own.left, above.bottom - own.top);
      MoveOnto(WorkAreaOf(Below->PeerOf().Window), Window, own, false);
      continue;
    }
    if (Stood && Sizes.Resizes()) {
      MoveOnto(WorkAreaAt(MonitorFromRect(&Stood->Rect, MONITOR_DEFAULTTONEAREST)), Window, Stood->Rect, true);
      continue;
    }
    const RECT area = WorkAreaOf(owner == nullptr ? Window : owner);
    RECT around = area;
    if (owner != nullptr && !IsIconic(owner)) GetWindowRect(owner, &around);
    OffsetRect(&own, (around.left + around.right - own.left - own.right) / 2,
               (around.top + around.bottom - own.top - own.bottom) / 2);
    MoveOnto(area, Window, own, Sizes.Resizes());
  }
}
