// The command line: see command_line.h.
#include "mainwindow/command_line.h"

#include <algorithm>

#include "platform/locale.h"
#include "platform/text.h"
#include "shell/messages.h"

namespace {

std::string WithoutOuterQuotes(std::string_view value) {
  if (value.size() >= 2) {
    if (value.starts_with('"')) value.remove_prefix(1);
    if (value.ends_with('"')) value.remove_suffix(1);
  }
  return std::string(value);
}

std::string BetweenFirstQuotes(const std::string& text) {
  const auto first = text.find('"');
  if (first == std::string::npos) return text;
  const auto second = text.find('"', first + 1);
  return text.substr(first + 1, second == std::string::npos ? second : second - first - 1);
}

bool StoreOption(StartOptions& options, const std::string& keyword, std::string_view value) {
  if (keyword == "PERSON") {
    options.StartThing = WithoutOuterQuotes(value);
  } else if (keyword == "DIR") {
    options.WorkingFolder = WithoutOuterQuotes(value);
  } else if (keyword == "INIDIR") {
    options.SettingsFolder = WithoutOuterQuotes(value);
  } else {
    return false;
  }
  return true;
}

// Reads the assignments, each from its "/" on; false when one of them is not valid.
bool ParseAssignments(StartOptions& options, std::string_view rest) {
  bool valid = true;
  while (!rest.empty()) {
    const auto equals = rest.find('=');
    if (equals == std::string_view::npos) return false;
    const std::string keyword = UpperCase(rest.substr(1, equals - 1));
    const auto next = std::min(rest.find('/', equals), rest.size());
    const std::string_view value = TrimRight(rest.substr(equals + 1, next - equals - 1));
    if (!StoreOption(options, keyword, value)) valid = false;
    rest.remove_prefix(next);
  }
  return valid;
}

}  // namespace

StartOptions ParseCommandLine(std::string_view text) {
  StartOptions options;
  const auto slash = text.find('/');
  bool valid = true;
  if (slash == std::string_view::npos) {
    options.StartFile = text;
  } else {
    options.StartFile = TrimRight(text.substr(0, slash));
    valid = ParseAssignments(options, text.substr(slash));
  }
  if (valid) {
    options.StartFile = BetweenFirstQuotes(options.StartFile);
    options.StartThing = BetweenFirstQuotes(options.StartThing);
  } else {
    Global::Say("Invalid command line parameters are ignored.", Icon::Exclamation);
    options.StartFile.clear();
    options.StartThing.clear();
  }
  return options;
}
