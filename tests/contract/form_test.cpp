// What a form and the boxes above it promise beyond what stories show: its life, exceptions on their way out, odd
// texts; and that a test's person does nothing impossible.
#include "platform/form.h"

#include <gtest/gtest-spi.h>

#include "contract/test_form.h"
#include "platform/message.h"
#include "platform/program.h"

namespace {

TEST_F(FormTest, LivesFromLoadToUnloadAndMayRefuseToGo) {
  form.OnLoad = [&] { form.LinesBox.SetFocus(); };
  form.Acts = [&] {
    EXPECT_TRUE(form.LinesBox.HasFocus());
    form.Refuses = true;
    form.Close();
    EXPECT_FALSE(form.Closed());
    form.Refuses = false;
  };
  const std::string life = "Load, Activate, QueryUnload Code, QueryUnload Code, Unload";
  Does([&] { form.ShowModal(), form.ShowModal(); }, life + ", " + life);
  form.OnLoad = [] { throw ProgramEnded(); };
  EXPECT_THROW(form.Show(), ProgramEnded);
  EXPECT_TRUE(form.Closed());
}

TEST_F(ShownFormTest, MainFormRunsUntilClosedAndSurvivesWhatAHandlerThrows) {
  form.HelpKey = [] { throw ProgramEnded(); };
  form.Acts = [&] { user.Presses({Key::Help}); };
  EXPECT_THROW(form.RunUntilClosed(), ProgramEnded);
  EXPECT_FALSE(form.Closed());
  form.Acts = [&] {
    form.Refuses = true;
    user.ClosesWindow();
    form.Refuses = false;
  };
  Does([&] { form.RunUntilClosed(), form.RunUntilClosed(); },
       "QueryUnload ControlMenu, QueryUnload ControlMenu, Unload");
}

TEST_F(FormTest, WhatAHandlerThrowsComesOutAfterTheFormHasGone) {
  const Event throws = [] { throw std::out_of_range("from below"); };
  TestForm above;
  above.Acts = above.HelpKey = throws;
  form.EntryList.Fill({{"a", 1}});
  form.TickList.Fill({"a"});
  form.EntryList.Click = form.LineBox.Change = form.LinesBox.GotFocus = form.HelpKey = throws;
  form.TickList.ItemCheck = form.MenuClick = [&](int) { throws(); };
  form.TextSurface.Wheel = [&](const WheelTurn&) { throws(); };
  form.TitleLabel.Click = [&] { form.Later(throws); };
  form.FirstButton.Click = [&] { above.ShowModal(); };
  const Event acts[] = {
      [&] { user.Enters(IDC_LineBox, "x"); },   [&] { user.Enters(IDC_EntryList, "a"); },
      [&] { user.Enters(IDC_TickList, "a"); },  [&] { user.Presses({Key::Help}); },
      [&] { user.ChoosesMenu(IDC_PlainItem); }, [&] { user.TurnsWheel(IDC_TextSurface, 1, false, false); },
      [&] { user.Clicks(IDC_TitleLabel); },     [&] { user.Clicks(IDC_FirstButton); },
      [&] { user.MovesTo(IDC_LinesBox); }};
  for (const Event& act : acts) {
    form.Acts = act;
    EXPECT_THROW(form.ShowModal(), std::out_of_range) << &act - acts;
    EXPECT_TRUE(form.Closed() && Hands::OpenForms().empty());
  }
  form.OnLoad = throws;
  EXPECT_THROW(form.ShowModal(), std::out_of_range);
}

TEST_F(FormTest, BoxesShowTheirTextAsItStands) {
  for (const std::string text : {"Two lines,\r\none of them caf\xE9.", "Fish & Chips && more", kFar.c_str()}) {
    Does([&] { MsgBox(text, "of &" + kFar); }, "no icon OK: " + text + " [of &" + kFar + "]");
    const std::string typed = " caf\xE9 & b " + kFar;
    user.Reply = '"' + typed + '"';
    Does([&] { EXPECT_EQ(InputBox(text, "T", typed), typed); }, "input: " + text + " offers " + user.Reply + " [T]");
  }
}

TEST_F(FormTest, APersonDoesNothingImpossibleAndExpectsNothing) {
  EXPECT_NONFATAL_FAILURE(user.Clicks(IDC_FirstButton), "No form");
  form.Show();
  form.SetMenuEnabled(IDC_PlainItem, false);
  form.FirstButton.SetEnabled(false);
  form.LineBox.SetVisible(false);
  form.LinesBox.SetReadOnly(true);
  EXPECT_NONFATAL_FAILURE(user.ChoosesMenu(IDC_PlainItem), "greyed");
  for (const int id : {IDC_LineBox, IDC_LinesBox, IDC_FirstButton, IDC_TickList, IDC_PlainItem})
    EXPECT_NONFATAL_FAILURE(user.Enters(id, "x"), std::to_string(id));
  const Listener nobody;
  EXPECT_NONFATAL_FAILURE(MsgBox("sure?", "T"), "sure?");
}

}  // namespace
