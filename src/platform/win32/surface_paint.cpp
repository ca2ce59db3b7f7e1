// Drawing a surface: all of it anew, in memory first, so that nothing flickers.
#include <algorithm>

#include "platform/win32/internals.h"
#include "platform/win32/surface_work.h"

namespace {

constexpr COLORREF kHitGround = RGB(255, 224, 102), kHitText = RGB(0, 0, 0);

bool HighContrast() {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof contrast;
  SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0);
  return (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

// One part of the text's colour in five: seen on any ground, and weaker than the text.
COLORREF GridColor() {
  if (HighContrast()) return GetSysColor(COLOR_GRAYTEXT);
  const COLORREF text = GetSysColor(COLOR_WINDOWTEXT);
  const COLORREF ground = GetSysColor(COLOR_WINDOW);
  const auto mix = [](int one, int other) { return (one + 4 * other) / 5; };
  return RGB(mix(GetRValue(text), GetRValue(ground)), mix(GetGValue(text), GetGValue(ground)),
             mix(GetBValue(text), GetBValue(ground)));
}

void Fill(HDC target, const RECT& rect, int color) { FillRect(target, &rect, GetSysColorBrush(color)); }

}  // namespace

void SurfaceWork::Paint(HDC given) {
  RECT inside{};
  GetClientRect(Window(), &inside);
  PAINTSTRUCT paint{};
  HDC target = given != nullptr ? given : BeginPaint(Window(), &paint);
  HDC memory = CreateCompatibleDC(target);
  HBITMAP bitmap = CreateCompatibleBitmap(target, std::max(1L, inside.right), std::max(1L, inside.bottom));
  HGDIOBJ before = SelectObject(memory, bitmap);
  if (Paper) {
    DrawPaper(memory, inside);
  } else {
    DrawCells(memory, inside);
    DrawLines(memory, inside);
  }
  BitBlt(target, 0, 0, inside.right, inside.bottom, memory, 0, 0, SRCCOPY);
  SelectObject(memory, before);
  DeleteObject(bitmap);
  DeleteDC(memory);
  if (given == nullptr) EndPaint(Window(), &paint);
}

void SurfaceWork::DrawCells(HDC target, const RECT& inside) const {
  Fill(target, inside, COLOR_WINDOW);
  RECT head = inside;
  head.bottom = Shown.HeadRows * cell_.cy;
  Fill(target, head, COLOR_BTNFACE);
  HGDIOBJ before = SelectObject(target, font_);
  for (const TextRun& run : Shown.Runs) DrawRun(target, run);
  SelectObject(target, before);
}

void SurfaceWork::DrawRun(HDC target, const TextRun& run) const {
  const bool in_head = run.At.Row < Shown.HeadRows;
  COLORREF ground = GetSysColor(in_head ? COLOR_BTNFACE : COLOR_WINDOW);
  COLORREF ink = GetSysColor(in_head ? COLOR_BTNTEXT : COLOR_WINDOWTEXT);
  const bool framed = run.Style == Ink::Hit && HighContrast();
  if (run.Style == Ink::Selected) {
    ground = GetSysColor(COLOR_HIGHLIGHT);
    ink = GetSysColor(COLOR_HIGHLIGHTTEXT);
  } else if (run.Style == Ink::Hit && !framed) {
    ground = kHitGround;
    ink = kHitText;
  }
  const CellText cells = InCells(run, [this](int) { return static_cast<INT>(cell_.cx); });
  const RECT rect = RectOf(run.At, cells.Cells);
  SetBkColor(target, ground);
  SetTextColor(target, ink);
  ExtTextOutW(target, rect.left, rect.top, ETO_OPAQUE | ETO_CLIPPED, &rect, cells.Text.c_str(),
              static_cast<UINT>(cells.Text.size()), cells.Steps.data());
  // In high contrast no colour but the system's own may be used.
  if (framed) FrameRect(target, &rect, GetSysColorBrush(COLOR_HIGHLIGHT));
}

void SurfaceWork::DrawLines(HDC target, const RECT& inside) const {
  const LONG thin = std::max(1L, cell_.cy / 16);
  const Drawn<HBRUSH> grid(CreateSolidBrush(GridColor()));
  for (const Rule& rule : Shown.Rules) {
    RECT line = RectOf(rule.At, rule.Down ? 0 : rule.Length, rule.Down ? rule.Length : 0);
    (rule.Down ? line.left : line.top) -= thin;
    FillRect(target, &line, grid.Get());
  }
  if (Shown.HeadRows > 0) {
    const LONG bottom = Shown.HeadRows * cell_.cy;
    Fill(target, {0, bottom - thin, inside.right, bottom}, COLOR_BTNSHADOW);
  }
  if (Shown.LeftColumns > 0) {
    const RECT first = RectOf({Shown.LeftColumns, Shown.LeftFrom});
    Fill(target, {first.left - thin, first.top, first.left, inside.bottom}, COLOR_BTNSHADOW);
  }
  if (Shown.ShowsCaret && GetFocus() == Window()) {
    RECT caret = RectOf(Shown.Caret);
    caret.right = caret.left + std::max(1L, cell_.cy / 12);
    Fill(target, caret, Shown.Caret.Row < Shown.HeadRows ? COLOR_BTNTEXT : COLOR_WINDOWTEXT);
  }
}

void SurfaceWork::DrawPaper(HDC target, const RECT& inside) const {
  Fill(target, inside, COLOR_APPWORKSPACE);
  const LONG margin = cell_.cy / 2;
  const double fitting = std::max(
      0.05, std::min((inside.right - 2 * margin) / Paper->Width, (inside.bottom - 2 * margin) / Paper->Height));
  const double scale = View.Percent == 0 ? fitting : View.Percent / 100.0 * GetDpiForWindow(Window()) / 72;
  const auto width = static_cast<LONG>(Paper->Width * scale);
  const auto height = static_cast<LONG>(Paper->Height * scale);
  const auto begin = [scale](LONG room, LONG size, double seen_from) {
    return size <= room ? (room - size) / 2 : -static_cast<LONG>(seen_from * scale);
  };
  RECT sheet{begin(inside.right, width, View.Left), begin(inside.bottom, height, View.Top), 0, 0};
  sheet.right = sheet.left + width;
  sheet.bottom = sheet.top + height;
  RECT shadow = sheet;
  OffsetRect(&shadow, std::max(2L, margin / 3), std::max(2L, margin / 3));
  Fill(target, shadow, COLOR_3DDKSHADOW);
  // Paper is white whatever the colours of the screen.
  FillRect(target, &sheet, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
  FrameRect(target, &sheet, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
  DrawOnPaper(target, Shown, *Paper, {{sheet.left, sheet.top}, scale, scale});
}
