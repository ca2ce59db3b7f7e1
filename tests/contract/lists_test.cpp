// What lists, drop-downs and check lists promise: order, data, selection and their events.
#include "platform/lists.h"

#include "contract/test_form.h"

namespace {

class ListsTest : public ShownFormTest {
 protected:
  // With the names they have in the log.
  std::vector<std::pair<ListControl*, std::string>> lists = {
      {&form.NameCombo, "NameCombo"}, {&form.KindDrop, "KindDrop"}, {&form.EntryList, "EntryList"}};
};

TEST_F(ListsTest, EntriesKeepOrderTextAndDataAsManyAsThereCanBeRecords) {
  std::vector<ListEntry> odd = {{"b", 3},           {"a", -1},         {"C", 32767}, {"a", 2147483647},
                                {"caf\xE9 & b", 0}, {"", -2147483647}, {kFar, 4},    {" x ", 7}};
  std::vector<ListEntry> many;
  for (int number = 32767; number >= 1; --number) many.push_back({"Thing " + std::to_string(number), number});
  for (const auto& [each, name] : lists) {
    ListControl& list = *each;
    for (const std::vector<ListEntry>& entries : {odd, many, odd}) {
      Does([&] { list.Fill(entries); }, "");
      EXPECT_EQ(list.Entries(), entries) << name;
      std::vector<std::string> texts;
      for (const ListEntry& entry : entries) texts.push_back(entry.Text);
      EXPECT_EQ(user.SeesEntries(list.Id()), texts) << name;
      list.Select(static_cast<int>(entries.size()) - 1);
      EXPECT_EQ(list.SelectedData(), entries.back().Data) << name;
      EXPECT_EQ(user.SeesSelected(list.Id()), entries.back().Text) << name;
    }
  }
}

TEST_F(ListsTest, ClickComesOnceAndOnlyWhenTheSelectionMoved) {
  for (const auto& each : lists) {
    ListControl& list = *each.first;
    const int id = list.Id();
    const auto click = [&](const std::string& position, const char* text) {
      return each.second + " Click " + position + " " + (&list == &form.EntryList ? "" : text);
    };
    list.Fill({{"Smith", 11}, {"smith", 22}, {"Smith", 33}});
    EXPECT_EQ(list.SelectedData(-5), -5);
    Does([&] { list.Select(2), list.Select(2); }, click("2", "Smith"));
    EXPECT_EQ(list.SelectedData(), 33);
    Does([&] { user.Picks(id, "Smith"), user.Picks(id, "Smith"); }, click("0", "Smith"));
    EXPECT_EQ(list.SelectedData(-5), 11);
    Does([&] { user.Picks(id, "smith"), user.PicksAt(id, 1); }, click("1", "smith"));
    EXPECT_EQ(list.SelectedData() + list.Selected(), 22 + 1);
    EXPECT_EQ(user.SeesSelected(id), "smith");
    Does([&] { list.Select(-1), list.Select(-1), list.Select(3); }, click("-1", ""));
    EXPECT_EQ(user.SeesSelected(id), "");
    list.Select(2);
    Does([&] { list.Fill({{"other", 4}}); }, "");
    EXPECT_EQ(std::to_string(list.Selected()) + list.Text() + user.SeesSelected(id), "-1");
    list.Select(0);
    Does([&] { list.Clear(); }, "");
    EXPECT_EQ(std::to_string(list.Selected()) + list.Text(), "-1");
    EXPECT_TRUE(list.Entries().empty());
    // Its handler may fill the list anew.
    list.Fill({{"one", 1}, {"two", 2}});
    list.Click = [&] {
      Log("Click");
      list.Fill({{"anew", 9}});
    };
    Does([&] { user.Picks(id, "two"); }, "Click");
    EXPECT_EQ(list.Entries().size(), 1U);
    EXPECT_EQ(list.Selected(), -1);
  }
}

TEST_F(ListsTest, ComboTextMayBeAnything) {
  form.NameCombo.Fill({{"one", 1}, {"twenty", 2}});
  Does([&] { user.Types(IDC_NameCombo, "three"), form.NameCombo.SetText("three"); }, "NameCombo Change three");
  Does([&] { user.Picks(IDC_NameCombo, "one"); }, "NameCombo Click 0 one");
  EXPECT_EQ(user.Sees(IDC_NameCombo), "one");
  for (const Event& act :
       {Event([&] { user.Types(IDC_NameCombo, "on"); }), Event([&] { form.NameCombo.SetText("on"); })}) {
    form.NameCombo.Select(0);
    Does(act, "NameCombo Change on");
    EXPECT_EQ(form.NameCombo.Selected(), -1);
  }
  EXPECT_EQ(form.NameCombo.Entries().size(), 2U);
  Does([&] { form.NameCombo.Fill({{"one", 1}, {"twenty", 2}}); }, "");
  EXPECT_EQ(form.NameCombo.Text(), "");
  // Its handler may complete the text.
  form.NameCombo.Change = [&, tell = form.NameCombo.Change] {
    tell();
    if (form.NameCombo.Text() != "tw") return;
    form.NameCombo.SetText("twenty");
    form.NameCombo.SelectText(2, 6);
  };
  Does([&] { user.Types(IDC_NameCombo, "tw"); }, "NameCombo Change tw, NameCombo Change twenty");
  EXPECT_EQ(user.Sees(IDC_NameCombo), "twenty");
  // A drop-down's is one of its entries or nothing.
  form.KindDrop.Fill({{"red", 1}, {"green", 2}});
  Does([&] { form.KindDrop.SetText("green"), form.KindDrop.SetText("blue"); },
       "KindDrop Click 1 green, KindDrop Click -1 ");
}

TEST_F(ListsTest, TheWheelTurnsNoClosedDropDownButAComboWithTheFocus) {
  const std::pair<ListControl*, Control*> rows[] = {
      {&form.NameCombo, &form.FirstButton}, {&form.NameCombo, &form.NameCombo}, {&form.KindDrop, &form.KindDrop}};
  for (const auto& [list, focus] : rows) {
    list->Fill({{"one", 1}, {"two", 2}, {"three", 3}});
    list->Select(1);
    focus->SetFocus();
    Does([&, turned = list] { user.TurnsWheel(turned->Id(), 1); },
         list == focus && list == &form.NameCombo ? "NameCombo Click 2 three" : "");
  }
}

TEST_F(ListsTest, ChecksAreTurnedOver) {
  using Texts = std::vector<std::string>;
  CheckList& list = form.TickList;
  Does([&] { list.Fill({"b", "a", "C & D", "a"}); }, "");
  EXPECT_EQ(list.Count(), 4);
  EXPECT_EQ(user.SeesEntries(IDC_TickList), (Texts{"b", "a", "C & D", "a"}));
  EXPECT_EQ(user.SeesTicked(IDC_TickList), Texts{});
  Does([&] { list.SetChecked(3, true), list.SetChecked(3, true); }, "TickList ItemCheck 3 on");
  Does([&] { user.Ticks(IDC_TickList, "C & D"); }, "TickList ItemCheck 2 on");
  EXPECT_EQ(user.SeesTicked(IDC_TickList), (Texts{"C & D", "a"}));
  Does([&] { list.SetChecked(3, false), list.SetChecked(0, false); }, "TickList ItemCheck 3 off");
  Does([&] { user.Ticks(IDC_TickList, "C & D"); }, "TickList ItemCheck 2 off");
  // Its handler may turn another check over.
  list.ItemCheck = [&, tell = list.ItemCheck](int position) {
    tell(position);
    if (position == 0) list.SetChecked(1, !list.Checked(1));
  };
  Does([&] { user.Ticks(IDC_TickList, "b"); }, "TickList ItemCheck 0 on, TickList ItemCheck 1 on");
  EXPECT_TRUE(list.Checked(0) && list.Checked(1));
  Does([&] { list.Fill({"caf\xE9" + kFar, "x"}); }, "");
  EXPECT_EQ(list.EntryText(0) + list.EntryText(2), "caf\xE9" + kFar);
  EXPECT_EQ(list.Count(), 2);
  EXPECT_EQ(user.SeesTicked(IDC_TickList), Texts{});
  for (const int position : {-1, 0, 1, 2}) EXPECT_FALSE(list.Checked(position)) << position;
  Does([&] { list.SetChecked(-1, true), list.SetChecked(2, true); }, "");
}

}  // namespace
