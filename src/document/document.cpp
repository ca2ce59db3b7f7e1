// The document and its clearing: see document.h.
#include "document/document.h"

#include <cassert>

#include "document/file_lock.h"
#include "document/history.h"
#include "document/segments.h"

Document TheDocument;

std::size_t CategoryNameTable::Index(int number) {
  assert(number >= 1 && number <= kCategories);
  return static_cast<std::size_t>(number - 1);
}

int CategoryNameTable::Highest() const {
  int number = kCategories;
  while (number > 0 && (*this)[number].empty()) --number;
  return number;
}

std::int32_t CategoryBit(int category) {
  return category == 0 ? 0 : static_cast<std::int32_t>(std::uint32_t{1} << (category - 1));
}

bool IsInCategories(const ThingRecord& thing, std::int32_t category_mask) {
  return category_mask == 0 || (thing.CATBITMAP & category_mask) != 0;
}

void MakeNew() {
  Document& document = TheDocument;
  ReleaseFileLock();
  document.Writable = true;
  document.PendingEdits = false;
  document.CurrentThing = 0;
  document.Visited.Clear();
  document.DocumentOpen = false;
  document.FileName.clear();
  document.ShownFileName.clear();
  document.Things.SetCount(0);
  document.Fields.SetCount(0);
  document.CategoryNames.Clear();
  ClearPendingText();
  TheHistory.Clear();
}
