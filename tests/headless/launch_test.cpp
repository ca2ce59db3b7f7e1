// Starting programs by path and by file type: what becomes of registered commands, and what is said when it fails.
#include "shell/launch.h"

#include "platform/headless/machine.h"
#include "platform/program.h"
#include "support/fresh_test.h"
#include "support/said.h"

namespace {

const std::string kType = "SOFTWARE\\Classes\\.HTM";
const std::string kCommand = "SOFTWARE\\Classes\\page\\shell\\open\\command";
constexpr RegistryRoot kUser = RegistryRoot::CurrentUser;
constexpr RegistryRoot kMachine = RegistryRoot::LocalMachine;

class LaunchTest : public FreshTest {
 protected:
  void SetUp() override {
    FreshTest::SetUp();
    for (const char* folder : {"My Web", "100%"}) TestFiles::MakeFolder(folder);
    for (const char* name : {"browse.exe", "My Web\\browse.exe", "100%\\browse.exe"}) TestFiles::Put(name, "");
    Machine::SetRegistryValue(kMachine, kType, "", "page");
    Machine::SetEnvironment("Drive", "C:");
    Machine::SetEnvironment("Web", "\\TEST\\My Web");
    Machine::SetEnvironment("Odd", "C:\\TEST\\100%");
    Machine::StartedPrograms();
  }
  void TearDown() override {
    for (const RegistryRoot root : {kUser, kMachine}) Machine::RemoveRegistryKey(root, "SOFTWARE");
    FreshTest::TearDown();
  }

  // The result, what was started and what was said.
  std::string Launch(std::string program, std::string argument) {
    std::string told = "ends";
    try {
      told = std::to_string(APISubs::LaunchProgram(program, argument));
    } catch (const ProgramEnded&) {
      // Why was said.
    }
    for (const std::string& line : Machine::StartedPrograms()) told += " " + line;
    return told + said.Take();
  }
  std::string LaunchPage() {
    const bool registered = APISubs::IsRegistered(".HTM");
    const std::string told = Launch(".HTM", "C:\\H\\page.htm");
    EXPECT_EQ(registered, !told.starts_with("-1") && !told.starts_with("ends"));
    return told;
  }

  Said said;
};

TEST_F(LaunchTest, TakesOnlyTheProgramOfARegisteredCommand) {
  ExpectRows(R"T("C:\TEST\My Web\browse.exe" -url "%1" => 0 "C:\TEST\My Web\browse.exe" C:\H\page.htm
%Odd%\browse.exe => 0 C:\TEST\100%\browse.exe C:\H\page.htm | C:\TEST\browse.exe -url %1 => 0 C:\TEST\browse.exe C:\H\page.htm
  C:\TEST\browse.exe   => 0 C:\TEST\browse.exe C:\H\page.htm | "C:\TEST\browse.exe => 0 C:\TEST\browse.exe C:\H\page.htm
"%drive%%WEB%\browse.exe" "%1" => 0 "C:\TEST\My Web\browse.exe" C:\H\page.htm
%Drive%\TEST\browse.exe %1 => 0 C:\TEST\browse.exe C:\H\page.htm
C:\50%\browse.exe %1 => -2!Error due to invalid program name <<C:\50%\browse.exe>>. Check your registry settings for .HTM<<C:\50%\browse.exe %1>>.
%Drive%\%\browse.exe => -2!Error due to invalid program name <<C:\%\browse.exe>>. Check your registry settings for .HTM<<%Drive%\%\browse.exe>>.
C:\%%\browse.exe => -2!Error due to undefined symbolic name <<>>. Check your registry settings for .HTM<<C:\%%\browse.exe>>.
%Nowhere%\browse.exe => -2!Error due to undefined symbolic name <<Nowhere>>. Check your registry settings for .HTM<<%Nowhere%\browse.exe>>.)T",
             [this](const std::string& command) {
               Machine::SetRegistryValue(kMachine, kCommand, "", command, 2);
               return LaunchPage();
             });
}

TEST_F(LaunchTest, CompletesAndQuotesWhatItIsGiven) {
  ExpectRows(R"T(C:\H\a b.htm =>  "C:\H\a b.htm" | page.htm =>  C:\TEST\page.htm | "C:\H\a b.htm" c =>  "C:\H\a b.htm" c
a page.htm =>  "C:\TEST\a page.htm" |  => )T",
             [this](const std::string& argument) { return Launch("C:\\TEST\\browse.exe", argument).substr(20); });
  // Nothing is looked up for a program that is named itself.
  EXPECT_EQ(Launch("%Nowhere%", ""), "-2!Error due to undefined symbolic name <<Nowhere>>. ");
  Machine::FailStart(0);  // a start that gives no process is one nevertheless
  EXPECT_EQ(Launch("C:\\TEST\\browse.exe", ""), "0");
  Machine::FailStart(std::nullopt);
  std::string program = "C:\\TEST\\My Web\\browse.exe", argument = "a page.htm";
  APISubs::LaunchProgram(program, argument);
  EXPECT_EQ(program + argument, R"("C:\TEST\My Web\browse.exe""C:\TEST\a page.htm")");
}

// What is said when nothing is, the help's stories show.
TEST_F(LaunchTest, FindsWhatIsRegisteredForTheUserFirst) {
  Machine::SetRegistryValue(kMachine, kCommand, "", "C:\\TEST\\none.exe");
  Machine::SetRegistryValue(kUser, kCommand, "", "C:\\TEST\\browse.exe");
  // The user's key of the type has no default value, as on today's machines: the machine's has it.
  Machine::SetRegistryValue(kUser, kType, "Content Type", "text/html");
  EXPECT_EQ(LaunchPage(), "0 C:\\TEST\\browse.exe C:\\H\\page.htm");
  EXPECT_EQ(APISubs::ReadRegistryText(kType, "content type"), "text/html");
  Machine::FailRegistryReads(true);
  EXPECT_EQ(LaunchPage(), "endsxFailed to return a value for:  Program Exiting.");
  Machine::FailRegistryReads(false);
  for (const auto& [key, text] : {std::pair(kCommand, "   "), {kType, ""}}) {
    Machine::SetRegistryValue(kUser, key, "", text);
    EXPECT_EQ(LaunchPage(), "-1");
  }
  Machine::SetRegistryValue(kUser, kType, "", "page", 4);
  EXPECT_EQ(LaunchPage(), "endsxRegistry value for:  is not text.  Program exiting.");
}

}  // namespace
