// Display templates: how stored values are shown.
//
// A template is made of "#" (a digit if there is one), "0" (a digit, zero if none), "," (thousands), "." (the
// decimal point) and "%" (times 100, with the sign).
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Global {

// The template that belongs to a type keyword, in any case; empty for those that have none.
std::string DefaultTemplate(std::string_view type);

// The template for this machine: on one whose decimal separator is ",", each "," becomes "."; "." stays.
std::string LocaliseTemplate(std::string_view display_template);

}  // namespace Global

// A stored value under a template of this machine (localised): text that is no number, and any text under
// an empty template, is returned as it stands. A value stored with "%" is its number / 100. `separator`
// is the machine's decimal separator.
std::string FormatByTemplate(std::string_view stored, std::string_view display_template, char separator);

// A stored value as a field or formula of that type and format shows it; an empty format stands for the
// type's own.
std::string FormatValue(std::string_view stored, std::string_view type, std::string_view format);

// The number of a stored value, a percentage as a fraction; nothing for text that is no number.
std::optional<double> StoredNumber(std::string_view stored, char separator);
