// Who is told of what comes up before a test's person, and answers it.
#pragma once

#include <string>

#include "platform/form.h"
#include "platform/message.h"

class Listener {
 public:
  virtual ~Listener() = default;
  virtual Answer MessageCame(const std::string& text, const std::string& caption, Buttons buttons, Icon icon) = 0;
  // The text to type before OK, or to choose; empty cancels. What a file dialog is asked for is told in words.
  virtual std::string InputCame(const std::string& prompt, const std::string& caption, const std::string& offered) = 0;
  virtual std::string FileDialogCame(const std::string& caption, const std::string& asked) = 0;
  // Uses the form, and reports one that is still open then: it is closed afterwards, asking nobody.
  virtual void FormCame(Form& form) = 0;
};

// The one of the running test.
Listener*& TheListener();

std::string NameOf(Icon icon);
std::string NameOf(Buttons buttons);
