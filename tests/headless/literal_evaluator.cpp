// See the header. Every step is a text that is searched, cut and put together again.
#include "headless/literal_evaluator.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "platform/locale.h"
#include "platform/runtime_error.h"

namespace {

bool Holds(const std::string& text, char character) { return text.find(character) != std::string::npos; }

std::string Trimmed(std::string text) {
  while (text.starts_with(' ')) text.erase(0, 1);
  while (text.ends_with(' ')) text.pop_back();
  return text;
}

std::string DueTo(const RuntimeError& error) {
  return " due to error # " + std::to_string(error.Number) + ": " + error.Description;
}

// The number that a text with decimal points begins with, as text; empty for none.
std::string LeadingNumberText(const std::string& text) {
  const char* const kDigits = "0123456789";
  const char* const start = text.c_str() + std::strspn(text.c_str(), " ");
  const char* const digits = start + (*start == '+' || *start == '-' ? 1 : 0);
  const char* end = digits + std::strspn(digits, kDigits);
  if (*end == '.') end += 1 + std::strspn(end + 1, kDigits);
  if (std::strcspn(digits, kDigits) >= static_cast<std::size_t>(end - digits)) return "";
  if (*end == 'e' || *end == 'E') {
    const char* const power = end + (end[1] == '+' || end[1] == '-' ? 2 : 1);
    if (std::strspn(power, kDigits) > 0) end = power + std::strspn(power, kDigits);
  }
  return {start, end};
}

// The operator at or after a position from 1; 0 for none.
int NextOperator(const std::string& text, int start, char& sign) {
  for (int position = start; position <= static_cast<int>(text.size()); ++position) {
    sign = text.at(static_cast<std::size_t>(position - 1));
    const bool exponent = sign == '-' && position > 1 && text.at(static_cast<std::size_t>(position - 2)) == 'E';
    if (Holds("+-*/", sign) && !exponent) return position;
  }
  return 0;
}

int SkipSigns(const std::string& text, int start) {
  for (const char sign : {'-', '+'}) {
    if (start <= static_cast<int>(text.size()) && text.at(static_cast<std::size_t>(start - 1)) == sign) ++start;
  }
  return start;
}

std::string Between(const std::string& text, int first, int last) {
  return text.substr(static_cast<std::size_t>(first - 1), static_cast<std::size_t>(last - first + 1));
}

}  // namespace

double LiteralEvaluator::Read(std::string text) const {
  if (Separator == ',') {
    text = Trimmed(text);
    if (Holds(text, '.')) throw RuntimeError(kTypeMismatch);
    if (Holds(text, ',')) text[text.find(',')] = '.';
    if (text.empty() || LeadingNumberText(text) != text) throw RuntimeError(kTypeMismatch);
  }
  const double number = std::strtod(LeadingNumberText(text).c_str(), nullptr);
  if (!std::isfinite(number)) throw RuntimeError(kOverflow);
  return number;
}

std::string LiteralEvaluator::Write(const char* format, double number) const {
  char buffer[400];
  std::snprintf(buffer, sizeof buffer, format, number);
  std::string text = buffer;
  if (Holds(text, '.')) text[text.find('.')] = Separator;
  return number == 0 ? "0" : text;
}

void LiteralEvaluator::Say(const std::string& text) {
  if (!Quiet) Boxes.push_back(text);
}

std::string LiteralEvaluator::StoredNumber(double number, const std::string& type) {
  const double whole = std::nearbyint(number);
  const bool fits = type == "BYTE"      ? whole >= 0 && whole <= 255
                    : type == "INTEGER" ? whole >= -32768 && whole <= 32767
                    : type == "LONG"    ? whole >= -2147483648.0 && whole <= 2147483647.0
                                        : true;
  if (!fits) throw RuntimeError(kOverflow);
  if (type == "BYTE" || type == "INTEGER" || type == "LONG") return Write("%.0f", whole);
  if (type == "DOUBLE") return Write("%.15G", number);
  if (type == "DOLLAR") {
    const double pennies = std::nearbyint(number * 100);
    if (pennies >= -2147483648.0 && pennies <= 2147483647.0) return Write("%.2f", pennies / 100);
    Say("Failed to round your number to pennies due to error # 6");
    throw RuntimeError(kOverflow);
  }
  const float single = static_cast<float>(number) * (type == "SINGLE" ? 1.0F : 100.0F);
  if (!std::isfinite(single)) throw RuntimeError(kOverflow);
  const std::string written = Write("%.7G", static_cast<double>(single));
  return type == "SINGLE" ? written : StoredPercentage(single, written + "%", type);
}

std::string LiteralEvaluator::StoredPercentage(float percentage, const std::string& written, const std::string& type) {
  if (type == "ODDS" && (percentage < 0 || percentage > 100)) {
    Say("Invalid odds value " + written + " is replaced with 100%.  (For odds, please type numbers followed by a " +
        "percent sign or type a fractional amount.)");
    return "100%";
  }
  if (type == "ODDSPM" && (percentage < -100 || percentage > 100)) {
    Say("Invalid odds value " + written + " is replaced with 100%.  (Type a positive or negative number followed " +
        "by a percent sign or type a fractional amount.)");
    return "100%";
  }
  if (type == "INTRATE" && percentage < 0) {
    Say("Invalid interest value " + written + " is replaced with 0.  (For interest, type a positive numbers " +
        "followed by a percent sign or type a fractional amount.)");
    return "0";
  }
  if (type != "INTRATE" || percentage <= 100) return written;
  Boxes.emplace_back("Are you sure that you want to use an interest rate greater than 100%?");
  return InterestYes ? written : "0";
}

