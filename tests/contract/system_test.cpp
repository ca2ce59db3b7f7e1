// What runtime_error.h, locale.h, program.h and process.h promise, on both platforms alike.
#include <gtest/gtest.h>

#include "contract/error_of.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/process.h"
#include "platform/program.h"
#include "support/files.h"

namespace {

using namespace std::string_literals;

TEST(SystemTest, ErrorsAreDescribedInTheClassicWordsAndStandForTheSystemsCodes) {
  const struct {
    int Number;
    const char* Words;
    std::vector<unsigned long> Codes;
  } rows[] = {{5, "Invalid procedure call or argument", {0, 1, 87, 4000000000UL}},
              {6, "Overflow", {}},
              {7, "Out of memory", {}},
              {11, "Division by zero", {}},
              {13, "Type mismatch", {}},
              {52, "Bad file name or number", {123, 206}},
              {53, "File not found", {2, 18}},
              {57, "Device I/O error", {23, 25, 27, 29, 30, 31, 59, 121, 1117}},
              {58, "File already exists", {80, 183}},
              {61, "Disk full", {39, 112, 1295}},
              {62, "Input past end of file", {38}},
              {68, "Device unavailable", {20, 55, 64, 1167}},
              {70, "Permission denied", {32, 33, 1224}},
              {71, "Disk not ready", {21, 26, 1005, 1110, 1112}},
              {75, "Path/File access error", {5, 19, 65, 82, 303}},
              {76, "Path not found", {3, 15, 53, 67, 161, 267}},
              {481, "Invalid picture", {}},
              {482, "Printer error", {}},
              {521, "Can't open Clipboard", {}}};
  for (const auto& row : rows) {
    const RuntimeError error(row.Number);
    EXPECT_EQ(error.Number, row.Number);
    EXPECT_EQ(error.Description, row.Words);
    EXPECT_STREQ(error.what(), row.Words);
    for (const unsigned long code : row.Codes) EXPECT_EQ(ErrorNumberOfSystemCode(code), row.Number) << code;
  }
  for (const int unknown : {-1, 0, 9999}) EXPECT_EQ(ErrorDescription(unknown), rows[0].Words) << unknown;
}

std::string Range(int first, int last) {
  std::string text;
  for (int code = first; code <= last; ++code) text += static_cast<char>(code);
  return text;
}

TEST(SystemTest, TextIsOfTheSystemsLanguage) {
  const std::string letters = Range('a', 'z') + Range(0xE0, 0xF6) + Range(0xF8, 0xFE) + "\x9A\x9C\x9E\xFF";
  const std::string capitals = Range('A', 'Z') + Range(0xC0, 0xD6) + Range(0xD8, 0xDE) + "\x8A\x8C\x8E\x9F";
  for (const char character : Range(0, 255)) {
    const std::size_t letter = letters.find(character);
    EXPECT_EQ(UpperCase(character), letter == std::string::npos ? character : capitals[letter]);
  }
  EXPECT_EQ(UpperCase("Shed 12\0"s + letters), "SHED 12\0"s + capitals);
  EXPECT_EQ(DecimalSeparator(), '.');
  EXPECT_EQ(ShortDate(2026, 8, 5) + " " + ShortDate(9998, 12, 31) + " " + ShortDate(1601, 1, 1),
            "8/5/2026 12/31/9998 1/1/1601");
  EXPECT_EQ(ShortDate(1600, 12, 31) + " " + ShortDate(476, 9, 4), "1600-12-31 0476-09-04");
  EXPECT_TRUE(Today().ok() && Today().year() >= std::chrono::year{2026});
}

TEST(SystemTest, ProgramHasFoldersAnEnvironmentAndAnEnd) {
  TestFiles::Start();
  EXPECT_EQ(CurrentFolder(), TestFiles::Folder());
  for (const std::string& folder : {ProgramFolder(), CurrentFolder()}) {
    EXPECT_TRUE(folder.size() > 3 && folder.substr(1, 2) == ":\\" && folder.back() != '\\') << folder;
  }
  EXPECT_NE(EnvironmentValue("PATH").value_or(""), "");
  EXPECT_EQ(EnvironmentValue("Path"), EnvironmentValue("PATH"));
  EXPECT_FALSE(EnvironmentValue("FILER_TEST_NOT_DEFINED") || EnvironmentValue(""));
  EXPECT_EQ(ErrorOf([] { StartProgram("\"C:\\no such folder\\none.exe\" x"); }), kFileNotFound);
  EXPECT_EQ(ErrorOf([] { StartProgram("none.exe"); }), kFileNotFound);

  Files::Open(1, "OUT.TXT", Files::Mode::Output);
  Files::WriteLine(1, "last words");
  EXPECT_THROW(EndProgram(), ProgramEnded);
  EXPECT_FALSE(Files::IsOpen(1));
  EXPECT_EQ(TestFiles::Get("OUT.TXT"), "last words\r\n");
  TestFiles::Finish();
}

}  // namespace
