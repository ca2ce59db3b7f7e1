// A test's person: finds what is to be acted on, looks whether that can be done, and lets the hands do it.
#include "support/user.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "platform/controls.h"

namespace {

struct Impossible : std::runtime_error {
  using std::runtime_error::runtime_error;
};

void Require(bool can, int id, const std::string& why) {
  if (!can) throw Impossible(std::to_string(id) + why);
}

}  // namespace

Form& User::Topmost() {
  const std::vector<Form*> open = Hands::OpenForms();
  if (open.empty() || open.back()->Closed()) throw Impossible("No form is open");
  return *open.back();
}

Control& User::Find(int id) {
  const auto& controls = Hands::ControlsOf(Topmost());
  Require(controls.contains(id), id, " is no control of the form");
  return *controls.at(id);
}

Control& User::Reach(int id) {
  Control& control = Find(id);
  const Hands::Sight sight = Hands::LookAt(control);
  Require(sight.Visible && sight.Enabled, id, " is hidden or disabled");
  Hands::MoveTo(control);
  return control;
}

void User::Do(const std::function<void()>& act) {
  try {
    act();
  } catch (const Impossible& why) {
    ADD_FAILURE() << why.what();
  }
  Hands::Settle();
}

void User::Enters(int id, const std::string& text) {
  Do([&] {
    Control& control = Reach(id);
    const std::vector<std::string> entries = Hands::LookAt(control).Entries;
    const auto entry = std::find(entries.begin(), entries.end(), text);
    const auto position = static_cast<int>(entry - entries.begin());
    auto* list = dynamic_cast<ListControl*>(&control);
    auto* checks = dynamic_cast<CheckList*>(&control);
    const auto* box = dynamic_cast<TextBox*>(&control);
    if (list != nullptr && entry != entries.end()) return Hands::Select(*list, position);
    if (checks != nullptr && entry != entries.end()) return Hands::TurnOver(*checks, position);
    const bool takes_text = box != nullptr ? !box->ReadOnly() : dynamic_cast<ComboBox*>(&control) != nullptr;
    Require(takes_text, id, " takes no text " + text);
    Hands::Type(control, text);
  });
}

void User::ChoosesMenu(int id) {
  Do([&] {
    Require(Topmost().MenuEnabled(id), id, " is greyed");
    Hands::Choose(Topmost(), id);
  });
}
