// A test's person on real windows: acts on the topmost form through the messages that a real one's hands
// would cause.
#include "support/user.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

#include "platform/win32/internals.h"
#include "platform/win32/surface_work.h"
#include "support/expectations.h"
#include "support/win32/watcher.h"

namespace {

using Kind = Control::Peer::Kind;

std::unique_ptr<Watcher> watcher;

// Lets everything happen that part of an action set off; the watcher's own timer waits for a message loop.
void SettlePart() {
  MSG message{};
  while (PeekMessageA(&message, nullptr, 0, WM_TIMER - 1, PM_REMOVE) ||
         PeekMessageA(&message, nullptr, WM_TIMER + 1, 0xFFFF, PM_REMOVE)) {
    Dispatch(message);
  }
  RethrowCarried();
}

// The same when the action is complete.
void Settle() {
  SettlePart();
  if (Form* form = TopmostForm()) form->PeerOf().RunDeferred();
  SettlePart();
}

// The form that a person can reach, or null, which fails the test.
Form::Peer* Topmost() {
  Form* form = TopmostForm();
  if (form == nullptr || form->Closed()) {
    ADD_FAILURE() << "No form is open";
    return nullptr;
  }
  return &form->PeerOf();
}

// The control of that id on the topmost form, or null, which fails the test.
Control::Peer* Find(int id) {
  const Form::Peer* form = Topmost();
  if (form == nullptr) return nullptr;
  Control* control = form->Find(id);
  if (control == nullptr) {
    ADD_FAILURE() << "Form " << form->Template << " has no control " << id;
    return nullptr;
  }
  return &control->PeerOf();
}

HWND FormWindow(const Control::Peer& peer) { return peer.Owner->PeerOf().Window; }

// The same, for acting: it must be one of these kinds, visible and enabled; the focus moves there.
Control::Peer* Reach(int id, std::initializer_list<Kind> kinds) {
  Control::Peer* peer = Find(id);
  if (peer == nullptr) return nullptr;
  if (kinds.size() != 0 && std::find(kinds.begin(), kinds.end(), peer->What) == kinds.end()) {
    ADD_FAILURE() << "Control " << id << " is of another kind";
    return nullptr;
  }
  if (!IsWindowVisible(peer->Window) || !IsWindowEnabled(peer->Window) || !IsWindowEnabled(FormWindow(*peer))) {
    ADD_FAILURE() << "Control " << id << " is " << (IsWindowVisible(peer->Window) ? "disabled" : "hidden");
    return nullptr;
  }
  if (peer->TakesFocus() && GetFocus() != peer->Window && !IsChild(peer->Window, GetFocus())) {
    SendMessageA(FormWindow(*peer), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(peer->Window), TRUE);
    SettlePart();
  }
  return peer;
}

bool IsTickList(const Control::Peer& peer) { return peer.What == Kind::CheckList; }

int CountOf(const Control::Peer& peer) {
  if (IsTickList(peer)) return static_cast<int>(peer.Send(LVM_GETITEMCOUNT));
  return static_cast<int>(peer.Send(peer.DropsDown() ? CB_GETCOUNT : LB_GETCOUNT));
}

std::string EntryOf(const Control::Peer& peer, int position) {
  if (IsTickList(peer)) return static_cast<const CheckList*>(peer.Self)->EntryText(position);
  return peer.Entries.at(static_cast<std::size_t>(position)).Text;
}

int Position(const Control::Peer& peer, std::string_view entry) {
  const int count = CountOf(peer);
  for (int position = 0; position < count; ++position) {
    if (EntryOf(peer, position) == entry) return position;
  }
  ADD_FAILURE() << "Control " << peer.Id << " has no entry \"" << entry << "\"";
  return -1;
}

void Tell(const Control::Peer& peer, int code) {
  SendMessageA(FormWindow(peer), WM_COMMAND, MAKEWPARAM(peer.Id, code), reinterpret_cast<LPARAM>(peer.Window));
}

// Selects an entry as the mouse does: the native control moves, then tells.
void Pick(const Control::Peer& peer, int position) {
  peer.Send(peer.DropsDown() ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(position));
  Tell(peer, peer.DropsDown() ? static_cast<int>(CBN_SELCHANGE) : static_cast<int>(LBN_SELCHANGE));
  Settle();
}

bool IsTicked(const Control::Peer& peer, int position) {
  const LRESULT state = peer.Send(LVM_GETITEMSTATE, static_cast<WPARAM>(position), LVIS_STATEIMAGEMASK);
  return state == INDEXTOSTATEIMAGEMASK(2);
}

UINT MenuState(int id) {
  const Form::Peer* form = Topmost();
  if (form == nullptr) return static_cast<UINT>(-1);
  HMENU menu = GetMenu(form->Window);
  // What a form does just before its menu opens counts too.
  SendMessageA(form->Window, WM_INITMENU, reinterpret_cast<WPARAM>(menu), 0);
  for (int index = 0; index < GetMenuItemCount(menu); ++index) {
    SendMessageA(form->Window, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(GetSubMenu(menu, index)), index);
  }
  return GetMenuState(menu, static_cast<UINT>(id), MF_BYCOMMAND);
}

}  // namespace

