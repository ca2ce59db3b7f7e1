// Help from every window, in a browser that only the in-memory machine has.
#include "platform/headless/internals.h"
#include "platform/headless/machine.h"
#include "platform/program.h"
#include "scenarios/main_form_test.h"
#include "viewer/viewer_form.h"
#include "viewer/viewer_ids.h"

namespace {

constexpr RegistryRoot kUser = RegistryRoot::CurrentUser;
const std::string kQuestion =
    "I need a web browser to display the help, but your registry does not have an unambiguous reference to a single "
    "browser. Do you want to help me find your web browser so that I can open it?";

class HelpTest : public MainFormTest {
 protected:
  void SetUp() override {
    MainFormTest::SetUp();
    TestFiles::Put("browse.exe", "");
    Machine::SetProgramFolder("C:\\Program Files\\Filer");
    Machine::SetRegistryValue(kUser, "SOFTWARE\\Classes\\.HTM", "", "page");
    Machine::SetRegistryValue(kUser, "SOFTWARE\\Classes\\page\\shell\\open\\command", "", "C:\\TEST\\browse.exe %1");
    Machine::StartedPrograms();
    TestFiles::Put("Home.FIL", Lines({"LARKSPUR V5.0 FILER DATA", "[FIELDS]", "NAME=COLOUR; TITLE=Colour", "[THINGS]",
                                      "NAME=Shed", "[END]"}));
    Start("Home.FIL");
  }
  void TearDown() override {
    Machine::RemoveRegistryKey(kUser, "SOFTWARE");
    Machine::SetProgramFolder("C:\\LARKSPUR");
    MainFormTest::TearDown();
  }

  static void ExpectShown(const std::string& page) {
    EXPECT_EQ(Machine::StartedPrograms(),
              std::vector<std::string>{"C:\\TEST\\browse.exe \"C:\\Program Files\\Filer\\" + page + "\""});
  }

