// Starting other programs: see launch.h.
#include "shell/launch.h"

#include <optional>

#include "platform/process.h"
#include "platform/program.h"
#include "platform/text.h"
#include "shell/messages.h"

namespace {

// The command registered for a file type, as it stands in the registry; empty when there is none. `read` gives the
// default value of a key.
template <typename Read>
std::string RegisteredCommand(const std::string& type, Read read) {
  const std::string classes = "SOFTWARE\\Classes\\";
  const std::string class_name = read(classes + type);
  if (class_name.empty()) return {};
  return std::string(Trim(read(classes + class_name + "\\shell\\open\\command")));
}

// As ReadRegistryText where it succeeds; empty otherwise.
std::string ReadQuietly(const std::string& key_name) {
  for (const RegistryRoot root : {RegistryRoot::CurrentUser, RegistryRoot::LocalMachine}) {
    const RegistryKey key(root, key_name);
    const std::optional<RegistryValue> value = key.Query("");
    if (!value) continue;
    const bool is_text = value->Type == kRegistryText || value->Type == kRegistryExpandableText;
    return is_text ? key.ReadText("", value->Size).value_or("") : std::string();
  }
  return {};
}

// The program's path out of a registered command, whose own arguments are dropped.
std::string ProgramOf(const std::string& command) {
  const bool quoted = command.starts_with('"');
  const std::size_t first = quoted ? 1 : 0;
  return command.substr(first, command.find(quoted ? '"' : ' ', first) - first);
}

void QuoteBlanks(std::string& text) {
  if (text.find(' ') != std::string::npos && !text.starts_with('"')) text = '"' + text + '"';
}

// Puts the values of environment variables in the place of their names; false when that failed, which was said.
bool ReplaceSymbols(std::string& program, const std::string& hint) {
  // A value is taken as it is, even when it holds a "%" itself.
  for (std::size_t at = program.find('%'); at != std::string::npos;) {
    const std::size_t end = program.find('%', at + 1);
    if (end == std::string::npos) {
      Global::Say(("Error due to invalid program name <<" + program + ">>. ").append(hint), Icon::Exclamation);
      return false;
    }
    const std::string name = program.substr(at + 1, end - at - 1);
    const std::optional<std::string> value = EnvironmentValue(name);
    if (!value) {
      Global::Say(("Error due to undefined symbolic name <<" + name + ">>. ").append(hint), Icon::Exclamation);
      return false;
    }
    program.replace(at, end + 1 - at, *value);
    at = program.find('%', at + value->size());
  }
  return true;
}

std::int16_t Start(const std::string& command_line) {
  try {
    StartProgram(command_line);
    return 0;
  } catch (const RuntimeError& error) {
    Global::Say("Failed to start program with command line: <<" + command_line + ">> because of: Error #" +
                    SignedText(error.Number) + ": " + error.Description,
                Icon::Exclamation);
    return APISubs::kStartFailed;
  }
}

}  // namespace

std::int16_t APISubs::LaunchProgram(std::string& program, std::string& argument) {
  std::string hint;
  if (program.starts_with('.')) {
    const std::string command =
        RegisteredCommand(program, [](const std::string& key) { return ReadRegistryText(key, ""); });
    if (command.empty()) return kNotRegistered;
    hint = "Check your registry settings for " + program + "<<" + command + ">>.";
    program = ProgramOf(command);
  }
  if (!argument.empty()) {
    if (argument.find('\\') == std::string::npos) argument = CurrentFolder() + "\\" + argument;
    QuoteBlanks(argument);
  }
  if (!ReplaceSymbols(program, hint)) return kUnknownProgram;
  QuoteBlanks(program);
  return Start(argument.empty() ? program : program + " " + argument);
}

bool APISubs::IsRegistered(const std::string& type) { return !RegisteredCommand(type, ReadQuietly).empty(); }

std::string APISubs::ReadRegistryText(const std::string& key, const std::string& name) {
  const RegistryKey user(RegistryRoot::CurrentUser, key);
  if (user.Query(name)) return ReadRegistryValue(user, name);
  const RegistryKey machine(RegistryRoot::LocalMachine, key);
  if (!user.IsOpen() && !machine.IsOpen()) {
    Global::Say("Failed to open registry key <<HKEY_LOCAL_MACHINE\\" + key +
                    ">>. You may typed an invalid filetype, or you do not have an appropriate viewer program "
                    "registered on your computer.",
                Icon::Critical);
    return {};
  }
  // The user's key often holds nothing but choices of the system's own: the program is then the machine's.
  return ReadRegistryValue(machine.IsOpen() ? machine : user, name);
}

std::string APISubs::ReadRegistryValue(const RegistryKey& key, const std::string& name) {
  const std::optional<RegistryValue> value = key.Query(name);
  if (!value) Global::SayAndEnd("Failed to find registry value for: " + name + " Program exiting.");
  if (value->Type != kRegistryText && value->Type != kRegistryExpandableText) {
    Global::SayAndEnd("Registry value for: " + name + " is not text.  Program exiting.");
  }
  const std::optional<std::string> text = key.ReadText(name, value->Size);
  if (!text) Global::SayAndEnd("Failed to return a value for: " + name + " Program Exiting.");
  return *text;
}
