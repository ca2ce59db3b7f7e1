// Turning raw text into the stored text of a type: see number_store.h.
#include "values/number_store.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

#include "platform/locale.h"
#include "platform/program.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "shell/messages.h"
#include "values/numbers.h"

namespace Global {

namespace {

int interest_scopes = 0;
std::optional<bool> interest_answer;

template <class Whole>
std::string Whole32(double number) {
  const double rounded = std::nearbyint(number);
  if (!(rounded >= std::numeric_limits<Whole>::min() && rounded <= std::numeric_limits<Whole>::max())) {
    throw RuntimeError(kOverflow);
  }
  return std::to_string(static_cast<Whole>(rounded));
}

// The nearest single: as with whole numbers, the range counts after rounding.
float Single(double number) {
  const auto single = static_cast<float>(number);
  if (!std::isfinite(single)) throw RuntimeError(kOverflow);
  return single;
}

// The text of a plain number of the type; nothing when the type is none of these.
std::optional<std::string> PlainNumber(const std::string& type, double number, char separator) {
  if (type == "BYTE") return Whole32<std::uint8_t>(number);
  if (type == "INTEGER") return Whole32<std::int16_t>(number);
  if (type == "LONG") return Whole32<std::int32_t>(number);
  if (type == "SINGLE") return WriteSingle(Single(number), separator);
  if (type == "DOUBLE") return WriteNumber(number, separator);
  return std::nullopt;
}

// The amount rounded to pennies, with two decimals; exactly 0 is "0".
std::string MoneyText(double amount, char separator) {
  const double pennies = std::nearbyint(amount * 100);
  if (pennies == 0) return "0";
  const auto whole = static_cast<std::int64_t>(std::abs(pennies));
  std::string text = (pennies < 0 ? "-" : "") + std::to_string(whole / 100) + separator;
  text += static_cast<char>('0' + whole / 10 % 10);
  text += static_cast<char>('0' + whole % 10);
  return text;
}

// What is typed is asked about each time; what is only shown, once.
bool KeepsHighInterest(bool quiet) {
  const bool once = quiet && interest_scopes > 0;
  if (once && interest_answer.has_value()) return *interest_answer;
  const bool keeps = Ask("Are you sure that you want to use an interest rate greater than 100%?", Buttons::YesNo);
  if (once) interest_answer = keeps;
  return keeps;
}

// The stored text of a percentage, replaced when it is out of the type's range.
std::string PercentText(const std::string& type, float percentage, char separator, bool quiet) {
  std::string written = WriteSingle(percentage, separator) + "%";
  if (type == "INTRATE") {
    if (percentage < 0) {
      SayUnless(quiet, "Invalid interest value " + written +
                           " is replaced with 0.  (For interest, type a positive numbers followed by a percent sign or "
                           "type a fractional amount.)");
      return "0";
    }
    return percentage > 100 && !KeepsHighInterest(quiet) ? "0" : written;
  }
  const bool is_signed = type == "ODDSPM";
  if (percentage >= (is_signed ? -100.0F : 0.0F) && percentage <= 100) return written;
  SayUnless(quiet, "Invalid odds value " + written + " is replaced with 100%.  " +
                       (is_signed ? "(Type a positive or negative number followed by a percent sign or type a "
                                    "fractional amount.)"
                                  : "(For odds, please type numbers followed by a percent sign or type a fractional "
                                    "amount.)"));
  return "100%";
}

std::string StoredText(const std::string& text, const std::string& type, char separator, bool quiet) {
  const double number = ReadNumber(text, separator);
  if (const auto plain = PlainNumber(type, number, separator)) return *plain;
  if (type == "DOLLAR") return MoneyText(RoundToPennies(number, quiet), separator);
  return PercentText(type, Single(static_cast<double>(Single(number)) * 100), separator, quiet);
}

bool IsKnown(const std::string& type) {
  for (const char* known : {"BYTE", "SINGLE", "DOUBLE", "INTEGER", "LONG", "DOLLAR", "ODDS", "ODDSPM", "INTRATE"}) {
    if (type == known) return true;
  }
  return false;
}

}  // namespace

bool StoreNumberByType(std::string& text, std::string_view type, char separator, bool quiet) {
  const std::string keyword = UpperCase(type);
  if (!IsKnown(keyword)) EndProgram();
  if (text.empty() && keyword != "BYTE") text = "0";
  try {
    text = StoredText(text, keyword, separator, quiet);
    return true;
  } catch (const RuntimeError& error) {
    SayUnless(quiet, "Failed to store number " + text + DueToError(error));
    text.clear();
    return false;
  }
}

double RoundToPennies(double amount, bool quiet) {
  const double pennies = std::nearbyint(amount * 100);
  if (!(std::abs(pennies) <= 2147483648.0) || pennies == 2147483648.0) {
    SayUnless(quiet, "Failed to round your number to pennies due to error #" + SignedText(kOverflow));
    throw RuntimeError(kOverflow);
  }
  return pennies / 100;
}

InterestQuestionOnce::InterestQuestionOnce() {
  if (interest_scopes++ == 0) interest_answer.reset();
}

InterestQuestionOnce::~InterestQuestionOnce() { --interest_scopes; }

}  // namespace Global
