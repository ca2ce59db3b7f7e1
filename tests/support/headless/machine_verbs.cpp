// What stories may do to the in-memory machine, beside story.h:
//
//   fails N CODE [for-good]    the N-th file call from now on fails with that code of the system
//   disk BYTES, no-faults      so much may be written yet; no faults and space again
//   starts ERROR               starting a program fails so, 0 gives no process; "starts" alone: it does not
//   program-folder FOLDER      where the program lies; today YEAR MONTH DAY
//   registry KEY "text"        the default value of a key of the user's; registry-value KEY NAME TEXT; unregister KEY
//   printer FIRST LAST [SHEETS], printer cancels, no-printer; printed: tells the pages
#include <sstream>

#include "platform/headless/machine.h"
#include "scenarios/story.h"

namespace {

using Verb = Story::Verb;

template <typename... Values>
std::tuple<Values...> Read(const std::string& text) {
  std::istringstream in(text);
  std::tuple<Values...> values;
  std::apply([&in](auto&... each) { (in >> ... >> each); }, values);
  return values;
}

void SetRegistry(Story&, const std::string& rest) {
  const std::size_t quote = rest.find(" \"");
  Machine::SetRegistryValue(RegistryRoot::CurrentUser, rest.substr(0, quote), "",
                            Story::Unquoted(rest.substr(quote + 1)));
}

void SetPrinter(Story&, const std::string& rest) {
  Machine::Printer printer;
  const auto [first, last, sheets] = Read<int, int, std::size_t>(rest);
  if (rest != "cancels") printer.Chosen = PrintRange{first, last};
  if (sheets != 0) printer.PaperLeft = sheets;
  Machine::SetPrinter(printer);
}

}  // namespace

std::map<std::string, Verb> MachineVerbs() {
  return {
      {"fails",
       [](Story&, const std::string& rest) {
         const auto [nth, code, more] = Read<int, unsigned long, std::string>(rest);
         Machine::FailFileCall(nth, code, more == "for-good");
       }},
      {"disk", [](Story&, const std::string& rest) { Machine::DiskSpace(std::stoul(rest)); }},
      {"no-faults", [](Story&, const std::string&) { Machine::ClearFaults(); }},
      {"starts",
       [](Story&, const std::string& rest) {
         Machine::FailStart(rest.empty() ? std::nullopt : std::optional(std::stoi(rest)));
       }},
      {"program-folder", [](Story&, const std::string& rest) { Machine::SetProgramFolder(rest); }},
      {"today",
       [](Story&, const std::string& rest) {
         const auto [year, month, day] = Read<int, unsigned, unsigned>(rest);
         Machine::SetToday(year, month, day);
       }},
      {"registry", SetRegistry},
      {"registry-value",
       [](Story&, const std::string& rest) {
         const auto [key, name, text] = Read<std::string, std::string, std::string>(rest);
         Machine::SetRegistryValue(RegistryRoot::CurrentUser, key, name, text);
       }},
      {"unregister",
       [](Story&, const std::string& rest) { Machine::RemoveRegistryKey(RegistryRoot::CurrentUser, rest); }},
      {"printer", SetPrinter},
      {"no-printer", [](Story&, const std::string&) { Machine::SetPrinter(std::nullopt); }},
      {"printed",
       [](Story& story, const std::string&) {
         for (const Page& page : Machine::PrintedPages()) {
           const auto rows = RowsOfPage(page);
           story.Say(std::to_string(rows.size()) + " rows: " + rows.at(1) + " ... " + rows.back());
         }
       }},
  };
}

void ResetMachine() {
  Machine::RemoveRegistryKey(RegistryRoot::CurrentUser, "SOFTWARE");
  Machine::SetProgramFolder("C:\\LARKSPUR");
  Machine::SetToday(2026, 8, 5);
  Machine::FailStart(std::nullopt);
  Machine::SetPrinter(std::nullopt);
  Machine::StartedPrograms();
}
