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
  const std::vector<std::string> texts = {"plain",    "",  "Fish & Chips && more", " caf\xE9 ", high, "tab\tbed",
                                          "100%s %d", kFar};
  // Lines are parted by CR LF, and long ones stay whole.
  const std::vector<std::string> lines = {"first\r\n\r\n  third\r\n", std::string(1000, 'w'), words, many};
  for (Control* control : form.Members) {
    const int id = control->Id();
    EXPECT_EQ(&control->Owner(), &form);
    if (id >= IDC_KindDrop && id <= IDC_PhotoPic) continue;  // has no text, or not its own
    std::vector<std::string> all = texts;
    if (control == &form.LinesBox) all.insert(all.end(), lines.begin(), lines.end());
    if (control == &form.LineBox) all.emplace_back(40000, 'y');
    for (const std::string& text : all) {
      control->SetText(text);
      EXPECT_EQ(control->Text(), text) << id;
      EXPECT_EQ(user.Sees(id), text);
      if (id != IDC_LineBox && id != IDC_LinesBox && id != IDC_NameCombo) continue;
      control->SetText("-");
      user.Types(id, text);
      EXPECT_EQ(control->Text(), text) << id;
    }
  }
}

TEST_F(ControlsTest, ChangeComesOnceAndOnlyWhenTheTextDiffers) {
  for (const auto& [box, name] : std::initializer_list<std::pair<Control*, std::string>>{
           {&form.LineBox, "LineBox"}, {&form.LinesBox, "LinesBox"}, {&form.NameCombo, "NameCombo"}}) {
    const auto sets = [&box](const char* text) { box->SetText(text); };
    const auto types = [&](const char* text) { user.Types(box->Id(), text); };
    Does([&] { sets("code"), sets("code"), types("code"); }, name + " Change code");
    Does([&] { types("person"), types("person"), sets("person"); }, name + " Change person");
    Does([&] { sets("PERSON"); }, name + " Change PERSON");
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
  EXPECT_FALSE(form.LinesBox.ReadOnly());
  form.LinesBox.SetReadOnly(true);
  EXPECT_TRUE(form.LinesBox.ReadOnly());
  Does([&] { form.LinesBox.SetText("code"); }, "LinesBox Change code");
  Does([&] { EXPECT_NONFATAL_FAILURE(user.Types(IDC_LinesBox, "typed"), "5013"); }, "");
  form.LinesBox.SetReadOnly(false);
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
  for (Control* each : form.Members) {
    SCOPED_TRACE(each->Id());
    for (const auto& property : properties) {
      EXPECT_EQ((each->*property.Get)(), property.Usual);
      for (const bool value : {!property.Usual, property.Usual}) {
        (each->*property.Set)(value);
        EXPECT_EQ((each->*property.Get)(), value);
        EXPECT_EQ((user.*property.Sees)(each->Id()), value);
      }
    }
    EXPECT_EQ(each->ToolTip(), "");
    for (const std::string tip : {"Fish & Chips", kFar.c_str(), ""}) {
      each->SetToolTip(tip);
      EXPECT_EQ(each->ToolTip(), tip);
    }
  }
  for (const bool border : {true, false}) {
    EXPECT_NE(form.TitleLabel.Border(), border);
    form.TitleLabel.SetBorder(border);
    EXPECT_EQ(form.TitleLabel.Border(), border);
  }
  for (const BackColor color : {BackColor::Marked, BackColor::ButtonFace}) {
    EXPECT_NE(form.FirstButton.BackColor(), color);
    form.FirstButton.SetBackColor(color);
    EXPECT_EQ(form.FirstButton.BackColor(), color);
  }
}

TEST_F(ControlsTest, OptionsOfAGroupGoOutForEachOther) {
  const auto checked = [&] {
    std::string marks;
    for (const OptionButton* option : std::initializer_list<OptionButton*>{&form.RedOption, &form.GreenOption,
                                                                           &form.SmallOption, &form.LargeOption}) {
      marks += option->Checked() ? "x" : "-";
    }
    return marks;
  };
  Does([&] { form.RedOption.SetChecked(true), form.LargeOption.SetChecked(true); },
       "RedOption Click, LargeOption Click");
  EXPECT_EQ(checked(), "x--x");
  Does([&] { user.Clicks(IDC_GreenOption), user.Clicks(IDC_GreenOption); }, "GreenOption Click");
  EXPECT_EQ(checked(), "-x-x");
  Does([&] { form.RedOption.SetChecked(true), form.RedOption.SetChecked(true); }, "RedOption Click");
  Does([&] { form.LargeOption.SetChecked(false); }, "");
  EXPECT_EQ(checked(), "x---");
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