User::User() {
  Expected().Start();
  watcher = std::make_unique<Watcher>();
}

User::~User() {
  watcher.reset();
  Expected().Finish();
}

void User::Types(int id, std::string_view text) {
  Control::Peer* peer = Reach(id, {Kind::TextBox, Kind::ComboBox});
  if (peer == nullptr) return;
  HWND edit = peer->What == Kind::ComboBox ? peer->EditField() : peer->Window;
  if ((GetWindowLongA(edit, GWL_STYLE) & ES_READONLY) != 0) {
    ADD_FAILURE() << "Control " << id << " is read-only";
    return;
  }
  TypeInto(edit, std::string(text).c_str());
  Settle();
}

void User::Clicks(int id) {
  Control::Peer* peer = Reach(id, {Kind::Button, Kind::OptionButton, Kind::Label, Kind::Picture});
  if (peer == nullptr) return;
  if (peer->What == Kind::Button || peer->What == Kind::OptionButton) {
    peer->Send(BM_CLICK);
  } else {
    const LPARAM inside = MAKELPARAM(2, 2);
    peer->Send(WM_LBUTTONDOWN, MK_LBUTTON, inside);
    peer->Send(WM_LBUTTONUP, 0, inside);
  }
  Settle();
}

void User::Picks(int id, std::string_view entry) {
  Control::Peer* peer = Reach(id, {Kind::ListBox, Kind::ComboBox, Kind::DropDownList});
  if (peer == nullptr) return;
  const int position = Position(*peer, entry);
  if (position >= 0) Pick(*peer, position);
}

void User::PicksAt(int id, int position) {
  Control::Peer* peer = Reach(id, {Kind::ListBox, Kind::ComboBox, Kind::DropDownList});
  if (peer == nullptr) return;
  if (position < 0 || position >= CountOf(*peer)) {
    ADD_FAILURE() << "Control " << id << " has no entry at position " << position;
    return;
  }
  Pick(*peer, position);
}

void User::Ticks(int id, std::string_view entry) {
  Control::Peer* peer = Reach(id, {Kind::CheckList});
  if (peer == nullptr) return;
  const int position = Position(*peer, entry);
  if (position < 0) return;
  LVITEMA item{};
  item.stateMask = LVIS_STATEIMAGEMASK;
  item.state = INDEXTOSTATEIMAGEMASK(IsTicked(*peer, position) ? 1U : 2U);
  peer->Send(LVM_SETITEMSTATE, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&item));
  Settle();
}

void User::ChoosesMenu(int id) {
  const UINT state = MenuState(id);
  if ((state & (MF_GRAYED | MF_DISABLED)) != 0) {  // set as well when there is no such entry
    ADD_FAILURE() << "Menu entry " << id << " is greyed";
    return;
  }
  SendMessageA(Topmost()->Window, WM_COMMAND, MAKEWPARAM(id, 0), 0);
  Settle();
}

namespace {

// Keys that are held down for as long as one of these lives.
class Held {
 public:
  Held(bool shift, bool control) {
    GetKeyboardState(before_);
    BYTE now[256];
    std::copy(std::begin(before_), std::end(before_), now);
    now[VK_SHIFT] = shift ? 0x80 : 0;
    now[VK_CONTROL] = control ? 0x80 : 0;
    SetKeyboardState(now);
  }
  ~Held() { SetKeyboardState(before_); }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

 private:
  BYTE before_[256] = {};
};

// The middle of a cell in the window's own coordinates.
LPARAM Inside(const Control::Peer& peer, const Cell& cell) {
  const RECT rect = peer.Work->RectOf(cell);
  return MAKELPARAM((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
}

}  // namespace

void User::Presses(Key key) { Presses(KeyPress{key}); }

void User::Presses(const KeyPress& key) {
  const Form::Peer* form = Topmost();
  if (form == nullptr) return;
  HWND focus = GetFocus();
  if (focus == nullptr) focus = form->Window;
  // In the order of Key.
  constexpr WPARAM kCodes[] = {VK_RETURN, VK_ESCAPE, VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN,
                               VK_PRIOR,  VK_NEXT,   VK_HOME, VK_END,   VK_F1};
  const WPARAM code = kCodes[static_cast<std::size_t>(key.What)];
  const Held held(key.Shift, key.Control);
  PostMessageA(focus, WM_KEYDOWN, code, 1);
  PostMessageA(focus, WM_KEYUP, code, 1);
  Settle();
}

void User::PressesControl(char letter) {
  if (Topmost() == nullptr) return;
  PostMessageA(GetFocus(), WM_CHAR, static_cast<WPARAM>(letter - 'A' + 1), 1);
  Settle();
}

void User::Drags(int id, Cell from, Cell to, bool shift) {
  const Control::Peer* peer = Reach(id, {Kind::Surface});
  if (peer == nullptr) return;
  const WPARAM keys = shift ? MK_LBUTTON | MK_SHIFT : MK_LBUTTON;
  peer->Send(WM_LBUTTONDOWN, keys, Inside(*peer, from));
  peer->Send(WM_MOUSEMOVE, keys, Inside(*peer, to));
  peer->Send(WM_LBUTTONUP, 0, Inside(*peer, to));
  Settle();
}

void User::DoubleClicks(int id, Cell at) {
  const Control::Peer* peer = Reach(id, {Kind::Surface});
  if (peer == nullptr) return;
  for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP}) {
    peer->Send(message, MK_LBUTTON, Inside(*peer, at));
  }
  Settle();
}

