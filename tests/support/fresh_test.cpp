// The fresh start of a test: see fresh_test.h.
#include "support/fresh_test.h"

#include <fstream>
#include <iterator>

#include "document/document.h"
#include "document/file_lock.h"
#include "document/history.h"
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

std::string InFolder(const std::string& name) { return TestFiles::Folder() + "\\" + name; }

std::string Lines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

std::string SourceFile(const std::string& name) {
  std::ifstream file(FILER_SOURCE_DIR "/" + name, std::ios::binary);
  EXPECT_TRUE(file) << name;
  return {std::istreambuf_iterator<char>(file), {}};
}
