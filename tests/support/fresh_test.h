// A test that starts as the program does: an empty folder, no document, nothing remembered, and a person
// ready to act.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "support/files.h"
#include "support/properties.h"
#include "support/user.h"

class FreshTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
  static void StartFresh();  // as a new process of the program

  User user;
};

// The full name of a file of the test's folder.
std::string InFolder(const std::string& name);

// Lines as a file holds them, each ended by CR LF.
std::string Lines(const std::vector<std::string>& lines);

// The bytes of a file that lies with the program's sources.
std::string SourceFile(const std::string& name);
