// The About box.
#include "scenarios/main_form_test.h"

namespace {

using AboutTest = MainFormTest;

TEST_F(AboutTest, TellsTheVersionAndGoes) {
  Start();
  for (const auto& leave :
       std::vector<std::function<void()>>{[this] { user.Clicks(IDC_OKButton); }, [this] { user.Presses(Key::Enter); },
                                          [this] { user.Presses(Key::Escape); }, [this] { user.ClosesWindow(); }}) {
    user.UsesForm(IDD_AboutForm, [&] {
      EXPECT_EQ(user.SeesCaption(), "About Larkspur Filer");
      EXPECT_EQ(user.Sees(IDC_VersionLabel), "Version " FILER_VERSION);
      EXPECT_EQ(user.Sees(IDC_DescriptionLabel), "Keeps a list of things, with links, photos and values.");
      leave();
    });
    user.ChoosesMenu(IDC_AboutItem);
  }
}

}  // namespace
