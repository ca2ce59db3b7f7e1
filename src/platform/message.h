// Message and input boxes: modal, centred on the active form, answered before the call returns.
#pragma once

#include <string>
#include <string_view>

enum class Icon { None, Information, Exclamation, Critical };
enum class Buttons { Ok, OkCancel, YesNo };
enum class Answer { Ok, Cancel, Yes, No };
enum class DefaultButton { First, Last };  // the one that Enter presses

// Shows a message box and returns the button pressed. Closing an OK/Cancel box answers Cancel; a Yes/No box must be
// answered. Never fails.
Answer MsgBox(std::string_view text, std::string_view caption, Buttons buttons = Buttons::Ok, Icon icon = Icon::None,
              DefaultButton default_button = DefaultButton::First);

// Asks for one line of text; F1 is the matter of the form below. Returns it as typed, or empty text when the user
// cancelled.
std::string InputBox(std::string_view prompt, std::string_view caption, std::string_view offered = "");
