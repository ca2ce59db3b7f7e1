// A person's hands on the in-memory platform: straight on the peers.
#include "support/hands.h"

#include <algorithm>

#include "platform/headless/internals.h"
#include "platform/headless/machine.h"
#include "platform/references.h"
#include "support/files.h"
#include "support/listener.h"
#include "support/page_text.h"

namespace {

using Kind = Control::Peer::Kind;

constexpr int kEnterButton = 1, kEscapeButton = 2;
constexpr int kCellsOfANotch = 3;

std::string Asked(const FileChoice& choice) {
  std::string words = choice.Caption + " | " + choice.PatternTitle + " (" + choice.Pattern + ")";
  if (!choice.Name.empty()) words += " | " + choice.Name;
  if (!choice.Folder.empty() && choice.Folder != TestFiles::Folder()) words += " | in " + choice.Folder;
  return words + (choice.ForWriting ? " | to write" : "");
}

// The handler is copied first: it may change what it stands in.
template <typename Handler, typename... Arguments>
auto Raise(const Handler& handler, const Arguments&... arguments) {
  const Handler kept = handler;
  using Result = decltype(kept(arguments...));
  return kept ? kept(arguments...) : Result();
}

const Surface* FocusedSurface(const Form& form) { return dynamic_cast<const Surface*>(form.PeerOf().Focus); }

}  // namespace

void Hands::Begin() {
  Stage& stage = CurrentStage();
  stage.Message = [&stage](const std::string& text, const std::string& caption, Buttons buttons, Icon icon) {
    return Coming::Message(text, caption, buttons, icon, stage.Default);
  };
  stage.Input = Coming::Input;
  stage.File = [](const FileChoice& choice) { return Coming::FileDialog(Asked(choice)); };
  stage.Use = [](Form& form) {
    Coming::FormToUse(form);
    form.PeerOf().Closed = true;
  };
}

void Hands::End() { CurrentStage() = Stage(); }

Hands::Sight Hands::LookAt(const Control& control) {
  const Control::Peer& peer = control.PeerOf();
  const std::pair marks(peer.MarkFirst, peer.MarkLast);
  Sight sight{peer.Text, peer.Enabled, peer.Visible, peer.Bold, control.HasFocus(), {}, peer.Selected, {}, marks};
  for (const ListEntry& entry : peer.Entries) {
    const std::size_t position = sight.Entries.size();
    sight.Entries.push_back(entry.Text);
    if (position < peer.Ticks.size() && peer.Ticks[position]) sight.Ticked.push_back(entry.Text);
  }
  const auto* list = dynamic_cast<const RowList*>(&control);
  for (int row = 0; list != nullptr && row < list->Rows(); ++row) {
    sight.Entries.push_back(list->CellText(row, 0));
    for (int column = 1; column < peer.Columns; ++column) sight.Entries.back() += " / " + list->CellText(row, column);
  }
  return sight;
}

Page Hands::PageOn(const Surface& surface) { return surface.PeerOf().Shown; }

int Hands::BarOn(const Surface& surface, Surface::Bar bar) {
  const SurfaceBar& state = surface.PeerOf().Bars[bar];
  return state.Range > state.Shown ? state.Position : -1;
}

std::vector<Form*> Hands::OpenForms() { return ::OpenForms(); }
int Hands::TemplateOf(const Form& form) { return form.PeerOf().Template; }
std::map<int, Follow> Hands::GrowthOf(const Form& form) { return form.PeerOf().Follows; }
const std::map<int, Control*>& Hands::ControlsOf(const Form& form) { return form.PeerOf().Controls; }

void Hands::MoveTo(Control& control) { control.SetFocus(); }

void Hands::Type(Control& box, const std::string& text) {
  Control::Peer& peer = box.PeerOf();
  peer.ChangeText(peer.TextLimit > 0 ? text.substr(0, WholeBytes(text, static_cast<std::size_t>(peer.TextLimit)))
                                     : text);
}

void Hands::Click(Control& control) { control.PeerOf().Click(); }
void Hands::Select(ListControl& list, int position) { list.PeerOf().ChangeSelection(position); }
void Hands::TurnOver(CheckList& list, int position) { list.PeerOf().ChangeTick(position, !list.Checked(position)); }
void Hands::Choose(Form& form, int item) { Raise(form.MenuClick, item); }

