// Reports on a disk that fails at each call in turn.
#include <algorithm>

#include "mainwindow/main_form.h"
#include "mainwindow/main_ids.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/headless/machine.h"
#include "platform/program.h"
#include "reports/report_ids.h"
#include "resource.h"
#include "support/fresh_test.h"

namespace {

constexpr unsigned long kDiskIsFull = 112;

// Wherever the disk is full: it is said, the viewer stays away, and the next report is whole.
TEST_F(FreshTest, AReportThatCannotBeWrittenIsSaid) {
  TestFiles::Put("Home.FIL", Lines({"LARKSPUR V5.0 FILER DATA", "[THINGS]", "*1; NAME=Shed", "NOTE=old", "[END]"}));
  Machine::PutFile("C:\\LARKVIEW.EXE", "");
  const std::string former_folder = ProgramFolder();
  Machine::SetProgramFolder("C:");
  MainForm form("Home.FIL");
  form.Show();
  const auto report = [this](const std::string& name, int nth) {
    user.UsesForm(IDD_ReportForm, [&] {
      user.Types(IDC_PrintFileBox, name);
      if (nth > 0) Machine::FailFileCall(1 + nth, kDiskIsFull, false);
      user.Clicks(IDC_OKButton);
    });
    if (nth > 0) user.Reads("Failed to write file due to error # 61: Disk full", Icon::Exclamation);
    user.ChoosesMenu(IDC_AddressRepItem);
    EXPECT_FALSE(Files::IsOpen(kPrintFileHandle)) << nth;
    Machine::ClearFaults();
  };
  report("Whole.PRN", 0);
  const std::string whole = TestFiles::Get("Whole.PRN").value();
  EXPECT_EQ(Machine::StartedPrograms().size(), 1U);
  const auto lines = static_cast<int>(std::count(whole.begin(), whole.end(), '\n'));
  for (int nth = 1; nth <= lines + 1; ++nth) report("Report.PRN", nth);  // the opening, the lines, the closing
  EXPECT_TRUE(Machine::StartedPrograms().empty());
  report("Report.PRN", 0);
  EXPECT_EQ(TestFiles::Get("Report.PRN"), whole);
  EXPECT_EQ(Machine::StartedPrograms().size(), 1U);
  Machine::SetProgramFolder(former_folder);
}

}  // namespace
