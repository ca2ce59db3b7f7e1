// What a form promises: its life, forms above it, keys, the menu, and exceptions on their way out.
#include "platform/form.h"

#include <gtest/gtest-spi.h>

#include "contract/error_of.h"
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
  EXPECT_EQ(form.Caption(), "Larkspur && " + kFar);
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
    bare.Refuses = true;
    Does([&] { user.ClosesWindow(); }, "bare QueryUnload ControlMenu");
    bare.Refuses = false;
    user.ClosesWindow();
  });
  Does([&] { bare.RunUntilClosed(); }, "bare QueryUnload ControlMenu, bare Unload");
  EXPECT_TRUE(bare.Closed());
  EXPECT_EQ(bare.BareBox.Text(), "at once");
  bare.RunUntilClosed();
}

TEST_F(ShownFormTest, KeysAreClicksOrTold) {
  std::vector<Key> keys;
  form.KeyDown = [&](Key key) {
    keys.push_back(key);
    return keys.size() < 9;
  };
  form.OKButton.SetEnabled(false);
  Does([&] { user.Presses(Key::Enter); }, "");
  form.OKButton.SetEnabled(true);
  form.Refuses = true;
  Does([&] { user.Presses(Key::Enter); }, "OKButton Click, QueryUnload Code");
  Does([&] { user.Presses(Key::Escape); }, "CancelButton Click, QueryUnload Code");
  form.Refuses = false;
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
  user.Presses(Key::Home);
  EXPECT_EQ(keys.size(), 9U);
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

TEST_F(ShownFormTest, MenuEntriesAreEnabledCheckedAndTold) {
  for (const bool on : {false, true}) {
    form.SetMenuEnabled(IDC_GreyItem, on);
    form.SetMenuChecked(IDC_TickItem, on);
    for (const int id : {IDC_PlainItem, IDC_GreyItem, IDC_TickItem}) {
      EXPECT_EQ(user.SeesMenuEnabled(id), on || id != IDC_GreyItem) << id;
      EXPECT_EQ(form.MenuEnabled(id), on || id != IDC_GreyItem) << id;
      EXPECT_EQ(user.SeesMenuChecked(id), on && id == IDC_TickItem) << id;
      EXPECT_EQ(form.MenuChecked(id), on && id == IDC_TickItem) << id;
    }
  }
  Does([&] { user.ChoosesMenu(IDC_GreyItem); }, "Menu 5042");
}

TEST_F(FormTest, WhatAHandlerThrowsComesOutAfterTheFormHasGone) {
  const Event throws = [] { throw std::out_of_range("from below"); };
  const std::pair<Event, Event> rows[] = {
      {[&] { form.FirstButton.Click = throws; }, [&] { user.Clicks(IDC_FirstButton); }},
      {[&] { form.LineBox.Change = throws; }, [&] { user.Types(IDC_LineBox, "x"); }},
      {[&] { form.EntryList.Click = throws; }, [&] { user.Picks(IDC_EntryList, "a"); }},
      {[&] { form.TickList.ItemCheck = [&](int) { throws(); }; }, [&] { user.Ticks(IDC_TickList, "a"); }},
      {[&] { form.MenuClick = [&](int) { throws(); }; }, [&] { user.ChoosesMenu(IDC_PlainItem); }},
      {[&] { form.HelpKey = throws; }, [&] { user.Presses(Key::Help); }},
      {[&] { form.SecondButton.Click = [&] { form.Later(throws); }; }, [&] { user.Clicks(IDC_SecondButton); }},
      {[&] { bare.TextSurface.Wheel = [&](const WheelTurn&) { throws(); }; },
       [&] {
         form.FirstButton.Click = [&] { bare.ShowModal(); };
         user.UsesForm(IDD_BareForm, [&] { user.TurnsWheel(IDC_TextSurface, 1); });
         user.Clicks(IDC_FirstButton);  // the exception passes through both forms
       }},
      {[&] { form.LinesBox.GotFocus = throws; }, [&] { user.MovesTo(IDC_LinesBox); }},
      {[&] { form.OnLoad = throws; }, {}},
  };
  form.EntryList.Fill({{"a", 1}});
  form.TickList.Fill({"a"});
  for (const auto& [prepares, acts] : rows) {
    SCOPED_TRACE(&prepares - &rows[0].first);
    prepares();
    if (acts) user.UsesForm(IDD_TestForm, acts);
    EXPECT_THROW(form.ShowModal(), std::out_of_range);
    EXPECT_TRUE(form.Closed());
    EXPECT_NONFATAL_FAILURE(user.Clicks(IDC_FirstButton), "No form");
  }
}

}  // namespace
