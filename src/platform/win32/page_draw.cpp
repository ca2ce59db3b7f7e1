// Drawing pages: see page_draw.h.
#include "platform/win32/page_draw.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr const wchar_t* kFaces[] = {L"Consolas", L"Courier New", L"Lucida Console"};
constexpr double kRuleWidth = 0.4;  // points

bool HasFace(const wchar_t* face) {
  LOGFONTW wanted{};
  wanted.lfCharSet = DEFAULT_CHARSET;
  lstrcpynW(wanted.lfFaceName, face, LF_FACESIZE);
  HDC screen = GetDC(nullptr);
  bool found = false;
  EnumFontFamiliesExW(
      screen, &wanted,
      [](const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM result) {
        *reinterpret_cast<bool*>(result) = true;
        return 0;
      },
      reinterpret_cast<LPARAM>(&found), 0);
  ReleaseDC(nullptr, screen);
  return found;
}

// The first of the faces that is there; empty when the system is to choose.
const wchar_t* Face() {
  static const wchar_t* const kFace = [] {
    const auto* found = std::find_if(std::begin(kFaces), std::end(kFaces), HasFace);
    return found == std::end(kFaces) ? L"" : *found;
  }();
  return kFace;
}

int Round(double value) { return static_cast<int>(std::lround(value)); }

}  // namespace

HFONT MakeFixedFont(int height, int width) {
  LOGFONTW font{};
  font.lfHeight = -std::max(1, height);
  font.lfWidth = width;
  font.lfWeight = FW_NORMAL;
  font.lfCharSet = DEFAULT_CHARSET;
  font.lfQuality = CLEARTYPE_QUALITY;
  font.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
  lstrcpynW(font.lfFaceName, Face(), LF_FACESIZE);
  return CreateFontIndirectW(&font);
}

void DrawOnPaper(HDC target, const Page& page, const Sheet& sheet, const OnDevice& place) {
  const auto x_of = [&](int column) {
    return place.Corner.x + Round((sheet.Left + column * sheet.CellWidth()) * place.AcrossPoint);
  };
  const auto y_of = [&](int row) {
    return place.Corner.y + Round((sheet.Top + row * sheet.CellHeight()) * place.DownPoint);
  };
  const Drawn<HFONT> font(MakeFixedFont(Round(sheet.TextSize * place.DownPoint),
                                        std::max(1, Round(sheet.CellWidth() * place.AcrossPoint))));
  HGDIOBJ font_before = SelectObject(target, font.Get());
  SetBkMode(target, TRANSPARENT);
  SetTextColor(target, RGB(0, 0, 0));
  for (const TextRun& run : page.Runs) {
    const int first = run.At.Column;
    const CellText cells = InCells(run, [&](int cell) { return x_of(first + cell + 1) - x_of(first + cell); });
    ExtTextOutW(target, x_of(first), y_of(run.At.Row), 0, nullptr, cells.Text.c_str(),
                static_cast<UINT>(cells.Text.size()), cells.Steps.data());
  }
  SelectObject(target, font_before);
  const int wide = std::max(1, Round(kRuleWidth * place.AcrossPoint));
  const Drawn<HBRUSH> black(CreateSolidBrush(RGB(96, 96, 96)));
  for (const Rule& rule : page.Rules) {
    RECT line{x_of(rule.At.Column), y_of(rule.At.Row), 0, 0};
    line.right = rule.Down ? line.left + wide : x_of(rule.At.Column + rule.Length);
    line.bottom = rule.Down ? y_of(rule.At.Row + rule.Length) : line.top + wide;
    FillRect(target, &line, black.Get());
  }
}
