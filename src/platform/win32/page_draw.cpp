// Drawing pages: see page_draw.h.
#include "platform/win32/page_draw.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr const char* kFaces[] = {"Consolas", "Courier New", "Lucida Console"};
constexpr double kRuleWidth = 0.4;  // points

bool HasFace(const char* face) {
  LOGFONTA wanted{};
  wanted.lfCharSet = DEFAULT_CHARSET;
  lstrcpynA(wanted.lfFaceName, face, LF_FACESIZE);
  HDC screen = GetDC(nullptr);
  bool found = false;
  EnumFontFamiliesExA(
      screen, &wanted,
      [](const LOGFONTA*, const TEXTMETRICA*, DWORD, LPARAM result) {
        *reinterpret_cast<bool*>(result) = true;
        return 0;
      },
      reinterpret_cast<LPARAM>(&found), 0);
  ReleaseDC(nullptr, screen);
  return found;
}

// The first of the faces that is there; empty when the system is to choose.
const char* Face() {
  static const char* const kFace = [] {
    const auto* found = std::find_if(std::begin(kFaces), std::end(kFaces), HasFace);
    return found == std::end(kFaces) ? "" : *found;
  }();
  return kFace;
}

int Round(double value) { return static_cast<int>(std::lround(value)); }

}  // namespace

HFONT MakeFixedFont(int height, int width) {
  LOGFONTA font{};
  font.lfHeight = -std::max(1, height);
  font.lfWidth = width;
  font.lfWeight = FW_NORMAL;
  font.lfCharSet = DEFAULT_CHARSET;
  font.lfQuality = CLEARTYPE_QUALITY;
  font.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
  lstrcpynA(font.lfFaceName, Face(), LF_FACESIZE);
  return CreateFontIndirectA(&font);
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
  std::vector<INT> steps;
  for (const TextRun& run : page.Runs) {
    steps.clear();
    const int first = run.At.Column, count = static_cast<int>(run.Text.size());
    for (int column = first; column < first + count; ++column) steps.push_back(x_of(column + 1) - x_of(column));
    ExtTextOutA(target, x_of(first), y_of(run.At.Row), 0, nullptr, run.Text.data(), static_cast<UINT>(count),
                steps.data());
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
