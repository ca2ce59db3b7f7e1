// What all controls share on Windows: binding to the template's window, text, state, focus.
#include "platform/control.h"

#include <algorithm>
#include <utility>

#include "platform/win32/internals.h"
#include "platform/win32/silence.h"
#include "platform/win32/surface_work.h"
#include "platform/win32/wide.h"

namespace {

constexpr int kNoLimit = 0;
constexpr int kVisibleEntries = 16;
constexpr WPARAM kControlA = 1;

// As long as there is nothing to scroll, the scroll bar looks the same whatever the text.
bool Scrolls(HWND box) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_PAGE;
  GetScrollInfo(box, SB_VERT, &info);
  return info.nMax - info.nMin >= static_cast<int>(info.nPage);
}

// By itself, the box draws its old lines, its new ones and its scroll bar at each step of taking the text, which takes
// most of the time of showing another thing. Only for a visible box: drawing is the same to the system as being shown.
void SetTextDrawnOnce(HWND box, const wchar_t* text) {
  const bool draw_frame = GetUpdateRect(box, nullptr, FALSE) != FALSE || Scrolls(box);
  DefWindowProcW(box, WM_SETREDRAW, FALSE, 0);
  SetWindowTextW(box, text);
  DefWindowProcW(box, WM_SETREDRAW, TRUE, 0);
  if (draw_frame || Scrolls(box)) {
    RedrawWindow(box, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
  } else {
    RedrawWindow(box, nullptr, nullptr, RDW_VALIDATE | RDW_NOFRAME);
    RedrawWindow(box, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE);
  }
}

}  // namespace

std::string TextOfWindow(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
  // The length told may be more than there is.
  const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
  text.resize(static_cast<std::size_t>(length));
  return Bytes(text);
}

Control::Control(Form& owner, int id, Kind kind) : peer_(std::make_unique<Peer>()) {
  Form::Peer& form = owner.PeerOf();
  Peer& peer = *peer_;
  peer.Self = this;
  peer.Owner = &owner;
  peer.Id = id;
  peer.What = kind;
  peer.Window = GetDlgItem(form.Window, id);
  const std::string name = "Form " + std::to_string(form.Template) + ", control " + std::to_string(id);
  if (peer.Window == nullptr) Fault(name + ": the template has none");
  if (!form.Controls.emplace(id, this).second) Fault(name + ": bound twice");
  // Lists tell all there is to know; a detour for each of their messages would slow down filling them.
  if (!peer.HoldsEntries()) {
    // By hand, for the common controls' own way asks for a window property at every message.
    SetWindowLongPtrW(peer.Window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&peer));
    peer.Native = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(peer.Window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Peer::Procedure)));
  }
  if (kind == Kind::Surface) peer.Work = std::make_shared<SurfaceWork>(peer);
  if (kind == Kind::Label || kind == Kind::Picture) peer.ChangeStyle(SS_NOTIFY, 0);
  if (kind == Kind::TextBox) peer.Send(EM_SETLIMITTEXT, kNoLimit);
  if (kind == Kind::ComboBox) peer.Send(CB_LIMITTEXT, kNoLimit);
  if (peer.DropsDown()) peer.Send(CB_SETMINVISIBLE, kVisibleEntries);
  if (kind == Kind::CheckList) {
    LVCOLUMNW column{};
    peer.Send(LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    const DWORD style = LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER;
    peer.Send(LVM_SETEXTENDEDLISTVIEWSTYLE, style, style);
    peer.After(WM_SIZE);
  }
  if (kind == Kind::RowList) peer.BeginRowList();
}

Control::~Control() {
  Form::Peer& form = peer_->Owner->PeerOf();
  // The window may be gone, and its handle another one's.
  const bool is_ours = reinterpret_cast<Peer*>(GetWindowLongPtrW(peer_->Window, GWLP_USERDATA)) == peer_.get();
  if (peer_->Native != nullptr && is_ours) {
    SetWindowLongPtrW(peer_->Window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(peer_->Native));
  }
  form.Controls.erase(peer_->Id);
  if (form.Focus == this) form.Focus = nullptr;
}

