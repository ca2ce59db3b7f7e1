// The copies that stand beside a document's file: the one that a save is writing (see replace_file.h), and the backup.
// All names are full.
#pragma once

#include <string>

// The name of the copy that a save makes of the file it replaces: the target's with the type "BAK".
std::string BackupName(const std::string& target);

// The copy of a missing file that is whole (see IsWholeFile) and was written last; empty when there is none.
std::string NewestWholeCopy(const std::string& target);
