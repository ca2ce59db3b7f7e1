// The item list and the item values report, and the lines that all reports are made of.
#include "document/document.h"
#include "reports/item_list_report.h"
#include "reports/item_values_report.h"
#include "reports/print_file.h"
#include "reports/reports_test.h"

namespace {

class ReportWritersTest : public ReportsTest {};

TEST_F(ReportWritersTest, LinesAreComposedOfTextsNumbersAndColumns) {
  EXPECT_EQ(Written([] {
              PrintLine({});
              PrintLine({"a", -5, 7, std::string("b")});
              for (const int number : {1, 999, 1000, 10000}) PrintLine({number, Tab{6}, "name"});
              PrintLine({Tab{1}, "x", Tab{2}, "y", Tab{2}, "z"});
            }),
            Lines({"", "a-5 7b", " 1   name", " 999 name", " 1000name", " 10000", "     name", "xy", " z"}));
}

TEST_F(ReportWritersTest, TextsAreWrappedAtBlanks) {
  const std::string wide(75, 'w');
  const struct {
    std::string Text;
    int Width;
    std::vector<std::string> Expected;
  } kRows[] = {
      {"", 75, {" "}},
      {wide.substr(1), 75, {" " + wide.substr(1)}},
      {wide, 75, {" " + wide, " "}},
      {wide + "x", 75, {" " + wide, " x"}},
      {"one two", 4, {" one", " two"}},
      {"one two", 7, {" one", " two"}},
      {"one two", 8, {" one two"}},
      {"one  two", 5, {" one", " two"}},
      {" longword", 5, {" ", " longw", " ord"}},
      {"end   ", 5, {" end", "  "}},
      {" aa bb", 5, {"  aa", " bb"}},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(Written([&] { WriteWrapped(row.Text, row.Width); }), Lines(row.Expected)) << row.Text << row.Width;
  }
}

TEST_F(ReportWritersTest, ItemLists) {
  EXPECT_EQ(Written([] { WriteItemListReport(0); }), "");
  LoadSource("samples/Household.FIL");
  ExpectGolden("HouseholdList.PRN", [] { WriteItemListReport(0); });
  ExpectGolden("HouseholdOnLoan.PRN", [] { WriteItemListReport(CategoryBit(32) | CategoryBit(1)); });
  LoadSource("tests/reports/golden/Nasty.FIL");
  TheDocument.Things[5].Values[3].Text = ":a colon first";
  TheDocument.Things[5].Values[9].Text = "no colon";
  ExpectGolden("NastyList.PRN", [] { WriteItemListReport(0); });
}

// Category 32 is told by all bits from the sign bit's half on.
TEST_F(ReportWritersTest, ClassificationsAtTheSignBit) {
  TheDocument.Things.SetCount(3);
  TheDocument.Things[1].CATBITMAP = CategoryBit(15);
  TheDocument.Things[2].CATBITMAP = CategoryBit(16);
  TheDocument.Things[3].CATBITMAP = CategoryBit(16) | CategoryBit(17);
  TheDocument.CategoryNames[15] = "Fifteen";
  TheDocument.CategoryNames[16] = "Sixteen";
  TheDocument.CategoryNames[32] = "Last";
  EXPECT_EQ(
      Written([] { WriteItemListReport(0); }),
      Lines({"LARKSPUR V1.0 REPORT T=2,G=0", "", "Larkspur Object List report", "", "", " Classification: Fifteen", "",
             "", " Classification: Sixteen, Last", "", "", " Classification: Sixteen, , Last"}));
}

TEST_F(ReportWritersTest, ItemValues) {
  LoadSource("samples/Household.FIL");
  ExpectGolden("HouseholdValues.PRN", [] { WriteItemValuesReport(0, {1, 2, 5}); });
  LoadSource("tests/reports/golden/Nasty.FIL");
  ExpectGolden("NastyValues.PRN", [] { WriteItemValuesReport(0, {1, 2, 3, 5}); });
  ExpectGolden("NastyRooms.PRN", [] { WriteItemValuesReport(CategoryBit(2), {3}); });
  TheDocument = {};
  TheDocument.Things.SetCount(1);
  TheDocument.Things[1].Values[0].Text = "N:-5";
  TheDocument.Fields.SetCount(1);
  TheDocument.Fields[1] = {"N", "N", "INTEGER"};
  const std::string negative = Written([] { WriteItemValuesReport(0, {1}); });
  EXPECT_NE(negative.find("Maximum                          -5\r\n"), std::string::npos) << negative;
}

// Whoever asks for one report is not asked the same once for each thing.
TEST_F(ReportWritersTest, HighInterestIsAskedAboutOnceAReport) {
  TheDocument.Things.SetCount(3);
  TheDocument.Formulas.SetCount(1);
  TheDocument.Formulas[1] = {"RATE", "Rate", "INTEREST", "", "2*2"};
  user.Answers("Are you sure that you want to use an interest rate greater than 100%?", Answer::No, Icon::None,
               Buttons::YesNo);
  const std::string report = Written([] { WriteItemListReport(0); });
  EXPECT_NE(report.find("\r\n\r\n\r\n RATE: 0.00%\r\n\r\n\r\n RATE: 0.00%\r\n"), std::string::npos) << report;
}

}  // namespace
