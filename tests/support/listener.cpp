// Putting what comes into words, and a listener's words into answers: see listener.h.
#include "support/listener.h"

#include <gtest/gtest.h>

#include <utility>

#include "shell/messages.h"
#include "support/hands.h"

namespace {

Listener* listening = nullptr;

std::string CaptionInWords(const std::string& caption) {
  return caption == Global::ProgramTitle ? "" : " [" + caption + "]";
}

// An empty text cancels.
std::string TextFor(const std::string& words) {
  listening->BoxCame(words);
  const std::string reply = listening->ReplyTo(words);
  if (reply.starts_with('"')) return reply.substr(1, reply.size() - 2);
  EXPECT_EQ(reply, "cancel") << words;
  return "";
}

}  // namespace

Listener::Listener() : former_(std::exchange(listening, this)) {}
Listener::~Listener() { listening = former_; }

void Listener::BoxCame(const std::string& words) { ADD_FAILURE() << "Nobody expected: " << words; }
void Listener::FormCame(Form& form) { BoxCame("form " + std::to_string(Hands::TemplateOf(form))); }

Answer Coming::Message(const std::string& text, const std::string& caption, Buttons buttons, Icon icon) {
  constexpr const char* kIcons[] = {"no icon", "information", "exclamation", "critical"};
  constexpr const char* kButtons[] = {"OK", "OK/Cancel", "Yes/No"};
  const std::string words = kIcons[static_cast<int>(icon)] + std::string(" ") + kButtons[static_cast<int>(buttons)] +
                            ": " + text + CaptionInWords(caption);
  listening->BoxCame(words);
  if (buttons == Buttons::Ok) return Answer::Ok;
  const bool yes_no = buttons == Buttons::YesNo;
  const std::string reply = listening->ReplyTo(words);
  if (reply == (yes_no ? "yes" : "ok")) return yes_no ? Answer::Yes : Answer::Ok;
  EXPECT_EQ(reply, yes_no ? "no" : "cancel") << words;
  return yes_no ? Answer::No : Answer::Cancel;
}

std::string Coming::Input(const std::string& prompt, const std::string& caption, const std::string& offered) {
  return TextFor("input: " + prompt + (offered.empty() ? "" : " offers \"" + offered + "\"") + CaptionInWords(caption));
}

std::string Coming::FileDialog(const std::string& asked) { return TextFor("file dialog: " + asked); }
void Coming::FormToUse(Form& form) { listening->FormCame(form); }
