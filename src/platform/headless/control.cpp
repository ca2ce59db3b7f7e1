// What all controls share, in memory: text, enabled, visible, focus, and the changes that raise events.
#include "platform/control.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "platform/headless/internals.h"

namespace {

// The event is copied first: its handler may destroy the form it stands in.
void Raise(const Event& event) {
  if (const Event handler = event) handler();
}

}  // namespace

Control::Control(Form& owner, int id, Kind kind) : peer_(std::make_unique<Peer>()) {
  peer_->Self = this;
  peer_->Owner = &owner;
  peer_->Id = id;
  peer_->What = kind;
  Form::Peer& form = owner.PeerOf();
  if (kind == Kind::OptionButton) {
    const Peer* last = form.InOrder.empty() ? nullptr : &form.InOrder.back()->PeerOf();
    const bool continues = last != nullptr && last->What == Kind::OptionButton;
    peer_->Group = continues ? last->Group : id;
  }
  if (!form.Controls.emplace(id, this).second) {
    std::fprintf(stderr, "form %d has two controls with id %d\n", form.Template, id);
    std::abort();
  }
  form.InOrder.push_back(this);
}

Control::~Control() {
  Form::Peer& form = peer_->Owner->PeerOf();
  form.Controls.erase(peer_->Id);
  form.InOrder.erase(std::find(form.InOrder.begin(), form.InOrder.end(), this));
  if (form.Focus == this) form.Focus = nullptr;
}

int Control::Id() const { return peer_->Id; }
Form& Control::Owner() const { return *peer_->Owner; }
std::string Control::Text() const { return peer_->Text; }

void Control::SetText(std::string_view text) {
  if (peer_->What == Kind::DropDownList) {
    peer_->ChangeSelection(peer_->PositionOf(std::string(text)));
  } else {
    peer_->ChangeText(std::string(text));
  }
}

bool Control::Enabled() const { return peer_->Enabled; }
void Control::SetEnabled(bool enabled) {
  peer_->Enabled = enabled;
  peer_->Owner->PeerOf().LeaveUnreachable();
}
bool Control::Visible() const { return peer_->Visible; }
void Control::SetVisible(bool visible) {
  peer_->Visible = visible;
  peer_->Owner->PeerOf().LeaveUnreachable();
}

void Control::SetFocus() {
  if (peer_->TakesFocus()) peer_->Owner->PeerOf().MoveFocus(this);
}

bool Control::HasFocus() const {
  const std::vector<Form*>& open = OpenForms();
  return !open.empty() && open.back() == peer_->Owner && peer_->Owner->PeerOf().Focus == this;
}

bool Control::Peer::TakesFocus() const {
  return Enabled && Visible && (What != Kind::Label || TabStop) && What != Kind::Picture && What != Kind::Frame;
}

bool Control::Peer::HasEntries() const {
  return What == Kind::ComboBox || What == Kind::DropDownList || What == Kind::ListBox || What == Kind::CheckList;
}

int Control::Peer::PositionOf(const std::string& entry) const {
  const auto found =
      std::find_if(Entries.begin(), Entries.end(), [&entry](const ListEntry& each) { return each.Text == entry; });
  return found == Entries.end() ? -1 : static_cast<int>(found - Entries.begin());
}

void Control::Peer::MarkAll() {
  MarkFirst = 0;
  MarkLast = static_cast<int>(Text.size());
}

void Control::Peer::Entered() {
  if (What == Kind::TextBox || (What == Kind::ComboBox && !EnteredBefore)) MarkAll();
  EnteredBefore = true;
}

void Control::Peer::ChangeText(const std::string& text) {
  if (text == Text) return;
  Text = text;
  MarkFirst = MarkLast = 0;
  if (What == Kind::TextBox) Raise(static_cast<TextBox*>(Self)->Change);
  if (What == Kind::ComboBox) {
    Selected = -1;
    Raise(static_cast<ComboBox*>(Self)->Change);
  }
}

void Control::Peer::ChangeSelection(int position) {
  if (position < 0 || position >= static_cast<int>(Entries.size())) position = -1;
  const bool moved = position != Selected;
  Selected = position;
  if (What != Kind::ListBox) Text = position < 0 ? "" : Entries[static_cast<std::size_t>(position)].Text;
  if (What == Kind::ComboBox) MarkAll();
  if (moved) Raise(static_cast<ListControl*>(Self)->Click);
}

void Control::Peer::ChangeTick(int position, bool checked) {
  if (position < 0 || position >= static_cast<int>(Ticks.size())) return;
  const auto index = static_cast<std::size_t>(position);
  if (Ticks[index] == checked) return;
  Ticks[index] = checked;
  const std::function<void(int)> item_check = static_cast<CheckList*>(Self)->ItemCheck;
  if (item_check) item_check(position);
}

void Control::Peer::Check() {
  if (Checked) return;
  for (Control* each : Owner->PeerOf().InOrder) {
    Peer& other = each->PeerOf();
    if (other.What == Kind::OptionButton && other.Group == Group) other.Checked = false;
  }
  Checked = true;
  Raise(static_cast<OptionButton*>(Self)->Click);
}

void Control::Peer::Click() {
  if (What == Kind::Label) Raise(static_cast<Label*>(Self)->Click);
  if (What == Kind::Button) Raise(static_cast<Button*>(Self)->Click);
  if (What == Kind::Picture) Raise(static_cast<Picture*>(Self)->Click);
  if (What == Kind::OptionButton) Check();
}
