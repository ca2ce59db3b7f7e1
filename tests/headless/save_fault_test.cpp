// Saving while the disk fails: at every file call in turn, with every kind of error, once and for good.
// Whatever happens, no text is lost, no half of one stands under a document's name, and the user is told.
#include <algorithm>
#include <map>

#include "document/rescue.h"
#include "document/save_test.h"
#include "platform/headless/internals.h"
#include "platform/headless/machine.h"

namespace {

using Texts = std::vector<std::string>;

// One way to save: the files that are there, which of them was opened, and the name saved to.
struct Scenario {
  std::string Title;
  std::string Current;  // opened before, or empty
  std::string Target;
  std::string Backup;  // the name that the replaced file gets, empty when there is none
  Texts Files;         // each holds a text of its own
  std::string ReadOnlyFile;
  Texts Boxes;  // what comes when nothing fails
};

const std::vector<Scenario> kScenarios = {
    {"first save", "", "New.FIL", "", {}, "", {kSaved}},
    {"over the current file", "Home.FIL", "Home.FIL", "Home.BAK", {"Home.FIL"}, "", {kSaved}},
    {"the same with a backup", "Home.FIL", "Home.FIL", "Home.BAK", {"Home.FIL", "Home.BAK"}, "", {kSaved}},
    {"over another file", "Home.FIL", "Other.FIL", "Other.BAK", {"Home.FIL", "Other.FIL"}, "", {kOverwrite, kSaved}},
    {"a new document over a file with a backup",
     "",
     "Other.FIL",
     "Other.BAK",
     {"Other.FIL", "Other.BAK"},
     "",
     {kOverwrite, kSaved}},
    {"under a new name", "Home.FIL", "New.FIL", "", {"Home.FIL"}, "", {kSaved}},
    {"a read-only backup",
     "Home.FIL",
     "Home.FIL",
     "Home.BAK",
     {"Home.FIL", "Home.BAK"},
     "Home.BAK",
     {"Failed to erase old backup, C:\\TEST\\Home.BAKdue to error # 75: Path/File access error.  No new backup will be "
      "created and the save will NOT be completed. Try saving to a different filename or disk."}},
    {"a read-only settings file",
     "Home.FIL",
     "Home.FIL",
     "Home.BAK",
     {"Home.FIL", "Torvane.INI"},
     "Torvane.INI",
     {kSaved, "Failed to save optional info to Torvane.INI due to error # 75: Path/File access error"}},
    {"over a file that is its own backup",
     "Home.FIL",
     "Old.BAK",
     "",
     {"Home.FIL", "Old.BAK"},
     "",
     {kOverwrite, kSaved}},
};

// Few things with long names: texts of more than one block, so that writing takes several calls.
constexpr int kThings = 100;
const std::string kTail(700, 'x');

const std::string& TextOf(const std::string& name) {
  static std::map<std::string, std::string> texts;
  std::string& text = texts[name];
  if (!text.empty()) return text;
  text = Lines({"LARKSPUR V5.0 FILER DATA", "'Larkspur Handy Reference Data File", "", "[THINGS]"});
  for (int number = 1; number <= kThings; ++number) {
    text += Lines({"", "*" + std::to_string(number) + "; NAME=" + name + kTail});
  }
  return text += Lines({"", "[END]", "DONE=YES"});
}

const std::string kNewText = TextOf("new");

bool IsQuestion(const std::string& text) { return text == kOverwrite || text == kReadOnly; }

class SaveFaultTest : public FreshTest {
 protected:
  // The person of these tests agrees to everything, and notes what was said.
  void SetUp() override {
    FreshTest::SetUp();
    CurrentStage().Message = [this](const std::string& text, const std::string&, Buttons, Icon) {
      boxes.push_back(text);
      EXPECT_FALSE(IsQuestion(text) && TheDocument.LockHeld);
      return Answer::Ok;
    };
    CurrentStage().Use = [this](Form& form) {
      Control* box = form.PeerOf().Find(IDC_NameBox);
      box->SetText(target);
      form.PeerOf().Find(IDC_OKButton)->PeerOf().Click();
    };
  }

  void Arrange(const Scenario& scenario) {
    TestFiles::Finish();
    FreshTest::SetUp();
    boxes.clear();
    for (const std::string& name : scenario.Files) Machine::PutFile(name, TextOf(name));
    TheDocument = {};
    if (!scenario.Current.empty()) {
      ASSERT_TRUE(LoadFilerFile(InFolder(scenario.Current)));
      TheDocument.FileName = TheDocument.ShownFileName = InFolder(scenario.Current);
    }
    TheDocument.Things.GrowFor(kThings, 0);
    TheDocument.Things.SetCount(kThings);
    for (int number = 1; number <= kThings; ++number) TheDocument.Things[number].NAME = "new" + kTail;
    TheDocument.Modified = true;
    if (!scenario.ReadOnlyFile.empty()) Machine::SetReadOnly(scenario.ReadOnlyFile, true);
    contents = DescribeDocument();
    target = InFolder(scenario.Target);
    Machine::ClearFaults();
  }

