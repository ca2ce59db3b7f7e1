// What stories may do to the in-memory machine, beside story.h:
//
//   fails N CODE [for-good]    the N-th file call from now on fails with that code of the system
//   disk BYTES, no-faults      so much may be written yet; no faults and space again
//   starts ERROR               starting a program fails so, 0 gives no process; "starts" alone: it does not
//   program-folder FOLDER      where the program lies; today YEAR MONTH DAY
//   registry KEY "text"        the default value of a key of the user's; registry-value KEY NAME TEXT; unregister KEY
//   printer FIRST LAST [SHEETS [HEIGHT]], printer cancels, no-printer; printed: tells the pages
#include <sstream>

#include "platform/headless/machine.h"
#include "scenarios/story.h"
#include "support/page_text.h"

namespace {

using Said = Story::Said;

template <typename... Values>
std::tuple<Values...> Read(const Said& said) {
  std::istringstream in(said.Rest);
  std::tuple<Values...> values;
  std::apply([&in](auto&... each) { (in >> ... >> each); }, values);
  return values;
}

void SetRegistry(const Said& said) {
  const std::size_t quote = said.Rest.find(" \"");
  const std::string text = Story::Unquoted(said.Rest.substr(quote + 1));
  Machine::SetRegistryValue(RegistryRoot::CurrentUser, said.Rest.substr(0, quote), "", text);
}

void SetRegistryValue(const Said& said) {
  const auto [key, name, text] = Read<std::string, std::string, std::string>(said);
  Machine::SetRegistryValue(RegistryRoot::CurrentUser, key, name, text);
}

void SetPrinter(const Said& said) {
  Machine::Printer printer;
  const auto [first, last, sheets, height] = Read<int, int, std::size_t, double>(said);
  if (said.Rest != "cancels") printer.Chosen = PrintRange{first, last};
  if (sheets != 0) printer.PaperLeft = sheets;
  if (height != 0) printer.Paper.Height = height;
  Machine::SetPrinter(printer);
}

void TellPrinted(const Said& said) {
  for (const Page& page : Machine::PrintedPages()) {
    const auto rows = RowsOf(page);
    said.Teller.Say(std::to_string(rows.size()) + " rows: " + rows.at(1) + " ... " + rows.back());
  }
}

void SetToday(const Said& said) {
  const auto [year, month, day] = Read<int, unsigned, unsigned>(said);
  Machine::SetToday(year, month, day);
}

void FailStarts(const Said& said) {
  Machine::FailStart(said.Rest.empty() ? std::nullopt : std::optional(std::stoi(said.Rest)));
}

}  // namespace

std::map<std::string, Story::Verb> MachineVerbs() {
  return {
      {"disk", {0, [](const Said& said) { Machine::DiskSpace(std::stoul(said.Rest)); }}},
      {"no-faults", {0, [](const Said&) { Machine::ClearFaults(); }}},
      {"starts", {0, FailStarts}},
      {"program-folder", {0, [](const Said& said) { Machine::SetProgramFolder(said.Rest); }}},
      {"today", {0, SetToday}},
      {"registry", {0, SetRegistry}},
      {"registry-value", {0, SetRegistryValue}},
      {"unregister", {0, [](const Said& said) { Machine::RemoveRegistryKey(RegistryRoot::CurrentUser, said.Rest); }}},
      {"printer", {0, SetPrinter}},
      {"no-printer", {0, [](const Said&) { Machine::SetPrinter(std::nullopt); }}},
      {"printed", {0, TellPrinted}},
      {"fails",
       {0,
        [](const Said& said) {
          const auto [nth, code, more] = Read<int, unsigned long, std::string>(said);
          Machine::FailFileCall(nth, code, more == "for-good");
        }}},
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
