// The titles of a standard address book, which the sibling programs of the package share.
#pragma once

#include <array>
#include <string>

namespace Global {

inline constexpr int kAddressTitles = 18;
using AddressTitles = std::array<std::string, kAddressTitles>;

extern AddressTitles StandardTitles;
extern AddressTitles FieldTitles;  // companions that may be changed on their own
extern AddressTitles ShownTitles;

// Fills the standard table and copies it into its two companions.
void FillAddressTitles();

}  // namespace Global
