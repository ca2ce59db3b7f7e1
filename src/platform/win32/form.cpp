// The life of a form: made from its template, shown, run in its message loop, and gone.
#include "platform/form.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <utility>

#include "platform/win32/internals.h"
#include "platform/win32/keys.h"
#include "platform/win32/wide.h"

std::vector<Form*>& OpenForms() {
  static std::vector<Form*> forms;
  return forms;
}

Form* TopmostForm() { return OpenForms().empty() ? nullptr : OpenForms().back(); }

namespace {

std::optional<Key> KeyOf(const MSG& message) {
  if (message.message != WM_KEYDOWN || GetKeyState(VK_CONTROL) < 0 || GetKeyState(VK_MENU) < 0) return std::nullopt;
  return KeyOfCode(message.wParam);
}

bool IsRepeated(const MSG& message) { return (HIWORD(message.lParam) & KF_REPEAT) != 0; }

// True when the form took the key.
bool TellKey(Form::Peer& peer, const MSG& message) {
  const std::optional<Key> key = KeyOf(message);
  if (key == Key::Help) {
    if (!IsRepeated(message)) peer.Guard([&] { Raise(peer.Self->HelpKey); });
    return true;
  }
  const std::function<bool(Key)> key_down = peer.Self->KeyDown;
  if (!key || !key_down) return false;
  bool taken = false;
  peer.Guard([&] { taken = key_down(*key); });
  return taken;
}

// Natively, the wheel selects another entry of any closed drop-down. Asked here, since the messages of drop-downs take
// no detour.
bool TurnsDropDownUnasked(const Form::Peer& form, const MSG& message) {
  if (message.message != WM_MOUSEWHEEL) return false;
  for (HWND window : {message.hwnd, GetParent(message.hwnd)}) {  // the edit field is a window within
    const Control* control = form.Find(GetDlgCtrlID(window));
    if (control == nullptr || control->PeerOf().Window != window || !control->PeerOf().DropsDown()) continue;
    const Control::Peer& peer = control->PeerOf();
    if (peer.Send(CB_GETDROPPEDSTATE) != FALSE) return false;
    return peer.What == Control::Peer::Kind::DropDownList || !control->HasFocus();
  }
  return false;
}

}  // namespace

std::optional<Key> KeyOfCode(WPARAM code) {
  switch (code) {
    case VK_SPACE:
      return Key::Space;
    case VK_LEFT:
      return Key::Left;
    case VK_RIGHT:
      return Key::Right;
    case VK_UP:
      return Key::Up;
    case VK_DOWN:
      return Key::Down;
    case VK_PRIOR:
      return Key::PageUp;
    case VK_NEXT:
      return Key::PageDown;
    case VK_HOME:
      return Key::Home;
    case VK_END:
      return Key::End;
    case VK_F1:
      return Key::Help;
    default:
      return std::nullopt;
  }
}

void Dispatch(MSG& message) {
  if (const Form* form = TopmostForm()) {
    Form::Peer& peer = form->PeerOf();
    const bool takes_keys = GetActiveWindow() == peer.Window && IsWindowEnabled(peer.Window);
    if (takes_keys && peer.Accelerators != nullptr &&
        TranslateAcceleratorW(peer.Window, peer.Accelerators, &message) != 0) {
      return;
    }
    if (takes_keys && TellKey(peer, message)) return;
    if (TurnsDropDownUnasked(peer, message)) return;
    if (IsDialogMessageW(peer.Window, &message)) return;
  }
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

void RethrowCarried() {
  const std::vector<Form*> forms = OpenForms();
  std::for_each(forms.rbegin(), forms.rend(), [](const Form* form) { form->PeerOf().RethrowCarried(); });
}

void ReactivateTopmost() {
  Form* form = TopmostForm();
  if (form == nullptr) return;
  form->PeerOf().GiveFocusBack();
  form->PeerOf().Guard([form] { form->PeerOf().Activate(); });
}

void Fault(const std::string& what) {
  std::fprintf(stderr, "%s\n", what.c_str());
  OutputDebugStringW(Wide(what + "\r\n").c_str());
  std::abort();
}

Form::Form(int template_id) : peer_(std::make_unique<Peer>()) {
  peer_->Self = this;
  peer_->Make(template_id);
}

Form::~Form() {
  peer_->Gone();
  peer_->TakesDrops.reset();
  SetWindowLongPtrW(peer_->Window, DWLP_USER, 0);
  DestroyWindow(peer_->Window);
  if (peer_->BoldFont != nullptr) DeleteObject(peer_->BoldFont);
}

void Form::ShowModal() {
  Form* const owner = TopmostForm();
  peer_->Modal = true;
  std::exception_ptr failure;
  try {
    peer_->Appear(owner);
    peer_->Loop();
  } catch (...) {
    failure = std::current_exception();
  }
  peer_->Gone();
  if (owner != nullptr && owner == TopmostForm()) ReactivateTopmost();
  if (failure) std::rethrow_exception(failure);
}

void Form::PlaceBelow(const Control& control) { peer_->Below = &control; }

void Form::Show() {
  peer_->Modal = false;
  peer_->Appear(nullptr);
}

void Form::RunUntilClosed() { peer_->Loop(); }

void Form::Close() { peer_->Unload(UnloadMode::Code); }
bool Form::Closed() const { return peer_->Closed; }
bool Form::Covered() const { return peer_->Shown && TopmostForm() != this; }

std::string Form::Caption() const { return TextOfWindow(peer_->Window); }
void Form::SetCaption(std::string_view caption) { SetWindowTextW(peer_->Window, Wide(caption).c_str()); }

void Form::Later(Event event) {
  peer_->Deferred.push_back(std::move(event));
  PostMessageW(peer_->Window, WM_NULL, 0, 0);  // wakes the message loop
}

void Form::Anchor(Control& control, const Follow& follow) { peer_->Sizes.Anchor(control.PeerOf().Window, follow); }
void Form::MayShrink(int units) { peer_->Sizes.MayShrink(units); }
void Form::RemoveRows(const Control& first, const Control& next) {
  peer_->Sizes.RemoveRows(first.PeerOf().Window, next.PeerOf().Window);
}

Control* Form::Peer::Find(int id) const {
  const auto found = Controls.find(id);
  return found == Controls.end() ? nullptr : found->second;
}

// A form that could not be loaded is not there.
void Form::Peer::Load() {
  Closed = false;
  ToActivate = false;
  try {
    Self->Form_Load();
  } catch (...) {
    Closed = true;
    throw;
  }
}

// Runs Form_Load and shows the form; the one below is disabled first, so that it never looks alive.
void Form::Peer::Appear(Form* owner) {
  Load();
  if (Closed) return;
  HWND owner_window = owner == nullptr ? nullptr : owner->PeerOf().Window;
  Place(owner_window);
  if (Modal) {
    SetWindowLongPtrW(Window, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner_window));
    if (owner != nullptr && IsWindowEnabled(owner_window)) {
      Disabled = owner;
      EnableWindow(owner_window, FALSE);
    }
  }
  if (Self->MayDrop) TakeDrops();
  OpenForms().push_back(Self);
  Shown = true;
  Appearing = true;
  ShowWindow(Window, Stood && Stood->Maximized ? SW_SHOWMAXIMIZED : Modal ? SW_SHOW : SW_SHOWDEFAULT);
  if (!IsWindowVisible(Window)) ShowWindow(Window, SW_SHOW);
  SetActiveWindow(Window);
  if (!Modal) SetForegroundWindow(Window);
  GiveFirstFocus();
  Appearing = false;
  UpdateWindow(Window);
  if (Focus != nullptr) Raise(Focus->GotFocus);
  Activate();
}

