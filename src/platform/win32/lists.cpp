// List box and drop-downs on Windows.
#include "platform/lists.h"

#include <algorithm>

#include "platform/win32/internals.h"
#include "platform/win32/silence.h"

namespace {

// The same request in the languages of both native controls.
struct Verbs {
  UINT Reset, Reserve, Add, SetData, GetData, Count, GetSelected, Select, TextLength, GetText;
};

constexpr Verbs kListVerbs{LB_RESETCONTENT, LB_INITSTORAGE, LB_ADDSTRING, LB_SETITEMDATA, LB_GETITEMDATA,
                           LB_GETCOUNT,     LB_GETCURSEL,   LB_SETCURSEL, LB_GETTEXTLEN,  LB_GETTEXT};
constexpr Verbs kDropVerbs{CB_RESETCONTENT, CB_INITSTORAGE, CB_ADDSTRING, CB_SETITEMDATA,  CB_GETITEMDATA,
                           CB_GETCOUNT,     CB_GETCURSEL,   CB_SETCURSEL, CB_GETLBTEXTLEN, CB_GETLBTEXT};

const Verbs& VerbsOf(const Control::Peer& peer) { return peer.DropsDown() ? kDropVerbs : kListVerbs; }

bool Valid(const ListControl& list, int position) { return position >= 0 && position < list.Count(); }

// Makes the list of a drop-down as wide as its names need, judged by the first few: measuring all
// would take longer than filling the list.
void WidenDropList(const Control::Peer& peer, const std::vector<ListEntry>& entries) {
  constexpr std::size_t kMeasured = 300;
  HDC screen = GetDC(peer.Window);
  HGDIOBJ font = SelectObject(screen, reinterpret_cast<HFONT>(peer.Send(WM_GETFONT)));
  LONG widest = 0;
  for (std::size_t index = 0; index < std::min(entries.size(), kMeasured); ++index) {
    const std::string& text = entries[index].Text;
    SIZE size{};
    GetTextExtentPoint32A(screen, text.c_str(), static_cast<int>(text.size()), &size);
    widest = std::max(widest, size.cx);
  }
  SelectObject(screen, font);
  ReleaseDC(peer.Window, screen);
  RECT own{};
  GetWindowRect(peer.Window, &own);
  const LONG width = own.right - own.left;
  const LONG margins = GetSystemMetrics(SM_CXVSCROLL) + 4 * GetSystemMetrics(SM_CXEDGE) + 4;
  peer.Send(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(std::clamp(widest + margins, width, 2 * width)));
}

}  // namespace

void ListControl::Fill(const std::vector<ListEntry>& entries) {
  Peer& peer = PeerOf();
  const Verbs& verbs = VerbsOf(peer);
  const Silence silence(peer);
  const bool visible = Visible();
  if (visible) peer.Send(WM_SETREDRAW, FALSE);
  peer.Send(verbs.Reset);
  std::size_t bytes = 0;
  for (const ListEntry& entry : entries) bytes += 2 * (entry.Text.size() + 1);
  peer.Send(verbs.Reserve, entries.size(), static_cast<LPARAM>(bytes));
  for (const ListEntry& entry : entries) {
    const LRESULT position = peer.Send(verbs.Add, 0, reinterpret_cast<LPARAM>(entry.Text.c_str()));
    if (entry.Data != 0) peer.Send(verbs.SetData, static_cast<WPARAM>(position), entry.Data);
  }
  peer.Selected = -1;
  if (peer.DropsDown()) WidenDropList(peer, entries);
  if (peer.What == Peer::Kind::ComboBox) {
    SetWindowTextA(peer.Window, "");
    peer.Told.clear();
  }
  if (!visible) return;
  peer.Send(WM_SETREDRAW, TRUE);
  RedrawWindow(peer.Window, nullptr, nullptr, RDW_ERASE | RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN);
}

int ListControl::Count() const { return static_cast<int>(PeerOf().Send(VerbsOf(PeerOf()).Count)); }

std::string ListControl::EntryText(int position) const {
  if (!Valid(*this, position)) return {};
  const Verbs& verbs = VerbsOf(PeerOf());
  const auto index = static_cast<WPARAM>(position);
  std::string text(static_cast<std::size_t>(PeerOf().Send(verbs.TextLength, index)), '\0');
  // The length told may be more than there is.
  const LRESULT length = PeerOf().Send(verbs.GetText, index, reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(std::max<LRESULT>(length, 0)));
  return text;
}

int ListControl::EntryData(int position) const {
  if (!Valid(*this, position)) return 0;
  return static_cast<int>(PeerOf().Send(VerbsOf(PeerOf()).GetData, static_cast<WPARAM>(position)));
}

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

int ListControl::SelectedData(int none) const { return Selected() < 0 ? none : EntryData(Selected()); }

void ComboBox::SelectText(int first, int last) {
  SendMessageA(PeerOf().EditField(), EM_SETSEL, static_cast<WPARAM>(first), last);
}

bool ComboBox::DroppedDown() const { return PeerOf().Send(CB_GETDROPPEDSTATE) != FALSE; }

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
    SendMessageA(DropList(), LB_SETCURSEL, static_cast<WPARAM>(Selected), 0);
  }
  if (TextOfWindow(Window) != Told) SetWindowTextA(Window, Told.c_str());
}
