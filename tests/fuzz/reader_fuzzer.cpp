// Feeds arbitrary bytes to the readers of the data file and of the settings file. Whatever they are, reading must end
// with sound tables, a message for every fault and no file left open; and what was read whole must come back from a
// save.
#include <cstdint>

#include "document/document.h"
#include "document/names.h"
#include "document/reader.h"
#include "mainwindow/settings.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/headless/internals.h"
#include "platform/locale.h"
#include "platform/program.h"
#include "shell/messages.h"
#include "support/files.h"
#include "support/properties.h"
#include "values/numbers.h"

namespace {

constexpr int kSmall = 100;  // records: odd numbers make large tables, and describing those takes long
const std::string kStale = "\x01older\x02";
Icon last_icon = Icon::None;

// An older document, of which nothing may show through: many records, and then one of each kind.
std::string OlderFile() {
  std::string file = "LARKSPUR V5.0 FILER DATA\n";
  for (const auto& [count, text] : {std::pair(20, kStale), {1, "A"}}) {
    for (const char* head :
         {"[CATEGORIES]\n*;NAME=", "[FIELDS]\n*;FIELDTYPE=", "[FORMULAS]\n*;FORMAT=", "[THINGS]\n*;NOTE="}) {
      const std::string section = head, record = section.substr(section.find('\n'));
      file += section + text;
      for (int number = 2; number <= count; ++number) file += record + text;
      file += "\n";
    }
  }
  return file + "[END]";
}

template <class Record>
void CheckTable(const RecordTable<Record>& table) {
  Require(table.Count() >= 0 && table.Count() <= table.UpperBound(), "counted records have room");
  Require(table.UpperBound() <= kLastRecord + kLoadStep, "tables grow by the load step only");
}

// The format cannot hold everything that odd files can bring in: a blank at the end of a text (hidden behind a "~"), a
// type with a ";" (types are not escaped), links below 1, a name with a comma (which turns at every load), and values
// behind an empty slot, or without a field, or of one whose keyword is another when it is read before a "=".
bool FormatHolds() {
  if (DescribeDocument().find(" >") != std::string::npos) return false;
  std::string keywords = "\n";
  for (int number = 1; number <= TheDocument.Fields.Count(); ++number) {
    const FieldDefinition& field = TheDocument.Fields[number];
    if (field.Type.find(';') != std::string::npos || field.Type.ends_with('+')) return false;
    keywords += field.Keyword + "\n";
  }
  for (int number = 1; number <= TheDocument.Things.Count(); ++number) {
    const ThingRecord& thing = TheDocument.Things[number];
    if (NormaliseName(thing.NAME) != thing.NAME || thing.XREF1 < 0 || thing.XREF2 < 0) return false;
    bool ended = false;
    for (const FieldValueSlot& slot : thing.Values) {
      const std::string keyword(slot.Keyword());
      const bool held = !ended && !keyword.empty() && keyword.find('=') == std::string::npos &&
                        UpperCase(keyword) == keyword && keywords.find("\n" + keyword + "\n") != std::string::npos;
      if (!slot.Text.empty() && !held) return false;
      ended = slot.Text.empty();
    }
  }
  return true;
}

// Reads what a reader reads of the input; false when the program ended with it.
template <class Read>
bool Survives(int handle, Read read) {
  const int said = Global::MessagesSaid();
  bool complete = true;
  bool ended = false;
  try {
    complete = read();
  } catch (const ProgramEnded&) {
    complete = false;
    ended = true;
  }
  Require(complete || Global::MessagesSaid() > said, "every failure is said");
  Require(!ended || last_icon == Icon::Critical, "the program says why it ends");
  Require(!Files::IsOpen(handle), "the file is closed after reading");
  return complete;
}

void CheckDocument(const std::string& input) {
  static const std::string kOlder = OlderFile();
  TheDocument = {};
  TestFiles::Put("Input.FIL", kOlder);
  Require(LoadFilerFile("Input.FIL"), "the older document loads");
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
    if (complete && FormatHolds()) RequireRoundTrip();
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
  const int said = Global::MessagesSaid();
  LoadSettings();
  Require(Global::MessagesSaid() == said && Listed() == names, "what was written comes back without a word");
  const std::string last = TheRecentFiles[TheRecentFiles.Count];
  const int count = TheRecentFiles.Count;
  RememberRecentFile(last);
  Require(UpperCase(TheRecentFiles[1]) == UpperCase(last), "a saved file comes first");
  Require(TheRecentFiles.Count == count, "a listed file is not listed again");
}

}  // namespace

// Questions are answered by the bits of the last byte.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input(reinterpret_cast<const char*>(data), size);
  int questions = 0;
  CurrentStage().Message = [&](const std::string&, const std::string& caption, Buttons buttons, Icon icon) {
    Require(caption == "Larkspur Filer", "every box is captioned with the program's title");
    last_icon = icon;
    if (buttons == Buttons::Ok) return Answer::Ok;
    return (data[size - 1] >> (questions++ % 8)) & 1 ? Answer::Yes : Answer::No;
  };
  TestFiles::Start();
  CheckSettings(input);
  CheckDocument(input);
  TestFiles::Finish();
  return 0;
}
