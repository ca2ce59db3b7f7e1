// A person's hands on real windows: the messages that a real one's would cause.
#include "support/hands.h"

#include <algorithm>

#include "platform/win32/drop_target.h"
#include "platform/win32/internals.h"
#include "platform/win32/photo.h"
#include "platform/win32/surface_work.h"
#include "platform/win32/wide.h"
// After windows.h, on which it builds.
#include <shlobj.h>

namespace {

using Kind = Control::Peer::Kind;

// The watcher's own timer waits for a message loop.
void SettlePart() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, WM_TIMER - 1, PM_REMOVE) ||
         PeekMessageW(&message, nullptr, WM_TIMER + 1, 0xFFFF, PM_REMOVE)) {
    Dispatch(message);
  }
  RethrowCarried();
}

HWND FormWindow(const Control::Peer& peer) { return peer.Owner->PeerOf().Window; }

// Another control takes the messages of edit fields for nothing.
HWND EditOf(const Control::Peer& peer) { return peer.What == Kind::ComboBox ? peer.EditField() : peer.Window; }

// The rows of a row list as the native control shows them, which asks for them.
std::vector<std::string> RowsOn(const Control::Peer& peer) {
  std::vector<std::string> rows(static_cast<std::size_t>(peer.Send(LVM_GETITEMCOUNT)));
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (std::size_t column = 0; column < peer.Percents.size(); ++column) {
      wchar_t text[512] = L"";
      LVITEMW item{};
      item.iSubItem = static_cast<int>(column);
      item.pszText = text;
      item.cchTextMax = static_cast<int>(std::size(text));
      peer.Send(LVM_GETITEMTEXTW, row, reinterpret_cast<LPARAM>(&item));
      rows[row] += (column > 0 ? " / " : "") + Bytes(text);
    }
  }
  return rows;
}

// A file as the system's own windows hand it out to be dragged.
Com<IDataObject> Dragged(const std::string& file) {
  IShellItem* item = nullptr;
  void* data = nullptr;
  SHCreateItemFromParsingName(Wide(file).c_str(), nullptr, IID_IShellItem, reinterpret_cast<void**>(&item));
  if (item != nullptr) Com<IShellItem>(item)->BindToHandler(nullptr, BHID_SFUIObject, IID_IDataObject, &data);
  return Com<IDataObject>(static_cast<IDataObject*>(data));
}

bool IsTicked(const Control::Peer& peer, int position) {
  return peer.Send(LVM_GETITEMSTATE, static_cast<WPARAM>(position), LVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2);
}

void Hold(bool shift, bool control) {
  BYTE keys[256] = {};
  keys[VK_SHIFT] = shift ? 0x80 : 0;
  keys[VK_CONTROL] = control ? 0x80 : 0;
  SetKeyboardState(keys);
}

void Mouse(const Control& control, LPARAM place, std::initializer_list<UINT> messages) {
  for (const UINT message : messages) control.PeerOf().Send(message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, place);
}

// The middle of a cell in the window's own coordinates.
LPARAM Inside(const Surface& surface, const Cell& cell) {
  const RECT rect = surface.PeerOf().Work->RectOf(cell);
  return MAKELPARAM((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
}

}  // namespace

Hands::Sight Hands::LookAt(const Control& control) {
  const Control::Peer& peer = control.PeerOf();
  Sight sight;
  sight.Text = TextOfWindow(peer.Window);
  sight.Enabled = control.Enabled();
  sight.Visible = control.Visible();
  LOGFONTW font{};
  GetObjectW(reinterpret_cast<HFONT>(peer.Send(WM_GETFONT)), sizeof font, &font);
  sight.Bold = font.lfWeight >= FW_BOLD;
  sight.Focused = GetFocus() == peer.Window || IsChild(peer.Window, GetFocus());
  if (peer.HoldsEntries()) {
    for (const ListEntry& entry : peer.Entries) sight.Entries.push_back(entry.Text);
    sight.Entries.resize(static_cast<std::size_t>(peer.Send(peer.DropsDown() ? CB_GETCOUNT : LB_GETCOUNT)));
    sight.Selected = static_cast<int>(peer.Send(peer.DropsDown() ? CB_GETCURSEL : LB_GETCURSEL));
  } else if (const auto* checks = dynamic_cast<const CheckList*>(&control)) {
    for (int position = 0; position < peer.Send(LVM_GETITEMCOUNT); ++position) {
      sight.Entries.push_back(checks->EntryText(position));
      if (IsTicked(peer, position)) sight.Ticked.push_back(sight.Entries.back());
    }
  } else if (const auto* rows = dynamic_cast<const RowList*>(&control)) {
    sight.Entries = RowsOn(peer);
    sight.Selected = rows->Selected();
  }
  DWORD from = 0, upto = 0;
  SendMessageW(EditOf(peer), EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&upto));
  // In bytes, as the program counts.
  const std::wstring text = Wide(sight.Text);
  const auto position = [&text](DWORD units) { return static_cast<int>(Bytes(text.substr(0, units)).size()); };
  sight.Mark = {position(from), position(upto)};
  return sight;
}

