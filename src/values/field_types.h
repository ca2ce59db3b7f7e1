// The type keywords of fields and formulas.
#pragma once

#include <array>
#include <string>
#include <string_view>

// The numeric types that the definition dialogs offer, in their order.
inline constexpr std::array<std::string_view, 8> kOfferedTypes = {"DOUBLE", "SINGLE", "INTEGER", "LONG",
                                                                  "DOLLAR", "ODDS",   "ODDSPM",  "INTEREST"};

// True for each of the ten numeric keywords, in any case: the offered ones, and BYTE and INTRATE, which
// only a file may hold. An empty type is a text field's; unknown keywords count as text, too.
bool IsNumberType(std::string_view type);

// The keyword under which StoreNumberByType knows the type of a formula or a numeric field: INTEREST is
// stored as INTRATE, an empty or blank one as DOUBLE, the others under their own name in capitals. Empty
// for a keyword that no value can be stored under.
std::string StorageType(std::string_view type);
