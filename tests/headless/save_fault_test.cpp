// Saving, loading and reporting while the disk fails or memory runs out: at every file call and every allocation in
// turn, with every kind of error, once and for good. Whatever happens, no text is lost, no half of one stands under a
// document's name, and the user is told.
#include <algorithm>
#include <cstdlib>
#include <map>
#include <new>
#include <utility>

#include "document/copies.h"
#include "document/document.h"
#include "document/reader.h"
#include "document/rescue.h"
#include "mainwindow/main_form.h"
#include "mainwindow/main_ids.h"
#include "mainwindow/save.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/headless/internals.h"
#include "platform/headless/machine.h"
#include "platform/program.h"
#include "platform/runtime_error.h"
#include "reports/report_ids.h"
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
  std::string ReadOnlyFile;

  // The name that the replaced file gets, empty when there is none; a backup is none itself.
  std::string Backup() const {
    const bool replaces = std::count(Files.begin(), Files.end(), Target) > 0 && Target.ends_with(".FIL");
    return replaces ? BackupName(Target) : "";
  }
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
const std::string kCannotLock =
    "I have loaded the plan file, but I cannot lock it for writing.  If you make changes, you must save to a "
    "different file.|";

// What is new is long enough for what fails to leave a part.
const std::string kNewName = "new" + std::string(70000, 'x');

std::string TextOf(const std::string& name) {
  return Lines({"LARKSPUR V5.0 FILER DATA", "'Larkspur Handy Reference Data File", "", "[THINGS]", "",
                "*1; NAME=" + name, "", "[END]", "DONE=YES"});
}

class SaveFaultTest : public FreshTest {
 protected:
  // The person of these tests agrees to everything, and notes what was said.
  void SetUp() override {
    FreshTest::SetUp();
    CurrentStage().Message = [this](const std::string& text, const std::string&, Buttons buttons, Icon) {
      const Apart apart;
      if (buttons == Buttons::Ok) said += text + "|";
      const bool asks_rightly = !TheDocument.LockHeld && (target != TheDocument.FileName || !TheDocument.Writable);
      EXPECT_TRUE(buttons == Buttons::Ok || asks_rightly) << text;
      // The user is told so before the file is listed: then everything is done.
      if (text == kSaved) {
        EXPECT_TRUE(Machine::FileBytes(target) == new_text && !TheDocument.Modified);
        EXPECT_TRUE(Machine::FileBytes("Torvane.INI") == settings);
      }
      return Answer::Ok;
    };
    CurrentStage().Use = [this](Form& form) {
      Control* const button = form.PeerOf().Find(IDC_OKButton);
      {
        const Apart apart;
        form.PeerOf().Find(name_box)->SetText(target);
      }
      if (in_form) in_form();
      button->PeerOf().Click();
    };
  }

  void Arrange(const Scenario& scenario) {
    TestFiles::Finish();
    FreshTest::SetUp();
    said.clear();
    for (const std::string& name : scenario.Files) Machine::PutFile(name, TextOf(name));
    settings = Machine::FileBytes("Torvane.INI");
    if (!scenario.Current.empty()) {
      ASSERT_TRUE(LoadFilerFile(InFolder(scenario.Current)));
      TheDocument.FileName = TheDocument.ShownFileName = InFolder(scenario.Current);
    }
    TheDocument.Things.SetCount(1);
    TheDocument.Things.Writable(1).NAME = kNewName;
    TheDocument.Modified = true;
    if (!scenario.ReadOnlyFile.empty()) Machine::SetReadOnly(scenario.ReadOnlyFile, true);
    contents = DescribeDocument();
    target = InFolder(scenario.Target);
  }

  bool SavedWas() const { return Machine::FileBytes(target) == new_text; }

  void CheckMemory(const Scenario& scenario, const Fault& fault = {}) {
    EXPECT_TRUE(DescribeDocument() == contents);
    const std::string current = SavedWas() ? scenario.Target : scenario.Current;
    EXPECT_EQ(TheDocument.FileName, current.empty() ? "" : InFolder(current));
    EXPECT_EQ(TheDocument.ShownFileName, TheDocument.FileName);
    EXPECT_EQ(TheDocument.Modified, !SavedWas());
    // Where the disk kept a save from being done, the lock may not be had again, which is not said.
    const bool may_lack_lock = !SavedWas() && fault.Code != 0;
    EXPECT_TRUE(TheDocument.LockHeld == (!current.empty() && TheDocument.Writable) || may_lack_lock);
    for (int handle = 1; handle <= 255; ++handle) {
      EXPECT_EQ(Files::IsOpen(handle), handle == kLockHandle && TheDocument.LockHeld) << handle;
    }
  }

