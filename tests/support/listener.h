// Who is told, in words, of what comes up before a test's person, and answers it.
#pragma once

#include <string>

#include "platform/form.h"
#include "platform/message.h"

// It listens for as long as it lives, or until another one does meanwhile. This one expects nothing: whatever comes
// fails the test and is closed.
class Listener {
 public:
  Listener();
  virtual ~Listener();
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

  // A box came: "exclamation OK: text", "input: prompt", "file dialog: caption"; behind it its caption where that is
  // not the usual one.
  virtual void BoxCame(const std::string& words);
  // Asked behind that, but for a message to be read only: "ok", "cancel", "yes" or "no", or a text in quotes.
  virtual std::string ReplyTo(const std::string& /*words*/) { return "cancel"; }
  // Uses the form; one that is still open then is closed, asking nobody.
  virtual void FormCame(Form& form);

 private:
  Listener* former_;
};

// For the platforms: what came is told to the listener, and its answer comes back.
namespace Coming {

Answer Message(const std::string& text, const std::string& caption, Buttons buttons, Icon icon);
std::string Input(const std::string& prompt, const std::string& caption, const std::string& offered);
std::string FileDialog(const std::string& asked);
void FormToUse(Form& form);

}  // namespace Coming
