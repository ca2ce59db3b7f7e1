// What stories may do to the in-memory machine, beside story.h:
//
//   disk BYTES                 so much may be written yet
//   no-starts                  starting a program gives no process
//   program-folder FOLDER      where the program lies; today YEAR MONTH DAY; first-weekday NUMBER (0 is Sunday)
//   registry KEY NAME TEXT     a value of the user's, "-" for the default one; unregister KEY
//   printer FIRST LAST [SHEETS [COLUMNS ROWS]], printer cancels
//   window COLUMNS ROWS        of text in its usual size, on each surface
#include <sstream>

#include "platform/headless/machine.h"
#include "scenarios/story.h"
#include "support/hands.h"
#include "support/rows.h"

namespace {

void SetRegistry(Story&, const std::string& rest) {
  const auto [key, value] = Halves(rest, ' ');
  const auto [name, text] = Halves(value, ' ');
  Machine::SetRegistryValue(RegistryRoot::CurrentUser, key, name == "-" ? "" : name, text);
}

void SetPrinter(Story&, const std::string& rest) {
  Machine::Printer printer;
  PrintRange range{};
  std::istringstream in(rest);
  if (in >> range.First >> range.Last) printer.Chosen = range;
  in >> printer.PaperLeft;
  Sheet& paper = printer.Paper;
  if (int columns = 0, rows = 0; in >> columns >> rows) {
    paper.Width = columns * paper.CellWidth() + paper.Left + paper.Right;
    paper.Height = rows * paper.CellHeight() + paper.Top + paper.Bottom;
  }
  Machine::SetPrinter(printer);
}

void SetWindow(Story&, const std::string& rest) {
  int columns = 0, rows = 0;
  std::istringstream(rest) >> columns >> rows;
  Machine::SetSurface(columns, rows);
  for (const Form* form : Hands::OpenForms()) {
    for (const auto& [id, control] : Hands::ControlsOf(*form)) {
      if (const auto* surface = dynamic_cast<const Surface*>(control)) surface->Resize();
    }
  }
}

void SetToday(Story&, const std::string& rest) {
  int year = 0;
  unsigned month = 0, day = 0;
  std::istringstream(rest) >> year >> month >> day;
  Machine::SetToday(year, month, day);
}

}  // namespace

const Story::Verbs& MachineVerbs() {
  static const Story::Verbs kVerbs = {
      {"disk", [](Story&, const std::string& bytes) { Machine::DiskSpace(std::stoul(bytes)); }},
      {"no-starts", [](Story&, const std::string&) { Machine::FailStart(0); }},
      {"program-folder", [](Story&, const std::string& folder) { Machine::SetProgramFolder(folder); }},
      {"today", SetToday},
      {"first-weekday", [](Story&, const std::string& day) { Machine::SetFirstWeekday(std::stoi(day)); }},
      {"registry", SetRegistry},
      {"unregister",
       [](Story&, const std::string& key) { Machine::RemoveRegistryKey(RegistryRoot::CurrentUser, key); }},
      {"printer", SetPrinter},
      {"window", SetWindow}};
  return kVerbs;
}

void ResetMachine() {
  Machine::RemoveRegistryKey(RegistryRoot::CurrentUser, "SOFTWARE");
  Machine::SetProgramFolder("C:\\LARKSPUR");
  Machine::SetToday(2026, 8, 5);
  Machine::SetFirstWeekday(0);
  Machine::FailStart(std::nullopt);
  Machine::SetPrinter(std::nullopt);
  Machine::SetSurface(80, 25);
  Machine::StartedPrograms();
}
