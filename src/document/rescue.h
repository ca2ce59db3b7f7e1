// The rescue copy: what is written of a document that may be lost.
#pragma once

#include <string>

// Writes the document as "Rescue.FIL", or the first of "Rescue2.FIL", "Rescue3.FIL", ... that is free: beside its file
// or, where that fails, into the working folder, the current folder, the user's documents or the temporary folder.
// Returns the full name; empty when no folder takes it. Says nothing.
std::string WriteRescueCopy();
