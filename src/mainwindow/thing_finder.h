// The main window's ways to a thing other than its list: finding, the links, and back to what was shown before.
#pragma once

#include <cstdint>
#include <vector>

#include "document/find.h"
#include "mainwindow/thing_picker.h"
#include "platform/lists.h"

class ThingFinder {
 public:
  // The lists show the links of the current thing.
  ThingFinder(ThingPicker& picker, const DropDownList& first_link, const DropDownList& second_link)
      : picker_(picker), first_link_(first_link), second_link_(second_link) {}

  // For another document: nothing was looked for yet.
  void Reset() {
    request_ = {};
    linked_.clear();
  }

  void FindItem_Click();
  void FindNextItem_Click() { GoOn(true); }
  void FindPreviousItem_Click() { GoOn(false); }
  void GoXRef1Item_Click() { GoTo(first_link_.SelectedData()); }
  void GoXRef2Item_Click() { GoTo(second_link_.SelectedData()); }
  void LinksHereItem_Click();
  void BackItem_Click();
  void ForwardItem_Click();

  bool CanGoXRef1() const { return first_link_.SelectedData() != 0; }
  bool CanGoXRef2() const { return second_link_.SelectedData() != 0; }
  bool HasLinksHere() const;
  bool CanGoBack() const;
  bool CanGoForward() const;

 private:
  void GoOn(bool forward);
  void GoTo(int record);

  ThingPicker& picker_;
  const DropDownList& first_link_;
  const DropDownList& second_link_;
  FindRequest request_;  // the one of the last hit that was gone to

  // What HasLinksHere found out, and at which state of the document: asked at every event.
  mutable std::vector<bool> linked_;  // empty: nothing yet
  mutable std::uint64_t looked_after_ = 0;
};