Page Hands::PageOn(const Surface& surface) { return surface.PeerOf().Work->Shown; }

int Hands::BarOn(const Surface& surface, Surface::Bar bar) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  GetScrollInfo(surface.PeerOf().Window, bar == Surface::Bar::Down ? SB_VERT : SB_HORZ, &info);
  return info.nMax + 1 > static_cast<int>(info.nPage) ? info.nPos : -1;
}

std::vector<Form*> Hands::OpenForms() { return ::OpenForms(); }
int Hands::TemplateOf(const Form& form) { return form.PeerOf().Template; }

std::map<int, Follow> Hands::GrowthOf(const Form& form) {
  HWND window = form.PeerOf().Window;
  RECT whole{};
  GetWindowRect(window, &whole);
  const auto places = [&form] {
    std::map<int, RECT> rects;
    for (const auto& [id, control] : ControlsOf(form)) GetWindowRect(control->PeerOf().Window, &rects[id]);
    return rects;
  };
  const auto grow = [&](LONG by) {
    SetWindowPos(window, nullptr, 0, 0, whole.right - whole.left + by, whole.bottom - whole.top + by,
                 SWP_NOMOVE | SWP_NOZORDER);
  };
  const std::map<int, RECT> before = places();
  grow(100);
  std::map<int, Follow> growth;
  for (const auto& [id, now] : places()) {
    const RECT& was = before.at(id);
    const Follow moved{now.left - was.left, now.top - was.top, now.right - was.right, now.bottom - was.bottom};
    if (!EqualRect(&now, &was)) growth[id] = moved;
  }
  grow(0);
  return growth;
}
const std::map<int, Control*>& Hands::ControlsOf(const Form& form) { return form.PeerOf().Controls; }

void Hands::MoveTo(Control& control) {
  const Control::Peer& peer = control.PeerOf();
  if (!peer.TakesFocus() || GetFocus() == peer.Window || IsChild(peer.Window, GetFocus())) return;
  SendMessageW(FormWindow(peer), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(peer.Window), TRUE);
  SettlePart();
}

void Hands::Type(Control& box, const std::string& text) {
  HWND edit = EditOf(box.PeerOf());
  SendMessageW(edit, EM_SETSEL, 0, -1);
  SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(Wide(text).c_str()));
}

void Hands::Click(Control& control) { Mouse(control, MAKELPARAM(2, 2), {WM_LBUTTONDOWN, WM_LBUTTONUP}); }

// As the mouse does: the native control moves, then tells.
void Hands::Select(ListControl& list, int position) {
  const Control::Peer& peer = list.PeerOf();
  peer.Send(peer.DropsDown() ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(position));
  const int code = peer.DropsDown() ? static_cast<int>(CBN_SELCHANGE) : static_cast<int>(LBN_SELCHANGE);
  SendMessageW(FormWindow(peer), WM_COMMAND, MAKEWPARAM(peer.Id, code), reinterpret_cast<LPARAM>(peer.Window));
}

void Hands::TurnOver(CheckList& list, int position) {
  LVITEMW item{};
  item.stateMask = LVIS_STATEIMAGEMASK;
  item.state = INDEXTOSTATEIMAGEMASK(IsTicked(list.PeerOf(), position) ? 1U : 2U);
  list.PeerOf().Send(LVM_SETITEMSTATE, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&item));
}

