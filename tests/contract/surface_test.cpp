// What surface.h and clipboard.h promise, in memory and on real windows alike.
#include "platform/surface.h"

#include "contract/test_form.h"
#include "platform/clipboard.h"

namespace {

using Bar = Surface::Bar;

template <typename... Numbers>
void LogNumbers(std::string event, Numbers... numbers) {
  ((event += " " + std::to_string(numbers)), ...);
  Log(event);
}

class SurfaceTest : public FormTest {
 protected:
  SurfaceTest() {
    surface.Scroll = [](Bar bar, int position) { LogNumbers(bar == Bar::Down ? "down" : "across", position); };
    surface.KeyDown = [](const KeyPress& key) {
      LogNumbers("key", static_cast<int>(key.What), key.Shift, key.Control);
    };
    surface.Mouse = [](const MousePress& press) {
      LogNumbers("mouse", static_cast<int>(press.What), press.At.Column, press.At.Row, press.Shift);
    };
    surface.Wheel = [](const WheelTurn& turn) { LogNumbers("wheel", turn.Cells, turn.Across, turn.Control); };
    surface.CopyKey = [] { Log("copy"); };
    surface.SelectAllKey = [] { Log("all"); };
    surface.Resize = [] { Log("resize"); };
    bare.Show();
  }

  Surface& surface = bare.TextSurface;
};

TEST_F(SurfaceTest, ShowsThePageItWasGivenLastAndRoomFollowsTheTextSize) {
  Page page;
  page.Runs = {{{2, 1}, kFar, Ink::Hit}};
  page.HeadRows = 1;
  surface.Show(page);
  EXPECT_EQ(user.SeesPage(IDC_TextSurface).Runs.at(0).Text, kFar);
  EXPECT_EQ(user.SeesPage(IDC_TextSurface).HeadRows, 1);
  EXPECT_EQ(surface.TextSize(), 10);
  const int columns = surface.Columns(), rows = surface.Rows();
  EXPECT_GE(columns, 10);
  EXPECT_GE(rows, 3);
  Does([&] { surface.SetTextSize(20); }, "");
  EXPECT_NEAR(surface.Columns(), columns / 2, 2);
  EXPECT_NEAR(surface.Rows(), rows / 2, 1);
  surface.SetTextSize(4000);
  EXPECT_EQ(surface.Columns() + surface.Rows(), 1 + 1);
  surface.ShowOnPaper(Page(), Sheet());
  EXPECT_TRUE(user.SeesPage(IDC_TextSurface).Runs.empty());
}

TEST_F(SurfaceTest, ScrollBarsMoveByTheProgramOnlyAndAskFirst) {
  const struct {
    Bar Which;
    int Range, Shown, Position, Seen, Pages;
    const char* Asked;
  } rows[] = {{Bar::Down, 100, 11, 20, 20, 1, "down 30"},
              {Bar::Down, 100, 11, 85, 85, 1, "down 89"},
              {Bar::Down, 100, 11, 89, 89, 1, ""},
              {Bar::Down, 100, 11, 1000, 89, -1, "down 79"},
              {Bar::Across, 50, 50, 0, -1, 1, ""},
              {Bar::Across, 200, 101, 0, 0, 1, "across 99"},
              {Bar::Across, 200, 101, 50, 50, -1, "across 0"}};
  for (const auto& row : rows) {
    Does([&] { surface.SetScroll(row.Which, row.Range, row.Shown, row.Position); }, "");
    EXPECT_EQ(user.SeesBar(IDC_TextSurface, row.Which), row.Seen) << &row - rows;
    Does([&] { user.PagesBar(IDC_TextSurface, row.Which, row.Pages); }, row.Asked);
    EXPECT_EQ(user.SeesBar(IDC_TextSurface, row.Which), row.Seen) << &row - rows;
  }
}

TEST_F(SurfaceTest, MouseWheelAndKeysAreTold) {
  const auto turns = [&](int notches, bool shift, bool control) {
    user.TurnsWheel(IDC_TextSurface, notches, shift, control);
  };
  const auto presses = [&](Key key, bool shift, bool control) { user.Presses(KeyPress{key, shift, control}); };
  bare.KeyDown = [](Key which) { return which == Key::Up; };
  user.MovesTo(IDC_BareBox);
  Does([&] { user.Drags(IDC_TextSurface, {3, 2}, {5, 1}); }, "mouse 0 3 2 0, mouse 1 5 1 0");
  Does([&] { user.Drags(IDC_TextSurface, {4, 0}, {4, 0}, true); }, "mouse 0 4 0 1");
  Does([&] { user.Drags(IDC_TextSurface, {0, 0}, {-2, -1}); }, "mouse 0 0 0 0, mouse 1 -2 -1 0");
  Does([&] { user.DoubleClicks(IDC_TextSurface, {7, 0}); }, "mouse 0 7 0 0, mouse 2 7 0 0");
  Does([&] { turns(2, false, false), turns(-1, true, false), turns(-1, false, true); },
       "wheel 6 0 0, wheel -3 1 0, wheel -1 0 1");
  Does([&] { user.Presses(Key::Down), presses(Key::Home, false, true), presses(Key::Left, true, false); },
       "key 5 0 0, key 8 0 1, key 2 1 0");
  Does([&] { user.PressesControl('C'), user.PressesControl('A'); }, "copy, all");
  Does([&] { user.Presses(Key::Up); }, "");  // the form keeps it
  EXPECT_TRUE(user.SeesFocusOn(IDC_TextSurface));
}

TEST(ClipboardTest, HoldsText) {
  for (const std::string text : {"old", "caf\xE9\r\nline", kFar.c_str(), ""}) {
    SetClipboardText(text);
    EXPECT_EQ(ClipboardText(), text);
  }
}

}  // namespace
