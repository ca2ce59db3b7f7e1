// What runtime_error.h, locale.h and program.h promise, on both platforms alike.
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "platform/files.h"
#include "platform/locale.h"
#include "platform/program.h"
#include "platform/runtime_error.h"
#include "support/files.h"

namespace {

using namespace std::string_literals;

TEST(RuntimeErrors, AreDescribedInTheClassicWords) {
  const std::pair<int, const char*> rows[] = {
      {5, "Invalid procedure call or argument"},
      {6, "Overflow"},
      {11, "Division by zero"},
      {13, "Type mismatch"},
      {52, "Bad file name or number"},
      {53, "File not found"},
      {57, "Device I/O error"},
      {58, "File already exists"},
      {61, "Disk full"},
      {62, "Input past end of file"},
      {68, "Device unavailable"},
      {70, "Permission denied"},
      {71, "Disk not ready"},
      {75, "Path/File access error"},
      {76, "Path not found"},
      {481, "Invalid picture"},
      {-1, "Invalid procedure call or argument"},
      {0, "Invalid procedure call or argument"},
      {9999, "Invalid procedure call or argument"},
  };
  for (const auto& [number, description] : rows) {
    EXPECT_EQ(ErrorDescription(number), description) << number;
    const RuntimeError error(number);
    EXPECT_EQ(error.Number, number);
    EXPECT_EQ(error.Description, description) << number;
    EXPECT_STREQ(error.what(), description) << number;
  }
}

TEST(RuntimeErrors, StandForTheSystemsCodes) {
  const std::pair<unsigned long, int> rows[] = {
      {2, 53},    {3, 76},    {5, 75},    {15, 76},  {19, 75},  {21, 71},          {23, 57},  {29, 57},
      {30, 57},   {31, 57},   {32, 70},   {33, 70},  {38, 62},  {39, 61},          {53, 76},  {67, 76},
      {80, 58},   {112, 61},  {123, 52},  {161, 76}, {183, 58}, {206, 52},         {267, 76}, {55, 68},
      {1117, 57}, {1167, 68}, {1224, 70}, {0, 5},    {87, 5},   {4000000000UL, 5},
  };
  for (const auto& [code, number] : rows) EXPECT_EQ(ErrorNumberOfSystemCode(code), number) << code;
}

TEST(Locale, UpperCasesLettersWithTheirAccents) {
  EXPECT_EQ(UpperCase("Shed 12 [x] {y}~"), "SHED 12 [X] {Y}~");
  EXPECT_EQ(UpperCase("a\0b"s), "A\0B"s);
  EXPECT_EQ(UpperCase(""), "");
  EXPECT_EQ(UpperCase("\xE0\xE4\xE9\xF1\xF6\xF8\xFC\xFE"), "\xC0\xC4\xC9\xD1\xD6\xD8\xDC\xDE");
  EXPECT_EQ(UpperCase("\x9A\x9C\x9E\xFF"), "\x8A\x8C\x8E\x9F");
  EXPECT_EQ(UpperCase("\xD7\xF7\xDF\xC9\x8A\xAA\xB5\x83"), "\xD7\xF7\xDF\xC9\x8A\xAA\xB5\x83");
  EXPECT_EQ(UpperCase('q'), 'Q');
  EXPECT_EQ(UpperCase('\xE9'), '\xC9');
}

TEST(Locale, EveryCapitalIsItsOwnCapital) {
  for (int code = 0; code < 256; ++code) {
    const char capital = UpperCase(static_cast<char>(code));
    EXPECT_EQ(UpperCase(capital), capital) << code;
    const bool small =
        (code >= 'a' && code <= 'z') || (code >= 0xE0 && code != 0xF7) || code == 0x9A || code == 0x9C || code == 0x9E;
    EXPECT_EQ(capital != static_cast<char>(code), small) << code;
  }
}

TEST(Locale, DecimalSeparatorOfAnEnglishMachineIsThePoint) { EXPECT_EQ(DecimalSeparator(), '.'); }

TEST(Locale, ShortDatesAreTheSystemsWithinItsYears) {
  EXPECT_EQ(ShortDate(2026, 8, 5), "8/5/2026");
  EXPECT_EQ(ShortDate(2026, 12, 25), "12/25/2026");
  EXPECT_EQ(ShortDate(1601, 1, 1), "1/1/1601");
  EXPECT_EQ(ShortDate(9998, 12, 31), "12/31/9998");
  EXPECT_EQ(ShortDate(1600, 12, 31), "1600-12-31");
  EXPECT_EQ(ShortDate(476, 9, 4), "0476-09-04");
}

TEST(Program, TodayIsADayOfTheCalendar) {
  EXPECT_TRUE(Today().ok());
  EXPECT_GE(Today().year(), std::chrono::year{2026});
}

void ExpectFolderForm(const std::string& folder) {
  ASSERT_GE(folder.size(), 3U);
  EXPECT_EQ(folder.substr(1, 2), ":\\") << folder;
  EXPECT_TRUE(folder.size() == 3 || folder.back() != '\\') << folder;
}

TEST(Program, FoldersAreFullNamesWithoutATrailingSeparator) {
  ExpectFolderForm(ProgramFolder());
  ExpectFolderForm(CurrentFolder());
  TestFiles::Start();
  EXPECT_EQ(CurrentFolder(), TestFiles::Folder());
  ExpectFolderForm(CurrentFolder());
  TestFiles::Put("HERE.TXT", "");
  EXPECT_TRUE(Files::Exists(CurrentFolder() + "\\HERE.TXT"));
  TestFiles::Finish();
}

TEST(Program, EnvironmentIsAskedByNameWhateverItsCase) {
  const auto path = EnvironmentValue("PATH");
  ASSERT_TRUE(path.has_value());
  EXPECT_FALSE(path->empty());
  EXPECT_EQ(EnvironmentValue("Path"), path);
  EXPECT_EQ(EnvironmentValue("FILER_TEST_NOT_DEFINED"), std::nullopt);
  EXPECT_EQ(EnvironmentValue(""), std::nullopt);
}

TEST(Program, EndingClosesEveryFileWithWhatWasWritten) {
  TestFiles::Start();
  TestFiles::Put("LOCKED.TXT", "a");
  Files::Open(1, "OUT.TXT", Files::Mode::Output);
  Files::Open(2, "LOCKED.TXT", Files::Mode::Lock);
  Files::WriteLine(1, "last words");
  EXPECT_THROW(EndProgram(), ProgramEnded);
  EXPECT_FALSE(Files::IsOpen(1) || Files::IsOpen(2));
  EXPECT_EQ(TestFiles::Get("OUT.TXT"), "last words\r\n");
  Files::Erase("LOCKED.TXT");
  TestFiles::Finish();
}

}  // namespace
