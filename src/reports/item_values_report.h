// The item values report: a table of things and their numbers, with totals below.
#pragma once

#include <cstdint>
#include <vector>

// Writes the report into the open print file: a line for each thing in any category of the mask (CategoryBit; 0 for
// all), a column for each of these fields (by number) and then for each formula of a numeric type. Throws what the
// disk refuses.
void WriteItemValuesReport(std::int32_t category_mask, const std::vector<int>& fields);
