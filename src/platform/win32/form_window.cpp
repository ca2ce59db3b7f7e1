// A form's window: made from the template with menu, accelerators and fonts, and its messages.
#include <utility>

#include "platform/win32/internals.h"
#include "platform/win32/surface_work.h"
#include "platform/win32/wide.h"
#include "resource.h"

namespace {

constexpr UINT kActivated = WM_APP;      // Form_Activate is due
constexpr UINT kScaled = WM_APP + 1;     // the system is done with scaling the form
constexpr UINT kDroppedUp = WM_APP + 2;  // a drop-down's list was closed; its id

void InitControlsOnce() {
  static const bool kDone = [] {
    RegisterSurfaceClass();
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES};
    return InitCommonControlsEx(&classes) != FALSE;
  }();
  (void)kDone;
}

void GiveIcon(HWND window, int size, WPARAM which) {
  HANDLE icon = LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDI_Program), IMAGE_ICON, GetSystemMetrics(size),
                           GetSystemMetrics(size), LR_SHARED);
  if (icon != nullptr) SendMessageW(window, WM_SETICON, which, reinterpret_cast<LPARAM>(icon));
}

// The system makes no form larger than the screen, with controls beyond its edge; what they follow is the template's
// size.
void TakeTemplateSize(HWND form, HINSTANCE program, int template_id) {
  struct Header {  // of an extended template, as far as it is read here
    WORD Version, Signature;
    DWORD HelpId, ExtendedStyle, Style;
    WORD Items;
    short Left, Top, Width, Height;
  };
  HRSRC place = FindResourceW(program, MAKEINTRESOURCEW(template_id), RT_DIALOG);
  const auto* header = static_cast<const Header*>(LockResource(LoadResource(program, place)));
  if (header == nullptr || (header->Style & WS_THICKFRAME) == 0) return;
  RECT rect{0, 0, header->Width, header->Height};
  MapDialogRect(form, &rect);
  AdjustWindowRectExForDpi(&rect, header->Style, GetMenu(form) != nullptr, header->ExtendedStyle,
                           GetDpiForWindow(form));
  SetWindowPos(form, nullptr, 0, 0, rect.right - rect.left, rect.bottom - rect.top,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

void Form::Peer::Make(int template_id) {
  InitControlsOnce();
  Template = template_id;
  const HINSTANCE program = GetModuleHandleW(nullptr);
  const Form* below = TopmostForm();
  Window =
      CreateDialogParamW(program, MAKEINTRESOURCEW(template_id), below == nullptr ? nullptr : below->PeerOf().Window,
                         &Procedure, reinterpret_cast<LPARAM>(this));
  if (Window == nullptr) Fault("There is no dialog template " + std::to_string(template_id));
  TakeTemplateSize(Window, program, template_id);
  Accelerators = LoadAcceleratorsW(program, MAKEINTRESOURCEW(template_id));
  AddMenu();
  if ((GetWindowLongW(Window, GWL_STYLE) & DS_MODALFRAME) == 0) {
    GiveIcon(Window, SM_CXICON, ICON_BIG);
    GiveIcon(Window, SM_CXSMICON, ICON_SMALL);
  }
  Sizes.Begin(Window);
}

// The menu of the template's number, where the template itself names none.
void Form::Peer::AddMenu() {
  if (GetMenu(Window) != nullptr) return;
  HMENU menu = LoadMenuW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(Template));
  if (menu == nullptr) return;
  RECT before{};
  GetClientRect(Window, &before);
  SetMenu(Window, menu);
  RECT after{};
  GetClientRect(Window, &after);
  RECT whole{};
  GetWindowRect(Window, &whole);
  SetWindowPos(Window, nullptr, 0, 0, whole.right - whole.left, whole.bottom - whole.top + before.bottom - after.bottom,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

HFONT Form::Peer::Bold() {
  if (BoldFont == nullptr) {
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(Window, WM_GETFONT, 0, 0)), sizeof font, &font);
    font.lfWeight = FW_BOLD;
    BoldFont = CreateFontIndirectW(&font);
  }
  return BoldFont;
}

// After scaling: the system gave every control the new plain font.
void Form::Peer::RemakeFonts() {
  HFONT old = std::exchange(BoldFont, nullptr);
  for (const auto& [id, control] : Controls) {
    if (control->PeerOf().Bold) control->PeerOf().Send(WM_SETFONT, reinterpret_cast<WPARAM>(Bold()), TRUE);
  }
  if (old != nullptr) DeleteObject(old);
}

INT_PTR CALLBACK Form::Peer::Procedure(HWND window, UINT message, WPARAM first, LPARAM second) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(window, DWLP_USER, second);
    return FALSE;
  }
  Peer* peer = reinterpret_cast<Peer*>(GetWindowLongPtrW(window, DWLP_USER));
  if (peer == nullptr || peer->Window == nullptr) return FALSE;
  bool handled = false;
  LRESULT result = 0;
  peer->Guard([&] { handled = peer->Handle(message, first, second, result); });
  if (handled) SetWindowLongPtrW(window, DWLP_MSGRESULT, result);
  return handled ? TRUE : FALSE;
}

