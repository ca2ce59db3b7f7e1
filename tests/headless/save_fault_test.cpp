// Saving and loading while the disk fails: at every file call in turn, with every kind of error, once and for good.
// Whatever happens, no text is lost, no half of one stands under a document's name, and the user is told.
#include <algorithm>
#include <map>

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
#include "resource.h"
#include "support/fresh_test.h"

namespace {

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
      form.PeerOf().Find(IDC_NameBox)->SetText(target);
      form.PeerOf().Find(IDC_OKButton)->PeerOf().Click();
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

  bool SavedWas() const { return said.find(kSaved) != std::string::npos; }

  void CheckMemory(const Scenario& scenario) {
    EXPECT_TRUE(DescribeDocument() == contents);
    const std::string current = SavedWas() ? scenario.Target : scenario.Current;
    EXPECT_EQ(TheDocument.FileName, current.empty() ? "" : InFolder(current));
    EXPECT_EQ(TheDocument.ShownFileName, TheDocument.FileName);
    EXPECT_EQ(TheDocument.Modified, !SavedWas());
    // Where a save came to nothing, the lock may not be had again, which is not said.
    EXPECT_TRUE(TheDocument.LockHeld == (!current.empty() && TheDocument.Writable) || !SavedWas());
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
    EXPECT_EQ(Machine::FileBytes(scenario.Target) == new_text, SavedWas());
    EXPECT_TRUE(!SavedWas() || scenario.Backup().empty() || place[TextOf(scenario.Target)] == scenario.Backup());
  }

  // What was said is as usual, or that one thing failed, and why. Stories show all of the words.
  void CheckSaid(unsigned long code) {
    const auto at = said.find(kCannotLock);
    EXPECT_EQ(at == std::string::npos, TheDocument.Writable);
    if (at != std::string::npos) said.erase(at, kCannotLock.size());
    const int number = ErrorNumberOfSystemCode(code);
    const std::string cause = "due to error # " + std::to_string(number) + ": " + std::string(ErrorDescription(number));
    const bool told = said.find(cause) != std::string::npos || said.find("due to error # 58: ") != std::string::npos;
    EXPECT_TRUE(said == usual || told) << said;
    EXPECT_EQ(std::count(said.begin(), said.end(), '|'), SavedWas() && said != kSaved + "|" ? 2 : 1) << said;
  }

  // Once the disk works again, and nothing stands in the way any more.
  void CheckNextSave(const Scenario& scenario) {
    Machine::ClearFaults();
    if (!scenario.ReadOnlyFile.empty()) Machine::SetReadOnly(scenario.ReadOnlyFile, false);
    said.clear();
    settings = Machine::FileBytes("Torvane.INI");
    SaveDocument();
    EXPECT_TRUE(SavedWas());
    CheckMemory(scenario);
    Machine::LosePower();
    EXPECT_TRUE(Machine::FileBytes(scenario.Target) == new_text);
  }

  // Does something while one file call fails (0: none); false when it makes fewer than that.
  template <class Act>
  static bool Failing(int nth, unsigned long code, bool permanent, Act act) {
    Machine::ClearFaults();
    Machine::FailFileCall(nth, code, permanent);
    act();
    const int calls = Machine::FileCallCount();
    Machine::ClearFaults();
    return calls >= nth;
  }

  bool SaveFailing(const Scenario& scenario, int nth, unsigned long code, bool permanent) {
    Arrange(scenario);
    if (!Failing(nth, code, permanent, [] { SaveDocument(); })) return false;
    if (nth == 0) usual = said;
    CheckMemory(scenario);
    CheckDisk(scenario, permanent);
    CheckSaid(code);
    CheckNextSave(scenario);
    return true;
  }

  const std::string new_text = TextOf(kNewName);
  std::string target;
  std::string contents;  // of the document
  std::optional<std::string> settings;
  std::string said;
  std::string usual;  // said when nothing fails
};

TEST_F(SaveFaultTest, LosesNothingWhicheverCallFails) {
  for (const Scenario& scenario : kScenarios) {
    const std::string title = scenario.Current + " to " + scenario.Target + ", read only " + scenario.ReadOnlyFile;
    for (const unsigned long code : {5UL, 32UL, 112UL}) {
      for (const bool permanent : {false, true}) {
        int nth = 0;
        for (bool failed = true; failed && !HasFailure(); ++nth) {
          SCOPED_TRACE(title + ", call " + std::to_string(nth) + ", code " + std::to_string(code) +
                       (permanent ? ", permanent" : ""));
          failed = SaveFailing(scenario, nth, code, permanent);
        }
        EXPECT_TRUE(nth > 9 || HasFailure()) << title;
      }
    }
    EXPECT_EQ(usual.starts_with(kSaved), scenario.ReadOnlyFile != "Home.BAK") << usual;
    EXPECT_EQ(usual == kSaved + "|", scenario.ReadOnlyFile.empty()) << usual;
  }
}

TEST_F(SaveFaultTest, LeavesNoRescueCopyOpen) {
  Arrange(kScenarios[1]);
  TheDocument.FileName = InFolder("data\\Home.FIL");
  Machine::MakeFolder("data");
  for (int nth = 5; nth >= 0; --nth) {
    Failing(nth, 112, false, [] { WriteRescueCopy(); });
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
    failed = Failing(nth, 23, false, [&loaded] { loaded = LoadFilerFile(InFolder("Home.FIL")); });
    EXPECT_FALSE(Files::IsOpen(kDataFileHandle));
    // The last call takes the lock: the document is whole then, and read-only.
    EXPECT_EQ(loaded, !failed || !TheDocument.Writable);
    EXPECT_EQ(said.empty(), !failed);
    EXPECT_TRUE(!loaded || DescribeDocument() == "thing 1 name<Shed> note<one two>\nthing 2 name<Zoo>\n");
  }
  EXPECT_GT(nth, 12);
}

}  // namespace
