// A person's hands on real windows.
#include "support/hands.h"

#include "platform/win32/internals.h"
#include "platform/win32/surface_work.h"

Hands::Sight Hands::LookAt(const Control& control) {
  const Control::Peer& peer = control.PeerOf();
  Sight sight;
  sight.Text = TextOfWindow(peer.Window);
  sight.Enabled = IsWindowEnabled(peer.Window) != FALSE;
  sight.Visible = control.Visible();
  LOGFONTA font{};
  GetObjectA(reinterpret_cast<HFONT>(peer.Send(WM_GETFONT)), sizeof font, &font);
  sight.Bold = font.lfWeight >= FW_BOLD;
  sight.Focused = GetFocus() == peer.Window || IsChild(peer.Window, GetFocus());
  if (peer.HoldsEntries()) sight.Selected = static_cast<int>(peer.Send(peer.DropsDown() ? CB_GETCURSEL : LB_GETCURSEL));
  HWND edit = peer.What == Control::Peer::Kind::ComboBox  ? peer.EditField()
              : peer.What == Control::Peer::Kind::TextBox ? peer.Window
                                                          : nullptr;
  DWORD from = 0, upto = 0;
  if (edit != nullptr) SendMessageA(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&upto));
  sight.Mark = {static_cast<int>(from), static_cast<int>(upto)};
  return sight;
}

bool Hands::Ticked(const CheckList& list, int position) {
  return list.PeerOf().Send(LVM_GETITEMSTATE, static_cast<WPARAM>(position), LVIS_STATEIMAGEMASK) ==
         INDEXTOSTATEIMAGEMASK(2);
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
const std::map<int, Control*>& Hands::ControlsOf(const Form& form) { return form.PeerOf().Controls; }

void Hands::ShutDown(Form& form) {
  SendMessageA(form.PeerOf().Window, WM_QUERYENDSESSION, 0, 0);
  RethrowCarried();
}

std::vector<std::string> Hands::StartedPrograms() { return {}; }
