// The record syntax that the data file and the settings file share: lines joined and cut into segments,
// and segments read as record markers and assignments.
#pragma once

#include <string>
#include <string_view>

// Reads from the open input file of that handle from now on, with nothing pending.
void StartSegments(int handle);

// Forgets what is left of a line that was cut into segments.
void ClearPendingText();

// The next segment; empty text at the end of the file (an empty segment looks the same). A line is
// trimmed of blanks (the file's very last one is not) and skipped when empty; one that ends in "+" is
// joined with the next; the line is then cut at each ";", and the "~" that keeps a "+" or ";" from its
// effect is deleted. A line that cannot be read ends the file.
std::string ReadSegment();

// Passes over the segments before the next section head and returns it; empty text when the end of the file comes
// first or, unless those are passed over, too, an empty segment.
std::string ReadToSectionHead(bool past_empty_ones);

// One assignment of a section. Its texts are good until the next one is read or the file is closed.
class Assignment {
 public:
  std::string_view Segment;  // empty: the data ended; beginning with "[": the next section head
  std::string_view Key;      // what stood before the first "=", as read
  std::string_view Value;    // what stood behind it, as read

  bool EndsSection() const { return Segment.empty() || Segment.front() == '['; }
  // The key as it is compared: without leading blanks, upper-cased.
  std::string_view ComparedKey();

 private:
  std::string capitals_;
};

// Reads the next assignment of the current section. `record` is the section's record counter, 0 at its
// start: a marker "*" adds one to it, "*N" makes it N, and an assignment before any marker makes it 1.
// Comments and empty segments are passed over. A segment that is none of these is reported and ends
// the data. A record number past 32767 is reported and ends the program.
void ReadAssignment(Assignment& assignment, int& record);
