// Full names out of folders and file names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Global {

// Joins a folder and a file name. A name that begins with "\" or contains ":" is full already; an empty
// folder stands for the process's current one; an empty name gives empty text.
std::string FullFileName(std::string_view folder, std::string_view name);

}  // namespace Global

// The folder of a file name, without the "\" behind it (but "C:\" for a drive's root); empty when the name has none.
// Here and below "/" parts folders as "\" does.
std::string FolderOf(std::string_view file_name);

// What stands behind the folder of a file name, and where it begins.
std::size_t NameStart(std::string_view file_name);
std::string NameWithoutFolder(std::string_view file_name);

// A full name of at most `most` characters, for showing: "C:\...\Toys\Home.FIL". The drive or machine stays, and as
// many of the last folders as there is room for; the file's own name always stays whole.
std::string ShortenedName(const std::string& name, std::size_t most);

// The position of the "." before a file name's type, or npos. A folder's name may hold a "." as well.
std::size_t TypeDot(std::string_view file_name);

// True for the names of a document's file and of a picture's, by their types.
bool IsDataFile(std::string_view file_name);
bool IsPicture(std::string_view file_name);

// True for two full names of one file.
bool SameFile(std::string_view one, std::string_view other);

// Where a photo may be, the likeliest place first, for a photo's name as a thing has it. A name without a full folder
// is looked for beside the data file, then in the working folder. A full one is taken as it is; after that, beside the
// data file, its end from the last separator, from the last but one, and so on, so that a collection can move together
// with its photos. Both "\" and "/" part folders; the names told have "\" only. `data_file` is the full name of the
// data file, or empty.
std::vector<std::string> PhotoPlaces(const std::string& name, const std::string& data_file,
                                     const std::string& working_folder);
