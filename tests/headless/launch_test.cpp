// Starting programs by path and by file type: what becomes of registered commands, and what is said when it fails.
#include "shell/launch.h"

#include "platform/headless/machine.h"
#include "platform/program.h"
#include "support/fresh_test.h"
#include "support/rows.h"

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
    Machine::FailRegistryReads(false);
    Machine::FailStart(std::nullopt);
    for (const char* name : {"Drive", "Web", "Odd"}) Machine::SetEnvironment(name, std::nullopt);
    FreshTest::TearDown();
  }

  // The result, and behind it what was started.
  std::string Launch(std::string program, std::string argument) {
    std::string outcome = std::to_string(APISubs::LaunchProgram(program, argument));
    for (const std::string& line : Machine::StartedPrograms()) outcome += " " + line;
    return outcome;
  }
  std::string LaunchPage() {
    const bool registered = APISubs::IsRegistered(".HTM");
    const std::string outcome = Launch(".HTM", "C:\\H\\page.htm");
    EXPECT_EQ(registered, outcome != "-1");
    return outcome;
  }
  void Ends(const std::string& text) {
    user.Reads(text, Icon::Critical);
    EXPECT_FALSE(APISubs::IsRegistered(".HTM"));
    EXPECT_THROW(LaunchPage(), ProgramEnded);
  }
};

// What is registered, and what is started with the page, or wrong with it.
TEST_F(LaunchTest, TakesOnlyTheProgramOfARegisteredCommand) {
  for (const auto& [command, outcome] : Rows(R"T(
"C:\TEST\My Web\browse.exe" -url "%1" => "C:\TEST\My Web\browse.exe" | %Odd%\browse.exe => C:\TEST\100%\browse.exe
C:\TEST\browse.exe -url %1 => C:\TEST\browse.exe |   C:\TEST\browse.exe   => C:\TEST\browse.exe
"C:\TEST\browse.exe => C:\TEST\browse.exe | "%drive%%WEB%\browse.exe" "%1" => "C:\TEST\My Web\browse.exe"
%Drive%\TEST\browse.exe %1 => C:\TEST\browse.exe | C:\50%\browse.exe %1 => invalid program name <<C:\50%\browse.exe>>
%Drive%\%\browse.exe => invalid program name <<C:\%\browse.exe>> | C:\%%\browse.exe => undefined symbolic name <<>>
%Nowhere%\browse.exe => undefined symbolic name <<Nowhere>>)T")) {
    Machine::SetRegistryValue(kMachine, kCommand, "", command, 2);
    const bool fails = outcome.ends_with('>');
    const std::string fault = "Error due to " + outcome + ". Check your registry settings for .HTM<<" + command + ">>.";
    if (fails) user.Reads(fault, Icon::Exclamation);
    EXPECT_EQ(LaunchPage(), fails ? "-2" : "0 " + outcome + " C:\\H\\page.htm") << command;
  }
}

TEST_F(LaunchTest, CompletesAndQuotesWhatItIsGiven) {
  for (const auto& [argument, behind] : Rows(R"T(C:\H\a b.htm =>  "C:\H\a b.htm" | page.htm =>  C:\TEST\page.htm
"C:\H\a b.htm" c =>  "C:\H\a b.htm" c | a page.htm =>  "C:\TEST\a page.htm" |  => )T")) {
    EXPECT_EQ(Launch("C:\\TEST\\browse.exe", argument), "0 C:\\TEST\\browse.exe" + behind);
  }
  // Nothing is looked up for a program that is named itself.
  user.Reads("Error due to undefined symbolic name <<Nowhere>>. ", Icon::Exclamation);
  EXPECT_EQ(Launch("%Nowhere%", ""), "-2");
  user.Reads(
      "Failed to start program with command line: <<\"C:\\No Web\\none.exe\" C:\\H\\page.htm>> because of: Error # 53: "
      "File not found",
      Icon::Exclamation);
  EXPECT_EQ(Launch("C:\\No Web\\none.exe", "C:\\H\\page.htm"), "-3");
  Machine::FailStart(0);  // a start that gives no process is one nevertheless
  EXPECT_EQ(Launch("C:\\TEST\\browse.exe", ""), "0");
  std::string program = "C:\\TEST\\My Web\\browse.exe", argument = "a page.htm";
  EXPECT_EQ(APISubs::LaunchProgram(program, argument), 0);
  EXPECT_EQ(program + argument, R"("C:\TEST\My Web\browse.exe""C:\TEST\a page.htm")");
}

TEST_F(LaunchTest, FindsWhatIsRegisteredForTheUserFirst) {
  const std::string hint =
      ">>. You may typed an invalid filetype, or you do not have an appropriate viewer program registered on your "
      "computer.";
  for (const auto& [type, key] : {std::pair{".HTM", kCommand}, {".XYZ", "SOFTWARE\\Classes\\.XYZ"}}) {
    user.Reads("Failed to open registry key <<HKEY_LOCAL_MACHINE\\" + key + hint, Icon::Critical);
    EXPECT_EQ(Launch(type, "C:\\H\\page.htm"), "-1");
  }
  Machine::SetRegistryValue(kMachine, kCommand, "", "C:\\TEST\\none.exe");
  Machine::SetRegistryValue(kUser, kCommand, "", "C:\\TEST\\browse.exe");
  // The user's key of the type has no default value, as on today's machines: the machine's has it.
  Machine::SetRegistryValue(kUser, kType, "Content Type", "text/html");
  EXPECT_EQ(LaunchPage(), "0 C:\\TEST\\browse.exe C:\\H\\page.htm");
  Machine::FailRegistryReads(true);
  Ends("Failed to return a value for:  Program Exiting.");
  Machine::FailRegistryReads(false);
  Machine::SetRegistryValue(kUser, kCommand, "", "   ");
  EXPECT_EQ(LaunchPage(), "-1");
  Machine::SetRegistryValue(kUser, kType, "", "");
  EXPECT_EQ(LaunchPage(), "-1");
  Machine::SetRegistryValue(kUser, kType, "", "page", 4);
  Ends("Registry value for:  is not text.  Program exiting.");
  for (const RegistryRoot root : {kUser, kMachine}) Machine::RemoveRegistryKey(root, kType);
  Machine::SetRegistryValue(kUser, kType, "Content Type", "text/html");
  Ends("Failed to find registry value for:  Program exiting.");
  EXPECT_EQ(APISubs::ReadRegistryText(kType, "content type"), "text/html");
}

}  // namespace
