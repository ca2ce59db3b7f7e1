// The main window's way to a thing: the thing list, the letter tabs, the category filter and the name order.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "mainwindow/main_ids.h"
#include "mainwindow/thing_list.h"
#include "platform/control_array.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/lists.h"

class ThingPicker {
 public:
  explicit ThingPicker(Form& owner);

  Event StoreEdits;  // comes before another thing, other names or another order are shown
  Event Picked;      // the current thing is another one, and the list shows it
  Event Narrowed;    // the lists of things are to be filled anew
  Event Typed;       // something was typed into the list, or what was typed is dropped

  // All names of all categories, for a new document.
  void Reset();
  // Lists the things that pass the filters and shows the name of that record, whether or not it is listed; with 0
  // the first one listed becomes the current thing.
  void FillThingList(int selected);
  // Makes a thing the current one, from wherever the user came to it.
  void GoTo(int record);
  // What was typed into the list is settled: the thing that it offers becomes the current one; where it offers none,
  // the name of the current one comes back. Every command begins with it, so that it acts on what the list shows.
  void LeaveThingList();
  // True while there is such a text; Esc drops it.
  bool IsTyping() const { return typed_.has_value(); }
  // Takes notice of the categories' names, one of which may be gone.
  void CategoriesRenamed();
  bool NounOrder() const { return view_.NounOrder; }
  // What is listed, in a line.
  std::string Summary() const;
  // Tells of each tab where it begins and ends, in percent of the width of all.
  void Spread(const std::function<void(Label& tab, int left, int right)>& place);

  // The letter tabs are one stop of the Tab key: arrow keys go from one to the next, Space and Enter choose.
  bool KeyDown(Key key);
  void EnterKey();
  void EscapeKey();
  void AllNamesItem_Click();
  void StartingLetterItem_Click();
  void AllCategoryItem_Click();
  void SelCategoryItem_Click() { PickCategory(nullptr); }
  void GivenNameItem_Click() { SetNameOrder(false); }
  void SurnameOrderItem_Click() { SetNameOrder(true); }

  Label AllLabel;
  ControlArray<Label, kLetters> LetterLabel;
  ComboBox PersonCombo;
  Label CategoryFilterLabel;

 private:
  void LetterLabel_Click(int index);
  void AllLabel_Click() { AllNamesItem_Click(); }
  void CategoryFilterLabel_Click() { PickCategory(&CategoryFilterLabel); }
  void PersonCombo_Click();
  void PersonCombo_Change();
  void PersonCombo_GotFocus();
  void PersonCombo_LostFocus() { LeaveThingList(); }

  void SetStartingLetter(const std::string& letter);
  void ClearStartingLetter();
  void PickCategory(const Control* below_label);
  void SetCategory(int number);
  void ShowCategoryFilter();
  void SetNameOrder(bool noun_order);
  void ShowNameOrder();
  void ShowTabs();
  void RestoreShownName();
  Label& TabAt(int place) { return place == 0 ? AllLabel : LetterLabel[place - 1]; }
  int PlaceOf(const std::string& letter) const { return letter.empty() ? 0 : letter.front() - 'A' + 1; }
  int FocusedTab();

  Form& owner_;
  ThingListView view_;
  std::optional<std::string> typed_;  // what the user typed into the thing list, without what was offered
  bool filling_ = false;              // the list is being filled: its events are not the user's
};