  bool SavedWas() const { return std::find(boxes.begin(), boxes.end(), kSaved) != boxes.end(); }

  void CheckMemory(const Scenario& scenario) {
    EXPECT_TRUE(DescribeDocument() == contents);
    const std::string current = SavedWas() ? scenario.Target : scenario.Current;
    EXPECT_EQ(TheDocument.FileName, current.empty() ? "" : InFolder(current));
    EXPECT_EQ(TheDocument.ShownFileName, TheDocument.FileName);
    EXPECT_EQ(TheDocument.Modified, !SavedWas());
    EXPECT_EQ(Files::IsOpen(kLockHandle), TheDocument.LockHeld);
    for (int handle = 1; handle <= 255; ++handle)
      EXPECT_TRUE(handle == kLockHandle || !Files::IsOpen(handle)) << handle;
  }

  // Every file that a person would open is a whole text, and no text is gone but a backup that was to go.
  void CheckDisk(const Scenario& scenario, bool permanent) {
    const Texts files = TestFiles::List();
    const auto bytes = [](const std::string& name) { return Machine::FileBytes(name); };
    for (const std::string& name : files) {
      if (name.ends_with(".FIL") || name.ends_with(".BAK")) {
        const std::string text = bytes(name).value();
        const bool whole = text == kNewText || std::any_of(scenario.Files.begin(), scenario.Files.end(),
                                                           [&](const auto& each) { return text == TextOf(each); });
        EXPECT_TRUE(whole) << name << " is not a whole text: " << text.size() << " bytes";
      } else if (name != "Torvane.INI") {
        // What was written aside stays only where the disk refuses to erase it.
        EXPECT_TRUE(permanent || boxes == scenario.Boxes) << name << " was left";
      }
    }
    for (const std::string& name : scenario.Files) {
      if (name == scenario.Backup || name == "Torvane.INI" || (SavedWas() && name == scenario.Target)) continue;
      Texts holders{name};
      if (name == scenario.Target) holders.push_back(scenario.Backup);
      const bool kept =
          std::any_of(holders.begin(), holders.end(), [&](const auto& each) { return bytes(each) == TextOf(name); });
      EXPECT_TRUE(kept) << "the text of " << name << " is lost";
    }
    if (!SavedWas()) {
      EXPECT_NE(bytes(scenario.Target), kNewText);
      return;
    }
    EXPECT_EQ(bytes(scenario.Target), kNewText);
    if (scenario.Backup.empty()) return;
    EXPECT_EQ(bytes(scenario.Backup), TextOf(scenario.Target));
  }

  // The file is written: only the lock before and the list behind may have failed.
  static void CheckBoxesOfASave(Texts said, const std::string& error) {
    EXPECT_EQ(TheDocument.LockHeld, said.front() != kCannotLock);
    if (said.front() == kCannotLock) said.erase(said.begin());
    ASSERT_FALSE(said.empty());
    EXPECT_EQ(said.front(), kSaved);
    said.erase(said.begin());
    if (said.empty()) return;
    const std::string unlisted = "Failed to save optional info to Torvane.INI due to error #";
    const bool read_only = said == Texts{unlisted + " 75: Path/File access error"};
    EXPECT_TRUE(read_only || said == Texts{unlisted + error}) << said.front();
  }

  // Something failed: the boxes are those of a save that failed once, with that error in the text.
  void CheckBoxes(const Scenario& scenario, const std::string& error) {
    Texts said;
    for (const std::string& text : boxes) {
      if (!IsQuestion(text)) said.push_back(text);
    }
    ASSERT_FALSE(said.empty());
    if (SavedWas()) {
      CheckBoxesOfASave(said, error);
      return;
    }
    const std::string reason = " due to error #" + error;
    const std::string taken = " due to error # 58: File already exists";  // behind a name that seemed free
    const std::string no_backup = "Failed to create backup (.BAK) of the file to be replaced,";
    const std::string no_save = ".  The save will NOT be completed.  Try saving to a different filename or disk.";
    Texts known = {"Can't test for presence of output file" + reason,
                   "Failed to open file" + reason,
                   "Failed to open file" + taken,
                   "Failed to write file" + reason,
                   no_backup + reason + no_save,
                   no_backup + taken + no_save,
                   "Failed to erase old backup, " + InFolder(scenario.Backup) + "due to error #" + error +
                       ".  No new backup will be created and the save will NOT be completed. Try saving to a different "
                       "filename or disk."};
    known.insert(known.end(), scenario.Boxes.begin(), scenario.Boxes.end());
    EXPECT_NE(std::find(known.begin(), known.end(), said.front()), known.end()) << said.front();
    said.erase(said.begin());
    EXPECT_TRUE(said.empty());
    EXPECT_TRUE(TheDocument.Writable);  // also where the lock could not be taken again
  }

