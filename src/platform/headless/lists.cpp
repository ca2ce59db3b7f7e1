// Lists, drop-downs and check lists, in memory.
#include "platform/lists.h"

#include <algorithm>
#include <utility>

#include "platform/headless/internals.h"

namespace {

bool Valid(const Control::Peer& peer, int position) {
  return position >= 0 && position < static_cast<int>(peer.Entries.size());
}

}  // namespace

void ListControl::Fill(std::vector<ListEntry> entries) {
  Peer& peer = PeerOf();
  peer.Entries = std::move(entries);
  peer.Selected = -1;
  peer.Text.clear();
}

const std::vector<ListEntry>& ListControl::Entries() const { return PeerOf().Entries; }
int ListControl::Selected() const { return PeerOf().Selected; }
void ListControl::Select(int position) { PeerOf().ChangeSelection(position); }

int ListControl::SelectedData(int none) const {
  return Selected() < 0 ? none : Entries()[static_cast<std::size_t>(Selected())].Data;
}

void ComboBox::SelectText(int first, int last) {
  PeerOf().MarkFirst = first;
  PeerOf().MarkLast = last;
}

void Control::Peer::TurnWheel(int notches) {
  if (What != Kind::ComboBox || !Self->HasFocus() || Entries.empty()) return;
  ChangeSelection(std::clamp(Selected + notches, 0, static_cast<int>(Entries.size()) - 1));
}

void RowList::SetColumns(const std::vector<Column>& columns) { PeerOf().Columns = static_cast<int>(columns.size()); }

void RowList::SetRows(int count) {
  PeerOf().Rows = count;
  PeerOf().Selected = -1;
}

int RowList::Rows() const { return PeerOf().Rows; }
int RowList::Selected() const { return PeerOf().Selected; }
void RowList::Select(int row) { PeerOf().Selected = row < Rows() ? row : -1; }

// Nothing drops down here: a person picks straight from the entries.

void CheckList::Fill(const std::vector<std::string>& entries) {
  Peer& peer = PeerOf();
  peer.Entries.clear();
  for (const std::string& text : entries) peer.Entries.push_back({text, 0});
  peer.Ticks.assign(entries.size(), false);
}

int CheckList::Count() const { return static_cast<int>(PeerOf().Entries.size()); }

std::string CheckList::EntryText(int position) const {
  return Valid(PeerOf(), position) ? PeerOf().Entries[static_cast<std::size_t>(position)].Text : std::string();
}

bool CheckList::Checked(int position) const {
  return Valid(PeerOf(), position) && PeerOf().Ticks[static_cast<std::size_t>(position)];
}

void CheckList::SetChecked(int position, bool checked) { PeerOf().ChangeTick(position, checked); }
