// Who is told of what comes up before a test's person, and answers it.
#pragma once

#include <optional>
#include <string>

#include "platform/form.h"
#include "platform/message.h"

class Listener {
 public:
  virtual ~Listener() = default;
  virtual Answer MessageCame(const std::string& text, const std::string& caption, Buttons buttons, Icon icon) = 0;
  // The text to type before OK, or to choose; empty cancels. What a file dialog is asked for is told in words.
  virtual std::string InputCame(const std::string& prompt, const std::string& caption, const std::string& offered) = 0;
  virtual std::string FileDialogCame(const std::string& asked) = 0;
  // Uses the form, and reports one that is still open then: it is closed afterwards, asking nobody.
  virtual void FormCame(Form& form) = 0;
};

// The one of the running test.
Listener*& TheListener();

// A message box in words: "exclamation OK: text".
std::string InWords(const std::string& text, Buttons buttons, Icon icon);
// What such a box is answered by "ok", "cancel", "yes" or "no"; nothing when it has no such button.
std::optional<Answer> AnswerOf(const std::string& word, Buttons buttons);
