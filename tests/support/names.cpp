// Reading the program's id headers and templates: see names.h.
#include "support/names.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

struct Book {
  std::map<std::string, int> Ids;  // "IDC_PersonCombo"
  std::map<int, Names::Template> Templates;
};

void ReadIds(const std::filesystem::path& file, Book& book) {
  std::ifstream in(file);
  for (std::string line; std::getline(in, line);) {
    std::istringstream words(line);
    std::string define, name;
    int id = 0;
    if (words >> define >> name >> id && define == "#define") book.Ids[name] = id;
  }
}

// The identifier that begins there.
std::string WordAt(const std::string& line, std::size_t at) {
  std::size_t end = at;
  while (end < line.size() && (std::isalnum(static_cast<unsigned char>(line[end])) != 0 || line[end] == '_')) ++end;
  return line.substr(at, end - at);
}

// What stands between the first quotation mark and the last one of a text.
std::string Between(const std::string& text) {
  const std::size_t first = text.find('"'), last = text.rfind('"');
  return first == last ? "" : text.substr(first + 1, last - first - 1);
}

// The letter tabs are told apart by their letters, other rows by numbers from 1 on.
std::string InRow(const std::string& name, int place) {
  const bool letters = name.starts_with("Letter");
  return name + "[" + (letters ? std::string(1, static_cast<char>('A' + place)) : std::to_string(place + 1)) + "]";
}

void ReadControl(const std::string& line, const Book& book, Names::Template& form) {
  const std::size_t at = line.find("IDC_");
  const std::string kind = WordAt(line, std::min(line.find_first_not_of(' '), line.size()));
  const bool accelerator = kind.empty() || line.find(kind + ",") != std::string::npos;
  if (at == std::string::npos || accelerator) return;
  const std::string id_name = WordAt(line, at), name = id_name.substr(4);
  const int first = book.Ids.at(id_name);
  const bool in_row = line.compare(at + id_name.size(), 3, " + ") == 0;
  const int place = in_row ? std::stoi(line.substr(at + id_name.size() + 3)) : 0;
  form.Controls[first + place] = in_row ? InRow(name, place) : name;
  if (in_row) form.Controls[first] = InRow(name, 0);
  if (kind == "MENUITEM") {
    // One that begins greyed follows what is shown: an act asks for it.
    if (line.find("GRAYED") == std::string::npos) form.MenuItems.push_back(first);
  } else {
    form.Texts[first + place] = Between(line.substr(0, at));
    if (line.find("ES_MULTILINE") != std::string::npos) form.Lines.insert(first);
  }
}

void ReadTemplates(const std::filesystem::path& file, Book& book) {
  std::ifstream in(file);
  Names::Template* current = nullptr;
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with("IDD_")) {
      current = &book.Templates[book.Ids.at(WordAt(line, 0))];
      current->Name = WordAt(line, 0).substr(4);
    }
    if (current == nullptr) continue;
    if (line.starts_with("CAPTION")) current->Caption = Between(line);
    ReadControl(line, book, *current);
  }
}

const Book& TheBook() {
  static const Book kBook = [] {
    Book book;
    std::vector<std::filesystem::path> templates;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(FILER_SOURCE_DIR "/src")) {
      const std::string name = entry.path().filename().string();
      if (name == "resource.h" || name.ends_with("_ids.h")) ReadIds(entry.path(), book);
      if (name.ends_with("_form.rc")) templates.push_back(entry.path());
    }
    for (const auto& file : templates) ReadTemplates(file, book);
    return book;
  }();
  return kBook;
}

}  // namespace

const Names::Template& Names::Of(int form) {
  static const Template kNone;
  const auto found = TheBook().Templates.find(form);
  return found == TheBook().Templates.end() ? kNone : found->second;
}

int Names::ControlOf(const std::string& name) {
  const std::size_t bracket = name.find('[');
  const auto found = TheBook().Ids.find("IDC_" + name.substr(0, bracket));
  if (found == TheBook().Ids.end()) return 0;
  if (bracket == std::string::npos) return found->second;
  const std::string index = name.substr(bracket + 1, name.size() - bracket - 2);
  return found->second + (index[0] >= 'A' ? index[0] - 'A' : std::stoi(index) - 1);
}
