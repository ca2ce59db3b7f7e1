// The About box.
#include <stdexcept>

#include "scenarios/main_form_test.h"
#include "shell/about_form.h"
#include "shell/messages.h"

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

TEST_F(AboutTest, AProgramGoesOnAfterAFailure) {
  AboutForm about("A form to run.");
  user.Reads("The command could not be completed: no luck", Icon::Exclamation);
  user.UsesForm(IDD_AboutForm, [this] { user.Presses(Key::Escape); });
  Global::RunForm(about, [&about] {
    about.Show();
    throw std::runtime_error("no luck");
  });
  EXPECT_TRUE(about.Closed());
}

}  // namespace