  // Every file that a person would open is a whole text, and no text is gone but a backup that was to go.
  void CheckDisk(const Scenario& scenario, bool permanent) {
    std::map<std::string, std::string> place = {{new_text, ""}};  // of each text
    for (const std::string& name : scenario.Files) place[TextOf(name)] = "";
    for (const std::string& name : TestFiles::List()) {
      const std::string text = Machine::FileBytes(name).value();
      const bool shown = name.ends_with(".FIL") || name.ends_with(".BAK");
      EXPECT_TRUE(!shown || place.contains(text)) << name << " is not a whole text: " << text.size() << " bytes";
      // What was written aside stays only where the disk refuses to erase it.
      EXPECT_TRUE(shown || name == "Torvane.INI" || permanent || said == usual) << name << " was left";
      place[text] = name;
    }
    for (const std::string& name : scenario.Files) {
      const std::string& found = place[TextOf(name)];
      if (name == scenario.Backup() || name == "Torvane.INI" || (SavedWas() && name == scenario.Target)) continue;
      const bool aside = name == scenario.Target && !scenario.Backup().empty() && found == scenario.Backup();
      EXPECT_TRUE(found == name || aside) << "the text of " << name << " is lost";
    }
    EXPECT_TRUE(!SavedWas() || scenario.Backup().empty() || place[TextOf(scenario.Target)] == scenario.Backup());
  }

  // What was said is as usual, or that one thing failed, and why. Stories show all of the words.
  void CheckSaid(const Fault& fault) {
    const auto at = said.find(kCannotLock);
    EXPECT_EQ(at == std::string::npos, TheDocument.Writable);
    if (at != std::string::npos) said.erase(at, kCannotLock.size());
    // What is thrown, the window says, see RunForm; so it may only where the file has its place.
    if (SavedWas() && said.ends_with(kThrown)) return;
    const bool told =
        said.find(fault.Cause()) != std::string::npos || said.find("due to error # 58: ") != std::string::npos;
    EXPECT_TRUE(said == usual || told) << said;
    EXPECT_EQ(said.starts_with(kSaved), SavedWas()) << said;
    EXPECT_EQ(std::count(said.begin(), said.end(), '|'), SavedWas() && said != kSaved + "|" ? 2 : 1) << said;
  }

  // Once the disk works again, and nothing stands in the way any more.
  void CheckNextSave(const Scenario& scenario) {
    Machine::ClearFaults();
    if (!scenario.ReadOnlyFile.empty()) Machine::SetReadOnly(scenario.ReadOnlyFile, false);
    said.clear();
    settings = Machine::FileBytes("Torvane.INI");
    SaveDocument();
    EXPECT_TRUE(SavedWas() && said.ends_with(kSaved + "|")) << said;
    CheckMemory(scenario);
    Machine::LosePower();
    EXPECT_TRUE(SavedWas());
  }

  // Does something while that fails; false when it does not come to it.
  template <class Act>
  bool Failing(const Fault& fault, Act act) {
    Machine::ClearFaults();
    if (fault.Code != 0) Machine::FailFileCall(fault.Nth, fault.Code, fault.Permanent);
    if (fault.Code == 0) allocations_left = fault.Nth - 1;
    try {
      act();
    } catch (const std::bad_alloc&) {
      const Apart apart;
      said += kThrown;
    }
    const bool failed =
        std::exchange(allocations_left, -1) < 0 && Machine::FileCallCount() >= fault.Nth * (fault.Code != 0);
    Machine::ClearFaults();
    return failed;
  }

  bool SaveFailing(const Scenario& scenario, const Fault& fault) {
    Arrange(scenario);
    if (!Failing(fault, [] { SaveDocument(); })) return false;
    if (fault.Nth == 0) usual = said;
    CheckMemory(scenario, fault);
    CheckDisk(scenario, fault.Permanent);
    CheckSaid(fault);
    CheckNextSave(scenario);
    return true;
  }

  // Saves while each call or allocation in turn fails: how many there are.
  int SavesFailing(const Scenario& scenario, Fault fault) {
    bool failed = true;
    for (; failed && !HasFailure(); ++fault.Nth) {
      SCOPED_TRACE(scenario.Current + " to " + scenario.Target + ", read only " + scenario.ReadOnlyFile + ", call " +
                   std::to_string(fault.Nth) + ", code " + std::to_string(fault.Code) +
                   (fault.Permanent ? ", permanent" : ""));
      failed = SaveFailing(scenario, fault);
    }
    return fault.Nth;
  }

  const std::string new_text = TextOf(kNewName);
  int name_box = IDC_NameBox;  // of the form that asks for the target
  Event in_form;               // done there before O.K.
  std::string target;
  std::string contents;  // of the document
  std::optional<std::string> settings;
  std::string said;
  std::string usual;  // said when nothing fails
};

TEST_F(SaveFaultTest, LosesNothingWhicheverCallFails) {
  for (const Scenario& scenario : kScenarios) {
    for (const unsigned long code : {5UL, 32UL, 112UL}) {
      for (const bool permanent : {false, true}) EXPECT_GT(SavesFailing(scenario, {code, permanent}), 9);
    }
    EXPECT_EQ(usual.starts_with(kSaved), scenario.ReadOnlyFile != "Home.BAK") << usual;
    EXPECT_EQ(usual == kSaved + "|", scenario.ReadOnlyFile.empty()) << usual;
  }
}

