// The forms a thing's name takes: stored, in noun order, and as shown in reports.
#pragma once

#include <string>
#include <string_view>

// The stored form of a name that was typed or read: "Barn, Red" gives "Red Barn", "Red Barn, Big" gives
// "Big Red_Barn"; a name without a comma is trimmed only.
std::string NormaliseName(std::string_view name);

// Trims the text and turns each blank left into "_".
std::string JoinWordsWithUnderscores(std::string_view text);

// Trims the text and turns each "_" into a blank: a thing's display name, too.
std::string JoinUnderscoredWords(std::string_view text);

// The name with its last word leading, for display: "Garden Shed" gives "Shed, Garden", "Big Red_Barn"
// gives "Red Barn, Big". A name written with a comma keeps its order.
std::string TurnName(std::string_view name);
