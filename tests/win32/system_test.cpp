// Files between threads and programs that are started, on the real system.
#include <thread>

#include "contract/error_of.h"
#include "platform/files.h"
#include "platform/process.h"
#include "platform/program.h"
#include "platform/win32/internals.h"
#include "platform/win32/wide.h"
#include "support/fresh_test.h"

namespace {

class RealSystemTest : public FreshTest {};

TEST_F(RealSystemTest, ALockHasOneHolderInEveryRace) {
  TestFiles::Put("A.TXT", "");
  for (int round = 0; round < 200; ++round) {
    int errors[2] = {-1, -1};
    const auto lock = [&errors](int index) {
      errors[index] = ErrorOf([index] { Files::Open(index + 1, "A.TXT", Files::Mode::Lock); });
    };
    std::thread other(lock, 1);
    lock(0);
    other.join();
    EXPECT_EQ(errors[0] + errors[1], kPermissionDenied) << errors[0] << " " << errors[1];
    Files::CloseAll();
  }
}

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

}  // namespace
