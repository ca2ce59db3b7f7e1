// The character set of the in-memory machine: that of Western Europe (code page 1252).
#include "platform/references.h"

const CodePage& SystemPage() {
  static const CodePage kPage = [] {
    // From byte 0x80 on; as on Windows, bytes that are not in use are control characters.
    constexpr std::array<char16_t, 32> kOdd = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                               0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                               0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                               0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
    std::array<char16_t, 256> characters{};
    for (std::size_t byte = 0; byte < characters.size(); ++byte) {
      const bool is_odd = byte >= 0x80 && byte < 0x80 + kOdd.size();
      characters[byte] = is_odd ? kOdd[byte - 0x80] : static_cast<char16_t>(byte);
    }
    return CodePage(characters);
  }();
  return kPage;
}
