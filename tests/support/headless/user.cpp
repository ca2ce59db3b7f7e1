// A test's person on the in-memory platform: acts straight on the peers of the topmost form.
#include "support/user.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "platform/headless/internals.h"
#include "support/expectations.h"
#include "support/files.h"

namespace {

using Kind = Control::Peer::Kind;

void UseForm(Form& form) {
  const std::function<void()> acts = Expected().FormCame(form.PeerOf().Template, form.Caption());
  if (acts) {
    acts();
    if (!form.Closed()) Expected().FormLeftOpen(form.PeerOf().Template, form.Caption());
  }
  form.PeerOf().Closed = true;
}

// The form that a person can reach, or null, which fails the test.
Form* Topmost() {
  if (OpenForms().empty() || OpenForms().back()->Closed()) {
    ADD_FAILURE() << "No form is open";
    return nullptr;
  }
  return OpenForms().back();
}

// What an action set off for later.
void Settle() {
  if (!OpenForms().empty()) OpenForms().back()->PeerOf().RunDeferred();
}

// The control of that id on the topmost form, or null, which fails the test.
Control::Peer* Find(int id) {
  Form* form = Topmost();
  if (form == nullptr) return nullptr;
  Control* control = form->PeerOf().Find(id);
  if (control == nullptr) {
    ADD_FAILURE() << "Form " << form->PeerOf().Template << " has no control " << id;
    return nullptr;
  }
  return &control->PeerOf();
}

// The same, for acting: it must be one of these kinds, visible and enabled; the focus moves there.
Control::Peer* Reach(int id, std::initializer_list<Kind> kinds) {
  Control::Peer* peer = Find(id);
  if (peer == nullptr) return nullptr;
  if (kinds.size() != 0 && std::find(kinds.begin(), kinds.end(), peer->What) == kinds.end()) {
    ADD_FAILURE() << "Control " << id << " is of another kind";
    return nullptr;
  }
  if (!peer->Visible || !peer->Enabled) {
    ADD_FAILURE() << "Control " << id << " is " << (peer->Visible ? "disabled" : "hidden");
    return nullptr;
  }
  peer->Self->SetFocus();
  return peer;
}

int Position(const Control::Peer& peer, std::string_view entry) {
  const int position = peer.PositionOf(std::string(entry));
  if (position < 0) ADD_FAILURE() << "Control " << peer.Id << " has no entry \"" << entry << "\"";
  return position;
}

// Enter and Esc go to the button of that id; a form without one is told itself.
void PressOn(Form& form, int button_id, const Event& otherwise) {
  Control* button = form.PeerOf().Find(button_id);
  if (button == nullptr || button->PeerOf().What != Kind::Button) {
    const Event event = otherwise;
    if (event) event();
  } else if (button->Enabled() && button->Visible()) {
    button->PeerOf().Click();
  }
}

constexpr int kEnterButton = 1;
constexpr int kEscapeButton = 2;

}  // namespace

User::User() {
  Expected().Start();
  Stage& stage = CurrentStage();
  stage.Message = [](const std::string& text, const std::string& caption, Buttons buttons, Icon icon) {
    return Expected().MessageCame(text, caption, buttons, icon);
  };
  stage.Input = [](const std::string& prompt, const std::string& caption, const std::string& offered) {
    return Expected().InputCame(prompt, caption, offered);
  };
  stage.File = [](const FileChoice& choice) {
    std::string asked = choice.Caption + " | " + choice.PatternTitle + " (" + choice.Pattern + ")";
    if (!choice.Name.empty()) asked += " | " + choice.Name;
    if (!choice.Folder.empty() && choice.Folder != TestFiles::Folder()) asked += " | in " + choice.Folder;
    return Expected().FileDialogCame(choice.Caption, asked + (choice.ForWriting ? " | to write" : ""));
  };
  stage.Use = UseForm;
}

User::~User() {
  CurrentStage() = Stage();
  Expected().Finish();
}

void User::Types(int id, std::string_view text) {
  Control::Peer* peer = Reach(id, {Kind::TextBox, Kind::ComboBox});
  if (peer == nullptr) return;
  if (peer->ReadOnly) {
    ADD_FAILURE() << "Control " << id << " is read-only";
    return;
  }
  if (peer->TextLimit > 0) text = text.substr(0, static_cast<std::size_t>(peer->TextLimit));
  peer->ChangeText(std::string(text));
  Settle();
}

