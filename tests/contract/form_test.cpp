// What a form promises: its life, modal forms above each other, keys, the close box, the menu, and
// exceptions on their way out.
#include "platform/form.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "contract/test_form.h"
#include "platform/program.h"
#include "platform/runtime_error.h"
#include "support/user.h"

namespace {

class FormTest : public testing::Test {
 protected:
  // Shows the form; the person does what is said and presses Cancel.
  void Use(TestForm& form, const std::function<void()>& acts) {
    user.UsesForm(IDD_TestForm, [this, &form, acts] {
      form.Came();
      acts();
      user.Clicks(IDC_CancelButton);
    });
    form.ShowModal();
  }

  User user;
};

TEST_F(FormTest, ModalFormLivesFromLoadToUnload) {
  TestForm form;
  user.UsesForm(IDD_TestForm, [&] {
    EXPECT_EQ(form.Came(), (Events{"Load", "Activate"}));
    EXPECT_FALSE(form.Closed());
    user.Clicks(IDC_OKButton);
    EXPECT_TRUE(form.Closed());
  });
  form.ShowModal();
  EXPECT_EQ(form.Came(), (Events{"OKButton Click", "QueryUnload Code", "Unload"}));
  EXPECT_TRUE(form.Closed());
}

TEST_F(FormTest, ControlsAreSetBeforeTheFormIsShownAndReadAfterIt) {
  TestForm form;
  form.SetCaption("Larkspur && caf\xE9");
  form.LineBox.SetText("early");
  form.EntryList.Fill({{"one", 1}, {"two", 2}});
  form.FirstButton.SetEnabled(false);
  form.OnLoad = [&] { form.HintLabel.SetText("loaded"); };
  Use(form, [&] {
    EXPECT_EQ(user.SeesCaption(), "Larkspur && caf\xE9");
    EXPECT_EQ(user.Sees(IDC_LineBox), "early");
    EXPECT_EQ(user.SeesEntries(IDC_EntryList), (std::vector<std::string>{"one", "two"}));
    EXPECT_FALSE(user.SeesEnabled(IDC_FirstButton));
    EXPECT_EQ(user.Sees(IDC_HintLabel), "loaded");
    user.Types(IDC_LineBox, "late");
    user.Picks(IDC_EntryList, "two");
  });
  EXPECT_EQ(form.Caption(), "Larkspur && caf\xE9");
  EXPECT_EQ(form.LineBox.Text(), "late");
  EXPECT_EQ(form.EntryList.SelectedData(), 2);
}

TEST_F(FormTest, EnterAndEscClickTheButtonsOneAndTwo) {
  TestForm form;
  user.UsesForm(IDD_TestForm, [&] {
    user.MovesTo(IDC_LineBox);
    form.Came();
    form.OKButton.SetEnabled(false);
    user.Presses(Key::Enter);
    EXPECT_EQ(form.Came(), Events{});
    form.OKButton.SetEnabled(true);
    form.Refuses = true;
    user.Presses(Key::Enter);
    EXPECT_EQ(form.Came(), (Events{"OKButton Click", "QueryUnload Code"}));
    form.Refuses = false;
    user.MovesTo(IDC_FirstButton);
    user.Presses(Key::Enter);  // a button that has the focus comes before the one with id 1
    EXPECT_EQ(form.Came(), Events{"FirstButton Click"});
    user.Presses(Key::Escape);
  });
  form.ShowModal();
  EXPECT_EQ(form.Came(), (Events{"CancelButton Click", "QueryUnload Code", "Unload"}));
}

TEST_F(FormTest, WithoutButtonsOneAndTwoTheFormIsToldOfTheKeys) {
  BareForm form;
  user.UsesForm(IDD_BareForm, [&] {
    user.MovesTo(IDC_BareBox);
    form.Came();
    user.Presses(Key::Enter);
    EXPECT_EQ(form.Came(), Events{"EnterKey"});
    user.Presses(Key::Escape);
    EXPECT_EQ(form.Came(), Events{"EscapeKey"});
    EXPECT_FALSE(form.Closed());
    user.Clicks(IDC_BareButton);
  });
  form.ShowModal();
}

TEST_F(FormTest, KeysAreToldBeforeTheControlHasThem) {
  TestForm form;
  std::vector<Key> keys;
  bool taken = false;
  form.KeyDown = [&](Key key) {
    keys.push_back(key);
    return taken;
  };
  Use(form, [&] {
    user.MovesTo(IDC_FirstButton);
    const std::vector<Key> walk = {Key::Left,   Key::Right,    Key::Up,   Key::Down,
                                   Key::PageUp, Key::PageDown, Key::Home, Key::End};
    taken = true;
    for (const Key key : walk) user.Presses(key);
    EXPECT_EQ(keys, walk);
    EXPECT_TRUE(user.SeesFocusOn(IDC_FirstButton));  // an arrow would have moved it on
    taken = false;
    user.Presses(Key::Home);
    EXPECT_EQ(keys.size(), walk.size() + 1);
  });
  EXPECT_EQ(keys.back(), Key::Home);
}

TEST_F(FormTest, WhatIsForLaterComesBehindTheClickThatMovedTheFocus) {
  TestForm form;
  form.LineBox.LostFocus = [&form] { form.Later([&form] { form.Log.push_back("Later"); }); };
  Use(form, [&] {
    user.MovesTo(IDC_LineBox);
    user.Clicks(IDC_FirstButton);
    EXPECT_EQ(form.Came(), (Events{"FirstButton Click", "Later"}));
    user.MovesTo(IDC_LineBox);
    user.MovesTo(IDC_FirstButton);
    EXPECT_EQ(form.Came(), Events{"Later"});
  });
}

TEST_F(FormTest, HelpKeyIsToldWhereverTheFocusIs) {
  TestForm form;
  TestForm above;
  form.FirstButton.Click = [&] { above.ShowModal(); };
  Use(form, [&] {
    for (const int id : {IDC_LineBox, IDC_LinesBox, IDC_SmallOption, IDC_NameCombo, IDC_TickList, IDC_OKButton}) {
      user.MovesTo(id);
      user.Presses(Key::Help);
      EXPECT_EQ(form.Came(), Events{"HelpKey"}) << id;
      EXPECT_TRUE(user.SeesFocusOn(id)) << id;
    }
    // Only the topmost form is told.
    user.UsesForm(IDD_TestForm, [&] {
      user.Presses(Key::Help);
      user.Clicks(IDC_CancelButton);
    });
    user.Clicks(IDC_FirstButton);
    EXPECT_EQ(form.Came(), (Events{"Activate"}));
  });
  EXPECT_EQ(above.Came(), (Events{"Load", "Activate", "HelpKey", "CancelButton Click", "QueryUnload Code", "Unload"}));
}

TEST_F(FormTest, CloseBoxClicksButtonTwoOrAsksTheForm) {
  TestForm form;
  user.UsesForm(IDD_TestForm, [&] {
    form.Came();
    user.ClosesWindow();
  });
  form.ShowModal();
  EXPECT_EQ(form.Came(), (Events{"CancelButton Click", "QueryUnload Code", "Unload"}));

  BareForm bare;
  user.UsesForm(IDD_BareForm, [&] {
    bare.Came();
    bare.Refuses = true;
    user.ClosesWindow();
    EXPECT_EQ(bare.Came(), Events{"QueryUnload ControlMenu"});
    EXPECT_FALSE(bare.Closed());
    bare.Refuses = false;
    user.ClosesWindow();
  });
  bare.ShowModal();
  EXPECT_EQ(bare.Came(), (Events{"QueryUnload ControlMenu", "Unload"}));
}

TEST_F(FormTest, CloseFromCodeAsksFirst) {
  TestForm form;
  Use(form, [&] {
    form.Refuses = true;
    form.Close();
    EXPECT_FALSE(form.Closed());
    EXPECT_EQ(form.Came(), Events{"QueryUnload Code"});
    form.Refuses = false;
  });
  EXPECT_TRUE(form.Closed());
}

TEST_F(FormTest, MainFormIsShownAndRunsUntilClosed) {
  BareForm form;
  form.Show();
  EXPECT_EQ(form.Came(), (Events{"Load", "Activate"}));
  EXPECT_FALSE(form.Closed());
  user.Types(IDC_BareBox, "at once");
  EXPECT_EQ(form.Came(), Events{"BareBox Change"});
  user.UsesForm(IDD_BareForm, [&] {
    user.Types(IDC_BareBox, "later");
    user.ClosesWindow();
  });
  form.RunUntilClosed();
  EXPECT_EQ(form.Came(), (Events{"BareBox Change", "QueryUnload ControlMenu", "Unload"}));
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(form.BareBox.Text(), "later");
  form.RunUntilClosed();
}

TEST_F(FormTest, MainFormSurvivesWhatAHandlerThrows) {
  BareForm form;
  form.Show();
  form.BareBox.Change = [] { throw RuntimeError(kDiskFull); };
  user.UsesForm(IDD_BareForm, [&] { user.Types(IDC_BareBox, "x"); });
  try {
    form.RunUntilClosed();
    FAIL() << "nothing was thrown";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number, kDiskFull);
  }
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(form.BareBox.Text(), "x");
  user.UsesForm(IDD_BareForm, [&] { user.Clicks(IDC_BareButton); });
  form.RunUntilClosed();
  EXPECT_TRUE(form.Closed());
}

