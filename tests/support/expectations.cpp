// The queue of expectations: matching what comes with what was expected, and saying what went wrong.
#include "support/expectations.h"

#include <gtest/gtest.h>

#include <utility>

#include "support/hands.h"

std::string NameOf(Icon icon) {
  constexpr const char* kNames[] = {"no icon", "information", "exclamation", "critical"};
  return kNames[static_cast<std::size_t>(icon)];
}

std::string NameOf(Buttons buttons) {
  constexpr const char* kNames[] = {"OK", "OK/Cancel", "Yes/No"};
  return kNames[static_cast<std::size_t>(buttons)];
}

namespace {

const char* NameOf(Answer answer) {
  switch (answer) {
    case Answer::Ok:
      return "OK";
    case Answer::Cancel:
      return "Cancel";
    case Answer::Yes:
      return "Yes";
    case Answer::No:
      return "No";
  }
  return "?";
}

Answer ClosingAnswer(Buttons buttons) {
  switch (buttons) {
    case Buttons::OkCancel:
      return Answer::Cancel;
    case Buttons::YesNo:
      return Answer::No;
    default:
      return Answer::Ok;
  }
}

bool Has(Buttons buttons, Answer answer) {
  switch (buttons) {
    case Buttons::OkCancel:
      return answer == Answer::Ok || answer == Answer::Cancel;
    case Buttons::YesNo:
      return answer == Answer::Yes || answer == Answer::No;
    default:
      return answer == Answer::Ok;
  }
}

}  // namespace

Expectations& Expected() {
  static Expectations expectations;
  return expectations;
}

void Expectations::Start() {
  Told = nullptr;
  queue_.clear();
  LastCaption.clear();
  LastOffered.clear();
  Title.clear();
}

void Expectations::Finish() {
  for (const Item& item : queue_) ADD_FAILURE() << "Expected, but never came: " << Describe(item);
  queue_.clear();
}

void Expectations::ExpectMessage(std::string_view text, Answer answer, Icon icon, Buttons buttons) {
  Item item;
  item.Text = text;
  item.Press = answer;
  item.Sign = icon;
  item.Offer = buttons;
  queue_.push_back(std::move(item));
}

void Expectations::ExpectInput(std::string_view prompt, std::string_view answer) {
  Item item;
  item.What = Kind::Input;
  item.Text = prompt;
  item.Reply = answer;
  queue_.push_back(std::move(item));
}

void Expectations::ExpectForm(int template_id, std::function<void()> acts) {
  Item item;
  item.What = Kind::Form;
  item.Template = template_id;
  item.Acts = std::move(acts);
  queue_.push_back(std::move(item));
}

void Expectations::ExpectFile(std::string_view name) {
  Item item;
  item.What = Kind::File;
  item.Reply = name;
  queue_.push_back(std::move(item));
}

Answer Expectations::MessageCame(const std::string& text, const std::string& caption, Buttons buttons, Icon icon) {
  if (Told != nullptr) return Told->MessageCame(text, caption, buttons, icon);
  Item came;
  came.Text = text;
  came.Sign = icon;
  came.Offer = buttons;
  Item expected;
  if (!Take(came, caption, expected)) return ClosingAnswer(buttons);
  if (!Has(buttons, expected.Press)) {
    ADD_FAILURE() << Describe(came) << " has no button " << NameOf(expected.Press);
    return ClosingAnswer(buttons);
  }
  return expected.Press;
}

std::string Expectations::InputCame(const std::string& prompt, const std::string& caption, const std::string& offered) {
  if (Told != nullptr) return Told->InputCame(prompt, caption, offered);
  LastOffered = offered;
  Item came;
  came.What = Kind::Input;
  came.Text = prompt;
  Item expected;
  return Take(came, caption, expected) ? expected.Reply : "";
}

std::string Expectations::FileDialogCame(const std::string& caption, const std::string& asked) {
  if (Told != nullptr) return Told->FileDialogCame(asked);
  Item came;
  came.What = Kind::File;
  Item expected;
  return Take(came, caption, expected) ? expected.Reply : "";
}

std::function<void()> Expectations::FormCame(int template_id, const std::string& caption) {
  if (Told != nullptr) return [this, form = Hands::OpenForms().back()] { Told->FormCame(*form); };
  Item came;
  came.What = Kind::Form;
  came.Template = template_id;
  Item expected;
  if (!Take(came, caption, expected)) return {};
  return expected.Acts ? expected.Acts : [] {};
}

void Expectations::FormLeftOpen(int template_id, const std::string& caption) {
  if (Told != nullptr) return;  // who has said so
  ADD_FAILURE() << "Form " << template_id << " \"" << caption << "\" was left open";
}

// Takes the first expectation when it is what came. Otherwise fails the test; an expectation of the same
// kind is used up all the same, so that one wrong word does not make all that follow fail too.
bool Expectations::Take(const Item& came, const std::string& caption, Item& expected) {
  if (came.What != Kind::Form) LastCaption = caption;
  const std::string seen = Describe(came) + ", caption \"" + caption + "\"";
  if (!Title.empty() && (came.What == Kind::Message || came.What == Kind::Input)) {
    EXPECT_EQ(caption, came.Text.starts_with("Please type a letter") ? "Letter tab selection" : Title) << came.Text;
  }
  if (queue_.empty()) {
    ADD_FAILURE() << "Nothing was expected, but there came " << seen;
    return false;
  }
  const Item& front = queue_.front();
  const bool matches = front.What == came.What && front.Text == came.Text && front.Template == came.Template &&
                       front.Sign == came.Sign && front.Offer == came.Offer;
  if (!matches) ADD_FAILURE() << "Expected " << Describe(front) << "\nbut there came " << seen;
  if (front.What == came.What) {
    expected = std::move(queue_.front());
    queue_.pop_front();
  }
  return matches;
}

std::string Expectations::Describe(const Item& item) {
  switch (item.What) {
    case Kind::Message:
      return "a message box (" + NameOf(item.Offer) + ", " + NameOf(item.Sign) + ") \"" + item.Text + "\"";
    case Kind::Input:
      return "an input box \"" + item.Text + "\"";
    case Kind::Form:
      return "form " + std::to_string(item.Template);
    case Kind::File:
      return item.Reply.empty() ? "a file dialog" : "a file dialog to choose \"" + item.Reply + "\"";
  }
  return "?";
}
