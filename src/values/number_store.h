// Turning raw text into the stored text of a type.
#pragma once

#include <string>
#include <string_view>

namespace Global {

// Reads the number in `text`, checks it against the type and puts its stored form back into `text` (types
// in any case: BYTE, INTEGER, LONG, SINGLE, DOUBLE, DOLLAR, ODDS, ODDSPM, INTRATE). `separator` is the
// machine's decimal separator. Returns false when the number could not be read, converted or formatted: the
// text is then empty. A percentage out of its range is replaced and counts as stored. Messages are shown
// unless `quiet`; the question about interest above 100% is asked in any case. Any other type is a
// fault of the program and ends it.
bool StoreNumberByType(std::string& text, std::string_view type, char separator, bool quiet);

// The amount in whole pennies, halves to the even penny. Beyond about 21 million (32 bits of pennies) throws
// error 6, after saying so unless `quiet`.
double RoundToPennies(double amount, bool quiet = false);

// Lets quiet callers ask the interest question at most once while it lives: the first answer holds for the rest.
class InterestQuestionOnce {
 public:
  InterestQuestionOnce();
  ~InterestQuestionOnce();
  InterestQuestionOnce(const InterestQuestionOnce&) = delete;
  InterestQuestionOnce& operator=(const InterestQuestionOnce&) = delete;
};

}  // namespace Global
