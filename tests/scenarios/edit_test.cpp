// Adding, deleting and renaming things, their photos, and naming categories.
#include "mainwindow/settings.h"
#include "scenarios/main_form_test.h"
#include "support/expectations.h"

namespace {

using Names = std::vector<std::string>;

class EditTest : public MainFormTest {
 protected:
  // Each reads the box that comes behind the input box, if there is to be one.
  void Adds(const std::string& name, const std::string& box = "") {
    user.AnswersInput("Please type the name for the new object.", name);
    if (!box.empty()) user.Reads(box, Icon::Exclamation);
    user.Clicks(IDC_AddPersonButton);
  }
  void Renames(const std::string& from, const std::string& to, const std::string& box, Icon icon) {
    user.AnswersInput("Please type the new name for " + from, to);
    if (!box.empty()) user.Reads(box, icon);
    user.ChoosesMenu(IDC_RenameItem);
    EXPECT_EQ(Expected().LastOffered, from);
  }
  static std::string Links() {
    std::string text;
    for (int record = 1; record <= TheDocument.Things.Count(); ++record) {
      const ThingRecord& thing = TheDocument.Things[record];
      text += thing.NAME + ":" + std::to_string(thing.XREF1) + "," + std::to_string(thing.XREF2) + " ";
    }
    return text;
  }
};

TEST_F(EditTest, AddsThings) {
  Start();
  EXPECT_TRUE(user.SeesVisible(IDC_HintLabel));
  EXPECT_FALSE(user.SeesVisible(IDC_NoteBox));
  Adds("  Spade ");
  EXPECT_FALSE(user.SeesVisible(IDC_HintLabel));
  EXPECT_TRUE(user.SeesFocusOn(IDC_NoteBox));
  user.Types(IDC_NoteBox, "to dig");
  Adds("Barn, Big Red");
  EXPECT_EQ(Shown(), "Big Red Barn||||");
  EXPECT_EQ(Listed(), (Names{"Big Red Barn", "Spade"}));
  EXPECT_EQ(TheDocument.Things[2].NOTE, "to dig");
  EXPECT_EQ(user.SeesEntries(IDC_FatherCombo), (Names{"", "Big Red Barn", "Spade"}));
  EXPECT_TRUE(TheDocument.Modified);

  Adds("SPADE", "Sorry, this object is already on file.");
  Adds("");
  Adds(" , ");
  EXPECT_EQ(Listed().size(), 2u);
}

TEST_F(EditTest, KeepsLinksTrueWhenAdding) {
  PutHome();
  Start("Home.FIL");
  user.Clicks(IDC_LetterLabel + ('Z' - 'A'));
  Adds("Fork");
  EXPECT_EQ(Links(), "Big Red_Barn:0,0 Fork:0,0 Garden Shed:1,6 rake:3,0 Spade:3,0 Zoo:0,0 ");
  EXPECT_EQ(user.Sees(IDC_PersonCombo), "Fork");  // shown, though the letter keeps it out of the list
  EXPECT_EQ(Listed(), Names{"Zoo"});
}

TEST_F(EditTest, EachCommandAloneChangesTheDocument) {
  PutHome();
  for (const auto& act : std::vector<std::function<void()>>{
           [this] { Adds("Fork"); },
           [this] { Renames("Big Red_Barn", "Barn", "Record renamed.", Icon::Information); }}) {
    Start("Home.FIL");
    act();
    EXPECT_EQ(user.SeesCaption(), "Larkspur Filer - Home.FIL *");
    EXPECT_EQ(user.SeesEntries(IDC_FatherCombo)[1], TheDocument.Things[1].NAME);
    form.reset();
    MakeNew();
  }
}

TEST_F(EditTest, RefusesMoreThingsThanTheNumbersReach) {
  Start();
  TheDocument.Things.GrowFor(32767, 0);
  for (int record = 1; record < 32767; ++record) TheDocument.Things[record].CATBITMAP = record;
  TheDocument.Things.SetCount(32767);
  Adds("One more", "A file can hold at most 32767 things.  The thing was not added.");
  EXPECT_EQ(TheDocument.Things[32766].CATBITMAP, 32766);
  TheDocument.Things.SetCount(0);
}

TEST_F(EditTest, DeletesThings) {
  PutHome();
  Start("Home.FIL");
  user.Picks(IDC_PersonCombo, "Garden Shed");
  user.Types(IDC_NoteBox, "never stored");
  user.Reads("Record deleted.", Icon::Information);
  user.Clicks(IDC_DeleteButton);
  EXPECT_EQ(Links(), "Big Red_Barn:0,0 rake:0,0 Spade:0,0 Zoo:0,0 ");
  EXPECT_EQ(Shown(), "rake|Green; caf\xE9|||Tools & toys,");  // the next thing has the number now
  EXPECT_EQ(user.SeesCaption(), "Larkspur Filer - Home.FIL *");

  user.Picks(IDC_PersonCombo, "Zoo");
  user.Reads("Record deleted.", Icon::Information);
  user.ChoosesMenu(IDC_DeletePersonItem);
  EXPECT_EQ(user.Sees(IDC_PersonCombo), "Spade");  // the new last one
  for (int left = 3; left > 0; --left) {
    user.Reads("Record deleted.", Icon::Information);
    user.Clicks(IDC_DeleteButton);
  }
  EXPECT_EQ(Shown(), "||||");
  EXPECT_EQ(TheDocument.CurrentThing, 0);
  EXPECT_TRUE(user.SeesVisible(IDC_HintLabel));
  user.Types(IDC_PersonCombo, "x");
  user.Reads("No record is displayed to delete.", Icon::Information);
  user.ChoosesMenu(IDC_DeletePersonItem);
  user.Reads("No thing is displayed to rename.", Icon::Exclamation);
  user.ChoosesMenu(IDC_RenameItem);
}

TEST_F(EditTest, ActsOnTheThingThatTheListOffers) {
  PutHome();
  Start("Home.FIL");
  user.Types(IDC_NoteBox, "stored first");
  user.Types(IDC_PersonCombo, "s");
  user.Reads("Record deleted.", Icon::Information);
  user.ChoosesMenu(IDC_DeletePersonItem);
  EXPECT_EQ(Links(), "Big Red_Barn:0,0 Garden Shed:1,4 rake:2,0 Zoo:0,0 ");
  EXPECT_EQ(TheDocument.Things[1].NOTE, "stored first");
  user.Types(IDC_PersonCombo, "g");
  user.Clicks(IDC_LetterLabel + ('R' - 'A'));
  EXPECT_EQ(user.Sees(IDC_PersonCombo), "Garden Shed");
  EXPECT_EQ(TheDocument.CurrentThing, 2);
  user.Types(IDC_PersonCombo, "q");  // offers nothing
  user.Reads("Record deleted.", Icon::Information);
  user.ChoosesMenu(IDC_DeletePersonItem);
  EXPECT_EQ(Links(), "Big Red_Barn:0,0 rake:0,0 Zoo:0,0 ");
}

TEST_F(EditTest, RenamesThings) {
  PutHome();
  Start("Home.FIL");
  user.Picks(IDC_PersonCombo, "Garden Shed");
  user.Types(IDC_NoteBox, "stored first");
  Renames("Garden Shed", "Shed, The Old", "Record renamed.", Icon::Information);
  EXPECT_EQ(Links(), "Big Red_Barn:0,0 rake:4,0 Spade:4,0 The Old Shed:1,5 Zoo:0,0 ");
  EXPECT_EQ(Shown(), "The Old Shed|stored first|Big Red_Barn|Zoo|Rooms,");
  EXPECT_EQ(Listed(), (Names{"Big Red_Barn", "rake", "Spade", "The Old Shed", "Zoo"}));

  // Its own name in other letters is no other thing's.
  Renames("The Old Shed", "the old SHED", "Record renamed.", Icon::Information);
  Renames("the old SHED", "ZOO", "Sorry, there is already a thing with that name on file.", Icon::Exclamation);
  Renames("the old SHED", "", "", Icon::None);
  EXPECT_EQ(Links(), "Big Red_Barn:0,0 rake:4,0 Spade:4,0 the old SHED:1,5 Zoo:0,0 ");
}

TEST_F(EditTest, LinksPhotos) {
  PutHome();
  PutRecent({"Home.FIL"});
  TestFiles::Put("shed.jpg", Bitmap());
  Start("Home.FIL");
  user.Picks(IDC_PersonCombo, "Garden Shed");
  const auto chooses = [this](const std::string& offered, const std::string& name, int button) {
    user.UsesForm(IDD_FileForm, [=, this] {
      EXPECT_EQ(user.Sees(IDC_NameBox), offered);
      EXPECT_EQ(user.SeesEntries(IDC_NameBox), Names{});  // recent documents are no photos
      user.Types(IDC_NameBox, name);
      user.Clicks(button);
    });
    user.Clicks(IDC_PhotoButton);
  };
  chooses("", "shed.jpg", IDC_CancelButton);
  EXPECT_FALSE(TheDocument.Modified);
  EXPECT_EQ(TheRecentFiles.Count, 1);
  user.Types(IDC_NoteBox, "stored first");
  chooses("", "shed.jpg", IDC_OKButton);
  EXPECT_EQ(user.Sees(IDC_NoteBox), "stored first");
  EXPECT_EQ(TheRecentFiles.Count, 1);
  EXPECT_EQ(TheDocument.Things[2].PICFILENAME, InFolder("shed.jpg"));
  EXPECT_TRUE(TheDocument.Modified);
  chooses(InFolder("shed.jpg"), "shed.jpg", IDC_CancelButton);

  TestFiles::Put("lie.jpg", "no picture at all");
  user.UsesForm(IDD_FileForm, [this] {
    user.Types(IDC_NameBox, "lie.jpg");
    user.Clicks(IDC_OKButton);
  });
  user.Reads(
      "I am unable to load the photo file for Garden Shed, due to error # 481. The picture file link will be removed.",
      Icon::Exclamation);
  user.ChoosesMenu(IDC_PhotoItem);
  EXPECT_EQ(TheDocument.Things[2].PICFILENAME, "");

  TheDocument.Things.SetCount(0);
  TheDocument.CurrentThing = 0;
  user.Reads("First choose or add a thing, then click the button to select a portrait file.", Icon::Exclamation);
  user.Clicks(IDC_PhotoButton);
}

TEST_F(EditTest, NamesCategories) {
  PutHome();
  Start("Home.FIL");
  user.UsesForm(IDD_CatPickForm, [this] {
    user.Picks(IDC_CategoryList, "Rooms");
    user.Clicks(IDC_OKButton);
  });
  user.ChoosesMenu(IDC_SelCategoryItem);
  ASSERT_EQ(Listed().size(), 2u);

  user.UsesForm(IDD_CatDefForm, [this] {
    EXPECT_EQ(user.Sees(IDC_CategoryNameBox), "Rooms");
    EXPECT_EQ(user.Sees(IDC_CategoryNameBox + 31), "On loan");
    user.Types(IDC_CategoryNameBox, "Nothing");
    user.Clicks(IDC_CancelButton);
  });
  user.Clicks(IDC_DefCatButton);
  EXPECT_FALSE(TheDocument.Modified);
  EXPECT_EQ(user.Sees(IDC_CategoryFilterLabel), "Rooms");

  user.UsesForm(IDD_CatDefForm, [this] {
    user.Types(IDC_CategoryNameBox, " Halls ");
    user.Types(IDC_CategoryNameBox + 1, "Second");
    user.Types(IDC_CategoryNameBox + 31, "");
    user.Clicks(IDC_OKButton);
  });
  user.Clicks(IDC_DefCatButton);
  EXPECT_TRUE(TheDocument.Modified);
  EXPECT_EQ(user.SeesEntries(IDC_CatList), (Names{"Halls", "Second", "Tools & toys"}));
  EXPECT_EQ(user.Sees(IDC_CategoryFilterLabel), "Halls");
  EXPECT_EQ(TheDocument.Things[4].CATBITMAP, CategoryBit(32) | 4);  // things keep the bit of a category without a name
  EXPECT_EQ(user.SeesTicked(IDC_CatList), Names{"Halls"});

  user.UsesForm(IDD_CatDefForm, [this] {
    user.Types(IDC_CategoryNameBox, "");
    user.Clicks(IDC_OKButton);
  });
  user.ChoosesMenu(IDC_DefCatItem);
  EXPECT_EQ(user.Sees(IDC_CategoryFilterLabel), "All Categories");  // nothing is left to be narrowed to
  EXPECT_TRUE(user.SeesMenuChecked(IDC_AllCategoryItem));
  EXPECT_EQ(Listed().size(), 5u);
}

}  // namespace