void User::TurnsWheel(int id, int notches, bool shift, bool control) {
  const Control::Peer* peer = Find(id);
  if (peer != nullptr && !peer->DropsDown()) peer = Reach(id, {Kind::Surface});
  if (peer == nullptr) return;
  const int keys = (shift ? MK_SHIFT : 0) | (control ? MK_CONTROL : 0);
  PostMessageA(peer->Window, WM_MOUSEWHEEL, MAKEWPARAM(keys, -notches * WHEEL_DELTA), 0);
  Settle();
}

void User::PagesBar(int id, Surface::Bar bar, int pages) {
  const Control::Peer* peer = Reach(id, {Kind::Surface});
  if (peer == nullptr) return;
  const UINT message = bar == Surface::Bar::Down ? WM_VSCROLL : WM_HSCROLL;
  for (int page = 0; page < std::abs(pages); ++page) peer->Send(message, pages > 0 ? SB_PAGEDOWN : SB_PAGEUP);
  Settle();
}

void User::MovesTo(int id) {
  Reach(id, {});
  Settle();
}

void User::ClosesWindow() {
  const Form::Peer* form = Topmost();
  if (form == nullptr) return;
  SendMessageA(form->Window, WM_SYSCOMMAND, SC_CLOSE, 0);
  Settle();
}

std::string User::Sees(int id) {
  const Control::Peer* peer = Find(id);
  return peer == nullptr ? "" : TextOfWindow(peer->Window);
}

std::string User::SeesCaption() {
  const Form::Peer* form = Topmost();
  return form == nullptr ? "" : TextOfWindow(form->Window);
}

bool User::SeesEnabled(int id) {
  const Control::Peer* peer = Find(id);
  return peer != nullptr && IsWindowEnabled(peer->Window) != FALSE;
}

bool User::SeesVisible(int id) {
  const Control::Peer* peer = Find(id);
  return peer != nullptr && IsWindowVisible(peer->Window) != FALSE;
}

bool User::SeesBold(int id) {
  const Control::Peer* peer = Find(id);
  LOGFONTA font{};
  if (peer != nullptr) GetObjectA(reinterpret_cast<HFONT>(peer->Send(WM_GETFONT)), sizeof font, &font);
  return font.lfWeight >= FW_BOLD;
}

const Control* User::On(int id) {
  const Control::Peer* peer = Find(id);
  return peer == nullptr ? nullptr : peer->Self;
}

bool User::SeesFocusOn(int id) {
  const Control::Peer* peer = Find(id);
  return peer != nullptr && (GetFocus() == peer->Window || IsChild(peer->Window, GetFocus()));
}

std::vector<std::string> User::SeesEntries(int id) {
  std::vector<std::string> texts;
  const Control::Peer* peer = Find(id);
  if (peer == nullptr) return texts;
  for (int position = 0; position < CountOf(*peer); ++position) texts.push_back(EntryOf(*peer, position));
  return texts;
}

std::string User::SeesSelected(int id) {
  const Control::Peer* peer = Find(id);
  if (peer == nullptr) return "";
  const int position = static_cast<int>(peer->Send(peer->DropsDown() ? CB_GETCURSEL : LB_GETCURSEL));
  return position < 0 ? "" : EntryOf(*peer, position);
}

std::vector<std::string> User::SeesTicked(int id) {
  std::vector<std::string> texts;
  const Control::Peer* peer = Find(id);
  if (peer == nullptr || !IsTickList(*peer)) return texts;
  for (int position = 0; position < CountOf(*peer); ++position) {
    if (IsTicked(*peer, position)) texts.push_back(EntryOf(*peer, position));
  }
  return texts;
}

bool User::SeesMenuEnabled(int id) { return (MenuState(id) & (MF_GRAYED | MF_DISABLED)) == 0; }

bool User::SeesMenuChecked(int id) {
  const UINT state = MenuState(id);
  return state != static_cast<UINT>(-1) && (state & MF_CHECKED) != 0;
}

Page User::SeesPage(int id) {
  const Control::Peer* peer = Find(id);
  return peer == nullptr || peer->Work == nullptr ? Page() : peer->Work->Shown;
}

int User::SeesBar(int id, Surface::Bar bar) {
  const Control::Peer* peer = Find(id);
  if (peer == nullptr) return -1;
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  GetScrollInfo(peer->Window, bar == Surface::Bar::Down ? SB_VERT : SB_HORZ, &info);
  return info.nMax + 1 > static_cast<int>(info.nPage) ? info.nPos : -1;
}
