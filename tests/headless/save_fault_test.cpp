// Saving, rescuing, loading and reporting while the disk fails or memory runs out: at every file call and every
// allocation in turn, with every kind of error, once and for good. Whatever happens, even when the power goes then, the
// disk holds what it did before or the next step of a save, no half of a text under any name, and the user is told.
#include <algorithm>
#include <cstdlib>
#include <map>
#include <new>
#include <utility>

#include "document/copies.h"
#include "document/document.h"
#include "document/reader.h"
#include "document/rescue.h"
#include "mainwindow/save.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/headless/internals.h"
#include "platform/headless/machine.h"
#include "platform/runtime_error.h"
#include "reports/item_list_report.h"
#include "reports/print_file.h"
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
template <class Act>
void Apart(Act act) {
  const int left = std::exchange(allocations_left, -1);
  act();
  allocations_left = left;
}

// What fails: a file call with a system's code, or an allocation.
struct Fault {
  unsigned long Code = 0;  // 0: an allocation
  bool Permanent = false;
  int Nth = 0;  // from 1; 0: nothing fails

  std::string Cause() const {
    const int number = Code == 0 ? kOutOfMemory : ErrorNumberOfSystemCode(Code);
    return "due to error # " + std::to_string(number) + ": " + std::string(ErrorDescription(number));
  }
};

// One way to save.
struct Scenario {
  std::string Current;             // the file opened before, or empty
  std::string Target;              // the name saved to
  std::vector<std::string> Files;  // that are there: each holds a text of its own
  std::string ReadOnly;            // one of them
};

const std::vector<Scenario> kScenarios = {
    {"", "New.FIL", {}, ""},
    {"Home.FIL", "Home.FIL", {"Home.FIL"}, ""},
    {"Home.FIL", "Home.FIL", {"Home.FIL", "Home.BAK"}, ""},
    {"Home.FIL", "Other.FIL", {"Home.FIL", "Other.FIL"}, ""},
    {"", "Other.FIL", {"Other.FIL", "Other.BAK"}, ""},
    {"Home.FIL", "New.FIL", {"Home.FIL"}, ""},
    {"Home.FIL", "Home.FIL", {"Home.FIL", "Home.BAK"}, "Home.BAK"},
    {"Home.FIL", "Home.FIL", {"Home.FIL", "Torvane.INI"}, "Torvane.INI"},
    {"Home.FIL", "Old.BAK", {"Home.FIL", "Old.BAK"}, ""},
};

const std::string kSaved = "The Larkspur Filer file was saved.";
const std::string kThrown = "thrown";

// What is new is long enough for what fails to leave a part.
const std::string kNewName = "new" + std::string(70000, 'x');

std::string TextOf(const std::string& name) {
  return DataFile("'Larkspur Handy Reference Data File//[THINGS]//*1; NAME=" + name + "//[END]/DONE=YES/");
}

class SaveFaultTest : public FreshTest {
 protected:
  using Texts = std::vector<std::string>;
  using Disk = std::map<std::string, std::string>;  // the texts of the files by their names

  // The person of these tests agrees to everything, and notes what was said.
  void SetUp() override {
    FreshTest::SetUp();
    CurrentStage().Message = [this](const std::string& text, const std::string&, Buttons buttons, Icon) {
      Apart([&] {
        if (buttons == Buttons::Ok) said.push_back(text);
        // The user is told so before the file is listed: then everything is done.
        EXPECT_TRUE(text != kSaved || (OnDisk() == steps.end()[-2] && !TheDocument.Modified));
      });
      return Answer::Ok;
    };
    CurrentStage().Use = [this](Form& form) {
      Apart([&] { form.PeerOf().Find(IDC_NameBox)->SetText(InFolder(target)); });
      form.PeerOf().Find(IDC_OKButton)->PeerOf().Click();
    };
  }

  void Arrange(const Scenario& scenario) {
    TestFiles::Finish();
    FreshTest::SetUp();
    for (const std::string& name : scenario.Files) Machine::PutFile(name, TextOf(name));
    if (!scenario.Current.empty()) {
      ASSERT_TRUE(LoadFilerFile(InFolder(scenario.Current)));
      TheDocument.FileName = TheDocument.ShownFileName = InFolder(scenario.Current);
    }
    TheDocument.Things.SetCount(1);
    TheDocument.Things.Writable(1).NAME = kNewName;
    TheDocument.Modified = true;
    target = scenario.Target;
    read_only = scenario.ReadOnly;
    if (!read_only.empty()) Machine::SetReadOnly(read_only, true);
  }

