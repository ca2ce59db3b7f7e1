// Finding references: see references.h. A text without any takes a short way.
#include "platform/references.h"

#include <algorithm>

namespace {

constexpr char32_t kLastCharacter = 0x10FFFF, kReplacement = 0xFFFD;
constexpr char16_t kPrivateUse = 0xF700;
constexpr std::string_view kAmpersand = "&#38;";

bool MayHaveReferences(std::string_view text) { return text.find("&#") != std::string_view::npos; }

bool IsHighHalf(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsLowHalf(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

// An ampersand, "#38;" as often as it comes, and "#", the number of a character that the page does not have, and ";".
struct Token {
  char32_t Code = 0;
  std::size_t Size = 0;     // 0: there is none
  std::size_t Escapes = 0;  // how often "#38;" comes
};

// Alike for text that is kept and for text that is shown.
template <typename Text>
Token TokenAt(const Text& text, std::size_t start, const CodePage& page) {
  Token token;
  const auto is = [&text](std::size_t at, char wanted) {
    return at < text.size() && text[at] == static_cast<typename Text::value_type>(wanted);
  };
  std::size_t at = start + 1;
  for (; is(at, '#') && is(at + 1, '3') && is(at + 2, '8') && is(at + 3, ';'); at += 4) ++token.Escapes;
  if (!is(at, '#') || is(at + 1, '0')) return token;
  for (++at; at < text.size() && text[at] >= '0' && text[at] <= '9' && token.Code <= kLastCharacter; ++at) {
    token.Code = token.Code * 10 + static_cast<char32_t>(text[at] - '0');
  }
  const bool is_character = token.Code <= kLastCharacter && !IsHighHalf(token.Code) && !IsLowHalf(token.Code);
  if (is(at, ';') && is_character && !page.ByteOf(token.Code)) token.Size = at + 1 - start;
  return token;
}

// The character that a text to be kept has there, and how many units it takes.
char32_t CodeAt(std::u16string_view text, std::size_t at, std::size_t& units) {
  const char32_t unit = text[at];
  units = 1;
  if (IsHighHalf(unit) && at + 1 < text.size() && IsLowHalf(text[at + 1])) {
    units = 2;
    return 0x10000 + ((unit - 0xD800) << 10) + (text[at + 1] - 0xDC00);
  }
  return IsHighHalf(unit) || IsLowHalf(unit) ? kReplacement : unit;
}

// How many bytes at the beginning show so many characters; fewer than that when there are no more.
std::size_t BytesOfFirst(std::string_view text, std::size_t characters) {
  std::size_t at = 0;
  for (; at < text.size() && characters > 0; --characters) at += CharacterAt(text, at).Bytes;
  return at;
}

}  // namespace

CodePage::CodePage(const std::array<char16_t, 256>& characters) : characters_(characters), bytes_(0x10000) {
  for (std::size_t byte = 1; byte < characters_.size(); ++byte) {
    char16_t& character = characters_[byte];
    if (byte < 0x80) {
      character = static_cast<char16_t>(byte);
    } else if (character == 0 || IsHighHalf(character) || IsLowHalf(character) || bytes_[character] != 0) {
      character = static_cast<char16_t>(kPrivateUse + byte);
    }
    bytes_[character] = static_cast<unsigned char>(byte);
  }
  characters_[0] = 0;
}

std::optional<char> CodePage::ByteOf(char32_t character) const {
  if (character == 0) return '\0';
  if (character >= bytes_.size() || bytes_[character] == 0) return std::nullopt;
  return static_cast<char>(bytes_[character]);
}

ShownCharacter CharacterAt(std::string_view text, std::size_t at, const CodePage& page) {
  if (text[at] == '&' && at + 1 < text.size() && text[at + 1] == '#') {
    const Token token = TokenAt(text, at, page);
    if (token.Size > 0 && token.Escapes == 0) return {token.Code, token.Size};
    if (token.Size > 0) return {'&', kAmpersand.size()};
  }
  return {page.CharacterOf(text[at]), 1};
}

void AppendCharacter(std::u16string& text, char32_t character) {
  if (character > 0xFFFF) {
    text += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
    text += static_cast<char16_t>(0xDC00 + (character & 0x3FF));
  } else {
    text += static_cast<char16_t>(character);
  }
}

std::u16string Widen(std::string_view text, const CodePage& page) {
  std::u16string wide;
  if (!MayHaveReferences(text)) {
    wide.resize(text.size());
    std::transform(text.begin(), text.end(), wide.begin(), [&page](char byte) { return page.CharacterOf(byte); });
    return wide;
  }
  wide.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const ShownCharacter shown = CharacterAt(text, at, page);
    AppendCharacter(wide, shown.Code);
    at += shown.Bytes;
  }
  return wide;
}

std::string Narrow(std::u16string_view text, const CodePage& page) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t at = 0, units = 1; at < text.size(); at += units) {
    const char32_t code = CodeAt(text, at, units);
    const std::optional<char> byte = page.ByteOf(code);
    if (!byte) {
      bytes.append("&#").append(std::to_string(static_cast<unsigned long>(code))).append(";");
    } else if (code == '&' && TokenAt(text, at, page).Size > 0) {
      bytes += kAmpersand;
    } else {
      bytes += *byte;
    }
  }
  return bytes;
}

std::size_t CountCharacters(std::string_view text) {
  if (!MayHaveReferences(text)) return text.size();
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); ++count) at += CharacterAt(text, at).Bytes;
  return count;
}

// Cut through, what looked like a reference is none any more: its beginning is kept in another way.
std::string FirstCharacters(std::string_view text, std::size_t count) {
  if (!MayHaveReferences(text)) return std::string(text.substr(0, count));
  const std::size_t bytes = BytesOfFirst(text, count);
  return Narrow(std::u16string_view(Widen(text)).substr(0, WidePosition(text, bytes)));
}

std::size_t WholeBytes(std::string_view text, std::size_t most) {
  if (text.size() <= most) return text.size();
  std::size_t at = text.rfind('&', most == 0 ? 0 : most - 1);  // no other reference can reach so far
  if (at == std::string_view::npos || at >= most) return most;
  const std::size_t end = at + TokenAt(text, at, SystemPage()).Size;
  return end > most ? at : most;
}

std::size_t WidePosition(std::string_view text, std::size_t bytes) {
  if (!MayHaveReferences(text)) return std::min(bytes, text.size());
  std::size_t position = 0;
  for (std::size_t at = 0; at < std::min(bytes, text.size());) {
    const ShownCharacter shown = CharacterAt(text, at);
    position += shown.Code > 0xFFFF ? 2 : 1;
    at += shown.Bytes;
  }
  return position;
}
