// Finding and adding things, with every link kept true.
#pragma once

#include <string_view>

// The first thing whose name equals the given one without regard to case; 0 when there is none.
int FindThing(std::string_view name);

// Adds a thing with that name (in its stored form) and nothing else, before the first one whose
// upper-cased name is greater. The things from there on move up by one, and every link at or above the
// new number follows them. Returns the new record number; 0 when the table holds 32767 things already.
int InsertThing(std::string_view name);
