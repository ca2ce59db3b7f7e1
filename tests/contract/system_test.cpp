// What runtime_error.h, locale.h, program.h, process.h and clipboard.h promise, on both platforms alike.
#include <sstream>

#include "contract/error_of.h"
#include "platform/clipboard.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/process.h"
#include "platform/program.h"
#include "support/fresh_test.h"
#include "support/rows.h"

namespace {

using namespace std::string_literals;

TEST(SystemTest, ErrorsAreDescribedInTheClassicWordsAndStandForTheSystemsCodes) {
  for (const auto& [words, numbers] : Rows(R"(Invalid procedure call or argument => 5 0 1 87 4000000000
Overflow => 6 | Out of memory => 7 | Division by zero => 11 | Type mismatch => 13 | Bad file name or number => 52 123 206
File not found => 53 2 18 | Device I/O error => 57 23 25 27 29 30 31 59 121 1117 | File already exists => 58 80 183
Disk full => 61 39 112 1295 | Input past end of file => 62 38 | Device unavailable => 68 20 55 64 1167
Permission denied => 70 32 33 1224 | Disk not ready => 71 21 26 1005 1110 1112 | Printer error => 482
Path/File access error => 75 5 19 65 82 303 | Path not found => 76 3 15 53 67 161 267 | Invalid picture => 481
Can't open Clipboard => 521)")) {
    std::istringstream read(numbers);
    int number = 0;
    read >> number;
    const RuntimeError error(number);
    EXPECT_EQ(error.Number, number);
    EXPECT_EQ(error.Description, words);
    EXPECT_STREQ(error.what(), words.c_str());
    for (unsigned long code = 0; read >> code;) EXPECT_EQ(ErrorNumberOfSystemCode(code), number) << code;
  }
  for (const int unknown : {-1, 0, 9999}) EXPECT_EQ(ErrorDescription(unknown), ErrorDescription(5)) << unknown;
}

TEST(SystemTest, TextIsOfTheSystemsLanguage) {
  for (int code = 0; code < 256; ++code) {
    const auto within = [code](int first, int last) { return first <= code && code <= last; };
    const bool is_letter = within('a', 'z') || within(0xE0, 0xF6) || within(0xF8, 0xFE);
    const bool is_other = code == 0x9A || code == 0x9C || code == 0x9E;
    const auto capital = static_cast<char>(code - (is_letter ? 0x20 : is_other ? 0x10 : code == 0xFF ? 0x60 : 0));
    EXPECT_EQ(UpperCase(static_cast<char>(code)), capital);
    EXPECT_EQ(UpperCase("a\0"s + static_cast<char>(code)), "A\0"s + capital);
  }
  EXPECT_EQ(DecimalSeparator(), '.');
  EXPECT_EQ(FirstWeekday(), 0);
  EXPECT_EQ(ShortDate(2026, 8, 5) + " " + ShortDate(9998, 12, 31) + " " + ShortDate(1601, 1, 1),
            "8/5/2026 12/31/9998 1/1/1601");
  EXPECT_EQ(ShortDate(1600, 12, 31) + " " + ShortDate(476, 9, 4), "1600-12-31 0476-09-04");
  EXPECT_TRUE(Today().ok() && Today().year() >= std::chrono::year{2026});
}

TEST_F(FreshTest, ProgramHasFoldersAnEnvironmentAClipboardAndAnEnd) {
  EXPECT_EQ(CurrentFolder(), TestFiles::Folder());
  const std::string folder = ProgramFolder();
  EXPECT_TRUE(folder.size() > 3 && folder.substr(1, 2) == ":\\" && folder.back() != '\\') << folder;
  EXPECT_NE(EnvironmentValue("PATH").value_or(""), "");
  EXPECT_EQ(EnvironmentValue("Path"), EnvironmentValue("PATH"));
  EXPECT_FALSE(EnvironmentValue("FILER_TEST_NOT_DEFINED") || EnvironmentValue(""));
  for (const std::string none : {"none.exe", "\"C:\\no such folder\\none.exe\" x"}) {
    EXPECT_EQ(ErrorOf([&] { StartProgram(none); }), kFileNotFound) << none;
  }
  for (const std::string text : {"old", "caf\xE9\r\nline &#937;&#38;#937;", ""}) {
    SetClipboardText(text);
    EXPECT_EQ(ClipboardText(), text);
  }
  Files::Open(1, "OUT.TXT", Files::Mode::Output);
  Files::WriteLine(1, "last words");
  EXPECT_THROW(EndProgram(), ProgramEnded);
  EXPECT_FALSE(Files::IsOpen(1));
  EXPECT_EQ(TestFiles::Get("OUT.TXT"), "last words\r\n");
}

}  // namespace