void User::Clicks(int id) {
  Control::Peer* peer = Reach(id, {Kind::Button, Kind::OptionButton, Kind::Label, Kind::Picture});
  if (peer != nullptr) peer->Click();
  Settle();
}

void User::Picks(int id, std::string_view entry) {
  Control::Peer* peer = Reach(id, {Kind::ListBox, Kind::ComboBox, Kind::DropDownList});
  if (peer == nullptr) return;
  const int position = Position(*peer, entry);
  if (position >= 0) peer->ChangeSelection(position);
  Settle();
}

void User::PicksAt(int id, int position) {
  Control::Peer* peer = Reach(id, {Kind::ListBox, Kind::ComboBox, Kind::DropDownList});
  if (peer == nullptr) return;
  if (position < 0 || position >= static_cast<int>(peer->Entries.size())) {
    ADD_FAILURE() << "Control " << id << " has no entry at position " << position;
    return;
  }
  peer->ChangeSelection(position);
  Settle();
}

void User::Ticks(int id, std::string_view entry) {
  Control::Peer* peer = Reach(id, {Kind::CheckList});
  if (peer == nullptr) return;
  const int position = Position(*peer, entry);
  if (position >= 0) peer->ChangeTick(position, !peer->Ticks[static_cast<std::size_t>(position)]);
  Settle();
}

void User::ChoosesMenu(int id) {
  Form* form = Topmost();
  if (form == nullptr) return;
  if (!form->MenuEnabled(id)) {
    ADD_FAILURE() << "Menu entry " << id << " is greyed";
    return;
  }
  const std::function<void(int)> menu_click = form->MenuClick;
  if (menu_click) menu_click(id);
}

void User::Presses(Key key) {
  Form* form = Topmost();
  if (form == nullptr) return;
  if (key == Key::Escape) {
    PressOn(*form, kEscapeButton, form->EscapeKey);
    return;
  }
  if (key == Key::Help) {
    const Event help_key = form->HelpKey;
    if (help_key) help_key();
    return;
  }
  if (key != Key::Enter) {
    // What a control does with such a key is its own affair, and none here but a surface does anything.
    const std::function<bool(Key)> key_down = form->KeyDown;
    const bool taken = key_down && key_down(key);
    const Control* focused = form->PeerOf().Focus;
    if (!taken && focused != nullptr && focused->PeerOf().What == Kind::Surface) Presses(KeyPress{key});
    return;
  }
  Control* focused = form->PeerOf().Focus;
  if (focused != nullptr && focused->PeerOf().What == Kind::Button && focused->PeerOf().TakesFocus()) {
    focused->PeerOf().Click();
  } else {
    PressOn(*form, kEnterButton, form->EnterKey);
  }
}

namespace {

constexpr int kCellsOfANotch = 3;

// The surface that has the focus, or null, which fails the test.
Surface* FocusedSurface() {
  const Form* form = Topmost();
  Control* focused = form == nullptr ? nullptr : form->PeerOf().Focus;
  if (focused != nullptr && focused->PeerOf().What == Kind::Surface) return static_cast<Surface*>(focused);
  ADD_FAILURE() << "The focus is on no surface";
  return nullptr;
}

Surface* ReachSurface(int id) {
  const Control::Peer* peer = Reach(id, {Kind::Surface});
  return peer == nullptr ? nullptr : static_cast<Surface*>(peer->Self);
}

template <typename Handler, typename... Arguments>
void Raise(const Handler& handler, const Arguments&... arguments) {
  const Handler kept = handler;
  if (kept) kept(arguments...);
}

}  // namespace

void User::Presses(const KeyPress& key) {
  if (const Surface* surface = FocusedSurface()) Raise(surface->KeyDown, key);
}

void User::PressesControl(char letter) {
  if (const Surface* surface = FocusedSurface()) Raise(letter == 'A' ? surface->SelectAllKey : surface->CopyKey);
}

void User::Drags(int id, Cell from, Cell to, bool shift) {
  const Surface* surface = ReachSurface(id);
  if (surface == nullptr) return;
  Raise(surface->Mouse, MousePress{MousePress::Act::Press, from, shift});
  if (from != to) Raise(surface->Mouse, MousePress{MousePress::Act::Drag, to, shift});
}

