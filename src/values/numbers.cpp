// Reading and writing numbers: see numbers.h.
#include "values/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "platform/runtime_error.h"
#include "platform/text.h"

namespace {

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

// Where the number that starts at `text` ends; `leading` gets the power of ten of its first digit that
// is not 0, by which a number too large is told from one too small.
std::size_t NumberLength(std::string_view text, long long& leading) {
  std::size_t at = 0;
  bool point = false;
  bool digits = false;
  bool significant = false;
  long long before_point = 0;
  long long zeros_behind_point = 0;
  for (; at < text.size(); ++at) {
    if (text[at] == '.' && !point) {
      point = true;
    } else if (IsDigit(text[at])) {
      digits = true;
      significant = significant || text[at] != '0';
      if (!point && significant) ++before_point;
      if (point && !significant) ++zeros_behind_point;
    } else {
      break;
    }
  }
  if (!digits) return 0;
  leading = before_point > 0 ? before_point : -zeros_behind_point;
  std::size_t exponent = at;
  if (exponent < text.size() && (text[exponent] == 'e' || text[exponent] == 'E')) {
    ++exponent;
    const bool negative = exponent < text.size() && text[exponent] == '-';
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
    long long power = 0;
    const std::size_t first = exponent;
    for (; exponent < text.size() && IsDigit(text[exponent]); ++exponent) {
      if (power < 1'000'000'000) power = power * 10 + (text[exponent] - '0');
    }
    if (exponent > first) {
      at = exponent;
      leading += negative ? -power : power;
    }
  }
  return at;
}

}  // namespace

double LeadingNumber(std::string_view text) {
  text = TrimLeft(text);
  bool negative = false;
  if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
    negative = text.front() == '-';
    text.remove_prefix(1);
  }
  long long leading = 0;
  const std::size_t length = NumberLength(text, leading);
  double value = 0;
  if (length > 0) {
    const auto result = std::from_chars(text.data(), text.data() + length, value);
    if (result.ec == std::errc::result_out_of_range) {
      if (leading > 0) throw RuntimeError(kOverflow);
      value = 0;
    }
  }
  return negative ? -value : value;
}

namespace {

// The form that the writer gives, quickly read: nothing but digits and their sign.
template <class Whole>
bool ReadPlain(std::string_view text, Whole& number) {
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  return result.ec == std::errc() && result.ptr == end;
}

template <class Whole>
Whole LeadingWhole(std::string_view text) {
  Whole plain = 0;
  if (ReadPlain(text, plain)) return plain;
  try {
    const double rounded = std::nearbyint(LeadingNumber(text));
    if (rounded < std::numeric_limits<Whole>::min() || rounded > std::numeric_limits<Whole>::max()) return 0;
    return static_cast<Whole>(rounded);
  } catch (const RuntimeError&) {
    return 0;
  }
}

}  // namespace

std::int16_t LeadingInt16(std::string_view text) { return LeadingWhole<std::int16_t>(text); }
std::int32_t LeadingInt32(std::string_view text) { return LeadingWhole<std::int32_t>(text); }

int LeadingRecordNumber(std::string_view text) {
  if (int plain = 0; ReadPlain(text, plain)) return std::clamp(plain, 0, kPastLastRecord);
  try {
    const double number = LeadingNumber(text);
    if (number < 1) return 0;
    const double rounded = std::nearbyint(number);
    return rounded > kLastRecord ? kPastLastRecord : static_cast<int>(rounded);
  } catch (const RuntimeError&) {
    // Too large in either direction: a number below 1 is no record number.
    return TrimLeft(text).starts_with('-') ? 0 : kPastLastRecord;
  }
}

double ReadNumber(std::string_view text, char separator) {
  if (separator == '.') return LeadingNumber(text);
  std::string plain(Trim(text));
  if (plain.empty() || plain.find('.') != std::string::npos) throw RuntimeError(kTypeMismatch);
  std::replace(plain.begin(), plain.end(), separator, '.');
  const std::size_t sign = plain.front() == '-' || plain.front() == '+' ? 1 : 0;
  long long leading = 0;
  const std::size_t length = NumberLength(std::string_view(plain).substr(sign), leading);
  if (length == 0 || sign + length != plain.size()) throw RuntimeError(kTypeMismatch);
  return LeadingNumber(plain);
}

namespace {

// The digits of the shortest of two notations, as "%.*G" gives them, without the help of a locale: an
// exponent below -4 or from `digits` on is written, with two digits at least.
std::string Written(double number, int digits, char separator) {
  if (number == 0) return "0";
  char buffer[64];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::general, digits);
  std::string text(buffer, result.ptr);
  std::replace(text.begin(), text.end(), '.', separator);
  std::replace(text.begin(), text.end(), 'e', 'E');
  return text;
}

}  // namespace

std::string WriteNumber(double number, char separator) { return Written(number, 15, separator); }
std::string WriteSingle(float number, char separator) { return Written(static_cast<double>(number), 7, separator); }
