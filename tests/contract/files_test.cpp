// What files.h promises, on the in-memory platform and on the disk alike.
#include "platform/files.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "platform/line_reader.h"
#include "platform/runtime_error.h"
#include "support/files.h"

namespace {

using Files::Mode;
using namespace std::string_literals;

constexpr int kNoError = 0;

int ErrorOf(const std::function<void()>& act) {
  try {
    act();
    return kNoError;
  } catch (const RuntimeError& error) {
    return error.Number;
  }
}

int OpenError(const std::string& name, Mode mode) {
  return ErrorOf([&] {
    const int handle = Files::FreeHandle();
    Files::Open(handle, name, mode);
    Files::Close(handle);
  });
}

std::vector<std::string> LinesOf(const std::string& name) {
  std::vector<std::string> lines;
  Files::Open(9, name, Mode::Input);
  while (!Files::AtEnd(9)) {
    const std::string_view line = Files::ReadLine(9);
    Files::AtEnd(9);  // asking leaves the line alone, also where the next block is needed for the answer
    lines.emplace_back(line);
  }
  Files::Close(9);
  return lines;
}

class FilesContract : public testing::Test {
 protected:
  void SetUp() override { TestFiles::Start(); }
  void TearDown() override { TestFiles::Finish(); }
};

struct LineRow {
  std::string Bytes;
  std::vector<std::string> Lines;
};

class FilesLineRows : public FilesContract, public testing::WithParamInterface<LineRow> {};

TEST_P(FilesLineRows, AreReadToTheExactEnd) {
  TestFiles::Put("LINES.TXT", GetParam().Bytes);
  EXPECT_EQ(LinesOf("LINES.TXT"), GetParam().Lines);
}

const std::size_t kBlock = LineReader::kBlockSize;

std::string Xs(std::size_t count) { return std::string(count, 'x'); }

INSTANTIATE_TEST_SUITE_P(
    Rows, FilesLineRows,
    testing::Values(LineRow{"", {}}, LineRow{"one", {"one"}}, LineRow{"one\r\ntwo\r\n", {"one", "two"}},
                    LineRow{"one\ntwo\rthree", {"one", "two", "three"}}, LineRow{"\r\n", {""}},
                    LineRow{"\n\r", {"", ""}}, LineRow{"\r\r\n\n", {"", "", ""}}, LineRow{"a\r\n\r\nb", {"a", "", "b"}},
                    LineRow{"\0a\x1A\r\n\x1A"s, {"\0a\x1A"s, "\x1A"}}, LineRow{" a\t\xE9 \n", {" a\t\xE9 "}}));

INSTANTIATE_TEST_SUITE_P(
    BlockEdges, FilesLineRows,
    testing::Values(LineRow{Xs(kBlock - 1) + "\r\nb\r\n", {Xs(kBlock - 1), "b"}},
                    LineRow{Xs(kBlock - 1) + "\r\n", {Xs(kBlock - 1)}},
                    LineRow{Xs(kBlock - 1) + "\rb", {Xs(kBlock - 1), "b"}},
                    LineRow{Xs(kBlock - 1) + "\r", {Xs(kBlock - 1)}},
                    LineRow{Xs(kBlock - 1) + "\r\n\nb", {Xs(kBlock - 1), "", "b"}},
                    LineRow{Xs(kBlock - 1) + "\r" + Xs(kBlock) + "\nb", {Xs(kBlock - 1), Xs(kBlock), "b"}},
                    LineRow{Xs(kBlock) + "\r\nb", {Xs(kBlock), "b"}}, LineRow{Xs(kBlock), {Xs(kBlock)}},
                    LineRow{Xs(kBlock - 2) + "\r\n", {Xs(kBlock - 2)}},
                    LineRow{"a\r\n" + Xs(3 * kBlock + 7) + "\nb", {"a", Xs(3 * kBlock + 7), "b"}}));

TEST_F(FilesContract, ReadingPastTheEndFailsAndLeavesTheFileOpen) {
  TestFiles::Put("A.TXT", "only");
  Files::Open(1, "A.TXT", Mode::Input);
  EXPECT_FALSE(Files::AtEnd(1));
  Files::ReadLine(1);
  EXPECT_TRUE(Files::AtEnd(1));
  EXPECT_EQ(ErrorOf([&] { Files::ReadLine(1); }), kInputPastEnd);
  EXPECT_TRUE(Files::IsOpen(1));
}

TEST_F(FilesContract, AtEndIsTrueBehindALineEndThatIsSplitOverABlockEdge) {
  TestFiles::Put("A.TXT", Xs(kBlock - 1) + "\r\n");
  Files::Open(1, "A.TXT", Mode::Input);
  Files::ReadLine(1);
  EXPECT_TRUE(Files::AtEnd(1));
}

TEST_F(FilesContract, FilesAreReadAtTheSameTimeEachFromItsOwnPlace) {
  TestFiles::Put("A.TXT", "a1\na2\n");
  TestFiles::Put("B.TXT", "b1\nb2\n");
  Files::Open(1, "A.TXT", Mode::Input);
  Files::Open(255, "A.TXT", Mode::Input);
  Files::Open(3, "B.TXT", Mode::Input);
  EXPECT_EQ(Files::ReadLine(1), "a1");
  EXPECT_EQ(Files::ReadLine(1), "a2");
  EXPECT_EQ(Files::ReadLine(255), "a1");
  EXPECT_EQ(Files::ReadLine(3), "b1");
}

TEST_F(FilesContract, WritesBytesAsTheyStandAndReplacesWhatWasThere) {
  TestFiles::Put("A.TXT", "a former text, longer than the new one");
  Files::Open(1, "A.TXT", Mode::Output);
  Files::WriteLine(1, "one\0\x1A\xE9"s);
  Files::Write(1, "a\nb");
  Files::Write(1, "");
  Files::WriteLine(1, "");
  Files::Close(1);
  EXPECT_EQ(TestFiles::Get("A.TXT"), "one\0\x1A\xE9\r\na\nb\r\n"s);

  Files::Open(1, "NEW.TXT", Mode::Output);
  Files::Close(1);
  EXPECT_EQ(TestFiles::Get("NEW.TXT"), "");
}

TEST_F(FilesContract, WritesMoreThanAnyBufferHoldsInOrder) {
  std::string expected;
  Files::Open(1, "BIG.TXT", Mode::Output);
  for (int number = 0; number < 20000; ++number) {
    const std::string text = "line " + std::to_string(number);
    Files::WriteLine(1, text);
    expected += text + "\r\n";
  }
  Files::Write(1, Xs(3 * kBlock));
  Files::WriteLine(1, "end");
  Files::Close(1);
  EXPECT_TRUE(TestFiles::Get("BIG.TXT") == expected + Xs(3 * kBlock) + "end\r\n");
}

TEST_F(FilesContract, FlushedBytesAreThereBeforeTheFileIsClosed) {
  Files::Open(1, "A.TXT", Mode::Output);
  Files::WriteLine(1, "kept");
  Files::Flush(1);
  EXPECT_EQ(TestFiles::Get("A.TXT"), "kept\r\n");
  Files::WriteLine(1, "more");
  Files::Close(1);
  EXPECT_EQ(TestFiles::Get("A.TXT"), "kept\r\nmore\r\n");
}

TEST_F(FilesContract, HandleNumbersAreTheCallersUntilClosed) {
  TestFiles::Put("A.TXT", "a");
  EXPECT_EQ(Files::FreeHandle(), 1);
  Files::Open(1, "A.TXT", Mode::Input);
  EXPECT_EQ(Files::FreeHandle(), 2);
  Files::Open(3, "A.TXT", Mode::Input);
  EXPECT_EQ(Files::FreeHandle(), 2);
  Files::Open(2, "A.TXT", Mode::Input);
  EXPECT_EQ(Files::FreeHandle(), 4);
  Files::Close(1);
  EXPECT_EQ(Files::FreeHandle(), 1);
  EXPECT_FALSE(Files::IsOpen(1));
  EXPECT_TRUE(Files::IsOpen(3));
  Files::Close(1);
  Files::CloseAll();
  EXPECT_FALSE(Files::IsOpen(2) || Files::IsOpen(3));
}

TEST_F(FilesContract, HandleNumbersThatAreNotOpenOrOutOfRangeAreRefused) {
  TestFiles::Put("A.TXT", "a");
  for (const int handle : {-1, 0, 7, 256}) {
    EXPECT_EQ(ErrorOf([&] { Files::ReadLine(handle); }), kBadFileNumber) << handle;
    EXPECT_EQ(ErrorOf([&] { Files::AtEnd(handle); }), kBadFileNumber) << handle;
    EXPECT_EQ(ErrorOf([&] { Files::Write(handle, "x"); }), kBadFileNumber) << handle;
    EXPECT_EQ(ErrorOf([&] { Files::WriteLine(handle, "x"); }), kBadFileNumber) << handle;
    EXPECT_EQ(ErrorOf([&] { Files::Flush(handle); }), kBadFileNumber) << handle;
    EXPECT_FALSE(Files::IsOpen(handle)) << handle;
    EXPECT_EQ(ErrorOf([&] { Files::Close(handle); }), kNoError) << handle;
  }
  for (const int handle : {-1, 0, 256}) {
    EXPECT_EQ(ErrorOf([&] { Files::Open(handle, "A.TXT", Mode::Input); }), kBadFileNumber) << handle;
  }
  Files::Open(5, "A.TXT", Mode::Input);
  EXPECT_EQ(ErrorOf([&] { Files::Open(5, "A.TXT", Mode::Output); }), kBadFileNumber);
  EXPECT_EQ(TestFiles::Get("A.TXT"), "a");
}

TEST_F(FilesContract, EachModeAllowsItsOwnCallsOnly) {
  TestFiles::Put("IN.TXT", "a");
  TestFiles::Put("LOCK.TXT", "a");
  Files::Open(1, "IN.TXT", Mode::Input);
  Files::Open(2, "OUT.TXT", Mode::Output);
  Files::Open(3, "LOCK.TXT", Mode::Lock);
  EXPECT_EQ(ErrorOf([] { Files::Write(1, "x"); }), kBadFileNumber);
  EXPECT_EQ(ErrorOf([&] { Files::ReadLine(2); }), kBadFileNumber);
  EXPECT_EQ(ErrorOf([] { Files::AtEnd(2); }), kBadFileNumber);
  EXPECT_EQ(ErrorOf([] { Files::Write(3, "x"); }), kBadFileNumber);
  EXPECT_EQ(ErrorOf([&] { Files::ReadLine(3); }), kBadFileNumber);
  Files::CloseAll();
  EXPECT_EQ(TestFiles::Get("LOCK.TXT"), "a");
}

TEST_F(FilesContract, OpeningSaysWhyItFails) {
  TestFiles::Put("RO.TXT", "kept");
  TestFiles::SetReadOnly("RO.TXT", true);
  TestFiles::MakeFolder("FOLDER");
  for (const Mode mode : {Mode::Input, Mode::Output, Mode::Lock}) {
    SCOPED_TRACE(static_cast<int>(mode));
    EXPECT_EQ(OpenError("NONE\\A.TXT", mode), kPathNotFound);
    EXPECT_EQ(OpenError("RO.TXT\\A.TXT", mode), kPathNotFound);
    EXPECT_EQ(OpenError("FOLDER", mode), kPathFileAccess);
    EXPECT_EQ(OpenError("", mode), kPathFileAccess);
    EXPECT_EQ(OpenError(" ", mode), kPathFileAccess);
    for (const std::string name : {"A*.TXT", "A?.TXT", "A|B", "A<B", "A>B", "A\"B", "NUL", "nul.txt"}) {
      EXPECT_EQ(OpenError(name, mode), kBadFileNumber) << name;
    }
    EXPECT_EQ(OpenError("RO.TXT\0X"s, mode), kBadFileNumber);
  }
  EXPECT_EQ(OpenError("NONE.TXT", Mode::Input), kFileNotFound);
  EXPECT_EQ(OpenError("NONE.TXT", Mode::Lock), kFileNotFound);
  EXPECT_EQ(OpenError("RO.TXT", Mode::Input), kNoError);
  EXPECT_EQ(OpenError("RO.TXT", Mode::Output), kPathFileAccess);
  EXPECT_EQ(OpenError("RO.TXT", Mode::Lock), kPathFileAccess);
  EXPECT_EQ(TestFiles::Get("RO.TXT"), "kept");
  EXPECT_EQ(TestFiles::List(), std::vector<std::string>{"RO.TXT"});
  EXPECT_EQ(Files::FreeHandle(), 1);
}

TEST_F(FilesContract, NamesAreTakenAsTheSystemTakesThem) {
  TestFiles::MakeFolder("SUB");
  Files::Open(1, "SUB\\\\File.Txt", Mode::Output);
  Files::WriteLine(1, "here");
  Files::Close(1);
  for (const std::string& name : {TestFiles::Folder() + "\\SUB\\File.Txt", TestFiles::Folder() + "\\\\SUB\\\\file.txt",
                                  "SUB\\FILE.TXT"s, ".\\sub\\.\\File.Txt"s, "SUB\\..\\SUB/File.Txt"s, "SUB\\File.Txt "s,
                                  "SUB\\File.Txt."s, TestFiles::Folder().substr(2) + "\\SUB\\File.Txt"}) {
    EXPECT_TRUE(Files::Exists(name)) << name;
    EXPECT_EQ(LinesOf(name), std::vector<std::string>{"here"}) << name;
  }
  TestFiles::Put("Mixed.Txt", "");
  Files::Open(1, "MIXED.TXT", Mode::Output);
  Files::Close(1);
  EXPECT_EQ(TestFiles::List(), std::vector<std::string>{"Mixed.Txt"});
}

TEST_F(FilesContract, ALockLetsOthersReadOnly) {
  TestFiles::Put("A.TXT", "kept\n");
  Files::Open(1, "A.TXT", Mode::Lock);
  EXPECT_EQ(LinesOf("A.TXT"), std::vector<std::string>{"kept"});
  EXPECT_EQ(OpenError("A.TXT", Mode::Lock), kPermissionDenied);
  EXPECT_EQ(OpenError("A.TXT", Mode::Output), kPermissionDenied);
  EXPECT_EQ(ErrorOf([] { Files::Erase("A.TXT"); }), kPermissionDenied);
  EXPECT_EQ(ErrorOf([] { Files::Rename("A.TXT", "B.TXT"); }), kPermissionDenied);
  EXPECT_TRUE(Files::Exists("A.TXT"));
  EXPECT_EQ(TestFiles::Get("A.TXT"), "kept\n");
  Files::Close(1);
  EXPECT_EQ(OpenError("A.TXT", Mode::Output), kNoError);
}

TEST_F(FilesContract, AnOutputFileIsReadButNotWrittenByOthers) {
  Files::Open(1, "A.TXT", Mode::Output);
  EXPECT_EQ(OpenError("A.TXT", Mode::Input), kNoError);
  EXPECT_EQ(OpenError("A.TXT", Mode::Output), kPermissionDenied);
  EXPECT_EQ(OpenError("A.TXT", Mode::Lock), kPermissionDenied);
}

TEST_F(FilesContract, AReaderKeepsNobodyFromWritingButFromErasing) {
  TestFiles::Put("A.TXT", "a");
  Files::Open(1, "A.TXT", Mode::Input);
  EXPECT_EQ(OpenError("A.TXT", Mode::Lock), kNoError);
  EXPECT_EQ(ErrorOf([] { Files::Erase("A.TXT"); }), kPermissionDenied);
  EXPECT_EQ(OpenError("A.TXT", Mode::Output), kNoError);
}

TEST_F(FilesContract, WhatAnotherProgramHoldsIsRefusedUntilReleased) {
  TestFiles::Put("A.TXT", "a");
  TestFiles::HoldByOther("A.TXT", false);
  EXPECT_EQ(OpenError("A.TXT", Mode::Input), kNoError);
  EXPECT_EQ(OpenError("A.TXT", Mode::Lock), kPermissionDenied);
  EXPECT_EQ(OpenError("A.TXT", Mode::Output), kPermissionDenied);
  TestFiles::ReleaseByOther();
  TestFiles::HoldByOther("A.TXT", true);
  EXPECT_EQ(OpenError("A.TXT", Mode::Input), kPermissionDenied);
  EXPECT_EQ(OpenError("A.TXT", Mode::Lock), kPermissionDenied);
  EXPECT_EQ(ErrorOf([] { Files::Erase("A.TXT"); }), kPermissionDenied);
  EXPECT_TRUE(Files::Exists("A.TXT"));
  TestFiles::ReleaseByOther();
  EXPECT_EQ(OpenError("A.TXT", Mode::Lock), kNoError);
  EXPECT_EQ(TestFiles::Get("A.TXT"), "a");
}

TEST_F(FilesContract, ErasesFilesOnly) {
  TestFiles::Put("A.TXT", "a");
  TestFiles::Put("RO.TXT", "a");
  TestFiles::SetReadOnly("RO.TXT", true);
  TestFiles::MakeFolder("FOLDER");
  Files::Erase("a.txt");
  EXPECT_EQ(TestFiles::List(), std::vector<std::string>{"RO.TXT"});
  EXPECT_EQ(ErrorOf([] { Files::Erase("A.TXT"); }), kFileNotFound);
  EXPECT_EQ(ErrorOf([] { Files::Erase("NONE\\A.TXT"); }), kPathNotFound);
  EXPECT_EQ(ErrorOf([] { Files::Erase("RO.TXT"); }), kPathFileAccess);
  EXPECT_EQ(ErrorOf([] { Files::Erase("FOLDER"); }), kPathFileAccess);
  EXPECT_EQ(ErrorOf([] { Files::Erase(""); }), kPathFileAccess);
  EXPECT_EQ(ErrorOf([] { Files::Erase("*.TXT"); }), kBadFileNumber);
  EXPECT_EQ(TestFiles::Get("RO.TXT"), "a");
}

TEST_F(FilesContract, RenamesToAFreeNameOnly) {
  TestFiles::Put("A.TXT", "a");
  TestFiles::Put("B.TXT", "b");
  TestFiles::MakeFolder("FOLDER");
  EXPECT_EQ(ErrorOf([] { Files::Rename("A.TXT", "B.TXT"); }), kFileAlreadyExists);
  EXPECT_EQ(ErrorOf([] { Files::Rename("A.TXT", "FOLDER"); }), kFileAlreadyExists);
  EXPECT_EQ(ErrorOf([] { Files::Rename("C.TXT", "D.TXT"); }), kFileNotFound);
  EXPECT_EQ(ErrorOf([] { Files::Rename("NONE\\A.TXT", "D.TXT"); }), kPathNotFound);
  EXPECT_EQ(ErrorOf([] { Files::Rename("A.TXT", "NONE\\D.TXT"); }), kPathNotFound);
  EXPECT_EQ(ErrorOf([] { Files::Rename("A.TXT", "D*.TXT"); }), kBadFileNumber);
  EXPECT_EQ(ErrorOf([] { Files::Rename("A.TXT", ""); }), kPathFileAccess);
  EXPECT_EQ(ErrorOf([] { Files::Rename("FOLDER", "OTHER"); }), kPathFileAccess);
  EXPECT_EQ(TestFiles::Get("A.TXT"), "a");
  EXPECT_EQ(TestFiles::Get("B.TXT"), "b");

  Files::Rename("A.TXT", "FOLDER\\Moved.txt");
  EXPECT_EQ(TestFiles::Get("FOLDER\\Moved.txt"), "a");
  Files::Rename("B.TXT", "b.txt");
  EXPECT_EQ(TestFiles::Get("B.TXT"), "b");
}

TEST_F(FilesContract, ReadOnlyFilesAreRenamed) {
  TestFiles::Put("RO.TXT", "a");
  TestFiles::SetReadOnly("RO.TXT", true);
  Files::Rename("RO.TXT", "RO.BAK");
  EXPECT_EQ(TestFiles::Get("RO.BAK"), "a");
  EXPECT_EQ(ErrorOf([] { Files::Erase("RO.BAK"); }), kPathFileAccess);
}

TEST_F(FilesContract, ExistsForFilesOnly) {
  TestFiles::Put("A.TXT", "");
  TestFiles::MakeFolder("FOLDER");
  EXPECT_TRUE(Files::Exists("A.TXT"));
  EXPECT_TRUE(Files::Exists("a.txt"));
  EXPECT_TRUE(Files::Exists(TestFiles::Folder() + "\\A.TXT"));
  for (const std::string& name :
       {"B.TXT"s, "NONE\\A.TXT"s, "FOLDER"s, "FOLDER\\"s, ""s, " "s, "*.TXT"s, "A?TXT"s, "NUL"s, "A.TXT\0"s, "C:\\"s}) {
    EXPECT_FALSE(Files::Exists(name)) << name;
  }
}

TEST_F(FilesContract, ReadAllTakesEveryByteAndHoldsNothing) {
  const std::string bytes = "a\r\n\0b\x1A"s + Xs(3 * kBlock);
  TestFiles::Put("ALL.BIN", bytes);
  EXPECT_TRUE(Files::ReadAll("ALL.BIN") == bytes);
  Files::Open(2, "ALL.BIN", Mode::Output);
  Files::Write(2, "half");
  Files::Flush(2);
  EXPECT_EQ(Files::ReadAll("ALL.BIN"), "half");  // while it is being written
  Files::Close(2);
  Files::Erase("ALL.BIN");
  TestFiles::Put("EMPTY", "");
  TestFiles::MakeFolder("FOLDER");
  TestFiles::Put("HELD", "x");
  TestFiles::HoldByOther("HELD", true);
  EXPECT_EQ(Files::ReadAll("EMPTY"), "");
  EXPECT_EQ(ErrorOf([] { Files::ReadAll("ALL.BIN"); }), kFileNotFound);
  EXPECT_EQ(ErrorOf([] { Files::ReadAll("FOLDER"); }), kPathFileAccess);
  EXPECT_EQ(ErrorOf([] { Files::ReadAll("HELD"); }), kPermissionDenied);
}

}  // namespace