// The control that Form_Load chose, or the first one.
void Form::Peer::GiveFirstFocus() {
  HWND first = Focus != nullptr && Focus->PeerOf().TakesFocus() ? Focus->PeerOf().Window
                                                                : GetNextDlgTabItem(Window, nullptr, FALSE);
  if (first == nullptr) return;
  SendMessageW(Window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first), TRUE);
  Focus = Find(GetDlgCtrlID(first));
}

void Form::Peer::Loop() {
  if (Closed) return;
  ++Runs;
  struct Scope {
    bool& Flag;
    bool Before;
    ~Scope() { Flag = Before; }
  } scope{Running, std::exchange(Running, true)};
  while (!Closed) {
    RethrowCarried();
    MSG message{};
    if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
      // The program is to end: the loops below must see it too.
      if (Modal) PostQuitMessage(static_cast<int>(message.wParam));
      Gone();
      return;
    }
    Dispatch(message);
    RunDeferred();
  }
  RethrowCarried();
}

void Form::Peer::RunDeferred() {
  if (Deferred.empty() || GetCapture() != nullptr || GetKeyState(VK_LBUTTON) < 0) return;
  for (const Event& event : std::exchange(Deferred, {})) Raise(event);
}

void Form::Peer::Unload(UnloadMode mode) {
  if (Closed) return;
  bool cancel = false;
  Self->Form_QueryUnload(cancel, mode);
  if (cancel || Closed) return;
  Self->Form_Unload();
  if (Modal) {
    Closed = true;  // leaves the screen when ShowModal returns
  } else {
    Gone();
  }
  PostMessageW(Window, WM_NULL, 0, 0);  // wakes the message loop
}

void Form::Peer::Gone() {
  Closed = true;
  std::vector<Form*>& open = OpenForms();
  open.erase(std::remove(open.begin(), open.end(), Self), open.end());
  // Before hiding: otherwise the system would look for another program's window to activate.
  if (Form* below = std::exchange(Disabled, nullptr)) {
    EnableWindow(below->PeerOf().Window, TRUE);
    if (GetActiveWindow() == Window) SetActiveWindow(below->PeerOf().Window);
  }
  if (std::exchange(Shown, false)) ShowWindow(Window, SW_HIDE);
  // The form may outlive its owner, with which Windows would destroy it.
  if (Modal) SetWindowLongPtrW(Window, GWLP_HWNDPARENT, 0);
}

void Form::Peer::Activate() {
  if (!Shown || Closed || !std::exchange(ToActivate, false)) return;
  if (IsWindowEnabled(Window)) Self->Form_Activate();
}

void Form::Peer::GiveFocusBack() const {
  if (GetActiveWindow() != Window || Focus == nullptr || !Focus->PeerOf().TakesFocus()) return;
  const HWND now = GetFocus();
  const HWND due = Focus->PeerOf().Window;
  if (now != due && !IsChild(due, now)) ::SetFocus(due);
}

// Told when another control gets the focus, so that boxes and forms in between do not count as leaving.
void Form::Peer::FocusMoved(Control* control) {
  if (!Shown || Appearing || control == Focus) return;
  Control* const left = std::exchange(Focus, control);
  if (left != nullptr) Raise(left->LostFocus);
  if (control != nullptr && Focus == control) Raise(control->GotFocus);
}

// The first failure counts; what follows from it is dropped.
void Form::Peer::Carry(std::exception_ptr failure) {
  if (!Carried) Carried = std::move(failure);
  PostMessageW(Window, WM_NULL, 0, 0);  // wakes the message loop
}

void Form::Peer::RethrowCarried() {
  if (Carried) std::rethrow_exception(std::exchange(Carried, nullptr));
}
