// Which bytes are a reference, and that what is kept and what is shown are each other's only form.
#include "platform/references.h"

#include <gtest/gtest.h>

#include <random>

#include "support/properties.h"
#include "support/rows.h"

namespace {

TEST(ReferencesTest, StandForWhatThePageDoesNotHaveInOneFormOnly) {
  const std::string runs = "#38;#38;#38;";
  const std::pair<std::string, std::u16string> rows[] = {
      {"", u""},
      {"caf\xE9 \x80 \x81", u"caf\u00E9 \u20AC \x81"},
      {"&#937;&#8734;&#257;&#26085;&#128512;", u"\u03A9\u221E\u0101\u65E5\U0001F600"},
      {"&#256;&#65533;&#65535;&#65536;&#1114111;", u"\u0100\uFFFD\uFFFF\U00010000\U0010FFFF"},
      {"&#38;#937;", u"&#937;"},
      {"&#38;#38;#937;", u"&#38;#937;"},
      {"x&" + runs + "#257;y", u"x&#38;#38;#257;y"},
      {"&&#937;&", u"&\u03A9&"},
      // Nothing of these: in the page, no character, not in decimal, not in its shortest form, not whole.
      {"&#65;&#233;&#8364;&#129;&#38;&#0;", u"&#65;&#233;&#8364;&#129;&#38;&#0;"},
      {"&#55296;&#57343;&#1114112;&#99999999999999999999;", u"&#55296;&#57343;&#1114112;&#99999999999999999999;"},
      {"&#x3A9;&#0937;&# 937;&#937 ;&#;&#", u"&#x3A9;&#0937;&# 937;&#937 ;&#;&#"},
      {"&#38;#65;&#38;#937&#38; #937;", u"&#38;#65;&#38;#937&#38; #937;"},
  };
  for (const auto& [kept, shown] : rows) {
    EXPECT_EQ(Widen(kept), shown) << kept;
    EXPECT_EQ(Narrow(shown), kept);
  }
  EXPECT_EQ(Narrow(u"\xD83Dx\xDE00\xD83D"), "&#65533;x&#65533;&#65533;");
}

TEST(ReferencesTest, AreOneCharacterEach) {
  const std::string text = "a&#937;&#128512;&#38;#937;b";  // seven bytes, sixteen, twenty-six, twenty-seven
  EXPECT_EQ(CountCharacters(text), 10U);
  ExpectRows("0 =>  | 1 => a | 2 => a&#937; | 3 => a&#937;&#128512; | 8 => a&#937;&#128512;&#937 | 99 => " + text,
             [&](const std::string& count) { return FirstCharacters(text, std::stoul(count)); });
  ExpectRows("0 => 0 | 1 => 1 | 2 => 1 | 6 => 1 | 7 => 7 | 15 => 7 | 16 => 16 | 25 => 16 | 26 => 26 | 99 => 27",
             [&](const std::string& most) { return std::to_string(WholeBytes(text, std::stoul(most))); });
  ExpectRows("0 => 0 | 1 => 1 | 7 => 2 | 16 => 4 | 21 => 5 | 22 => 6 | 27 => 11 | 99 => 11",
             [&](const std::string& bytes) { return std::to_string(WidePosition(text, std::stoul(bytes))); });
}

// A page where bytes have no character, half a one, or another byte's.
TEST(ReferencesTest, KeepEveryTextOfAnyPage) {
  std::array<char16_t, 256> odd{};
  for (std::size_t byte = 0x80; byte < 0xF0; ++byte)
    odd[byte] = byte < 0xA0 ? u'?' : static_cast<char16_t>(0xD780 + byte);
  const CodePage page(odd);
  std::mt19937 chance(15);
  const char* const pieces[] = {"&",         "#",        "&#38;", "#38;", "937;", "&#937;",
                                "&#128512;", "&#55328;", "\xE9",  "\x80", "x"};
  for (int round = 0; round < 10000; ++round) {
    std::string text;
    for (auto count = chance() % 9; count > 0; --count) text += pieces[chance() % std::size(pieces)];
    EXPECT_NO_THROW(RequireReferencesHold(text, chance() % 20)) << text;
    EXPECT_NO_THROW(RequireReferencesHold(std::u16string(text.begin(), text.end()))) << text;
    EXPECT_EQ(Narrow(Widen(text, page), page), text);
  }
}

}  // namespace
