// Reading the program's id headers and templates: see names.h.
#include "support/names.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <utility>

namespace {

struct Template {
  std::map<int, std::string> Captions;
  std::map<int, bool> Lines;
  std::vector<int> Items;
};

struct Book {
  std::map<std::string, int> Ids;                           // "IDC_PersonCombo"
  std::map<std::string, std::map<int, std::string>> Names;  // by prefix: "IDC", "IDD"
  std::map<int, Template> Templates;
};

// Of these, the id in the header is the first of many.
constexpr const char* kRows[] = {"LetterLabel", "CategoryNameBox", "DayButton"};

void ReadIds(const std::filesystem::path& file, Book& book) {
  std::ifstream in(file);
  for (std::string line; std::getline(in, line);) {
    std::istringstream words(line);
    std::string define, name;
    int id = 0;
    if (!(words >> define >> name >> id) || define != "#define" || name.size() < 5) continue;
    book.Ids[name] = id;
    book.Names[name.substr(0, 3)][id] = name.substr(4);
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
    int id = book.Ids[name];
    if (line.compare(at + name.size(), 3, " + ") == 0) id += std::stoi(line.substr(at + name.size() + 3));
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

std::string Names::OfControl(int id) {
  const auto& names = TheBook().Names.at("IDC");
  const auto behind = names.upper_bound(id);
  if (behind == names.begin()) return std::to_string(id);
  const auto& [first, name] = *std::prev(behind);
  for (const std::string row : kRows) {
    if (name != row) continue;
    const int index = id - first;
    return name + "[" + (row == kRows[0] ? std::string(1, static_cast<char>('A' + index)) : std::to_string(index + 1)) +
           "]";
  }
  return first == id ? name : std::to_string(id);
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
  const auto& names = TheBook().Names.at("IDD");
  const auto found = names.find(template_id);
  return found == names.end() ? std::to_string(template_id) : found->second;
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
