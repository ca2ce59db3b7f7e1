// The command line: what the program was started with.
#pragma once

#include <string_view>

#include "shell/start_options.h"

// Takes a command line apart: an optional file name, then "/KEYWORD=value" as often as wanted. A value
// ends at the next "/", even inside quotes. When a keyword is unknown or an assignment has no "=", says
// that the parameters are ignored and leaves file and thing empty; folders already read stay.
StartOptions ParseCommandLine(std::string_view text);
