// Reports on a machine whose viewer and disk do as the test says.
#include <algorithm>

#include "document/document.h"
#include "document/file_handles.h"
#include "mainwindow/command_line.h"
#include "mainwindow/settings.h"
#include "platform/files.h"
#include "platform/headless/machine.h"
#include "platform/program.h"
#include "reports/open_print_file.h"
#include "scenarios/main_form_test.h"

namespace {

constexpr unsigned long kDiskIsFull = 112;

class ReportFaultTest : public MainFormTest {
 protected:
  void SetUp() override {
    MainFormTest::SetUp();
    PutHome();
    former_folder = ProgramFolder();
    Machine::MakeFolder("C:\\Program Files");
    Machine::MakeFolder("C:\\Program Files\\Larkspur");
    Machine::PutFile("C:\\Program Files\\Larkspur\\LARKVIEW.EXE", "");
    Machine::SetProgramFolder("C:\\Program Files\\Larkspur");
    Machine::StartedPrograms();
    Start("Home.FIL");
  }
  void TearDown() override {
    Machine::FailStart(std::nullopt);
    Machine::SetProgramFolder(former_folder);
    MainFormTest::TearDown();
  }
  void Reports(const std::string& name) {
    user.UsesForm(IDD_ReportForm, [this, name] {
      user.Types(IDC_PrintFileBox, name);
      user.Clicks(IDC_OKButton);
    });
    user.ChoosesMenu(IDC_AddressRepItem);
  }

  std::string former_folder;
};

TEST_F(ReportFaultTest, HandsTheFileToTheViewer) {
  TestFiles::MakeFolder("My Reports");
  Reports("One.PRN");
  Reports("My Reports\\One.PRN");
  const std::string viewer = "C:\\Program Files\\Larkspur\\LARKVIEW.EXE ";
  EXPECT_EQ(
      Machine::StartedPrograms(),
      (std::vector<std::string>{viewer + InFolder("One.PRN"), viewer + '"' + InFolder("My Reports\\One.PRN") + '"'}));
  std::string name = "C:\\a b.PRN";
  Machine::FailStart(0);
  user.Reads(
      "Sorry, I failed to start the LARKVIEW.EXE program that is provided with Larkspur.  The file has been saved.  If "
      "you can find LARKVIEW.EXE on your computer you may use it to view the file.",
      Icon::Critical);
  MainForm::ShowReport(name);
  EXPECT_EQ(name, "\"C:\\a b.PRN\"");
}

// Wherever the disk is full: it is said, the viewer stays away, and the next report is whole.
TEST_F(ReportFaultTest, SaysThatAFileCouldNotBeWritten) {
  Reports("Whole.PRN");
  const std::optional<std::string> whole = TestFiles::Get("Whole.PRN");
  Machine::StartedPrograms();
  const int lines = static_cast<int>(std::count(whole->begin(), whole->end(), '\n'));
  for (int nth = 1; nth <= lines + 1; ++nth) {  // the opening, the lines, the closing
    user.UsesForm(IDD_ReportForm, [this, nth] {
      Machine::FailFileCall(1 + nth, kDiskIsFull, false);
      user.Clicks(IDC_OKButton);
    });
    user.Reads("Failed to write file due to error # 61: Disk full", Icon::Exclamation);
    user.ChoosesMenu(IDC_AddressRepItem);
    EXPECT_FALSE(Files::IsOpen(kPrintFileHandle)) << nth;
  }
  EXPECT_TRUE(Machine::StartedPrograms().empty());
  Machine::ClearFaults();
  Reports("Report.PRN");
  EXPECT_EQ(TestFiles::Get("Report.PRN"), whole);
  EXPECT_EQ(Machine::StartedPrograms().size(), 1U);
}

TEST_F(ReportFaultTest, AsksForANameWhenNoneWasTyped) {
  TheStart.WorkingFolder = InFolder("Prints");
  TestFiles::MakeFolder("Prints");
  TheRecentFiles.Count = 1;
  TheRecentFiles[1] = InFolder("Home.FIL");
  user.UsesForm(IDD_FileForm, [this] {
    EXPECT_EQ(user.Sees(IDC_NameBox), InFolder("Prints\\Report.PRN"));
    EXPECT_TRUE(user.SeesEntries(IDC_NameBox).empty());  // documents are not to be written over
    user.Types(IDC_NameBox, "Mine.PRN");
    user.Clicks(IDC_OKButton);
  });
  EXPECT_EQ(Global::OpenPrintFile("Report.PRN", ""), InFolder("Prints\\Mine.PRN"));
  EXPECT_TRUE(Files::IsOpen(kPrintFileHandle));
  Files::Close(kPrintFileHandle);
  EXPECT_EQ(TheRecentFiles.Count, 1);
  user.UsesForm(IDD_FileForm, [this] { user.Clicks(IDC_CancelButton); });
  EXPECT_EQ(Global::OpenPrintFile("Report.PRN", ""), "");
}

}  // namespace