TEST_F(FormTest, WhatAHandlerOfAShownFormThrowsReachesThePerson) {
  BareForm form;
  form.BareButton.Click = [] { throw ProgramEnded(); };
  form.Show();
  EXPECT_THROW(user.Clicks(IDC_BareButton), ProgramEnded);
  EXPECT_FALSE(form.Closed());
}

TEST_F(FormTest, ThreeModalFormsAndTheFocusBack) {
  TestForm outer, middle, inner;
  outer.FirstButton.Click = [&] { middle.ShowModal(); };
  middle.MenuClick = [&](int) { inner.ShowModal(); };
  user.UsesForm(IDD_TestForm, [&] {
    user.UsesForm(IDD_TestForm, [&] {
      user.MovesTo(IDC_LineBox);
      user.UsesForm(IDD_TestForm, [&] {
        user.Types(IDC_LineBox, "inner");
        EXPECT_FALSE(middle.LineBox.HasFocus());
        user.Clicks(IDC_OKButton);
      });
      middle.Came();
      user.ChoosesMenu(IDC_PlainItem);
      EXPECT_EQ(middle.Came(), Events{"Activate"});
      EXPECT_TRUE(user.SeesFocusOn(IDC_LineBox));
      EXPECT_TRUE(middle.LineBox.HasFocus());
      user.Types(IDC_LineBox, "middle");
      user.Clicks(IDC_OKButton);
    });
    outer.Came();
    user.Clicks(IDC_FirstButton);
    EXPECT_EQ(outer.Came(), Events{"Activate"});
    EXPECT_TRUE(outer.FirstButton.HasFocus());
    user.Types(IDC_LineBox, "outer");
    user.Clicks(IDC_OKButton);
  });
  outer.ShowModal();
  EXPECT_EQ(inner.LineBox.Text(), "inner");
  EXPECT_EQ(middle.LineBox.Text(), "middle");
  EXPECT_EQ(outer.LineBox.Text(), "outer");
}

