// What the program asks of the machine's language settings.
#pragma once

#include <string>
#include <string_view>

// The machine's decimal separator: "," when the system writes 1.1 with a comma, otherwise ".".
// Asked of the system at every call, since the user may change it while the program runs.
char DecimalSeparator();

// Upper-cases text of the system's single-byte character set, accented letters included.
std::string UpperCase(std::string_view text);
char UpperCase(char character);
