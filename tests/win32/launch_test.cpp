// Starting a program that is registered in the real registry for a file type of the test's own.
#include "shell/launch.h"

#include <chrono>
#include <thread>

#include "platform/files.h"
#include "platform/program.h"
#include "support/fresh_test.h"
#include "support/registry.h"

namespace {

const std::string kType = "Software\\Classes\\.filertest";
const std::string kClass = "Software\\Classes\\filertestpage";

class RealLaunchTest : public FreshTest {
 protected:
  void TearDown() override {
    TestRegistry::Remove(kType);
    TestRegistry::Remove(kClass);
    FreshTest::TearDown();
  }
};

TEST_F(RealLaunchTest, ARegisteredProgramGetsTheDocument) {
  TestRegistry::Put(kType, "", "filertestpage");
  TestRegistry::Put(kClass + "\\shell\\open\\command", "",
                    "\"" + ProgramFolder() + "\\second_program.exe\" -option \"%1\"", kRegistryExpandableText);
  std::string program = ".filertest";
  std::string argument = "a page.htm";
  EXPECT_EQ(APISubs::LaunchProgram(program, argument), 0);
  // The program leaves what it was told in the current folder, which is the test's.
  for (int tries = 0; tries < 1000 && !Files::Exists("STARTED.TXT"); ++tries) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  EXPECT_EQ(TestFiles::Get("STARTED.TXT"), "\"" + InFolder("a page.htm") + "\"");
}

}  // namespace
