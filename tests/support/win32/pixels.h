// What is drawn, pixel by pixel, for comparing.
#pragma once

#include <windows.h>

#include <vector>

// The pixels of a picture of that size which `draw` draws.
template <typename Draw>
std::vector<DWORD> PixelsOf(int width, int height, Draw draw) {
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  HDC memory = CreateCompatibleDC(nullptr);
  HBITMAP bitmap = CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  HGDIOBJ before = SelectObject(memory, bitmap);
  draw(memory);
  GdiFlush();
  const DWORD* first = static_cast<const DWORD*>(bits);
  std::vector<DWORD> pixels(first, first + static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  SelectObject(memory, before);
  DeleteObject(bitmap);
  DeleteDC(memory);
  return pixels;
}
