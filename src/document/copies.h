// The copies that stand beside a document's file: the one that a save is writing, and the backup. All names are full.
#pragma once

#include <string>

// The name of the copy that a save makes of the file it replaces: the target's with the type "BAK".
std::string BackupName(const std::string& target);

// The name number 1, 2, ... under which a save writes before it renames: never longer than the target's own where
// the system would not take that.
std::string SavingName(const std::string& target, int number);

// The first of these names that no file has.
std::string FreeSavingName(const std::string& target);

// Erases what saves that were cut short left of a file: whatever has one of these names and is older than the file.
// Says nothing of what cannot be erased.
void EraseLeftovers(const std::string& target);

// The copy of a missing file that is whole (see IsWholeFile) and was written last; empty when there is none.
std::string NewestWholeCopy(const std::string& target);

// Erases a file; what cannot be erased stays, and nothing is said.
void EraseQuietly(const std::string& name);
