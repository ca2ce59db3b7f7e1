// What stories may do to the in-memory machine, beside story.h:
//
//   disk BYTES                 so much may be written yet
//   no-starts                  starting a program gives no process
//   program-folder FOLDER      where the program lies; first-weekday NUMBER (0 is Sunday)
//   registry KEY NAME TEXT     a value of the user's, "-" for the default one; unregister KEY
//   printer FIRST LAST [SHEETS [COLUMNS ROWS]], printer cancels
//   window COLUMNS ROWS        the viewer's, of text in its usual size
#include <sstream>

#include "platform/headless/machine.h"
#include "scenarios/story.h"
#include "support/hands.h"
#include "support/names.h"
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
  if (int columns = 0, rows = 0; in >> columns >> rows) {
    printer.Paper.Width = columns * printer.Paper.CellWidth() + 2 * printer.Paper.Left;
    printer.Paper.Height = rows * printer.Paper.CellHeight() + 2 * printer.Paper.Top;
  }
  Machine::SetPrinter(printer);
}

void SetWindow(Story&, const std::string& rest) {
  int columns = 0, rows = 0;
  std::istringstream(rest) >> columns >> rows;
  Machine::SetSurface(columns, rows);
  for (const Form* form : Hands::OpenForms()) {
    dynamic_cast<const Surface&>(*Hands::ControlsOf(*form).at(Names::ControlOf("ReportSurface"))).Resize();
  }
}

}  // namespace

const Story::Verbs& MachineVerbs() {
  static const Story::Verbs kVerbs = {
      {"disk", [](Story&, const std::string& bytes) { Machine::DiskSpace(std::stoul(bytes)); }},
      {"no-starts", [](Story&, const std::string&) { Machine::FailStart(0); }},
      {"program-folder", [](Story&, const std::string& folder) { Machine::SetProgramFolder(folder); }},
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
