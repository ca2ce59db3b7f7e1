// Picking things: letter tabs, categories, name orders, and what was typed meanwhile.
#include "mainwindow/command_line.h"
#include "scenarios/main_form_test.h"

namespace {

using Names = std::vector<std::string>;

class ListTest : public MainFormTest {
 protected:
  void SetUp() override {
    MainFormTest::SetUp();
    PutHome();
    Start("Home.FIL");
  }
  void AnswersLetter(const std::string& answer) {
    user.AnswersInput(
        "Please type a letter of the alphabet.  Names beginning with that letter will be presented in the person pick "
        "list.",
        answer);
    user.ChoosesMenu(IDC_StartingLetterItem);
  }
  void PicksCategory(int opener, const std::string& category) {
    user.UsesForm(IDD_CatPickForm, [this, category] {
      EXPECT_EQ(user.SeesEntries(IDC_CategoryList), (Names{"All Categories", "Rooms", "Tools & toys", "On loan"}));
      user.Picks(IDC_CategoryList, category);
      user.Clicks(IDC_OKButton);
    });
    if (opener == IDC_CategoryFilterLabel) {
      user.Clicks(opener);
    } else {
      user.ChoosesMenu(opener);
    }
  }
};

TEST_F(ListTest, PicksThings) {
  user.Picks(IDC_PersonCombo, "Garden Shed");
  EXPECT_EQ(Shown(), "Garden Shed||Big Red_Barn|Zoo|Rooms,");
  user.Picks(IDC_PersonCombo, "Spade");
  EXPECT_EQ(Shown(), "Spade||Garden Shed||Tools & toys,On loan,");
  user.Picks(IDC_PersonCombo, "Zoo");
  EXPECT_EQ(Shown(), "Zoo||||");
  EXPECT_FALSE(TheDocument.Modified);
  EXPECT_FALSE(TheDocument.PendingEdits);
}

TEST_F(ListTest, NarrowsTheListToALetter) {
  user.Clicks(IDC_LetterLabel + ('S' - 'A'));
  EXPECT_EQ(Listed(), Names{"Spade"});
  EXPECT_EQ(user.Sees(IDC_PersonCombo), "Big Red_Barn");  // the current thing stays, though it is not listed
  EXPECT_EQ(TheDocument.CurrentThing, 1);
  EXPECT_FALSE(user.SeesMenuChecked(IDC_AllNamesItem));
  EXPECT_TRUE(user.SeesMenuChecked(IDC_StartingLetterItem));
  EXPECT_EQ(user.SeesEntries(IDC_FatherCombo).size(), 6u);  // every thing can be linked
  user.Picks(IDC_PersonCombo, "Spade");
  EXPECT_EQ(TheDocument.CurrentThing, 4);

  user.ChoosesMenu(IDC_SurnameOrderItem);
  EXPECT_EQ(Listed(), (Names{"Shed, Garden", "Spade"}));
  user.Clicks(IDC_LetterLabel + ('R' - 'A'));
  EXPECT_EQ(Listed(), (Names{"Red Barn, Big", "rake"}));
  user.Clicks(IDC_LetterLabel + ('X' - 'A'));
  EXPECT_EQ(Listed(), Names{});
  EXPECT_EQ(user.Sees(IDC_PersonCombo), "Spade");
  user.Clicks(IDC_AllLabel);
  EXPECT_EQ(Listed().size(), 5u);
  EXPECT_TRUE(user.SeesMenuChecked(IDC_AllNamesItem));
  EXPECT_FALSE(user.SeesMenuChecked(IDC_StartingLetterItem));
}

TEST_F(ListTest, AsksForALetter) {
  AnswersLetter("zebra");
  EXPECT_EQ(Listed(), Names{"Zoo"});
  for (const char* answer : {"", "1", " a", "\xE9"}) AnswersLetter(answer);
  EXPECT_EQ(Listed(), Names{"Zoo"});
  user.ChoosesMenu(IDC_AllNamesItem);
  EXPECT_EQ(Listed().size(), 5u);
  AnswersLetter("a");
  EXPECT_TRUE(user.SeesBold(IDC_LetterLabel));
}

TEST_F(ListTest, NarrowsTheListToACategory) {
  PicksCategory(IDC_CategoryFilterLabel, "Tools & toys");
  EXPECT_EQ(Listed(), (Names{"rake", "Spade"}));
  EXPECT_EQ(user.Sees(IDC_CategoryFilterLabel), "Tools & toys");
  EXPECT_TRUE(user.SeesMenuChecked(IDC_SelCategoryItem));
  EXPECT_FALSE(user.SeesMenuChecked(IDC_AllCategoryItem));
  user.Clicks(IDC_LetterLabel + ('S' - 'A'));
  EXPECT_EQ(Listed(), Names{"Spade"});  // both filters count
  PicksCategory(IDC_SelCategoryItem, "On loan");
  user.Clicks(IDC_AllLabel);
  EXPECT_EQ(Listed(), Names{"Spade"});

  user.UsesForm(IDD_CatPickForm, [this] {
    EXPECT_EQ(user.SeesSelected(IDC_CategoryList), "On loan");
    user.Picks(IDC_CategoryList, "Rooms");
    user.Clicks(IDC_CancelButton);
  });
  user.ChoosesMenu(IDC_SelCategoryItem);
  EXPECT_EQ(Listed(), Names{"Spade"});
  user.ChoosesMenu(IDC_AllCategoryItem);
  EXPECT_EQ(Listed().size(), 5u);
  EXPECT_EQ(user.Sees(IDC_CategoryFilterLabel), "All Categories");
  PicksCategory(IDC_SelCategoryItem, "Rooms");
  PicksCategory(IDC_SelCategoryItem, "All Categories");
  EXPECT_TRUE(user.SeesMenuChecked(IDC_AllCategoryItem));
  EXPECT_EQ(Listed().size(), 5u);
}

TEST_F(ListTest, TurnsNamesAround) {
  user.Picks(IDC_PersonCombo, "Garden Shed");
  user.ChoosesMenu(IDC_SurnameOrderItem);
  EXPECT_EQ(Listed(), (Names{"Red Barn, Big", "Shed, Garden", "rake", "Spade", "Zoo"}));  // in the stored names' order
  EXPECT_EQ(Shown(), "Shed, Garden||Red Barn, Big|Zoo|Rooms,");
  EXPECT_TRUE(user.SeesMenuChecked(IDC_SurnameOrderItem));
  EXPECT_FALSE(user.SeesMenuChecked(IDC_GivenNameItem));
  user.ChoosesMenu(IDC_GivenNameItem);
  EXPECT_EQ(Shown(), "Garden Shed||Big Red_Barn|Zoo|Rooms,");
  EXPECT_FALSE(TheDocument.Modified);
}

TEST_F(ListTest, StoresWhatWasTypedBeforeAnythingElse) {
  const auto type_and = [this](const std::string& note, const std::function<void()>& act) {
    user.Types(IDC_NoteBox, "  " + note + " ");
    EXPECT_TRUE(TheDocument.PendingEdits);
    act();
    EXPECT_FALSE(TheDocument.PendingEdits);
    EXPECT_EQ(TheDocument.Things[2].NOTE, note);
    EXPECT_EQ(TheDocument.Things[2].XREF1, 1);  // the links were refilled and selected again
    EXPECT_EQ(TheDocument.Things[2].XREF2, 5);
    EXPECT_EQ(user.Sees(IDC_NoteBox), note);
  };
  user.Picks(IDC_PersonCombo, "Garden Shed");
  type_and("a", [this] { user.ChoosesMenu(IDC_SurnameOrderItem); });
  type_and("b", [this] { user.ChoosesMenu(IDC_GivenNameItem); });
  type_and("c", [this] { user.Clicks(IDC_LetterLabel); });
  type_and("d", [this] { user.Clicks(IDC_AllLabel); });
  type_and("e", [this] { PicksCategory(IDC_SelCategoryItem, "Rooms"); });
  type_and("f", [this] { user.ChoosesMenu(IDC_AllCategoryItem); });
  EXPECT_TRUE(TheDocument.Modified);

  // The item that is checked already does nothing at all.
  user.Types(IDC_NoteBox, "later");
  user.ChoosesMenu(IDC_AllCategoryItem);
  user.ChoosesMenu(IDC_AllNamesItem);
  user.ChoosesMenu(IDC_GivenNameItem);
  EXPECT_EQ(TheDocument.Things[2].NOTE, "f");
  user.Picks(IDC_PersonCombo, "Zoo");  // to the thing that was shown, not to the one picked
  EXPECT_EQ(TheDocument.Things[2].NOTE, "later");
  EXPECT_EQ(TheDocument.Things[5].NOTE, "");
  EXPECT_EQ(Shown(), "Zoo||||");

  // Before a dialog, whatever becomes of it.
  const auto type_before = [this](const std::string& note, int item) {
    user.Types(IDC_NoteBox, note);
    user.ChoosesMenu(item);
    EXPECT_EQ(TheDocument.Things[5].NOTE, note);
  };
  user.UsesForm(IDD_CatPickForm, [this] { user.Clicks(IDC_CancelButton); });
  type_before("g", IDC_SelCategoryItem);
  user.AnswersInput("Please type the name for the new object.", "");
  type_before("h", IDC_AddPersonItem);
  user.AnswersInput("Please type the new name for Zoo", "");
  type_before("i", IDC_RenameItem);
  user.UsesForm(IDD_FileForm, [this] { user.Clicks(IDC_CancelButton); });
  type_before("j", IDC_PhotoItem);
}

TEST_F(ListTest, StoresLinks) {
  user.Picks(IDC_PersonCombo, "Garden Shed");
  user.Picks(IDC_FatherCombo, "");
  user.Picks(IDC_MotherCombo, "Spade");
  EXPECT_EQ(user.SeesCaption(), "Larkspur Filer - Home.FIL *");
  user.Picks(IDC_PersonCombo, "Zoo");
  EXPECT_EQ(TheDocument.Things[2].XREF1, 0);
  EXPECT_EQ(TheDocument.Things[2].XREF2, 4);

  // Each link counts alone.
  user.Picks(IDC_FatherCombo, "rake");
  user.Picks(IDC_PersonCombo, "Garden Shed");
  EXPECT_EQ(TheDocument.Things[5].XREF1, 3);
  user.Picks(IDC_MotherCombo, "");
  user.Picks(IDC_PersonCombo, "Zoo");
  EXPECT_EQ(TheDocument.Things[2].XREF2, 0);

  // A link that no thing answers to is kept as long as the user chooses no other.
  TheDocument.Things[4].XREF2 = 999;
  user.Picks(IDC_PersonCombo, "Spade");
  EXPECT_EQ(Shown(), "Spade||Garden Shed||Tools & toys,On loan,");
  user.Types(IDC_NoteBox, "x");
  user.Picks(IDC_PersonCombo, "Zoo");
  EXPECT_EQ(TheDocument.Things[4].XREF1, 2);
  EXPECT_EQ(TheDocument.Things[4].XREF2, 999);
}

TEST_F(ListTest, CorrectsLineBreaksOnce) {
  const std::string message =
      "Your text has some line breaks in it.  Sorry, but we only permit you to enter one paragraph here.  The line "
      "breaks will be removed and replaced with question marks.";
  user.Types(IDC_NoteBox, "one\r\n\r\ntwo");
  user.Reads(message, Icon::Exclamation);
  user.MovesTo(IDC_FatherCombo);
  EXPECT_EQ(user.Sees(IDC_NoteBox), "one??two");
  user.Picks(IDC_PersonCombo, "Zoo");
  EXPECT_EQ(TheDocument.Things[1].NOTE, "one??two");

  // A click that leaves the box still counts.
  user.Types(IDC_NoteBox, "three\r\nfour");
  user.Reads(message, Icon::Exclamation);
  user.UsesForm(IDD_CatDefForm, [&] { user.Clicks(IDC_CancelButton); });
  user.Clicks(IDC_DefCatButton);
  EXPECT_EQ(TheDocument.Things[5].NOTE, "three?four");

  user.Types(IDC_NoteBox, "five\r\nsix");
  user.Reads(message, Icon::Exclamation);
  user.ChoosesMenu(IDC_SurnameOrderItem);
  EXPECT_EQ(TheDocument.Things[5].NOTE, "five?six");
  EXPECT_FALSE(TheDocument.PendingEdits);

  std::string text = "a\rb\nc\r\nd";
  user.Reads(message, Icon::Exclamation);
  EXPECT_TRUE(MainForm::ValidateText(text));
  EXPECT_EQ(text, "a?b?c?d");
  EXPECT_FALSE(MainForm::ValidateText(text));
}

TEST_F(ListTest, TicksCategoriesAtOnce) {
  user.Picks(IDC_PersonCombo, "Zoo");
  user.Ticks(IDC_CatList, "On loan");
  EXPECT_EQ(TheDocument.Things[5].CATBITMAP, CategoryBit(32));
  EXPECT_TRUE(TheDocument.Modified);
  EXPECT_FALSE(TheDocument.PendingEdits);
  user.Ticks(IDC_CatList, "Tools & toys");
  EXPECT_EQ(TheDocument.Things[5].CATBITMAP, CategoryBit(32) | 4);
  user.Ticks(IDC_CatList, "On loan");
  EXPECT_EQ(TheDocument.Things[5].CATBITMAP, 4);
  user.Ticks(IDC_CatList, "");  // a number without a name is no category
  EXPECT_EQ(user.SeesTicked(IDC_CatList), Names{"Tools & toys"});
  EXPECT_EQ(TheDocument.Things[5].CATBITMAP, 4);
}

TEST_F(ListTest, FindsAThingByTyping) {
  user.Types(IDC_PersonCombo, "s");
  EXPECT_EQ(user.Sees(IDC_PersonCombo), "Spade");  // offered
  EXPECT_EQ(TheDocument.CurrentThing, 1);
  user.Presses(Key::Enter);
  EXPECT_EQ(Shown(), "Spade||Garden Shed||Tools & toys,On loan,");

  user.Types(IDC_PersonCombo, "gard");
  user.Presses(Key::Escape);
  EXPECT_EQ(user.Sees(IDC_PersonCombo), "Spade");
  user.Types(IDC_PersonCombo, "q");
  EXPECT_EQ(user.Sees(IDC_PersonCombo), "q");
  user.Presses(Key::Enter);
  EXPECT_EQ(user.Sees(IDC_PersonCombo), "Spade");
  user.Types(IDC_PersonCombo, "zo");
  user.MovesTo(IDC_NoteBox);
  EXPECT_EQ(user.Sees(IDC_PersonCombo), "Zoo");
  EXPECT_EQ(TheDocument.CurrentThing, 5);
  user.Types(IDC_PersonCombo, "q");
  user.MovesTo(IDC_NoteBox);
  EXPECT_EQ(user.Sees(IDC_PersonCombo), "Zoo");
}

TEST_F(ListTest, OffersAnewWhenAnotherLetterTakesThePlaceOfOne) {
  user.Types(IDC_PersonCombo, "s");
  user.Types(IDC_PersonCombo, "z");
  EXPECT_EQ(user.Sees(IDC_PersonCombo), "Zoo");
}

TEST_F(ListTest, ShowsPhotosAndWhereThereIsMore) {
  EXPECT_FALSE(user.SeesMarked(IDC_DataButton));
  user.Picks(IDC_PersonCombo, "Garden Shed");
  EXPECT_TRUE(user.SeesMarked(IDC_DataButton));
  TestFiles::MakeFolder("data");
  TestFiles::Put("data\\rake.bmp", Bitmap());
  TheDocument.Things[3].PICFILENAME = "rake.bmp";
  TheStart.WorkingFolder = InFolder("data");
  user.Picks(IDC_PersonCombo, "rake");
  EXPECT_TRUE(user.SeesPicture(IDC_PhotoPic));
  EXPECT_FALSE(user.SeesMarked(IDC_DataButton));
  user.Picks(IDC_PersonCombo, "Zoo");
  EXPECT_FALSE(user.SeesPicture(IDC_PhotoPic));
  user.UsesForm(IDD_FactForm, [this] {
    user.Types(IDC_DataBox, "3");
    user.Clicks(IDC_OKButton);
  });
  user.Clicks(IDC_DataButton);
  EXPECT_TRUE(user.SeesMarked(IDC_DataButton));
}

TEST_F(ListTest, LeavesALinkThatTheListsCannotShow) {
  TheDocument.Things[5].XREF1 = 999;
  user.Picks(IDC_PersonCombo, "Zoo");
  user.Types(IDC_NoteBox, "typed");
  user.Picks(IDC_PersonCombo, "rake");
  EXPECT_EQ(TheDocument.Things[5].XREF1, 999);
  EXPECT_EQ(TheDocument.Things[5].NOTE, "typed");
}

TEST_F(ListTest, RemovesTheLinkToAPhotoThatCannotBeLoaded) {
  TheDocument.Things[3].PICFILENAME = "gone.jpg";
  user.Reads("I am unable to load the photo file for rake, due to error # 53. The picture file link will be removed.",
             Icon::Exclamation);
  user.Picks(IDC_PersonCombo, "rake");
  EXPECT_EQ(TheDocument.Things[3].PICFILENAME, "");
  EXPECT_TRUE(TheDocument.Modified);
  user.Picks(IDC_PersonCombo, "Zoo");
  user.Picks(IDC_PersonCombo, "rake");  // nothing more is said
}

}  // namespace
