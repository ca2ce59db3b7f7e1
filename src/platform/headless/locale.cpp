// The language settings of the in-memory machine: a decimal separator that tests set, and the capitals
// of Windows' Western European character set (code page 1252).
#include "platform/locale.h"

#include <algorithm>

#include "platform/headless/machine.h"

namespace {

char decimal_separator = '.';

}  // namespace

void Machine::SetDecimalSeparator(char separator) { decimal_separator = separator; }

char DecimalSeparator() { return decimal_separator; }

char UpperCase(char character) {
  const auto code = static_cast<unsigned char>(character);
  if ((code >= 'a' && code <= 'z') || (code >= 0xE0 && code <= 0xFE && code != 0xF7)) {
    return static_cast<char>(code - 0x20);
  }
  if (code == 0x9A || code == 0x9C || code == 0x9E) return static_cast<char>(code - 0x10);
  if (code == 0xFF) return static_cast<char>(0x9F);
  return character;
}

std::string UpperCase(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), [](char each) { return UpperCase(each); });
  return result;
}
