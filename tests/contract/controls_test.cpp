// What the plain controls promise: their texts and looks, their events exactly once and only when something differs,
// the focus, and groups of options.
#include "platform/controls.h"

#include <gtest/gtest-spi.h>

#include "contract/test_form.h"
#include "support/hands.h"

namespace {

using ControlsTest = ShownFormTest;

TEST_F(ControlsTest, TextsComeBackByteForByte) {
  std::string high, words, many;
  for (int byte = 0xA0; byte <= 0xFF; ++byte) high += static_cast<char>(byte);
  while (words.size() < 2000) words += "many words that wrap ";
  while (many.size() < 40000) many += "a line that is short enough\r\n";
  for (const auto& [control, name] : form.Members) {
    const int id = control->Id();
    const bool is_typed = id == IDC_LineBox || id == IDC_LinesBox || id == IDC_NameCombo;
    if (id >= IDC_KindDrop && id <= IDC_PhotoPic) continue;  // has no text, or not its own
    std::vector<std::string> texts = {"plain",    "",  "Fish & Chips && more", " caf\xE9 ", high, "tab\tbed",
                                      "100%s %d", kFar};
    // Lines are parted by CR LF, and long ones stay whole.
    if (id == IDC_LinesBox)
      texts.insert(texts.end(), {"first\r\n\r\n  third\r\n", std::string(1000, 'w'), words, many});
    if (id == IDC_LineBox) texts.emplace_back(40000, 'y');
    for (const std::string& text : texts) {
      control->SetText(text);
      EXPECT_EQ(control->Text(), text) << name;
      EXPECT_EQ(user.Sees(id), text);
      control->SetText("-");
      if (is_typed) user.Types(id, text);
      EXPECT_EQ(control->Text(), is_typed ? text : "-") << name;
    }
  }
}

TEST_F(ControlsTest, ChangeComesOnceAndOnlyWhenTheTextDiffers) {
  for (Control* box : std::initializer_list<Control*>{&form.LineBox, &form.LinesBox, &form.NameCombo}) {
    const std::string change = form.Members[box] + " Change ";
    const auto sets = [box](const char* text) { box->SetText(text); };
    const auto types = [&](const char* text) { user.Types(box->Id(), text); };
    Does([&] { sets("code"), sets("code"), types("code"); }, change + "code");
    Does([&] { types("person"), types("person"), sets("person"); }, change + "person");
    Does([&] { sets("PERSON"); }, change + "PERSON");
  }
  form.LineBox.Change = [&, tell = form.LineBox.Change] {
    tell();
    if (form.LineBox.Text() == "wrong") form.LineBox.SetText("right");
  };
  Does([&] { user.Types(IDC_LineBox, "wrong"); }, "LineBox Change wrong, LineBox Change right");
  Does([&] { form.LineBox.SetText("wrong"); }, "LineBox Change wrong, LineBox Change right");
  Does([&] { form.TitleLabel.SetText("x"), form.FirstButton.SetText("x"), form.GroupFrame.SetText("x"); }, "");
}

TEST_F(ControlsTest, LimitAndReadOnlyBindThePersonNotTheCode) {
  form.LineBox.SetTextLimit(5);
  Does([&] { user.Types(IDC_LineBox, "abcdefgh"); }, "LineBox Change abcde");
  Does([&] { form.LineBox.SetText("abcdefgh"); }, "LineBox Change abcdefgh");
  form.LineBox.SetTextLimit(7);  // in bytes
  Does([&] { user.Types(IDC_LineBox, "&#937;abc"); }, "LineBox Change &#937;a");
  form.LineBox.SetTextLimit(0);
  Does([&] { user.Types(IDC_LineBox, "no limit any more"); }, "LineBox Change no limit any more");
  for (const bool read_only : {true, false}) {
    EXPECT_NE(form.LinesBox.ReadOnly(), read_only);
    form.LinesBox.SetReadOnly(read_only);
    Does([&] { form.LinesBox.SetText(read_only ? "bound" : "free"); },
         read_only ? "LinesBox Change bound" : "LinesBox Change free");
    if (read_only) Does([&] { EXPECT_NONFATAL_FAILURE(user.Types(IDC_LinesBox, "typed"), "5013"); }, "");
  }
  Does([&] { user.Types(IDC_LinesBox, "typed"); }, "LinesBox Change typed");
}

TEST_F(ControlsTest, MarksAreCountedInBytes) {
  form.LineBox.SetText("a&#937;b&#128512;&#38;#937;");
  form.NameCombo.SetText(form.LineBox.Text());
  for (const auto& [first, last] : {std::pair(0, 27), {1, 7}, {8, 17}, {7, 8}, {17, 27}}) {
    form.LineBox.SelectText(first, last);
    form.NameCombo.SelectText(first, last);
    for (const Control* control : std::initializer_list<Control*>{&form.LineBox, &form.NameCombo}) {
      EXPECT_EQ(Hands::LookAt(*control).Mark, std::pair(first, last)) << control->Id();
    }
  }
}

TEST_F(ControlsTest, PropertiesAreOfOneControlEach) {
  const struct {
    void (Control::*Set)(bool);
    bool (Control::*Get)() const;
    bool (User::*Sees)(int);
    bool Usual;
  } properties[] = {{&Control::SetEnabled, &Control::Enabled, &User::SeesEnabled, true},
                    {&Control::SetVisible, &Control::Visible, &User::SeesVisible, true},
                    {&Control::SetBold, &Control::Bold, &User::SeesBold, false}};
  for (const auto& [each, name] : form.Members) {
    SCOPED_TRACE(name);
    EXPECT_EQ(&each->Owner(), &form);
    for (const auto& [set, get, sees, usual] : properties) {
      EXPECT_EQ((each->*get)(), usual);
      for (const bool value : {!usual, usual}) {
        (each->*set)(value);
        EXPECT_EQ((each->*get)(), value);
        EXPECT_EQ((user.*sees)(each->Id()), value);
      }
    }
    EXPECT_EQ(each->ToolTip(), "");
    for (const std::string tip : {"Fish & Chips", kFar.c_str(), ""}) {
      each->SetToolTip(tip);
      EXPECT_EQ(each->ToolTip(), tip);
    }
  }
  for (const bool marked : {true, false}) {
    const BackColor color = marked ? BackColor::Marked : BackColor::ButtonFace;
    EXPECT_TRUE(form.TitleLabel.Border() != marked && form.FirstButton.BackColor() != color);
    form.TitleLabel.SetBorder(marked);
    form.FirstButton.SetBackColor(color);
    EXPECT_TRUE(form.TitleLabel.Border() == marked && form.FirstButton.BackColor() == color);
  }
}

TEST_F(ControlsTest, OptionsOfAGroupGoOutForEachOther) {
  OptionButton &red = form.RedOption, &green = form.GreenOption, &small = form.SmallOption, &large = form.LargeOption;
  Does([&] { red.SetChecked(true), large.SetChecked(true); }, "RedOption Click, LargeOption Click");
  EXPECT_TRUE(red.Checked() && !green.Checked() && !small.Checked() && large.Checked());
  Does([&] { user.Clicks(IDC_GreenOption), user.Clicks(IDC_GreenOption); }, "GreenOption Click");
  EXPECT_TRUE(!red.Checked() && green.Checked() && !small.Checked() && large.Checked());
  Does([&] { red.SetChecked(true), red.SetChecked(true), large.SetChecked(false); }, "RedOption Click");
  EXPECT_TRUE(red.Checked() && !green.Checked() && !small.Checked() && !large.Checked());
}

TEST_F(ControlsTest, FocusIsLostAndGotBeforeAnythingElseAndNotToBoxesAboveTheForm) {
  LogsFocus = true;
  form.EntryList.SetFocus();
  EXPECT_TRUE(form.EntryList.HasFocus() && user.SeesFocusOn(IDC_EntryList));
  Does([&] { form.LineBox.SetFocus(), form.LineBox.SetFocus(); }, "EntryList lost, LineBox got");
  EXPECT_FALSE(form.EntryList.HasFocus());
  Does([&] { user.Clicks(IDC_FirstButton); }, "LineBox lost, FirstButton got, FirstButton Click");
  Does([&] { user.Types(IDC_NameCombo, "x"); }, "FirstButton lost, NameCombo got, NameCombo Change x");
  Does([&] { user.MovesTo(IDC_LinesBox); }, "NameCombo lost, LinesBox got");
  Does([&] { user.Clicks(IDC_TitleLabel), user.Clicks(IDC_PhotoPic), user.ChoosesMenu(IDC_PlainItem); },
       "TitleLabel Click, PhotoPic Click, Menu 5040");
  form.LineBox.SetEnabled(false);
  form.FirstButton.SetVisible(false);
  Does([&] { form.LineBox.SetFocus(), form.FirstButton.SetFocus(), form.TitleLabel.SetFocus(); }, "");
  user.Reads("above", Icon::None);
  user.AnswersInput("above", "x");
  Does([&] { MsgBox("above", "T"), InputBox("above", "T"); }, "Activate, Activate");
  EXPECT_TRUE(form.LinesBox.HasFocus() && user.SeesFocusOn(IDC_LinesBox));
}

}  // namespace
