// The reports, and the lines that all of them are made of. Most are compared with the golden files beside this one,
// which a run with --update writes anew.
#include <fstream>
#include <functional>

#include "document/document.h"
#include "document/reader.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "reports/hierarchy_report.h"
#include "reports/item_list_report.h"
#include "reports/item_values_report.h"
#include "reports/print_file.h"
#include "support/fresh_test.h"
#include "support/rows.h"
#include "support/said.h"
#include "support/update.h"

namespace {

class ReportWritersTest : public FreshTest {
 protected:
  static void Load(const std::string& name) {
    MakeNew();  // the file that was loaded before is locked
    TheDocument = {};
    TestFiles::Put("Source.FIL", SourceFile(name));
    ASSERT_TRUE(LoadFilerFile(InFolder("Source.FIL")));
  }
  // What a writer writes into the print file.
  static std::string Written(const std::function<void()>& write) {
    Files::Open(kPrintFileHandle, InFolder("Report.PRN"), Files::Mode::Output);
    EXPECT_TRUE(WritePrintFile(write));
    EXPECT_FALSE(Files::IsOpen(kPrintFileHandle));
    return TestFiles::Get("Report.PRN").value_or("no file");
  }
  static void ExpectGolden(const std::string& name, const std::function<void()>& write) {
    const std::string written = Written(write);
    const std::string golden = "tests/reports/golden/" + name;
    if (UpdatesGolden) {
      std::ofstream(FILER_SOURCE_DIR "/" + golden, std::ios::binary) << written;
    }
    EXPECT_EQ(written, SourceFile(golden)) << name;
  }
};

TEST_F(ReportWritersTest, LinesAreComposedOfTextsNumbersAndColumns) {
  EXPECT_EQ(Written([] {
              PrintLine({});
              PrintLine({"a", -5, 7, std::string("b")});
              for (const int number : {1, 999, 1000, 10000}) PrintLine({number, Tab{6}, "name"});
              PrintLine({Tab{1}, "x", Tab{2}, "y", Tab{2}, "z"});
            }),
            Lines({"", "a-5 7b", " 1   name", " 999 name", " 1000name", " 10000", "     name", "xy", " z"}));
}

// The width and the text, and its lines parted by "/".
TEST_F(ReportWritersTest, TextsAreWrappedAtBlanks) {
  ExpectRows(R"(4  =>  / | 4 abc =>  abc/ | 4 abcd =>  abcd/ / | 4 abcde =>  abcd/ e/
4 one two =>  one/ two/ | 7 one two =>  one/ two/ | 8 one two =>  one two/ | 5 one  two =>  one/ two/
5  longword =>  / longw/ ord/ | 5 end    =>  end/  / | 5  aa bb =>   aa/ bb/
9 ab&#937;&#937;c =>  ab&#937;/ &#937;c/ | 3 &#937; =>  &#9/ 37;/ /)",
             ' ', [](const std::string& width, const std::string& text) {
               return Replaced(Written([&] { WriteWrapped(text, std::stoi(width)); }), "\r\n", "/");
             });
}

TEST_F(ReportWritersTest, AreAsTheyWere) {
  EXPECT_EQ(Written([] { WriteItemListReport(0); }), "");
  Load("samples/Household.FIL");
  ExpectGolden("HouseholdList.PRN", [] { WriteItemListReport(0); });
  ExpectGolden("HouseholdOnLoan.PRN", [] { WriteItemListReport(CategoryBit(32) | CategoryBit(1)); });
  ExpectGolden("HouseholdValues.PRN", [] { WriteItemValuesReport(0, {1, 2, 5}); });
  ExpectGolden("HouseholdHierarchy.PRN", [] { WriteHierarchyReport(24); });
  Load("tests/reports/golden/Nasty.FIL");
  ExpectGolden("NastyValues.PRN", [] { WriteItemValuesReport(0, {1, 2, 3, 5}); });
  ExpectGolden("NastyRooms.PRN", [] { WriteItemValuesReport(CategoryBit(2), {3}); });
  ExpectGolden("NastyHierarchy.PRN", [] { WriteHierarchyReport(1); });
  TheDocument.Things.Writable(5).Values[3].Text = ":a colon first";
  TheDocument.Things.Writable(5).Values[9].Text = "no colon";
  ExpectGolden("NastyList.PRN", [] { WriteItemListReport(0); });
}

// References are characters: columns stand, and none is cut through.
TEST_F(ReportWritersTest, MeasureCharactersOrCutBeforeThem) {
  Load("tests/reports/golden/Nasty.FIL");
  const auto values_of = [](const std::string& letter, const std::string& shown) {
    TheDocument.Things.Writable(1).NAME = Replaced(std::string(40, '*'), "*", letter);
    return Replaced(Written([] { WriteItemValuesReport(0, {1, 2, 3, 5}); }), letter, shown);
  };
  EXPECT_EQ(values_of("&#26085;", "\x7F"), values_of("\x7F", "\x7F"));
  std::string& name = TheDocument.Things.Writable(1).NAME;
  name.assign(77, 'x').append("&#937;");
  const std::string hierarchy = Written([] { WriteHierarchyReport(1); });
  EXPECT_NE(hierarchy.find("xxx\r\n"), std::string::npos) << hierarchy;
  EXPECT_EQ(hierarchy.find('&'), std::string::npos) << hierarchy;
}

// Category 32 is told by all bits from the sign bit's half on; a sum may have no end, and a largest number be negative.
TEST_F(ReportWritersTest, GoToExtremes) {
  Load("tests/reports/golden/Extreme.FIL");
  // Whoever asks for one report is not asked the same once for each thing.
  Said said;
  said.Reply = "no";
  ExpectGolden("ExtremeList.PRN", [] { WriteItemListReport(0); });
  ExpectGolden("ExtremeValues.PRN", [] { WriteItemValuesReport(0, {1, 2}); });
  const std::string asked = "?Are you sure that you want to use an interest rate greater than 100%?";
  EXPECT_EQ(said.Take(), asked + asked);
}

// Families with loops and links to nothing, from every member; and from numbers that are none, which write nothing.
TEST_F(ReportWritersTest, HierarchiesEnd) {
  Load("tests/reports/golden/Family.FIL");
  const std::string nines(79, '9');
  TheDocument.Things.Writable(5).NAME = "_" + nines + " 34";
  TheDocument.Things.Writable(9).NAME = "  " + nines + "__34";
  ExpectGolden("FamilyHierarchies.PRN", [] {
    for (int top = -1; top <= TheDocument.Things.Count() + 1; ++top) WriteHierarchyReport(top);
  });
}

}  // namespace
