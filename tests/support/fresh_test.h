// A test that starts as the program does: an empty folder, no document, nothing remembered, and a person
// ready to act.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "support/files.h"
#include "support/properties.h"
#include "support/rows.h"
#include "support/user.h"

class FreshTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
  static void StartFresh();  // as a new process of the program

  // Loads a file of these bytes behind the document that is there; false when it was not loaded to its end.
  static bool Loads(std::string_view file);
  // Has these lines of a data file as the document, see DataFile, and no other before it.
  static void Load(const std::string& lines);

  User user;
};

// The full name of a file of the test's folder.
std::string InFolder(const std::string& name);

// The text of a file whose lines end where "/" stands.
inline std::string Lines(const std::string& text) { return Replaced(text, "/", "\r\n"); }

// A data file of these lines, parted by "/" or line ends; "~/" parts none. "[END]" is added where it does not stand.
std::string DataFile(const std::string& lines);

// The slots of these texts, parted by "|".
FieldSlots SlotsOf(const std::string& texts);

// The bytes of a file that lies with the program's sources.
std::string SourceFile(const std::string& name);
