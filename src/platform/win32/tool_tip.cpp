// Tool tips on Windows: one window a form, which watches the mouse over the controls that it was told of.
#include "platform/win32/internals.h"

namespace {

TTTOOLINFOA ToolOf(const Control::Peer& peer) {
  TTTOOLINFOA tool{};
  tool.cbSize = sizeof tool;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = peer.Owner->PeerOf().Window;
  tool.uId = reinterpret_cast<UINT_PTR>(peer.Window);
  return tool;
}

LRESULT Send(HWND tips, UINT message, WPARAM first, TTTOOLINFOA& tool) {
  return SendMessageA(tips, message, first, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace

HWND Form::Peer::Tips() {
  if (TipWindow == nullptr) {
    // Owned by the form, it goes with it.
    TipWindow = CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0,
                                0, 0, Window, nullptr, GetModuleHandleA(nullptr), nullptr);
  }
  return TipWindow;
}

void Control::SetToolTip(const std::string& text) {
  HWND tips = Owner().PeerOf().Tips();
  std::string kept = text;
  TTTOOLINFOA tool = ToolOf(PeerOf());
  Send(tips, TTM_DELTOOLA, 0, tool);
  if (text.empty()) return;
  tool.lpszText = kept.data();
  Send(tips, TTM_ADDTOOLA, 0, tool);
}

std::string Control::ToolTip() const {
  HWND tips = Owner().PeerOf().TipWindow;
  if (tips == nullptr) return {};
  char text[256] = "";
  TTTOOLINFOA tool = ToolOf(PeerOf());
  tool.lpszText = text;
  Send(tips, TTM_GETTEXTA, sizeof text, tool);
  return text;
}