  // Once the disk works again, and nothing stands in the way any more.
  void CheckNextSave(const Scenario& scenario) {
    Machine::ClearFaults();
    if (!scenario.ReadOnlyFile.empty()) Machine::SetReadOnly(scenario.ReadOnlyFile, false);
    boxes.clear();
    SaveDocument();
    EXPECT_TRUE(SavedWas());
    EXPECT_EQ(Machine::FileBytes(scenario.Target), kNewText);
    EXPECT_EQ(TheDocument.FileName, target);
    EXPECT_FALSE(TheDocument.Modified);
    EXPECT_EQ(TheDocument.LockHeld, TheDocument.Writable);
  }

  // Saves with one fault; false when the scenario makes fewer calls than that.
  bool SaveFailing(const Scenario& scenario, int nth, unsigned long code, bool permanent) {
    Arrange(scenario);
    Machine::FailFileCall(nth, code, permanent);
    SaveDocument();
    const int calls = Machine::FileCallCount();
    Machine::ClearFaults();
    if (calls < nth) return false;
    CheckMemory(scenario);
    CheckDisk(scenario, permanent);
    if (boxes != scenario.Boxes) {
      const int number = ErrorNumberOfSystemCode(code);
      CheckBoxes(scenario, " " + std::to_string(number) + ": " + std::string(ErrorDescription(number)));
    }
    CheckNextSave(scenario);
    return true;
  }

  std::string target;
  std::string contents;  // of the document
  Texts boxes;
};

TEST_F(SaveFaultTest, SavesWhenNothingFails) {
  for (const Scenario& scenario : kScenarios) {
    SCOPED_TRACE(scenario.Title);
    Arrange(scenario);
    SaveDocument();
    EXPECT_EQ(boxes, scenario.Boxes);
    CheckMemory(scenario);
    CheckDisk(scenario, false);
  }
}

TEST_F(SaveFaultTest, LosesNothingWhicheverCallFails) {
  for (const Scenario& scenario : kScenarios) {
    for (const unsigned long code : {5UL, 32UL, 112UL, 1117UL}) {
      for (const bool permanent : {false, true}) {
        int nth = 1;
        for (bool failed = true; failed && !HasFailure(); ++nth) {
          SCOPED_TRACE(scenario.Title + ", call " + std::to_string(nth) + ", code " + std::to_string(code) +
                       (permanent ? ", permanent" : ""));
          failed = SaveFailing(scenario, nth, code, permanent);
        }
        EXPECT_TRUE(nth > 8 || HasFailure()) << scenario.Title;
      }
    }
  }
}

TEST_F(SaveFaultTest, NeverLeavesHalfAFileOnAFullDisk) {
  const Scenario& scenario = kScenarios[2];
  const std::size_t size = kNewText.size();
  for (const std::size_t space : {std::size_t{0}, std::size_t{1}, std::size_t{65536}, size / 2, size - 1}) {
    SCOPED_TRACE(std::to_string(space) + " bytes");
    Arrange(scenario);
    Machine::DiskSpace(space);
    SaveDocument();
    EXPECT_EQ(boxes, Texts{"Failed to write file due to error # 61: Disk full"});
    for (const std::string& name : scenario.Files) EXPECT_EQ(Machine::FileBytes(name), TextOf(name));
    EXPECT_EQ(TestFiles::List().size(), scenario.Files.size());
    CheckMemory(scenario);
    EXPECT_TRUE(TheDocument.LockHeld);
    CheckNextSave(scenario);
  }
  // Room for the file, but for nothing else: the space of the old backup comes too late for the writing.
  Arrange(kScenarios[0]);
  Machine::DiskSpace(size);
  SaveDocument();
  EXPECT_EQ(boxes, (Texts{kSaved, "Failed to save optional info to Torvane.INI due to error # 61: Disk full"}));
  EXPECT_EQ(Machine::FileBytes(kScenarios[0].Target), kNewText);
}

TEST_F(SaveFaultTest, HasTheFileOnTheDiskItselfBeforeTheOldOneGoes) {
  for (const Scenario& scenario : kScenarios) {
    SCOPED_TRACE(scenario.Title);
    Arrange(scenario);
    SaveDocument();
    Machine::LosePower();
    if (SavedWas()) {
      EXPECT_EQ(Machine::FileBytes(scenario.Target), kNewText);
    }
  }
  TheDocument.FileName = InFolder("data\\Home.FIL");
  Machine::MakeFolder("data");
  WriteRescueCopy();
  Machine::LosePower();
  EXPECT_EQ(Machine::FileBytes("data\\Rescue.FIL"), kNewText);
}

TEST_F(SaveFaultTest, SaysSoBeforeItListsTheFile) {
  Arrange(kScenarios[1]);
  CurrentStage().Message = [this](const std::string& text, const std::string&, Buttons, Icon) {
    boxes.push_back(text);
    EXPECT_EQ(Machine::FileBytes("Home.FIL"), kNewText);
    EXPECT_TRUE(TheDocument.LockHeld);
    EXPECT_FALSE(TheDocument.Modified);
    EXPECT_FALSE(Machine::FileBytes("Torvane.INI").has_value());
    return Answer::Ok;
  };
  SaveDocument();
  EXPECT_EQ(boxes, Texts{kSaved});
  EXPECT_TRUE(Machine::FileBytes("Torvane.INI").has_value());
}

}  // namespace
