// Feeds arbitrary bytes to the reader of the data file. Whatever they are, loading must end with a sound
// document, a message for every fault, and no file left open; and what was loaded whole must come back
// unchanged from a save.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "document/document.h"
#include "document/file_handles.h"
#include "document/names.h"
#include "document/reader.h"
#include "document/writer.h"
#include "platform/files.h"
#include "platform/headless/internals.h"
#include "platform/headless/machine.h"
#include "platform/locale.h"
#include "platform/program.h"
#include "values/numbers.h"

namespace {

const std::string kInput = "C:\\INPUT.FIL";
const std::string kSaved = "C:\\SAVED.FIL";
const std::string kSavedAgain = "C:\\AGAIN.FIL";
const std::string kStale = "\x01older\x02";
// Odd record numbers make large tables. For the sake of speed these are not kept for the next input, only
// the first records are left stale, and only small documents are saved.
constexpr int kLargestKept = 250;
constexpr int kChecked = 20;

void Require(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "broken promise: %s\n", promise);
  std::abort();
}

// What came up while loading. Questions are answered by the bits of the input's last byte.
struct Boxes {
  int Count = 0;
  int Questions = 0;
  Icon Last = Icon::None;
  std::string Text;
};
Boxes boxes;

void InstallStage(std::uint8_t answers) {
  boxes = {};
  CurrentStage().Message = [answers](const std::string& text, const std::string& caption, Buttons buttons, Icon icon) {
    Require(caption == "Larkspur Filer", "every box is captioned with the program's title");
    ++boxes.Count;
    boxes.Last = icon;
    boxes.Text = text;
    if (buttons == Buttons::Ok) return Answer::Ok;
    return (answers >> (boxes.Questions++ % 8)) & 1 ? Answer::Yes : Answer::No;
  };
}

template <class Record, class Mark>
void LeaveStale(RecordTable<Record>& table, Mark mark) {
  for (int number = 1; number <= std::min(table.UpperBound(), kChecked); ++number) mark(table[number]);
}

// An older document, of which nothing may show through.
void LeaveOlderDocument() {
  if (TheDocument.Things.UpperBound() > kLargestKept) TheDocument.Things = RecordTable<ThingRecord>(200);
  if (TheDocument.Fields.UpperBound() > kLargestKept) TheDocument.Fields = RecordTable<FieldDefinition>(30);
  if (TheDocument.Formulas.UpperBound() > kLargestKept) TheDocument.Formulas = RecordTable<FormulaDefinition>(20);
  LeaveStale(TheDocument.Things, [](ThingRecord& thing) {
    thing.NAME = kStale;
    thing.Values[kFieldValues - 1].Text = kStale;
  });
  LeaveStale(TheDocument.Fields, [](FieldDefinition& field) { field.Keyword = field.Type = kStale; });
  LeaveStale(TheDocument.Formulas, [](FormulaDefinition& formula) { formula.Name = formula.Format = kStale; });
  for (int number = 1; number <= kCategories; ++number) TheDocument.CategoryNames[number] = kStale;
  TheDocument.Formulas.SetCount(0);
}

bool IsDefined(std::string_view keyword) {
  const auto& fields = TheDocument.Fields;
  for (int field = 1; field <= fields.Count(); ++field) {
    if (fields[field].Keyword == keyword) return true;
  }
  return false;
}

template <class Record>
void CheckTable(const RecordTable<Record>& table) {
  Require(table.Count() >= 0 && table.Count() <= kLastRecord, "counts are from 0 to 32767");
  Require(table.UpperBound() <= kLastRecord + kLoadStep, "tables grow by the load step only");
  Require(table.Count() <= table.UpperBound(), "counted records have room");
}

void CheckNothingStale() {
  const Document& document = TheDocument;
  for (int number = 1; number <= document.Things.Count(); ++number) {
    const ThingRecord& thing = document.Things[number];
    Require(thing.NAME != kStale && thing.Values[kFieldValues - 1].Text != kStale, "no older thing shows through");
  }
  for (int number = 1; number <= document.Fields.Count(); ++number) {
    const FieldDefinition& field = document.Fields[number];
    Require(field.Keyword != kStale && field.Type != kStale, "no older field shows through");
  }
  for (int number = 1; number <= document.Formulas.Count(); ++number) {
    const FormulaDefinition& formula = document.Formulas[number];
    Require(formula.Name != kStale && formula.Format != kStale, "no older formula shows through");
  }
  for (int number = 1; number <= kCategories; ++number) {
    Require(document.CategoryNames[number] != kStale, "no older category shows through");
  }
}

// True when the input may hold more than one head "[FIELDS]": the second may take away what values refer to.
bool MayRedefineFields(std::string_view input) {
  std::string text;
  for (const char each : input) {
    if (std::string_view("~+\r\n ").find(each) == std::string_view::npos) text += UpperCase(each);
  }
  const auto first = text.find("[FIELDS]");
  return first != std::string::npos && text.find("[FIELDS]", first + 1) != std::string::npos;
}

void CheckValues() {
  for (int number = 1; number <= TheDocument.Things.Count(); ++number) {
    for (const FieldValueSlot& slot : TheDocument.Things[number].Values) {
      if (slot.Text.empty()) continue;
      bool defined = false;
      for (auto colon = slot.Text.find(':'); colon != std::string::npos && !defined;
           colon = slot.Text.find(':', colon + 1)) {
        defined = IsDefined(std::string_view(slot.Text).substr(0, colon));
      }
      Require(defined, "every value belongs to a defined field");
    }
  }
}

// --- What a save brings back ---

bool EndsInBlank(const std::string& text) { return text.ends_with(' '); }