  // All files but those that are written aside.
  static Disk OnDisk() {
    Disk disk;
    for (const std::string& name : TestFiles::List()) {
      if (name.find(".saving") == std::string::npos) disk[name] = Machine::FileBytes(name).value();
    }
    return disk;
  }

  // The disk before a save, after each step of it, and at its end: the backup is all that gives way.
  std::vector<Disk> StepsFrom(Disk disk) const {
    std::vector<Disk> all = {disk};
    const std::string backup = BackupName(target);
    if (disk.contains(target) && backup != target) {
      if (disk.erase(backup) > 0) all.push_back(disk);
      auto replaced = disk.extract(target);
      replaced.key() = backup;
      disk.insert(std::move(replaced));
      all.push_back(disk);
    }
    disk[target] = new_text;
    all.push_back(disk);
    disk["Torvane.INI"] = Lines("TORVANE V5.0 INI/[TOP10FILES]/*1; NAME=" + InFolder(target) + "/");
    all.push_back(disk);
    return all;
  }

  static std::string OpenHandles() {
    std::string open;
    for (int handle = 1; handle <= 255; ++handle) open += Files::IsOpen(handle) ? std::to_string(handle) + " " : "";
    return open;
  }

  // Does something while that fails; false when it does not come to it.
  template <class Act>
  bool Failing(const Fault& fault, Act act) {
    said.clear();
    Machine::ClearFaults();
    if (fault.Code != 0) Machine::FailFileCall(fault.Nth, fault.Code, fault.Permanent);
    if (fault.Code == 0) allocations_left = fault.Nth - 1;
    try {
      act();
    } catch (const std::bad_alloc&) {
      Apart([this] { said.push_back(kThrown); });
    }
    const bool failed =
        std::exchange(allocations_left, -1) < 0 && Machine::FileCallCount() >= fault.Nth * (fault.Code != 0);
    Machine::ClearFaults();
    Machine::LosePower();
    return failed;
  }

  bool SaveFailing(const Fault& fault) {
    const std::string contents = DescribeDocument(), former = TheDocument.FileName;
    const bool writable = TheDocument.Writable;
    steps = StepsFrom(OnDisk());
    const bool failed = Failing(fault, SaveDocument);
    const Disk disk = OnDisk();
    const bool done = std::find(steps.end() - 2, steps.end(), disk) != steps.end();
    EXPECT_TRUE(std::find(steps.begin(), steps.end(), disk) != steps.end());
    // What was written aside stays only where the disk refuses to erase it.
    EXPECT_TRUE(fault.Permanent || !read_only.empty() || TestFiles::List().size() == disk.size());

    EXPECT_TRUE(DescribeDocument() == contents && TheDocument.Modified == !done);
    EXPECT_EQ(TheDocument.FileName, done ? InFolder(target) : former);
    EXPECT_EQ(TheDocument.ShownFileName, TheDocument.FileName);
    // Where the disk kept a save from being done, the lock may not be had again, which is not said.
    const bool may_lack_lock = TheDocument.FileName.empty() || !TheDocument.Writable || (!done && fault.Code != 0);
    EXPECT_TRUE(TheDocument.LockHeld || may_lack_lock);
    EXPECT_EQ(OpenHandles(), TheDocument.LockHeld ? "3 " : "");
    const auto cannot_lock = [](const std::string& text) {
      return text.find("but I cannot lock") != std::string::npos;
    };
    EXPECT_EQ(std::erase_if(said, cannot_lock) > 0, TheDocument.Writable != writable);
    CheckSaid(fault, done);
    return failed;
  }

  // That it is saved, and nothing more when all is done; else one thing that failed, and why. Stories show all of the
  // words. What is thrown, the window says, see RunForm; so it may only where the file has its place.
  void CheckSaid(const Fault& fault, bool done) const {
    if (done && said.back() == kThrown) return;
    EXPECT_EQ(said.front() == kSaved, done);
    const bool all_done = OnDisk() == steps.back();
    ASSERT_EQ(said.size(), done && !all_done ? 2U : 1U) << said.back();
    bool named = all_done;
    for (const std::string& cause : {fault.Cause(), std::string("# 58: "), read_only.empty() ? kThrown : "# 75: "}) {
      named = named || said.back().find(cause) != std::string::npos;
    }
    EXPECT_TRUE(named) << said.back();
  }