TEST_F(FormTest, TheFormBelowIsOutOfReach) {
  TestForm form;
  BareForm above;
  form.FirstButton.Click = [&] { above.ShowModal(); };
  Use(form, [&] {
    user.UsesForm(IDD_BareForm, [&] {
      EXPECT_NONFATAL_FAILURE(user.Clicks(IDC_SecondButton), "5015");
      user.Clicks(IDC_BareButton);
    });
    user.Clicks(IDC_FirstButton);
    EXPECT_EQ(form.Came(), Events{"Activate"});
    EXPECT_TRUE(user.SeesEnabled(IDC_SecondButton));
  });
}

TEST_F(FormTest, MenuEntriesAreEnabledCheckedAndTold) {
  TestForm form;
  form.SetMenuEnabled(IDC_GreyItem, false);
  form.SetMenuChecked(IDC_TickItem, true);
  Use(form, [&] {
    EXPECT_TRUE(user.SeesMenuEnabled(IDC_PlainItem));
    EXPECT_FALSE(user.SeesMenuEnabled(IDC_GreyItem));
    EXPECT_FALSE(form.MenuEnabled(IDC_GreyItem));
    EXPECT_TRUE(user.SeesMenuChecked(IDC_TickItem));
    EXPECT_FALSE(user.SeesMenuChecked(IDC_PlainItem));
    user.ChoosesMenu(IDC_PlainItem);
    EXPECT_EQ(form.Came(), Events{"Menu 5040"});
    EXPECT_NONFATAL_FAILURE(user.ChoosesMenu(IDC_GreyItem), "5042");
    EXPECT_EQ(form.Came(), Events{});
    form.SetMenuEnabled(IDC_GreyItem, true);
    EXPECT_TRUE(form.MenuEnabled(IDC_GreyItem));
    user.ChoosesMenu(IDC_GreyItem);
    user.ChoosesMenu(IDC_TickItem);
    EXPECT_EQ(form.Came(), (Events{"Menu 5042", "Menu 5041"}));
    EXPECT_TRUE(form.MenuChecked(IDC_TickItem));
    form.SetMenuChecked(IDC_TickItem, false);
    EXPECT_FALSE(user.SeesMenuChecked(IDC_TickItem));
  });
}