int Control::Id() const { return peer_->Id; }
Form& Control::Owner() const { return *peer_->Owner; }

std::string Control::Text() const {
  if (peer_->What == Kind::DropDownList) {
    return peer_->Selected < 0 ? "" : peer_->Entries[static_cast<std::size_t>(peer_->Selected)].Text;
  }
  return TextOfWindow(peer_->Window);
}

void Control::SetText(std::string_view text) {
  Peer& peer = *peer_;
  if (peer.What == Kind::DropDownList) {
    const auto entry = std::find_if(peer.Entries.begin(), peer.Entries.end(),
                                    [text](const ListEntry& each) { return each.Text == text; });
    const bool has_it = entry != peer.Entries.end();
    static_cast<DropDownList*>(this)->Select(has_it ? static_cast<int>(entry - peer.Entries.begin()) : -1);
    return;
  }
  if (Text() == text) return;
  {
    const Silence silence(peer);
    // What the program shows is data: an ampersand in it is no access key.
    if (peer.What == Kind::Label) peer.ChangeStyle(SS_NOPREFIX, 0);
    if (peer.MultiLine() && Visible()) {
      SetTextDrawnOnce(peer.Window, Wide(text).c_str());
    } else {
      SetWindowTextW(peer.Window, Wide(text).c_str());
    }
    peer.Told = Text();
  }
  if (peer.What == Kind::TextBox) Raise(static_cast<TextBox*>(this)->Change);
  if (peer.What == Kind::ComboBox) {
    SendMessageW(peer.DropList(), LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    peer.Selected = -1;
    Raise(static_cast<ComboBox*>(this)->Change);
  }
}

bool Control::Enabled() const { return IsWindowEnabled(peer_->Window) != FALSE; }

void Control::SetEnabled(bool enabled) {
  if (enabled == Enabled()) return;
  const bool had_focus = !enabled && GetFocus() == peer_->Window;
  EnableWindow(peer_->Window, enabled ? TRUE : FALSE);
  // Without the focus anywhere, the keyboard would be dead.
  if (had_focus) SendMessageW(peer_->Owner->PeerOf().Window, WM_NEXTDLGCTL, 0, FALSE);
}

bool Control::Visible() const { return (GetWindowLongW(peer_->Window, GWL_STYLE) & WS_VISIBLE) != 0; }

void Control::SetVisible(bool visible) {
  if (visible == Visible()) return;
  if (!visible && HasFocus()) SendMessageW(peer_->Owner->PeerOf().Window, WM_NEXTDLGCTL, 0, FALSE);
  ShowWindow(peer_->Window, visible ? SW_SHOWNA : SW_HIDE);
}

void Control::SetFocus() {
  if (!peer_->TakesFocus()) return;
  Form::Peer& form = peer_->Owner->PeerOf();
  if (form.Shown && GetActiveWindow() == form.Window) {
    SendMessageW(form.Window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(peer_->Window), TRUE);
    form.RethrowCarried();
  } else if (form.Shown) {
    form.FocusMoved(this);  // gets it when the form becomes the active one
  } else {
    form.Focus = this;
  }
}

bool Control::HasFocus() const {
  const Form::Peer& form = peer_->Owner->PeerOf();
  return TopmostForm() == peer_->Owner && form.Focus == this;
}

bool Control::Peer::TakesInput() const { return Self->Visible() && Self->Enabled(); }

bool Control::Peer::TakesFocus() const {
  if (What == Kind::Label && !static_cast<const Label*>(Self)->TabStop()) return false;
  return What != Kind::Picture && What != Kind::Frame && TakesInput();
}

bool Control::Peer::MultiLine() const {
  return What == Kind::TextBox && (GetWindowLongW(Window, GWL_STYLE) & ES_MULTILINE) != 0;
}

void Control::Peer::Mark(HWND edit, int first, int last) {
  const std::string text = TextOfWindow(edit);
  const auto position = [&text](int bytes) { return WidePosition(text, static_cast<std::size_t>(bytes)); };
  SendMessageW(edit, EM_SETSEL, position(first), static_cast<LPARAM>(position(last)));
}

void Control::Peer::ChangeStyle(DWORD add, DWORD remove) const {
  const LONG_PTR before = GetWindowLongPtrW(Window, GWL_STYLE);
  const LONG_PTR after = (before & ~static_cast<LONG_PTR>(remove)) | static_cast<LONG_PTR>(add);
  if (after != before) SetWindowLongPtrW(Window, GWL_STYLE, after);
}

LRESULT CALLBACK Control::Peer::Procedure(HWND window, UINT message, WPARAM first, LPARAM second) {
  Peer& peer = *reinterpret_cast<Peer*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  LRESULT result = 0;
  if (peer.Intercept(message, first, second, result)) return result;
  result = CallWindowProcW(peer.Native, window, message, first, second);
  Form::Peer& form = peer.Owner->PeerOf();
  if (message == WM_GETDLGCODE && peer.MultiLine()) {
    // Tab must not mark a whole note, which the next key would then delete.
    result &= ~static_cast<LRESULT>(DLGC_HASSETSEL);
    const MSG* key = reinterpret_cast<const MSG*>(second);
    const bool leaves = key != nullptr && (key->wParam == VK_TAB || key->wParam == VK_ESCAPE);
    if (leaves && key->message != WM_CHAR) result &= ~static_cast<LRESULT>(DLGC_WANTALLKEYS | DLGC_WANTTAB);
  } else if (message == WM_GETDLGCODE && peer.What == Kind::Label && peer.TakesFocus()) {
    result = DLGC_WANTCHARS;  // otherwise letters would be taken for access keys
  } else if (message == WM_SETFOCUS) {
    peer.After(message);
    form.Guard([&] { form.FocusMoved(peer.Self); });
  } else {
    peer.After(message);
  }
  return result;
}

bool Control::Peer::Intercept(UINT message, WPARAM first, LPARAM second, LRESULT& result) {
  if (What == Kind::Surface) return Work != nullptr && Work->Take(message, first, second, result);
  if (message == WM_PAINT) return Paint();
  if (message == WM_ERASEBKGND && What == Kind::Picture) {
    result = TRUE;
    return true;
  }
  if (message == WM_CHAR && first == kControlA && What == Kind::TextBox) {
    Send(EM_SETSEL, 0, -1);
    return true;
  }
  return false;
}

void Control::Peer::After(UINT message) {
  if (What == Kind::CheckList && message == WM_SIZE) {
    RECT inside{};
    GetClientRect(Window, &inside);
    Send(LVM_SETCOLUMNWIDTH, 0, MAKELPARAM(inside.right, 0));
  } else if (What == Kind::CheckList && message == WM_SETFOCUS) {
    // Natively no entry has the focus until an arrow key gives it to the first: the space bar would do nothing.
    if (Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED) < 0) {
      LVITEMW item{};
      item.state = item.stateMask = LVIS_FOCUSED | LVIS_SELECTED;
      Send(LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&item));
    }
  } else if (What == Kind::RowList && message == WM_SIZE) {
    SizeColumns();
  } else if (What == Kind::Picture && message == WM_SIZE) {
    InvalidateRect(Window, nullptr, FALSE);
  } else if (What == Kind::Label && (message == WM_SETFOCUS || message == WM_KILLFOCUS)) {
    InvalidateRect(Window, nullptr, TRUE);
  } else if (What == Kind::Label && message == WM_PAINT && GetFocus() == Window && TakesFocus()) {
    RECT inside{};
    GetClientRect(Window, &inside);
    InflateRect(&inside, -1, -1);
    HDC target = GetDC(Window);
    DrawFocusRect(target, &inside);
    ReleaseDC(Window, target);
  } else if (What == Kind::Button && Back == ::BackColor::Marked) {
    // The native button draws these itself, not only when it is asked to paint.
    switch (message) {
      case WM_KILLFOCUS:
      case WM_ENABLE:
      case WM_SETTEXT:
      case WM_LBUTTONDOWN:
      case WM_LBUTTONUP:
      case WM_UPDATEUISTATE:
      case BM_SETSTATE:
      case BM_SETSTYLE:
        InvalidateRect(Window, nullptr, FALSE);
        break;
      default:
        break;
    }
  }
}
