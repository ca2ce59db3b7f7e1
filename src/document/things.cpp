// Finding, adding, deleting and renaming things: see things.h.
#include "document/things.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "document/history.h"
#include "document/names.h"
#include "platform/locale.h"
#include "shell/messages.h"
#include "values/numbers.h"

namespace {

// Upper-casing makes no name longer or shorter: most are told apart without it.
bool HasName(const ThingRecord& thing, const std::string& upper_name) {
  return thing.NAME.size() == upper_name.size() && UpperCase(thing.NAME) == upper_name;
}

// The place of a name in the table's order: before the first thing whose upper-cased name is greater. The
// thing `without` does not count, as if it had been taken out.
int PlaceOf(std::string_view name, int without) {
  const std::string upper_name = UpperCase(name);
  const auto& things = TheDocument.Things;
  int place = 1;
  for (int record = 1; record <= things.Count(); ++record) {
    if (record == without) continue;
    if (UpperCase(things[record].NAME) > upper_name) break;
    ++place;
  }
  return place;
}

// A step's title: what is done, and to which thing.
std::string Titled(const char* what, int record) {
  return what + (" " + JoinUnderscoredWords(TheDocument.Things[record].NAME));
}

}  // namespace

int FindThing(std::string_view name) {
  const std::string wanted = UpperCase(name);
  const auto& things = TheDocument.Things;
  for (int record = 1; record <= things.Count(); ++record) {
    if (HasName(things[record], wanted)) return record;
  }
  return 0;
}

bool HasNameOfOther(std::string_view name, int record) {
  const std::string wanted = UpperCase(name);
  const auto& things = TheDocument.Things;
  for (int other = 1; other <= things.Count(); ++other) {
    if (other != record && HasName(things[other], wanted)) return true;
  }
  return false;
}

int InsertThing(std::string_view name) {
  const int count = TheDocument.Things.Count();
  if (count >= kLastRecord) return 0;
  Step step("Add " + JoinUnderscoredWords(name));
  const int place = PlaceOf(name, 0);
  step.InsertThing(place);
  step.Thing(place).NAME = name;
  return place;
}

int AddThing(std::string_view name) {
  if (TheDocument.Things.Count() >= kLastRecord) {
    Global::Say("A file can hold at most 32767 things.  The thing was not added.", Icon::Exclamation);
    return 0;
  }
  Step step("Add " + JoinUnderscoredWords(name));
  const int record = InsertThing(name);
  TheDocument.CurrentThing = record;
  return record;
}

void DeleteThing(int record) {
  Step step(Titled("Delete", record));
  const bool is_current = TheDocument.CurrentThing == record;
  step.RemoveThing(record);
  if (is_current) TheDocument.CurrentThing = std::min(record, TheDocument.Things.Count());  // the one behind it
}

int RenameThing(int record, std::string_view name) {
  Step step(Titled("Rename", record));
  const int place = PlaceOf(name, record);
  step.Thing(record).NAME = name;
  step.MoveThing(record, place);
  TheDocument.CurrentThing = place;
  return place;
}

void StoreEdits(int record, const ThingEdits& edits) {
  const ThingRecord& before = TheDocument.Things[record];
  const bool links = before.XREF1 != edits.XREF1 || before.XREF2 != edits.XREF2;
  const bool only_links = links && before.NOTE == edits.NOTE;
  Step step(Titled(only_links ? "Change Links of" : links ? "Change Note and Links of" : "Change Note of", record));
  ThingRecord& thing = step.Thing(record);
  thing.NOTE = edits.NOTE;
  thing.XREF1 = edits.XREF1;
  thing.XREF2 = edits.XREF2;
}

namespace {

std::int32_t Ticked(std::int32_t categories, int category, bool on) {
  return on ? categories | CategoryBit(category) : categories & ~CategoryBit(category);
}

std::string TickTitle(int category, bool on) {
  return (on ? "Tick " : "Untick ") + TheDocument.CategoryNames[category] + " for ";
}

}  // namespace

void Tick(int record, int category, bool on) {
  Step step(TickTitle(category, on) + JoinUnderscoredWords(TheDocument.Things[record].NAME));
  ThingRecord& thing = step.Thing(record);
  thing.CATBITMAP = Ticked(thing.CATBITMAP, category, on);
}

void TickAll(const std::vector<int>& records, int category, bool on) {
  Step step(TickTitle(category, on) + std::to_string(records.size()) + (records.size() == 1 ? " Thing" : " Things"));
  for (const int record : records) {
    const std::int32_t categories = Ticked(TheDocument.Things[record].CATBITMAP, category, on);
    if (categories != TheDocument.Things[record].CATBITMAP) step.Thing(record).CATBITMAP = categories;
  }
}

void SetPhoto(int record, const std::string& file_name) {
  Step step(Titled(file_name.empty() ? "Remove Photo of" : "Change Photo of", record));
  step.Thing(record).PICFILENAME = file_name;
}

void SetValues(int record, const FieldSlots& values) {
  Step step(Titled("Change Values of", record));
  step.Thing(record).Values = values;
}

void SetCategoryNames(const CategoryNameTable& names) {
  Step step("Change Categories");
  for (int number = 1; number <= kCategories; ++number) {
    if (TheDocument.CategoryNames[number] != names[number]) step.CategoryName(number) = names[number];
  }
}
