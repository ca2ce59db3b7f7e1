// Runs the tests; with --update, stories and golden files are written as they are seen.
#include <gtest/gtest.h>

#include <string_view>

#include "support/update.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  UpdatesGolden = argc > 1 && std::string_view(argv[1]) == "--update";
  return RUN_ALL_TESTS();
}
