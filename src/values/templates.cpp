// Display templates: see templates.h.
#include "values/templates.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "platform/locale.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "values/numbers.h"

namespace Global {

std::string DefaultTemplate(std::string_view type) {
  static constexpr std::pair<std::string_view, std::string_view> kTemplates[] = {
      {"INTEGER", "######0"},       {"LONG", "##,###,###,##0"},
      {"SINGLE", "###,##0.0"},      {"DOUBLE", "###,###,###,##0.000"},
      {"DOLLAR", "###,###,##0.00"}, {"ODDS", "##0.0%"},
      {"ODDSPM", "###0.0%"},        {"INTEREST", "###0.00%"},
  };
  const std::string keyword = UpperCase(type);
  for (const auto& [known, display_template] : kTemplates) {
    if (known == keyword) return std::string(display_template);
  }
  return {};
}

std::string LocaliseTemplate(std::string_view display_template) {
  std::string localised(display_template);
  if (Trim(display_template).empty() || DecimalSeparator() == '.') return localised;
  for (char& character : localised) {
    if (character == '.') character = ',';
    // Also what the line above has just put there: a "." comes out as "." again.
    if (character == ',') character = '.';
  }
  return localised;
}

}  // namespace Global

namespace {

// A decimal number exactly: digits with the decimal point behind the first `point` of them.
struct Decimal {
  bool Negative = false;
  std::string Digits;
  long long Point = 0;
};

// Takes apart what WriteNumber writes.
Decimal ParseDecimal(std::string_view text) {
  Decimal decimal;
  if (text.starts_with('-') || text.starts_with('+')) {
    decimal.Negative = text.front() == '-';
    text.remove_prefix(1);
  }
  bool behind = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '.') {
      behind = true;
    } else if (text[at] == 'E' || text[at] == 'e') {
      const std::string_view exponent = text.substr(at + 1 + (text.substr(at + 1).starts_with('+') ? 1 : 0));
      long long power = 0;
      std::from_chars(exponent.data(), exponent.data() + exponent.size(), power);
      decimal.Point += power;
      break;
    } else {
      decimal.Digits += text[at];
      if (!behind) ++decimal.Point;
    }
  }
  // No exponent is too large for a zero; its power of ten would only fill the memory.
  if (decimal.Digits.find_first_not_of('0') == std::string::npos) return {decimal.Negative, "0", 1};
  return decimal;
}

// Rounds half away from zero to that many decimals, on the digits themselves. Afterwards there is at least one
// digit before the point and exactly `decimals` behind it.
void RoundTo(Decimal& decimal, long long decimals) {
  std::string& digits = decimal.Digits;
  if (decimal.Point < 1) {
    digits.insert(0, static_cast<std::size_t>(1 - decimal.Point), '0');
    decimal.Point = 1;
  }
  const auto kept = static_cast<std::size_t>(decimal.Point + decimals);
  const bool up = kept < digits.size() && digits[kept] >= '5';
  digits.resize(kept, '0');
  if (!up) return;
  std::size_t at = kept;
  while (at > 0 && digits[at - 1] == '9') digits[--at] = '0';
  if (at > 0) {
    ++digits[at - 1];
  } else {
    digits.insert(0, 1, '1');
    ++decimal.Point;
  }
}

// What a template asks for.
struct Layout {
  std::size_t Integers = 0;  // least number of integer digits
  std::size_t Decimals = 0;
  std::size_t FixedDecimals = 0;  // those that zeros do not lose
  // Where the "%" stand: that many in front of all digits, and by the number of placeholders between each of the
  // others and the decimal point.
  std::size_t Leading = 0;
  std::vector<std::size_t> BeforePoint, BehindPoint;
  bool Grouped = false;
  bool Pointed = false;
};

// On a "," machine the last "." of a localised template is its decimal point and the others part thousands.
Layout ParseTemplate(std::string_view text, char separator) {
  const auto point = separator == '.' ? text.find('.') : text.rfind('.');
  Layout layout;
  bool zero_seen = false;
  bool placeholder_seen = false;
  std::size_t integers = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool behind = point != std::string_view::npos && at > point;
    const char character = text[at];
    if (character == '%') {
      if (behind) {
        layout.BehindPoint.push_back(layout.Decimals);
      } else if (placeholder_seen) {
        layout.BeforePoint.push_back(integers);
      } else {
        ++layout.Leading;
      }
      continue;
    }
    placeholder_seen = true;
    if (at == point) {
      layout.Pointed = true;
    } else if (character == ',' || character == '.') {
      if (!behind) layout.Grouped = true;
    } else if (behind) {
      ++layout.Decimals;
      if (character == '0') layout.FixedDecimals = layout.Decimals;
    } else {
      ++integers;
      zero_seen = zero_seen || character == '0';
      if (zero_seen) ++layout.Integers;
    }
  }
  for (std::size_t& placeholders : layout.BeforePoint) placeholders = integers - placeholders;
  return layout;
}