  // F1 in a form that a menu entry opens shows the page; the person then does what else is said, and cancels.
  void HelpsIn(int form_id, int menu_id, const std::string& page, const std::function<void()>& then = {}) {
    user.UsesForm(form_id, [this, page, then] {
      user.Presses(Key::Help);
      ExpectShown(page);
      if (then) then();
      user.Clicks(IDC_CancelButton);
    });
    user.ChoosesMenu(menu_id);
  }
};

TEST_F(HelpTest, EveryWindowHasItsPage) {
  user.Presses(Key::Help);
  ExpectShown("Larkspur_Manual.htm");
  user.Clicks(IDC_HelpButton);
  ExpectShown("Larkspur_Manual.htm");
  user.ChoosesMenu(IDC_ManualItem);
  ExpectShown("Larkspur_Manual.htm");
  user.ChoosesMenu(IDC_FilerHelpItem);
  ExpectShown("Larkspur_Filer.htm");

  HelpsIn(IDD_CatDefForm, IDC_DefCatItem, "Larkspur_People_CatDefForm.htm", [this] {
    user.Clicks(IDC_HelpButton);
    ExpectShown("Larkspur_People_CatDefForm.htm");
  });
  HelpsIn(IDD_CatPickForm, IDC_SelCategoryItem, "Larkspur_CatPickForm.htm");
  HelpsIn(IDD_FileForm, IDC_SaveItem, "Larkspur_FileForm.htm");
  HelpsIn(IDD_FactForm, IDC_DataItem, "Larkspur_FactForm.htm", [this] {
    user.ChoosesMenu(IDC_HelpItem);
    ExpectShown("Larkspur_Filer.htm");
    HelpsIn(IDD_FieldDefForm, IDC_AddFieldItem, "Larkspur_FieldDefForm.htm");
    HelpsIn(IDD_FormulaDefForm, IDC_AddFormulaItem, "Larkspur_FormulaDefForm.htm");
    HelpsIn(IDD_PickListForm, IDC_ChangeFieldItem, "Larkspur_PickListForm.htm");
    HelpsIn(IDD_DatePickForm, IDC_InsertDateItem, "Larkspur_DatePickForm.htm");
  });
}

TEST_F(HelpTest, TheViewerHasItsPageToo) {
  TestFiles::Put("R.PRN", "LARKSPUR V1.0 REPORT T=2\r\n\r\nTitle\r\nline\r\n");
  ViewerForm viewer("R.PRN");
  viewer.Start();
  user.Presses(Key::Help);
  ExpectShown("Larkspur_Viewer.htm");
  user.ChoosesMenu(IDC_ContentsItem);
  ExpectShown("Larkspur_Viewer.htm");
  HelpsIn(IDD_PreviewForm, IDC_PreviewItem, "Larkspur_Viewer.htm");
}

TEST_F(HelpTest, LooksForABrowserWhenNoneIsRegistered) {
  Machine::RemoveRegistryKey(kUser, "SOFTWARE");
  const auto is_asked = [this](Answer answer) {
    user.Reads(
        "Failed to open registry key <<HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.HTM>>. You may typed an invalid "
        "filetype, or you do not have an appropriate viewer program registered on your computer.",
        Icon::Critical);
    user.Answers(kQuestion, answer, Icon::None, Buttons::YesNo);
  };
  is_asked(Answer::No);
  user.Presses(Key::Help);
  is_asked(Answer::Yes);
  user.ChoosesFile("");
  user.Presses(Key::Help);
  EXPECT_EQ(Machine::StartedPrograms(), std::vector<std::string>{});
  // One that is registered and gone is looked for just so.
  Machine::SetRegistryValue(kUser, "SOFTWARE\\Classes\\.HTM", "", "page");
  Machine::SetRegistryValue(kUser, "SOFTWARE\\Classes\\page\\shell\\open\\command", "", "C:\\TEST\\gone.exe %1");
  user.Reads(
      "Failed to start program with command line: <<C:\\TEST\\gone.exe \"C:\\Program "
      "Files\\Filer\\Larkspur_Manual.htm\">> because of: Error # 53: File not found",
      Icon::Exclamation);
  user.Answers(kQuestion, Answer::No, Icon::None, Buttons::YesNo);
  user.Presses(Key::Help);
  Machine::RemoveRegistryKey(kUser, "SOFTWARE");
  // The choice is for this time only.
  for (int time = 1; time <= 2; ++time) {
    is_asked(Answer::Yes);
    user.ChoosesFile(InFolder("browse.exe"));
    user.Presses(Key::Help);
    ExpectShown("Larkspur_Manual.htm");
  }
}

TEST_F(HelpTest, AFailureThatEndsTheProgramLosesNothing) {
  Machine::RemoveRegistryKey(kUser, "SOFTWARE");
  Machine::SetRegistryValue(kUser, "SOFTWARE\\Classes\\.HTM", "Content Type", "text/html");
  const std::string last_words = "Failed to find registry value for:  Program exiting.";
  user.Reads(last_words, Icon::Critical);
  EXPECT_THROW(user.Presses(Key::Help), ProgramEnded);
  EXPECT_EQ(TestFiles::Get("Rescue.FIL"), std::nullopt);  // there was nothing to lose
  Start("Home.FIL");
  user.Types(IDC_NoteBox, "Typed and not stored yet.");
  bool kept = false;
  CurrentStage().Message = [&](const std::string& text, const std::string&, Buttons, Icon) {
    EXPECT_EQ(text, last_words);
    kept = TestFiles::Get("Rescue.FIL").has_value();  // already, for nobody knows when the box is answered
    return Answer::Ok;
  };
  EXPECT_THROW(user.Presses(Key::Help), ProgramEnded);
  EXPECT_TRUE(kept);
  EXPECT_NE(TestFiles::Get("Rescue.FIL").value_or("").find("NOTE=Typed and not stored yet."), std::string::npos);
}

}  // namespace
