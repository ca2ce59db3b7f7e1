// The entries of the thing list and the link lists, and where a thing is added.
#include "mainwindow/thing_list.h"

#include "document/things.h"
#include "support/fresh_test.h"
#include "support/rows.h"
#include "values/numbers.h"

namespace {

class ThingListTest : public FreshTest {
 protected:
  void SetUp() override {
    FreshTest::SetUp();
    for (const char* name : {"Big Red_Barn", "", "Garden Shed", "shed", "Sun Room", "\xE9table"}) InsertThing(name);
  }
  // "text/record" for each entry.
  static std::string Shown(const std::vector<ListEntry>& entries) {
    std::string text;
    for (const ListEntry& entry : entries) text += entry.Text + "/" + std::to_string(entry.Data) + " ";
    return text;
  }
};

// What the filters let pass, the list's stories show.
TEST_F(ThingListTest, ListsLinksAndFindsBeginnings) {
  EXPECT_EQ(Shown(ListLinks(false)), "/0 /1 Big Red_Barn/2 Garden Shed/3 shed/4 Sun Room/5 \xE9table/6 ");
  EXPECT_EQ(Shown(ListLinks(true)), "/0 /1 Red Barn, Big/2 Shed, Garden/3 shed/4 Room, Sun/5 \xE9table/6 ");
  for (const bool noun_order : {false, true}) {
    std::vector<ListEntry> links = ListLinks(noun_order);
    EXPECT_TRUE(AreLinks(links, noun_order));
    EXPECT_FALSE(AreLinks(links, !noun_order));
    links.back().Text += '!';
    EXPECT_FALSE(AreLinks(links, noun_order));
    links.pop_back();
    EXPECT_FALSE(AreLinks(links, noun_order));
  }
  ExpectRows("S => 2 0 | SH => 2 0 | \xC9T => 4 0 | sheds => -1 0 | SHED => 2 4", [](const std::string& text) {
    return std::to_string(FindEntryBeginning(ListThings({}), text)) + " " + std::to_string(FindThing(text));
  });
  // A name that begins with a reference is listed under no letter, and found by its character only.
  TheDocument.Things.Writable(2).NAME = "&#937;mega";
  EXPECT_EQ(Shown(ListThings({"B", 0, false})), "");
  ExpectRows("&#937;M => 0 | & => -1 | &#93 => -1",
             [](const std::string& text) { return std::to_string(FindEntryBeginning(ListThings({}), text)); });
  EXPECT_TRUE(CategoryBit(0) == 0 && CategoryBit(31) == 1 << 30);
}

// Links are moved along up to the last number.
TEST_F(ThingListTest, AddsThingsAtTheirPlace) {
  TheDocument.Things.Writable(1).NAME = "M";  // unsorted: the place is before the first one that is greater
  EXPECT_EQ(InsertThing("C"), 1);
  EXPECT_EQ(InsertThing("SHED"), 6);  // behind its equals
  TheDocument.Things.Writable(2).XREF1 = kLastRecord;
  TheDocument.Things.GrowFor(kLastRecord, 0);
  TheDocument.Things.SetCount(kLastRecord - 1);
  EXPECT_EQ(InsertThing("\xF7"), kLastRecord);
  EXPECT_EQ(InsertThing("B"), 0);
  EXPECT_EQ(TheDocument.Things[2].XREF1, kLastRecord);
  EXPECT_EQ(TheDocument.Things.Count(), kLastRecord);
}

}  // namespace
