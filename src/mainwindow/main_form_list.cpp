// MainForm's View menu, the letter tabs, and the lists of things.
#include <algorithm>
#include <utility>

#include "document/document.h"
#include "mainwindow/cat_pick_form.h"
#include "mainwindow/main_form.h"
#include "platform/locale.h"
#include "platform/message.h"
#include "platform/program.h"
#include "resource.h"

void MainForm::FillThingList(int selected) {
  typed_.reset();
  PersonCombo.Fill(ListThings(view_));
  if (selected != 0) {
    RestoreShownName();
  } else if (!PersonCombo.Entries().empty()) {
    TheDocument.CurrentThing = PersonCombo.Entries().front().Data;
    PersonCombo.Select(0);
  }
  FillLinkLists();
}

void MainForm::FillLinkLists() {
  if (AreLinks(FatherCombo.Entries(), view_.NounOrder)) return;
  std::vector<ListEntry> links = ListLinks(view_.NounOrder);
  FatherCombo.Fill(links);
  MotherCombo.Fill(std::move(links));
}

void MainForm::Redisplay() {
  const FlagScope scope(displaying_);
  FillThingList(TheDocument.CurrentThing);
  DisplayThing();
}

Label& MainForm::TabOf(const std::string& letter) {
  return letter.empty() ? AllLabel : *LetterLabel[static_cast<std::size_t>(letter.front() - 'A')];
}

namespace {

void ShowTab(Label& tab, bool chosen) {
  tab.SetBold(chosen);
  tab.SetBorder(!chosen);
}

}  // namespace

void MainForm::ShowTabs() {
  for (const auto& tab : LetterLabel) ShowTab(*tab, false);
  ShowTab(TabOf(view_.StartingLetter), true);
}

void MainForm::SetStartingLetter(const std::string& letter) {
  if (letter.size() != 1) EndProgram();
  StoreEdits();
  SetMenuChecked(IDC_AllNamesItem, false);
  SetMenuChecked(IDC_StartingLetterItem, true);
  ShowTab(TabOf(view_.StartingLetter), false);
  ShowTab(TabOf(letter), true);
  view_.StartingLetter = letter;
  Redisplay();
}

void MainForm::ClearStartingLetter() {
  ShowTab(TabOf(view_.StartingLetter), false);
  ShowTab(AllLabel, true);
  view_.StartingLetter.clear();
  SetMenuChecked(IDC_AllNamesItem, true);
  SetMenuChecked(IDC_StartingLetterItem, false);
}

void MainForm::LetterLabel_Click(int index) { SetStartingLetter(std::string(1, static_cast<char>('A' + index))); }

void MainForm::AllNamesItem_Click() {
  if (MenuChecked(IDC_AllNamesItem)) return;
  StoreEdits();
  ClearStartingLetter();
  Redisplay();
}

void MainForm::StartingLetterItem_Click() {
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

void MainForm::ShowCategoryFilter() {
  const bool selected = view_.SelectedCategory != 0;
  SetMenuChecked(IDC_AllCategoryItem, !selected);
  SetMenuChecked(IDC_SelCategoryItem, selected);
  CategoryFilterLabel.SetText(selected ? TheDocument.CategoryNames[view_.SelectedCategory] : "All Categories");
}

void MainForm::AllCategoryItem_Click() {
  if (MenuChecked(IDC_AllCategoryItem)) return;
  StoreEdits();
  view_.SelectedCategory = 0;
  view_.CategoryMask = 0;
  ShowCategoryFilter();
  Redisplay();
}

void MainForm::PickCategory(const Control* below_label) {
  StoreEdits();
  CatPickForm form(view_.SelectedCategory, below_label);
  form.ShowModal();
  if (form.SelectedCategory == view_.SelectedCategory) return;
  view_.SelectedCategory = form.SelectedCategory;
  view_.CategoryMask = CategoryBit(form.SelectedCategory);
  ShowCategoryFilter();
  Redisplay();
}

void MainForm::ShowNameOrder() {
  SetMenuChecked(IDC_GivenNameItem, !view_.NounOrder);
  SetMenuChecked(IDC_SurnameOrderItem, view_.NounOrder);
}

void MainForm::SetNameOrder(bool noun_order) {
  if (view_.NounOrder == noun_order) return;
  StoreEdits();
  view_.NounOrder = noun_order;
  ShowNameOrder();
  Redisplay();
}

void MainForm::PersonCombo_Click() {
  if (displaying_) return;
  PickThing(PersonCombo.SelectedData());
}

void MainForm::PickThing(int record) {
  StoreEdits();
  TheDocument.CurrentThing = record;
  typed_.reset();
  DisplayThing();
  TheDocument.PendingEdits = false;
}

// Typing finds: the rest of the first listed name that begins with what was typed is offered, marked so
// that the next key replaces it. Nothing is offered to somebody who is deleting.
void MainForm::PersonCombo_Change() {
  if (displaying_) return;
  const std::string before = typed_.value_or("");
  const std::string typed = typed_.emplace(PersonCombo.Text());
  if (typed.size() < before.size() || typed == before) return;
  const int position = FindEntryBeginning(PersonCombo.Entries(), typed);
  if (position < 0) return;
  const std::string& offered = PersonCombo.Entries()[static_cast<std::size_t>(position)].Text;
  const FlagScope scope(displaying_);
  PersonCombo.SetText(offered);
  PersonCombo.SelectText(static_cast<int>(typed.size()), static_cast<int>(offered.size()));
}

// Whoever comes here by keyboard types another name over the one shown.
void MainForm::MarkShownName() { PersonCombo.SelectText(0, static_cast<int>(PersonCombo.Text().size())); }

// Whoever typed and goes on means the first thing that the list offers for it; with none, the shown one stays.
void MainForm::LeaveThingList() {
  if (!typed_) return;
  const std::vector<ListEntry>& listed = PersonCombo.Entries();
  const int position = typed_->empty() ? -1 : FindEntryBeginning(listed, PersonCombo.Text());
  if (position >= 0) PickThing(listed[static_cast<std::size_t>(position)].Data);
  RestoreShownName();
}

void MainForm::Enter_Press() {
  if (PersonCombo.HasFocus()) LeaveThingList();
}

void MainForm::Escape_Press() {
  if (PersonCombo.HasFocus()) RestoreShownName();
}

// Shows the current thing's name in the thing list, also when the filters keep the thing out of it.
void MainForm::RestoreShownName() {
  const FlagScope scope(displaying_);
  typed_.reset();
  const ThingRecord* thing = CurrentRecord();
  const std::vector<ListEntry>& listed = PersonCombo.Entries();
  const auto entry = std::find_if(listed.begin(), listed.end(),
                                  [](const ListEntry& each) { return each.Data == TheDocument.CurrentThing; });
  if (thing != nullptr && entry != listed.end()) {
    PersonCombo.Select(static_cast<int>(entry - listed.begin()));
  } else {
    PersonCombo.Select(-1);
  }
  PersonCombo.SetText(thing == nullptr ? "" : ShownName(*thing, view_.NounOrder));
  if (PersonCombo.HasFocus()) MarkShownName();
}