TEST_F(SaveFaultTest, LosesNothingWhicheverAllocationFails) { EXPECT_GT(SavesFailing(kScenarios[2], {}), 60); }

TEST_F(SaveFaultTest, LeavesNoRescueCopyOpen) {
  Arrange(kScenarios[1]);
  TheDocument.FileName = InFolder("data\\Home.FIL");
  Machine::MakeFolder("data");
  for (int nth = 5; nth >= 0; --nth) {
    Failing({112, false, nth}, [] { WriteRescueCopy(); });
    EXPECT_FALSE(Files::IsOpen(kRescueHandle)) << nth;
  }
  Machine::LosePower();
  EXPECT_TRUE(Machine::FileBytes("data\\" + Machine::FilesIn(InFolder("data")).back()) == new_text);
  EXPECT_EQ(said, "");
}

TEST_F(SaveFaultTest, NeverLeavesHalfAFileOnAFullDisk) {
  const Scenario& scenario = kScenarios[2];
  for (const std::size_t space : {std::size_t{0}, std::size_t{1}, std::size_t{65536}, new_text.size() - 1}) {
    SCOPED_TRACE(std::to_string(space) + " bytes");
    Arrange(scenario);
    Machine::ClearFaults();
    Machine::DiskSpace(space);
    SaveDocument();
    EXPECT_EQ(said, "Failed to write file due to error # 61: Disk full|");
    EXPECT_EQ(TestFiles::List(), (std::vector<std::string>{"Home.BAK", "Home.FIL"}));
    CheckMemory(scenario);
    CheckDisk(scenario, false);
    EXPECT_TRUE(Machine::FileBytes("Home.BAK") == TextOf("Home.BAK"));
    CheckNextSave(scenario);
  }
  // Room for the file, but for nothing else: the space of the old backup comes too late for the writing.
  Arrange(kScenarios[0]);
  Machine::DiskSpace(new_text.size());
  SaveDocument();
  EXPECT_EQ(said, kSaved + "|Failed to save optional info to Torvane.INI due to error # 61: Disk full|");
}

TEST_F(SaveFaultTest, LoadsUpToWhereTheDiskFailsAndSaysSo) {
  const std::string file = Lines({"LARKSPUR V5.0 FILER DATA", "", "[THINGS]", " *1; NAME=Shed ", "NOTE=one +", "   two",
                                  "*2; NAME=Zoo", "[END]", "DONE=YES"});
  int nth = 1;
  for (bool failed = true; failed; ++nth) {
    SCOPED_TRACE(nth);
    MakeNew();
    Machine::PutFile("Home.FIL", file);
    said.clear();
    bool loaded = false;
    failed = Failing({23, false, nth}, [&loaded] { loaded = LoadFilerFile(InFolder("Home.FIL")); });
    EXPECT_FALSE(Files::IsOpen(kDataFileHandle));
    // The last call takes the lock: the document is whole then, and read-only.
    EXPECT_EQ(loaded, !failed || !TheDocument.Writable);
    EXPECT_EQ(said.empty(), !failed);
    EXPECT_TRUE(!loaded || DescribeDocument() == "thing 1 name<Shed> note<one two>\nthing 2 name<Zoo>\n");
  }
  EXPECT_GT(nth, 12);
}

// Wherever the disk is full: it is said, the viewer stays away, and the next report is whole.
TEST_F(SaveFaultTest, AReportThatCannotBeWrittenIsSaid) {
  Machine::PutFile("Home.FIL", TextOf("Shed"));
  Machine::PutFile("C:\\LARKVIEW.EXE", "");
  const std::string former_folder = ProgramFolder();
  Machine::SetProgramFolder("C:");
  MainForm form("Home.FIL");
  form.Show();
  name_box = IDC_PrintFileBox;
  const auto report = [this](const std::string& name, int nth) {
    target = name;
    in_form = [nth] { nth > 0 ? Machine::FailFileCall(1 + nth, 112, false) : void(); };
    user.ChoosesMenu(IDC_AddressRepItem);
    EXPECT_EQ(std::exchange(said, {}), nth > 0 ? "Failed to write file due to error # 61: Disk full|" : "") << nth;
    EXPECT_FALSE(Files::IsOpen(kPrintFileHandle)) << nth;
    EXPECT_EQ(Machine::StartedPrograms().size(), nth > 0 ? 0U : 1U) << nth;
    Machine::ClearFaults();
  };
  report("Whole.PRN", 0);
  const std::string whole = TestFiles::Get("Whole.PRN").value();
  const auto lines = static_cast<int>(std::count(whole.begin(), whole.end(), '\n'));
  for (int nth = 1; nth <= lines + 1; ++nth) report("Report.PRN", nth);  // the opening, the lines, the closing
  report("Report.PRN", 0);
  EXPECT_EQ(TestFiles::Get("Report.PRN"), whole);
  Machine::SetProgramFolder(former_folder);
}

}  // namespace
