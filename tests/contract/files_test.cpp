// What files.h promises, on the in-memory platform and on the disk alike.
#include "platform/files.h"

#include "contract/error_of.h"
#include "platform/line_reader.h"
#include "support/fresh_test.h"

namespace {

using Files::Mode;
using namespace std::string_literals;

class FilesTest : public FreshTest {};

std::string Xs(std::size_t count) { return std::string(count, 'x'); }

// The lines of a file, each ended by "|".
std::string LinesOf(const std::string& name) {
  std::string lines;
  Files::Open(9, name, Mode::Input);
  while (!Files::AtEnd(9)) {
    const std::string_view line = Files::ReadLine(9);
    Files::AtEnd(9);  // asking leaves the line alone, also where the next block is needed for the answer
    lines.append(line).append("|");
  }
  EXPECT_EQ(ErrorOf([] { Files::ReadLine(9); }), kInputPastEnd);
  EXPECT_TRUE(Files::IsOpen(9));
  Files::Close(9);
  return lines;
}

TEST_F(FilesTest, LinesAreReadToTheExactEndAlsoAtTheEdgesOfBlocks) {
  const std::size_t block = LineReader::kBlockSize;
  for (const std::string& first :
       {""s, "\0a\x1A"s, " a\t\xE9 "s, Xs(block - 2), Xs(block - 1), Xs(block), Xs(3 * block + 7)}) {
    for (const std::string& rest : {""s, "\n"s, "\r"s, "\r\n"s, "\rb"s, "\nb\r"s, "\r\nb"s, "\n\r"s, "\n\r\n"s,
                                    "\r\r\n\n"s, "\r\n\nb"s, "\r" + Xs(block) + "\nb"}) {
      const std::string bytes = first + rest;
      std::string lines;
      for (std::size_t at = 0; at < bytes.size(); ++at) {
        if (bytes[at] != '\r' || bytes.c_str()[at + 1] != '\n')
          lines += bytes[at] == '\r' || bytes[at] == '\n' ? '|' : bytes[at];
      }
      if (!lines.empty() && lines.back() != '|') lines += '|';
      TestFiles::Put("LINES.TXT", bytes);
      EXPECT_TRUE(LinesOf("LINES.TXT") == lines) << first.size() << rest;
      EXPECT_TRUE(Files::ReadAll("LINES.TXT") == bytes) << first.size() << rest;
    }
  }
}

TEST_F(FilesTest, BytesAreWrittenAsTheyStandAndReplaceWhatWasThere) {
  TestFiles::Put("OUT.TXT", Xs(1U << 20));
  Files::Open(1, "OUT.TXT", Mode::Output);
  EXPECT_EQ(TestFiles::Get("OUT.TXT"), "");
  std::string expected;
  const std::size_t block = LineReader::kBlockSize;
  for (const std::string& text : {"one\0\x1A\xE9"s, "a\nb"s, ""s, Xs(block - 1), Xs(3 * block), "end"s}) {
    Files::Write(1, text);
    Files::WriteLine(1, text);
    expected += text + text + "\r\n";
  }
  Files::Flush(1);
  EXPECT_TRUE(TestFiles::Get("OUT.TXT") == expected && Files::ReadAll("OUT.TXT") == expected);
  Files::WriteLine(1, "");
  Files::Close(1);
  EXPECT_TRUE(TestFiles::Get("OUT.TXT") == expected + "\r\n");
}

TEST_F(FilesTest, HandlesAreTheCallersAndTakeTheCallsOfTheirModeOnly) {
  TestFiles::Put("A.TXT", "a1\na2");
  for (const int handle : {1, 255}) Files::Open(handle, "A.TXT", Mode::Input);
  Files::Open(2, "OUT.TXT", Mode::Output);
  EXPECT_EQ(Files::FreeHandle(), 3);
  Files::Open(4, "A.TXT", Mode::Lock);
  for (const int handle : {-1, 0, 1, 2, 4, 7, 255, 256}) {
    SCOPED_TRACE(handle);
    const bool reads = handle == 1 || handle == 255, writes = handle == 2;
    const std::pair<std::function<void()>, bool> calls[] = {{[=] { Files::AtEnd(handle); }, reads},
                                                            {[=] { EXPECT_EQ(Files::ReadLine(handle), "a1"); }, reads},
                                                            {[=] { Files::Write(handle, "x"); }, writes},
                                                            {[=] { Files::WriteLine(handle, "x"); }, writes},
                                                            {[=] { Files::Flush(handle); }, writes},
                                                            {[=] { Files::Open(handle, "A.TXT", Mode::Input); }, handle == 7}};
    for (const auto& [call, may] : calls) EXPECT_EQ(ErrorOf(call), may ? 0 : kBadFileNumber);
    EXPECT_EQ(Files::IsOpen(handle), handle > 0 && handle < 256);
  }
  for (const int handle : {-1, 0, 1, 1, 256}) Files::Close(handle);
  EXPECT_EQ(Files::FreeHandle(), 1);
  Files::CloseAll();
  for (const int handle : {1, 2, 4, 7, 255}) EXPECT_FALSE(Files::IsOpen(handle)) << handle;
  EXPECT_EQ(TestFiles::Get("OUT.TXT"), "xx\r\n");
}

// The folder that each act starts from: two files are another program's, the last three our own.
void Furnish() {
  TestFiles::Finish();
  TestFiles::Start();
  TestFiles::MakeFolder("FOLDER");
  for (const char* name : {"A.TXT", "RO", "HELD", "LOCKED", "READ", "LOCK"}) TestFiles::Put(name, name);
  TestFiles::SetReadOnly("RO", true);
  TestFiles::HoldByOther("HELD", true);
  TestFiles::HoldByOther("LOCKED", false);
  Files::Open(1, "READ", Mode::Input);
  Files::Open(2, "LOCK", Mode::Lock);
  Files::Open(3, "WRITTEN", Mode::Output);
}

// Every file of the folder and what is in it.
std::string Contents() {
  std::string contents;
  for (const std::string& name : TestFiles::List()) contents += name + "<" + TestFiles::Get(name).value_or("?") + "> ";
  return contents;
}

TEST_F(FilesTest, FailuresHaveTheirNumberAndChangeNothing) {
  const std::function<void(const std::string&)> verbs[] = {[](auto& name) { Files::Open(9, name, Mode::Input); },
                                                           Files::ReadAll,
                                                           [](auto& name) { Files::Open(9, name, Mode::Output); },
                                                           [](auto& name) { Files::Open(9, name, Mode::Lock); },
                                                           Files::Erase,
                                                           [](auto& name) { Files::Rename("A.TXT", name); },
                                                           [](auto& name) { Files::Rename(name, "NEW.TXT"); },
                                                           [](auto& name) { Files::Replace("A.TXT", name); }};
  constexpr int kUntried = -1;  // what is in use is tried to be renamed for seconds: once is enough
  const struct {
    std::vector<std::string> Names;
    bool Exist;
    int Numbers[std::size(verbs)];  // of the verbs; 0 where there is no failure
  } rows[] = {
      {{"A.TXT", "a.txt"}, true, {0, 0, 0, 0, 0, 0, 0, 0}},
      {{"RO"}, true, {0, 0, 75, 75, 75, 58, 0, 75}},
      {{"NONE"}, false, {53, 53, 0, 53, 53, 0, 53, 0}},
      {{"NONE\\A.TXT", "RO\\A.TXT"}, false, {76, 76, 76, 76, 76, 76, 76, 76}},
      {{"FOLDER"}, false, {75, 75, 75, 75, 75, 58, 75, 75}},
      {{"", " "}, false, {75, 75, 75, 75, 75, 75, 75, 75}},
      {{"A*", "A?", "A|B", "A<B", "A>B", "A\"B", "NUL", "A.TXT\0X"s}, false, {52, 52, 52, 52, 52, 52, 52, 52}},
      {{"HELD"}, true, {70, 70, 70, 70, 70, 58, kUntried, kUntried}},
      {{"LOCKED", "WRITTEN"}, true, {0, 0, 70, 70, 70, 58, kUntried, kUntried}},
      {{"READ"}, true, {0, 0, 0, 0, 70, 58, kUntried, kUntried}},
      {{"LOCK"}, true, {0, 0, 70, 70, 70, 58, 70, kUntried}},
  };
  Furnish();
  const std::string before = Contents();
  for (const auto& row : rows) {
    for (const std::string& name : row.Names) {
      for (std::size_t verb = 0; verb < std::size(verbs); ++verb) {
        if (row.Numbers[verb] == kUntried) continue;
        EXPECT_EQ(ErrorOf([&] { verbs[verb](name); }), row.Numbers[verb]) << name << ", verb " << verb;
        const bool done = row.Numbers[verb] == 0;
        EXPECT_TRUE(done || Contents() == before) << name << ", verb " << verb;
        EXPECT_EQ(Files::Exists(name), done ? verb != 4 && verb != 6 : row.Exist) << name << ", verb " << verb;
        if (done) Furnish();
      }
    }
  }
  // Closed and released, files are anybody's again.
  Files::CloseAll();
  TestFiles::ReleaseByOther();
  for (const std::string& name : TestFiles::List()) {
    EXPECT_EQ(ErrorOf([&] { Files::Erase(name); }), name == "RO" ? kPathFileAccess : 0) << name;
  }
}

TEST_F(FilesTest, NamesAreTakenAsTheSystemTakesThem) {
  TestFiles::MakeFolder("SUB");
  TestFiles::Put("Mixed.Txt", "here");
  Files::Rename("MIXED.TXT", "Other.txt");
  Files::Rename("OTHER.TXT", "Mixed.Txt");
  EXPECT_EQ(TestFiles::List(), std::vector<std::string>{"Mixed.Txt"});
  Files::Rename("MIXED.TXT", "SUB\\\\File.Txt");
  for (const std::string& name :
       {InFolder("SUB\\File.Txt"), InFolder("\\SUB\\\\file.txt"), InFolder("SUB\\File.Txt").substr(2), "SUB\\FILE.TXT"s,
        ".\\sub\\.\\File.Txt"s, "SUB\\..\\SUB/File.Txt"s, "SUB\\File.Txt "s, "SUB\\File.Txt."s}) {
    EXPECT_TRUE(Files::Exists(name)) << name;
    EXPECT_EQ(LinesOf(name), "here|") << name;
  }
  const auto time = Files::ChangedAt("SUB\\File.Txt");
  TestFiles::Put("Later.Txt", "");
  Files::Replace("SUB\\File.Txt", "Later.Txt");
  EXPECT_TRUE(time > 0 && Files::ChangedAt("Later.Txt") == time);
  for (const char* name : {"SUB\\", "C:\\"}) EXPECT_FALSE(Files::Exists(name)) << name;
  Files::Erase("Later.Txt");
  // No two characters are alike, and full names may be long.
  std::vector<std::string> names = {"&#257;", "&#38;#937;", "&#8734;", "&#937;", "8", "O", "a"};
  names.push_back("a" + Xs(240) + "&#128512;");
  for (const std::string& name : names) {
    TestFiles::Put(name, "");
    Files::Open(1, name, Mode::Output);
    Files::Write(1, name);
    Files::Close(1);
  }
  for (const std::string& name : names) {
    EXPECT_EQ(LinesOf(name), name + "|");
    Files::Rename(name, "OTHER");
    Files::Replace("OTHER", name);
    EXPECT_TRUE(Files::Exists(name) && Files::ReadAll(name) == name) << name;
  }
  EXPECT_EQ(TestFiles::List(), names);
}

}  // namespace