void User::DoubleClicks(int id, Cell at) {
  const Surface* surface = ReachSurface(id);
  if (surface == nullptr) return;
  Raise(surface->Mouse, MousePress{MousePress::Act::Press, at});
  Raise(surface->Mouse, MousePress{MousePress::Act::DoubleClick, at});
}

void User::TurnsWheel(int id, int notches, bool shift, bool control) {
  Control::Peer* peer = Find(id);
  if (peer != nullptr && (peer->What == Kind::ComboBox || peer->What == Kind::DropDownList)) {
    peer->TurnWheel(notches);
    Settle();
    return;
  }
  const Surface* surface = ReachSurface(id);
  if (surface != nullptr) {
    Raise(surface->Wheel, WheelTurn{control ? notches : notches * kCellsOfANotch, shift, control});
  }
}

void User::PagesBar(int id, Surface::Bar bar, int pages) {
  const Surface* surface = ReachSurface(id);
  if (surface == nullptr) return;
  const SurfaceBar& state = surface->PeerOf().Bars[bar];
  const int last = std::max(0, state.Range - state.Shown);
  const int position = std::clamp(state.Position + pages * std::max(1, state.Shown - 1), 0, last);
  if (position != state.Position) Raise(surface->Scroll, bar, position);
}

void User::MovesTo(int id) {
  Reach(id, {});
  Settle();
}

void User::ClosesWindow() {
  Form* form = Topmost();
  if (form == nullptr) return;
  Form::Peer& peer = form->PeerOf();
  Control* button = peer.Find(kEscapeButton);
  if (peer.Modal && button != nullptr && button->PeerOf().TakesFocus()) {
    button->PeerOf().Click();
  } else {
    peer.Unload(UnloadMode::ControlMenu);
  }
}

std::string User::Sees(int id) {
  const Control::Peer* peer = Find(id);
  return peer == nullptr ? "" : peer->Text;
}

std::string User::SeesCaption() {
  const Form* form = Topmost();
  return form == nullptr ? "" : form->Caption();
}

bool User::SeesEnabled(int id) {
  const Control::Peer* peer = Find(id);
  return peer != nullptr && peer->Enabled;
}

bool User::SeesVisible(int id) {
  const Control::Peer* peer = Find(id);
  return peer != nullptr && peer->Visible;
}

bool User::SeesBold(int id) {
  const Control::Peer* peer = Find(id);
  return peer != nullptr && peer->Bold;
}

const Control* User::On(int id) {
  const Control::Peer* peer = Find(id);
  return peer == nullptr ? nullptr : peer->Self;
}

bool User::SeesFocusOn(int id) {
  const Control::Peer* peer = Find(id);
  return peer != nullptr && peer->Self->HasFocus();
}

std::vector<std::string> User::SeesEntries(int id) {
  std::vector<std::string> texts;
  const Control::Peer* peer = Find(id);
  if (peer == nullptr) return texts;
  if (!peer->HasEntries()) ADD_FAILURE() << "Control " << id << " is no list";
  for (const ListEntry& entry : peer->Entries) texts.push_back(entry.Text);
  return texts;
}

std::string User::SeesSelected(int id) {
  const Control::Peer* peer = Find(id);
  if (peer == nullptr || peer->Selected < 0) return "";
  return peer->Entries[static_cast<std::size_t>(peer->Selected)].Text;
}

std::vector<std::string> User::SeesTicked(int id) {
  std::vector<std::string> texts;
  const Control::Peer* peer = Find(id);
  if (peer == nullptr) return texts;
  for (std::size_t index = 0; index < peer->Ticks.size(); ++index) {
    if (peer->Ticks[index]) texts.push_back(peer->Entries[index].Text);
  }
  return texts;
}

bool User::SeesMenuEnabled(int id) {
  const Form* form = Topmost();
  return form != nullptr && form->MenuEnabled(id);
}

bool User::SeesMenuChecked(int id) {
  const Form* form = Topmost();
  return form != nullptr && form->MenuChecked(id);
}

Page User::SeesPage(int id) {
  const Control::Peer* peer = Find(id);
  return peer == nullptr ? Page() : peer->Shown;
}

int User::SeesBar(int id, Surface::Bar bar) {
  Control::Peer* peer = Find(id);
  if (peer == nullptr) return -1;
  const SurfaceBar& state = peer->Bars[bar];
  return state.Range > state.Shown ? state.Position : -1;
}
