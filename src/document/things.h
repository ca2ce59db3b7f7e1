// Finding and changing things, with every link kept true. Each change is one step of the history.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/document.h"

// The first thing whose name equals the given one without regard to case; 0 when there is none.
int FindThing(std::string_view name);

// True when a thing other than `record` has that name, without regard to case.
bool HasNameOfOther(std::string_view name, int record);

// Adds a thing with that name (in its stored form) and nothing else, before the first one whose
// upper-cased name is greater. The things from there on move up by one, and every link at or above the
// new number follows them. Returns the new record number; 0 when the table holds 32767 things already.
int InsertThing(std::string_view name);

// Does so for the user: the thing becomes the current one. Says when the table is full; 0 then.
int AddThing(std::string_view name);

// Deletes a thing. Links to it become 0, the things behind it move down by one, and every link above its
// number and the current thing follow them.
void DeleteThing(int record);

// Gives a thing another name (in its stored form) and moves it to the place where InsertThing would put it
// among the others; every link follows the things that moved, and it becomes the current one. Returns its new record
// number.
int RenameThing(int record, std::string_view name);

// What the main window lets the user edit of a thing.
struct ThingEdits {
  std::string NOTE;
  std::int16_t XREF1 = 0;
  std::int16_t XREF2 = 0;
};
void StoreEdits(int record, const ThingEdits& edits);

// Puts things into a category (1..32), or takes them out.
void Tick(int record, int category, bool on);
void TickAll(const std::vector<int>& records, int category, bool on);

// An empty name takes the photo away.
void SetPhoto(int record, const std::string& file_name);

void SetValues(int record, const FieldSlots& values);

void SetCategoryNames(const CategoryNameTable& names);
