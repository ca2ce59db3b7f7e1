// What the program asks of the machine's language settings.
#pragma once

#include <string>
#include <string_view>

// The machine's decimal separator: "," when the system writes 1.1 with a comma, otherwise ".".
// Asked of the system at every call, since the user may change it while the program runs.
char DecimalSeparator();

// Upper-cases text of the system's single-byte character set, accented letters included. References stay as they are.
std::string UpperCase(std::string_view text);
char UpperCase(char character);

// The character that stands for all that the system's own comparison takes for the same letter, whatever its case and
// accents; itself for what is no letter.
char PlainLetter(char character);

// A date in the system's short format ("8/5/2026"); years before 1601, which the system does not know, as
// "0476-09-04".
std::string ShortDate(int year, unsigned month, unsigned day);
