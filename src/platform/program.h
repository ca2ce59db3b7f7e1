// The running program: its command line, folders and environment, and its end.
#pragma once

#include <chrono>
#include <optional>
#include <string>

// What stood behind the program name on the command line, as written, trimmed of blanks.
std::string CommandLineText();

// The folder of the running program, without a trailing "\" (but "C:\" for a drive's root).
std::string ProgramFolder();

// The process's current folder, in the same form. The program never changes it.
std::string CurrentFolder();

// The user's folders for documents and for what is needed for a moment only, in the same form; empty when the system
// names none.
std::string DocumentsFolder();
std::string TemporaryFolder();

// The value of an environment variable; nothing when it is not defined.
std::optional<std::string> EnvironmentValue(const std::string& name);

// The day it is where the machine stands.
std::chrono::year_month_day Today();

// Closes every file and ends the process at once, from wherever it is called. The in-memory
// platform throws ProgramEnded instead, so that a test sees it.
[[noreturn]] void EndProgram();

struct ProgramEnded {};
