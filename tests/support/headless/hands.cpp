// A person's hands on the in-memory platform: straight on the peers.
#include "support/hands.h"

#include "platform/headless/internals.h"
#include "platform/headless/machine.h"

Hands::Sight Hands::LookAt(const Control& control) {
  const Control::Peer& peer = control.PeerOf();
  return {peer.Text,
          peer.Enabled,
          peer.Visible,
          peer.Bold,
          control.HasFocus(),
          peer.Selected,
          {peer.MarkFirst, peer.MarkLast}};
}

bool Hands::Ticked(const CheckList& list, int position) { return list.Checked(position); }
Page Hands::PageOn(const Surface& surface) { return surface.PeerOf().Shown; }

int Hands::BarOn(const Surface& surface, Surface::Bar bar) {
  const SurfaceBar& state = surface.PeerOf().Bars[bar];
  return state.Range > state.Shown ? state.Position : -1;
}

std::vector<Form*> Hands::OpenForms() { return ::OpenForms(); }
int Hands::TemplateOf(const Form& form) { return form.PeerOf().Template; }
const std::map<int, Control*>& Hands::ControlsOf(const Form& form) { return form.PeerOf().Controls; }
void Hands::ShutDown(Form& form) { form.PeerOf().Unload(UnloadMode::WindowsShutdown); }
std::vector<std::string> Hands::StartedPrograms() { return Machine::StartedPrograms(); }
