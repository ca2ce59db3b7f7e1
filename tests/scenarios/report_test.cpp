// Reports in a person's hands: setting them up, where they are written, and what is said on the way.
#include "document/file_handles.h"
#include "platform/files.h"
#include "reports/report_form.h"
#include "scenarios/main_form_test.h"

namespace {

using Names = std::vector<std::string>;

class ReportTest : public MainFormTest {
 protected:
  void SetUp() override {
    MainFormTest::SetUp();
    PutHome();
    TestFiles::Put("notes.txt", "keep me");
  }

  // Starts on Home.FIL, or on nothing, and uses the form that a report's command opens.
  void Use(int command, const std::function<void()>& acts) {
    if (form == nullptr) Start("Home.FIL");
    user.UsesForm(IDD_ReportForm, acts);
    user.ChoosesMenu(command);
  }
  // The last thing to come after a report: beside the tests there is no viewer.
  void MissesViewer() {
    user.Reads(
        "Sorry, I failed to start the LARKVIEW.EXE program that is provided with Larkspur due to error 53: File not "
        "found",
        Icon::Critical);
  }
  void Refuses(const std::string& text) {
    user.Reads(text, Icon::Exclamation);
    user.Clicks(IDC_OKButton);
  }
  static void ExpectReport(const std::string& name, const std::vector<std::string>& lines) {
    EXPECT_EQ(TestFiles::Get(name).value_or("no file"), Lines(lines));
  }
};

TEST_F(ReportTest, HasNothingToReport) {
  Start();
  for (const int command : {IDC_AddressRepItem, IDC_ItemValuesItem, IDC_DescendantItem}) {
    user.Reads("I have nothing to report!", Icon::Exclamation);
    user.ChoosesMenu(command);
  }
  form.reset();
  Start("Home.FIL");
  TheDocument.Fields.SetCount(0);
  user.Reads("I have nothing to report!", Icon::Exclamation);
  user.ChoosesMenu(IDC_ItemValuesItem);
}

TEST_F(ReportTest, ListsTheThingsOfSelectedCategories) {
  Start("Home.FIL");
  user.Types(IDC_NoteBox, "Not stored yet.");
  Use(IDC_AddressRepItem, [this] {
    EXPECT_FALSE(user.SeesVisible(IDC_PersonCombo));
    EXPECT_FALSE(user.SeesVisible(IDC_PersonLabel));
    EXPECT_FALSE(user.SeesVisible(IDC_FieldFrame));
    EXPECT_FALSE(user.SeesVisible(IDC_FieldList));
    EXPECT_TRUE(user.SeesVisible(IDC_CatFrame));
    EXPECT_FALSE(user.SeesVisible(IDC_CatList));
    EXPECT_TRUE(user.SeesFocusOn(IDC_AllCatOption));
    EXPECT_EQ(user.Sees(IDC_PrintFileBox), "Report.PRN");
    user.Clicks(IDC_SelCatOption);
    EXPECT_TRUE(user.SeesVisible(IDC_CatList));
    EXPECT_EQ(user.SeesEntries(IDC_CatList), (Names{"Rooms", "Tools & toys", "On loan"}));
    user.Ticks(IDC_CatList, "Rooms");
    user.Clicks(IDC_AllCatOption);
    EXPECT_FALSE(user.SeesVisible(IDC_CatList));
    user.Clicks(IDC_SelCatOption);
    user.Ticks(IDC_CatList, "On loan");
    MissesViewer();
    user.Presses(Key::Enter);
  });
  ExpectReport("Report.PRN",
               {"LARKSPUR V1.0 REPORT T=2,G=0", "", "Larkspur Object List report", "", "Big Red Barn",
                " Classification: Rooms", " Note:", " Not stored yet.", "", "Garden Shed", " PRICE: 12.50",
                " Classification: Rooms", "", "Spade", " Classification: Tools & toys, On loan"});
}

TEST_F(ReportTest, StoresWhatIsTypedBeforeItAsks) {
  Start("Home.FIL");
  user.Types(IDC_NoteBox, "Typed.");
  Use(IDC_AddressRepItem, [this] {
    EXPECT_EQ(TheDocument.Things[1].NOTE, "Typed.");
    user.Clicks(IDC_CancelButton);
  });
  EXPECT_TRUE(TheDocument.Modified);
  EXPECT_EQ(TestFiles::Get("Report.PRN"), std::nullopt);
}

TEST_F(ReportTest, TellsWhatWasChosen) {
  Start("Home.FIL");
  TheDocument.Fields.SetCount(3);
  TheDocument.Fields[1] = {"COLOUR", "Colour", ""};
  TheDocument.Fields[2] = {"PRICE", "Price", "DOLLAR"};
  TheDocument.Fields[3] = {"QTY", "How many", "integer"};
  ReportRequest request;
  request.SelectionMask = 6;
  request.Accepted = true;
  user.UsesForm(IDD_ReportForm, [&] {
    EXPECT_FALSE(request.Accepted);
    EXPECT_EQ(user.SeesEntries(IDC_FieldList), (Names{"PRICE: Price", "QTY: How many"}));
    user.Ticks(IDC_FieldList, "QTY: How many");
    user.ChoosesFile("");
    user.Clicks(IDC_BrowseButton);
    EXPECT_EQ(user.Sees(IDC_PrintFileBox), "Report.PRN");
    user.Clicks(IDC_OKButton);
  });
  ReportForm(request).ShowModal();
  Files::Close(kPrintFileHandle);
  EXPECT_TRUE(request.Accepted);
  EXPECT_EQ(request.Fields, std::vector<int>{3});
}

// The form is another one each time: what was chosen for one report says nothing about the next.
TEST_F(ReportTest, TabulatesTheTickedFields) {
  Use(IDC_ItemValuesItem, [this] {
    EXPECT_FALSE(user.SeesVisible(IDC_PersonCombo));
    EXPECT_TRUE(user.SeesVisible(IDC_CatFrame));
    EXPECT_EQ(user.SeesEntries(IDC_FieldList), (Names{"PRICE: Price"}));
    user.Ticks(IDC_FieldList, "PRICE: Price");
    user.Clicks(IDC_SelCatOption);  // none of them: all
    MissesViewer();
    user.Clicks(IDC_OKButton);
  });
  const std::string report = TestFiles::Get("Report.PRN").value_or("no file");
  EXPECT_NE(report.find("\r\nGarden Shed                      12.50\r\n"), std::string::npos) << report;
  EXPECT_NE(report.find("\r\nCount                                1\r\n"), std::string::npos) << report;
  Use(IDC_ItemValuesItem, [this] {
    EXPECT_EQ(user.SeesTicked(IDC_FieldList), Names{});
    user.Ticks(IDC_FieldList, "PRICE: Price");
    user.Clicks(IDC_SelCatOption);
    user.Ticks(IDC_CatList, "On loan");
    user.Clicks(IDC_AllCatOption);  // which makes the tick of no account
    MissesViewer();
    user.Clicks(IDC_OKButton);
  });
  EXPECT_EQ(TestFiles::Get("Report.PRN"), report);
  Use(IDC_ItemValuesItem, [this] { user.Clicks(IDC_CancelButton); });
}

TEST_F(ReportTest, FollowsTheDescendantsOfTheShownThing) {
  Use(IDC_DescendantItem, [this] {
    EXPECT_FALSE(user.SeesVisible(IDC_CatFrame));
    EXPECT_FALSE(user.SeesVisible(IDC_CatList));
    EXPECT_EQ(user.SeesEntries(IDC_PersonCombo), (Names{"Big Red Barn", "Garden Shed", "rake", "Spade", "Zoo"}));
    EXPECT_EQ(user.SeesSelected(IDC_PersonCombo), "Big Red Barn");
    EXPECT_TRUE(user.SeesFocusOn(IDC_PersonCombo));
    user.Picks(IDC_PersonCombo, "Zoo");
    user.Types(IDC_PrintFileBox, " Family.prn ");
    MissesViewer();
    user.Clicks(IDC_OKButton);
  });
  ExpectReport("Family.prn",
               {"LARKSPUR V1.0 REPORT T=2", "", "Larkspur Heirarchy report for Zoo", "", " 1   Zoo",
                "     >> Garden Shed", "", " 2   Garden Shed (from #1)", "     >> rake", "     >> Spade"});
  TheDocument.CurrentThing = 0;
  Use(IDC_DescendantItem, [this] {
    EXPECT_EQ(user.SeesSelected(IDC_PersonCombo), "");
    MissesViewer();
    user.Clicks(IDC_OKButton);
  });
  ExpectReport("Report.PRN", {});
  user.Picks(IDC_PersonCombo, "rake");
  Use(IDC_DescendantItem, [this] {
    EXPECT_EQ(user.SeesSelected(IDC_PersonCombo), "rake");
    user.Clicks(IDC_CancelButton);
  });
}

TEST_F(ReportTest, AsksForANameThatWillDo) {
  TestFiles::Put("old.prn", "an old report");
  Use(IDC_DescendantItem, [&] {
    user.Types(IDC_PrintFileBox, "  ");
    Refuses("Please fill in a print file name.");
    EXPECT_TRUE(user.SeesFocusOn(IDC_PrintFileBox));
    user.Types(IDC_PrintFileBox, "missing\\it.txt");
    Refuses("Can't test for presence of output file due to error # 76: Path not found");
    user.Types(IDC_PrintFileBox, "missing\\it.tmp");
    Refuses("Failed to open file due to error # 76: Path not found");
    TestFiles::HoldByOther("old.prn", false);
    user.Types(IDC_PrintFileBox, "OLD.Prn");
    Refuses(
        "I cannot open the print file because of error 70, privilege violation.  This typically occurs if the file is "
        "already in use by the Larkspur report viewer or another program.  Please pick a different filename and try "
        "again.");
    TestFiles::ReleaseByOther();
    user.Types(IDC_PrintFileBox, "notes.txt");
    user.Answers(
        "You are about to overwrite an existing file that is neither a print file nor a temporary file (not of type "
        ".PRN or .TMP). Are you wure you want to do that?",
        Answer::Cancel, Icon::None, Buttons::OkCancel);
    user.Clicks(IDC_OKButton);
    user.ChoosesFile(InFolder("old.prn"));
    user.Answers("File already exists.  Overwrite?", Answer::Yes, Icon::None, Buttons::YesNo);
    user.Clicks(IDC_BrowseButton);
    EXPECT_EQ(user.Sees(IDC_PrintFileBox), InFolder("old.prn"));
    MissesViewer();
    user.Clicks(IDC_OKButton);
  });
  EXPECT_EQ(TestFiles::Get("notes.txt"), "keep me");
  EXPECT_EQ(TestFiles::Get("old.prn").value_or("").substr(0, 10), "LARKSPUR V");
  EXPECT_EQ(TestFiles::List(), (Names{"Home.FIL", "notes.txt", "old.prn"}));
}

}  // namespace
