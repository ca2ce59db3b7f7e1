// The entries of the thing list and the link lists, and adding things with their links.
#include "mainwindow/thing_list.h"

#include "document/things.h"
#include "support/fresh_test.h"

namespace {

class ThingListTest : public FreshTest {
 protected:
  static void Put(const std::vector<ThingRecord>& things) {
    TheDocument.Things.GrowFor(static_cast<int>(things.size()), kLoadStep);
    TheDocument.Things.SetCount(static_cast<int>(things.size()));
    for (int record = 1; record <= TheDocument.Things.Count(); ++record) {
      TheDocument.Things[record] = things[static_cast<std::size_t>(record - 1)];
    }
  }
  static ThingRecord Thing(const std::string& name, std::int32_t categories = 0, std::int16_t xref1 = 0,
                           std::int16_t xref2 = 0) {
    ThingRecord thing;
    thing.NAME = name;
    thing.CATBITMAP = categories;
    thing.XREF1 = xref1;
    thing.XREF2 = xref2;
    return thing;
  }
  // "text/record" for each entry.
  static std::string Shown(const std::vector<ListEntry>& entries) {
    std::string text;
    for (const ListEntry& entry : entries) text += entry.Text + "/" + std::to_string(entry.Data) + " ";
    return text;
  }
  static std::string Links() {
    std::string text;
    for (int record = 1; record <= TheDocument.Things.Count(); ++record) {
      const ThingRecord& thing = TheDocument.Things[record];
      text += thing.NAME + ":" + std::to_string(thing.XREF1) + "," + std::to_string(thing.XREF2) + " ";
    }
    return text;
  }
};

TEST_F(ThingListTest, PassesTheFilters) {
  Put({Thing("Big Red_Barn", 1), Thing(""), Thing("Garden Shed", 2), Thing("\xE9table", 3), Thing("Sun Room"),
       Thing("shed", CategoryBit(32))});
  struct Row {
    ThingListView View;
    const char* Entries;
  };
  const Row rows[] = {
      {{"", 0, 0, false}, "Big Red_Barn/1 Garden Shed/3 \xE9table/4 Sun Room/5 shed/6 "},
      {{"", 0, 0, true}, "Red Barn, Big/1 Shed, Garden/3 \xE9table/4 Room, Sun/5 shed/6 "},
      {{"S", 0, 0, false}, "Sun Room/5 shed/6 "},
      {{"S", 0, 0, true}, "Shed, Garden/3 shed/6 "},
      {{"", 1, 1, false}, "Big Red_Barn/1 \xE9table/4 "},
      {{"", 32, CategoryBit(32), false}, "shed/6 "},
      {{"B", 2, 2, false}, ""},
      {{"G", 2, 2, false}, "Garden Shed/3 "},
  };
  for (const Row& row : rows) EXPECT_EQ(Shown(ListThings(row.View)), row.Entries);
  EXPECT_EQ(Shown(ListLinks(false)), "/0 Big Red_Barn/1 /2 Garden Shed/3 \xE9table/4 Sun Room/5 shed/6 ");
  EXPECT_EQ(Shown(ListLinks(true)), "/0 Red Barn, Big/1 /2 Shed, Garden/3 \xE9table/4 Room, Sun/5 shed/6 ");

  for (const bool noun_order : {false, true}) {
    std::vector<ListEntry> links = ListLinks(noun_order);
    EXPECT_TRUE(AreLinks(links, noun_order));
    EXPECT_FALSE(AreLinks(links, !noun_order));
    links.back().Text += '!';
    EXPECT_FALSE(AreLinks(links, noun_order));
    links.pop_back();
    EXPECT_FALSE(AreLinks(links, noun_order));
  }

  const std::vector<ListEntry> entries = ListThings({});
  EXPECT_EQ(FindEntryBeginning(entries, "S"), 3);
  EXPECT_EQ(FindEntryBeginning(entries, "SH"), 4);
  EXPECT_EQ(FindEntryBeginning(entries, "\xC9T"), 2);
  EXPECT_EQ(FindEntryBeginning(entries, "sheds"), -1);
}

TEST_F(ThingListTest, CategoryBitsReachTheSign) {
  EXPECT_EQ(CategoryBit(0), 0);
  EXPECT_EQ(CategoryBit(1), 1);
  EXPECT_EQ(CategoryBit(31), 1 << 30);
  EXPECT_LT(CategoryBit(32), 0);
}

TEST_F(ThingListTest, FindsThingsWithoutRegardToCase) {
  Put({Thing("Shed"), Thing("\xC9table"), Thing("SHED")});
  EXPECT_EQ(FindThing("sHED"), 1);
  EXPECT_EQ(FindThing("\xE9TABLE"), 2);
  EXPECT_EQ(FindThing("She"), 0);
}

TEST_F(ThingListTest, AddsThingsAtTheirPlaceAndKeepsLinksTrue) {
  Put({Thing("barn", 0, 2, 3), Thing("Shed", 0, 1, 0), Thing("Zoo", 0, 3, 9)});
  EXPECT_EQ(InsertThing("Garden"), 2);
  EXPECT_EQ(Links(), "barn:3,4 Garden:0,0 Shed:1,0 Zoo:4,10 ");  // the link past the end stays past it
  EXPECT_EQ(InsertThing("SHED"), 4);                             // behind its equals
  EXPECT_EQ(InsertThing("zz"), 6);
  EXPECT_EQ(InsertThing("A"), 1);
  EXPECT_EQ(Links(), "A:0,0 barn:4,6 Garden:0,0 Shed:2,0 SHED:0,0 Zoo:6,13 zz:0,0 ");
}

TEST_F(ThingListTest, HoldsNoMoreThanTheNumbersReach) {
  TheDocument.Things.GrowFor(32767, 0);
  TheDocument.Things.SetCount(32766);
  TheDocument.Things[1].XREF1 = 32767;
  EXPECT_EQ(InsertThing("A"), 32767);
  EXPECT_EQ(TheDocument.Things[1].XREF1, 32767);
  EXPECT_EQ(InsertThing("B"), 0);
  EXPECT_EQ(TheDocument.Things.Count(), 32767);
}

TEST_F(ThingListTest, FindsThePlaceInAnUnsortedTable) {
  Put({Thing("M"), Thing("A"), Thing("Z")});
  EXPECT_EQ(InsertThing("C"), 1);
  EXPECT_EQ(InsertThing("N"), 4);
  EXPECT_EQ(Links(), "C:0,0 M:0,0 A:0,0 N:0,0 Z:0,0 ");
}

}  // namespace
