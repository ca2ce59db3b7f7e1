// Drawing a button with another background: no style of the system offers it, themed or not.
#include "platform/win32/internals.h"
#include "platform/win32/photo.h"
#include "platform/win32/wide.h"

namespace {

struct Colors {
  COLORREF Fill, Text;
};

// One part of the first colour in three of the mixture.
COLORREF Tint(COLORREF color, COLORREF ground) {
  const auto mix = [](int one, int other) { return (one + 2 * other) / 3; };
  return RGB(mix(GetRValue(color), GetRValue(ground)), mix(GetGValue(color), GetGValue(ground)),
             mix(GetBValue(color), GetBValue(ground)));
}

// In high contrast no colour but the system's own may be used; otherwise the full highlight would shout.
Colors MarkedColors() {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof contrast;
  SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0);
  if ((contrast.dwFlags & HCF_HIGHCONTRASTON) != 0) {
    return {GetSysColor(COLOR_HIGHLIGHT), GetSysColor(COLOR_HIGHLIGHTTEXT)};
  }
  return {Tint(GetSysColor(COLOR_HIGHLIGHT), GetSysColor(COLOR_BTNFACE)), GetSysColor(COLOR_BTNTEXT)};
}

void DrawMarked(HWND window, HDC target, RECT rect) {
  const LRESULT state = SendMessageW(window, BM_GETSTATE, 0, 0);
  const LRESULT hidden = SendMessageW(window, WM_QUERYUISTATE, 0, 0);
  const bool enabled = IsWindowEnabled(window) != FALSE;
  const bool pushed = (state & BST_PUSHED) != 0;
  const bool focused = (state & BST_FOCUS) != 0;
  const bool is_default = (GetWindowLongW(window, GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
  const Colors colors = MarkedColors();

  HBRUSH fill = CreateSolidBrush(colors.Fill);
  FillRect(target, &rect, fill);
  DeleteObject(fill);
  if (is_default || focused) {
    FrameRect(target, &rect, GetSysColorBrush(COLOR_WINDOWFRAME));
    InflateRect(&rect, -1, -1);
  }
  FrameRect(target, &rect, GetSysColorBrush(pushed ? COLOR_WINDOWFRAME : COLOR_BTNSHADOW));
  InflateRect(&rect, -2, -2);

  RECT words = rect;
  if (pushed) OffsetRect(&words, 1, 1);
  const std::wstring text = Wide(TextOfWindow(window));
  UINT format = DT_CENTER | DT_VCENTER | DT_SINGLELINE;
  if ((hidden & UISF_HIDEACCEL) != 0) format |= DT_HIDEPREFIX;
  HGDIOBJ font = SelectObject(target, reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)));
  SetBkMode(target, TRANSPARENT);
  SetTextColor(target, enabled ? colors.Text : GetSysColor(COLOR_GRAYTEXT));
  DrawTextW(target, text.c_str(), static_cast<int>(text.size()), &words, format);
  if (focused && (hidden & UISF_HIDEFOCUS) == 0) {
    SetTextColor(target, GetSysColor(COLOR_BTNTEXT));
    DrawFocusRect(target, &rect);
  }
  SelectObject(target, font);
}

}  // namespace

bool Control::Peer::Paint() const {
  if (What != Kind::Picture && (What != Kind::Button || Back != ::BackColor::Marked)) return false;
  RECT inside{};
  GetClientRect(Window, &inside);
  PAINTSTRUCT paint{};
  HDC target = BeginPaint(Window, &paint);
  if (What == Kind::Button) {
    DrawMarked(Window, target, inside);
  } else if (Shown == nullptr || !Shown->Draw(target, inside)) {
    FillRect(target, &inside, GetSysColorBrush(COLOR_BTNFACE));
  }
  EndPaint(Window, &paint);
  return true;
}