std::string Percents(const std::vector<std::size_t>& places, std::size_t place) {
  std::string text;
  text.append(static_cast<std::size_t>(std::count(places.begin(), places.end(), place)), '%');
  return text;
}

// The digits with the "%" that stand among or behind them, and with a mark between the thousands unless it is 0.
std::string WithMarks(const std::string& digits, const std::vector<std::size_t>& percents, char mark) {
  std::string text;
  // What stands before more digits than there are stands before them all.
  for (const std::size_t place : percents) text += place > digits.size() ? "%" : "";
  for (std::size_t left = digits.size(); left > 0; --left) {
    if (mark != 0 && left < digits.size() && left % 3 == 0) text += mark;
    text += Percents(percents, left);
    text += digits[digits.size() - left];
  }
  return text + Percents(percents, 0);
}

std::string Laid(Decimal decimal, const Layout& layout, char separator) {
  const std::size_t percents = layout.Leading + layout.BeforePoint.size() + layout.BehindPoint.size();
  decimal.Point += 2LL * static_cast<long long>(percents);
  if (decimal.Point > static_cast<long long>(decimal.Digits.size())) {
    decimal.Digits.resize(static_cast<std::size_t>(decimal.Point), '0');
  }
  RoundTo(decimal, static_cast<long long>(layout.Decimals));
  const bool is_zero = decimal.Digits.find_first_not_of('0') == std::string::npos;
  std::string integers = decimal.Digits.substr(0, static_cast<std::size_t>(decimal.Point));
  std::string decimals = decimal.Digits.substr(static_cast<std::size_t>(decimal.Point));
  integers.erase(0, std::min(integers.find_first_not_of('0'), integers.size()));
  if (integers.size() < layout.Integers) integers.insert(0, layout.Integers - integers.size(), '0');
  while (decimals.size() > layout.FixedDecimals && decimals.back() == '0') decimals.pop_back();

  std::string text(layout.Leading, '%');
  text += WithMarks(integers, layout.BeforePoint, !layout.Grouped ? '\0' : separator == '.' ? ',' : '.');
  if (layout.Pointed) text += separator;
  for (std::size_t place = 0; place <= layout.Decimals; ++place) {
    text += Percents(layout.BehindPoint, place);
    if (place < decimals.size()) text += decimals[place];
  }
  return (decimal.Negative && !is_zero ? "-" : "") + text;
}

// The number of a stored text as decimal digits with "."; empty when the text is no number as a whole.
std::string NumberOf(std::string_view stored, char separator) {
  std::string text(stored);
  if (separator != '.') {
    if (text.find('.') != std::string::npos) return {};
    std::replace(text.begin(), text.end(), separator, '.');
  }
  const std::size_t sign = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
  double value = 0;
  const auto result = std::from_chars(text.data() + sign, text.data() + text.size(), value);
  const bool digit = sign < text.size() && (text[sign] == '.' || (text[sign] >= '0' && text[sign] <= '9'));
  if (!digit || result.ptr != text.data() + text.size()) return {};
  if (result.ec == std::errc()) return text;
  try {
    return LeadingNumber(text) == 0 ? "0" : "";  // out of range: too small
  } catch (const RuntimeError&) {
    return {};
  }
}

}  // namespace

std::string FormatByTemplate(std::string_view stored, std::string_view display_template, char separator) {
  if (Trim(display_template).empty()) return std::string(stored);
  const bool percent = stored.ends_with('%');
  const std::string number = NumberOf(percent ? stored.substr(0, stored.size() - 1) : stored, separator);
  if (number.empty()) return std::string(stored);
  Decimal decimal = ParseDecimal(number);
  if (percent) decimal.Point -= 2;
  return Laid(decimal, ParseTemplate(display_template, separator), separator);
}

std::string FormatValue(std::string_view stored, std::string_view type, std::string_view format) {
  // The default as it stands: the localised one of a whole type has a last "." that is no decimal point.
  const std::string display_template = Trim(format).empty() ? Global::DefaultTemplate(type) : std::string(format);
  return FormatByTemplate(stored, display_template, DecimalSeparator());
}

std::optional<double> StoredNumber(std::string_view stored, char separator) {
  const bool percent = stored.ends_with('%');
  const std::string number = NumberOf(percent ? stored.substr(0, stored.size() - 1) : stored, separator);
  if (number.empty()) return std::nullopt;
  return percent ? ReadNumber(number, '.') / 100 : ReadNumber(number, '.');
}
