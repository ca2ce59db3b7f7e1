// What lists, drop-downs and check lists promise: order, data, selection and their events.
#include "platform/lists.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "contract/test_form.h"
#include "support/user.h"

namespace {

class ListsTest : public testing::Test {
 protected:
  // Shows the form; the person does what is said and presses Cancel.
  void Use(const std::function<void()>& acts) {
    user.UsesForm(IDD_TestForm, [this, acts] {
      form.Came();
      acts();
      user.Clicks(IDC_CancelButton);
    });
    form.ShowModal();
  }

  std::vector<ListControl*> All() { return {&form.NameCombo, &form.KindDrop, &form.EntryList}; }

  User user;
  TestForm form;
};

TEST_F(ListsTest, EntriesKeepOrderTextAndData) {
  const std::vector<ListEntry> entries = {{"b", 3},           {"a", -1},         {"C", 32767}, {"a", 2147483647},
                                          {"caf\xE9 & b", 0}, {"", -2147483647}, {" x ", 7}};
  Use([&] {
    for (ListControl* list : All()) {
      SCOPED_TRACE(list->Id());
      list->Fill(entries);
      EXPECT_EQ(list->Entries(), entries);
      std::vector<std::string> texts;
      for (const ListEntry& entry : entries) texts.push_back(entry.Text);
      EXPECT_EQ(user.SeesEntries(list->Id()), texts);
    }
  });
}

TEST_F(ListsTest, FillIsSilentAndLosesSelectionAndText) {
  Use([&] {
    for (ListControl* list : All()) {
      SCOPED_TRACE(list->Id());
      list->Fill({{"one", 1}, {"two", 2}});
      EXPECT_EQ(form.Came(), Events{});
      EXPECT_EQ(list->Selected(), -1);
      EXPECT_EQ(list->SelectedData(-5), -5);
      list->Select(1);
      form.Came();
      list->Fill({{"three", 3}, {"four", 4}});
      EXPECT_EQ(form.Came(), Events{});
      EXPECT_EQ(list->Selected(), -1);
      EXPECT_EQ(user.SeesSelected(list->Id()), "");
      list->Select(0);
      form.Came();
      list->Clear();
      EXPECT_EQ(form.Came(), Events{});
      EXPECT_TRUE(list->Entries().empty());
      EXPECT_EQ(list->Selected(), -1);
    }
    EXPECT_EQ(form.KindDrop.Text(), "");
    form.NameCombo.SetText("typed");
    form.Came();
    form.NameCombo.Fill({{"one", 1}});
    EXPECT_EQ(form.NameCombo.Text(), "");
    EXPECT_EQ(form.Came(), Events{});
  });
}

TEST_F(ListsTest, ClickComesOnceAndOnlyWhenTheSelectionMoved) {
  Use([&] {
    for (ListControl* list : All()) {
      SCOPED_TRACE(list->Id());
      list->Fill({{"one", 11}, {"two", 22}, {"three", 33}});
      std::vector<int> clicks;
      list->Click = [&, list] { clicks.push_back(list->Selected()); };
      list->Select(2);
      list->Select(2);
      user.Picks(list->Id(), "one");
      user.Picks(list->Id(), "one");
      user.PicksAt(list->Id(), 1);
      EXPECT_EQ(clicks, (std::vector<int>{2, 0, 1}));
      EXPECT_EQ(list->SelectedData(), 22);
      EXPECT_EQ(user.SeesSelected(list->Id()), "two");
      list->Select(-1);
      EXPECT_EQ(list->Selected(), -1);
      list->Select(-1);
      EXPECT_EQ(clicks, (std::vector<int>{2, 0, 1, -1}));
      EXPECT_EQ(user.SeesSelected(list->Id()), "");
      list->Click = nullptr;
    }
  });
}

TEST_F(ListsTest, TheWheelTurnsNoClosedDropDownButAComboWithTheFocus) {
  Use([&] {
    const auto selected_after_wheel = [&](ListControl& list) {
      list.Fill({{"one", 1}, {"two", 2}, {"three", 3}});
      list.Select(1);
      user.TurnsWheel(list.Id(), 1);
      return list.Selected();
    };
    form.FirstButton.SetFocus();
    EXPECT_EQ(selected_after_wheel(form.NameCombo), 1);
    form.NameCombo.SetFocus();
    EXPECT_EQ(selected_after_wheel(form.NameCombo), 2);
    form.KindDrop.SetFocus();
    EXPECT_EQ(selected_after_wheel(form.KindDrop), 1);
  });
}

TEST_F(ListsTest, SelectionBeforeTheFormIsShownTellsToo) {
  form.NameCombo.Fill({{"one", 1}, {"two", 2}});
  form.KindDrop.Fill({{"three", 3}});
  form.EntryList.Fill({{"four", 4}});
  form.NameCombo.Select(1);
  form.KindDrop.Select(0);
  form.EntryList.Select(0);
  EXPECT_EQ(form.Came(), (Events{"NameCombo Click two", "KindDrop Click three", "EntryList Click 0"}));
  Use([&] {
    EXPECT_EQ(user.SeesSelected(IDC_NameCombo), "two");
    EXPECT_EQ(user.SeesSelected(IDC_KindDrop), "three");
    EXPECT_EQ(user.SeesSelected(IDC_EntryList), "four");
    EXPECT_EQ(form.Came(), Events{});
  });
}

TEST_F(ListsTest, TextOfDropDownsFollowsTheSelectionWithinClick) {
  form.NameCombo.Fill({{"one", 1}, {"two", 2}});
  form.KindDrop.Fill({{"red", 1}, {"green", 2}});
  Use([&] {
    user.Picks(IDC_NameCombo, "two");
    user.Picks(IDC_KindDrop, "green");
    EXPECT_EQ(form.Came(), (Events{"NameCombo Click two", "KindDrop Click green"}));
    EXPECT_EQ(user.Sees(IDC_NameCombo), "two");
    EXPECT_EQ(user.Sees(IDC_KindDrop), "green");
    form.NameCombo.Select(0);
    form.KindDrop.Select(0);
    EXPECT_EQ(form.Came(), (Events{"NameCombo Click one", "KindDrop Click red"}));
    form.NameCombo.Select(-1);
    form.KindDrop.Select(-1);
    EXPECT_EQ(form.Came(), (Events{"NameCombo Click ", "KindDrop Click "}));
    EXPECT_EQ(form.NameCombo.Text(), "");
    EXPECT_EQ(form.KindDrop.Text(), "");
  });
}

TEST_F(ListsTest, ComboTextMayBeAnything) {
  form.NameCombo.Fill({{"one", 1}, {"two", 2}});
  Use([&] {
    user.Types(IDC_NameCombo, "three");
    EXPECT_EQ(form.Came(), Events{"NameCombo Change three"});
    EXPECT_EQ(form.NameCombo.Text(), "three");
    EXPECT_EQ(form.NameCombo.Selected(), -1);
    user.Types(IDC_NameCombo, "three");
    form.NameCombo.SetText("three");
    EXPECT_EQ(form.Came(), Events{});
    user.Picks(IDC_NameCombo, "one");
    EXPECT_EQ(form.Came(), Events{"NameCombo Click one"});
    user.Types(IDC_NameCombo, "tw");
    EXPECT_EQ(form.Came(), Events{"NameCombo Change tw"});
    EXPECT_EQ(form.NameCombo.Text(), "tw");
    EXPECT_EQ(form.NameCombo.Selected(), -1);
    user.Picks(IDC_NameCombo, "one");
    form.Came();
    form.NameCombo.SetText("from code");
    EXPECT_EQ(form.Came(), Events{"NameCombo Change from code"});
    EXPECT_EQ(form.NameCombo.Selected(), -1);
    EXPECT_EQ(form.NameCombo.Entries().size(), 2U);
  });
}

TEST_F(ListsTest, ComboChangeMayCompleteTheText) {
  form.NameCombo.Fill({{"one", 1}, {"twenty", 2}});
  Use([&] {
    form.NameCombo.Change = [&] {
      form.Log.push_back("Change " + form.NameCombo.Text());
      if (form.NameCombo.Text() != "tw") return;
      form.NameCombo.SetText("twenty");
      form.NameCombo.SelectText(2, 6);
    };
    user.Types(IDC_NameCombo, "tw");
    EXPECT_EQ(form.Came(), (Events{"Change tw", "Change twenty"}));
    EXPECT_EQ(user.Sees(IDC_NameCombo), "twenty");
  });
}

TEST_F(ListsTest, ClickMayFillTheListAnew) {
  Use([&] {
    for (ListControl* list : All()) {
      SCOPED_TRACE(list->Id());
      list->Fill({{"one", 1}, {"two", 2}});
      int clicks = 0;
      list->Click = [&, list] {
        ++clicks;
        list->Fill({{"anew", 9}});
      };
      user.Picks(list->Id(), "two");
      EXPECT_EQ(clicks, 1);
      EXPECT_EQ(list->Entries().size(), 1U);
      EXPECT_EQ(list->Selected(), -1);
      list->Click = nullptr;
    }
  });
}

TEST_F(ListsTest, EqualTextsAreToldApartByPosition) {
  Use([&] {
    for (ListControl* list : All()) {
      SCOPED_TRACE(list->Id());
      list->Fill({{"Smith", 1}, {"smith", 2}, {"Smith", 3}});
      user.PicksAt(list->Id(), 2);
      EXPECT_EQ(list->SelectedData(), 3);
      EXPECT_EQ(list->Selected(), 2);
      user.Picks(list->Id(), "Smith");
      EXPECT_EQ(list->SelectedData(), 1);
      user.Picks(list->Id(), "smith");
      EXPECT_EQ(list->SelectedData(), 2);
    }
  });
}

TEST_F(ListsTest, AsManyEntriesAsThereCanBeRecords) {
  std::vector<ListEntry> entries;
  for (int number = 32767; number >= 1; --number) entries.push_back({"Thing " + std::to_string(number), number});
  Use([&] {
    for (ListControl* list : All()) {
      SCOPED_TRACE(list->Id());
      list->Fill(entries);
      EXPECT_EQ(list->Entries(), entries);
      list->Select(32766);
      EXPECT_EQ(list->SelectedData(), 1);
      EXPECT_EQ(user.SeesSelected(list->Id()), "Thing 1");
    }
  });
}

TEST_F(ListsTest, ChecksAreTurnedOver) {
  Use([&] {
    form.TickList.Fill({"b", "a", "C & D", "a"});
    EXPECT_EQ(form.TickList.Count(), 4);
    EXPECT_EQ(user.SeesEntries(IDC_TickList), (std::vector<std::string>{"b", "a", "C & D", "a"}));
    EXPECT_EQ(user.SeesTicked(IDC_TickList), std::vector<std::string>{});
    form.TickList.SetChecked(3, true);
    form.TickList.SetChecked(3, true);
    EXPECT_EQ(form.Came(), Events{"TickList ItemCheck 3 on"});
    user.Ticks(IDC_TickList, "C & D");
    EXPECT_EQ(form.Came(), Events{"TickList ItemCheck 2 on"});
    EXPECT_EQ(user.SeesTicked(IDC_TickList), (std::vector<std::string>{"C & D", "a"}));
    user.Ticks(IDC_TickList, "C & D");
    form.TickList.SetChecked(3, false);
    form.TickList.SetChecked(0, false);
    EXPECT_EQ(form.Came(), (Events{"TickList ItemCheck 2 off", "TickList ItemCheck 3 off"}));
    user.Ticks(IDC_TickList, "b");
    EXPECT_TRUE(form.TickList.Checked(0));
    EXPECT_FALSE(form.TickList.Checked(1));
    form.Came();
    form.TickList.Fill({"caf\xE9", "x"});
    EXPECT_EQ(form.Came(), Events{});
    EXPECT_FALSE(form.TickList.Checked(0));
    EXPECT_EQ(form.TickList.EntryText(0), "caf\xE9");
    EXPECT_EQ(form.TickList.Count(), 2);
  });
}

TEST_F(ListsTest, ItemCheckMayTurnAnotherCheckOver) {
  form.TickList.Fill({"one", "two"});
  Use([&] {
    form.TickList.ItemCheck = [&](int position) {
      form.Log.push_back("check " + std::to_string(position));
      if (position == 0) form.TickList.SetChecked(1, !form.TickList.Checked(1));
    };
    user.Ticks(IDC_TickList, "one");
    EXPECT_EQ(form.Came(), (Events{"check 0", "check 1"}));
    EXPECT_EQ(user.SeesTicked(IDC_TickList), (std::vector<std::string>{"one", "two"}));
  });
}

TEST_F(ListsTest, DisabledListsAndMissingEntriesAreOutOfReach) {
  form.EntryList.Fill({{"one", 1}});
  form.TickList.Fill({"one"});
  Use([&] {
    EXPECT_NONFATAL_FAILURE(user.Picks(IDC_EntryList, "two"), "two");
    form.EntryList.SetEnabled(false);
    form.TickList.SetEnabled(false);
    EXPECT_NONFATAL_FAILURE(user.Picks(IDC_EntryList, "one"), "5022");
    EXPECT_NONFATAL_FAILURE(user.Ticks(IDC_TickList, "one"), "5023");
    EXPECT_EQ(form.Came(), Events{});
    form.EntryList.Select(0);
    EXPECT_EQ(form.Came(), Events{"EntryList Click 0"});
  });
}

}  // namespace
