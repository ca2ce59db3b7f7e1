// What must hold for every document, and what it takes to see it: for tests that make documents up and for fuzzers that
// find files. Nothing of a test's own is needed here, so that the fuzzers can do without one.
#pragma once

#include <stdexcept>
#include <string>

#include "values/definitions.h"

// Throws what was promised when it does not hold: a test fails with it, a fuzzer ends.
inline void Require(bool holds, const char* promise) {
  if (!holds) throw std::logic_error(promise);
}

// The document in words, a line a record, for comparing; empty members are left out.
std::string DescribeDocument();

// The bytes of the file of that name, or of a passing one, after the document was written to it.
std::string Saved(const std::string& name = "Saved.FIL");

// A text that is kept comes back from being shown, one that is shown from being kept, and neither is cut or measured
// through a reference: cut there, in bytes or characters.
void RequireReferencesHold(const std::string& text, std::size_t cut);
void RequireReferencesHold(const std::u16string& shown);

// Saves the document, and loads and saves it again: nothing is said, and nothing differs.
void RequireRoundTrip();
