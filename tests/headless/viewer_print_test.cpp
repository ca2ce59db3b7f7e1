// Printing from the viewer on the machine's printer: no printer stands beside the real tests.
#include <gtest/gtest.h>

#include "platform/headless/machine.h"
#include "resource.h"
#include "support/fresh_test.h"
#include "viewer/page_text.h"
#include "viewer/viewer_form.h"
#include "viewer/viewer_ids.h"

namespace {

class ViewerPrintTest : public FreshTest {
 protected:
  void SetUp() override {
    FreshTest::SetUp();
    std::string bytes = "LARKSPUR V1.0 REPORT T=2\r\n\r\nTitle\r\n";
    for (int line = 0; line < 200; ++line) bytes += "line\r\n";
    TestFiles::Put("R.PRN", bytes);
  }
  void TearDown() override {
    Machine::SetPrinter(std::nullopt);
    FreshTest::TearDown();
  }
  static Machine::Printer With(std::optional<PrintRange> chosen) {
    Machine::Printer printer;
    printer.Chosen = chosen;
    return printer;
  }
};

TEST_F(ViewerPrintTest, PrintsThePagesChosen) {
  ViewerForm form("R.PRN");
  form.Start();
  Machine::SetPrinter(With(PrintRange{2, 3}));
  user.ChoosesMenu(IDC_PrintItem);
  const std::vector<Page> pages = Machine::PrintedPages();
  ASSERT_EQ(pages.size(), 2u);
  EXPECT_EQ(RowsOf(pages[0]).at(1), "Title");
  EXPECT_TRUE(RowsOf(pages[0]).back().ends_with("Page 2 of 4"));
  EXPECT_TRUE(RowsOf(pages[1]).back().ends_with("Page 3 of 4"));
  Machine::SetPrinter(With(PrintRange{1, kAllPages}));
  user.Clicks(IDC_PrintButton);
  EXPECT_EQ(Machine::PrintedPages().size(), 4u);
  Machine::SetPrinter(With(std::nullopt));
  user.Clicks(IDC_PrintButton);
  EXPECT_TRUE(Machine::PrintedPages().empty());
}

TEST_F(ViewerPrintTest, SaysWhatWentWrongAndPrintsNothingThen) {
  ViewerForm form("R.PRN");
  form.Start();
  user.Reads("Failed to print R.PRN due to error # 482: Printer error", Icon::Exclamation);
  user.Clicks(IDC_PrintButton);
  Machine::Printer printer = With(PrintRange{1, kAllPages});
  printer.PaperLeft = 2;
  Machine::SetPrinter(printer);
  user.Reads("Failed to print R.PRN due to error # 482: Printer error", Icon::Exclamation);
  user.Clicks(IDC_PrintButton);
  EXPECT_TRUE(Machine::PrintedPages().empty());
}

}  // namespace
