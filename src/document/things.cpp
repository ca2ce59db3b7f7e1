// Finding and adding things: see things.h.
#include "document/things.h"

#include <cstdint>
#include <utility>

#include "document/document.h"
#include "platform/locale.h"
#include "values/numbers.h"

namespace {

// A link that a damaged file left at the last number stays there: it points at nothing in any case.
void RaiseLink(std::int16_t& link, int from) {
  if (link >= from && link < kLastRecord) ++link;
}

}  // namespace

int FindThing(std::string_view name) {
  const std::string wanted = UpperCase(name);
  const auto& things = TheDocument.Things;
  for (int record = 1; record <= things.Count(); ++record) {
    if (UpperCase(things[record].NAME) == wanted) return record;
  }
  return 0;
}

int InsertThing(std::string_view name) {
  auto& things = TheDocument.Things;
  const int count = things.Count();
  if (count >= kLastRecord) return 0;
  const std::string upper_name = UpperCase(name);
  int place = 1;
  while (place <= count && UpperCase(things[place].NAME) <= upper_name) ++place;

  things.GrowFor(count + 1, kLoadStep);
  for (int record = count + 1; record > place; --record) things[record] = std::move(things[record - 1]);
  things[place] = {};
  things[place].NAME = name;
  things.SetCount(count + 1);
  for (int record = 1; record <= things.Count(); ++record) {
    RaiseLink(things[record].XREF1, place);
    RaiseLink(things[record].XREF2, place);
  }
  return place;
}
