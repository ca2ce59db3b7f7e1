// Message boxes with the program's title: see messages.h.
#include "shell/messages.h"

#include "values/numbers.h"

namespace Global {

std::string ProgramTitle = "Larkspur Filer";

void Say(std::string_view text, Icon icon) { MsgBox(text, ProgramTitle, Buttons::Ok, icon); }

bool Ask(std::string_view question, Buttons buttons, Icon icon) {
  const Answer answer = MsgBox(question, ProgramTitle, buttons, icon);
  return answer == Answer::Yes || answer == Answer::Ok;
}

std::string DueToError(const RuntimeError& error) {
  return " due to error #" + SignedText(error.Number) + ": " + error.Description;
}

}  // namespace Global
