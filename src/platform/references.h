// Text as the program keeps it and text as it is shown. Kept are bytes of the system's single-byte character set (its
// page); a character that the page does not have is a reference, "&#937;": its number in decimal, as in HTML. Only that
// form of such a character counts. What merely looks like one is kept with its ampersand as a reference, "&#38;#937;",
// and so on: each text that can be shown is kept in one way, and each that can be kept is shown in one way.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Which character each byte is.
class CodePage {
 public:
  // A byte that is not ASCII and has no character of its own, which would not come back as it was, gets one for private
  // use.
  explicit CodePage(const std::array<char16_t, 256>& characters);

  char16_t CharacterOf(char code) const { return characters_[static_cast<unsigned char>(code)]; }
  std::optional<char> ByteOf(char32_t character) const;  // nothing when the page does not have it

 private:
  std::array<char16_t, 256> characters_;
  std::vector<unsigned char> bytes_;  // of every character up to 0xFFFF; 0 also when there is none
};

// The page of this machine; where that has no single-byte one, that of Western Europe stands in.
const CodePage& SystemPage();

// What is shown for a text that is kept, and how a text that is shown is kept. The one undoes the other. Half a
// surrogate pair, which is no character, becomes U+FFFD.
std::u16string Widen(std::string_view text, const CodePage& page = SystemPage());
std::string Narrow(std::u16string_view text, const CodePage& page = SystemPage());

// A character that is shown, and how many of the text's bytes it takes.
struct ShownCharacter {
  char32_t Code;
  std::size_t Bytes;
};

// The one that begins at a byte of the text: a byte's own, one that is kept as a reference, or the ampersand of what
// looks like one.
ShownCharacter CharacterAt(std::string_view text, std::size_t at, const CodePage& page = SystemPage());

void AppendCharacter(std::u16string& text, char32_t character);

// How many characters are shown, and the first so many of them.
std::size_t CountCharacters(std::string_view text);
std::string FirstCharacters(std::string_view text, std::size_t count);

// How many bytes a text can be cut to, at most so many, without cutting through a reference or what looks like one.
std::size_t WholeBytes(std::string_view text, std::size_t most);

// How many units of UTF-16 are shown for the first so many bytes.
std::size_t WidePosition(std::string_view text, std::size_t bytes);
