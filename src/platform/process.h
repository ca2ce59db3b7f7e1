// Starting other programs.
#pragma once

#include <string>

// Starts a program in a normal window of its own that gets the focus, and does not wait for it. A program name
// with blanks should be quoted; without quotes each blank is tried as its end, from the left. Returns the
// task identifier, or 0 when the system reports success without a process. Throws 53 when there is no such
// program, and the system's error otherwise.
long StartProgram(const std::string& command_line);
