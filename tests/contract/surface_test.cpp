// What surface.h and clipboard.h promise, in memory and on real windows alike. What mouse, wheel and keys tell of, the
// viewer's stories show.
#include "platform/surface.h"

#include "contract/test_form.h"
#include "platform/clipboard.h"

namespace {

using Bar = Surface::Bar;

class SurfaceTest : public FormTest {
 protected:
  SurfaceTest() { bare.Show(); }

  Surface& surface = bare.TextSurface;
};

TEST_F(SurfaceTest, ShowsThePageItWasGivenLastAndRoomFollowsTheTextSize) {
  Page page;
  page.Runs = {{{2, 1}, kFar, Ink::Hit}};
  page.HeadRows = 1;
  surface.Show(page);
  EXPECT_EQ(user.SeesPage(IDC_TextSurface).Runs.at(0).Text, kFar);
  EXPECT_EQ(user.SeesPage(IDC_TextSurface).HeadRows, 1);
  const int columns = surface.Columns(), rows = surface.Rows();
  EXPECT_TRUE(surface.TextSize() == 10 && columns >= 10 && rows >= 3);
  surface.SetTextSize(20);
  EXPECT_NEAR(surface.Columns(), columns / 2, 2);
  EXPECT_NEAR(surface.Rows(), rows / 2, 1);
  surface.SetTextSize(4000);
  EXPECT_EQ(surface.Columns() + surface.Rows(), 1 + 1);
  surface.ShowOnPaper(Page(), Sheet());
  EXPECT_TRUE(user.SeesPage(IDC_TextSurface).Runs.empty());
}

TEST_F(SurfaceTest, ScrollBarsMoveByTheProgramOnlyAndAskFirst) {
  surface.Scroll = [](Bar bar, int to) { Log((bar == Bar::Down ? "down " : "across ") + std::to_string(to)); };
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
    EXPECT_EQ(user.SeesBar(IDC_TextSurface, row.Which), row.Seen) << row.Asked;
    Does([&] { user.PagesBar(IDC_TextSurface, row.Which, row.Pages); }, row.Asked);
    EXPECT_EQ(user.SeesBar(IDC_TextSurface, row.Which), row.Seen) << row.Asked;
  }
}

// The form may keep a key from the surface.
TEST_F(SurfaceTest, KeysAreToldToTheFormFirst) {
  surface.KeyDown = [](const KeyPress& key) { Log(key.What == Key::Down ? "down" : "up"); };
  bare.KeyDown = [](Key which) { return which == Key::Up; };
  surface.SetFocus();
  Does([&] { user.Presses(Key::Down), user.Presses(Key::Up); }, "down");
}

TEST(ClipboardTest, HoldsText) {
  for (const std::string text : {"old", "caf\xE9\r\nline", kFar.c_str(), ""}) {
    SetClipboardText(text);
    EXPECT_EQ(ClipboardText(), text);
  }
}

}  // namespace