void Hands::Choose(Form& form, int item) { SendMessageW(form.PeerOf().Window, WM_COMMAND, MAKEWPARAM(item, 0), 0); }

void Hands::Press(Form& form, const KeyPress& key) {
  HWND focus = GetFocus() != nullptr ? GetFocus() : form.PeerOf().Window;
  // In the order of Key.
  constexpr WPARAM kCodes[] = {VK_RETURN, VK_ESCAPE, VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN,
                               VK_PRIOR,  VK_NEXT,   VK_HOME, VK_END,   VK_F1, VK_SPACE};
  const WPARAM code = kCodes[static_cast<std::size_t>(key.What)];
  Hold(key.Shift, key.Control);
  PostMessageW(focus, WM_KEYDOWN, code, 1);
  PostMessageW(focus, WM_KEYUP, code, 1);
  SettlePart();
  Hold(false, false);
}

void Hands::PressControl(Form& /*form*/, char letter) {
  PostMessageW(GetFocus(), WM_CHAR, static_cast<WPARAM>(letter - 'A' + 1), 1);
}

void Hands::Drag(Surface& surface, Cell from, Cell to, bool shift) {
  const WPARAM keys = shift ? MK_LBUTTON | MK_SHIFT : MK_LBUTTON;
  surface.PeerOf().Send(WM_LBUTTONDOWN, keys, Inside(surface, from));
  surface.PeerOf().Send(WM_MOUSEMOVE, keys, Inside(surface, to));
  surface.PeerOf().Send(WM_LBUTTONUP, 0, Inside(surface, to));
}

void Hands::DoubleClick(Control& control, Cell at) {
  const auto* surface = dynamic_cast<Surface*>(&control);
  RECT row{0, 0, 2, 2};
  if (dynamic_cast<RowList*>(&control) != nullptr) {
    control.PeerOf().Send(LVM_GETITEMRECT, static_cast<WPARAM>(at.Row), reinterpret_cast<LPARAM>(&row));
  }
  const LPARAM place = surface == nullptr ? MAKELPARAM(row.left + 1, row.top + 1) : Inside(*surface, at);
  Mouse(control, place, {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP});
}

void Hands::TurnWheel(Control& control, int notches, bool shift, bool control_key) {
  const int keys = (shift ? MK_SHIFT : 0) | (control_key ? MK_CONTROL : 0);
  PostMessageW(control.PeerOf().Window, WM_MOUSEWHEEL, MAKEWPARAM(keys, -notches * WHEEL_DELTA), 0);
}

void Hands::PageBar(Surface& surface, Surface::Bar bar, int pages) {
  const UINT message = bar == Surface::Bar::Down ? WM_VSCROLL : WM_HSCROLL;
  for (int page = 0; page < std::abs(pages); ++page) {
    surface.PeerOf().Send(message, pages > 0 ? SB_PAGEDOWN : SB_PAGEUP);
  }
}

void Hands::Close(Form& form) { SendMessageW(form.PeerOf().Window, WM_SYSCOMMAND, SC_CLOSE, 0); }

bool Hands::Drop(Form& form, const std::string& file) {
  const Com<IDataObject> data = Dragged(file);
  if (!data || form.PeerOf().TakesDrops == nullptr) return false;
  IDropTarget& target = form.PeerOf().TakesDrops->Target();
  DWORD effect = DROPEFFECT_COPY | DROPEFFECT_MOVE | DROPEFFECT_LINK;
  target.DragEnter(data.get(), MK_LBUTTON, {}, &effect);
  target.Drop(data.get(), 0, {}, &effect);
  return effect == DROPEFFECT_COPY;
}

void Hands::ShutDown(Form& form) { SendMessageW(form.PeerOf().Window, WM_QUERYENDSESSION, 0, 0); }

void Hands::Settle() {
  SettlePart();
  if (const Form* form = TopmostForm()) form->PeerOf().RunDeferred();
  SettlePart();
}

std::vector<std::string> Hands::MachineNews() { return {}; }
