// The fresh start of a test: see fresh_test.h.
#include "support/fresh_test.h"

#include <fstream>
#include <iterator>

#include "document/document.h"
#include "document/file_lock.h"
#include "document/history.h"
#include "document/reader.h"
#include "document/segments.h"
#include "mainwindow/command_line.h"
#include "mainwindow/settings.h"
#include "shell/messages.h"

void FreshTest::SetUp() {
  TestFiles::Start();
  StartFresh();
}

void FreshTest::StartFresh() {
  ReleaseFileLock();
  TheDocument = {};
  TheHistory.Clear();
  Global::ProgramTitle = "Larkspur Filer";
  TheRecentFiles = {};
  TheStart = {};
  StartSegments(0);
}

void FreshTest::TearDown() {
  ReleaseFileLock();
  TestFiles::Finish();
}

bool FreshTest::Loads(std::string_view file) {
  MakeNew();  // gives up the lock
  TestFiles::Put("Loaded.FIL", file);
  return LoadFilerFile("Loaded.FIL");
}

void FreshTest::Load(const std::string& lines) {
  MakeNew();
  TheDocument = {};
  EXPECT_TRUE(Loads(DataFile(lines))) << lines;
}

std::string InFolder(const std::string& name) { return TestFiles::Folder() + "\\" + name; }

std::string DataFile(const std::string& lines) {
  const std::string file =
      "LARKSPUR V5.0 FILER DATA/" + lines + (lines.find("[END]") == std::string::npos ? "/[END]" : "");
  return Replaced(Lines(Replaced(file, "\n", "/")), "~\r\n", "~/");
}

FieldSlots SlotsOf(const std::string& texts) {
  FieldSlots slots;
  std::size_t at = 0;
  for (const std::string& text : Parts(texts, "|")) slots.at(at++).Text = text;
  return slots;
}

std::string SourceFile(const std::string& name) {
  std::ifstream file(FILER_SOURCE_DIR "/" + name, std::ios::binary);
  EXPECT_TRUE(file) << name;
  return {std::istreambuf_iterator<char>(file), {}};
}
