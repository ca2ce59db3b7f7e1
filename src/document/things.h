// Finding, adding, deleting and renaming things, with every link kept true.
#pragma once

#include <string_view>

// The first thing whose name equals the given one without regard to case; 0 when there is none.
int FindThing(std::string_view name);

// True when a thing other than `record` has that name, without regard to case.
bool HasNameOfOther(std::string_view name, int record);

// Adds a thing with that name (in its stored form) and nothing else, before the first one whose
// upper-cased name is greater. The things from there on move up by one, and every link at or above the
// new number follows them. Returns the new record number; 0 when the table holds 32767 things already.
int InsertThing(std::string_view name);

// Does so for the user: the thing becomes the current one and the document is changed. Says when the table is full; 0
// then.
int AddThing(std::string_view name);

// Deletes a thing. Links to it become 0, the things behind it move down by one, and every link above its
// number follows them.
void DeleteThing(int record);

// Gives a thing another name (in its stored form) and moves it to the place where InsertThing would put it
// among the others; every link follows the things that moved. Returns the thing's new record number.
int RenameThing(int record, std::string_view name);
