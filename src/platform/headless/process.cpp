// Starting programs on the in-memory machine: the start of a file that is there is only written down.
#include "platform/process.h"

#include <utility>

#include "platform/headless/machine.h"
#include "platform/runtime_error.h"

namespace {

std::vector<std::string> started;
std::optional<int> start_failure;

bool IsProgram(const std::string& name) {
  return Machine::FileBytes(name).has_value() || Machine::FileBytes(name + ".exe").has_value();
}

// As the system finds it: up to the closing quote, or up to the first blank behind which a program is named.
bool NamesAProgram(const std::string& command_line) {
  if (command_line.starts_with('"')) return IsProgram(command_line.substr(1, command_line.find('"', 1) - 1));
  for (std::size_t end = command_line.find(' ');; end = command_line.find(' ', end + 1)) {
    if (IsProgram(command_line.substr(0, end))) return true;
    if (end == std::string::npos) return false;
  }
}

}  // namespace

namespace Machine {

std::vector<std::string> StartedPrograms() { return std::exchange(started, {}); }
void FailStart(std::optional<int> error) { start_failure = error; }

}  // namespace Machine

long StartProgram(const std::string& command_line) {
  if (start_failure && *start_failure == 0) return 0;
  if (start_failure) throw RuntimeError(*start_failure);
  if (!NamesAProgram(command_line)) throw RuntimeError(kFileNotFound);
  started.push_back(command_line);
  return static_cast<long>(started.size());
}
