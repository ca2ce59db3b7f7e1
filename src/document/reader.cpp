// The reader of the Filer data file: see reader.h.
#include "document/reader.h"

#include <algorithm>
#include <optional>

#include "document/document.h"
#include "document/file_lock.h"
#include "document/names.h"
#include "document/segments.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/program.h"
#include "platform/text.h"
#include "shell/messages.h"
#include "values/numbers.h"

namespace {

// Follows the record numbers of one section and resets each record before it is filled for the first
// time, so that nothing of an older document shows through a gap in the numbering. Records above `last_used` were
// never filled before.
class RecordCursor {
 public:
  explicit RecordCursor(int last_used) : last_used_(last_used) {}

  int Last() const { return last_; }  // of the assignment taken up last, 0 before the first

  // Returns true when the number moved up: the record is then new and was reset.
  template <class Reset>
  bool MoveTo(int record, Reset reset) {
    const bool moved_up = record > previous_;
    if (moved_up) {
      const int last_stale = std::max(highest_, last_used_);
      for (int gap = highest_ + 1; gap < record && gap <= last_stale; ++gap) reset(gap);
      if (record <= last_stale) reset(record);
      highest_ = std::max(highest_, record);
    }
    previous_ = last_ = record;
    return moved_up;
  }

 private:
  int last_used_;
  int previous_ = 1;  // record 1 is reset when the section starts
  int highest_ = 1;
  int last_ = 0;
};

std::string ReadCategories() {
  CategoryNameTable& names = TheDocument.CategoryNames;
  names.Writable(1).clear();
  RecordCursor cursor(kCategories);
  Assignment assignment;
  int record = 0;
  for (ReadAssignment(assignment, record); !assignment.EndsSection(); ReadAssignment(assignment, record)) {
    if (record > kCategories) {
      Global::Say("Maximum 32 categories exceeded; loading stopped.", Icon::Critical);
      return {};
    }
    cursor.MoveTo(record, [&](int number) { names.Writable(number).clear(); });
    if (assignment.ComparedKey() != "NAME") {
      Global::Say("Data file contains invalid field name for categories: " + std::string(assignment.Key),
                  Icon::Exclamation);
      return {};
    }
    names.Writable(record) = Trim(assignment.Value);
  }
  return std::string(assignment.Segment);
}

// Where a definition keeps the value of a key; null for a key it does not have.
std::string* MemberOf(FieldDefinition& field, std::string_view key) {
  if (key == "NAME") return &field.Keyword;
  if (key == "TITLE") return &field.Title;
  if (key == "FIELDTYPE") return &field.Type;
  return nullptr;
}

std::string* MemberOf(FormulaDefinition& formula, std::string_view key) {
  if (key == "NAME") return &formula.Name;
  if (key == "TITLE") return &formula.Title;
  if (key == "FIELDTYPE") return &formula.Type;
  if (key == "FORMAT") return &formula.Format;
  if (key == "FORMULA") return &formula.Formula;
  return nullptr;
}

template <class Definition>
std::string ReadDefinitions(RecordTable<Definition>& table) {
  const Definition nothing;
  table.Writable(1) = nothing;
  RecordCursor cursor(table.UpperBound());
  Assignment assignment;
  int record = 0;
  for (ReadAssignment(assignment, record); !assignment.EndsSection(); ReadAssignment(assignment, record)) {
    table.GrowFor(record, kLoadStep);
    cursor.MoveTo(record, [&](int number) { table.Writable(number) = nothing; });
    std::string* member = MemberOf(table.Writable(record), assignment.ComparedKey());
    if (member == nullptr) {
      Global::Say("Data file contains invalid definitinon for field: " + std::string(assignment.Segment),
                  Icon::Exclamation);
      assignment.Segment = {};
      break;
    }
    *member = assignment.Value;
  }
  table.SetCount(cursor.Last());
  return std::string(assignment.Segment);
}

bool IsDefinedField(std::string_view keyword) {
  const auto& fields = TheDocument.Fields;
  for (int field = 1; field <= fields.Count(); ++field) {
    if (fields[field].Keyword == keyword) return true;
  }
  return false;
}

bool StorePlainKey(ThingRecord& thing, std::string_view key, const Assignment& assignment) {
  if (key == "NAME") {
    thing.NAME = NormaliseName(assignment.Value);
  } else if (key == "NOTE") {
    thing.NOTE = assignment.Value;
  } else if (key == "PICFILENAME") {
    thing.PICFILENAME = assignment.Value;
  } else if (key == "XREF1") {
    thing.XREF1 = LeadingInt16(assignment.Value);
  } else if (key == "XREF2") {
    thing.XREF2 = LeadingInt16(assignment.Value);
  } else if (key == "CATBITMAP") {
    thing.CATBITMAP = LeadingInt32(assignment.Value);
  } else {
    Global::Say("Data file contains invalid field name for things: " + std::string(assignment.Key), Icon::Exclamation);
    return false;
  }
  return true;
}

// Stores the value of a field given as "%" and its keyword. `values` counts the record's values so far.
bool StoreFieldValue(ThingRecord& thing, int record, std::string_view key, const Assignment& assignment, int& values) {
  const std::string_view keyword = key.substr(1);
  if (!IsDefinedField(keyword)) {
    return Global::Ask("Filer object record contains unknown user-defined field: <<" + std::string(assignment.Segment) +
                           ">>.  It will not be loaded.  Do you wish to continue loading the remaining data?",
                       Buttons::YesNo);
  }
  if (++values > kFieldValues) {
    Global::Say(
        "Data file contains too many user-defined fields for person #" + std::to_string(record) + ": " + thing.NAME,
        Icon::Exclamation);
    return false;
  }
  thing.Values[static_cast<std::size_t>(values - 1)].Set(keyword, Trim(assignment.Value));
  return true;
}

std::string ReadThings() {
  RecordTable<ThingRecord>& things = TheDocument.Things;
  const ThingRecord nothing;
  things.Writable(1) = nothing;
  RecordCursor cursor(things.UpperBound());
  Assignment assignment;
  int record = 0;
  int values = 0;
  for (ReadAssignment(assignment, record); !assignment.EndsSection(); ReadAssignment(assignment, record)) {
    things.GrowFor(record, kLoadStep);
    if (cursor.MoveTo(record, [&](int number) { things.Writable(number) = nothing; })) values = 0;
    const std::string_view key = assignment.ComparedKey();
    ThingRecord& thing = things.Writable(record);
    const bool stored = key.starts_with('%') ? StoreFieldValue(thing, record, key, assignment, values)
                                             : StorePlainKey(thing, key, assignment);
    if (!stored) {
      assignment.Segment = {};
      break;
    }
  }
  things.SetCount(cursor.Last());
  return std::string(assignment.Segment);
}

// True when the first line is a header that this program reads.
bool AcceptsHeader(int handle) {
  std::string upper;
  try {
    upper = UpperCase(Files::ReadLine(handle));
  } catch (const RuntimeError&) {
    return false;  // an empty file, or one that the disk does not give back
  }
  const std::string_view line = Trim(upper);
  double version = 0;
  try {
    const auto mark = line.find(" V");
    if (mark != std::string_view::npos && mark + 5 <= line.size()) version = LeadingNumber(line.substr(mark + 2));
  } catch (const RuntimeError&) {
    return false;
  }
  const bool is_filer = line.find("LARKSPUR") != std::string_view::npos;
  const bool is_data = line.find("FILER DATA") != std::string_view::npos;
  return is_filer && is_data && version != 0 && !(version > 5);
}

// Reads the section of a head and returns the segment that ended it.
std::string ReadSection(const std::string& head) {
  const std::string name = UpperCase(head);
  if (name == "[CATEGORIES]") return ReadCategories();
  if (name == "[FIELDS]") return ReadDefinitions(TheDocument.Fields);
  if (name == "[FORMULAS]") return ReadDefinitions(TheDocument.Formulas);
  if (name == "[THINGS]") return ReadThings();
  Global::Say("File contains invalid record type: " + head, Icon::Critical);
  Files::Close(kDataFileHandle);
  EndProgram();
}

enum class Extent { Nothing, Part, Whole };

// The record syntax is read from a file as long as this lives.
struct SegmentsOf {
  explicit SegmentsOf(int handle) { StartSegments(handle); }
  ~SegmentsOf() { StartSegments(0); }
};

// Reads every section down to "[END]" or to the first fault.
Extent ReadSections() {
  const SegmentsOf segments(kDataFileHandle);
  std::string segment = ReadToSectionHead(false);
  if (segment.empty()) {
    Global::Say("Data file contains no record definitions.", Icon::Exclamation);
    return Extent::Nothing;
  }
  while (!segment.empty()) {
    if (UpperCase(segment) == "[END]") return Extent::Whole;
    segment = ReadSection(segment);
  }
  return Extent::Part;
}

Extent ReadDataFile() {
  if (AcceptsHeader(kDataFileHandle)) return ReadSections();
  Global::Say("Failed to load Filer data file due to invalid format or version.", Icon::Exclamation);
  return Extent::Nothing;
}

}  // namespace

bool LoadFilerFile(const std::string& path, bool lock_after_load) {
  std::optional<Files::OpenFile> file;
  try {
    file.emplace(kDataFileHandle, path, Files::Mode::Input);
  } catch (const RuntimeError& error) {
    Global::Say("Failed to open file " + path + Global::DueToError(error), Icon::Exclamation);
    return false;
  }
  const Extent extent = ReadDataFile();
  file.reset();
  if (extent == Extent::Part) {
    Global::Say("The file was not completely loaded.  Some information will be missing.", Icon::Exclamation);
  }
  if (extent == Extent::Whole && lock_after_load) TakeFileLock(path);
  return extent == Extent::Whole;
}

bool IsWholeFile(const std::string& path) {
  try {
    const Files::OpenFile file(kProbeHandle, path, Files::Mode::Input);
    if (!AcceptsHeader(kProbeHandle)) return false;
    const SegmentsOf segments(kProbeHandle);
    std::string head;
    do {
      head = UpperCase(ReadToSectionHead(true));
    } while (!head.empty() && head != "[END]");
    return !head.empty();
  } catch (const RuntimeError&) {
    return false;
  }
}
