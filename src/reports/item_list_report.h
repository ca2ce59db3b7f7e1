// The item list report: every thing with its values, formulas, categories and note, a block of lines each.
#pragma once

#include <cstdint>
#include <string_view>

// Writes the report on the things that are in any category of the mask (CategoryBit), or on all with mask 0, into the
// open print file. Throws what the disk refuses.
void WriteItemListReport(std::int32_t category_mask);

// Writes a text as lines of at most `width` characters (1 or more) behind a blank, broken at blanks where there are
// some. A text of just that width counts as too long: an empty piece follows it.
void WriteWrapped(std::string_view text, int width);
