// What of a report stands in the window: what stays, what scrolls, what is marked and selected.
#include "viewer/report_view.h"

#include <gtest/gtest.h>

#include "viewer/page_text.h"

namespace {

using Rows = std::vector<std::string>;
using Bar = Surface::Bar;

// A title, two heading lines over columns of 4, and things 1 to 20.
ReportText Values(const std::string& header = "T=2,H=2,L=5") {
  std::string bytes =
      "LARKSPUR V1.0 REPORT " + header + "\r\n\r\nTitle\r\n\r\n     AAAA  BBBB  CCCC\r\n     aaaa  bbbb\r\n";
  for (int thing = 1; thing <= 20; ++thing) {
    // "Th07 a07a  b07b  c07c"
    std::string line = "Th00 a00a  b00b  c00c\r\n";
    for (const std::size_t at : {2, 6, 12, 18}) {
      line[at] = static_cast<char>('0' + thing / 10);
      line[at + 1] = static_cast<char>('0' + thing % 10);
    }
    bytes += line;
  }
  return ReportText(std::move(bytes));
}

class ReportViewTest : public testing::Test {
 protected:
  void Open(ReportText text, int columns, int rows) {
    view.Resize(columns, rows);
    view.SetText(std::move(text), false);
  }
  // The page without the row and column that show in part.
  Rows Seen(bool marked = false) {
    Page page = view.BuildPage();
    return RowsOf(page, marked);
  }
  void Press(Key key, bool shift = false, bool control = false) { view.Press(KeyPress{key, shift, control}); }
  void Mouse(MousePress::Act act, Cell at, bool shift = false) { view.Press(MousePress{act, at, shift}); }

