// Controls that hold entries: list, drop-downs and check list. Positions count from 0; -1 is none.
// Entries stand in the order in which they were added; no control sorts them.
#pragma once

#include <vector>

#include "platform/control.h"

// One entry: what is shown, and a number of the caller's own (a record number).
struct ListEntry {
  std::string Text;
  int Data = 0;
  bool operator==(const ListEntry&) const = default;
};

// What list box and drop-downs share. Click is raised when the selection moved, by the user (with
// the mouse or the arrow keys) or from code.
class ListControl : public Control {
 public:
  // Replaces all entries at once, without repainting in between. The selection is lost, silently; a
  // combo's edit text is emptied, silently too.
  void Fill(std::vector<ListEntry> entries);
  void Clear() { Fill({}); }
  const std::vector<ListEntry>& Entries() const;  // good until the next Fill
  int Selected() const;
  void Select(int position);             // -1 selects nothing; a combo's edit text follows
  int SelectedData(int none = 0) const;  // data of the selected entry, or `none`
  Event Click;

 protected:
  using Control::Control;
};

class ListBox : public ListControl {
 public:
  ListBox(Form& owner, int id) : ListControl(owner, id, Kind::ListBox) {}
  Event DoubleClick;
};

// A drop-down whose text is always one of its entries, or nothing. The mouse wheel scrolls its open list; closed it
// stays as it is under the wheel, also with the focus: whoever scrolls past it would change it unawares.
class DropDownList : public ListControl {
 public:
  DropDownList(Form& owner, int id) : ListControl(owner, id, Kind::DropDownList) {}
};

// A drop-down with an edit field: Text may be anything. Change is raised when the edit text was
// typed or set from code, not when an entry was selected (that is Click). The mouse wheel scrolls its open list and
// selects the next entry of a closed one that has the focus; without the focus nothing happens.
class ComboBox : public ListControl {
 public:
  ComboBox(Form& owner, int id) : ListControl(owner, id, Kind::ComboBox) {}
  void SelectText(int first, int last);  // marks bytes [first, last) of the edit field's text
  Event Change;
};

// A list with a check box before each entry.
class CheckList : public Control {
 public:
  CheckList(Form& owner, int id) : Control(owner, id, Kind::CheckList) {}
  void Fill(const std::vector<std::string>& entries);  // replaces all entries; none is checked, silently
  int Count() const;
  std::string EntryText(int position) const;
  bool Checked(int position) const;
  void SetChecked(int position, bool checked);  // raises ItemCheck when it differs
  std::function<void(int position)> ItemCheck;
};

// A list of rows in columns, of which it asks for what it shows only: as many as there can be take no time.
class RowList : public Control {
 public:
  struct Column {
    std::string Title;
    int Percent;  // of the list's width
  };
  RowList(Form& owner, int id) : Control(owner, id, Kind::RowList) {}
  void SetColumns(const std::vector<Column>& columns);  // once
  std::function<std::string(int row, int column)> CellText;
  void SetRows(int count);  // asks anew for all that is shown, from the first row on; none is selected
  int Rows() const;
  int Selected() const;  // -1 for none
  void Select(int row);  // and brings it into view; -1 selects nothing
  Event DoubleClick;     // on a row, which is then selected
};
