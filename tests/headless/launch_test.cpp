// Starting programs by path and by file type: what becomes of registered commands, and what is said when it fails.
#include "shell/launch.h"

#include "platform/headless/machine.h"
#include "platform/program.h"
#include "support/fresh_test.h"

namespace {

const std::string kType = "SOFTWARE\\Classes\\.HTM";
const std::string kCommand = "SOFTWARE\\Classes\\page\\shell\\open\\command";
constexpr RegistryRoot kUser = RegistryRoot::CurrentUser;
constexpr RegistryRoot kMachine = RegistryRoot::LocalMachine;

class LaunchTest : public FreshTest {
 protected:
  void SetUp() override {
    FreshTest::SetUp();
    for (const char* folder : {"My Web", "100%"}) {
      TestFiles::MakeFolder(folder);
      TestFiles::Put(std::string(folder) + "\\browse.exe", "");
    }
    TestFiles::Put("browse.exe", "");
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

  void Register(const std::string& command) { Machine::SetRegistryValue(kMachine, kCommand, "", command, 2); }

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

  void Warns(const std::string& text) { user.Reads(text, Icon::Exclamation); }
  void Stops(const std::string& text) { user.Reads(text, Icon::Critical); }
  void Ends(const std::string& text) {
    Stops(text);
    EXPECT_FALSE(APISubs::IsRegistered(".HTM"));
    EXPECT_THROW(LaunchPage(), ProgramEnded);
  }
};

TEST_F(LaunchTest, TakesOnlyTheProgramOfARegisteredCommand) {
  const std::pair<const char*, const char*> rows[] = {
      {"\"C:\\TEST\\My Web\\browse.exe\" -url \"%1\"", "\"C:\\TEST\\My Web\\browse.exe\""},
      {"C:\\TEST\\browse.exe -url %1", "C:\\TEST\\browse.exe"},
      {"  C:\\TEST\\browse.exe  ", "C:\\TEST\\browse.exe"},
      {"\"C:\\TEST\\browse.exe", "C:\\TEST\\browse.exe"},
      {"%Drive%\\TEST\\browse.exe %1", "C:\\TEST\\browse.exe"},
      {"\"%drive%%WEB%\\browse.exe\" \"%1\"", "\"C:\\TEST\\My Web\\browse.exe\""},
      {"%Odd%\\browse.exe", "C:\\TEST\\100%\\browse.exe"},
  };
  for (const auto& [command, program] : rows) {
    Register(command);
    EXPECT_EQ(LaunchPage(), std::string("0 ") + program + " C:\\H\\page.htm") << command;
  }
  // A start that gives no process is one nevertheless.
  Machine::FailStart(0);
  EXPECT_EQ(LaunchPage(), "0");
}

TEST_F(LaunchTest, CompletesAndQuotesTheArgument) {
  const std::pair<const char*, const char*> rows[] = {
      {"C:\\H\\a b.htm", " \"C:\\H\\a b.htm\""},
      {"\"C:\\H\\a b.htm\" c", " \"C:\\H\\a b.htm\" c"},
      {"page.htm", " C:\\TEST\\page.htm"},
      {"a page.htm", " \"C:\\TEST\\a page.htm\""},
      {"", ""},
  };
  for (const auto& [argument, behind] : rows) {
    EXPECT_EQ(Launch("C:\\TEST\\browse.exe", argument), std::string("0 C:\\TEST\\browse.exe") + behind);
  }
  std::string program = "C:\\TEST\\My Web\\browse.exe";
  std::string argument = "a page.htm";
  EXPECT_EQ(APISubs::LaunchProgram(program, argument), 0);
  EXPECT_EQ(program, "\"C:\\TEST\\My Web\\browse.exe\"");
  EXPECT_EQ(argument, "\"C:\\TEST\\a page.htm\"");
}

TEST_F(LaunchTest, SaysWhyAProgramCannotBeStarted) {
  const struct {
    const char* Command;
    const char* Fault;
  } rows[] = {{"C:\\50%\\browse.exe %1", "invalid program name <<C:\\50%\\browse.exe>>"},
              {"%Drive%\\%\\browse.exe", "invalid program name <<C:\\%\\browse.exe>>"},
              {"%Nowhere%\\browse.exe", "undefined symbolic name <<Nowhere>>"},
              {"C:\\%%\\browse.exe", "undefined symbolic name <<>>"}};
  for (const auto& row : rows) {
    Register(row.Command);
    Warns(std::string("Error due to ") + row.Fault + ". Check your registry settings for .HTM<<" + row.Command + ">>.");
    EXPECT_EQ(LaunchPage(), "-2");
  }
  // Nothing was looked up for a program that was named itself.
  Warns("Error due to invalid program name <<C:\\50%\\browse.exe>>. ");
  EXPECT_EQ(Launch("C:\\50%\\browse.exe", ""), "-2");
  Warns("Error due to undefined symbolic name <<Nowhere>>. ");
  EXPECT_EQ(Launch("%Nowhere%", ""), "-2");

  Warns(
      "Failed to start program with command line: <<\"C:\\No Web\\none.exe\" C:\\H\\page.htm>> because of: Error # 53: "
      "File not found");
  EXPECT_EQ(Launch("C:\\No Web\\none.exe", "C:\\H\\page.htm"), "-3");
}

TEST_F(LaunchTest, FindsWhatIsRegisteredForTheUserFirst) {
  Register("C:\\TEST\\none.exe");
  Machine::SetRegistryValue(kUser, kCommand, "", "C:\\TEST\\browse.exe");
  // The user's key of the type has no default value, as on today's machines: the machine's has it.
  Machine::SetRegistryValue(kUser, kType, "Content Type", "text/html");
  EXPECT_EQ(LaunchPage(), "0 C:\\TEST\\browse.exe C:\\H\\page.htm");

  for (const char* nothing : {"", "   "}) {
    Machine::SetRegistryValue(kUser, kCommand, "", nothing);
    EXPECT_EQ(LaunchPage(), "-1");
  }
  Machine::SetRegistryValue(kUser, kType, "", "");
  EXPECT_EQ(LaunchPage(), "-1");
}

TEST_F(LaunchTest, SaysWhichKeyIsMissing) {
  const std::string hint =
      ">>. You may typed an invalid filetype, or you do not have an appropriate viewer program registered on your "
      "computer.";
  Stops("Failed to open registry key <<HKEY_LOCAL_MACHINE\\" + kCommand + hint);
  EXPECT_EQ(LaunchPage(), "-1");
  Stops("Failed to open registry key <<HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.XYZ" + hint);
  EXPECT_EQ(Launch(".XYZ", "C:\\H\\page.htm"), "-1");
}

TEST_F(LaunchTest, EndsTheProgramForAValueThatIsNoText) {
  Register("C:\\TEST\\browse.exe");
  Machine::FailRegistryReads(true);
  Ends("Failed to return a value for:  Program Exiting.");
  Machine::FailRegistryReads(false);
  Machine::SetRegistryValue(kUser, kType, "", "page", 4);
  Ends("Registry value for:  is not text.  Program exiting.");
  for (const RegistryRoot root : {kUser, kMachine}) Machine::RemoveRegistryKey(root, kType);
  Machine::SetRegistryValue(kUser, kType, "Content Type", "text/html");
  Ends("Failed to find registry value for:  Program exiting.");
  Stops("Failed to find registry value for: Icon Program exiting.");
  EXPECT_THROW(APISubs::ReadRegistryText(kType, "Icon"), ProgramEnded);
  EXPECT_EQ(APISubs::ReadRegistryText(kType, "content type"), "text/html");
}

}  // namespace
