// Finding, adding, deleting and renaming things: see things.h.
#include "document/things.h"

#include <cstdint>
#include <utility>

#include "document/document.h"
#include "platform/locale.h"
#include "shell/messages.h"
#include "values/numbers.h"

namespace {

// Gives every link of every thing the number that `renumber` returns for it.
template <class Renumber>
void RenumberLinks(Renumber renumber) {
  auto& things = TheDocument.Things;
  for (int record = 1; record <= things.Count(); ++record) {
    things[record].XREF1 = static_cast<std::int16_t>(renumber(int{things[record].XREF1}));
    things[record].XREF2 = static_cast<std::int16_t>(renumber(int{things[record].XREF2}));
  }
}

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
  auto& things = TheDocument.Things;
  const int count = things.Count();
  if (count >= kLastRecord) return 0;
  const int place = PlaceOf(name, 0);
  things.GrowFor(count + 1, kLoadStep);
  for (int record = count + 1; record > place; --record) things[record] = std::move(things[record - 1]);
  things[place] = {};
  things[place].NAME = name;
  things.SetCount(count + 1);
  // A link that a damaged file left at the last number stays there: it points at nothing in any case.
  RenumberLinks([place](int link) { return link >= place && link < kLastRecord ? link + 1 : link; });
  return place;
}

int AddThing(std::string_view name) {
  const int record = InsertThing(name);
  if (record == 0) {
    Global::Say("A file can hold at most 32767 things.  The thing was not added.", Icon::Exclamation);
    return 0;
  }
  TheDocument.CurrentThing = record;
  TheDocument.Modified = true;
  return record;
}

void DeleteThing(int record) {
  auto& things = TheDocument.Things;
  for (int next = record; next < things.Count(); ++next) things[next] = std::move(things[next + 1]);
  things.SetCount(things.Count() - 1);
  RenumberLinks([record](int link) {
    if (link == record) return 0;
    return link > record ? link - 1 : link;
  });
}

int RenameThing(int record, std::string_view name) {
  auto& things = TheDocument.Things;
  const int place = PlaceOf(name, record);
  ThingRecord renamed = std::move(things[record]);
  renamed.NAME = name;
  for (int hole = record; hole < place; ++hole) things[hole] = std::move(things[hole + 1]);
  for (int hole = record; hole > place; --hole) things[hole] = std::move(things[hole - 1]);
  things[place] = std::move(renamed);
  RenumberLinks([record, place](int link) {
    if (link == record) return place;
    if (link > record && link <= place) return link - 1;
    return link >= place && link < record ? link + 1 : link;
  });
  return place;
}
