// Full names out of folders and file names.
#pragma once

#include <string>
#include <string_view>

namespace Global {

// Joins a folder and a file name. A name that begins with "\" or contains ":" is full already; an empty
// folder stands for the process's current one; an empty name gives empty text.
std::string FullFileName(std::string_view folder, std::string_view name);

}  // namespace Global

// The folder of a full file name, without the "\" behind it (but "C:\" for a drive's root); empty when
// the name has none.
std::string FolderOf(std::string_view file_name);