  // Saves while each call or allocation in turn fails, and once more when nothing stands in the way: how many there
  // are.
  int SavesFailing(const Scenario& scenario, Fault fault) {
    for (bool failed = true; failed && !HasFailure(); ++fault.Nth) {
      SCOPED_TRACE(scenario.Current + " to " + scenario.Target + ", read only " + scenario.ReadOnly + ", code " +
                   std::to_string(fault.Code) + (fault.Permanent ? " from " : " at ") + std::to_string(fault.Nth));
      Arrange(scenario);
      failed = SaveFailing(fault);
      if (!read_only.empty()) Machine::SetReadOnly(std::exchange(read_only, ""), false);
      SaveFailing({});
      EXPECT_EQ(said, Texts{kSaved});
    }
    return fault.Nth;
  }

  const std::string new_text = TextOf(kNewName);
  std::string target;
  std::string read_only;    // the file that nobody may write or erase
  std::vector<Disk> steps;  // of the save
  Texts said;
};

TEST_F(SaveFaultTest, LosesNothingWhicheverCallFails) {
  for (const Scenario& scenario : kScenarios) {
    for (const unsigned long code : {5UL, 32UL, 112UL}) {
      for (const bool permanent : {false, true}) EXPECT_GT(SavesFailing(scenario, {code, permanent}), 9);
    }
  }
}

TEST_F(SaveFaultTest, LosesNothingWhicheverAllocationFails) { EXPECT_GT(SavesFailing(kScenarios[2], {}), 60); }

TEST_F(SaveFaultTest, RescuesInOneFolderWhatAnotherRefuses) {
  bool failed = true;
  for (Fault fault{112}; failed; ++fault.Nth) {
    Arrange(kScenarios[1]);
    std::string name;
    failed = Failing(fault, [&name] { name = WriteRescueCopy(); });
    EXPECT_TRUE(Machine::FileBytes(name) == new_text) << name;
    EXPECT_TRUE(OpenHandles() == "3 " && said.empty()) << fault.Nth;
  }
}

TEST_F(SaveFaultTest, LoadsUpToWhereTheDiskFailsAndSaysSo) {
  // Of more than one block.
  const std::string file =
      DataFile("[THINGS]/ *1; NAME=Shed /NOTE=one +/   two/'" + std::string(150000, 'x') + "/*2; NAME=Zoo");
  Fault fault{23, false, 1};
  for (bool failed = true; failed; ++fault.Nth) {
    bool loaded = false;
    failed = Failing(fault, [&] { loaded = Loads(file); });
    // The last call takes the lock: the document is whole then, and read-only.
    EXPECT_EQ(loaded, !failed || !TheDocument.Writable) << fault.Nth;
    EXPECT_EQ(OpenHandles(), loaded && !failed ? "3 " : "") << fault.Nth;
    EXPECT_EQ(said.empty(), !failed) << fault.Nth;
    EXPECT_TRUE(!loaded || DescribeDocument() == "thing 1 name<Shed> note<one two>\nthing 2 name<Zoo>\n");
  }
  EXPECT_GT(fault.Nth, 7);
}

TEST_F(SaveFaultTest, AReportThatCannotBeWrittenIsSaid) {
  Load("[THINGS]/NAME=Shed/NOTE=" + std::string(150000, 'x'));
  Fault fault{112};
  for (bool failed = true; failed; ++fault.Nth) {
    Files::Open(kPrintFileHandle, "Report.PRN", Files::Mode::Output);
    bool written = false;
    failed = Failing(fault, [&written] { written = WritePrintFile([] { WriteItemListReport(0); }); });
    EXPECT_EQ(written, fault.Nth == 0 || !failed) << fault.Nth;
    EXPECT_EQ(said, written ? Texts{} : Texts{"Failed to write file " + fault.Cause()}) << fault.Nth;
    EXPECT_EQ(OpenHandles(), "3 ") << fault.Nth;
  }
  EXPECT_GT(fault.Nth, 5);
}

}  // namespace
