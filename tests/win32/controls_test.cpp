// What controls and forms are on the screen of a real machine: places, sizes and pixels.
#include <algorithm>

#include "contract/test_form.h"
#include "platform/win32/internals.h"
#include "support/win32/pixels.h"

namespace {

RECT RectOf(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return rect;
}

LONG WidthOf(HWND window) { return RectOf(window).right - RectOf(window).left; }

HWND WindowOf(const Control& control) { return control.PeerOf().Window; }

TEST_F(ShownFormTest, DroppedListIsAsWideAsItsNamesNeedAndAtLeastAsItsBox) {
  for (ListControl* list : std::initializer_list<ListControl*>{&form.NameCombo, &form.KindDrop}) {
    HWND window = WindowOf(*list);
    const LONG width = WidthOf(window);
    const auto dropped_width = [&] {
      SendMessageW(window, CB_SHOWDROPDOWN, TRUE, 0);
      const LONG dropped = WidthOf(list->PeerOf().DropList());
      SendMessageW(window, CB_SHOWDROPDOWN, FALSE, 0);
      return dropped;
    };
    list->Fill({{"short", 1}});
    EXPECT_EQ(dropped_width(), width);
    list->Fill({{"short", 1}, {std::string(200, 'w'), 2}});
    // The box may have become another since it was filled.
    for (const LONG box : {width, 2 * width, width}) {
      SetWindowPos(window, nullptr, 0, 0, box, 20, SWP_NOMOVE | SWP_NOZORDER);
      EXPECT_EQ(dropped_width(), 2 * box);  // and no wider
    }
  }
}

TEST_F(ShownFormTest, AnotherTextIsDrawnAsIfItHadStoodThere) {
  HWND box = WindowOf(form.LinesBox);
  const auto pixels = [box] {
    const RECT rect = RectOf(box);
    const int width = rect.right - rect.left, height = rect.bottom - rect.top;
    HDC screen = GetWindowDC(box);
    const auto seen =
        PixelsOf(width, height, [&](HDC copy) { BitBlt(copy, 0, 0, width, height, screen, 0, 0, SRCCOPY); });
    ReleaseDC(box, screen);
    return seen;
  };
  const std::string many = "a\r\nb\r\nc\r\nd\r\ne\r\nf\r\ng\r\nh\r\ni\r\nj\r\nk\r\nl";
  form.FirstButton.SetFocus();  // no blinking caret
  std::vector<DWORD> last;
  for (const std::string& text : {std::string("a few words"), std::string("others"), many, many + "\r\nm",
                                  std::string("one\r\ntwo"), std::string()}) {
    form.LinesBox.SetText(text);
    EXPECT_TRUE(user.SeesVisible(IDC_LinesBox));
    UpdateWindow(box);
    const auto seen = pixels();
    EXPECT_NE(seen, last) << text;
    RedrawWindow(box, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
    EXPECT_EQ(pixels(), seen) << text;
    last = seen;
  }
  form.LinesBox.SetVisible(false);
  form.LinesBox.SetText("hidden");
  EXPECT_FALSE(user.SeesVisible(IDC_LinesBox));
}

struct RowsForm : TestForm {
  using Form::RemoveRows;
};

TEST(RowsTest, WhatStandsBelowMovesUpAndTheFormGetsLower) {
  RowsForm form;
  const HWND windows[] = {WindowOf(form.HintLabel), WindowOf(form.LinesBox), WindowOf(form.FirstButton),
                          WindowOf(form.OKButton), form.PeerOf().Window};
  RECT expected[5];
  std::transform(std::begin(windows), std::end(windows), expected, RectOf);
  const LONG height = expected[2].top - expected[1].top;
  for (const int lower : {2, 3}) OffsetRect(&expected[lower], 0, -height);
  expected[4].bottom -= height;
  form.RemoveRows(form.LinesBox, form.FirstButton);
  for (int each = 0; each < 5; ++each) {
    const RECT now = RectOf(windows[each]);
    EXPECT_TRUE(EqualRect(&now, &expected[each])) << each;
  }
}

}  // namespace