// The format cannot hold everything that odd files can bring in: a blank at the end of a text (hidden behind
// a "~"), a name with a comma (which turns at every load), a type with a ";" (types are not escaped), a
// keyword with ":" or "=", or with small letters, and a value whose field was taken away again.
bool FormatHolds(const ThingRecord& thing) {
  if (EndsInBlank(thing.NOTE) || EndsInBlank(thing.PICFILENAME) || NormaliseName(thing.NAME) != thing.NAME)
    return false;
  for (const FieldValueSlot& slot : thing.Values) {
    const std::string_view keyword = slot.Keyword();
    if (keyword.empty()) continue;
    if (keyword.find('=') != std::string_view::npos || UpperCase(keyword) != keyword || !IsDefined(keyword))
      return false;
  }
  return true;
}

bool FormatHoldsDocument() {
  const Document& document = TheDocument;
  for (int number = 1; number <= document.Fields.Count(); ++number) {
    const FieldDefinition& field = document.Fields[number];
    if (EndsInBlank(field.Keyword) || EndsInBlank(field.Title) || EndsInBlank(field.Type)) return false;
    if (field.Type.find(';') != std::string::npos || field.Type.ends_with('+')) return false;
  }
  for (int number = 1; number <= document.Formulas.Count(); ++number) {
    const FormulaDefinition& formula = document.Formulas[number];
    for (const std::string* text : {&formula.Name, &formula.Title, &formula.Type, &formula.Format, &formula.Formula}) {
      if (EndsInBlank(*text)) return false;
    }
  }
  for (int number = 1; number <= document.Things.Count(); ++number) {
    if (!FormatHolds(document.Things[number])) return false;
  }
  return true;
}

void AppendText(std::string& out, std::string_view text) {
  out += std::to_string(text.size());
  out += ':';
  out += text;
}

// Everything of the document that a file keeps, as one text to compare. Links below 1 lead nowhere and are
// not kept, nor are values without a keyword.
std::string Contents() {
  const Document& document = TheDocument;
  std::string out;
  for (int number = 1; number <= kCategories; ++number) AppendText(out, document.CategoryNames[number]);
  for (int number = 1; number <= document.Fields.Count(); ++number) {
    const FieldDefinition& field = document.Fields[number];
    for (const std::string* text : {&field.Keyword, &field.Title, &field.Type}) AppendText(out, *text);
  }
  out += '/';
  for (int number = 1; number <= document.Formulas.Count(); ++number) {
    const FormulaDefinition& formula = document.Formulas[number];
    for (const std::string* text : {&formula.Name, &formula.Title, &formula.Type, &formula.Format, &formula.Formula}) {
      AppendText(out, *text);
    }
  }
  out += '/';
  for (int number = 1; number <= document.Things.Count(); ++number) {
    const ThingRecord& thing = document.Things[number];
    for (const std::string* text : {&thing.NAME, &thing.NOTE, &thing.PICFILENAME}) AppendText(out, *text);
    for (const int link : {thing.XREF1, thing.XREF2}) AppendText(out, std::to_string(link > 0 ? link : 0));
    AppendText(out, std::to_string(thing.CATBITMAP));
    for (const FieldValueSlot& slot : thing.Values) {
      if (!slot.Keyword().empty()) AppendText(out, slot.Text);
    }
    out += ';';
  }
  return out;
}

std::string Save(const std::string& name) {
  Files::Open(kDataFileHandle, name, Files::Mode::Output);
  SaveFilerFile(kDataFileHandle);
  Files::Close(kDataFileHandle);
  return Machine::FileBytes(name).value();
}

bool SmallDocument() {
  return TheDocument.Things.Count() + TheDocument.Fields.Count() + TheDocument.Formulas.Count() <= kChecked;
}

void CheckSaving() {
  if (!FormatHoldsDocument()) return;
  const std::string contents = Contents();
  const std::string first = Save(kSaved);
  MakeNew();
  TheDocument.Formulas.SetCount(0);
  boxes = {};
  const bool complete = LoadFilerFile(kSaved);
  Require(complete && boxes.Count == 0, "what was saved loads without a word");
  Require(Contents() == contents, "what was saved comes back unchanged");
  Require(Save(kSavedAgain) == first, "a second save writes the same bytes");
  MakeNew();  // gives up the lock, but not the tables
  Require(Machine::FileBytes(kSaved) == first, "loading changes no file");
}

void CheckLoaded(bool complete, std::string_view input) {
  Require(!Files::IsOpen(kDataFileHandle), "the file is closed after loading");
  Require(TheDocument.LockHeld == complete && Files::IsOpen(kLockHandle) == complete, "a whole file is locked");
  Require(complete || boxes.Count > 0, "every failure is said");
  CheckTable(TheDocument.Things);
  CheckTable(TheDocument.Fields);
  CheckTable(TheDocument.Formulas);
  if (input.find(kStale) == std::string_view::npos) CheckNothingStale();
  if (!MayRedefineFields(input)) CheckValues();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input(reinterpret_cast<const char*>(data), size);
  InstallStage(size == 0 ? 0 : data[size - 1]);
  LeaveOlderDocument();
  Machine::PutFile(kInput, input);
  MakeNew();
  try {
    const bool complete = LoadFilerFile(kInput);
    CheckLoaded(complete, input);
    if (complete && SmallDocument()) CheckSaving();
  } catch (const ProgramEnded&) {
    Require(boxes.Last == Icon::Critical, "the program says why it ends");
    Require(!Files::IsOpen(kDataFileHandle) && !Files::IsOpen(kLockHandle), "the end closes the files");
  }
  MakeNew();
  return 0;
}
