// What lists, drop-downs and check lists promise beyond what stories show: odd and many entries, events exactly once,
// handlers that change their own list.
#include "platform/lists.h"

#include "contract/test_form.h"

namespace {

struct ListsTest : ShownFormTest {
  std::vector<ListControl*> lists = {&form.NameCombo, &form.KindDrop, &form.EntryList};
};

TEST_F(ListsTest, EntriesKeepOrderTextAndDataAsManyAsThereCanBeRecords) {
  std::vector<ListEntry> odd = {{"b", 3},           {"a", -1},         {"C", 32767}, {"a", 2147483647},
                                {"caf\xE9 & b", 0}, {"", -2147483647}, {kFar, 4},    {" x ", 7}};
  std::vector<ListEntry> many;
  for (int number = 32767; number >= 1; --number) many.push_back({"Thing " + std::to_string(number), number});
  for (ListControl* list : lists) {
    for (const std::vector<ListEntry>& entries : {odd, many, odd}) {
      SCOPED_TRACE(list->Id());
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
    list->Click = [list] { Log(std::to_string(list->Selected()) + list->Text()); };
    const auto does = [&](const Event& act, int position, const std::string& text, int data) {
      Does(act, std::to_string(position) + (list == &form.EntryList ? "" : text));
      EXPECT_EQ(list->SelectedData(-5), data);
      EXPECT_EQ(user.LooksAt(id).Selected, position);
    };
    list->Fill({{"Smith", 11}, {"smith", 22}, {"Smith", 33}});
    does([&] { list->Select(2), list->Select(2); }, 2, "Smith", 33);
    does([&] { user.Enters(id, "Smith"), user.Enters(id, "Smith"); }, 0, "Smith", 11);
    does([&] { user.Enters(id, "smith"), list->Select(1); }, 1, "smith", 22);
    does([&] { list->Select(-1), list->Select(-1), list->Select(3); }, -1, "", -5);
    list->Select(0);
    Does([&] { list->Fill({{"one", 1}, {"two", 2}}); }, "");
    EXPECT_EQ(std::to_string(list->Selected()) + list->Text(), "-1");
    // Its handler may fill the list anew.
    list->Click = [list] { list->Fill({{"anew", 9}}); };
    user.Enters(id, "two");
    EXPECT_EQ(std::to_string(list->Entries().size()) + std::to_string(list->Selected()), "1-1");
  }
}

TEST_F(ListsTest, TextsSelectNothingInCombosAndTheirEntryInDropDowns) {
  ComboBox& combo = form.NameCombo;
  combo.Fill({{"one", 1}, {"twenty", 2}});
  combo.Change = [&] { Log(combo.Text()); };
  for (const Event& act : {Event([&] { user.Enters(IDC_NameCombo, "on"); }), Event([&] { combo.SetText("on"); })}) {
    combo.Select(0);
    Does(act, "on");
    EXPECT_EQ(combo.Selected(), -1);
  }
  form.KindDrop.Fill({{"red", 1}, {"green", 2}});
  form.KindDrop.Click = [&] { Log(std::to_string(form.KindDrop.Selected())); };
  Does([&] { form.KindDrop.SetText("green"), form.KindDrop.SetText("blue"); }, "1, -1");
}

TEST_F(ListsTest, ChecksAreTurnedOverAlsoByTheirHandler) {
  CheckList& list = form.TickList;
  list.ItemCheck = [&](int position) {
    Log(std::to_string(position) + (list.Checked(position) ? "on" : "off"));
    if (position == 0) list.SetChecked(1, !list.Checked(1));
  };
  list.Fill({"b", "a", "caf\xE9 & " + kFar});
  EXPECT_EQ(list.EntryText(2) + list.EntryText(3) + std::to_string(list.Count()), "caf\xE9 & " + kFar + "3");
  Does([&] { list.SetChecked(-1, true), list.SetChecked(3, true), list.SetChecked(2, false); }, "");
  Does([&] { list.SetChecked(2, true), list.SetChecked(2, true); }, "2on");
  Does([&] { user.Enters(IDC_TickList, "b"); }, "0on, 1on");
  EXPECT_EQ(user.LooksAt(IDC_TickList).Ticked, (std::vector<std::string>{"b", "a", list.EntryText(2)}));
  Does([&] { list.Fill({"b", "x"}); }, "");
  for (const int position : {-1, 0, 1, 2}) EXPECT_FALSE(list.Checked(position)) << position;
}

}  // namespace
