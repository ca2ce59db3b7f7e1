// The part of a test's person that is the same on both platforms: what is expected to come.
#include "support/user.h"

#include <utility>

#include "platform/controls.h"
#include "support/expectations.h"

void User::Answers(std::string_view text, Answer answer, Icon icon, Buttons buttons) {
  Expected().ExpectMessage(text, answer, icon, buttons);
}

void User::AnswersInput(std::string_view prompt, std::string_view answer) { Expected().ExpectInput(prompt, answer); }

void User::UsesForm(int template_id, std::function<void()> acts) {
  Expected().ExpectForm(template_id, std::move(acts));
}

void User::ChoosesFile(std::string_view name) { Expected().ExpectFile(name); }

bool User::SeesBorder(int id) {
  const Control* label = On(id);
  return label != nullptr && static_cast<const Label*>(label)->Border();
}

bool User::SeesMarked(int id) {
  const Control* button = On(id);
  return button != nullptr && static_cast<const Button*>(button)->BackColor() == BackColor::Marked;
}

bool User::SeesPicture(int id) {
  const Control* box = On(id);
  return box != nullptr && !static_cast<const Picture*>(box)->Empty();
}
