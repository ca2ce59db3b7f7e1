// What the tests of report writers share: see reports_test.h.
#include "reports/reports_test.h"

#include <fstream>
#include <iterator>

#include "document/document.h"
#include "document/file_handles.h"
#include "document/reader.h"
#include "platform/files.h"
#include "reports/print_file.h"

std::string ReportsTest::SourceFile(const std::string& name) {
  std::ifstream file(FILER_SOURCE_DIR "/" + name, std::ios::binary);
  EXPECT_TRUE(file) << name;
  return {std::istreambuf_iterator<char>(file), {}};
}

void ReportsTest::LoadSource(const std::string& name) {
  MakeNew();  // the file that was loaded before is locked
  TheDocument = {};
  TestFiles::Put("Source.FIL", SourceFile(name));
  ASSERT_TRUE(LoadFilerFile(InFolder("Source.FIL")));
}

std::string ReportsTest::Written(const std::function<void()>& write) {
  Files::Open(kPrintFileHandle, InFolder("Report.PRN"), Files::Mode::Output);
  EXPECT_TRUE(WritePrintFile(write));
  EXPECT_FALSE(Files::IsOpen(kPrintFileHandle));
  return TestFiles::Get("Report.PRN").value_or("no file");
}

void ReportsTest::ExpectGolden(const std::string& name, const std::function<void()>& write) {
  EXPECT_EQ(Written(write), SourceFile("tests/reports/golden/" + name)) << name;
}
