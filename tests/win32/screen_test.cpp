// What controls and forms are on the screen of a real machine: places, sizes and pixels.
#include <array>

#include "contract/test_form.h"
#include "mainwindow/main_form.h"
#include "mainwindow/main_ids.h"
#include "platform/win32/internals.h"
#include "resource.h"
#include "support/fresh_test.h"
#include "viewer/viewer_form.h"

namespace {

class ScreenTest : public FreshTest {};

// The left, upper, right and lower edge.
using Edges = std::array<LONG, 4>;

Edges EdgesOf(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return {rect.left, rect.top, rect.right, rect.bottom};
}

LONG WidthOf(const Edges& edges) { return edges[2] - edges[0]; }
LONG HeightOf(const Edges& edges) { return edges[3] - edges[1]; }

HWND WindowOf(const Control& control) { return control.PeerOf().Window; }
HWND WindowOf(const Form& form, int id) { return WindowOf(*form.PeerOf().Find(id)); }

std::vector<DWORD> PixelsOf(HWND window) {
  const LONG width = WidthOf(EdgesOf(window)), height = HeightOf(EdgesOf(window));
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, width, height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  HDC screen = GetWindowDC(window), copy = CreateCompatibleDC(screen);
  HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  SelectObject(copy, bitmap);
  BitBlt(copy, 0, 0, width, height, screen, 0, 0, SRCCOPY);
  GdiFlush();
  const std::vector<DWORD> pixels(static_cast<DWORD*>(bits), static_cast<DWORD*>(bits) + width * height);
  DeleteDC(copy);
  DeleteObject(bitmap);
  ReleaseDC(window, screen);
  return pixels;
}

TEST_F(ShownFormTest, DroppedListIsAsWideAsItsNamesNeedFromItsBoxToTheScreensEdge) {
  for (ListControl* list : std::initializer_list<ListControl*>{&form.NameCombo, &form.KindDrop}) {
    HWND window = WindowOf(*list);
    const LONG width = WidthOf(EdgesOf(window));
    const auto dropped_width = [&] {
      SendMessageW(window, CB_SHOWDROPDOWN, TRUE, 0);
      const LONG dropped = WidthOf(EdgesOf(list->PeerOf().DropList()));
      SendMessageW(window, CB_SHOWDROPDOWN, FALSE, 0);
      return dropped;
    };
    list->Fill({{"short", 1}});
    EXPECT_EQ(dropped_width(), width);
    list->Fill({{"short", 1}, {std::string(400, 'w'), 2}});
    // The box may have become another since it was filled.
    for (const LONG box : {width, 2 * width, width}) {
      SetWindowPos(window, nullptr, 0, 0, box, 20, SWP_NOMOVE | SWP_NOZORDER);
      EXPECT_EQ(dropped_width(), GetSystemMetrics(SM_CXSCREEN) - EdgesOf(window)[0]);
    }
  }
}

TEST_F(ShownFormTest, AnotherTextIsDrawnAsIfItHadStoodThere) {
  HWND box = WindowOf(form.LinesBox);
  form.FirstButton.SetFocus();  // no blinking caret
  std::vector<DWORD> last;
  for (const std::string text : {"a few words", "others", "a\r\nb\r\nc\r\nd\r\ne\r\nf\r\ng\r\nh\r\ni\r\nj\r\nk\r\nl",
                                 "a\r\nb\r\nc\r\nd\r\ne\r\nf\r\ng\r\nh\r\ni\r\nj\r\nk\r\nl\r\nm", "one\r\ntwo", ""}) {
    form.LinesBox.SetText(text);
    UpdateWindow(box);
    const auto seen = PixelsOf(box);
    EXPECT_NE(seen, last) << text;
    RedrawWindow(box, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
    EXPECT_EQ(PixelsOf(box), seen) << text;
    last = seen;
  }
  form.LinesBox.SetVisible(false);
  form.LinesBox.SetText("hidden");
  EXPECT_FALSE(form.LinesBox.Visible());
}

TEST_F(FormTest, WhatStandsBelowRemovedRowsMovesUpAndTheFormGetsLower) {
  HWND windows[] = {WindowOf(form.LineBox), WindowOf(form.LinesBox), WindowOf(form.FirstButton),
                    WindowOf(form.CancelButton), form.PeerOf().Window};
  Edges expected[std::size(windows)];
  std::transform(std::begin(windows), std::end(windows), expected, EdgesOf);
  const LONG height = expected[2][1] - expected[1][1];
  for (const int lower : {2, 3}) expected[lower][1] -= height;
  for (const int lower : {2, 3, 4}) expected[lower][3] -= height;
  form.RemoveRows(form.LinesBox, form.FirstButton);
  for (std::size_t each = 0; each < std::size(windows); ++each) EXPECT_EQ(EdgesOf(windows[each]), expected[each]);
}

TEST_F(ScreenTest, FormsGetNoNarrowerThanTheyWereMadeAndOnlyTheMainWindowLower) {
  MainForm main_form("");
  const ViewerForm viewer("");
  main_form.Show();
  for (const Form* form : std::initializer_list<const Form*>{&main_form, &viewer}) {
    HWND window = form->PeerOf().Window;
    const Edges whole = EdgesOf(window);
    SetWindowPos(window, nullptr, 0, 0, WidthOf(whole) - 300, HeightOf(whole) - 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(WidthOf(EdgesOf(window)), WidthOf(whole));
    EXPECT_EQ(HeightOf(EdgesOf(window)) < HeightOf(whole), form == &main_form);
  }
}

TEST_F(ScreenTest, CategoriesComeUpBelowTheFilterThatWasClicked) {
  struct Chooser : User {
    void FormCame(Form& form) override { Picker = EdgesOf(form.PeerOf().Window); }
    Edges Picker{};
  } chooser;
  MainForm form("");
  form.Show();
  chooser.Clicks(IDC_CategoryFilterLabel);
  const Edges label = EdgesOf(WindowOf(form, IDC_CategoryFilterLabel));
  EXPECT_EQ(std::make_pair(chooser.Picker[0], chooser.Picker[1]), std::make_pair(label[0], label[3]));
}

}  // namespace
