// What lists, drop-downs and check lists promise: order, data, selection and their events.
#include "platform/lists.h"

#include "contract/test_form.h"

namespace {

class ListsTest : public ShownFormTest {
 protected:
  std::vector<ListControl*> lists = {&form.NameCombo, &form.KindDrop, &form.EntryList};
};

TEST_F(ListsTest, EntriesKeepOrderTextAndDataAsManyAsThereCanBeRecords) {
  std::vector<ListEntry> odd = {{"b", 3},           {"a", -1},         {"C", 32767}, {"a", 2147483647},
                                {"caf\xE9 & b", 0}, {"", -2147483647}, {kFar, 4},    {" x ", 7}};
  std::vector<ListEntry> many;
  for (int number = 32767; number >= 1; --number) many.push_back({"Thing " + std::to_string(number), number});
  for (ListControl* list : lists) {
    for (const std::vector<ListEntry>& entries : {odd, many, odd}) {
      SCOPED_TRACE(form.Members[list]);
      Does([&] { list->Fill(entries); }, "");
      EXPECT_EQ(list->Entries(), entries);
      std::vector<std::string> texts;
      for (const ListEntry& entry : entries) texts.push_back(entry.Text);
      EXPECT_EQ(user.SeesEntries(list->Id()), texts);
      list->Select(static_cast<int>(entries.size()) - 1);
      EXPECT_EQ(list->SelectedData(), entries.back().Data);
      EXPECT_EQ(user.SeesSelected(list->Id()), entries.back().Text);
    }
  }
}

TEST_F(ListsTest, ClickComesOnceAndOnlyWhenTheSelectionMoved) {
  for (ListControl* list : lists) {
    const int id = list->Id();
    const auto does = [&](const Event& act, const std::string& position, const std::string& text, int data) {
      Does(act, form.Members[list] + " Click " + position + " " + (list == &form.EntryList ? "" : text));
      EXPECT_EQ(list->SelectedData(-5), data);
      EXPECT_EQ(std::to_string(list->Selected()) + user.SeesSelected(id), position + text);
    };
    list->Fill({{"Smith", 11}, {"smith", 22}, {"Smith", 33}});
    does([&] { list->Select(2), list->Select(2); }, "2", "Smith", 33);
    does([&] { user.Picks(id, "Smith"), user.Picks(id, "Smith"); }, "0", "Smith", 11);
    does([&] { user.Picks(id, "smith"), user.PicksAt(id, 1); }, "1", "smith", 22);
    does([&] { list->Select(-1), list->Select(-1), list->Select(3); }, "-1", "", -5);
    for (const Event& act : {Event([&] { list->Fill({{"other", 4}}); }), Event([&] { list->Clear(); })}) {
      list->Select(0);
      Does(act, "");
      EXPECT_EQ(std::to_string(list->Selected()) + list->Text() + user.SeesSelected(id), "-1");
    }
    EXPECT_TRUE(list->Entries().empty());
    // Its handler may fill the list anew.
    list->Fill({{"one", 1}, {"two", 2}});
    list->Click = [&] {
      Log("Click");
      list->Fill({{"anew", 9}});
    };
    Does([&] { user.Picks(id, "two"); }, "Click");
    EXPECT_EQ(std::to_string(list->Entries().size()) + std::to_string(list->Selected()), "1-1");
  }
}

TEST_F(ListsTest, ComboTextMayBeAnything) {
  ComboBox& combo = form.NameCombo;
  const auto types = [&](const char* text) { user.Types(IDC_NameCombo, text); };
  const auto fills = [&] { combo.Fill({{"one", 1}, {"twenty", 2}}); };
  fills();
  Does([&] { types("three"), combo.SetText("three"); }, "NameCombo Change three");
  Does([&] { user.Picks(IDC_NameCombo, "one"); }, "NameCombo Click 0 one");
  EXPECT_EQ(user.Sees(IDC_NameCombo), "one");
  for (const Event& act : {Event([&] { types("on"); }), Event([&] { combo.SetText("on"); })}) {
    combo.Select(0);
    Does(act, "NameCombo Change on");
    EXPECT_EQ(combo.Selected(), -1);
  }
  Does(fills, "");
  EXPECT_EQ(combo.Text(), "");
  // A drop-down's is one of its entries or nothing.
  form.KindDrop.Fill({{"red", 1}, {"green", 2}});
  Does([&] { form.KindDrop.SetText("green"), form.KindDrop.SetText("blue"); },
       "KindDrop Click 1 green, KindDrop Click -1 ");
}

TEST_F(ListsTest, ChecksAreTurnedOver) {
  CheckList& list = form.TickList;
  const auto does = [&](const Event& act, const char* events, const std::vector<std::string>& ticked) {
    Does(act, events);
    EXPECT_EQ(user.SeesTicked(IDC_TickList), ticked);
  };
  does([&] { list.Fill({"b", "a", "C & D", "a"}); }, "", {});
  EXPECT_EQ(user.SeesEntries(IDC_TickList), (std::vector<std::string>{"b", "a", "C & D", "a"}));
  does([&] { list.SetChecked(3, true), list.SetChecked(3, true); }, "TickList ItemCheck 3 on", {"a"});
  does([&] { user.Ticks(IDC_TickList, "C & D"); }, "TickList ItemCheck 2 on", {"C & D", "a"});
  does([&] { list.SetChecked(3, false), list.SetChecked(0, false); }, "TickList ItemCheck 3 off", {"C & D"});
  does([&] { user.Ticks(IDC_TickList, "C & D"); }, "TickList ItemCheck 2 off", {});
  // Its handler may turn another check over.
  list.ItemCheck = [&, tell = list.ItemCheck](int position) {
    tell(position);
    if (position == 0) list.SetChecked(1, !list.Checked(1));
  };
  does([&] { user.Ticks(IDC_TickList, "b"); }, "TickList ItemCheck 0 on, TickList ItemCheck 1 on", {"b", "a"});
  does([&] { list.Fill({"caf\xE9" + kFar, "x"}); }, "", {});
  EXPECT_EQ(list.EntryText(0) + list.EntryText(2) + std::to_string(list.Count()), "caf\xE9" + kFar + "2");
  for (const int position : {-1, 0, 1, 2}) EXPECT_FALSE(list.Checked(position)) << position;
  Does([&] { list.SetChecked(-1, true), list.SetChecked(2, true); }, "");
}

}  // namespace
