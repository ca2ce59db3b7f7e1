// List box and drop-downs on Windows.
#include "platform/lists.h"

#include <algorithm>
#include <utility>

#include "platform/win32/internals.h"
#include "platform/win32/silence.h"
#include "platform/win32/wide.h"

namespace {

// The same request in the languages of both native controls.
struct Verbs {
  UINT Reset, Reserve, Delete, GetSelected, Select;
};

constexpr Verbs kListVerbs{LB_RESETCONTENT, LB_INITSTORAGE, LB_DELETESTRING, LB_GETCURSEL, LB_SETCURSEL};
constexpr Verbs kDropVerbs{CB_RESETCONTENT, CB_INITSTORAGE, CB_DELETESTRING, CB_GETCURSEL, CB_SETCURSEL};

const Verbs& VerbsOf(const Control::Peer& peer) { return peer.DropsDown() ? kDropVerbs : kListVerbs; }

bool Valid(const ListControl& list, int position) {
  return position >= 0 && static_cast<std::size_t>(position) < list.Entries().size();
}

// Makes the list of a drop-down as wide as its names need and the screen has room, judged by the first few: measuring
// all would take longer than filling the list. Done as it drops down, for the window's size and font may change.
void WidenDropList(const Control::Peer& peer) {
  constexpr std::size_t kMeasured = 300;
  HDC screen = GetDC(peer.Window);
  HGDIOBJ font = SelectObject(screen, reinterpret_cast<HFONT>(peer.Send(WM_GETFONT)));
  LONG widest = 0;
  for (std::size_t index = 0; index < std::min(peer.Entries.size(), kMeasured); ++index) {
    const std::wstring text = Wide(peer.Entries[index].Text);
    SIZE size{};
    GetTextExtentPoint32W(screen, text.c_str(), static_cast<int>(text.size()), &size);
    widest = std::max(widest, size.cx);
  }
  SelectObject(screen, font);
  ReleaseDC(peer.Window, screen);
  RECT own{};
  GetWindowRect(peer.Window, &own);
  const LONG width = own.right - own.left;
  const LONG margins = GetSystemMetrics(SM_CXVSCROLL) + 4 * GetSystemMetrics(SM_CXEDGE) + 4;
  const LONG room = std::max(width, WorkAreaOf(peer.Window).right - own.left);
  peer.Send(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(width));  // not all systems go back to less in one step
  peer.Send(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(std::clamp(widest + margins, width, room)));
}

using Entries = std::vector<ListEntry>;

bool SameText(const ListEntry& one, const ListEntry& other) { return one.Text == other.Text; }

// Changes the native list, which holds the texts of the entries only: telling it the new numbers of all that stand
// behind an entry which came or went would take longer than the rest.
class Editor {
 public:
  explicit Editor(Control::Peer& peer)
      : peer_(peer), list_(peer.DropsDown() ? peer.DropList() : peer.Window), verbs_(VerbsOf(peer)) {}

  void Delete(std::size_t position) { peer_.Send(verbs_.Delete, position); }

  void Insert(std::size_t position, const ListEntry& entry) {
    // Without the way through the drop-down, which doubles the time, and without a copy in wchar_t, which is the same.
    static_assert(sizeof(wchar_t) == sizeof(char16_t));
    SendMessageW(list_, LB_INSERTSTRING, position, reinterpret_cast<LPARAM>(Widen(entry.Text).c_str()));
  }

  void Replace(const Entries& entries) {
    std::size_t bytes = 0;
    for (const ListEntry& entry : entries) bytes += 2 * (entry.Text.size() + 1);
    peer_.Send(verbs_.Reset);
    peer_.Send(verbs_.Reserve, entries.size(), static_cast<LPARAM>(bytes));
    for (std::size_t position = 0; position < entries.size(); ++position) Insert(position, entries[position]);
  }

