// Report writers under test: documents to report on, and the bytes that they write.
#pragma once

#include <functional>
#include <string>

#include "support/fresh_test.h"

class ReportsTest : public FreshTest {
 protected:
  // The bytes of a file that lies with the program's sources.
  static std::string SourceFile(const std::string& name);
  // Loads a data file from there.
  static void LoadSource(const std::string& name);

  // What a writer writes into the print file.
  static std::string Written(const std::function<void()>& write);

  // Compares that with the golden file of the name.
  static void ExpectGolden(const std::string& name, const std::function<void()>& write);
};
