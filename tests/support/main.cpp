// Runs the tests; with --update, stories write what they see into their files.
#include <gtest/gtest.h>

#include <string_view>

#include "scenarios/story.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  RegisterStories(argc > 1 && std::string_view(argv[1]) == "--update");
  return RUN_ALL_TESTS();
}
