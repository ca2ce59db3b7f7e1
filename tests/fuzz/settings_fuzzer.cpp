// Feeds arbitrary bytes to the reader of the settings file: the list must stay in bounds, and what was
// read must come back unchanged after it was written.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "document/file_handles.h"
#include "mainwindow/settings.h"
#include "platform/files.h"
#include "platform/headless/internals.h"
#include "platform/headless/machine.h"
#include "platform/locale.h"
#include "platform/program.h"

namespace {

void Require(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "broken promise: %s\n", promise);
  std::abort();
}

int box_count = 0;
Icon last_icon = Icon::None;

void InstallStage() {
  box_count = 0;
  CurrentStage().Message = [](const std::string&, const std::string& caption, Buttons buttons, Icon icon) {
    Require(caption == "Larkspur Filer", "every box is captioned with the program's title");
    Require(buttons == Buttons::Ok, "the settings file raises no questions");
    ++box_count;
    last_icon = icon;
    return Answer::Ok;
  };
}

std::vector<std::string> ListedNames() {
  Require(TheRecentFiles.Count >= 0 && TheRecentFiles.Count <= kRecentFiles, "the count is from 0 to 10");
  std::vector<std::string> names;
  for (int position = 1; position <= TheRecentFiles.Count; ++position) names.push_back(TheRecentFiles[position]);
  return names;
}

// A blank at the end of a name, which an odd file can hide behind a "~", is not kept.
bool FormatHolds(const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    if (name.ends_with(' ')) return false;
  }
  return true;
}

void CheckRemembering(const std::string& name) {
  const int count = TheRecentFiles.Count;
  RememberRecentFile(name);
  Require(UpperCase(TheRecentFiles[1]) == UpperCase(name), "a saved file comes first");
  Require(TheRecentFiles.Count == count, "a listed file is not listed again");
}

void CheckSettings() {
  const std::vector<std::string> names = ListedNames();
  if (!FormatHolds(names)) return;
  SaveSettings();
  box_count = 0;
  LoadSettings();
  Require(box_count == 0, "what was written is read without a word");
  Require(ListedNames() == names, "what was written comes back unchanged");
  if (!names.empty()) CheckRemembering(names.back());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  InstallStage();
  Machine::PutFile(SettingsFileName(), std::string(reinterpret_cast<const char*>(data), size));
  try {
    LoadSettings();
    Require(!Files::IsOpen(kSettingsHandle), "the file is closed after reading");
    CheckSettings();
  } catch (const ProgramEnded&) {
    Require(last_icon == Icon::Critical && box_count > 0, "the program says why it ends");
    Require(!Files::IsOpen(kSettingsHandle), "the end closes the file");
  }
  return 0;
}
