// The hierarchy report: its texts on small families, and its sections on random ones.
#include "reports/hierarchy_report.h"

#include <random>

#include "document/document.h"
#include "document/names.h"
#include "reports/print_file.h"
#include "reports/reports_test.h"

namespace {

struct Member {
  std::string Name;
  int First = 0;
  int Second = 0;
};

class HierarchyReportTest : public ReportsTest {
 protected:
  static void Put(const std::vector<Member>& members) {
    TheDocument = {};
    TheDocument.Things.GrowFor(static_cast<int>(members.size()), 0);
    TheDocument.Things.SetCount(static_cast<int>(members.size()));
    int record = 0;
    for (const Member& member : members) {
      ThingRecord& thing = TheDocument.Things[++record];
      thing.NAME = member.Name;
      thing.XREF1 = static_cast<std::int16_t>(member.First);
      thing.XREF2 = static_cast<std::int16_t>(member.Second);
      thing.HierarchyMark = 99;  // of an earlier report
    }
  }
  static std::string Report(int top) {
    return Written([top] { WriteHierarchyReport(top); });
  }
  static std::string WithFrame(const std::string& name, const std::vector<std::string>& body) {
    return Lines({"LARKSPUR V1.0 REPORT T=2", "", "Larkspur Heirarchy report for " + name}) + Lines(body);
  }
};

TEST_F(HierarchyReportTest, ListsDescendants) {
  Put({{"Ann"}, {"Bob", 1}, {"Carl", 1, 1}, {"Dora", 0, 2}, {"Eve", 30000, -7}});
  EXPECT_EQ(Report(1), WithFrame("Ann", {"", " 1   Ann", "     >> Bob", "     >> Carl", "", " 2   Bob (from #1)",
                                         "     >> Dora"}));
  EXPECT_EQ(Report(5), WithFrame("Eve", {"No descendants found."}));
  for (const int none : {0, -1, 6}) EXPECT_EQ(Report(none), "");

  Put({{"Ann", 2}, {"Bob", 1}});
  EXPECT_EQ(Report(1), WithFrame("Ann", {"", " 1   Ann", "     >> Bob", "", " 2   Bob (from #1)", "     >> Ann"}));
  Put({{"Ann", 1}});
  EXPECT_EQ(Report(1), WithFrame("Ann", {"", " 1   Ann (from #1)", "     >> Ann"}));

  const std::string nines(79, '9');
  Put({{"_" + nines + " 34"}, {nines + " 2", 1}});
  EXPECT_EQ(Report(1), WithFrame(" " + nines, {"", " 1    " + nines, "     >> " + nines.substr(0, 70)}));
  Put({{"  " + nines + "__34"}, {"x", 1}});
  EXPECT_EQ(Report(1), WithFrame(nines.substr(1), {"", " 1   " + nines + " ", "     >> x"}));
}

// As the report was first described: every step looks at all things.
void WriteSlowly(int top) {
  RecordTable<ThingRecord>& things = TheDocument.Things;
  std::vector<int> marks(static_cast<std::size_t>(things.Count()) + 1);
  const auto mark = [&](int parent, int section) {
    bool found = false;
    for (int i = 1; i <= things.Count(); ++i) {
      int& own = marks[static_cast<std::size_t>(i)];
      if (own != 0 || (things[i].XREF1 != parent && things[i].XREF2 != parent)) continue;
      own = section;
      found = true;
    }
    return found;
  };
  const auto write = [&](int parent, int section) {
    const int own = marks[static_cast<std::size_t>(parent)];
    PrintLine({});
    PrintLine({section, Tab{6}, things[parent].NAME, own > 0 ? " (from #" + std::to_string(own) + ")" : ""});
    for (int i = 1; i <= things.Count(); ++i) {
      if (marks[static_cast<std::size_t>(i)] == section) PrintLine({Tab{6}, ">> ", things[i].NAME});
    }
  };
  PrintFrame("LARKSPUR V1.0 REPORT T=2", "Larkspur Heirarchy report for " + things[top].NAME);
  if (!mark(top, 1)) {
    PrintLine({"No descendants found."});
    return;
  }
  write(top, 1);
  int last = 1;
  for (int level = 1; level <= last; ++level) {
    for (int i = 1; i <= things.Count(); ++i) {
      if (marks[static_cast<std::size_t>(i)] == level && mark(i, last + 1)) write(i, ++last);
    }
  }
}

TEST_F(HierarchyReportTest, HasTheSectionsOfTheSlowWay) {
  std::mt19937 random(1);
  for (int round = 0; round < 60; ++round) {
    const auto count = static_cast<unsigned>(1 + random() % 40);
    std::vector<Member> members;
    for (unsigned record = 1; record <= count; ++record) {
      members.push_back({"T" + std::to_string(record), static_cast<int>(random() % (count + 2)),
                         random() % 3 == 0 ? static_cast<int>(random() % (count + 1)) : 0});
    }
    Put(members);
    const int top = 1 + static_cast<int>(random() % count);
    ASSERT_EQ(Report(top), Written([top] { WriteSlowly(top); })) << "round " << round;
  }
}

TEST_F(HierarchyReportTest, GoesThroughACollection) {
  LoadSource("samples/Household.FIL");
  ExpectGolden("HouseholdHierarchy.PRN", [] { WriteHierarchyReport(24); });
  LoadSource("tests/reports/golden/Nasty.FIL");
  ExpectGolden("NastyHierarchy.PRN", [] { WriteHierarchyReport(1); });
}

}  // namespace
