// The program's surroundings on the in-memory machine, as tests set them.
#include "platform/program.h"

#include <map>

#include "platform/files.h"
#include "platform/headless/machine.h"
#include "platform/locale.h"

namespace {

std::string command_line;
std::string program_folder = "C:\\LARKSPUR";
std::string current_folder = "C:\\";
std::chrono::year_month_day today{std::chrono::year{2026}, std::chrono::month{8}, std::chrono::day{5}};
std::map<std::string, std::string> environment = {{"PATH", "C:\\WINDOWS"}};

}  // namespace

namespace Machine {

void SetEnvironment(const std::string& name, const std::optional<std::string>& value) {
  if (value) {
    environment[UpperCase(name)] = *value;
  } else {
    environment.erase(UpperCase(name));
  }
}

void SetToday(int year, unsigned month, unsigned day) {
  today = {std::chrono::year{year}, std::chrono::month{month}, std::chrono::day{day}};
}

void SetCommandLine(const std::string& text) { command_line = text; }
void SetProgramFolder(const std::string& folder) { program_folder = folder; }
void SetCurrentFolder(const std::string& folder) { current_folder = folder; }

}  // namespace Machine

std::string CommandLineText() { return command_line; }
std::string ProgramFolder() { return program_folder; }
std::string CurrentFolder() { return current_folder; }
std::string DocumentsFolder() { return "C:\\DOCUMENTS"; }
std::string TemporaryFolder() { return "C:\\TEMP"; }

std::chrono::year_month_day Today() { return today; }

std::optional<std::string> EnvironmentValue(const std::string& name) {
  const auto found = environment.find(UpperCase(name));
  if (found == environment.end()) return std::nullopt;
  return found->second;
}

void EndProgram() {
  Files::CloseAll();
  throw ProgramEnded{};
}
