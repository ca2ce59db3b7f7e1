// What the plain controls promise: their texts, their events exactly once and only when something
// differs, the focus, option groups and pictures.
#include "platform/controls.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "contract/test_form.h"
#include "support/user.h"

namespace {

class ControlsTest : public testing::Test {
 protected:
  // Shows the form; the person does what is said and presses Cancel.
  void Use(const std::function<void()>& acts) {
    user.UsesForm(IDD_TestForm, [this, acts] {
      form.Came();
      form.FocusCame();
      acts();
      user.Clicks(IDC_CancelButton);
    });
    form.ShowModal();
  }

  User user;
  TestForm form;
};

TEST_F(ControlsTest, TextsComeBackByteForByte) {
  std::string high;
  for (int byte = 0xA0; byte <= 0xFF; ++byte) high += static_cast<char>(byte);
  const std::vector<std::string> lines = {"plain",    "",        "Fish & Chips && more", " caf\xE9 ", high,
                                          "tab\tbed", "100%s %d"};
  Control* const controls[] = {&form.TitleLabel, &form.LineBox,    &form.LinesBox, &form.FirstButton,
                               &form.RedOption,  &form.GroupFrame, &form.NameCombo};
  EXPECT_EQ(form.TitleLabel.Id(), IDC_TitleLabel);
  EXPECT_EQ(&form.TitleLabel.Owner(), &form);
  Use([&] {
    for (Control* control : controls) {
      for (const std::string& text : lines) {
        control->SetText(text);
        EXPECT_EQ(control->Text(), text) << "control " << control->Id();
        EXPECT_EQ(user.Sees(control->Id()), text);
      }
    }
    for (const std::string& text : lines) {
      user.Types(IDC_LineBox, text);
      EXPECT_EQ(form.LineBox.Text(), text);
    }
  });
}

TEST_F(ControlsTest, SeveralLinesArePartedByCrLfAndLongOnesStayWhole) {
  const std::string lines = "first\r\n\r\n  third\r\n";
  const std::string wrapped(1000, 'w');
  std::string blanks;
  while (blanks.size() < 2000) blanks += "many words that wrap ";
  std::string many;
  while (many.size() < 40000) many += "a line that is short enough\r\n";
  Use([&] {
    for (const std::string& text : {lines, wrapped, blanks, many}) {
      form.LinesBox.SetText(text);
      EXPECT_EQ(form.LinesBox.Text(), text);
      EXPECT_EQ(user.Sees(IDC_LinesBox), text);
      form.LinesBox.SetText("");
      user.Types(IDC_LinesBox, text);
      EXPECT_EQ(form.LinesBox.Text(), text);
    }
    user.Types(IDC_LineBox, std::string(40000, 'y'));
    EXPECT_EQ(form.LineBox.Text(), std::string(40000, 'y'));
    form.HintLabel.SetText("two\r\nlines");
    EXPECT_EQ(form.HintLabel.Text(), "two\r\nlines");
  });
}

TEST_F(ControlsTest, ChangeComesOnceAndOnlyWhenTheTextDiffers) {
  form.LineBox.SetText("before the form is shown");
  EXPECT_EQ(form.Came(), Events{"LineBox Change"});
  Use([&] {
    form.LineBox.SetText("code");
    form.LinesBox.SetText("a\r\nb");
    EXPECT_EQ(form.Came(), (Events{"LineBox Change", "LinesBox Change"}));
    form.LineBox.SetText("code");
    form.LinesBox.SetText("a\r\nb");
    EXPECT_EQ(form.Came(), Events{});
    user.Types(IDC_LineBox, "person");
    user.Types(IDC_LinesBox, "c\r\nd");
    EXPECT_EQ(form.Came(), (Events{"LineBox Change", "LinesBox Change"}));
    user.Types(IDC_LineBox, "person");
    EXPECT_EQ(form.Came(), Events{});
    form.LineBox.SetText("PERSON");
    EXPECT_EQ(form.Came(), Events{"LineBox Change"});
    form.TitleLabel.SetText("labels, buttons");
    form.FirstButton.SetText("and frames");
    form.GroupFrame.SetText("tell nothing");
    EXPECT_EQ(form.Came(), Events{});
  });
}

TEST_F(ControlsTest, ChangeSeesTheNewTextAndMayCorrectIt) {
  Use([&] {
    std::vector<std::string> seen;
    form.LineBox.Change = [&] {
      seen.push_back(form.LineBox.Text());
      if (form.LineBox.Text() == "wrong") form.LineBox.SetText("right");
    };
    user.Types(IDC_LineBox, "wrong");
    EXPECT_EQ(seen, (std::vector<std::string>{"wrong", "right"}));
    form.LineBox.SetText("wrong");
    EXPECT_EQ(form.LineBox.Text(), "right");
    EXPECT_EQ(seen.size(), 4u);
  });
}

TEST_F(ControlsTest, LimitAndReadOnlyBindThePersonNotTheCode) {
  Use([&] {
    form.LineBox.SetTextLimit(5);
    user.Types(IDC_LineBox, "abcdefgh");
    EXPECT_EQ(form.LineBox.Text(), "abcde");
    form.LineBox.SetText("abcdefgh");
    EXPECT_EQ(form.LineBox.Text(), "abcdefgh");
    form.LineBox.SetTextLimit(0);
    user.Types(IDC_LineBox, "no limit any more");
    EXPECT_EQ(form.LineBox.Text(), "no limit any more");

    EXPECT_FALSE(form.LinesBox.ReadOnly());
    form.LinesBox.SetReadOnly(true);
    EXPECT_TRUE(form.LinesBox.ReadOnly());
    form.LinesBox.SetText("from code");
    EXPECT_NONFATAL_FAILURE(user.Types(IDC_LinesBox, "typed"), "5013");
    EXPECT_EQ(form.LinesBox.Text(), "from code");
    form.LinesBox.SetReadOnly(false);
    user.Types(IDC_LinesBox, "typed");
    EXPECT_EQ(form.LinesBox.Text(), "typed");
  });
}

TEST_F(ControlsTest, ClicksComeOnceFromThePerson) {
  Use([&] {
    user.Clicks(IDC_FirstButton);
    user.Clicks(IDC_TitleLabel);
    user.Clicks(IDC_PhotoPic);
    user.Clicks(IDC_FirstButton);
    EXPECT_EQ(form.Came(), (Events{"FirstButton Click", "TitleLabel Click", "PhotoPic Click", "FirstButton Click"}));
    user.Clicks(IDC_HintLabel);  // nobody listens
    EXPECT_EQ(form.Came(), Events{});
  });
}

TEST_F(ControlsTest, HiddenAndDisabledControlsAreOutOfReach) {
  EXPECT_TRUE(form.LineBox.Visible());
  form.SecondButton.SetVisible(false);
  EXPECT_FALSE(form.SecondButton.Visible());
  Use([&] {
    EXPECT_FALSE(user.SeesVisible(IDC_SecondButton));
    EXPECT_TRUE(user.SeesVisible(IDC_FirstButton));
    EXPECT_NONFATAL_FAILURE(user.Clicks(IDC_SecondButton), "5015");
    form.TitleLabel.SetVisible(false);
    EXPECT_NONFATAL_FAILURE(user.Clicks(IDC_TitleLabel), "5010");
    form.FirstButton.SetEnabled(false);
    EXPECT_FALSE(form.FirstButton.Enabled());
    EXPECT_FALSE(user.SeesEnabled(IDC_FirstButton));
    EXPECT_NONFATAL_FAILURE(user.Clicks(IDC_FirstButton), "5014");
    form.LineBox.SetEnabled(false);
    EXPECT_NONFATAL_FAILURE(user.Types(IDC_LineBox, "x"), "5012");
    EXPECT_EQ(form.Came(), Events{});
    form.LineBox.SetText("code may");
    EXPECT_EQ(form.Came(), Events{"LineBox Change"});
    form.FirstButton.SetEnabled(true);
    form.SecondButton.SetVisible(true);
    user.Clicks(IDC_FirstButton);
    user.Clicks(IDC_SecondButton);
    EXPECT_EQ(form.Came(), (Events{"FirstButton Click", "SecondButton Click"}));
  });
}

TEST_F(ControlsTest, LooksAreRemembered) {
  EXPECT_FALSE(form.TitleLabel.Bold());
  EXPECT_FALSE(form.TitleLabel.Border());
  EXPECT_EQ(form.FirstButton.BackColor(), BackColor::ButtonFace);
  form.TitleLabel.SetBold(true);
  form.RedOption.SetBold(true);
  form.HintLabel.SetBorder(true);
  form.FirstButton.SetBackColor(BackColor::Marked);
  form.TickList.SetToolTip("Fish & Chips");
  form.LineBox.SetToolTip("first");
  Use([&] {
    EXPECT_EQ(form.TickList.ToolTip(), "Fish & Chips");
    EXPECT_EQ(form.EntryList.ToolTip(), "");
    form.LineBox.SetToolTip("second");
    EXPECT_EQ(form.LineBox.ToolTip(), "second");
    form.LineBox.SetToolTip("");
    EXPECT_EQ(form.LineBox.ToolTip(), "");
    EXPECT_TRUE(form.TitleLabel.Bold());
    EXPECT_TRUE(form.RedOption.Bold());
    EXPECT_FALSE(form.GreenOption.Bold());
    EXPECT_FALSE(form.TitleLabel.Border());
    EXPECT_TRUE(form.HintLabel.Border());
    EXPECT_FALSE(form.HintLabel.Bold());
    EXPECT_EQ(form.FirstButton.BackColor(), BackColor::Marked);
    EXPECT_EQ(form.SecondButton.BackColor(), BackColor::ButtonFace);
    form.TitleLabel.SetBold(false);
    form.HintLabel.SetBorder(false);
    form.FirstButton.SetBackColor(BackColor::ButtonFace);
    EXPECT_FALSE(form.TitleLabel.Bold());
    EXPECT_FALSE(form.HintLabel.Border());
    EXPECT_EQ(form.FirstButton.BackColor(), BackColor::ButtonFace);
  });
}

TEST_F(ControlsTest, OptionsOfAGroupGoOutForEachOther) {
  Use([&] {
    form.RedOption.SetChecked(true);
    form.LargeOption.SetChecked(true);
    EXPECT_EQ(form.Came(), (Events{"RedOption Click", "LargeOption Click"}));
    form.RedOption.SetChecked(true);
    EXPECT_EQ(form.Came(), Events{});
    user.Clicks(IDC_GreenOption);
    EXPECT_EQ(form.Came(), Events{"GreenOption Click"});
    EXPECT_FALSE(form.RedOption.Checked());
    EXPECT_TRUE(form.GreenOption.Checked());
    EXPECT_TRUE(form.LargeOption.Checked());
    user.Clicks(IDC_GreenOption);
    EXPECT_EQ(form.Came(), Events{});
    form.RedOption.SetChecked(true);
    EXPECT_FALSE(form.GreenOption.Checked());
    EXPECT_EQ(form.Came(), Events{"RedOption Click"});
    form.LargeOption.SetChecked(false);
    EXPECT_EQ(form.Came(), Events{});
    EXPECT_FALSE(form.LargeOption.Checked());
    EXPECT_FALSE(form.SmallOption.Checked());
    EXPECT_TRUE(form.RedOption.Checked());
  });
}

TEST_F(ControlsTest, FocusMovesWithLostThenGot) {
  form.OnLoad = [this] { form.EntryList.SetFocus(); };
  Use([&] {
    EXPECT_TRUE(user.SeesFocusOn(IDC_EntryList));
    EXPECT_TRUE(form.EntryList.HasFocus());
    form.LineBox.SetFocus();
    EXPECT_EQ(form.FocusCame(), (Events{"EntryList lost", "LineBox got"}));
    EXPECT_TRUE(form.LineBox.HasFocus());
    EXPECT_FALSE(form.EntryList.HasFocus());
    form.LineBox.SetFocus();
    EXPECT_EQ(form.FocusCame(), Events{});
    user.Clicks(IDC_FirstButton);
    EXPECT_EQ(form.FocusCame(), (Events{"LineBox lost", "FirstButton got"}));
    user.Types(IDC_NameCombo, "x");
    EXPECT_EQ(form.FocusCame(), (Events{"FirstButton lost", "NameCombo got"}));
    EXPECT_TRUE(form.NameCombo.HasFocus());
    user.MovesTo(IDC_LinesBox);
    EXPECT_EQ(form.FocusCame(), (Events{"NameCombo lost", "LinesBox got"}));
    user.Clicks(IDC_TitleLabel);
    user.ChoosesMenu(IDC_PlainItem);
    EXPECT_EQ(form.FocusCame(), Events{});
    EXPECT_TRUE(user.SeesFocusOn(IDC_LinesBox));
  });
}

TEST_F(ControlsTest, FocusEventsAreOfTheFormNotOfDialogsAboveIt) {
  Use([&] {
    user.MovesTo(IDC_LineBox);
    form.FocusCame();
    user.Reads("above", Icon::None);
    MsgBox("above", "Larkspur");
    user.AnswersInput("above", "x");
    InputBox("above", "Larkspur");
    user.UsesForm(IDD_BareForm, [&] { user.Clicks(IDC_BareButton); });
    BareForm().ShowModal();
    EXPECT_TRUE(form.LineBox.HasFocus());
    EXPECT_EQ(form.FocusCame(), Events{});
  });
}

TEST_F(ControlsTest, HiddenAndDisabledControlsTakeNoFocus) {
  Use([&] {
    form.LineBox.SetFocus();
    form.FocusCame();
    form.LinesBox.SetEnabled(false);
    form.FirstButton.SetVisible(false);
    form.LinesBox.SetFocus();
    form.FirstButton.SetFocus();
    EXPECT_EQ(form.FocusCame(), Events{});
    EXPECT_TRUE(form.LineBox.HasFocus());
  });
}

TEST_F(ControlsTest, PersonLeavesABoxBeforeTheButtonIsClicked) {
  Use([&] {
    std::vector<std::string> order;
    form.LineBox.LostFocus = [&] { order.push_back("lost " + form.LineBox.Text()); };
    form.FirstButton.Click = [&] { order.push_back("click"); };
    user.Types(IDC_LineBox, "typed");
    user.Clicks(IDC_FirstButton);
    EXPECT_EQ(order, (std::vector<std::string>{"lost typed", "click"}));
  });
}

}  // namespace
