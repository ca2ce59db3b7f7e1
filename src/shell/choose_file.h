// The system's dialog for choosing a file, as both programs show it.
#pragma once

#include <string>

#include "platform/file_dialog.h"

namespace Global {

// Shows the dialog, which begins in the folder that was used last where the choice names none. The folder of the file
// chosen is remembered. Empty when cancelled.
std::string ChooseFile(FileChoice choice);

}  // namespace Global
