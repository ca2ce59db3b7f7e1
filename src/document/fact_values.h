// A thing's field values while they are edited: work on a copy of its slots, and the way back into the thing.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "values/definitions.h"

// Set when a thing's field values were written back; whoever shows the thing refreshes it and clears the flag.
extern bool ThingDataChanged;

// The value of a field, empty when the slots have none.
std::string ValueOf(const FieldSlots& slots, std::string_view keyword);

// Puts a value into the field's slot, or into the first free one; an empty value leaves the keyword alone in its
// slot. False when there is no slot left: nothing is changed then.
bool PutValue(FieldSlots& slots, std::string_view keyword, std::string_view value);

// The slots that hold a value, moved together from the first one on.
FieldSlots PackValues(const FieldSlots& slots);

// Turns what was typed for a field of that type into its stored text; numbers are computed. An empty text stays
// empty. False, after a message, when it cannot be computed: the text is as typed then.
bool ConvertTypedValue(std::string& text, std::string_view type);

// A line for each formula: its name, and what it gives for these values.
std::vector<ListEntry> FormulaLines(const FieldSlots& slots);