bool LiteralEvaluator::StoreNumberByType(std::string& text, const std::string& type) {
  if (text.empty() && UpperCase(type) != "BYTE") text = "0";
  try {
    text = StoredNumber(Read(text), UpperCase(type));
    return true;
  } catch (const RuntimeError& error) {
    Say("Failed to store number " + text + DueTo(error));
    text.clear();
    return false;
  }
}

std::string LiteralEvaluator::ExpandFieldReferences(std::string text,
                                                    const std::array<FieldValueSlot, kFieldValues>& slots) {
  text = UpperCase(Trimmed(text));
  for (int rounds = 0; rounds <= 1000 && text.size() <= 32767; ++rounds) {
    const std::size_t open = text.find('['), close = text.find(']');
    if (open == std::string::npos || close == std::string::npos || close < open) return text;
    const std::string reference = UpperCase(text.substr(open, close - open + 1));
    std::string value;
    for (const FieldValueSlot& slot : slots) {
      const std::size_t colon = slot.Text.find(':');
      if (colon == std::string::npos || colon == 0) continue;
      if ("[" + UpperCase(slot.Text.substr(0, colon)) + "]" != reference) continue;
      value = slot.Text.substr(colon + 1);
      break;
    }
    if (value.empty()) return "";
    text.replace(open, close - open + 1, value);
  }
  return "";
}

std::string LiteralEvaluator::CalculateExpression(std::string text, const std::string& type) {
  std::erase(text, ' ');
  if (text.empty()) return "0";
  if (text.size() == 1 && !Holds("0123456789", text[0])) return "?";
  if (text.size() == 1) text = "0" + text;
  text = ConvertPercentages(text);
  while (Holds(text, '(') && Holds(text, ')')) {
    const std::size_t open = text.rfind('('), close = text.find(')', open);
    if (close == std::string::npos) break;
    const std::string inner = EvaluateFlat(text.substr(open + 1, close - open - 1));
    if (inner == "?") return "?";
    text.replace(open, close - open + 1, inner);
  }
  std::string result = EvaluateFlat(text);
  if (result.empty() || result == "?") return result;
  return StoreNumberByType(result, type) ? result : "?";
}

std::string LiteralEvaluator::ConvertPercentages(std::string text) {
  while (Holds(text, '%')) {
    const std::size_t sign = text.find('%');
    std::size_t start = sign;
    while (start > 0 && !Holds("+-*/", text[start - 1])) --start;
    const std::string number = text.substr(start, sign - start);
    std::string quotient = "?";
    try {
      quotient = Write("%.15G", Read(number) / 100);
    } catch (const RuntimeError& error) {
      Say("Failed to convert percentage " + number + "%" + DueTo(error));
    }
    text.replace(start, sign - start + 1, quotient);
  }
  return text;
}

std::string LiteralEvaluator::EvaluateFlat(std::string text) {
  int first = 0, last = 0;
  char sign = ' ';
  while (FindOperation(text, "*/", first, last, sign) || FindOperation(text, "+-", first, last, sign)) {
    const std::string operation = Between(text, first, last);
    const std::string result = Compute(operation, NextOperator(operation, SkipSigns(operation, 1), sign), sign);
    if (result == "?") return "?";
    text = Between(text, 1, first - 1) + result + Between(text, last + 1, static_cast<int>(text.size()));
  }
  return text;
}

bool LiteralEvaluator::FindOperation(const std::string& text, const std::string& operators, int& first, int& last,
                                     char& sign) {
  if (operators == "*/" && !Holds(text, '*') && !Holds(text, '/')) return false;
  first = 1;
  while (true) {
    const int position = NextOperator(text, SkipSigns(text, first), sign);
    if (position == 0) return false;
    if (Holds(operators, sign)) {
      char after = ' ';
      const int next = NextOperator(text, SkipSigns(text, position + 1), after);
      last = next == 0 ? static_cast<int>(text.size()) : next - 1;
      return true;
    }
    first = position + 1;
  }
}

std::string LiteralEvaluator::Compute(const std::string& operation, int position, char sign) {
  if (Holds(operation, ')')) return "?";
  std::string left = Between(operation, 1, position - 1);
  std::string right = Between(operation, position + 1, static_cast<int>(operation.size()));
  if (left.empty()) left = "0";
  if (right.empty()) right = "0";
  try {
    const double one = Read(left), other = Read(right);
    if (sign == '/' && other == 0) throw RuntimeError(kDivisionByZero);
    const double result = sign == '+'   ? one + other
                          : sign == '-' ? one - other
                          : sign == '*' ? one * other
                                        : one / other;
    if (!std::isfinite(result)) throw RuntimeError(kOverflow);
    return Write("%.15G", result);
  } catch (const RuntimeError& error) {
    Say("Failed to calculate expression " + operation + DueTo(error));
    return "?";
  }
}
