// The lock on the document's file: a second handle that lets other programs read it but not write it.
#pragma once

#include <string>

// Takes the lock when the document is writable. When the file cannot be had for writing, says so, and
// the document is no longer writable.
void TakeFileLock(const std::string& file_name);

// Takes the lock again on the file from which a save that came to nothing had taken it. Where the file cannot be had
// for writing now, nothing is said and the document stays as it was: the next save takes it.
void RetakeFileLock(const std::string& file_name);

// Gives the lock up, if it is held.
void ReleaseFileLock();
