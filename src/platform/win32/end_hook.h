// Lets the tests see the program's end instead of ending themselves.
#pragma once

// Called by EndProgram, after it closed every file, in place of ending the process; it must throw.
// Null in the program itself.
extern void (*EndHook)();
