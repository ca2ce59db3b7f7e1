// The report viewer in a person's hands.
#include <gtest/gtest.h>

#include <memory>

#include "platform/clipboard.h"
#include "platform/files.h"
#include "resource.h"
#include "support/fresh_test.h"
#include "viewer/page_text.h"
#include "viewer/viewer_form.h"
#include "viewer/viewer_ids.h"

namespace {

class ViewerTest : public FreshTest {
 protected:
  void TearDown() override {
    form.reset();
    FreshTest::TearDown();
  }
  void Start(const std::string& command_line) {
    form = std::make_unique<ViewerForm>(command_line);
    form->Start();
  }
  static std::vector<std::string> Report(int things) {
    std::vector<std::string> lines = {"LARKSPUR V1.0 REPORT T=2,G=0", "", "Larkspur Object List report"};
    for (int thing = 1; thing <= things; ++thing) {
      lines.emplace_back();
      lines.push_back("Thing " + std::to_string(thing));
    }
    return lines;
  }
  std::string Row(std::size_t row) {
    const auto rows = RowsOf(user.SeesPage(IDC_ReportSurface));
    return row < rows.size() ? rows[row] : "";
  }

  std::unique_ptr<ViewerForm> form;
};

TEST_F(ViewerTest, OpensSearchesCopiesAndZooms) {
  TestFiles::Put("My Report.PRN", Lines(Report(300)));
  Start("\"" + InFolder("My Report.PRN") + "\"");
  EXPECT_EQ(user.SeesCaption(), "My Report.PRN - Larkspur Report Viewer");
  EXPECT_EQ(user.Sees(IDC_FileLabel), InFolder("My Report.PRN"));
  EXPECT_EQ(user.Sees(IDC_LinesLabel), "602 lines");
  EXPECT_EQ(Row(1), "Larkspur Object List report");
  EXPECT_EQ(Row(3), "Thing 1");
  EXPECT_TRUE(user.SeesFocusOn(IDC_ReportSurface));
  EXPECT_FALSE(user.SeesMenuEnabled(IDC_CopyItem));

  user.ChoosesMenu(IDC_FindItem);
  EXPECT_TRUE(user.SeesFocusOn(IDC_FindBox));
  user.Types(IDC_FindBox, "thing 12");
  EXPECT_EQ(user.Sees(IDC_HitLabel), "1 of 11");  // 12, and 120 to 129
  user.Presses(Key::Enter);
  user.ChoosesMenu(IDC_FindNextItem);
  EXPECT_EQ(user.Sees(IDC_HitLabel), "3 of 11");
  user.Clicks(IDC_FindPreviousButton);
  EXPECT_EQ(user.Sees(IDC_HitLabel), "2 of 11");
  user.MovesTo(IDC_ReportSurface);
  user.PressesControl('C');
  EXPECT_EQ(ClipboardText(), "Thing 12");
  EXPECT_EQ(Row(1), "Larkspur Object List report");
  user.Presses(Key::Escape);
  EXPECT_EQ(user.Sees(IDC_FindBox), "");
  EXPECT_EQ(user.Sees(IDC_HitLabel), "");

  user.TurnsWheel(IDC_ReportSurface, -1, false, true);
  user.ChoosesMenu(IDC_ZoomInItem);
  EXPECT_EQ(user.Sees(IDC_ZoomLabel), "125 %");
  user.ChoosesMenu(IDC_ZoomNormalItem);
  for (int time = 0; time < 20; ++time) user.ChoosesMenu(IDC_ZoomOutItem);
  EXPECT_EQ(user.Sees(IDC_ZoomLabel), "50 %");
}

TEST_F(ViewerTest, ScrollsAndReloadsInPlaceWhileOthersWriteTheFile) {
  TestFiles::Put("R.PRN", Lines(Report(300)));
  Start(InFolder("R.PRN"));
  user.PagesBar(IDC_ReportSurface, Surface::Bar::Down, 1);
  user.TurnsWheel(IDC_ReportSurface, 1);
  user.Presses(Key::Down);
  const int position = user.SeesBar(IDC_ReportSurface, Surface::Bar::Down);
  EXPECT_GT(position, 5);
  const std::string seen = Row(2);
  // Not held: it can be written and deleted.
  std::vector<std::string> changed = Report(301);
  for (std::string& line : changed) {
    if (line.starts_with("Thing")) line += " new";
  }
  TestFiles::Put("R.PRN", Lines(changed));
  EXPECT_EQ(Row(2), seen);
  user.ChoosesMenu(IDC_ReloadItem);
  EXPECT_EQ(user.SeesBar(IDC_ReportSurface, Surface::Bar::Down), position);
  EXPECT_EQ(Row(2), seen.empty() ? seen : seen + " new");
  EXPECT_EQ(user.Sees(IDC_LinesLabel), "604 lines");
  Files::Erase("R.PRN");
  user.Reads("Failed to open file " + InFolder("R.PRN") + " due to error # 53: File not found", Icon::Exclamation);
  user.ChoosesMenu(IDC_ReloadItem);
  EXPECT_EQ(user.Sees(IDC_LinesLabel), "604 lines");
}

TEST_F(ViewerTest, SaysWhatIsNoReportEmptyOrCannotBeRead) {
  TestFiles::Put("notes.txt", "just\ttext\n");
  user.Reads(InFolder("notes.txt") + " is not a Larkspur report.  It is shown as plain text.", Icon::Information);
  Start("notes.txt");
  EXPECT_EQ(Row(0), "just    text");
  EXPECT_EQ(user.Sees(IDC_LinesLabel), "Plain text, 1 line");
  user.ChoosesMenu(IDC_ReloadItem);  // that has been said

  TestFiles::Put("Empty.PRN", "");
  user.ChoosesFile(InFolder("Empty.PRN"));
  user.Clicks(IDC_OpenButton);
  EXPECT_EQ(Row(1), "  This report is empty: there was nothing to write into it.");
  EXPECT_FALSE(user.SeesEnabled(IDC_PrintButton));
  EXPECT_FALSE(user.SeesMenuEnabled(IDC_PreviewItem));

  TestFiles::Put("Held.PRN", "x");
  TestFiles::HoldByOther("Held.PRN", true);
  user.ChoosesFile(InFolder("Held.PRN"));
  user.Reads("Failed to open file " + InFolder("Held.PRN") + " due to error # 70: Permission denied",
             Icon::Exclamation);
  user.ChoosesMenu(IDC_OpenItem);
  EXPECT_EQ(user.SeesCaption(), "Empty.PRN - Larkspur Report Viewer");
}

TEST_F(ViewerTest, AsksForAFileWhenItWasGivenNone) {
  user.ChoosesFile("");
  Start("");
  EXPECT_EQ(user.SeesCaption(), "Larkspur Report Viewer");
  EXPECT_EQ(Row(1), "  No report is open. Choose Open in the File menu to read one.");
  EXPECT_FALSE(user.SeesMenuEnabled(IDC_SaveTextItem));
  EXPECT_FALSE(user.SeesMenuEnabled(IDC_ReloadItem));
}

TEST_F(ViewerTest, SavesTheLinesWithoutTheHeaderAndAsksBeforeOverwriting) {
  TestFiles::Put("R.PRN", Lines(Report(1)));
  Start("R.PRN");
  user.ChoosesFile(InFolder("Saved"));
  user.ChoosesMenu(IDC_SaveTextItem);
  EXPECT_EQ(TestFiles::Get("Saved.TXT"), "\r\nLarkspur Object List report\r\n\r\nThing 1\r\n");
  TestFiles::Put("Saved.TXT", "mine");
  user.ChoosesFile(InFolder("Saved.TXT"));
  user.Answers("File already exists.  Overwrite?", Answer::No, Icon::None, Buttons::YesNo);
  user.ChoosesFile("");
  user.ChoosesMenu(IDC_SaveTextItem);
  EXPECT_EQ(TestFiles::Get("Saved.TXT"), "mine");
  TestFiles::SetReadOnly("Saved.TXT", true);
  user.ChoosesFile(InFolder("Saved.TXT"));
  user.Answers("File already exists.  Overwrite?", Answer::Yes, Icon::None, Buttons::YesNo);
  user.Reads("Failed to write file " + InFolder("Saved.TXT") + " due to error # 75: Path/File access error",
             Icon::Exclamation);
  user.ChoosesMenu(IDC_SaveTextItem);
  TestFiles::SetReadOnly("Saved.TXT", false);
}

TEST_F(ViewerTest, TellsWhatItIs) {
  user.ChoosesFile("");
  Start("");
  user.UsesForm(IDD_AboutForm, [&] {
    EXPECT_EQ(user.Sees(IDC_DescriptionLabel), "Shows, searches and prints the reports of Larkspur Filer.");
    user.Presses(Key::Escape);
  });
  user.ChoosesMenu(IDC_AboutItem);
}

TEST_F(ViewerTest, PreviewsPageByPage) {
  TestFiles::Put("R.PRN", Lines(Report(100)));
  Start("R.PRN");
  user.UsesForm(IDD_PreviewForm, [&] {
    EXPECT_EQ(user.SeesCaption(), "Preview of R.PRN");
    const std::string first = user.Sees(IDC_PageLabel);
    ASSERT_TRUE(first.starts_with("Page 1 of ")) << first;
    const std::string count = first.substr(10);
    EXPECT_FALSE(user.SeesEnabled(IDC_PreviousButton));
    user.Presses(Key::PageDown);
    EXPECT_EQ(user.Sees(IDC_PageLabel), "Page 2 of " + count);
    const auto rows = RowsOf(user.SeesPage(IDC_PreviewSurface));
    EXPECT_EQ(rows.at(1), "Larkspur Object List report");
    EXPECT_TRUE(rows.back().ends_with("Page 2 of " + count)) << rows.back();
    user.Clicks(IDC_PreviousButton);
    user.MovesTo(IDC_PreviewSurface);
    user.Presses(Key::End);
    EXPECT_EQ(user.Sees(IDC_PageLabel), "Page " + count + " of " + count);
    EXPECT_FALSE(user.SeesEnabled(IDC_NextButton));
    user.Presses(Key::Escape);
  });
  user.Clicks(IDC_PreviewButton);
}

}  // namespace
