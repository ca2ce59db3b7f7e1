// Reading print files: the header, the lines and the head; and finding text in them.
#include "viewer/report_text.h"

#include <gtest/gtest.h>

#include "viewer/finder.h"

namespace {

using namespace std::string_literals;

struct HeaderRow {
  std::string Line;
  bool IsReport;
  Index Titles, Headings, Left;
  bool Grid;
};

class HeaderRows : public testing::TestWithParam<HeaderRow> {};

TEST_P(HeaderRows, AreRead) {
  const HeaderRow& row = GetParam();
  const ReportHeader header = ParseReportHeader(row.Line);
  EXPECT_EQ(header.IsReport, row.IsReport);
  EXPECT_EQ(header.Titles, row.Titles);
  EXPECT_EQ(header.Headings, row.Headings);
  EXPECT_EQ(header.Left, row.Left);
  EXPECT_EQ(header.Grid, row.Grid);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, HeaderRows,
    testing::Values(HeaderRow{"LARKSPUR V1.0 REPORT T=2,H=2,L=31,G=0", true, 2, 2, 31, false},
                    HeaderRow{"LARKSPUR V1.0 REPORT T=2", true, 2, 0, 0, false},
                    HeaderRow{"LARKSPUR V1.0 REPORT", true, 0, 0, 0, false},
                    HeaderRow{"LARKSPUR V1.0 REPORT  G=1, l=5,X=7,H=1", true, 0, 1, 5, true},
                    HeaderRow{"LARKSPUR V1.0 REPORT T=-3,H=99999999999999999999,L=x,G=2,=,T", true, 0, 32767, 0, false},
                    HeaderRow{"LARKSPUR V1.0 REPORT T=-99999999999999999999,L=", true, 0, 0, 0, false},
                    HeaderRow{"LARKSPUR V1.0 REPORTS T=2", false, 0, 0, 0, false},
                    HeaderRow{"LARKSPUR V5.0 FILER DATA", false, 0, 0, 0, false},
                    HeaderRow{" LARKSPUR V1.0 REPORT T=2", false, 0, 0, 0, false},
                    HeaderRow{"", false, 0, 0, 0, false}));

struct LinesRow {
  std::string Bytes;
  std::vector<std::string> Lines;
  Index Widest;
};

class LinesRows : public testing::TestWithParam<LinesRow> {};

TEST_P(LinesRows, AreFound) {
  const ReportText text(GetParam().Bytes);
  std::vector<std::string> lines;
  for (Index line = 0; line < text.Count(); ++line) lines.emplace_back(text.Line(line));
  EXPECT_EQ(lines, GetParam().Lines);
  EXPECT_EQ(text.Widest(), GetParam().Widest);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LinesRows,
    testing::Values(LinesRow{"", {}, 0}, LinesRow{"one", {"one"}, 3}, LinesRow{"one\r\nthree\r\n", {"one", "three"}, 5},
                    LinesRow{"a\nbb\rccc\r\r\n\n\rd\r", {"a", "bb", "ccc", "", "", "", "d"}, 3},
                    LinesRow{"\r\n\r\n", {"", ""}, 0}, LinesRow{"\r\rx", {"", "", "x"}, 1},
                    LinesRow{"a\tb\t\r\n12345678\tc\n", {"a       b       ", "12345678        c"}, 17},
                    LinesRow{"nul\0here\n"s, {"nul\0here"s}, 8},
                    LinesRow{"LARKSPUR V1.0 REPORT T=2\r\n\r\ntitle\r\n", {"", "title"}, 5},
                    LinesRow{"LARKSPUR V1.0 REPORT T=2", {}, 0}));

struct HeadRow {
  std::string Header;
  std::string Rest;
  Index Titles, Head;
};

class HeadRows : public testing::TestWithParam<HeadRow> {};

TEST_P(HeadRows, AreTitlesAndHeadingsWithTheEmptyLinesBetween) {
  const ReportText text("LARKSPUR V1.0 REPORT " + GetParam().Header + "\r\n" + GetParam().Rest);
  EXPECT_EQ(text.TitleLines(), GetParam().Titles);
  EXPECT_EQ(text.HeadLines(), GetParam().Head);
}

INSTANTIATE_TEST_SUITE_P(Rows, HeadRows,
                         testing::Values(HeadRow{"T=2,H=2", "\nTitle\n\nKEY\nHead\nthing\n", 2, 5},
                                         HeadRow{"T=2,H=2", "\nTitle\nKEY\nHead\nthing\n", 2, 4},
                                         HeadRow{"T=2", "\nTitle\n\nthing\n", 2, 2},
                                         HeadRow{"H=1", "Head\nthing\n", 0, 1},
                                         HeadRow{"T=2,H=2", "\nTitle\n\n\n", 2, 4}, HeadRow{"T=2,H=2", "\n", 1, 1},
                                         HeadRow{"T=300,H=300", "", 0, 0}));

TEST(ReportTextTest, PlacesAndOffsetsAgree) {
  const ReportText text("LARKSPUR V1.0 REPORT T=2\r\n\r\ntitle\r\nbody");
  EXPECT_EQ(text.Body(), "\r\ntitle\r\nbody");
  EXPECT_EQ(text.OffsetOf({1, 3}), 5u);
  EXPECT_EQ(text.PlaceOf(5), (Place{1, 3}));
  EXPECT_EQ(text.PlaceOf(9), (Place{2, 0}));
  EXPECT_EQ(text.OffsetOf({1, 100}), 7u);  // the line's end
  EXPECT_EQ(text.OffsetOf({3, 0}), text.Body().size());
}

TEST(FinderTest, FindsForwardAndBackwardWithoutOverlap) {
  const ReportText text("aaaa Shed\r\nnone\r\nSHED a\r\ncaf\xE9 CAF\xC9");
  const auto all = [&text](const Finder& finder, bool forward) {
    std::vector<Place> places;
    auto place = forward ? finder.Next(text, {}) : finder.Previous(text, {text.Count(), 0});
    for (; place; place = forward ? finder.Next(text, {place->Line, place->Column + finder.Length()})
                                  : finder.Previous(text, *place)) {
      places.insert(forward ? places.end() : places.begin(), *place);
    }
    return places;
  };
  const std::vector<std::pair<std::string, std::vector<Place>>> rows = {
      {"shed", {{0, 5}, {2, 0}}}, {"aa", {{0, 0}, {0, 2}}}, {"CAF\xE9", {{3, 0}, {3, 5}}}, {"missing", {}}, {"", {}}};
  for (const auto& [sought, places] : rows) {
    const Finder finder(sought);
    EXPECT_EQ(all(finder, true), places) << sought;
    EXPECT_EQ(all(finder, false), places) << sought;
    EXPECT_EQ(finder.CountIn(text.Body()), places.size()) << sought;
  }
  EXPECT_EQ(Finder("aa").Next(text, {0, 1}), (Place{0, 2}));
}

}  // namespace
