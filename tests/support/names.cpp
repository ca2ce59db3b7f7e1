// Reading the program's id headers and templates: see names.h.
#include "support/names.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

#include "support/rows.h"

namespace {

struct Book {
  std::map<std::string, int> Ids;  // "IDC_PersonCombo"
  std::map<int, Names::Template> Templates;
};

// The letter tabs are told apart by their letters, other rows by numbers from 1 on.
std::string InRow(const std::string& name, int place) {
  const bool letters = name.starts_with("Letter");
  return name + "[" + (letters ? std::string(1, static_cast<char>('A' + place)) : std::to_string(place + 1)) + "]";
}

void ReadIds(const std::string& line, Book& book) {
  std::string define, name;
  int id = 0;
  if (std::istringstream(line) >> define >> name >> id && name.starts_with("ID")) book.Ids[name] = id;
}

// A line of the template or the menu that came last.
void ReadTemplate(const std::string& line, Book& book) {
  static Names::Template* form = nullptr;
  std::istringstream in(line);
  std::string kind, text;
  in >> kind >> std::ws;
  if (in.peek() == '"') std::getline(in.ignore(), text, '"');
  const std::size_t at = line.find("IDC_");
  if (kind.starts_with("IDD_")) {
    form = &book.Templates[book.Ids.at(kind)];
    form->Name = kind.substr(4);
  } else if (kind == "CAPTION") {
    form->Caption = text;
  } else if (at != std::string::npos && !kind.starts_with('"')) {  // an accelerator's key
    const auto [name, behind] = Halves(line.substr(at + 4, line.find(',', at) - at - 4), ' ');
    const int first = book.Ids.at("IDC_" + name), place = behind.empty() ? 0 : std::stoi(behind.substr(2));  // "+ 3"
    form->Controls[first] = place > 0 ? InRow(name, 0) : name;
    if (place > 0) form->Controls[first + place] = InRow(name, place);
    if (kind == "MENUITEM") {
      form->MenuItems.push_back(first);
    } else {
      form->Texts[first + place] = text;
      if (line.find("ES_MULTILINE") != std::string::npos) form->Lines.insert(first);
    }
  }
}

void ReadLines(const std::string& ending, const std::function<void(const std::string& line)>& read) {
  for (const auto& entry : std::filesystem::recursive_directory_iterator(FILER_SOURCE_DIR "/src")) {
    if (!entry.path().filename().string().ends_with(ending)) continue;
    std::ifstream in(entry.path());
    for (std::string line; std::getline(in, line);) read(line);
  }
}

const Book& TheBook() {
  static const Book kBook = [] {
    Book book;
    for (const char* ids : {"resource.h", "_ids.h"}) ReadLines(ids, [&](auto& line) { ReadIds(line, book); });
    ReadLines("_form.rc", [&](auto& line) { ReadTemplate(line, book); });
    // The recent files stand in no template.
    for (int place = 1; place <= 10; ++place) {
      book.Templates[book.Ids.at("IDD_MainForm")].Controls[book.Ids.at("IDC_RecentItem") + place - 1] =
          "RecentItem[" + std::to_string(place) + "]";
    }
    return book;
  }();
  return kBook;
}

}  // namespace

const Names::Template& Names::Of(int form) { return TheBook().Templates.at(form); }

int Names::ControlOf(const std::string& name) {
  const auto [row, place] = Halves(name, '[');
  const auto found = TheBook().Ids.find("IDC_" + row);
  if (found == TheBook().Ids.end()) return 0;
  return found->second + (place.empty() ? 0 : place[0] >= 'A' ? place[0] - 'A' : std::stoi(place) - 1);
}
