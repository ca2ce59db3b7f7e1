// What the viewer's two windows make of keys and the wheel, and when they say what.
#include "viewer/viewer_form.h"

#include "resource.h"
#include "support/fresh_test.h"
#include "viewer/viewer_ids.h"

namespace {

TEST_F(FreshTest, ViewerAndPreviewFollowKeysAndTheWheel) {
  std::string bytes;
  for (int line = 1; line <= 300; ++line) bytes += "line " + std::to_string(line) + "\n";
  TestFiles::Put("notes.txt", bytes);
  // It comes at the opening, or never: nothing here reloads.
  user.Reads(InFolder("notes.txt") + " is not a Larkspur report.  It is shown as plain text.", Icon::Information);
  ViewerForm form("notes.txt");
  form.Start();
  user.Types(IDC_FindBox, "nowhere");
  EXPECT_EQ(user.Sees(IDC_HitLabel), "Not found");
  const auto top = [this] { return user.SeesPage(IDC_ReportSurface).Runs.at(0).Text; };
  user.Presses(Key::Down);
  EXPECT_EQ(top(), "line 2");
  user.Presses(Key::PageDown);
  EXPECT_NE(top(), "line 2");
  user.Presses(Key::PageUp);
  user.Presses(Key::Up);
  EXPECT_EQ(top(), "line 1");
  user.MovesTo(IDC_PrintButton);
  user.Presses(Key::PageDown);  // scrolls from the box and the report only
  user.TurnsWheel(IDC_ReportSurface, 1);
  EXPECT_NE(top(), "line 1");
  user.TurnsWheel(IDC_ReportSurface, -1);
  user.PagesBar(IDC_ReportSurface, Surface::Bar::Down, 1);
  EXPECT_NE(top(), "line 1");
  user.PagesBar(IDC_ReportSurface, Surface::Bar::Down, -1);
  user.MovesTo(IDC_ReportSurface);
  user.Presses(Key::Down);
  EXPECT_EQ(top(), "line 2");
  std::string zooms;
  for (int step = 0; step < 5; ++step) user.ChoosesMenu(IDC_ZoomOutItem);
  for (int step = 0; step < 14; ++step, zooms += user.Sees(IDC_ZoomLabel)) user.ChoosesMenu(IDC_ZoomInItem);
  EXPECT_EQ(zooms, "60 %75 %90 %100 %110 %125 %150 %175 %200 %250 %300 %400 %400 %400 %");
  user.UsesForm(IDD_PreviewForm, [this] {
    const auto sees_page = [this](int number) {
      EXPECT_TRUE(user.Sees(IDC_PageLabel).starts_with("Page " + std::to_string(number) + " of ")) << number;
    };
    const std::pair<Key, int> walk[] = {{Key::Right, 2}, {Key::Left, 1}, {Key::Down, 2},     {Key::Up, 1},
                                        {Key::Right, 2}, {Key::Home, 1}, {Key::PageDown, 2}, {Key::PageUp, 1}};
    for (const auto& [key, number] : walk) {
      user.Presses(key);
      sees_page(number);
    }
    user.TurnsWheel(IDC_PreviewSurface, 1);
    sees_page(2);
    user.TurnsWheel(IDC_PreviewSurface, -1);
    sees_page(1);
    user.Presses(Key::Escape);
  });
  user.Clicks(IDC_PreviewButton);
}

}  // namespace
