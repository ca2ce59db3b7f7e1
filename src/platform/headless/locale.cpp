// The language settings of the in-memory machine: a decimal separator that tests set, and the capitals
// of Windows' Western European character set (code page 1252).
#include "platform/locale.h"

#include <array>

#include "platform/headless/machine.h"
#include "platform/iso_date.h"

namespace {

char decimal_separator = '.';
int first_weekday = 0;

}  // namespace

void Machine::SetDecimalSeparator(char separator) { decimal_separator = separator; }

char DecimalSeparator() { return decimal_separator; }

void Machine::SetFirstWeekday(int weekday) { first_weekday = weekday; }

int FirstWeekday() { return first_weekday; }

namespace {

constexpr std::array<char, 256> MakeCapitals() {
  std::array<char, 256> capitals{};
  for (unsigned code = 0; code < 256; ++code) {
    unsigned capital = code;
    if ((code >= 'a' && code <= 'z') || (code >= 0xE0 && code <= 0xFE && code != 0xF7)) capital = code - 0x20;
    if (code == 0x9A || code == 0x9C || code == 0x9E) capital = code - 0x10;
    if (code == 0xFF) capital = 0x9F;
    capitals[code] = static_cast<char>(capital);
  }
  return capitals;
}

constexpr auto kCapitals = MakeCapitals();

}  // namespace

char UpperCase(char character) { return kCapitals[static_cast<unsigned char>(character)]; }

std::string UpperCase(std::string_view text) {
  std::string result(text);
  for (char& each : result) each = UpperCase(each);
  return result;
}

char PlainLetter(char character) {
  // From the accented A on: what stands for a dot has no letter but itself.
  static constexpr std::string_view kLetters = "AAAAAA.CEEEEIIII.NOOOOO.OUUUUY..";
  constexpr std::size_t kFirst = 0xC0;
  const char upper = UpperCase(character);
  const auto code = static_cast<unsigned char>(upper);
  if (upper == '\x8A') return 'S';
  if (upper == '\x8E') return 'Z';
  if (upper == '\x9F') return 'Y';
  if (code < kFirst || code >= kFirst + kLetters.size() || kLetters[code - kFirst] == '.') return upper;
  return kLetters[code - kFirst];
}

std::string ShortDate(int year, unsigned month, unsigned day) {
  if (year < kFirstKnownYear) return IsoDate(year, month, day);
  return std::to_string(month) + "/" + std::to_string(day) + "/" + std::to_string(year);
}
