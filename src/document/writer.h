// The writer of the Filer data file: the counterpart of reader.h, which describes the format.
#pragma once

#include <string>
#include <string_view>

// A text as it stands behind a "=": "~" becomes "?" (the format cannot hold one), ";" becomes "~;", a
// last "+" becomes "~+", and each line break "~/" (which reads back as "/").
std::string EscapeValue(std::string_view text);

// Writes the document to the output file of that handle. What the disk refuses is thrown as
// RuntimeError, here or when the file is closed.
void SaveFilerFile(int handle);
