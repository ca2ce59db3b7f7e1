// The record syntax: see segments.h.
#include "document/segments.h"

#include <algorithm>
#include <utility>

#include "platform/files.h"
#include "platform/locale.h"
#include "platform/program.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "shell/messages.h"
#include "values/numbers.h"

namespace {

// One line at a time is taken apart. The texts are views of the file's own block as long as nothing has to be joined
// or deleted, which is nearly always: copies are most of what loading costs.
struct SegmentSource {
  int handle = 0;
  std::string_view pending;  // what is left of the line
  std::string joined;        // a line of several physical ones
  std::string_view segment;
  std::string unescaped;  // a segment without its tildes
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
bool ReadPhysicalLine(std::string_view& line) {
  line = {};
  return WhileReadable([&line] {
    line = Files::ReadLine(source.handle);
    return true;
  });
}

bool AtEnd() {
  return !WhileReadable([] { return !Files::AtEnd(source.handle); });
}

bool HasOuterBlanks(std::string_view line) { return !line.empty() && (line.front() == ' ' || line.back() == ' '); }

bool IsContinued(std::string_view line) { return line.ends_with('+') && !line.ends_with("~+"); }

// Reads the next line that is not empty; false at the end of the file.
bool ReadPendingLine() {
  do {
    if (!ReadPhysicalLine(source.pending)) return false;
    if (HasOuterBlanks(source.pending) && !AtEnd()) source.pending = Trim(source.pending);
  } while (source.pending.empty());
  return true;
}

// Joins the pending line with the lines that continue it.
void JoinContinuation() {
  source.joined = source.pending;
  std::string_view next;
  while (IsContinued(source.joined) && ReadPhysicalLine(next)) {
    source.joined.pop_back();
    source.joined += Trim(next);
  }
  source.pending = source.joined;
}

// The position of the first ";" that no "~" stands before, or npos.
std::size_t FindCut(std::string_view line) {
  auto cut = line.find(';');
  while (cut != std::string_view::npos && cut > 0 && line[cut - 1] == '~') cut = line.find(';', cut + 1);
  return cut;
}

}  // namespace

void StartSegments(int handle) {
  source.handle = handle;
  ClearPendingText();
}

void ClearPendingText() { source.pending = {}; }

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

// Cuts the next segment off; false at the end of the file.
bool NextSegment() {
  source.segment = {};
  if (source.pending.empty()) {
    if (!ReadPendingLine()) return false;
    if (IsContinued(source.pending)) JoinContinuation();
  }
  const std::size_t cut = FindCut(source.pending);
  if (cut == std::string_view::npos) {
    source.segment = std::exchange(source.pending, {});
  } else {
    source.segment = TrimRight(source.pending.substr(0, cut));
    source.pending = TrimLeft(source.pending.substr(cut + 1));
  }
  if (source.segment.find('~') != std::string_view::npos) {
    source.unescaped = source.segment;
    DeleteTildes(source.unescaped);
    source.segment = source.unescaped;
  }
  return true;
}

}  // namespace

std::string ReadSegment() {
  NextSegment();
  return std::string(source.segment);
}

std::string ReadToSectionHead(bool past_empty_ones) {
  for (;;) {
    std::string segment = ReadSegment();
    const bool ends = segment.empty() && source.pending.empty() && AtEnd();
    if (segment.empty() ? ends || !past_empty_ones : segment.front() == '[') return segment;
  }
}

// Upper-casing goes through the system, and keys are written in capitals.
std::string_view Assignment::ComparedKey() {
  const std::string_view key = TrimLeft(Key);
  for (const char each : key) {
    if (static_cast<unsigned char>(each) >= 'a') return capitals_ = UpperCase(key);
  }
  return key;
}

namespace {

int NextRecord(std::string_view marker, int record) {
  int number = LeadingRecordNumber(marker.substr(1));
  if (number < 1) number = record + 1;
  if (number > kLastRecord) {
    Global::Say("The input file contains too many records to load.", Icon::Critical);
    EndProgram();
  }
  return number;
}

}  // namespace

void ReadAssignment(Assignment& assignment, int& record) {
  assignment.Segment = {};
  while (NextSegment()) {
    const std::string_view segment = source.segment;
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
    if (equals == std::string_view::npos) {
      Global::Say("Data file contains invalid assignment: " + std::string(segment), Icon::Information);
      return;
    }
    assignment.Segment = segment;
    assignment.Key = segment.substr(0, equals);
    assignment.Value = segment.substr(equals + 1);
    if (record == 0) record = 1;
    return;
  }
}
