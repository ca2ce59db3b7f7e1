// The file dialog in memory: a test answers it.
#include "platform/file_dialog.h"

#include "platform/headless/internals.h"

std::string ChooseFile(const FileChoice& choice) { return StageChooseFile(choice); }
