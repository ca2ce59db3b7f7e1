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

// What cannot be read ends the data. To know the end of the file, some of it may have to be read, too.
template <class Act>
bool WhileReadable(Act act) {
  if (source.handle == 0) return false;
  try {
    return act();
  } catch (const RuntimeError&) {
    source.handle = 0;
    return false;
  }
}

// Reads one physical line; false behind the last one.
bool ReadPhysicalLine(std::string& line) {
  line.clear();
  return WhileReadable([&line] {
    Files::ReadLine(source.handle, line);
    return true;
  });
}

bool AtEnd() {
  return !WhileReadable([] { return !Files::AtEnd(source.handle); });
}

bool HasOuterBlanks(const std::string& line) { return !line.empty() && (line.front() == ' ' || line.back() == ' '); }

bool IsContinued(const std::string& line) {
  return !line.empty() && line.back() == '+' && (line.size() < 2 || line[line.size() - 2] != '~');
}

// Assembles the next line that is not empty; false at the end of the file.
bool AssembleLine() {
  source.pending = 0;
  do {
    if (!ReadPhysicalLine(source.line)) return false;
    if (HasOuterBlanks(source.line) && !AtEnd()) source.line = std::string(Trim(source.line));
  } while (source.line.empty());
  while (IsContinued(source.line) && !AtEnd()) {
    if (!ReadPhysicalLine(source.physical)) break;
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

namespace {

// Piece by piece, as tildes are rare.
void DeleteTildes(std::string& text) {
  auto tilde = text.find('~');
  auto end = tilde;
  while (tilde != std::string::npos) {
    const auto piece = tilde + 1;
    tilde = text.find('~', piece);
    const auto length = std::min(tilde, text.size()) - piece;
    std::char_traits<char>::move(text.data() + end, text.data() + piece, length);
    end += length;
  }
  if (end != std::string::npos) text.resize(end);
}

// Cuts the next segment off; false at the end of the file. Most lines are one segment: they are not copied.
bool NextSegment() {
  source.segment.clear();
  if (!source.HasPending() && !AssembleLine()) return false;
  const std::size_t first = source.pending;
  const std::size_t cut = FindCut(source.line, first);
  if (cut == std::string::npos) {
    if (first == 0) {
      source.segment.swap(source.line);
    } else {
      source.segment.assign(source.line, first);
    }
    ClearPendingText();
  } else {
    const std::string_view line = source.line;
    source.segment = TrimRight(line.substr(first, cut - first));
    source.pending = std::min(line.find_first_not_of(' ', cut + 1), line.size());
  }
  DeleteTildes(source.segment);
  return true;
}

}  // namespace

const std::string& ReadSegment() {
  NextSegment();
  return source.segment;
}

std::string ReadToSectionHead(bool past_empty_ones) {
  for (;;) {
    const std::string& segment = ReadSegment();
    const bool ends = segment.empty() && !source.HasPending() && AtEnd();
    if (segment.empty() ? ends || !past_empty_ones : segment.front() == '[') return segment;
  }
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
  while (NextSegment()) {
    const std::string& segment = source.segment;
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
    assignment.Segment.swap(source.segment);
    assignment.Key = std::string_view(assignment.Segment).substr(0, equals);
    assignment.Value = std::string_view(assignment.Segment).substr(equals + 1);
    if (record == 0) record = 1;
    return;
  }
}
