// Turning raw text into the stored text of a type: see number_store.h.
#include "values/number_store.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <utility>

#include "platform/locale.h"
#include "platform/program.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "shell/messages.h"
#include "values/numbers.h"

namespace {

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

// The amount in whole pennies; what does not fit into 32 bits of them is told and thrown.
double InPennies(double amount, Reasons& reasons) {
  const double pennies = std::nearbyint(amount * 100);
  if (!(std::abs(pennies) <= 2147483648.0) || pennies == 2147483648.0) {
    reasons.push_back("Failed to round your number to pennies due to error #" + SignedText(kOverflow));
    throw RuntimeError(kOverflow);
  }
  return pennies / 100;
}

// The stored form of a percentage, replaced when it is out of the type's range.
void StorePercentage(const std::string& type, float percentage, char separator, Outcome& outcome) {
  const std::string written = WriteSingle(percentage, separator) + "%";
  const bool is_interest = type == "INTRATE";
  const bool is_signed = type == "ODDSPM";
  outcome.Text = written;
  outcome.IsHighInterest = is_interest && percentage > 100;
  if (percentage >= (is_signed ? -100.0F : 0.0F) && (percentage <= 100 || is_interest)) return;
  outcome.Text = is_interest ? "0" : "100%";
  if (is_interest) {
    outcome.Why.push_back("Invalid interest value " + written +
                          " is replaced with 0.  (For interest, type a positive numbers followed by a percent sign or "
                          "type a fractional amount.)");
    return;
  }
  outcome.Why.push_back("Invalid odds value " + written + " is replaced with 100%.  " +
                        (is_signed ? "(Type a positive or negative number followed by a percent sign or type a "
                                     "fractional amount.)"
                                   : "(For odds, please type numbers followed by a percent sign or type a fractional "
                                     "amount.)"));
}

bool IsKnown(const std::string& type) {
  for (const char* known : {"BYTE", "SINGLE", "DOUBLE", "INTEGER", "LONG", "DOLLAR", "ODDS", "ODDSPM", "INTRATE"}) {
    if (type == known) return true;
  }
  return false;
}

}  // namespace

std::string InterestQuestion::Settle(Outcome outcome) {
  if (!outcome.IsHighInterest) return std::move(outcome.Text);
  if (!is_meant_) {
    is_meant_ = Global::Ask("Are you sure that you want to use an interest rate greater than 100%?", Buttons::YesNo);
  }
  return *is_meant_ ? std::move(outcome.Text) : "0";
}

Outcome StoreNumber(std::string text, std::string_view type, char separator) {
  const std::string keyword = UpperCase(type);
  if (!IsKnown(keyword)) EndProgram();
  if (text.empty() && keyword != "BYTE") text = "0";
  Outcome outcome;
  try {
    const double number = ReadNumber(text, separator);
    if (const auto plain = PlainNumber(keyword, number, separator)) {
      outcome.Text = *plain;
    } else if (keyword == "DOLLAR") {
      outcome.Text = MoneyText(InPennies(number, outcome.Why), separator);
    } else {
      StorePercentage(keyword, Single(static_cast<double>(Single(number)) * 100), separator, outcome);
    }
  } catch (const RuntimeError& error) {
    outcome.Why.push_back("Failed to store number " + text + Global::DueToError(error));
  }
  return outcome;
}

std::string Tell(const Outcome& outcome, bool quiet) {
  for (const std::string& reason : outcome.Why) {
    if (!quiet) Global::Say(reason, Icon::Exclamation);
  }
  return InterestQuestion().Settle(outcome);
}

bool Global::StoreNumberByType(std::string& text, std::string_view type, char separator, bool quiet) {
  text = Tell(StoreNumber(text, type, separator), quiet);
  return !text.empty();
}

double Global::RoundToPennies(double amount, bool quiet) {
  Reasons reasons;
  try {
    return InPennies(amount, reasons);
  } catch (const RuntimeError&) {
    Tell({"", reasons}, quiet);
    throw;
  }
}
