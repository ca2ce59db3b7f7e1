// The reader of the Filer data file, and its format.
//
// A text file of lines ended by CR LF, in the system's character set, read in the record syntax of
// segments.h (written by writer.h):
//
//   LARKSPUR V5.0 FILER DATA                    versions above 0 up to 5
//   free lines up to the first "["
//   [CATEGORIES]  *N; NAME=...                  N up to 32
//   [FIELDS]      *N; NAME=keyword; TITLE=...; FIELDTYPE=...
//   [FORMULAS]    *N; NAME=...; TITLE=...; FIELDTYPE=...; FORMAT=...; FORMULA=...
//   [THINGS]      *N; NAME=...; NOTE=...; PICFILENAME=...; XREF1=n; XREF2=n; CATBITMAP=n; %keyword=value
//   [END]
//
// The sections may come in any order and more than once, but a field must be defined before a thing has
// a value of it. Heads and keys are compared without regard to case.
#pragma once

#include <string>

// Reads a file into the document, which MakeNew has cleared. True when all of it was read, down to
// "[END]"; the file is then locked for writing, unless it is not to be. Otherwise the reason was shown, and what was
// read up to there stays in the document. An unknown section head or a record number past 32767 ends the program.
bool LoadFilerFile(const std::string& path, bool lock_after_load = true);

// True for a file with a header that this program reads and an "[END]". Says nothing, and leaves the document alone.
bool IsWholeFile(const std::string& path);
