// The thing list and what narrows it.
#include "mainwindow/thing_picker.h"

#include <algorithm>
#include <utility>

#include "document/document.h"
#include "mainwindow/cat_pick_form.h"
#include "mainwindow/flag_scope.h"
#include "platform/locale.h"
#include "platform/message.h"
#include "platform/program.h"

namespace {

constexpr int kTabs = kLetters + 1;  // All comes first

}  // namespace

ThingPicker::ThingPicker(Form& owner)
    : AllLabel(owner, IDC_AllLabel),
      LetterLabel(owner, IDC_LetterLabel),
      PersonCombo(owner, IDC_PersonCombo),
      CategoryFilterLabel(owner, IDC_CategoryFilterLabel),
      owner_(owner) {
  AllLabel.Click = [this] {
    LeaveThingList();
    AllLabel_Click();
  };
  for (int index = 0; index < kLetters; ++index) {
    LetterLabel[index].Click = [this, index] {
      LeaveThingList();
      LetterLabel_Click(index);
    };
  }
  CategoryFilterLabel.Click = [this] {
    LeaveThingList();
    CategoryFilterLabel_Click();
  };
  PersonCombo.Click = [this] { PersonCombo_Click(); };
  PersonCombo.Change = [this] { PersonCombo_Change(); };
  PersonCombo.GotFocus = [this] { PersonCombo_GotFocus(); };
  PersonCombo.LostFocus = [this] { PersonCombo_LostFocus(); };
}

std::string ThingPicker::Summary() const { return ListSummary(view_, static_cast<int>(PersonCombo.Entries().size())); }

void ThingPicker::Spread(const std::function<void(Label& tab, int left, int right)>& place) {
  const auto edge = [](int tab) { return 100 * tab / kTabs; };
  for (int tab = 0; tab < kTabs; ++tab) place(TabAt(tab), edge(tab), edge(tab + 1));
}

void ThingPicker::Reset() {
  SetCategory(0);
  ClearStartingLetter();
  ShowNameOrder();
}

void ThingPicker::FillThingList(int selected) {
  const FlagScope scope(filling_);
  typed_.reset();
  PersonCombo.Fill(ListThings(view_));
  if (selected != 0) {
    RestoreShownName();
  } else if (!PersonCombo.Entries().empty()) {
    TheDocument.CurrentThing = PersonCombo.Entries().front().Data;
    PersonCombo.Select(0);
  }
}

void ThingPicker::GoTo(int record) {
  StoreEdits();
  TheDocument.CurrentThing = record;
  RestoreShownName();
  Picked();
}

namespace {

void ShowTab(Label& tab, bool chosen) {
  tab.SetTabStop(chosen);
  tab.SetBold(chosen);
  tab.SetBorder(!chosen);
}

}  // namespace

// The letter of the view has another tab than the one that is shown as chosen.
void ThingPicker::ShowTabs() {
  const int chosen = PlaceOf(view_.StartingLetter);
  for (int tab = 0; tab < kTabs; ++tab) ShowTab(TabAt(tab), tab == chosen);
  owner_.SetMenuChecked(IDC_AllNamesItem, view_.StartingLetter.empty());
  owner_.SetMenuChecked(IDC_StartingLetterItem, !view_.StartingLetter.empty());
}

void ThingPicker::SetStartingLetter(const std::string& letter) {
  if (letter.size() != 1) EndProgram();
  StoreEdits();
  view_.StartingLetter = letter;
  ShowTabs();
  Narrowed();
}

void ThingPicker::ClearStartingLetter() {
  view_.StartingLetter.clear();
  ShowTabs();
}

void ThingPicker::LetterLabel_Click(int index) { SetStartingLetter(std::string(1, static_cast<char>('A' + index))); }

void ThingPicker::AllNamesItem_Click() {
  if (view_.StartingLetter.empty()) return;
  StoreEdits();
  ClearStartingLetter();
  Narrowed();
}

void ThingPicker::StartingLetterItem_Click() {
  const std::string answer = InputBox(
      "Please type a letter of the alphabet.  Names beginning with that letter"
      " will be presented in the person pick list.",
      "Letter tab selection");
  if (answer.empty()) return;
  const char letter = UpperCase(answer.front());
  // There is a tab for each letter of the alphabet, and for nothing else.
  if (letter < 'A' || letter > 'Z') return;
  SetStartingLetter(std::string(1, letter));
}

void ThingPicker::SetCategory(int number) {
  view_.SelectedCategory = number;
  ShowCategoryFilter();
}

void ThingPicker::ShowCategoryFilter() {
  const bool selected = view_.SelectedCategory != 0;
  owner_.SetMenuChecked(IDC_AllCategoryItem, !selected);
  owner_.SetMenuChecked(IDC_SelCategoryItem, selected);
  CategoryFilterLabel.SetText(selected ? TheDocument.CategoryNames[view_.SelectedCategory] : "All Categories");
}

