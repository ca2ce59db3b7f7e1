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
#include "support/files.h"

namespace {

// A text of a record under its title, empty for an empty one.
std::string Part(std::string_view title, const std::string& text) {
  return text.empty() ? std::string() : (" " + std::string(title)).append("<").append(text).append(">");
}

std::string Part(std::string_view title, int number) {
  return number == 0 ? std::string() : (" " + std::string(title)).append(" " + std::to_string(number));
}

std::string Part(const FieldSlots& slots) {
  std::string parts;
  int number = 0;
  for (const FieldValueSlot& slot : slots) {
    ++number;
    if (!slot.Text.empty()) parts += Part("slot" + std::to_string(number), slot.Text);
  }
  return parts;
}

}  // namespace

std::string DescribeDocument() {
  const Document& document = TheDocument;
  std::string lines;
  const auto add = [&lines](const char* kind, int number, const std::string& parts) {
    lines += kind + std::to_string(number) + parts + "\n";
  };
  for (int at = 1; at <= document.CategoryNames.Highest(); ++at) {
    add("category ", at, Part("name", document.CategoryNames[at]));
  }
  for (int at = 1; at <= document.Fields.Count(); ++at) {
    const auto& [keyword, title, type] = document.Fields[at];
    add("field ", at, Part("keyword", keyword) + Part("title", title) + Part("type", type));
  }
  for (int at = 1; at <= document.Formulas.Count(); ++at) {
    const auto& [name, title, type, format, formula] = document.Formulas[at];
    const std::string shown = Part("type", type) + Part("format", format) + Part("formula", formula);
    add("formula ", at, Part("name", name) + Part("title", title) + shown);
  }
  for (int at = 1; at <= document.Things.Count(); ++at) {
    const ThingRecord& thing = document.Things[at];
    const std::string texts = Part("name", thing.NAME) + Part("note", thing.NOTE) + Part("photo", thing.PICFILENAME);
    const std::string links = Part("xref1", thing.XREF1) + Part("xref2", thing.XREF2);
    add("thing ", at, texts + links + Part("categories", thing.CATBITMAP) + Part(thing.Values));
  }
  return lines;
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
  const auto is_kept = [](char16_t one, char16_t other) {
    return one == other || (one >> 11 == 0x1B && other == u'\xFFFD');  // half a character
  };
  const std::string text = Narrow(shown);
  const std::u16string whole = Widen(text);
  Require(std::equal(shown.begin(), shown.end(), whole.begin(), whole.end(), is_kept) && Narrow(whole) == text,
          "what is shown comes back from being kept");
}

void RequireRoundTrip() {
  const std::string before = DescribeDocument();
  const std::string file = Saved("Trip.FIL");
  Require(DescribeDocument() == before, "saving changes nothing");
  MakeNew();
  TheDocument = {};
  Require(LoadFilerFile("Trip.FIL"), "what was saved loads");
  const std::string after = DescribeDocument();
  const auto at = static_cast<std::size_t>(
      std::mismatch(before.begin(), before.end(), after.begin(), after.end()).first - before.begin());
  const std::string difference = before.substr(at, 200) + "\n" + after.substr(std::min(at, after.size()), 200);
  if (after != before) throw std::logic_error("What was saved comes back different:\n" + difference);
  Require(Saved() == file, "a second save writes the same bytes");
  ReleaseFileLock();
  Require(TestFiles::Get("Trip.FIL") == file, "loading changes no file");
}
