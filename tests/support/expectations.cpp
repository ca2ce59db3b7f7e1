// The queue of expectations: matching what comes with what was expected, and saying what went wrong.
#include "support/expectations.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "support/hands.h"

Listener*& TheListener() {
  static Listener* listener = nullptr;
  return listener;
}

std::string NameOf(Icon icon) {
  constexpr const char* kNames[] = {"no icon", "information", "exclamation", "critical"};
  return kNames[static_cast<std::size_t>(icon)];
}

std::string NameOf(Buttons buttons) {
  constexpr const char* kNames[] = {"OK", "OK/Cancel", "Yes/No"};
  return kNames[static_cast<std::size_t>(buttons)];
}

Expectations& Expected() {
  static Expectations expectations;
  return expectations;
}

std::string Expectations::Box(const std::string& text, Icon icon, Buttons buttons) {
  return "a message box (" + NameOf(buttons) + ", " + NameOf(icon) + ") \"" + text + "\"";
}

void Expectations::Start() {
  TheListener() = this;
  queue_.clear();
  LastCaption.clear();
  LastOffered.clear();
}

void Expectations::Finish() {
  TheListener() = nullptr;
  for (const Item& item : queue_) ADD_FAILURE() << "Expected, but never came: " << item.What << " " << item.Reply;
  queue_.clear();
}

void Expectations::Expect(const std::string& what, const std::string& reply, std::function<void()> acts) {
  queue_.push_back({what, reply, std::move(acts)});
}

// Takes the first expectation when it is what came. Otherwise fails the test and gives nothing; an expectation of the
// same kind is used up all the same, so that one wrong word does not make all that follow fail too.
Expectations::Item Expectations::Take(const std::string& came, const std::string& caption) {
  const auto kind = [](const std::string& what) { return what.substr(0, 9); };  // "a message", "an input "
  if (queue_.empty()) {
    ADD_FAILURE() << "Nothing was expected, but there came " << came << ", caption \"" << caption << "\"";
    return {};
  }
  Item front = queue_.front();
  if (kind(front.What) == kind(came)) queue_.pop_front();
  if (front.What == came) return front;
  ADD_FAILURE() << "Expected " << front.What << "\nbut there came " << came << ", caption \"" << caption << "\"";
  return {};
}

// Unexpected boxes are closed: by OK, Cancel or No, whichever they have.
Answer Expectations::MessageCame(const std::string& text, const std::string& caption, Buttons buttons, Icon icon) {
  LastCaption = caption;
  const std::string what = Box(text, icon, buttons);
  const std::string reply = Take(what, caption).Reply;
  const bool known = reply.empty() || ("/" + NameOf(buttons) + "/").find("/" + reply + "/") != std::string::npos;
  if (!known) ADD_FAILURE() << what << " has no button " << reply;
  if (buttons == Buttons::YesNo) return reply == "Yes" ? Answer::Yes : Answer::No;
  return buttons == Buttons::Ok || reply == "OK" ? Answer::Ok : Answer::Cancel;
}

std::string Expectations::InputCame(const std::string& prompt, const std::string& caption, const std::string& offered) {
  LastCaption = caption;
  LastOffered = offered;
  return Take(Input(prompt), caption).Reply;
}

std::string Expectations::FileDialogCame(const std::string& caption, const std::string& /*asked*/) {
  LastCaption = caption;
  return Take("a file dialog", caption).Reply;
}

void Expectations::FormCame(Form& form) {
  const std::string what = Window(Hands::TemplateOf(form));
  const Item item = Take(what, form.Caption());
  if (item.Acts) item.Acts();
  if (item.What == what && !form.Closed()) ADD_FAILURE() << what << " \"" << form.Caption() << "\" was left open";
}
