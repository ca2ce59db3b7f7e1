// What lists, drop-downs and check lists promise beyond what stories show: odd and many entries, events exactly once,
// handlers that change their own list.
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
      const int last = static_cast<int>(entries.size()) - 1;
      list->Select(last);
      EXPECT_EQ(list->SelectedData(), entries.back().Data);
      EXPECT_EQ(user.LooksAt(list->Id()).Entries, texts);
      EXPECT_EQ(user.LooksAt(list->Id()).Selected, last);
    }
  }
}

TEST_F(ListsTest, ClickComesOnceAndOnlyWhenTheSelectionMoved) {
  for (ListControl* list : lists) {
    const int id = list->Id();
    const auto does = [&](const Event& act, int position, const std::string& text, int data) {
      const std::string shown = list == &form.EntryList ? "" : text;
      Does(act, form.Members[list] + " Click " + std::to_string(position) + " " + shown);
      EXPECT_EQ(list->SelectedData(-5), data);
      EXPECT_EQ(user.LooksAt(id).Selected, position);
    };
    list->Fill({{"Smith", 11}, {"smith", 22}, {"Smith", 33}});
    does([&] { list->Select(2), list->Select(2); }, 2, "Smith", 33);
    does([&] { user.Enters(id, "Smith"), user.Enters(id, "Smith"); }, 0, "Smith", 11);
    does([&] { user.Enters(id, "smith"), list->Select(1); }, 1, "smith", 22);
    does([&] { list->Select(-1), list->Select(-1), list->Select(3); }, -1, "", -5);
    for (const Event& act : {Event([&] { list->Fill({{"other", 4}}); }), Event([&] { list->Clear(); })}) {
      list->Select(0);
      Does(act, "");
      EXPECT_EQ(std::to_string(list->Selected()) + list->Text(), "-1");
    }
    EXPECT_TRUE(list->Entries().empty());
    // Its handler may fill the list anew.
    list->Fill({{"one", 1}, {"two", 2}});
    list->Click = [list] { list->Fill({{"anew", 9}}); };
    user.Enters(id, "two");
    EXPECT_EQ(std::to_string(list->Entries().size()) + std::to_string(list->Selected()), "1-1");
  }
}

TEST_F(ListsTest, TextsSelectNothingInCombosAndTheirEntryInDropDowns) {
  ComboBox& combo = form.NameCombo;
  combo.Fill({{"one", 1}, {"twenty", 2}});
  for (const Event& act : {Event([&] { user.Enters(IDC_NameCombo, "on"); }), Event([&] { combo.SetText("on"); })}) {
    combo.Select(0);
    Does(act, "NameCombo Change on");
    EXPECT_EQ(combo.Selected(), -1);
  }
  Does([&] { combo.Fill({}); }, "");
  EXPECT_EQ(combo.Text(), "");
  form.KindDrop.Fill({{"red", 1}, {"green", 2}});
  Does([&] { form.KindDrop.SetText("green"), form.KindDrop.SetText("blue"); },
       "KindDrop Click 1 green, KindDrop Click -1 ");
}

TEST_F(ListsTest, ChecksAreTurnedOverAlsoByTheirHandler) {
  CheckList& list = form.TickList;
  Does([&] { list.Fill({"b", "a", "caf\xE9 & " + kFar}); }, "");
  EXPECT_EQ(list.EntryText(2) + list.EntryText(3) + std::to_string(list.Count()), "caf\xE9 & " + kFar + "3");
  Does([&] { list.SetChecked(-1, true), list.SetChecked(3, true), list.SetChecked(2, false); }, "");
  Does([&] { list.SetChecked(2, true), list.SetChecked(2, true); }, "TickList ItemCheck 2 on");
  list.ItemCheck = [&, tell = list.ItemCheck](int position) {
    tell(position);
    if (position == 0) list.SetChecked(1, !list.Checked(1));
  };
  Does([&] { user.Enters(IDC_TickList, "b"); }, "TickList ItemCheck 0 on, TickList ItemCheck 1 on");
  EXPECT_EQ(user.LooksAt(IDC_TickList).Ticks, (std::vector<bool>{true, true, true}));
  Does([&] { list.Fill({"b", "x"}); }, "");
  for (const int position : {-1, 0, 1, 2}) EXPECT_FALSE(list.Checked(position)) << position;
}

}  // namespace