bool Form::Peer::Handle(UINT message, WPARAM first, LPARAM second, LRESULT& result) {
  switch (message) {
    case WM_COMMAND:
      Command(LOWORD(first), HIWORD(first));
      return true;
    case WM_NOTIFY: {
      const NMHDR& header = *reinterpret_cast<const NMHDR*>(second);
      Control* control = Find(static_cast<int>(header.idFrom));
      if (control != nullptr && control->PeerOf().Window == header.hwndFrom) control->PeerOf().Notified(header);
      return false;
    }
    case WM_ACTIVATE:
      if (LOWORD(first) != WA_INACTIVE) {
        ToActivate = true;
        PostMessageW(Window, kActivated, 0, 0);
      }
      return false;
    case kActivated:
      if (!Appearing) Activate();
      return true;
    case kDroppedUp:
      if (Control* control = Find(static_cast<int>(first))) control->PeerOf().DroppedUp();
      return true;
    case WM_CLOSE:
      CloseBox();
      return true;
    case WM_QUERYENDSESSION:
      result = FALSE;  // stays when a handler throws
      result = MayShutDown() ? TRUE : FALSE;
      return true;
    case WM_SIZE:
      Sizes.Arrange();
      return false;
    case WM_GETMINMAXINFO:
      Sizes.Limit(*reinterpret_cast<MINMAXINFO*>(second));
      return false;
    case WM_DPICHANGED:
      Sizes.BeginScaling(HIWORD(first));
      PostMessageW(Window, kScaled, 0, 0);
      return false;  // the dialog manager scales
    case kScaled:
      Sizes.EndScaling();
      RemakeFonts();
      return true;
    default:
      return false;
  }
}

// From a control, a menu entry, an accelerator, or Enter and Esc.
void Form::Peer::Command(int id, int code) {
  if (Control* control = Find(id)) {
    control->PeerOf().Commanded(code);
    if (code == CBN_CLOSEUP && control->PeerOf().DropsDown()) {
      PostMessageW(Window, kDroppedUp, static_cast<WPARAM>(id), 0);
    }
  } else if (id == IDOK) {
    Raise(Self->EnterKey);
  } else if (id == IDCANCEL) {
    Raise(Self->EscapeKey);
  } else if (Self->MenuEnabled(id)) {
    const std::function<void(int)> menu_click = Self->MenuClick;
    if (menu_click) menu_click(id);
  }
}

// From the close box, or from the task bar, which lets the user close a form that a dialog disables.
void Form::Peer::CloseBox() {
  if (!IsWindowEnabled(Window)) {
    SetForegroundWindow(GetLastActivePopup(Window));
    return;
  }
  Control* cancel = Find(IDCANCEL);
  if (Modal && cancel != nullptr && cancel->PeerOf().TakesFocus()) {
    cancel->PeerOf().Commanded(BN_CLICKED);
  } else {
    Unload(UnloadMode::ControlMenu);
  }
}

bool Form::Peer::MayShutDown() {
  if (!Shown || Closed) return true;
  bool cancel = false;
  Self->Form_QueryUnload(cancel, UnloadMode::WindowsShutdown);
  return Closed || !cancel;
}

void Form::SetShutdownReason(std::string_view reason) {
  if (reason.empty()) {
    ShutdownBlockReasonDestroy(peer_->Window);
  } else {
    ShutdownBlockReasonCreate(peer_->Window, Wide(reason).c_str());
  }
}

void Form::SetMenuEnabled(int id, bool enabled) {
  EnableMenuItem(GetMenu(peer_->Window), static_cast<UINT>(id), MF_BYCOMMAND | (enabled ? MF_ENABLED : MF_GRAYED));
}

bool Form::MenuEnabled(int id) const {
  const UINT state = GetMenuState(GetMenu(peer_->Window), static_cast<UINT>(id), MF_BYCOMMAND);
  return state != static_cast<UINT>(-1) && (state & (MF_GRAYED | MF_DISABLED)) == 0;
}

void Form::SetMenuText(int id, std::string_view text) {
  std::string& shown = peer_->MenuTexts[id];
  if (shown == text) return;
  shown = text;
  std::wstring words = Wide(text);
  MENUITEMINFOW entry{};
  entry.cbSize = sizeof entry;
  entry.fMask = MIIM_STRING;
  entry.dwTypeData = words.data();
  SetMenuItemInfoW(GetMenu(peer_->Window), static_cast<UINT>(id), FALSE, &entry);
}

std::string Form::MenuText(int id) const {
  const auto found = peer_->MenuTexts.find(id);
  return found == peer_->MenuTexts.end() ? std::string() : found->second;
}

void Form::SetMenuChecked(int id, bool checked) {
  CheckMenuItem(GetMenu(peer_->Window), static_cast<UINT>(id), MF_BYCOMMAND | (checked ? MF_CHECKED : MF_UNCHECKED));
}

bool Form::MenuChecked(int id) const {
  const UINT state = GetMenuState(GetMenu(peer_->Window), static_cast<UINT>(id), MF_BYCOMMAND);
  return state != static_cast<UINT>(-1) && (state & MF_CHECKED) != 0;
}
