// Feeds arbitrary bytes to the readers of the data file and of the settings file. Whatever they are, reading must end
// with sound tables, a message for every fault and no file left open; and what was read whole must come back from a
// save.
#include <cstdint>

#include "document/document.h"
#include "document/reader.h"
#include "mainwindow/settings.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/headless/internals.h"
#include "platform/locale.h"
#include "platform/program.h"
#include "support/files.h"
#include "support/properties.h"
#include "values/numbers.h"

namespace {

constexpr int kSmall = 100;  // records: odd numbers make large tables, and describing those takes long
const std::string kStale = "\x01older\x02";
Icon last_icon = Icon::None;
int boxes = 0;  // that came

template <class Record>
void CheckTable(const RecordTable<Record>& table) {
  Require(table.Count() >= 0 && table.Count() <= table.UpperBound(), "counted records have room");
  Require(table.UpperBound() <= kLastRecord + kLoadStep, "tables grow by the load step only");
}

// Reads what a reader reads of the input; false when the program ended with it.
template <class Read>
bool Survives(int handle, Read read) {
  const int said = boxes;
  bool complete = false;
  try {
    complete = read();
  } catch (const ProgramEnded&) {
    Require(last_icon == Icon::Critical, "the program says why it ends");
  }
  Require(complete || boxes > said, "every failure is said");
  Require(!Files::IsOpen(handle), "the file is closed after reading");
  return complete;
}

bool IsField(std::string_view keyword) {
  int number = 1;
  while (TheDocument.Fields.Holds(number) && TheDocument.Fields[number].Keyword != keyword) ++number;
  return !keyword.empty() && TheDocument.Fields.Holds(number);
}

// The format cannot hold everything that odd files can bring in: a blank at the end of a text and a type with a ";"
// (both hidden behind a "~"), links below 1, a name with a comma (which turns at every load), and values behind an
// empty slot or without a field.
bool FormatHolds(const std::string& input) {
  bool holds = input.find_first_of("~,-") == std::string::npos;
  for (int number = 1; number <= TheDocument.Things.Count(); ++number) {
    const FieldSlots& slots = TheDocument.Things[number].Values;
    holds = holds && PackValues(slots) == slots;
    for (const FieldValueSlot& slot : slots) holds = holds && (slot.Text.empty() || IsField(slot.Keyword()));
  }
  return holds;
}

void CheckDocument(const std::string& input) {
  TheDocument = {};
  for (int number = 1; number <= 20; ++number) {  // an older document, of which nothing may show through
    TheDocument.CategoryNames.Writable(number) = TheDocument.Fields.Writable(number).Type = kStale;
    TheDocument.Formulas.Writable(number).Format = TheDocument.Things.Writable(number).NOTE = kStale;
  }
  MakeNew();
  TestFiles::Put("Input.FIL", input);
  const bool complete = Survives(kDataFileHandle, [] { return LoadFilerFile("Input.FIL"); });
  Require(TheDocument.LockHeld == complete && Files::IsOpen(kLockHandle) == complete, "a whole file is locked");
  CheckTable(TheDocument.Things);
  CheckTable(TheDocument.Fields);
  CheckTable(TheDocument.Formulas);
  if (TheDocument.Things.Count() + TheDocument.Fields.Count() + TheDocument.Formulas.Count() <= kSmall) {
    const bool may_be_stale = input.find(kStale) != std::string::npos;
    Require(may_be_stale || DescribeDocument().find(kStale) == std::string::npos, "nothing older shows through");
    if (complete && FormatHolds(input)) RequireRoundTrip();
  }
  MakeNew();
}

std::string Listed() {
  std::string names;
  Require(TheRecentFiles.Count >= 0 && TheRecentFiles.Count <= kRecentFiles, "the count is from 0 to 10");
  for (int position = 1; position <= TheRecentFiles.Count; ++position) names += TheRecentFiles[position] + "\n";
  return names;
}

void CheckSettings(const std::string& input) {
  const auto load = [] {
    LoadSettings();
    return true;
  };
  TestFiles::Put(SettingsFileName(), input);
  if (!Survives(kSettingsHandle, load)) return;
  const std::string names = Listed();
  if (names.empty() || names.find(" \n") != std::string::npos) return;  // blanks there are not kept
  SaveSettings();
  const int said = boxes;
  LoadSettings();
  Require(boxes == said && Listed() == names, "what was written comes back without a word");
  RecentFileList former = TheRecentFiles;
  RememberRecentFile(former[former.Count]);
  Require(UpperCase(TheRecentFiles[1]) == UpperCase(former[former.Count]), "a saved file comes first");
  Require(TheRecentFiles.Count == former.Count, "a listed file is not listed again");
}

}  // namespace

// Questions are answered by the bits of the last byte.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input(reinterpret_cast<const char*>(data), size);
  int questions = 0;
  CurrentStage().Message = [&](const std::string&, const std::string& caption, Buttons buttons, Icon icon) {
    Require(caption == "Larkspur Filer", "every box is captioned with the program's title");
    last_icon = icon;
    ++boxes;
    if (buttons == Buttons::Ok) return Answer::Ok;
    return (data[size - 1] >> (questions++ % 8)) & 1 ? Answer::Yes : Answer::No;
  };
  TestFiles::Start();
  CheckSettings(input);
  CheckDocument(input);
  TestFiles::Finish();
  return 0;
}
