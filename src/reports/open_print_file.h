// Opening the print file of a report under the name that the user typed, with all that is to be asked before.
#pragma once

#include <string>

namespace Global {

// The name that is offered for a print file.
inline constexpr const char* kPrintFileName = "Report.PRN";

// Opens a file for output under kPrintFileHandle and returns its full name: names without a folder belong to the
// working folder. Without a typed name the user is asked for one, the default name being offered. Asks for the type
// that a name lacks, and before a file is overwritten whose type is neither PRN nor TMP. Empty when the user
// cancelled or, after a message, the file could not be opened: nothing is open then.
std::string OpenPrintFile(const std::string& default_name, const std::string& typed_name);

// The folder for print files with "\" behind it: the working folder, else the current one.
std::string PrintFileFolder();

}  // namespace Global
