// Arranging controls when their form is resized, and keeping up with other screen resolutions.
#include "platform/win32/layout.h"

#include <algorithm>
#include <iterator>

namespace {

SIZE SizeOf(const RECT& rect) { return {rect.right - rect.left, rect.bottom - rect.top}; }

RECT RectIn(HWND form, HWND control) {
  RECT rect{};
  GetWindowRect(control, &rect);
  MapWindowPoints(nullptr, form, reinterpret_cast<POINT*>(&rect), 2);
  return rect;
}

bool HasClass(HWND control, const wchar_t* name) {
  wchar_t found[32] = L"";
  GetClassNameW(control, found, static_cast<int>(std::size(found)));
  return lstrcmpiW(found, name) == 0;
}

// The height of a drop-down is to be given with its list.
LONG DroppedHeight(HWND combo) {
  RECT dropped{};
  SendMessageW(combo, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
  return dropped.bottom - dropped.top;
}

// Resizing a drop-down marks its text; this remembers what was marked.
struct Marks {
  HWND Combo;
  DWORD First = 0, Last = 0;
};

}  // namespace

RECT WorkAreaAt(HMONITOR screen) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(screen, &monitor);
  return monitor.rcWork;
}

RECT WorkAreaOf(HWND window) { return WorkAreaAt(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST)); }

void Layout::Begin(HWND form) {
  form_ = form;
  base_ = Inside();
  RECT whole{};
  GetWindowRect(form, &whole);
  smallest_ = SizeOf(whole);
  dpi_ = GetDpiForWindow(form);
}

SIZE Layout::Inside() const {
  RECT rect{};
  GetClientRect(form_, &rect);
  return SizeOf(rect);
}

void Layout::Anchor(HWND control, const Follow& follow) { items_.push_back({control, follow, RectIn(form_, control)}); }

void Layout::MayShrink(int units) {
  RECT distance{0, 0, 0, units};
  MapDialogRect(form_, &distance);
  smallest_.cy -= distance.bottom;
}

void Layout::RemoveRows(HWND first, HWND next) {
  const LONG from = RectIn(form_, next).top;
  const LONG height = from - RectIn(form_, first).top;
  constexpr UINT kFlags = SWP_NOZORDER | SWP_NOACTIVATE;
  for (HWND each = GetWindow(form_, GW_CHILD); each != nullptr; each = GetWindow(each, GW_HWNDNEXT)) {
    const RECT rect = RectIn(form_, each);
    if (rect.top >= from) SetWindowPos(each, nullptr, rect.left, rect.top - height, 0, 0, SWP_NOSIZE | kFlags);
  }
  RECT whole{};
  GetWindowRect(form_, &whole);
  const SIZE size = SizeOf(whole);
  SetWindowPos(form_, nullptr, 0, 0, size.cx, size.cy - height, SWP_NOMOVE | kFlags);
  Begin(form_);
}

RECT Layout::Target(const Item& item, const SIZE& inside) const {
  const int wider = inside.cx - base_.cx;
  const int higher = inside.cy - base_.cy;
  const auto share = [](int growth, int percent) { return MulDiv(growth, percent, 100); };
  return {item.Base.left + share(wider, item.Shares.Left), item.Base.top + share(higher, item.Shares.Top),
          item.Base.right + share(wider, item.Shares.Right), item.Base.bottom + share(higher, item.Shares.Bottom)};
}

void Layout::Arrange() const {
  if (scaling_ || items_.empty() || IsIconic(form_)) return;
  const SIZE inside = Inside();
  std::vector<Marks> marks;
  HDWP moves = BeginDeferWindowPos(static_cast<int>(items_.size()));
  for (const Item& item : items_) {
    const RECT rect = Target(item, inside);
    const SIZE size = SizeOf(rect);
    LONG height = size.cy;
    if (HasClass(item.Control, L"ComboBox")) {
      height = DroppedHeight(item.Control);
      Marks mark{item.Control};
      SendMessageW(item.Control, CB_GETEDITSEL, reinterpret_cast<WPARAM>(&mark.First),
                   reinterpret_cast<LPARAM>(&mark.Last));
      marks.push_back(mark);
    }
    // Copied, the contents would be wrong where they are centred or not yet painted.
    constexpr UINT kFlags = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS;
    moves = DeferWindowPos(moves, item.Control, nullptr, rect.left, rect.top, size.cx, height, kFlags);
    if (moves == nullptr) return;
  }
  EndDeferWindowPos(moves);
  for (const Marks& mark : marks) {
    SendMessageW(mark.Combo, CB_SETEDITSEL, 0, MAKELPARAM(mark.First, mark.Last));
  }
}

void Layout::Limit(MINMAXINFO& limits) const {
  if (items_.empty()) limits.ptMaxTrackSize = {SHRT_MAX, SHRT_MAX};
  if (items_.empty() || scaling_) return;
  const SIZE room = SizeOf(WorkAreaOf(form_));
  limits.ptMinTrackSize = {std::min(smallest_.cx, room.cx), std::min(smallest_.cy, room.cy)};
}

void Layout::BeginScaling(UINT new_dpi) {
  scaling_ = true;
  smallest_.cx = MulDiv(smallest_.cx, static_cast<int>(new_dpi), static_cast<int>(dpi_));
  smallest_.cy = MulDiv(smallest_.cy, static_cast<int>(new_dpi), static_cast<int>(dpi_));
  dpi_ = new_dpi;
}

void Layout::EndScaling() {
  if (!scaling_) return;
  scaling_ = false;
  base_ = Inside();
  for (Item& item : items_) item.Base = RectIn(form_, item.Control);
}
