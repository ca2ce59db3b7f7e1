// A thing's field values while they are edited: what was typed, and what the formulas make of them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "values/definitions.h"
#include "values/number_store.h"

// Set when a thing's field values were written back; whoever shows the thing refreshes it and clears the flag.
extern bool ThingDataChanged;

// Turns what was typed for a field of that type into its stored text; numbers are computed. An empty text stays
// empty. False, after a message, when it cannot be computed: the text is as typed then.
bool ConvertTypedValue(std::string& text, std::string_view type);

// A line for each formula: its name, and what it gives for these values.
std::vector<ListEntry> FormulaLines(const FieldSlots& slots, InterestQuestion& question);