 private:
  Control::Peer& peer_;
  HWND list_;
  const Verbs& verbs_;
};

// Makes the list hold these entries. Filling a native list takes long, and most often one entry came, went or
// moved: only the stretch between the first and the last difference is touched, when it is short.
void HoldEntries(Control::Peer& peer, Entries entries) {
  constexpr std::size_t kShort = 100;
  Editor editor(peer);
  const Entries& held = peer.Entries;
  const auto start = std::mismatch(held.begin(), held.end(), entries.begin(), entries.end(), SameText);
  const auto end = std::mismatch(held.rbegin(), std::make_reverse_iterator(start.first), entries.rbegin(),
                                 std::make_reverse_iterator(start.second), SameText);
  const auto first = static_cast<std::size_t>(start.first - held.begin());
  const auto old_size = static_cast<std::size_t>(end.first.base() - start.first);
  const auto new_size = static_cast<std::size_t>(end.second.base() - start.second);
  const std::size_t last = first + old_size - 1;
  if (old_size == new_size && old_size > 1 && std::equal(start.first + 1, end.first.base(), start.second, SameText)) {
    editor.Delete(first);
    editor.Insert(last, entries[last]);
  } else if (old_size == new_size && old_size > 1 &&
             std::equal(start.first, end.first.base() - 1, start.second + 1, SameText)) {
    editor.Delete(last);
    editor.Insert(first, entries[first]);
  } else if (old_size + new_size <= kShort) {
    for (std::size_t count = old_size; count > 0; --count) editor.Delete(first + count - 1);
    for (std::size_t index = 0; index < new_size; ++index) editor.Insert(first + index, entries[first + index]);
  } else {
    editor.Replace(entries);
  }
  peer.Entries = std::move(entries);
}

}  // namespace

void ListControl::Fill(std::vector<ListEntry> entries) {
  Peer& peer = PeerOf();
  const Silence silence(peer);
  const bool visible = Visible();
  if (visible) peer.Send(WM_SETREDRAW, FALSE);
  HoldEntries(peer, std::move(entries));
  peer.Send(VerbsOf(peer).Select, static_cast<WPARAM>(-1));
  peer.Selected = -1;
  if (peer.What == Peer::Kind::ComboBox) {
    SetWindowTextW(peer.Window, L"");
    peer.Told.clear();
  }
  if (!visible) return;
  peer.Send(WM_SETREDRAW, TRUE);
  RedrawWindow(peer.Window, nullptr, nullptr, RDW_ERASE | RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN);
}

const std::vector<ListEntry>& ListControl::Entries() const { return PeerOf().Entries; }

int ListControl::Selected() const { return PeerOf().Selected; }

void ListControl::Select(int position) {
  Peer& peer = PeerOf();
  if (!Valid(*this, position)) position = -1;
  {
    const Silence silence(peer);
    peer.Send(VerbsOf(peer).Select, static_cast<WPARAM>(position));
    if (peer.What == Peer::Kind::ComboBox) peer.Told = Text();
  }
  if (position == peer.Selected) return;
  peer.Selected = position;
  Raise(Click);
}

int ListControl::SelectedData(int none) const {
  return Selected() < 0 ? none : Entries()[static_cast<std::size_t>(Selected())].Data;
}

void ComboBox::SelectText(int first, int last) {
  Peer::Mark(PeerOf().EditField(), first, last);
  SendMessageW(PeerOf().EditField(), EM_SCROLLCARET, 0, 0);
}

HWND Control::Peer::EditField() const {
  COMBOBOXINFO parts{};
  parts.cbSize = sizeof parts;
  GetComboBoxInfo(Window, &parts);
  return parts.hwndItem;
}

HWND Control::Peer::DropList() const {
  COMBOBOXINFO parts{};
  parts.cbSize = sizeof parts;
  GetComboBoxInfo(Window, &parts);
  return parts.hwndList;
}

void Control::Peer::ComboCommanded(int code) {
  switch (code) {
    case CBN_DROPDOWN:
      WidenDropList(*this);
      break;
    case CBN_EDITCHANGE:
      TextMayHaveChanged();
      break;
    case CBN_SELCHANGE:
      SelectionMayHaveMoved();
      break;
    case CBN_SETFOCUS:
      Owner->PeerOf().FocusMoved(Self);
      break;
    default:
      break;
  }
}

void Control::Peer::SelectionMayHaveMoved() {
  const int position = static_cast<int>(Send(VerbsOf(*this).GetSelected));
  if (position == Selected) return;
  Selected = position;
  if (What == Kind::ComboBox) {
    // Natively the edit field follows only later.
    const Silence silence(*this);
    Send(CB_SETCURSEL, static_cast<WPARAM>(position));
    Told = TextOfWindow(Window);
  }
  Raise(static_cast<ListControl*>(Self)->Click);
}

// Closing its list, the native combo may put an entry that begins alike in place of what was typed, and
// it shows the entry picked even when the Click made another text of it. The program's word counts.
void Control::Peer::DroppedUp() {
  if (What != Kind::ComboBox || Send(CB_GETDROPPEDSTATE) != FALSE) return;
  const Silence silence(*this);
  if (static_cast<int>(Send(CB_GETCURSEL)) != Selected) {
    SendMessageW(DropList(), LB_SETCURSEL, static_cast<WPARAM>(Selected), 0);
  }
  if (TextOfWindow(Window) != Told) SetWindowTextW(Window, Wide(Told).c_str());
}
