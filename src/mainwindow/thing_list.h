// What the thing list and the link lists show: pure functions over the document's things.
#pragma once

#include <string>
#include <vector>

#include "document/document.h"
#include "platform/lists.h"

inline constexpr int kLetters = 26;

// How the user looks at the things.
struct ThingListView {
  std::string StartingLetter;  // "A".."Z", or empty for all names
  int SelectedCategory = 0;    // 1..32, or 0 for all categories
  bool NounOrder = false;      // names are shown turned around
};

// A thing's name as the view shows it.
std::string ShownName(const ThingRecord& thing, bool noun_order);

// The things that pass the view's filters, in document order; each entry's data is the record number.
// Things without a name are left out.
std::vector<ListEntry> ListThings(const ThingListView& view);

// What the view shows, in a line: "20 of 64 things - Furniture - letter B".
std::string ListSummary(const ThingListView& view, int listed);

// An empty entry with data 0 and then every thing, so that record i stands at position i.
std::vector<ListEntry> ListLinks(bool noun_order);

// True when the entries are what ListLinks gives: found out without making them anew, since they seldom change.
bool AreLinks(const std::vector<ListEntry>& entries, bool noun_order);

// By record number, which things links lead to, and nothing else; and the things that link to one, each with which of
// its links does.
std::vector<bool> LinkedThings();
std::vector<ListEntry> ListLinksTo(int record, bool noun_order);

// The categories that have a name, each entry's data being the number.
std::vector<ListEntry> CategoryEntries();

// The position of the first entry whose text begins with the given one without regard to case, or -1.
int FindEntryBeginning(const std::vector<ListEntry>& entries, const std::string& beginning);
