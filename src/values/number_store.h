// Turning raw text into the stored text of a type.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Why something failed or was replaced: texts for the user, in the order in which it happened.
using Reasons = std::vector<std::string>;

// What came of a text that was computed or was to be stored; nobody was told or asked yet.
struct Outcome {
  std::string Text;
  Reasons Why = {};
  bool IsHighInterest = false;  // above 100 %: the user is asked whether that is meant
};

// Whether interest above 100 % is meant: asked at most once while this lives, and the answer holds for the rest.
class InterestQuestion {
 public:
  // The text of the outcome; "0" for a high interest that is not meant.
  std::string Settle(Outcome outcome);

 private:
  std::optional<bool> is_meant_;
};

// Reads the number in a text, checks it against the type (in any case: BYTE, INTEGER, LONG, SINGLE, DOUBLE, DOLLAR,
// ODDS, ODDSPM, INTRATE) and gives its stored form. `separator` is the machine's decimal separator. The outcome's text
// is empty when the number could not be read, converted or formatted; a percentage out of its range is replaced and
// counts as stored. Any other type is a fault of the program and ends it.
Outcome StoreNumber(std::string text, std::string_view type, char separator);

// Says why, unless `quiet`, and settles the outcome: what is typed is asked about each time.
std::string Tell(const Outcome& outcome, bool quiet);

namespace Global {

// StoreNumber in place, told at once. Returns false when the text could not be stored.
bool StoreNumberByType(std::string& text, std::string_view type, char separator, bool quiet);

// The amount in whole pennies, halves to the even penny. Beyond about 21 million (32 bits of pennies) throws
// error 6, after saying so unless `quiet`.
double RoundToPennies(double amount, bool quiet = false);

}  // namespace Global
