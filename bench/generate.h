// Large documents for benchmarks, made up from a seed, and their data in formats of other tools.
#pragma once

#include <string>

// Fills the document with that many things (up to 32767), sorted by upper-cased name, with categories,
// fields, formulas, notes and links: the same from the same seed on every machine.
void GenerateDocument(int things, unsigned seed);

// The document as the bytes of a data file, written by the program's own writer.
std::string DocumentAsFilerFile();

// The document's things as a rec file: one record a thing, one field a value.
std::string DocumentAsRecFile();

// The document's things as CSV with a line of column names.
std::string DocumentAsCsv();
