// Dividing a report into printed pages.
#include "viewer/print_layout.h"

#include <gtest/gtest.h>

#include "viewer/page_text.h"

namespace {

using Rows = std::vector<std::string>;

// A sheet with room for that many cells of its text size.
Sheet Room(int columns, int rows) {
  Sheet sheet;
  sheet.Width = columns * sheet.CellWidth() + sheet.Left + sheet.Right;
  sheet.Height = rows * sheet.CellHeight() + sheet.Top + sheet.Bottom;
  return sheet;
}

ReportText Report(int things, const std::string& header, int width = 8) {
  std::string bytes = "LARKSPUR V1.0 REPORT " + header + "\n\nTitle\nHead\n";
  for (int thing = 1; thing <= things; ++thing) {
    std::string line = "Th" + std::to_string(thing) + " ";
    while (static_cast<int>(line.size()) < width) line += static_cast<char>('a' + line.size() % 26);
    bytes += line + "\n";
  }
  return ReportText(std::move(bytes));
}

TEST(PrintLayoutTest, RepeatsTitlesAndHeadingsAndNumbersPages) {
  const ReportText text = Report(7, "T=2,H=1");
  const PrintLayout layout(text, "Report.PRN", Room(40, 9));
  ASSERT_EQ(layout.Pages(), 2);
  EXPECT_EQ(RowsOf(layout.PageAt(1)), (Rows{"", "Title", "Head", "Th1 efgh", "Th2 efgh", "Th3 efgh", "Th4 efgh", "",
                                            "Report.PRN                   Page 1 of 2"}));
  EXPECT_EQ(RowsOf(layout.PageAt(2)), (Rows{"", "Title", "Head", "Th5 efgh", "Th6 efgh", "Th7 efgh", "", "",
                                            "Report.PRN                   Page 2 of 2"}));
  EXPECT_EQ(RowsOf(layout.PageAt(99)), RowsOf(layout.PageAt(2)));
  ASSERT_EQ(layout.PageAt(2).Rules.size(), 1u);
  EXPECT_EQ(layout.PageAt(2).Rules[0].At, (Cell{0, 3}));
}

TEST(PrintLayoutTest, EveryLineIsPrintedOnce) {
  for (const int things : {0, 1, 3, 4, 5, 400}) {
    const ReportText text = Report(things, "T=2,H=1");
    const PrintLayout layout(text, "r", Room(40, 9));
    int expected = 1;
    for (int page = 1; page <= layout.Pages(); ++page) {
      for (const std::string& row : RowsOf(layout.PageAt(page))) {
        if (row.starts_with("Th")) {
          EXPECT_EQ(row, "Th" + std::to_string(expected++) + (row.size() > 7 ? row.substr(row.find(' ')) : ""));
        }
      }
    }
    EXPECT_EQ(expected, things + 1);
    EXPECT_EQ(layout.Pages(), std::max(1, (things + 3) / 4)) << things;
  }
}

TEST(PrintLayoutTest, LongLinesShrinkOrGoOnBeside) {
  const ReportText somewhat = Report(2, "T=2,H=1,L=4", 50);
  EXPECT_EQ(PrintLayout(somewhat, "r", Room(40, 9)).Pages(), 1);
  EXPECT_EQ(PrintLayout(somewhat, "r", Room(40, 9)).Paper().TextSize, 8);
  const ReportText wide = Report(5, "T=2,H=1,L=4", 60);
  const PrintLayout layout(wide, "r", Room(40, 9));
  EXPECT_EQ(layout.Paper().TextSize, 10);
  ASSERT_EQ(layout.Pages(), 4);
  const std::string line(wide.Line(3));
  EXPECT_EQ(RowsOf(layout.PageAt(1)).at(3), line.substr(0, 40));
  EXPECT_EQ(RowsOf(layout.PageAt(2)).at(3), "Th1 " + line.substr(40));
  EXPECT_EQ(RowsOf(layout.PageAt(2)).at(1), "Title");
  EXPECT_EQ(RowsOf(layout.PageAt(3)).at(3).substr(0, 4), "Th5 ");
}

TEST(PrintLayoutTest, TinyPaperStillPrintsSomething) {
  const ReportText text = Report(3, "T=200,H=1,L=90");
  const PrintLayout layout(text, "Report.PRN", Room(1, 1));
  EXPECT_GE(layout.Pages(), 6);
  EXPECT_FALSE(layout.PageAt(3).Runs.empty());
}

}  // namespace