void ThingPicker::CategoriesRenamed() {
  const int number = view_.SelectedCategory;
  SetCategory(number != 0 && TheDocument.CategoryNames[number].empty() ? 0 : number);
}

void ThingPicker::AllCategoryItem_Click() {
  if (view_.SelectedCategory == 0) return;
  StoreEdits();
  SetCategory(0);
  Narrowed();
}

void ThingPicker::PickCategory(const Control* below_label) {
  StoreEdits();
  CatPickForm form(view_.SelectedCategory, below_label);
  form.ShowModal();
  if (form.SelectedCategory == view_.SelectedCategory) return;
  SetCategory(form.SelectedCategory);
  Narrowed();
}

void ThingPicker::ShowNameOrder() {
  owner_.SetMenuChecked(IDC_GivenNameItem, !view_.NounOrder);
  owner_.SetMenuChecked(IDC_SurnameOrderItem, view_.NounOrder);
}

void ThingPicker::SetNameOrder(bool noun_order) {
  if (view_.NounOrder == noun_order) return;
  StoreEdits();
  view_.NounOrder = noun_order;
  ShowNameOrder();
  Narrowed();
}

void ThingPicker::PersonCombo_Click() {
  if (filling_) return;
  StoreEdits();
  typed_.reset();
  TheDocument.CurrentThing = PersonCombo.SelectedData();
  Picked();
}

// Typing finds: the rest of the first listed name that begins with what was typed is offered, marked so
// that the next key replaces it. Nothing is offered to somebody who is deleting.
void ThingPicker::PersonCombo_Change() {
  if (filling_) return;
  const std::string before = typed_.value_or("");
  const std::string typed = typed_.emplace(PersonCombo.Text());
  Typed();
  if (typed.size() < before.size() || typed == before) return;
  const int position = FindEntryBeginning(PersonCombo.Entries(), typed);
  if (position < 0) return;
  const std::string& offered = PersonCombo.Entries()[static_cast<std::size_t>(position)].Text;
  const FlagScope scope(filling_);
  PersonCombo.SetText(offered);
  PersonCombo.SelectText(static_cast<int>(typed.size()), static_cast<int>(offered.size()));
}

// Whoever comes here by keyboard types another name over the one shown.
void ThingPicker::PersonCombo_GotFocus() { PersonCombo.SelectText(0, static_cast<int>(PersonCombo.Text().size())); }

void ThingPicker::LeaveThingList() {
  if (!typed_) return;
  const std::vector<ListEntry>& listed = PersonCombo.Entries();
  const int position = typed_->empty() ? -1 : FindEntryBeginning(listed, PersonCombo.Text());
  if (position < 0) {
    RestoreShownName();
    Typed();
  } else {
    GoTo(listed[static_cast<std::size_t>(position)].Data);
  }
}

// The place of the tab that has the focus, or -1.
int ThingPicker::FocusedTab() {
  for (int tab = 0; tab < kTabs; ++tab) {
    if (TabAt(tab).HasFocus()) return tab;
  }
  return -1;
}

bool ThingPicker::KeyDown(Key key) {
  const int from = FocusedTab();
  if (from < 0) return false;
  int to = from;
  if (key == Key::Space) TabAt(from).Click();
  if (key == Key::Left || key == Key::Up) --to;
  if (key == Key::Right || key == Key::Down) ++to;
  if (key == Key::Home) to = 0;
  if (key == Key::End) to = kTabs - 1;
  to = std::clamp(to, 0, kTabs - 1);
  if (to != from) {
    TabAt(to).SetTabStop(true);
    TabAt(from).SetTabStop(false);
    TabAt(to).SetFocus();
  }
  return true;
}

void ThingPicker::EnterKey() {
  if (const int tab = FocusedTab(); tab >= 0) TabAt(tab).Click();
  if (PersonCombo.HasFocus()) LeaveThingList();
}

void ThingPicker::EscapeKey() {
  if (!PersonCombo.HasFocus()) return;
  RestoreShownName();
  Typed();
}

// Shows the current thing's name in the list, also when the filters keep the thing out of it.
void ThingPicker::RestoreShownName() {
  const FlagScope scope(filling_);
  typed_.reset();
  const auto& things = TheDocument.Things;
  const int current = TheDocument.CurrentThing;
  const std::vector<ListEntry>& listed = PersonCombo.Entries();
  const auto entry =
      std::find_if(listed.begin(), listed.end(), [current](const ListEntry& each) { return each.Data == current; });
  const bool shown = things.Holds(current);
  PersonCombo.Select(shown && entry != listed.end() ? static_cast<int>(entry - listed.begin()) : -1);
  PersonCombo.SetText(shown ? ShownName(things[current], view_.NounOrder) : "");
  if (PersonCombo.HasFocus()) PersonCombo_GotFocus();
}
