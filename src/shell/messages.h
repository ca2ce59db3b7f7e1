// Message boxes as the program shows them: captioned with its title.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/form.h"
#include "platform/message.h"
#include "platform/runtime_error.h"

namespace Global {

// The caption of every message box and input box.
extern std::string ProgramTitle;

// Shows a text with an OK button.
void Say(std::string_view text, Icon icon = Icon::None);

// Asks a question; true for Yes or OK.
bool Ask(std::string_view question, Buttons buttons, Icon icon = Icon::None);

// The same before something is lost: Enter presses the button that keeps it.
bool AskBeforeLoss(std::string_view question, Buttons buttons, Icon icon = Icon::None);

// Says with the stop icon why the program cannot go on, and ends it; the document is kept first.
[[noreturn]] void SayAndEnd(std::string_view text);

// How SayAndEnd keeps the document: filled in by the main window, which stands above everything that may fail.
extern std::function<void()> KeepDocument;

// Runs a program: its form from `start`, which shows it, to its closing. What a command throws is said, and the form
// stays: whatever could not be finished, what the form holds is still there.
void RunForm(Form& form, const Event& start);

// How a failure is quoted: " due to error # 53: File not found".
std::string DueToError(const RuntimeError& error);

}  // namespace Global
