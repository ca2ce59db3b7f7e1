// Names, programs that are started, and the registry, on the real system.
#include "platform/locale.h"
#include "platform/process.h"
#include "platform/program.h"
#include "platform/registry.h"
#include "platform/win32/internals.h"
#include "platform/win32/wide.h"
#include "support/fresh_test.h"
// After windows.h, on which it builds.
#include <sddl.h>

namespace {

class RealSystemTest : public FreshTest {};

TEST_F(RealSystemTest, EnvironmentAndCommandLineHoldEveryCharacter) {
  const std::string odd = "&#937; &#8734; &#257; &#26085; &#128512; &#38;#937;";
  SetEnvironmentVariableW(Wide("FILER_" + odd).c_str(), Wide(odd).c_str());
  EXPECT_EQ(EnvironmentValue("FILER_" + odd), odd);
  TestFiles::MakeFolder(odd);
  SetCurrentDirectoryW(Wide(odd).c_str());
  EXPECT_EQ(CurrentFolder(), InFolder(odd));
  SetCurrentDirectoryW(L"..");
}

TEST_F(RealSystemTest, AStartedProgramGetsItsArguments) {
  TestFiles::Put("my &#937; program.bat", "@echo %*> STARTED.TXT\r\n");
  const long id = StartProgram("\"" + InFolder("my &#937; program.bat") + "\" \"C:\\a page.htm\" more");
  // Once it has ended, nothing of it is left in the folder; it may have ended already.
  if (HANDLE program = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(id))) {
    EXPECT_EQ(WaitForSingleObject(program, 600000), WAIT_OBJECT_0);
    CloseHandle(program);
  }
  EXPECT_EQ(TestFiles::Get("STARTED.TXT"), "\"C:\\a page.htm\" more\r\n");
}

TEST_F(RealSystemTest, RegistryKeysOpenByPathAlsoForReadingOnly) {
  const std::string class_key = "Software\\Classes\\.filertest", key = class_key + "\\shell\\open";
  HKEY made = nullptr;
  RegCreateKeyA(HKEY_CURRENT_USER, key.c_str(), &made);
  const std::tuple<std::string, DWORD, std::string> rows[] = {
      {"", REG_SZ, "caf\xE9"}, {"Folder", REG_EXPAND_SZ, "%windir%"}, {"number", REG_DWORD, "abc"}, {"No", REG_SZ, ""}};
  for (const auto& [name, type, text] : rows) {
    RegSetKeyValueA(made, nullptr, name.c_str(), type, text.c_str(), static_cast<DWORD>(text.size() + 1));
  }
  PSECURITY_DESCRIPTOR may_read_and_delete = nullptr;
  ConvertStringSecurityDescriptorToSecurityDescriptorA("D:P(A;;KRWDSD;;;WD)", SDDL_REVISION_1, &may_read_and_delete,
                                                       nullptr);
  RegSetKeySecurity(made, DACL_SECURITY_INFORMATION, may_read_and_delete);
  LocalFree(may_read_and_delete);
  RegCloseKey(made);
  const RegistryKey open(RegistryRoot::CurrentUser, UpperCase(key));
  for (const auto& [name, type, text] : rows) {
    const RegistryValue value = open.Query(UpperCase(name)).value_or(RegistryValue());
    EXPECT_TRUE(value.Type == type && value.Size == text.size() + 1) << name;
    EXPECT_EQ(open.ReadText(name, value.Size), text) << name;
    EXPECT_EQ(open.ReadText(name, value.Size - 1), std::nullopt) << name;
  }
  EXPECT_FALSE(open.Query("missing") || open.ReadText("missing", 100));
  const RegistryKey other(RegistryRoot::LocalMachine, key);
  EXPECT_FALSE(other.IsOpen() || other.Query("") || other.ReadText("", 100));
  RegDeleteTreeA(HKEY_CURRENT_USER, class_key.c_str());
}

}  // namespace
