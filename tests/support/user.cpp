// A test's person: finds what is to be acted on, looks whether that can be done, and lets the hands do it.
#include "support/user.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "platform/controls.h"
#include "platform/lists.h"
#include "support/expectations.h"
#include "support/hands.h"

namespace {

// The form that a person can reach, or null, which fails the test.
Form* Topmost() {
  const std::vector<Form*> open = Hands::OpenForms();
  if (!open.empty() && !open.back()->Closed()) return open.back();
  ADD_FAILURE() << "No form is open";
  return nullptr;
}

// The control of that id on the topmost form, or null, which fails the test.
Control* Find(int id) {
  const Form* form = Topmost();
  if (form == nullptr) return nullptr;
  const auto found = Hands::ControlsOf(*form).find(id);
  if (found != Hands::ControlsOf(*form).end()) return found->second;
  ADD_FAILURE() << "Form " << Hands::TemplateOf(*form) << " has no control " << id;
  return nullptr;
}

// The same, for acting: it must be one of these kinds, visible and enabled; the focus moves there.
template <typename... Kinds>
Control* Reach(int id) {
  Control* control = Find(id);
  if (control == nullptr) return nullptr;
  const Hands::Sight sight = Hands::LookAt(*control);
  const bool fits = sizeof...(Kinds) == 0 || (... || (dynamic_cast<Kinds*>(control) != nullptr));
  const char* why = !fits ? "of another kind" : !sight.Visible ? "hidden" : !sight.Enabled ? "disabled" : nullptr;
  if (why != nullptr) {
    ADD_FAILURE() << "Control " << id << " is " << why;
    return nullptr;
  }
  Hands::MoveTo(*control);
  return control;
}

template <typename Kind, typename Act>
void ActOn(int id, Act act) {
  if (auto* control = static_cast<Kind*>(Reach<Kind>(id))) act(*control);
  Hands::Settle();
}

int PositionOf(const Control& control, std::string_view entry) {
  const std::vector<std::string> entries = Hands::LookAt(control).Entries;
  const auto found = std::find(entries.begin(), entries.end(), entry);
  if (found != entries.end()) return static_cast<int>(found - entries.begin());
  ADD_FAILURE() << "Control " << control.Id() << " has no entry \"" << entry << "\"";
  return -1;
}

Hands::Sight SightOf(int id) {
  const Control* control = Find(id);
  return control == nullptr ? Hands::Sight() : Hands::LookAt(*control);
}

// What a control of that kind tells itself; nothing when there is none.
template <typename Kind, typename Ask>
auto Asked(int id, Ask ask) {
  const auto* control = dynamic_cast<const Kind*>(Find(id));
  return control == nullptr ? decltype(ask(*control))() : ask(*control);
}

}  // namespace

User::User() {
  Expected().Start();
  Hands::Begin();
}

User::~User() {
  Hands::End();
  Expected().Finish();
}

void User::Types(int id, std::string_view text) {
  Control* control = Reach<TextBox, ComboBox>(id);
  const auto* box = dynamic_cast<const TextBox*>(control);
  if (box != nullptr && box->ReadOnly()) {
    ADD_FAILURE() << "Control " << id << " is read-only";
  } else if (control != nullptr) {
    Hands::Type(*control, std::string(text));
  }
  Hands::Settle();
}

void User::Clicks(int id) {
  if (Control* control = Reach<Button, OptionButton, Label, Picture>(id)) Hands::Click(*control);
  Hands::Settle();
}

void User::Picks(int id, std::string_view entry) {
  ActOn<ListControl>(id, [entry](ListControl& list) {
    const int position = PositionOf(list, entry);
    if (position >= 0) Hands::Select(list, position);
  });
}

void User::PicksAt(int id, int position) {
  ActOn<ListControl>(id, [position](ListControl& list) {
    if (position >= 0 && position < static_cast<int>(list.Entries().size())) return Hands::Select(list, position);
    ADD_FAILURE() << "Control " << list.Id() << " has no entry at position " << position;
  });
}

void User::Ticks(int id, std::string_view entry) {
  ActOn<CheckList>(id, [entry](CheckList& list) {
    const int position = PositionOf(list, entry);
    if (position >= 0) Hands::TurnOver(list, position);
  });
}

