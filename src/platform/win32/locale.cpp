// The language settings of the user's Windows.
#include "platform/locale.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "platform/iso_date.h"
#include "platform/win32/wide.h"

namespace {

using CapitalTable = std::array<char, 256>;

// Each byte's capital, by way of Unicode so that only true capitals count, not what merely looks alike; a
// byte without one in the character set stands for itself.
CapitalTable MakeCapitals() {
  CapitalTable capitals{};
  for (std::size_t code = 0; code < capitals.size(); ++code) {
    const char character = static_cast<char>(code);
    wchar_t wide = SystemPage().CharacterOf(character);
    CharUpperBuffW(&wide, 1);
    capitals[code] = SystemPage().ByteOf(wide).value_or(character);
  }
  return capitals;
}

// Which character of the page each byte is, as the system says.
CodePage AskForPage() {
  constexpr UINT kWesternEurope = 1252;
  CPINFO page{};
  const bool is_single_byte = GetCPInfo(CP_ACP, &page) && page.MaxCharSize == 1;
  std::array<char16_t, 256> characters{};
  for (std::size_t code = 0; code < characters.size(); ++code) {
    const char byte = static_cast<char>(code);
    wchar_t wide = 0;
    MultiByteToWideChar(is_single_byte ? CP_ACP : kWesternEurope, 0, &byte, 1, &wide, 1);
    characters[code] = wide;
  }
  return CodePage(characters);
}

}  // namespace

const CodePage& SystemPage() {
  static const CodePage kPage = AskForPage();
  return kPage;
}

char DecimalSeparator() {
  std::array<wchar_t, 16> text{};
  GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, text.data(), static_cast<int>(text.size()));
  return std::find(text.begin(), text.end(), L',') == text.end() ? '.' : ',';
}

char UpperCase(char character) {
  static const CapitalTable kCapitals = MakeCapitals();
  return kCapitals[static_cast<unsigned char>(character)];
}

std::string UpperCase(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), [](char each) { return UpperCase(each); });
  return result;
}

namespace {

// What the system's comparison finds alike, told by letters only: marks and signs may have no weight in it at all.
CapitalTable MakePlainLetters() {
  std::array<wchar_t, 256> wide{};
  CapitalTable plain{};
  for (std::size_t code = 0; code < plain.size(); ++code) {
    const char character = static_cast<char>(code);
    plain[code] = character;
    wide[code] = SystemPage().CharacterOf(character);
    if (IsCharAlphaW(wide[code]) == FALSE) wide[code] = 0;
    for (std::size_t before = 0; wide[code] != 0 && before < code; ++before) {
      if (wide[before] == 0 || static_cast<unsigned char>(plain[before]) != before) continue;
      const DWORD flags = NORM_IGNORECASE | NORM_IGNORENONSPACE;
      if (CompareStringW(LOCALE_USER_DEFAULT, flags, &wide[before], 1, &wide[code], 1) != CSTR_EQUAL) continue;
      plain[code] = plain[before];
      break;
    }
  }
  return plain;
}

}  // namespace

char PlainLetter(char character) {
  static const CapitalTable kPlain = MakePlainLetters();
  return kPlain[static_cast<unsigned char>(character)];
}

std::string ShortDate(int year, unsigned month, unsigned day) {
  SYSTEMTIME date{};
  date.wYear = static_cast<WORD>(year);
  date.wMonth = static_cast<WORD>(month);
  date.wDay = static_cast<WORD>(day);
  std::array<wchar_t, 80> text{};
  if (year < kFirstKnownYear || GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &date, nullptr, text.data(),
                                               static_cast<int>(text.size())) == 0) {
    return IsoDate(year, month, day);
  }
  return Bytes(text.data());
}
