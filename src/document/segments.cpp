// The record syntax: see segments.h.
#include "document/segments.h"

#include <algorithm>

#include "document/text.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/program.h"
#include "platform/runtime_error.h"
#include "shell/messages.h"
#include "values/numbers.h"

namespace {

// One line at a time is taken apart: `line` holds it assembled, the pending text is what stands in it
// from `pending` on. Keeping a position instead of a second text makes a line of any length linear.
struct SegmentSource {
  int handle = 0;
  std::string line;
  std::size_t pending = 0;
  std::string physical;
  std::string segment;

  bool HasPending() const { return pending < line.size(); }
};

SegmentSource source;

bool AtEnd() { return source.handle == 0 || Files::AtEnd(source.handle); }

// Reads one physical line. What cannot be read counts as the end of the file.
bool ReadPhysicalLine() {
  try {
    if (AtEnd()) return false;
    Files::ReadLine(source.handle, source.physical);
    return true;
  } catch (const RuntimeError&) {
    source.handle = 0;
    return false;
  }
}

bool IsContinued(const std::string& line) {
  return !line.empty() && line.back() == '+' && (line.size() < 2 || line[line.size() - 2] != '~');
}

// Assembles the next line that is not empty; false at the end of the file.
bool AssembleLine() {
  source.line.clear();
  source.pending = 0;
  while (source.line.empty()) {
    if (!ReadPhysicalLine()) return false;
    const std::string_view whole = source.physical;
    source.line = AtEnd() ? whole : Trim(whole);
  }
  while (IsContinued(source.line) && !AtEnd()) {
    if (!ReadPhysicalLine()) break;
    source.line.pop_back();
    source.line += Trim(source.physical);
  }
  return true;
}

// The position of the first ";" from `first` on that no "~" stands before, or npos.
std::size_t FindCut(const std::string& line, std::size_t first) {
  auto cut = line.find(';', first);
  while (cut != std::string::npos && cut > first && line[cut - 1] == '~') cut = line.find(';', cut + 1);
  return cut;
}

}  // namespace

void StartSegments(int handle) {
  source.handle = handle;
  ClearPendingText();
}

void ClearPendingText() {
  source.line.clear();
  source.pending = 0;
}

const std::string& ReadSegment() {
  source.segment.clear();
  if (!source.HasPending() && !AssembleLine()) return source.segment;
  const std::string_view line = source.line;
  const std::size_t first = source.pending;
  const std::size_t cut = FindCut(source.line, first);
  if (cut == std::string::npos) {
    source.segment = line.substr(first);
    source.pending = line.size();
  } else {
    source.segment = TrimRight(line.substr(first, cut - first));
    source.pending = std::min(line.find_first_not_of(' ', cut + 1), line.size());
  }
  std::erase(source.segment, '~');
  return source.segment;
}

std::string ReadToSectionHead() {
  std::string segment = ReadSegment();
  while (!segment.empty() && segment.front() != '[') segment = ReadSegment();
  return segment;
}

std::string Assignment::ComparedKey() const { return UpperCase(TrimLeft(Key)); }

namespace {

int NextRecord(const std::string& marker, int record) {
  int number = LeadingRecordNumber(std::string_view(marker).substr(1));
  if (number < 1) number = record + 1;
  if (number > kLastRecord) {
    Global::Say("The input file contains too many records to load.", Icon::Critical);
    EndProgram();
  }
  return number;
}

}  // namespace

void ReadAssignment(Assignment& assignment, int& record) {
  assignment.Segment.clear();
  while (source.HasPending() || !AtEnd()) {
    const std::string& segment = ReadSegment();
    if (segment.empty() || segment.front() == '\'') continue;
    if (segment.front() == '*') {
      record = NextRecord(segment, record);
      continue;
    }
    if (segment.front() == '[') {
      assignment.Segment = segment;
      return;
    }
    const auto equals = segment.find('=');
    if (equals == std::string::npos) {
      Global::Say("Data file contains invalid assignment: " + segment, Icon::Information);
      return;
    }
    assignment.Segment = segment;
    assignment.Key.assign(segment, 0, equals);
    assignment.Value.assign(segment, equals + 1);
    if (record == 0) record = 1;
    return;
  }
}
