// The entries of the thing list and the link lists, and where a thing is added.
#include "mainwindow/thing_list.h"

#include "document/things.h"
#include "support/fresh_test.h"
#include "values/numbers.h"

namespace {

const std::string kThings =
    "[THINGS]/*2; NAME=Big Red_Barn/*3; NAME=Garden Shed/*4; NAME=shed/*5; NAME=Sun Room/*6; NAME=\xE9table";

class ThingListTest : public FreshTest {};

// What the filters let pass, the list's stories show.
TEST_F(ThingListTest, ListsLinksAndFindsBeginnings) {
  Load(kThings);
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
  EXPECT_TRUE(ListThings({"B", 0, false}).empty());
  ExpectRows("&#937;M => 0 | & => -1 | &#93 => -1",
             [](const std::string& text) { return std::to_string(FindEntryBeginning(ListThings({}), text)); });
}

// Links are moved along up to the last number.
TEST_F(ThingListTest, AddsThingsAtTheirPlace) {
  Load(kThings);
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
