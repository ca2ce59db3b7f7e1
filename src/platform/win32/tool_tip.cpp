// Tool tips on Windows: one window a form, which watches the mouse over the controls that it was told of.
#include "platform/win32/internals.h"
#include "platform/win32/wide.h"

namespace {

TTTOOLINFOW ToolOf(const Control::Peer& peer) {
  TTTOOLINFOW tool{};
  tool.cbSize = sizeof tool;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = peer.Owner->PeerOf().Window;
  tool.uId = reinterpret_cast<UINT_PTR>(peer.Window);
  return tool;
}

LRESULT Send(HWND tips, UINT message, WPARAM first, TTTOOLINFOW& tool) {
  return SendMessageW(tips, message, first, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace

HWND Form::Peer::Tips() {
  if (TipWindow == nullptr) {
    // Owned by the form, it goes with it.
    TipWindow = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0,
                                0, 0, Window, nullptr, GetModuleHandleW(nullptr), nullptr);
  }
  return TipWindow;
}

void Control::SetToolTip(const std::string& text) {
  HWND tips = Owner().PeerOf().Tips();
  std::wstring kept = Wide(text);
  TTTOOLINFOW tool = ToolOf(PeerOf());
  Send(tips, TTM_DELTOOLW, 0, tool);
  if (text.empty()) return;
  tool.lpszText = kept.data();
  Send(tips, TTM_ADDTOOLW, 0, tool);
}

std::string Control::ToolTip() const {
  HWND tips = Owner().PeerOf().TipWindow;
  if (tips == nullptr) return {};
  wchar_t text[1024] = L"";
  TTTOOLINFOW tool = ToolOf(PeerOf());
  tool.lpszText = text;
  Send(tips, TTM_GETTEXTW, std::size(text), tool);
  return Bytes(text);
}
