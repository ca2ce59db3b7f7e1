// Message boxes with the program's title: see messages.h.
#include "shell/messages.h"

#include <exception>
#include <new>
#include <utility>

#include "platform/program.h"
#include "platform/text.h"

namespace Global {

std::string ProgramTitle = "Larkspur Filer";
std::function<void()> KeepDocument;

namespace {

bool Agrees(Answer answer) { return answer == Answer::Yes || answer == Answer::Ok; }

std::string WhatOf(const std::exception& error) {
  const bool no_memory = dynamic_cast<const std::bad_alloc*>(&error) != nullptr;
  return no_memory ? std::string(ErrorDescription(kOutOfMemory)) : error.what();
}

}  // namespace

void Say(std::string_view text, Icon icon) { MsgBox(text, ProgramTitle, Buttons::Ok, icon); }

bool Ask(std::string_view question, Buttons buttons, Icon icon) {
  return Agrees(MsgBox(question, ProgramTitle, buttons, icon));
}

bool AskBeforeLoss(std::string_view question, Buttons buttons, Icon icon) {
  return Agrees(MsgBox(question, ProgramTitle, buttons, icon, DefaultButton::Last));
}

void SayAndEnd(std::string_view text) {
  if (KeepDocument) KeepDocument();
  Say(text, Icon::Critical);
  EndProgram();
}

void RunForm(Form& form, const Event& start) {
  try {
    start();
  } catch (const std::exception& error) {
    const char* const what =
        form.Closed() ? "The program could not be started: " : "The command could not be completed: ";
    Say(what + WhatOf(error), Icon::Exclamation);
  }
  while (!form.Closed()) {
    try {
      form.RunUntilClosed();
    } catch (const std::exception& error) {
      Say("The command could not be completed: " + WhatOf(error), Icon::Exclamation);
    }
  }
}

std::string DueToError(const RuntimeError& error) {
  return " due to error #" + SignedText(error.Number) + ": " + error.Description;
}

}  // namespace Global
