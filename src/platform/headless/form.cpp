// Forms, in memory: a stack of those that are open; the stage stands for the person who uses them.
#include "platform/form.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <utility>

#include "platform/headless/internals.h"
#include "platform/program.h"

namespace {

void HaveUsed(Form& form) {
  const Stage& stage = CurrentStage();
  if (!stage.Use) {
    std::fprintf(stderr, "nobody is there to use form %d\n", form.PeerOf().Template);
    std::abort();
  }
  stage.Use(form);
}

}  // namespace

std::vector<Form*>& OpenForms() {
  static std::vector<Form*> forms;
  return forms;
}

void ActivateTopmost() {
  if (!OpenForms().empty()) OpenForms().back()->PeerOf().Activate();
}

Form::Form(int template_id) : peer_(std::make_unique<Peer>()) {
  peer_->Self = this;
  peer_->Template = template_id;
}

Form::~Form() { peer_->Gone(); }

void Form::ShowModal() {
  peer_->Modal = true;
  std::exception_ptr failure;
  try {
    peer_->Appear();
    if (!peer_->Closed) HaveUsed(*this);
  } catch (const ProgramEnded&) {
    peer_->Gone();
    throw;
  } catch (...) {
    failure = std::current_exception();
  }
  peer_->Gone();
  ActivateTopmost();
  if (failure) std::rethrow_exception(failure);
}

void Form::Show() { peer_->Appear(); }

void Form::RunUntilClosed() {
  if (peer_->Closed) return;
  HaveUsed(*this);
  peer_->Gone();
}

bool Form::Covered() const { return peer_->Shown && OpenForms().back() != this; }

void Form::SetShutdownReason(std::string_view reason) { peer_->ShutdownReason = reason; }

void Form::Later(Event event) { peer_->Deferred.push_back(std::move(event)); }

void Form::Close() { peer_->Unload(UnloadMode::Code); }
bool Form::Closed() const { return peer_->Closed; }

std::string Form::Caption() const { return peer_->Caption; }
void Form::SetCaption(std::string_view caption) { peer_->Caption = caption; }

void Form::SetMenuEnabled(int id, bool enabled) {
  if (enabled) {
    peer_->MenuGreyed.erase(id);
  } else {
    peer_->MenuGreyed.insert(id);
  }
}

bool Form::MenuEnabled(int id) const { return !peer_->MenuGreyed.contains(id); }

void Form::SetMenuChecked(int id, bool checked) {
  if (checked) {
    peer_->MenuTicked.insert(id);
  } else {
    peer_->MenuTicked.erase(id);
  }
}

void Form::SetMenuText(int id, std::string_view text) { peer_->MenuTexts[id] = text; }

std::string Form::MenuText(int id) const {
  const auto found = peer_->MenuTexts.find(id);
  return found == peer_->MenuTexts.end() ? std::string() : found->second;
}

void Form::SetMenuEntries(int first, int /*before*/, const std::vector<std::string>& texts) {
  for (int count = 0; count < peer_->EntriesCount; ++count) peer_->MenuTexts.erase(first + count);
  peer_->EntriesCount = static_cast<int>(texts.size());
  for (const std::string& text : texts) peer_->MenuTexts[first++] = text;
}

bool Form::MenuChecked(int id) const { return peer_->MenuTicked.contains(id); }

// Nothing has a place here.
void Form::PlaceBelow(const Control& /*control*/) {}
void Form::Anchor(Control& control, const Follow& follow) { peer_->Follows[control.Id()] = follow; }
std::string Form::Place() const { return peer_->PlaceText; }
void Form::SetPlace(std::string_view place) { peer_->PlaceText = place; }
void Form::MayShrink(int /*units*/) {}
void Form::RemoveRows(const Control& /*first*/, const Control& /*next*/) {}

Control* Form::Peer::Find(int id) const {
  const auto found = Controls.find(id);
  return found == Controls.end() ? nullptr : found->second;
}

void Form::Peer::MoveFocus(Control* control) {
  if (Focus == control) return;
  const Event lost = Shown && Focus != nullptr ? Focus->LostFocus : Event();
  const Event got = Shown && control != nullptr ? control->GotFocus : Event();
  Focus = control;
  if (control != nullptr) control->PeerOf().Entered();
  if (lost) lost();
  if (got) got();
}

void Form::Peer::LeaveUnreachable() {
  if (!Shown || Focus == nullptr || Focus->PeerOf().TakesFocus()) return;
  const auto old = std::find(InOrder.begin(), InOrder.end(), Focus);
  std::vector<Control*> next(old, InOrder.end());
  next.insert(next.end(), InOrder.begin(), old);
  const auto found =
      std::find_if(next.begin(), next.end(), [](const Control* each) { return each->PeerOf().TakesFocus(); });
  if (found != next.end()) MoveFocus(*found);
}

void Form::Peer::RunDeferred() {
  for (const Event& event : std::exchange(Deferred, {})) event();
}

// A form that could not be loaded is not there.
void Form::Peer::Load() {
  Closed = false;
  try {
    Self->Form_Load();
  } catch (...) {
    Closed = true;
    throw;
  }
}

void Form::Peer::Appear() {
  Load();
  OpenForms().push_back(Self);
  Shown = true;
  if (Focus == nullptr || !Focus->PeerOf().TakesFocus()) {
    const auto first =
        std::find_if(InOrder.begin(), InOrder.end(), [](const Control* each) { return each->PeerOf().TakesFocus(); });
    Focus = first == InOrder.end() ? nullptr : *first;
  }
  if (Focus != nullptr) Focus->PeerOf().Entered();
  if (Focus != nullptr && Focus->GotFocus) Focus->GotFocus();
  Self->Form_Activate();
}

void Form::Peer::Unload(UnloadMode mode) {
  if (Closed) return;
  bool cancel = false;
  Self->Form_QueryUnload(cancel, mode);
  if (cancel || Closed) return;
  Self->Form_Unload();
  if (Modal) {
    Closed = true;  // leaves the stack when ShowModal returns
  } else {
    Gone();
  }
}

void Form::Peer::Gone() {
  std::vector<Form*>& open = OpenForms();
  open.erase(std::remove(open.begin(), open.end(), Self), open.end());
  Shown = false;
  Closed = true;
}