  ReportView view;
};

TEST_F(ReportViewTest, TitlesHeadingsAndLeftColumnsStay) {
  Open(Values(), 15, 8);
  EXPECT_EQ(Seen(), (Rows{"", "Title", "", "     AAAA  BBBB", "     aaaa  bbbb", "Th01 a01a  b01b", "Th02 a02a  b02b",
                          "Th03 a03a  b03b", "Th04 a04a  b04b"}));
  view.ScrollTo(Bar::Down, 9);
  view.ScrollTo(Bar::Across, 3);
  EXPECT_EQ(Seen(), (Rows{"", "Title", "", "     A  BBBB  CC", "     a  bbbb", "Th10 a  b10b  c1", "Th11 a  b11b  c1",
                          "Th12 a  b12b  c1", "Th13 a  b13b  c1"}));
  const Page page = view.BuildPage();
  EXPECT_EQ(page.HeadRows, 5);
  EXPECT_EQ(page.LeftColumns, 5);
}

TEST_F(ReportViewTest, ScrollingEndsAtTheEdges) {
  Open(Values(), 15, 8);
  view.ScrollBy(Bar::Down, 1000);
  view.ScrollBy(Bar::Across, 1000);
  EXPECT_EQ(Seen().back(), "Th20 b20b  c20c");
  EXPECT_EQ(view.Down().Position, 17);
  EXPECT_EQ(view.Down().Range - view.Down().Shown, 17);
  view.ScrollBy(Bar::Down, -1000);
  view.ScrollBy(Bar::Across, -1000);
  EXPECT_EQ(view.Down().Position, 0);
  EXPECT_EQ(view.Across().Position, 0);
}

TEST_F(ReportViewTest, WhatLeavesTooLittleRoomScrollsAlong) {
  Open(Values(), 7, 7);  // five of seven rows, and five of seven columns
  EXPECT_EQ(view.BuildPage().HeadRows, 0);
  EXPECT_EQ(view.BuildPage().LeftColumns, 0);
  view.ScrollTo(Bar::Down, 3);
  view.ScrollTo(Bar::Across, 4);
  EXPECT_EQ(Seen().at(0), " AAAA  B");
  EXPECT_EQ(Seen().at(2), " a01a  b");
  // At the beginning it stays at the beginning when there is room again.
  view.ScrollTo(Bar::Down, 0);
  view.Resize(40, 12);
  EXPECT_EQ(view.BuildPage().HeadRows, 5);
  EXPECT_EQ(view.Down().Position, 0);
}

TEST_F(ReportViewTest, KeysScroll) {
  Open(Values(), 15, 8);
  Press(Key::PageDown);
  EXPECT_EQ(view.Down().Position, 2);  // one row of the page before stays in view
  Press(Key::Down);
  Press(Key::Right);
  EXPECT_EQ(view.Down().Position, 3);
  EXPECT_EQ(view.Across().Position, 1);
  Press(Key::End);
  EXPECT_EQ(view.Across().Position, 6);
  Press(Key::Home);
  EXPECT_EQ(view.Across().Position, 0);
  Press(Key::End, false, true);
  EXPECT_EQ(view.Down().Position, 17);
  Press(Key::Up);
  Press(Key::PageUp);
  EXPECT_EQ(view.Down().Position, 14);
  Press(Key::Home, false, true);
  EXPECT_EQ(view.Down().Position, 0);
}

TEST_F(ReportViewTest, MouseSelectsAcrossLinesAndWhatStays) {
  Open(Values(), 15, 8);
  view.ScrollTo(Bar::Down, 2);
  view.ScrollTo(Bar::Across, 4);
  Mouse(MousePress::Act::Press, {8, 5});
  Mouse(MousePress::Act::Drag, {2, 6});
  EXPECT_EQ(view.SelectedText(), "03b  c03c\r\nTh");
  EXPECT_EQ(Seen(true).at(5), "Th03   b[03b  c03]");
  Mouse(MousePress::Act::Press, {14, 7}, true);
  EXPECT_EQ(view.SelectedText(), "03b  c03c\r\nTh04 a04a  b04b  c04c\r\nTh05 a05a  b05b  c");
  Mouse(MousePress::Act::Press, {0, 1});
  Mouse(MousePress::Act::Drag, {3, 1});
  EXPECT_EQ(view.SelectedText(), "Tit");
  Mouse(MousePress::Act::DoubleClick, {9, 5});
  EXPECT_EQ(view.SelectedText(), "b03b");
  Mouse(MousePress::Act::Press, {3, 5});
  EXPECT_FALSE(view.HasSelection());
}

TEST_F(ReportViewTest, DraggingOverTheEdgesScrolls) {
  Open(Values(), 15, 8);
  Mouse(MousePress::Act::Press, {0, 5});
  Mouse(MousePress::Act::Drag, {0, 9});
  EXPECT_EQ(view.Down().Position, 2);
  Mouse(MousePress::Act::Drag, {17, 6});
  EXPECT_EQ(view.Across().Position, 3);
  Mouse(MousePress::Act::Drag, {0, 3});  // over the head, where the selection did not begin
  EXPECT_EQ(view.Down().Position, 0);
  EXPECT_EQ(view.SelectedText(), "");
}

TEST_F(ReportViewTest, ShiftMovesTheSelectionsEndAndBringsItIntoView) {
  Open(Values("T=0"), 10, 6);
  view.ScrollTo(Bar::Down, 5);
  Press(Key::Right, true);
  Press(Key::Down, true);
  EXPECT_EQ(view.SelectedText(), "Th01 a01a  b01b  c01c\r\nT");
  Press(Key::End, true);
  EXPECT_EQ(view.Across().Position, 12);
  Press(Key::Right, true);
  EXPECT_EQ(view.Across().Position, 0);
  Press(Key::Left, true);
  EXPECT_EQ(view.SelectedText(), "Th01 a01a  b01b  c01c\r\nTh02 a02a  b02b  c02c");
  Press(Key::PageDown, true);
  Press(Key::Home, true, true);
  EXPECT_EQ(view.SelectedText().substr(0, 9), "\r\nTitle\r\n");
  EXPECT_EQ(view.Down().Position, 0);
  view.SelectAll();
  EXPECT_EQ(view.SelectedText() + "\r\n", view.Text().Body());
}

TEST_F(ReportViewTest, HitsAreMarkedCountedAndFoundRoundTheEnd) {
  Open(Values(), 22, 9);
  view.Seek("1A");
  EXPECT_EQ(view.HitCount(), 2u);  // a01a, a11a
  EXPECT_EQ(view.HitNumber(), 1u);
  EXPECT_EQ(view.SelectedText(), "1a");
  EXPECT_EQ(Seen(true).at(5), "Th01 a0[1a]  b01b  c01c");
  ASSERT_TRUE(view.FindNext());
  EXPECT_EQ(view.HitNumber(), 2u);
  EXPECT_EQ(Seen(true).at(7), "Th11 a1[1a]  b11b  c11c");  // in the middle of what scrolls
  ASSERT_TRUE(view.FindNext());
  EXPECT_EQ(view.HitNumber(), 1u);
  ASSERT_TRUE(view.FindPrevious());
  EXPECT_EQ(view.HitNumber(), 2u);
  view.SelectNone();
  EXPECT_EQ(Seen(true).at(7), "Th11 a1<1a>  b11b  c11c");
  ASSERT_TRUE(view.FindPrevious());
  view.Seek("1A ");  // typed on: the same hit is kept
  EXPECT_EQ(view.HitNumber(), 2u);
  view.Seek("nowhere");
  EXPECT_EQ(view.HitCount(), 0u);
  EXPECT_FALSE(view.FindNext());
  EXPECT_FALSE(view.FindPrevious());
  view.Seek("");
  EXPECT_FALSE(view.Seeks());
}

TEST_F(ReportViewTest, AnotherTextKeepsThePlaceOnlyWhenAsked) {
  Open(Values(), 15, 8);
  view.ScrollTo(Bar::Down, 9);
  view.ScrollTo(Bar::Across, 5);
  view.SelectAll();
  view.Seek("b");
  view.SetText(Values(), true);
  EXPECT_EQ(view.Down().Position, 9);
  EXPECT_EQ(view.Across().Position, 5);
  EXPECT_FALSE(view.HasSelection());
  EXPECT_EQ(view.HitCount(), 42u + 6u);
  view.SetText(ReportText("short"), true);
  EXPECT_EQ(Seen(), Rows{"short"});
  view.SetText(ReportText(), true);
  Press(Key::End, true, true);
  Mouse(MousePress::Act::DoubleClick, {3, 3});
  view.SelectAll();
  EXPECT_EQ(view.SelectedText(), "");
  EXPECT_TRUE(Seen().empty());
}

TEST_F(ReportViewTest, GridFollowsRowsAndHeadings) {
  Open(Values("T=2,H=2,L=5,G=1"), 15, 8);
  view.ScrollTo(Bar::Across, 2);
  std::vector<int> across, down;
  for (const Rule& rule : view.BuildPage().Rules)
    (rule.Down ? down : across).push_back(rule.Down ? rule.At.Column : rule.At.Row);
  EXPECT_EQ(across, (std::vector<int>{6, 7, 8, 9}));
  EXPECT_EQ(down, (std::vector<int>{8, 14, 5}));  // behind AAAA and BBBB, and at the columns that stay
}

}  // namespace
