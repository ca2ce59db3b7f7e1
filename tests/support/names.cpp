// Reading the program's id headers and templates: see names.h.
#include "support/names.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <utility>

namespace {

struct Template {
  std::map<int, std::pair<std::string, int>> Names;  // and the place in its row, from 0
  std::set<std::string> Rows;
  std::map<int, std::string> Captions;
  std::map<int, bool> Lines;
  std::vector<int> Items;
};

struct Book {
  std::map<std::string, int> Ids;  // "IDC_PersonCombo"
  std::map<int, std::string> Forms;
  std::map<int, Template> Templates;
};

void ReadIds(const std::filesystem::path& file, Book& book) {
  std::ifstream in(file);
  for (std::string line; std::getline(in, line);) {
    std::istringstream words(line);
    std::string define, name;
    int id = 0;
    if (!(words >> define >> name >> id) || define != "#define" || name.size() < 5) continue;
    book.Ids[name] = id;
    if (name.starts_with("IDD_")) book.Forms[id] = name.substr(4);
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

void ReadTemplates(const std::filesystem::path& file, Book& book) {
  std::ifstream in(file);
  Template* current = nullptr;
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with("IDD_")) current = &book.Templates[book.Ids[WordAt(line, 0)]];
    if (current == nullptr) continue;
    if (line.starts_with("CAPTION")) current->Captions[0] = Between(line);
    const std::size_t at = line.find("IDC_");
    const std::string kind = WordAt(line, std::min(line.find_first_not_of(' '), line.size()));
    if (at == std::string::npos || kind.empty() || line.find(kind + ",") != std::string::npos)
      continue;  // accelerators
    const std::string name = WordAt(line, at);
    const bool in_row = line.compare(at + name.size(), 3, " + ") == 0;
    const int place = in_row ? std::stoi(line.substr(at + name.size() + 3)) : 0;
    const int id = book.Ids[name] + place;
    if (in_row) current->Rows.insert(name.substr(4));
    current->Names[id] = {name.substr(4), place};
    if (kind == "MENUITEM") {
      current->Items.push_back(id);
    } else {
      current->Captions[id] = Between(line.substr(0, at));
      current->Lines[id] = line.find("ES_MULTILINE") != std::string::npos;
    }
  }
}

const Book& TheBook() {
  static const Book kBook = [] {
    Book book;
    const std::filesystem::path source = std::filesystem::path(FILER_SOURCE_DIR "/src");
    ReadIds(source / "resource.h", book);
    std::vector<std::filesystem::path> templates;
    for (const auto& room : std::filesystem::directory_iterator(source)) {
      if (!room.is_directory() || room.path().filename() == "platform") continue;
      for (const auto& file : std::filesystem::directory_iterator(room)) {
        const std::string name = file.path().filename().string();
        if (name.ends_with("_ids.h")) ReadIds(file.path(), book);
        if (name.ends_with(".rc")) templates.push_back(file.path());
      }
    }
    for (const auto& file : templates) ReadTemplates(file, book);
    return book;
  }();
  return kBook;
}

const Template& Of(int form) {
  static const Template kNone;
  const auto found = TheBook().Templates.find(form);
  return found == TheBook().Templates.end() ? kNone : found->second;
}

}  // namespace

std::string Names::OfControl(int form, int id) {
  const auto found = Of(form).Names.find(id);
  if (found == Of(form).Names.end()) return std::to_string(id);
  const auto& [name, place] = found->second;
  if (!Of(form).Rows.contains(name)) return name;
  const bool letters = name.starts_with("Letter");
  return name + "[" + (letters ? std::string(1, static_cast<char>('A' + place)) : std::to_string(place + 1)) + "]";
}

int Names::ControlOf(const std::string& name) {
  const std::size_t bracket = name.find('[');
  const auto found = TheBook().Ids.find("IDC_" + name.substr(0, bracket));
  if (found == TheBook().Ids.end()) return 0;
  if (bracket == std::string::npos) return found->second;
  const std::string index = name.substr(bracket + 1, name.size() - bracket - 2);
  return found->second + (index[0] >= 'A' ? index[0] - 'A' : std::stoi(index) - 1);
}

std::string Names::OfForm(int template_id) {
  const auto found = TheBook().Forms.find(template_id);
  return found == TheBook().Forms.end() ? std::to_string(template_id) : found->second;
}

std::string Names::Caption(int form, int id) {
  const auto& captions = Of(form).Captions;
  const auto found = captions.find(id);
  return found == captions.end() ? "" : found->second;
}

bool Names::HasLines(int form, int id) {
  const auto& lines = Of(form).Lines;
  const auto found = lines.find(id);
  return found != lines.end() && found->second;
}

std::vector<int> Names::MenuItems(int form) { return Of(form).Items; }