void User::ChoosesMenu(int id) {
  Form* form = Topmost();
  if (form != nullptr && !Hands::CanChoose(*form, id)) {
    ADD_FAILURE() << "Menu entry " << id << " is greyed";
  } else if (form != nullptr) {
    Hands::Choose(*form, id);
  }
  Hands::Settle();
}

void User::Presses(Key key) { Presses(KeyPress{key}); }

void User::Presses(const KeyPress& key) {
  if (Form* form = Topmost()) Hands::Press(*form, key);
  Hands::Settle();
}

void User::PressesControl(char letter) {
  if (Form* form = Topmost()) Hands::PressControl(*form, letter);
  Hands::Settle();
}

void User::Drags(int id, Cell from, Cell to, bool shift) {
  ActOn<Surface>(id, [=](Surface& surface) { Hands::Drag(surface, from, to, shift); });
}

void User::DoubleClicks(int id, Cell at) {
  if (Control* control = Reach<Surface, Picture, RowList>(id)) Hands::DoubleClick(*control, at);
  Hands::Settle();
}

// Over a drop-down the wheel does not move the focus there.
void User::TurnsWheel(int id, int notches, bool shift, bool control) {
  Control* over = Find(id);
  if (dynamic_cast<ListControl*>(over) == nullptr) over = Reach<Surface>(id);
  if (over != nullptr) Hands::TurnWheel(*over, notches, shift, control);
  Hands::Settle();
}

void User::PagesBar(int id, Surface::Bar bar, int pages) {
  ActOn<Surface>(id, [=](Surface& surface) { Hands::PageBar(surface, bar, pages); });
}

void User::MovesTo(int id) {
  Reach<>(id);
  Hands::Settle();
}

void User::ClosesWindow() {
  if (Form* form = Topmost()) Hands::Close(*form);
  Hands::Settle();
}

std::string User::Sees(int id) { return SightOf(id).Text; }
bool User::SeesEnabled(int id) { return SightOf(id).Enabled; }
bool User::SeesBold(int id) { return SightOf(id).Bold; }
bool User::SeesVisible(int id) { return SightOf(id).Visible; }
bool User::SeesFocusOn(int id) { return SightOf(id).Focused; }
std::vector<std::string> User::SeesEntries(int id) { return SightOf(id).Entries; }

std::string User::SeesSelected(int id) {
  const Hands::Sight sight = SightOf(id);
  return sight.Selected < 0 ? "" : sight.Entries.at(static_cast<std::size_t>(sight.Selected));
}

std::vector<std::string> User::SeesTicked(int id) {
  const Hands::Sight sight = SightOf(id);
  std::vector<std::string> texts;
  for (std::size_t index = 0; index < sight.Ticks.size(); ++index) {
    if (sight.Ticks[index]) texts.push_back(sight.Entries[index]);
  }
  return texts;
}

Page User::SeesPage(int id) { return Asked<Surface>(id, Hands::PageOn); }

int User::SeesBar(int id, Surface::Bar bar) {
  return Asked<Surface>(id, [bar](const Surface& surface) { return Hands::BarOn(surface, bar); });
}

std::string User::SeesCaption() {
  const Form* form = Topmost();
  return form == nullptr ? "" : form->Caption();
}

bool User::SeesMenuEnabled(int id) {
  const Form* form = Topmost();
  return form != nullptr && Hands::CanChoose(*form, id);
}

bool User::SeesMenuChecked(int id) {
  const Form* form = Topmost();
  return form != nullptr && form->MenuChecked(id);
}

void User::Answers(std::string_view text, Answer answer, Icon icon, Buttons buttons) {
  constexpr const char* kNames[] = {"OK", "Cancel", "Yes", "No"};
  Expected().Expect(Expectations::Box(std::string(text), icon, buttons), kNames[static_cast<std::size_t>(answer)]);
}

void User::AnswersInput(std::string_view prompt, std::string_view answer) {
  Expected().Expect(Expectations::Input(std::string(prompt)), std::string(answer));
}

void User::UsesForm(int template_id, std::function<void()> acts) {
  Expected().Expect(Expectations::Window(template_id), "", std::move(acts));
}
