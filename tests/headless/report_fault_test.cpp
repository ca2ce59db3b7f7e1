// Reports on a disk that is full at every place in turn.
#include <algorithm>

#include "document/file_handles.h"
#include "mainwindow/main_form.h"
#include "platform/files.h"
#include "platform/headless/machine.h"
#include "resource.h"
#include "support/fresh_test.h"

namespace {

constexpr unsigned long kDiskIsFull = 112;

using ReportFaultTest = FreshTest;

// It is said, the viewer stays away, and the next report is whole.
TEST_F(ReportFaultTest, SaysThatAFileCouldNotBeWritten) {
  Machine::PutRealFile("Home.FIL", FILER_SOURCE_DIR "/tests/scenarios/given/Home.FIL");
  MainForm form("Home.FIL");
  form.Show();
  const auto reports = [this](int failing_call, const std::string& says, Icon icon) {
    user.UsesForm(IDD_ReportForm, [=, this] {
      if (failing_call != 0) Machine::FailFileCall(failing_call, kDiskIsFull, false);
      user.Clicks(IDC_OKButton);
    });
    user.Reads(says, icon);
    user.ChoosesMenu(IDC_AddressRepItem);
    EXPECT_FALSE(Files::IsOpen(kPrintFileHandle)) << failing_call;
  };
  const std::string no_viewer =
      "Sorry, I failed to start the LARKVIEW.EXE program that is provided with Larkspur due to error 53: File not found";
  reports(0, no_viewer, Icon::Critical);
  const std::string whole = TestFiles::Get("Report.PRN").value_or("");
  const int lines = static_cast<int>(std::count(whole.begin(), whole.end(), '\n'));
  EXPECT_GT(lines, 10);
  for (int nth = 1; nth <= lines + 1; ++nth) {  // behind the opening: the lines, the closing
    reports(1 + nth, "Failed to write file due to error # 61: Disk full", Icon::Exclamation);
  }
  Machine::ClearFaults();
  reports(0, no_viewer, Icon::Critical);
  EXPECT_EQ(TestFiles::Get("Report.PRN"), whole);
}

}  // namespace
