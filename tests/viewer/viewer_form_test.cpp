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
  user.MovesTo(IDC_ReportSurface);
  user.Presses(Key::Down);
  EXPECT_EQ(user.SeesPage(IDC_ReportSurface).Runs.at(0).Text, "line 2");
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
