// Saving while memory runs out, at every allocation in turn: the document, its lock and its file are as they were, the
// user is told, and the next Save succeeds.
#include <cstdlib>
#include <new>
#include <utility>

#include "document/document.h"
#include "document/reader.h"
#include "mainwindow/save.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/headless/internals.h"
#include "platform/headless/machine.h"
#include "resource.h"
#include "support/fresh_test.h"

namespace {

int allocations_left = -1;  // before one fails; negative: none does

}  // namespace

// Kept apart from what calls them: inlined, they would look like memory given back in another way than it was got.
[[gnu::noinline]] void* operator new(std::size_t size) {
  if (allocations_left >= 0 && allocations_left-- == 0) throw std::bad_alloc();
  if (void* room = std::malloc(size == 0 ? 1 : size)) return room;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* room) noexcept { std::free(room); }
[[gnu::noinline]] void operator delete(void* room, std::size_t /*size*/) noexcept { std::free(room); }

namespace {

// What a test does in between needs memory of its own.
class Apart {
 public:
  Apart() = default;
  ~Apart() { allocations_left = left_; }
  Apart(const Apart&) = delete;
  Apart& operator=(const Apart&) = delete;

 private:
  int left_ = std::exchange(allocations_left, -1);
};

std::string TextOf(const std::string& name) {
  return Lines({"LARKSPUR V5.0 FILER DATA", "'Larkspur Handy Reference Data File", "", "[THINGS]", "",
                "*1; NAME=" + name + " of a length that needs room", "", "[END]", "DONE=YES"});
}

class SaveMemoryTest : public FreshTest {
 protected:
  void Arrange() {
    TestFiles::Finish();
    FreshTest::SetUp();
    CurrentStage().Message = [this](const std::string& text, const std::string&, Buttons, Icon) {
      const Apart apart;
      said += text + "|";
      return Answer::Ok;
    };
    CurrentStage().Use = [](Form& form) { form.PeerOf().Find(IDC_OKButton)->PeerOf().Click(); };
    for (const char* name : {"Home.FIL", "Home.BAK"}) Machine::PutFile(name, TextOf(name));
    ASSERT_TRUE(LoadFilerFile(InFolder("Home.FIL")));
    TheDocument.FileName = TheDocument.ShownFileName = InFolder("Home.FIL");
    TheDocument.Things.Writable(1).NAME = "new of a length that needs room";
    TheDocument.Modified = true;
  }

  // Saves while one allocation fails (0: the first); false when it makes fewer than that.
  bool SaveFailing(int nth) {
    said.clear();
    allocations_left = nth;
    try {
      SaveDocument();
    } catch (const std::bad_alloc&) {
      const Apart apart;
      said += "thrown";  // which the window says, see RunForm
    }
    return std::exchange(allocations_left, -1) < 0;
  }

  std::string said;
};

TEST_F(SaveMemoryTest, LeavesAllAsItWasWhicheverAllocationFails) {
  const std::string saved = "The Larkspur Filer file was saved.|";
  int undone = 0;
  int nth = 0;
  for (bool failed = true; failed && !HasFailure(); ++nth) {
    SCOPED_TRACE(nth);
    Arrange();
    failed = SaveFailing(nth);
    const bool done = Machine::FileBytes("Home.FIL") == TextOf("new");
    const bool told = said == (failed ? "Failed to write file due to error # 7: Out of memory|" : saved);
    // Once the file has its place, only what comes behind can fail.
    EXPECT_TRUE(told || (done && (said.starts_with(saved) || said.ends_with("thrown") || !TheDocument.Writable)))
        << said;
    EXPECT_TRUE(done || (failed && Machine::FileBytes("Home.FIL") == TextOf("Home.FIL"))) << said;
    EXPECT_TRUE(TheDocument.Modified != done && TheDocument.LockHeld == TheDocument.Writable) << said;
    EXPECT_TRUE(TheDocument.Writable || said.starts_with("I have loaded")) << said;
    EXPECT_EQ(TheDocument.Things[1].NAME + TheDocument.FileName + TheDocument.ShownFileName,
              "new of a length that needs room" + InFolder("Home.FIL") + InFolder("Home.FIL"));
    for (const std::string& name : TestFiles::List()) {
      EXPECT_TRUE(name == "Home.FIL" || name == "Home.BAK" || name == "Torvane.INI") << name << " was left";
    }
    for (int handle = 1; handle <= 255; ++handle) {
      EXPECT_EQ(Files::IsOpen(handle), handle == kLockHandle && TheDocument.LockHeld) << handle;
    }
    undone += done ? 0 : 1;
    SaveFailing(-1);
    EXPECT_TRUE(said.ends_with(saved) && Machine::FileBytes("Home.FIL") == TextOf("new")) << said;
  }
  EXPECT_TRUE(undone > 50 && nth > undone + 10) << undone << " of " << nth;
}

}  // namespace
