// Who is told of what comes up before a test's person, and answers it.
#pragma once

#include <string>

#include "platform/form.h"
#include "platform/message.h"

class Listener {
 public:
  virtual ~Listener() = default;
  virtual Answer MessageCame(const std::string& text, const std::string& caption, Buttons buttons, Icon icon) = 0;
  virtual std::string InputCame(const std::string& prompt, const std::string& caption, const std::string& offered) = 0;
  virtual std::string FileDialogCame(const std::string& asked) = 0;  // in words
  virtual void FormCame(Form& form) = 0;                             // uses it up to its closing
};
