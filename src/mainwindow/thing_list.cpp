// What the thing list and the link lists show: see thing_list.h.
#include "mainwindow/thing_list.h"

#include "document/names.h"
#include "platform/locale.h"
#include "platform/references.h"
#include "values/numbers.h"

std::string ShownName(const ThingRecord& thing, bool noun_order) {
  return noun_order ? TurnName(thing.NAME) : thing.NAME;
}

std::vector<ListEntry> ListThings(const ThingListView& view) {
  const auto& things = TheDocument.Things;
  const std::int32_t category = CategoryBit(view.SelectedCategory);
  std::vector<ListEntry> entries;
  entries.reserve(static_cast<std::size_t>(things.Count()));
  for (int record = 1; record <= things.Count(); ++record) {
    const ThingRecord& thing = things[record];
    if (!IsInCategories(thing, category)) continue;
    std::string shown = ShownName(thing, view.NounOrder);
    if (shown.empty()) continue;
    if (!view.StartingLetter.empty() && UpperCase(shown.front()) != view.StartingLetter.front()) continue;
    entries.push_back({std::move(shown), record});
  }
  return entries;
}

std::string ListSummary(const ThingListView& view, int listed) {
  const int things = TheDocument.Things.Count();
  std::string summary = listed == things ? "" : std::to_string(listed) + " of ";
  summary += std::to_string(things) + (things == 1 ? " thing" : " things");
  if (view.SelectedCategory != 0) summary += " - " + TheDocument.CategoryNames[view.SelectedCategory];
  if (!view.StartingLetter.empty()) summary += " - letter " + view.StartingLetter;
  return summary;
}

std::vector<ListEntry> ListLinks(bool noun_order) {
  const auto& things = TheDocument.Things;
  std::vector<ListEntry> entries;
  entries.reserve(static_cast<std::size_t>(things.Count()) + 1);
  entries.push_back({"", 0});
  for (int record = 1; record <= things.Count(); ++record) {
    entries.push_back({ShownName(things[record], noun_order), record});
  }
  return entries;
}

bool AreLinks(const std::vector<ListEntry>& entries, bool noun_order) {
  const auto& things = TheDocument.Things;
  if (entries.size() != static_cast<std::size_t>(things.Count()) + 1) return false;
  for (int record = 1; record <= things.Count(); ++record) {
    const std::string& text = entries[static_cast<std::size_t>(record)].Text;
    const std::string& name = things[record].NAME;
    if (noun_order ? text != TurnName(name) : text != name) return false;
  }
  return true;
}

namespace {

bool LinksTo(const ThingRecord& thing, int record) { return thing.XREF1 == record || thing.XREF2 == record; }

}  // namespace

std::vector<bool> LinkedThings() {
  const auto& things = TheDocument.Things;
  std::vector<bool> linked(kLastRecord + 1);
  for (int from = 1; from <= things.Count(); ++from) {
    for (const int link : {things[from].XREF1, things[from].XREF2}) {
      if (things.Holds(link)) linked[static_cast<std::size_t>(link)] = true;
    }
  }
  return linked;
}

std::vector<ListEntry> ListLinksTo(int record, bool noun_order) {
  const auto& things = TheDocument.Things;
  std::vector<ListEntry> entries;
  for (int from = 1; from <= things.Count(); ++from) {
    const ThingRecord& thing = things[from];
    if (!LinksTo(thing, record)) continue;
    const char* which = thing.XREF1 != record ? " (XRef 2)" : thing.XREF2 != record ? " (XRef 1)" : " (XRef 1 and 2)";
    entries.push_back({ShownName(thing, noun_order) + which, from});
  }
  return entries;
}

std::vector<ListEntry> CategoryEntries() {
  std::vector<ListEntry> entries;
  for (int number = 1; number <= kCategories; ++number) {
    if (!TheDocument.CategoryNames[number].empty()) entries.push_back({TheDocument.CategoryNames[number], number});
  }
  return entries;
}

int FindEntryBeginning(const std::vector<ListEntry>& entries, const std::string& beginning) {
  const std::string wanted = UpperCase(beginning);
  for (std::size_t position = 0; position < entries.size(); ++position) {
    const std::string& text = entries[position].Text;
    const bool begins = UpperCase(std::string_view(text).substr(0, wanted.size())) == wanted;
    if (begins && WholeBytes(text, wanted.size()) == wanted.size()) return static_cast<int>(position);
  }
  return -1;
}
