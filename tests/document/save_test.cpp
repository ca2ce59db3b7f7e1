// The Save command in a person's hands: names, backups, the recent-files list.
#include "document/save_test.h"

#include "document/file_lock.h"
#include "mainwindow/command_line.h"
#include "scenarios/main_form_test.h"

namespace {

TEST_F(SaveTest, ProposesTheNumberBehindTheHighest) {
  const std::pair<Names, const char*> rows[] = {
      {{}, "Filer001.FIL"},
      {{"C:\\D\\FILER007.FIL"}, "Filer008.FIL"},
      {{"C:\\D\\Home.FIL", "filer002.fil", "D:Filer011.FIL", "C:\\Filer003.FIL"}, "Filer012.FIL"},
      {{"C:\\D\\Home.FIL"}, "Filer001.FIL"},
      {{"C:\\Filer009.FIL\\Home.FIL"}, "Filer001.FIL"},  // a folder's name counts for nothing
      {{"C:\\D\\My Filer041 old.FIL"}, "Filer042.FIL"},
      {{"C:\\D\\Filer99"}, "Filer001.FIL"},  // two characters only
      {{"C:\\D\\Filer998.FIL"}, "Filer999.FIL"},
      {{"Filer005.FIL", "Filer999.FIL"}, "Filer999.FIL"},  // no number behind it: that of the last entry
      {{"Filer999.FIL", "Filer005.FIL"}, "Filer005.FIL"},
      {{"Filer.FIL"}, "Filer000.FIL"},
      {{"Filer000.FIL"}, "Filer000.FIL"},
      {{"Filer004.FIL", "Filer.FIL"}, "Filer005.FIL"},
      {{"Filer7a.FIL"}, "Filer008.FIL"},
      {{"Filer0123.FIL"}, "Filer013.FIL"},
      {{"Filer041"}, "Filer042.FIL"},
      {{"Filer-12.FIL"}, "Filer-012.FIL"},
  };
  for (const auto& [recent, proposal] : rows) {
    TheRecentFiles = {};
    for (const std::string& name : recent) TheRecentFiles[++TheRecentFiles.Count] = name;
    std::string offered;
    user.UsesForm(IDD_FileForm, [&] {
      offered = user.Sees(IDC_NameBox);
      user.Clicks(IDC_CancelButton);
    });
    SaveDocument();
    EXPECT_EQ(offered, proposal) << (recent.empty() ? "" : recent[0]);
  }
}

TEST_F(SaveTest, SavesANewDocument) {
  Change("Shed");
  user.UsesForm(IDD_FileForm, [this] {
    EXPECT_EQ(user.SeesCaption(), "Larkspur Filer Save");
    EXPECT_EQ(user.Sees(IDC_NameBox), "Filer001.FIL");
    user.Presses(Key::Enter);
  });
  Saved();
  std::string known_as;
  SaveDocument([&] { known_as = TheDocument.Modified ? "not yet" : TheDocument.FileName; });
  EXPECT_EQ(known_as, InFolder("Filer001.FIL"));
  ExpectSaved("Filer001.FIL");
  EXPECT_FALSE(TheDocument.DocumentOpen);
  EXPECT_EQ(TestFiles::List(), (Names{"Filer001.FIL", "Torvane.INI"}));
  EXPECT_EQ(TestFiles::Get("Torvane.INI"),
            Lines({"TORVANE V5.0 INI", "[TOP10FILES]", "*1; NAME=" + InFolder("Filer001.FIL")}));

  // Once named, it is offered under its name, and the file in its place becomes the backup unasked.
  Change("Zoo");
  user.UsesForm(IDD_FileForm, [this] {
    EXPECT_EQ(user.Sees(IDC_NameBox), InFolder("Filer001.FIL"));
    user.Clicks(IDC_OKButton);
  });
  Saved();
  SaveDocument();
  ExpectSaved("Filer001.FIL");
  EXPECT_EQ(TestFiles::Get("Filer001.BAK"), FileOf("Shed"));
}

TEST_F(SaveTest, SavesIntoTheWorkingFolder) {
  TestFiles::MakeFolder("data");
  TheStart.WorkingFolder = InFolder("data");
  AcceptsTheOffer();
  Saved();
  SaveDocument();
  EXPECT_TRUE(TestFiles::Get("data\\Filer001.FIL").has_value());
  EXPECT_EQ(TheDocument.FileName, InFolder("data\\Filer001.FIL"));
}

TEST_F(SaveTest, KeepsOneBackup) {
  OpenAndChange("My.Home.FIL");
  TestFiles::Put("My.Home.BAK", "older");
  Types(InFolder("MY.home.fil"));  // the same file whatever the case
  Saved();
  SaveDocument();
  EXPECT_EQ(TestFiles::Get("My.Home.FIL"), FileOf("new"));
  EXPECT_EQ(TestFiles::Get("My.Home.BAK"), FileOf("old"));
  EXPECT_EQ(TestFiles::List().size(), 3u);  // and the settings
  EXPECT_TRUE(IsLocked("My.Home.FIL"));
}

TEST_F(SaveTest, WritesAFileThatWasDeletedMeanwhileAnew) {
  OpenAndChange("Home.FIL");
  ReleaseFileLock();
  Files::Erase("Home.FIL");
  TestFiles::Put("Home.BAK", "older");
  AcceptsTheOffer();
  Saved();
  SaveDocument();
  ExpectSaved("Home.FIL");
  EXPECT_EQ(TestFiles::Get("Home.BAK"), "older");
}

TEST_F(SaveTest, ReplacesAFileThatWouldBeItsOwnBackup) {
  OpenAndChange("Home.FIL");
  TestFiles::Put("Old.BAK", "older");
  Types("old.bak");
  Asked(kOverwrite, Answer::Ok);
  Saved();
  SaveDocument();
  EXPECT_EQ(TestFiles::Get("Old.BAK"), FileOf("new"));
  EXPECT_EQ(TestFiles::List().size(), 3u);  // with Home.FIL and the settings
}

TEST_F(SaveTest, RemembersTheLastTenFiles) {
  for (int number = 1; number <= 11; ++number) {
    MakeNew();
    AcceptsTheOffer();
    Saved();
    SaveDocument();
  }
  const Names files = TestFiles::List();
  ASSERT_EQ(files.size(), 12u);
  EXPECT_EQ(files[10], "Filer011.FIL");
  LoadSettings();  // as the program's next run finds it
  EXPECT_EQ(TheRecentFiles.Count, 10);
  EXPECT_EQ(TheRecentFiles[1], InFolder("Filer011.FIL"));
  EXPECT_EQ(TheRecentFiles[10], InFolder("Filer002.FIL"));
}

TEST_F(SaveTest, IsDoneEvenWhenTheListCannotBeWritten) {
  TestFiles::Put("Torvane.INI", "kept");
  TestFiles::SetReadOnly("Torvane.INI", true);
  Change("A");
  Types("Home.FIL");
  Saved();
  user.Reads("Failed to save optional info to Torvane.INI due to error # 75: Path/File access error",
             Icon::Exclamation);
  SaveDocument();
  ExpectSaved("Home.FIL");
  EXPECT_EQ(TestFiles::Get("Torvane.INI"), "kept");
}

class SaveCommandTest : public MainFormTest {};

TEST_F(SaveCommandTest, StoresWhatIsBeingTypedFirst) {
  PutHome();
  Start("Home.FIL");
  user.Types(IDC_NoteBox, "typed");
  user.UsesForm(IDD_FileForm, [this] { user.Clicks(IDC_OKButton); });
  user.Reads(kSaved, Icon::Information);
  user.Clicks(IDC_SaveButton);
  EXPECT_NE(TestFiles::Get("Home.FIL").value_or("").find("NOTE=typed\r\n"), std::string::npos);
  EXPECT_EQ(user.SeesCaption(), "Larkspur Filer - " + InFolder("Home.FIL"));

  user.Types(IDC_NoteBox, "again");
  user.UsesForm(IDD_FileForm, [this] { user.Clicks(IDC_OKButton); });
  user.Reads(kSaved, Icon::Information);
  user.ChoosesMenu(IDC_SaveItem);
  EXPECT_NE(TestFiles::Get("Home.FIL").value_or("").find("NOTE=again\r\n"), std::string::npos);
}

}  // namespace