// Enter goes to the button that has the focus; else it and Esc to the one of their id; without one, the form is told.
void Hands::Press(Form& form, const KeyPress& key) {
  if (key.What == Key::Help) return Raise(form.HelpKey);
  const bool enter = key.What == Key::Enter;
  if (enter || key.What == Key::Escape) {
    const auto is_button = [](const Control* control) {
      return control != nullptr && control->PeerOf().What == Kind::Button;
    };
    Control* button = form.PeerOf().Focus;
    if (!enter || !is_button(button)) button = form.PeerOf().Find(enter ? kEnterButton : kEscapeButton);
    if (!is_button(button)) return Raise(enter ? form.EnterKey : form.EscapeKey);
    if (button->Enabled() && button->Visible()) button->PeerOf().Click();
    return;
  }
  // What a control does with another key is its own affair, and none here but a surface does anything.
  const bool taken = !key.Control && Raise(form.KeyDown, key.What);
  const Surface* surface = FocusedSurface(form);
  if (!taken && surface != nullptr) Raise(surface->KeyDown, key);
}

void Hands::PressControl(Form& form, char letter) {
  if (const Surface* surface = FocusedSurface(form)) Raise(letter == 'A' ? surface->SelectAllKey : surface->CopyKey);
}

void Hands::Drag(Surface& surface, Cell from, Cell to, bool shift) {
  Raise(surface.Mouse, MousePress{MousePress::Act::Press, from, shift});
  if (from != to) Raise(surface.Mouse, MousePress{MousePress::Act::Drag, to, shift});
}

void Hands::DoubleClick(Control& control, Cell at) {
  if (const auto* picture = dynamic_cast<Picture*>(&control)) return Raise(picture->DoubleClick);
  if (auto* list = dynamic_cast<RowList*>(&control)) return list->Select(at.Row), Raise(list->DoubleClick);
  const auto& surface = dynamic_cast<Surface&>(control);
  Raise(surface.Mouse, MousePress{MousePress::Act::Press, at});
  Raise(surface.Mouse, MousePress{MousePress::Act::DoubleClick, at});
}

void Hands::TurnWheel(Control& control, int notches, bool shift, bool control_key) {
  const auto* surface = dynamic_cast<Surface*>(&control);
  if (surface == nullptr) return control.PeerOf().TurnWheel(notches);
  Raise(surface->Wheel, WheelTurn{control_key ? notches : notches * kCellsOfANotch, shift, control_key});
}

void Hands::PageBar(Surface& surface, Surface::Bar bar, int pages) {
  const SurfaceBar& state = surface.PeerOf().Bars[bar];
  const int last = std::max(0, state.Range - state.Shown);
  const int position = std::clamp(state.Position + pages * std::max(1, state.Shown - 1), 0, last);
  if (position != state.Position) Raise(surface.Scroll, bar, position);
}

void Hands::Close(Form& form) {
  Form::Peer& peer = form.PeerOf();
  Control* button = peer.Find(kEscapeButton);
  if (peer.Modal && button != nullptr && button->PeerOf().TakesFocus()) return button->PeerOf().Click();
  peer.Unload(UnloadMode::ControlMenu);
}

bool Hands::Drop(Form& form, const std::string& file) {
  const bool takes = !form.Covered() && Raise(form.MayDrop, file);
  if (takes) form.Later([&form, file] { Raise(form.Drop, file); });
  return takes;
}

void Hands::ShutDown(Form& form) { form.PeerOf().Unload(UnloadMode::WindowsShutdown); }

void Hands::Settle() {
  if (!::OpenForms().empty()) ::OpenForms().back()->PeerOf().RunDeferred();
}

std::vector<std::string> Hands::MachineNews() {
  std::vector<std::string> news;
  for (const std::string& command_line : Machine::StartedPrograms()) news.push_back("starts " + command_line);
  for (const Page& page : Machine::PrintedPages()) {
    news.push_back("prints " + Joined(RowsOf(page), " / ") + (page.Rules.empty() ? "" : " lines " + RulesOf(page)));
  }
  return news;
}
