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

// A line of a record: its kind and number, and those of its texts that are not empty.
std::string Line(const std::string& head, int number,
                 std::initializer_list<std::pair<const char*, std::string>> texts) {
  std::string line = head + std::to_string(number);
  for (const auto& [title, text] : texts) line += text.empty() ? "" : std::string(" ") + title + "<" + text + ">";
  return line;
}

std::string NumbersAndValues(const ThingRecord& thing) {
  const std::pair<const char*, int> numbers[] = {
      {" xref1 ", thing.XREF1}, {" xref2 ", thing.XREF2}, {" categories ", thing.CATBITMAP}};
  std::string line;
  for (const auto& [title, number] : numbers) line += number == 0 ? "" : title + std::to_string(number);
  int slot = 0;
  for (const FieldValueSlot& value : thing.Values) {
    ++slot;
    if (!value.Text.empty()) line += " slot" + std::to_string(slot) + "<" + value.Text + ">";
  }
  return line;
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
  for (int at = 1; at <= TheDocument.CategoryNames.Highest(); ++at) {
    lines += Line("category ", at, {{"name", TheDocument.CategoryNames[at]}}) + "\n";
  }
  for (int at = 1; at <= TheDocument.Fields.Count(); ++at) {
    const FieldDefinition& field = TheDocument.Fields[at];
    lines += Line("field ", at, {{"keyword", field.Keyword}, {"title", field.Title}, {"type", field.Type}}) + "\n";
  }
  for (int at = 1; at <= TheDocument.Formulas.Count(); ++at) {
    const auto& [name, title, type, format, formula] = TheDocument.Formulas[at];
    lines += Line("formula ", at,
                  {{"name", name}, {"title", title}, {"type", type}, {"format", format}, {"formula", formula}}) +
             "\n";
  }
  for (int at = 1; at <= TheDocument.Things.Count(); ++at) {
    const ThingRecord& thing = TheDocument.Things[at];
    lines += Line("thing ", at, {{"name", thing.NAME}, {"note", thing.NOTE}, {"photo", thing.PICFILENAME}}) +
             NumbersAndValues(thing) + "\n";
  }
  return lines;
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
