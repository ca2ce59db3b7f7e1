// Loading from a disk that fails: whichever call it is, the user is told, and the next load and save find everything
// as it should be.
#include "document/document.h"
#include "document/file_handles.h"
#include "document/reader.h"
#include "platform/files.h"
#include "platform/headless/internals.h"
#include "platform/headless/machine.h"
#include "support/fresh_test.h"

namespace {

class LoadFaultTest : public FreshTest {
 protected:
  void TearDown() override {
    Machine::ClearFaults();
    FreshTest::TearDown();
  }
};

TEST_F(LoadFaultTest, EndsWhereTheDiskDoes) {
  const std::string file = Lines({"LARKSPUR V5.0 FILER DATA", "", "[THINGS]", " *1; NAME=Shed ", "NOTE=one +", "   two",
                                  "*2; NAME=Zoo", "[END]", "DONE=YES"});
  std::string said;
  CurrentStage().Message = [&said](const std::string& text, const std::string&, Buttons, Icon) {
    said += text.substr(0, text.find(' ', 8)) + "|";
    return Answer::Ok;
  };
  int nth = 1;
  for (bool failed = true; failed; ++nth) {
    SCOPED_TRACE(nth);
    MakeNew();
    TestFiles::Put("Home.FIL", file);
    said.clear();
    Machine::ClearFaults();
    Machine::FailFileCall(nth, 23, false);
    const bool loaded = LoadFilerFile(InFolder("Home.FIL"));
    failed = Machine::FileCallCount() >= nth;
    Machine::ClearFaults();
    EXPECT_FALSE(Files::IsOpen(kDataFileHandle));
    // The last call takes the lock: the document is whole then, and read-only.
    EXPECT_EQ(loaded, !failed || !TheDocument.Writable);
    EXPECT_EQ(said.empty(), !failed);
    if (loaded) {
      EXPECT_EQ(DescribeDocument(), "thing 1 name<Shed> note<one two>\nthing 2 name<Zoo>\n");
    }
  }
  EXPECT_GT(nth, 12);
}

}  // namespace
