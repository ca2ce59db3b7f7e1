// Message boxes as the program shows them: captioned with its title.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/message.h"
#include "platform/runtime_error.h"

namespace Global {

// The caption of every message box and input box.
extern std::string ProgramTitle;

// Shows a text with an OK button.
void Say(std::string_view text, Icon icon = Icon::None);

// How many texts Say has shown: tells a caller whether what it called has explained itself.
int MessagesSaid();

// Asks a question; true for Yes or OK.
bool Ask(std::string_view question, Buttons buttons, Icon icon = Icon::None);

// Says with the stop icon why the program cannot go on, and ends it; the document is kept first.
[[noreturn]] void SayAndEnd(std::string_view text);

// How SayAndEnd keeps the document: filled in by the main window, which stands above everything that may fail.
extern std::function<void()> KeepDocument;

// How a failure is quoted: " due to error # 53: File not found".
std::string DueToError(const RuntimeError& error);

}  // namespace Global