TEST_F(FormTest, WhatAHandlerThrowsComesOutAfterTheFormHasGone) {
  const std::vector<std::function<void(TestForm&, const Event&)>> places = {
      [this](TestForm& form, const Event& handler) {
        form.FirstButton.Click = handler;
        user.UsesForm(IDD_TestForm, [this] { user.Clicks(IDC_FirstButton); });
      },
      [this](TestForm& form, const Event& handler) {
        form.LineBox.Change = handler;
        user.UsesForm(IDD_TestForm, [this] { user.Types(IDC_LineBox, "x"); });
      },
      [this](TestForm& form, const Event& handler) {
        form.EntryList.Fill({{"a", 1}});
        form.EntryList.Click = handler;
        user.UsesForm(IDD_TestForm, [this] { user.Picks(IDC_EntryList, "a"); });
      },
      [this](TestForm& form, const Event& handler) {
        form.TickList.Fill({"a"});
        form.TickList.ItemCheck = [handler](int) { handler(); };
        user.UsesForm(IDD_TestForm, [this] { user.Ticks(IDC_TickList, "a"); });
      },
      [this](TestForm& form, const Event& handler) {
        form.MenuClick = [handler](int) { handler(); };
        user.UsesForm(IDD_TestForm, [this] { user.ChoosesMenu(IDC_PlainItem); });
      },
      [](TestForm& form, const Event& handler) { form.OnLoad = handler; },
  };
  for (std::size_t place = 0; place < places.size(); ++place) {
    SCOPED_TRACE(place);
    TestForm form;
    places[place](form, [] {
      RuntimeError error(kPermissionDenied);
      error.Description = "in the words of the thrower";
      throw error;
    });
    try {
      form.ShowModal();
      ADD_FAILURE() << "nothing was thrown";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number, kPermissionDenied);
      EXPECT_EQ(error.Description, "in the words of the thrower");
    }
    EXPECT_TRUE(form.Closed());
    EXPECT_NONFATAL_FAILURE(user.Clicks(IDC_SecondButton), "");
  }
}

TEST_F(FormTest, AnyExceptionPassesThroughNestedForms) {
  TestForm outer;
  outer.SecondButton.Click = [&] {
    TestForm inner;
    inner.FirstButton.Click = [] { throw std::logic_error("from below"); };
    EXPECT_THROW(inner.ShowModal(), std::logic_error);
    outer.HintLabel.SetText("caught");
  };
  outer.FirstButton.Click = [] {
    TestForm inner;
    inner.FirstButton.Click = [] { throw ProgramEnded(); };
    inner.ShowModal();
  };
  user.UsesForm(IDD_TestForm, [&] {
    user.UsesForm(IDD_TestForm, [&] { user.Clicks(IDC_FirstButton); });
    user.Clicks(IDC_SecondButton);
    EXPECT_EQ(user.Sees(IDC_HintLabel), "caught");
    EXPECT_FALSE(outer.Closed());
    user.UsesForm(IDD_TestForm, [&] { user.Clicks(IDC_FirstButton); });
    user.Clicks(IDC_FirstButton);
  });
  EXPECT_THROW(outer.ShowModal(), ProgramEnded);
  EXPECT_TRUE(outer.Closed());
}

TEST_F(FormTest, FormsThatNobodyExpectedOrClosedFailTheTest) {
  TestForm form;
  EXPECT_NONFATAL_FAILURE(form.ShowModal(), "Nothing was expected, but there came form 5000");
  EXPECT_TRUE(form.Closed());
  TestForm left_open;
  user.UsesForm(IDD_TestForm, [] {});
  EXPECT_NONFATAL_FAILURE(left_open.ShowModal(), "was left open");
  EXPECT_TRUE(left_open.Closed());
}

}  // namespace
