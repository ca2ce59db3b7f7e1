// What a multi-line text box shows on the screen after it took another text.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "contract/test_form.h"
#include "platform/win32/internals.h"
#include "support/user.h"

namespace {

// The pixels of the window on the screen, its frame and scroll bar included.
std::vector<std::uint32_t> PixelsOf(HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  const int width = place.right - place.left;
  const int height = place.bottom - place.top;
  BITMAPINFO format{};
  format.bmiHeader = {sizeof format.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  HDC screen = GetWindowDC(window);
  HDC memory = CreateCompatibleDC(screen);
  HBITMAP copy = CreateCompatibleBitmap(screen, width, height);
  const HGDIOBJ before = SelectObject(memory, copy);
  BitBlt(memory, 0, 0, width, height, screen, 0, 0, SRCCOPY);
  SelectObject(memory, before);
  GetDIBits(memory, copy, 0, static_cast<UINT>(height), pixels.data(), &format, DIB_RGB_COLORS);
  DeleteObject(copy);
  DeleteDC(memory);
  ReleaseDC(window, screen);
  return pixels;
}

TEST(TextDrawingTest, AnotherTextIsDrawnAsIfItHadStoodThere) {
  const std::string many = "a\r\nb\r\nc\r\nd\r\ne\r\nf\r\ng\r\nh\r\ni\r\nj\r\nk\r\nl";
  TestForm form;
  User user;
  user.UsesForm(IDD_TestForm, [&] {
    HWND box = form.LinesBox.PeerOf().Window;
    form.FirstButton.SetFocus();  // no blinking caret
    std::vector<std::uint32_t> last;
    for (const std::string& text : {std::string("a few words"), std::string("others"), many, many + "\r\nm",
                                    std::string("one\r\ntwo"), std::string()}) {
      SCOPED_TRACE(text);
      form.LinesBox.SetText(text);
      EXPECT_TRUE(user.SeesVisible(IDC_LinesBox));
      UpdateWindow(box);
      const std::vector<std::uint32_t> seen = PixelsOf(box);
      EXPECT_NE(seen, last);
      RedrawWindow(box, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
      EXPECT_EQ(PixelsOf(box), seen);
      last = seen;
    }
    form.LinesBox.SetVisible(false);
    form.LinesBox.SetText("hidden");
    EXPECT_FALSE(user.SeesVisible(IDC_LinesBox));
    user.Clicks(IDC_CancelButton);
  });
  form.ShowModal();
}

}  // namespace
