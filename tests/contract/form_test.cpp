// What a form promises: its life, forms above it, keys, the menu, and exceptions on their way out.
#include "platform/form.h"

#include <gtest/gtest-spi.h>

#include "contract/test_form.h"
#include "platform/program.h"

namespace {

TEST_F(FormTest, LivesFromLoadToUnloadAndMayRefuseToGo) {
  form.SetCaption("Larkspur && " + kFar);
  form.KindDrop.Fill({{"early", 1}});
  Does([&] { form.KindDrop.Select(0), form.LineBox.SetText("x"); }, "KindDrop Click 0 early, LineBox Change x");
  form.OnLoad = [&] { form.HintLabel.SetText("loaded"), form.LinesBox.SetFocus(); };
  Does([&] { Use({}); }, "Load, Activate, CancelButton Click, QueryUnload Code, Unload");
  EXPECT_TRUE(form.Closed());
  Use([&] {
    EXPECT_EQ(user.SeesCaption() + user.Sees(IDC_LineBox) + user.Sees(IDC_HintLabel),
              "Larkspur && " + kFar + "xloaded");
    EXPECT_EQ(user.SeesSelected(IDC_KindDrop), "early");
    EXPECT_TRUE(user.SeesFocusOn(IDC_LinesBox));
    form.Refuses = true;
    Does([&] { form.Close(); }, "QueryUnload Code");
    EXPECT_FALSE(form.Closed());
    form.Refuses = false;
  });
  form.OnLoad = [] { throw ProgramEnded(); };
  EXPECT_THROW(form.Show(), ProgramEnded);
  EXPECT_TRUE(form.Closed());
}

TEST_F(FormTest, MainFormRunsUntilClosedAndSurvivesWhatAHandlerThrows) {
  bare.BareBox.GotFocus = nullptr;  // nobody has to listen
  Does([&] { bare.Show(); }, "bare Load, bare Activate");
  Does([&] { user.Types(IDC_BareBox, "at once"); }, "bare BareBox Change at once");
  bare.EnterKey = [] { throw ProgramEnded(); };
  EXPECT_THROW(user.Presses(Key::Enter), ProgramEnded);
  user.UsesForm(IDD_BareForm, [&] { user.Presses(Key::Enter); });
  EXPECT_THROW(bare.RunUntilClosed(), ProgramEnded);
  EXPECT_FALSE(bare.Closed());
  user.UsesForm(IDD_BareForm, [&] {
    for (const bool refuses : {true, false}) {
      bare.Refuses = refuses;
      user.ClosesWindow();
    }
  });
  Does([&] { bare.RunUntilClosed(), bare.RunUntilClosed(); },
       "bare QueryUnload ControlMenu, bare QueryUnload ControlMenu, bare Unload");
  EXPECT_TRUE(bare.Closed() && bare.BareBox.Text() == "at once");
}

TEST_F(ShownFormTest, KeysAreClicksOrTold) {
  std::vector<Key> keys;
  form.KeyDown = [&](Key key) {
    keys.push_back(key);
    return true;
  };
  form.Refuses = true;
  for (const bool enabled : {false, true}) {
    form.OKButton.SetEnabled(enabled);
    Does([&] { user.Presses(Key::Enter); }, enabled ? "OKButton Click, QueryUnload Code" : "");
  }
  Does([&] { user.Presses(Key::Escape); }, "CancelButton Click, QueryUnload Code");
  for (const int id : {IDC_LinesBox, IDC_SmallOption, IDC_NameCombo, IDC_TickList, IDC_OKButton, IDC_FirstButton}) {
    user.MovesTo(id);
    Does([&] { user.Presses(Key::Help); }, "HelpKey");
    EXPECT_TRUE(user.SeesFocusOn(id)) << id;
  }
  Does([&] { user.Presses(Key::Enter); }, "FirstButton Click");
  const std::vector<Key> walk = {Key::Left,   Key::Right,    Key::Up,   Key::Down,
                                 Key::PageUp, Key::PageDown, Key::Home, Key::End};
  for (const Key key : walk) user.Presses(key);
  EXPECT_EQ(keys, walk);
  EXPECT_TRUE(user.SeesFocusOn(IDC_FirstButton));  // an arrow would have moved it on, had it not been kept
  Use(bare, [&] {
    user.MovesTo(IDC_BareBox);
    Does([&] { user.Presses(Key::Enter), user.Presses(Key::Escape); }, "bare EnterKey, bare EscapeKey");
  });
}

TEST_F(ShownFormTest, WhatIsForLaterComesBehindTheClickThatMovedTheFocus) {
  form.LineBox.LostFocus = [&] { form.Later([] { Log("Later"); }); };
  user.MovesTo(IDC_LineBox);
  Does([&] { user.Clicks(IDC_FirstButton); }, "FirstButton Click, Later");
  user.MovesTo(IDC_LineBox);
  Does([&] { user.MovesTo(IDC_FirstButton); }, "Later");
}

TEST_F(ShownFormTest, TheFormAboveTakesEveryActAndGivesTheFocusBack) {
  LogsFocus = true;
  form.MenuClick = [&](int) { bare.ShowModal(); };
  user.MovesTo(IDC_LinesBox);
  user.UsesForm(IDD_BareForm, [&] {
    EXPECT_TRUE(bare.BareBox.HasFocus() && !form.LinesBox.HasFocus());
    Does([&] { user.Presses(Key::Help); }, "bare HelpKey");
    user.ClosesWindow();
  });
  Does([&] { user.ChoosesMenu(IDC_PlainItem); }, "bare QueryUnload ControlMenu, bare Unload, Activate");
  EXPECT_TRUE(form.LinesBox.HasFocus() && user.SeesFocusOn(IDC_LinesBox));
  Does([&] { user.Types(IDC_LinesBox, "x"); }, "LinesBox Change x");
}

TEST_F(FormTest, WhatAHandlerThrowsComesOutAfterTheFormHasGone) {
  const Event throws = [] { throw std::out_of_range("from below"); };
  form.EntryList.Fill({{"a", 1}});
  form.EntryList.Click = form.LineBox.Change = form.LinesBox.GotFocus = form.HelpKey = throws;
  form.TickList.Fill({"a"});
  form.TickList.ItemCheck = [&](int) { throws(); };
  form.MenuClick = [&](int) { throws(); };
  form.FirstButton.Click = [&] { bare.ShowModal(); };  // through both forms
  form.SecondButton.Click = [&] { form.Later(throws); };
  bare.TextSurface.Wheel = [&](const WheelTurn&) { throws(); };
  const Event acts[] = {[&] { user.Types(IDC_LineBox, "x"); },
                        [&] { user.Picks(IDC_EntryList, "a"); },
                        [&] { user.Ticks(IDC_TickList, "a"); },
                        [&] { user.Presses(Key::Help); },
                        [&] { user.ChoosesMenu(IDC_PlainItem); },
                        [&] { user.Clicks(IDC_SecondButton); },
                        [&] {
                          user.UsesForm(IDD_BareForm, [&] { user.TurnsWheel(IDC_TextSurface, 1); });
                          user.Clicks(IDC_FirstButton);
                        },
                        [&] { user.MovesTo(IDC_LinesBox); }};
  for (const Event& act : acts) {
    user.UsesForm(IDD_TestForm, act);
    EXPECT_THROW(form.ShowModal(), std::out_of_range);
    EXPECT_TRUE(form.Closed());
    EXPECT_NONFATAL_FAILURE(user.Clicks(IDC_FirstButton), "No form");
  }
  form.OnLoad = throws;
  EXPECT_THROW(form.ShowModal(), std::out_of_range);
}

}  // namespace
