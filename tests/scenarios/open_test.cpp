// Starting the program, opening files, beginning anew and leaving.
#include "mainwindow/settings.h"
#include "platform/program.h"
#include "scenarios/main_form_test.h"

namespace {

const std::string kAbandon = "A file is already opened.  Are you sure you want to abandon any unsaved changes?";

using Names = std::vector<std::string>;

class OpenTest : public MainFormTest {
 protected:
  // The tabs in bold letters, which alone have no border.
  std::string BoldTabs() {
    std::string text;
    const auto look_at = [&](int id, const std::string& caption) {
      EXPECT_NE(user.SeesBold(id), user.SeesBorder(id)) << caption;
      if (user.SeesBold(id)) text += caption;
    };
    look_at(IDC_AllLabel, "All");
    for (int letter = 0; letter < 26; ++letter) {
      look_at(IDC_LetterLabel + letter, std::string(1, static_cast<char>('A' + letter)));
    }
    return text;
  }
};

TEST_F(OpenTest, StartsEmptyWithoutAFile) {
  Start();
  EXPECT_EQ(user.SeesCaption(), "Larkspur Filer");
  EXPECT_EQ(Listed(), Names{});
  EXPECT_EQ(Shown(), "||||");
  EXPECT_EQ(user.SeesEntries(IDC_FatherCombo), Names{""});
  EXPECT_EQ(user.SeesEntries(IDC_CatList), Names{});
  EXPECT_EQ(user.Sees(IDC_CategoryFilterLabel), "All Categories");
  EXPECT_TRUE(user.SeesMenuChecked(IDC_AllNamesItem));
  EXPECT_TRUE(user.SeesMenuChecked(IDC_AllCategoryItem));
  EXPECT_TRUE(user.SeesMenuChecked(IDC_GivenNameItem));
  for (const int id : {IDC_NoteBox, IDC_FatherCombo, IDC_MotherCombo, IDC_CatList}) EXPECT_FALSE(user.SeesEnabled(id));
}

TEST_F(OpenTest, ShowsTheStartFile) {
  PutHome();
  Start("Home.FIL");
  EXPECT_EQ(user.SeesCaption(), "Larkspur Filer - Home.FIL");
  EXPECT_EQ(TheDocument.FileName, "Home.FIL");  // as the command line wrote it
  EXPECT_TRUE(TheDocument.LockHeld);
  EXPECT_EQ(Listed(), (Names{"Big Red_Barn", "Garden Shed", "rake", "Spade", "Zoo"}));
  EXPECT_EQ(Shown(), "Big Red_Barn|It stands in the field.|||Rooms,");
  EXPECT_EQ(user.SeesEntries(IDC_MotherCombo), (Names{"", "Big Red_Barn", "Garden Shed", "rake", "Spade", "Zoo"}));
  const Names categories = user.SeesEntries(IDC_CatList);
  ASSERT_EQ(categories.size(), 32u);  // entry k is category k
  EXPECT_EQ(categories[0] + categories[1] + categories[2] + categories[31], "RoomsTools & toysOn loan");
  EXPECT_TRUE(user.SeesEnabled(IDC_NoteBox));
}

TEST_F(OpenTest, FindsTheStartFileInTheWorkingFolder) {
  TestFiles::MakeFolder("data");
  TestFiles::Put("data\\Home.FIL", Lines({"LARKSPUR V5.0 FILER DATA", "[THINGS]", "NAME=Shed", "[END]"}));
  Start("Home.FIL /DIR=" + InFolder("data"));
  EXPECT_EQ(user.SeesCaption(), "Larkspur Filer - Home.FIL");
  EXPECT_EQ(Listed(), Names{"Shed"});
}

TEST_F(OpenTest, ShowsTheStartThing) {
  PutHome();
  Start("Home.FIL /PERSON=RAKE");
  EXPECT_EQ(Shown(), "rake|Green; caf\xE9|Garden Shed||Tools & toys,");
  EXPECT_FALSE(TheDocument.Modified);
}

TEST_F(OpenTest, AddsAStartThingThatIsNotThere) {
  PutHome();
  Start("Home.FIL /PERSON=\"House, Old\"");
  EXPECT_EQ(Shown(), "Old House||||");
  EXPECT_EQ(Listed(), (Names{"Big Red_Barn", "Garden Shed", "Old House", "rake", "Spade", "Zoo"}));
  EXPECT_EQ(user.SeesCaption(), "Larkspur Filer - Home.FIL *");
  user.Picks(IDC_PersonCombo, "Garden Shed");
  EXPECT_EQ(Shown(), "Garden Shed||Big Red_Barn|Zoo|Rooms,");  // the links followed

  // Written noun first it is found under its stored name.
  form.reset();
  MakeNew();
  Start("Home.FIL /PERSON=\"Red Barn, Big\"");
  EXPECT_EQ(user.Sees(IDC_PersonCombo), "Big Red_Barn");
  EXPECT_EQ(Listed().size(), 5u);
}

TEST_F(OpenTest, FindsAStartThingByItsNameAsItStands) {
  TestFiles::Put("Odd.FIL",
                 Lines({"LARKSPUR V5.0 FILER DATA", "[THINGS]", "NAME=A, B, C", "*2", "NAME=Shed", "[END]"}));
  Start("Odd.FIL");
  EXPECT_EQ(TheDocument.CurrentThing, 1);
  const std::string odd = TheDocument.Things[1].NAME;
  ASSERT_NE(odd.find(','), std::string::npos);  // a name that would be turned again
  form.reset();
  MakeNew();
  Start("Odd.FIL /PERSON=\"" + odd + "\"");
  EXPECT_EQ(TheDocument.Things.Count(), 2);
  EXPECT_EQ(user.Sees(IDC_PersonCombo), odd);
}

TEST_F(OpenTest, StartsAtTheFirstThingEvenWithoutAName) {
  TestFiles::Put("Odd.FIL", Lines({"LARKSPUR V5.0 FILER DATA", "[THINGS]", "*2;NAME=Shed", "[END]"}));
  Start("Odd.FIL");
  EXPECT_EQ(TheDocument.CurrentThing, 1);
}

TEST_F(OpenTest, AddsAStartThingToAnEmptyDocument) {
  Start("/PERSON=Shed");
  EXPECT_EQ(Listed(), Names{"Shed"});
  EXPECT_EQ(user.SeesCaption(), "Larkspur Filer *");
  form.reset();
  MakeNew();
  Start("/PERSON= , ");  // nothing is left of this name
  EXPECT_EQ(Listed(), Names{});
}

TEST_F(OpenTest, OffersTheLastSavedFileWhenStartedWithoutOne) {
  PutHome();
  PutRecent({InFolder("Home.FIL"), "other.FIL"});
  user.UsesForm(IDD_FileForm, [this] {
    EXPECT_EQ(user.SeesCaption(), "Larkspur Filer Open");
    EXPECT_EQ(user.Sees(IDC_NameBox), InFolder("Home.FIL"));
    EXPECT_EQ(user.SeesEntries(IDC_NameBox), (Names{InFolder("Home.FIL"), "other.FIL"}));
    user.Clicks(IDC_OKButton);
  });
  Start();
  EXPECT_EQ(user.SeesCaption(), "Larkspur Filer - " + InFolder("Home.FIL"));
  EXPECT_EQ(user.Sees(IDC_PersonCombo), "Big Red_Barn");
  EXPECT_EQ(TheRecentFiles.Count, 2);  // opening does not change the list
}

TEST_F(OpenTest, StaysEmptyWhenTheOfferIsDeclined) {
  PutRecent({"gone.FIL"});
  user.UsesForm(IDD_FileForm, [this] { user.Clicks(IDC_CancelButton); });
  Start("/PERSON=Shed");
  EXPECT_EQ(Listed(), Names{"Shed"});  // the start thing alone
}

TEST_F(OpenTest, OpensAnotherFile) {
  PutHome();
  TestFiles::Put("Other.FIL", Lines({"LARKSPUR V5.0 FILER DATA", "[THINGS]", "*2; NAME=Second", "*1; NAME=First",
                                     "XREF1=2", "*2; NAME=Second", "[END]"}));
  Start("Home.FIL");
  user.Clicks(IDC_LetterLabel + 1);
  user.Answers(kAbandon, Answer::Cancel, Icon::Information, Buttons::OkCancel);
  user.Clicks(IDC_OpenButton);
  EXPECT_EQ(user.SeesCaption(), "Larkspur Filer - Home.FIL");

  user.Answers(kAbandon, Answer::Ok, Icon::Information, Buttons::OkCancel);
  user.UsesForm(IDD_FileForm, [this] {
    EXPECT_EQ(user.Sees(IDC_NameBox), "Home.FIL");
    user.Types(IDC_NameBox, "none.FIL");
    user.Reads("Failed to open file " + InFolder("none.FIL") + " due to error # 53: File not found", Icon::Exclamation);
    user.Clicks(IDC_OKButton);
    user.Clicks(IDC_CancelButton);
  });
  user.ChoosesMenu(IDC_OpenItem);
  EXPECT_EQ(user.SeesCaption(), "Larkspur Filer - Home.FIL");  // untouched
  EXPECT_EQ(Listed(), Names{"Big Red_Barn"});

  user.Answers(kAbandon, Answer::Ok, Icon::Information, Buttons::OkCancel);
  user.UsesForm(IDD_FileForm, [this] {
    user.ChoosesFile(InFolder("Other.FIL"));
    user.Clicks(IDC_BrowseButton);
    EXPECT_EQ(user.Sees(IDC_NameBox), InFolder("Other.FIL"));
    user.Clicks(IDC_OKButton);
  });
  user.ChoosesMenu(IDC_OpenItem);
  EXPECT_EQ(user.SeesCaption(), "Larkspur Filer - " + InFolder("Other.FIL"));
  EXPECT_EQ(Listed(), (Names{"First", "Second"}));  // the letter is All again
  EXPECT_EQ(Shown(), "First||Second||");
  EXPECT_EQ(user.SeesEntries(IDC_CatList), Names{});
}

TEST_F(OpenTest, ShowsWhatCouldBeReadOfADamagedFile) {
  TestFiles::Put("Cut.FIL", Lines({"LARKSPUR V5.0 FILER DATA", "[CATEGORIES]", "NAME=Rooms", "[THINGS]",
                                   "*2; NAME=Shed", "NOTE=wood", "CATBITMAP=1"}));
  Start();
  user.UsesForm(IDD_FileForm, [this] {
    user.Types(IDC_NameBox, "Cut.FIL");
    user.Clicks(IDC_OKButton);
  });
  user.Reads("The file was not completely loaded.  Some information will be missing.", Icon::Exclamation);
  user.Clicks(IDC_OpenButton);
  EXPECT_EQ(user.SeesCaption(), "Larkspur Filer");
  EXPECT_FALSE(TheDocument.DocumentOpen);
  EXPECT_EQ(Listed(), Names{"Shed"});
  EXPECT_EQ(Shown(), "Shed|wood|||Rooms,");
}

TEST_F(OpenTest, HidesADamagedStartFileBehindADeclinedOffer) {
  PutRecent({"other.FIL"});
  TestFiles::Put("Cut.FIL", Lines({"LARKSPUR V5.0 FILER DATA", "[THINGS]", "NAME=Shed"}));
  user.Reads("The file was not completely loaded.  Some information will be missing.", Icon::Exclamation);
  user.UsesForm(IDD_FileForm, [this] { user.Clicks(IDC_CancelButton); });
  Start("Cut.FIL");
  EXPECT_EQ(Listed(), Names{});
  EXPECT_FALSE(user.SeesVisible(IDC_HintLabel));  // for there is a thing
}

TEST_F(OpenTest, SpeaksOfTheSettingsBeforeTheFile) {
  TestFiles::Put("Torvane.INI", "nothing of ours\r\n");
  user.Reads("Failed to load TORVANE.INI due to invalid format or version.", Icon::Exclamation);
  user.Reads("Failed to open file " + InFolder("none.FIL") + " due to error # 53: File not found", Icon::Exclamation);
  Start("none.FIL");
}

TEST_F(OpenTest, EmptiesTheWindowWhenALoadFails) {
  PutHome();
  TestFiles::Put("Bad.FIL", "LARKSPUR V6.0 FILER DATA\r\n");
  Start("Home.FIL");
  user.Answers(kAbandon, Answer::Ok, Icon::Information, Buttons::OkCancel);
  user.UsesForm(IDD_FileForm, [this] {
    user.Types(IDC_NameBox, "Bad.FIL");
    user.Clicks(IDC_OKButton);
  });
  user.Reads("Failed to load Filer data file due to invalid format or version.", Icon::Exclamation);
  user.Clicks(IDC_OpenButton);
  EXPECT_EQ(user.SeesCaption(), "Larkspur Filer");
  EXPECT_EQ(Shown(), "||||");
  EXPECT_FALSE(user.SeesEnabled(IDC_NoteBox));
  EXPECT_FALSE(TheDocument.LockHeld);
}

TEST_F(OpenTest, BeginsAnew) {
  PutHome();
  Start("Home.FIL");
  user.ChoosesMenu(IDC_SurnameOrderItem);
  user.Answers(kAbandon, Answer::Cancel, Icon::Information, Buttons::OkCancel);
  user.Clicks(IDC_NewButton);
  EXPECT_EQ(Listed().size(), 5u);
  user.Clicks(IDC_LetterLabel + 1);
  EXPECT_EQ(BoldTabs(), "B");
  user.UsesForm(IDD_CatPickForm, [this] {
    user.Picks(IDC_CategoryList, "Rooms");
    user.Clicks(IDC_OKButton);
  });
  user.ChoosesMenu(IDC_SelCategoryItem);
  user.Types(IDC_NoteBox, "changed");
  user.Answers(kAbandon, Answer::Ok, Icon::Information, Buttons::OkCancel);
  user.Clicks(IDC_NewButton);
  EXPECT_EQ(BoldTabs(), "All");
  EXPECT_EQ(user.Sees(IDC_CategoryFilterLabel), "All Categories");
  EXPECT_EQ(user.SeesCaption(), "Larkspur Filer");
  EXPECT_EQ(Shown(), "||||");
  EXPECT_EQ(user.SeesEntries(IDC_FatherCombo), Names{""});
  EXPECT_EQ(user.SeesEntries(IDC_CatList), Names{});
  EXPECT_FALSE(TheDocument.LockHeld);
  EXPECT_TRUE(user.SeesMenuChecked(IDC_SurnameOrderItem));  // the order is the user's own
  user.Clicks(IDC_NewButton);                               // nothing is open: nothing is asked
  EXPECT_FALSE(TestFiles::Get("Rescue.FIL").has_value());   // the user agreed to lose the changes
  TestFiles::Put("Other.FIL",
                 Lines({"LARKSPUR V5.0 FILER DATA", "[THINGS]", "*2; NAME=Barn", "*3; NAME=Shed", "[END]"}));
  user.UsesForm(IDD_FileForm, [this] {
    user.Types(IDC_NameBox, "Other.FIL");
    user.Clicks(IDC_OKButton);
  });
  user.Clicks(IDC_OpenButton);
  EXPECT_EQ(Listed(), (Names{"Barn", "Shed"}));  // neither the letter nor the category is left
  EXPECT_EQ(TheDocument.CurrentThing, 1);        // the first one, which has no name
}

TEST_F(OpenTest, KeepsAChangedNewDocumentInARescueCopy) {
  Start("/PERSON=Shed");
  user.Types(IDC_NoteBox, "typed only");
  user.Clicks(IDC_NewButton);
  const auto rescue = TestFiles::Get("Rescue.FIL");
  ASSERT_TRUE(rescue.has_value());
  EXPECT_NE(rescue->find("NOTE=typed only"), std::string::npos);
  EXPECT_EQ(Listed(), Names{});

  form.reset();
  PutHome();
  PutRecent({InFolder("Home.FIL")});
  const auto declines = [this] {
    user.UsesForm(IDD_FileForm, [this] {
      EXPECT_EQ(user.Sees(IDC_NameBox), InFolder("Home.FIL"));
      user.Clicks(IDC_CancelButton);
    });
  };
  declines();
  Start("/PERSON=Second");
  declines();
  user.Clicks(IDC_OpenButton);
  EXPECT_EQ(TestFiles::Get("Rescue2.FIL"), std::nullopt);  // nothing is given up yet
  user.Types(IDC_NoteBox, "typed last");
  user.UsesForm(IDD_FileForm, [this] {
    user.Types(IDC_NameBox, "Home.FIL");
    user.Clicks(IDC_OKButton);
  });
  user.Clicks(IDC_OpenButton);
  EXPECT_EQ(TestFiles::Get("Rescue.FIL"), rescue);
  EXPECT_NE(TestFiles::Get("Rescue2.FIL").value_or("").find("NAME=Second"), std::string::npos);
  EXPECT_NE(TestFiles::Get("Rescue2.FIL").value_or("").find("NOTE=typed last"), std::string::npos);
}

TEST_F(OpenTest, AsksBeforeLeavingAChangedDocument) {
  PutHome();
  Start("Home.FIL");
  EXPECT_THROW(user.Clicks(IDC_ExitButton), ProgramEnded);  // nothing changed: nothing is asked
  EXPECT_FALSE(TheDocument.LockHeld);

  form.reset();
  Start("Home.FIL");
  user.Types(IDC_NoteBox, "new");
  EXPECT_EQ(user.SeesCaption(), "Larkspur Filer - Home.FIL *");
  user.Answers("Exit Larkspur Filer without saving your changes?", Answer::No, Icon::None, Buttons::YesNo);
  user.ClosesWindow();
  EXPECT_EQ(TheDocument.Things[1].NOTE, "new");
  EXPECT_TRUE(TheDocument.LockHeld);
  user.Answers("Exit Larkspur Filer without saving your changes?", Answer::Yes, Icon::None, Buttons::YesNo);
  EXPECT_THROW(user.ChoosesMenu(IDC_ExitItem), ProgramEnded);
}

TEST_F(OpenTest, EndsAtOnceOnSettingsItCannotUnderstand) {
  TestFiles::Put("Torvane.INI", Lines({"TORVANE V5.0 INI", "[WINDOWS]"}));
  user.Reads("TORVANE.INI contains invalid record type: [WINDOWS]", Icon::Critical);
  EXPECT_THROW(Start(), ProgramEnded);
}

TEST_F(OpenTest, SaysThatAFileIsReadOnly) {
  PutHome();
  TestFiles::SetReadOnly("Home.FIL", true);
  user.Reads(
      "I have loaded the plan file, but I cannot lock it for writing.  If you make changes, you must save to a "
      "different file.",
      Icon::Exclamation);
  Start("Home.FIL");
  EXPECT_EQ(user.SeesCaption(), "Larkspur Filer - Home.FIL (read only)");
}

}  // namespace
