// What must hold for every document: see properties.h.
#include "support/properties.h"

#include <algorithm>
#include <utility>

#include "document/document.h"
#include "document/file_lock.h"
#include "document/reader.h"
#include "document/writer.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/references.h"
#include "shell/messages.h"
#include "support/files.h"

namespace {

template <class Record>
using Texts = std::vector<std::pair<const char*, std::string Record::*>>;

const Texts<FieldDefinition> kFieldTexts = {
    {"keyword", &FieldDefinition::Keyword}, {"title", &FieldDefinition::Title}, {"type", &FieldDefinition::Type}};
const Texts<FormulaDefinition> kFormulaTexts = {{"name", &FormulaDefinition::Name},
                                                {"title", &FormulaDefinition::Title},
                                                {"type", &FormulaDefinition::Type},
                                                {"format", &FormulaDefinition::Format},
                                                {"formula", &FormulaDefinition::Formula}};
const Texts<ThingRecord> kThingTexts = {
    {"name", &ThingRecord::NAME}, {"note", &ThingRecord::NOTE}, {"photo", &ThingRecord::PICFILENAME}};

std::string Member(const std::string& title, const std::string& text) {
  return text.empty() ? "" : " " + title + "<" + text + ">";
}

std::string Member(const std::string& title, int number) {
  return number == 0 ? "" : " " + title + " " + std::to_string(number);
}

std::string NumbersAndValues(const ThingRecord& thing) {
  std::string line =
      Member("xref1", thing.XREF1) + Member("xref2", thing.XREF2) + Member("categories", thing.CATBITMAP);
  for (std::size_t slot = 0; slot < kFieldValues; ++slot) {
    line += Member("slot" + std::to_string(slot + 1), thing.Values[slot].Text);
  }
  return line;
}

template <class Record>
std::string Describe(const std::string& kind, const RecordTable<Record>& table, const Texts<Record>& texts) {
  std::string lines;
  for (int number = 1; number <= table.Count(); ++number) {
    lines += kind + std::to_string(number);
    for (const auto& [title, text] : texts) lines += Member(title, table[number].*text);
    if constexpr (std::is_same_v<Record, ThingRecord>) lines += NumbersAndValues(table[number]);
    lines += "\n";
  }
  return lines;
}

// The first line of each in which two documents differ.
std::string Difference(const std::string& before, const std::string& after) {
  const auto at = std::mismatch(before.begin(), before.end(), after.begin(), after.end()).first - before.begin();
  const std::size_t start = before.rfind('\n', static_cast<std::size_t>(at)) + 1;
  const auto line = [start](const std::string& text) { return text.substr(start, text.find('\n', start) - start); };
  return "What was saved comes back different:\n" + line(before) + "\n" + line(after);
}

}  // namespace

std::string DescribeDocument() {
  std::string lines;
  for (int number = 1; number <= TheDocument.CategoryNames.Highest(); ++number) {
    lines += "category " + std::to_string(number) + Member("name", TheDocument.CategoryNames[number]) + "\n";
  }
  return lines + Describe("field ", TheDocument.Fields, kFieldTexts) +
         Describe("formula ", TheDocument.Formulas, kFormulaTexts) +
         Describe("thing ", TheDocument.Things, kThingTexts);
}

std::string JoinedSlots(const FieldSlots& slots) {
  std::string text;
  for (const FieldValueSlot& slot : slots) text += slot.Text + "|";
  return text;
}

std::string Saved(const std::string& name) {
  Files::Open(kDataFileHandle, name, Files::Mode::Output);
  SaveFilerFile(kDataFileHandle);
  Files::Close(kDataFileHandle);
  return TestFiles::Get(name).value();
}

void RequireReferencesHold(const std::string& text, std::size_t cut) {
  const std::u16string shown = Widen(text);
  Require(Narrow(shown) == text, "a text comes back from being shown");
  Require(WidePosition(text, text.size()) == shown.size(), "what is shown is measured");
  const std::string first = text.substr(0, WholeBytes(text, cut));
  Require(first.size() <= cut && Widen(first) + Widen(text.substr(first.size())) == shown, "no cut goes through");
  const std::string characters = FirstCharacters(text, cut);
  Require(shown.starts_with(Widen(characters)), "the first characters are shown as they were");
  Require(CountCharacters(characters) == std::min(cut, CountCharacters(text)), "as many characters as are wanted");
}

void RequireReferencesHold(const std::u16string& shown) {
  std::u16string whole;
  for (std::size_t at = 0; at < shown.size(); ++at) {
    const auto is_half = [&shown](std::size_t place, int which) {
      return place < shown.size() && shown[place] >> 10 == which;
    };
    if (is_half(at, 0x36) && is_half(at + 1, 0x37)) {
      whole += shown.substr(at++, 2);
    } else {
      whole += is_half(at, 0x36) || is_half(at, 0x37) ? u'\xFFFD' : shown[at];
    }
  }
  const std::string text = Narrow(shown);
  Require(Widen(text) == whole && Narrow(whole) == text, "what is shown comes back from being kept");
}

void RequireRoundTrip() {
  const std::string before = DescribeDocument();
  const std::string file = Saved("Trip.FIL");
  Require(DescribeDocument() == before, "saving changes nothing");
  MakeNew();
  TheDocument = {};
  const int said = Global::MessagesSaid();
  Require(LoadFilerFile("Trip.FIL") && Global::MessagesSaid() == said, "what was saved loads without a word");
  const std::string after = DescribeDocument();
  if (after != before) throw std::logic_error(Difference(before, after));
  Require(Saved() == file, "a second save writes the same bytes");
  ReleaseFileLock();
  Require(TestFiles::Get("Trip.FIL") == file, "loading changes no file");
}
