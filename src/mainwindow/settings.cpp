// The settings file: see settings.h.
#include "mainwindow/settings.h"

#include <algorithm>
#include <new>

#include "document/segments.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/program.h"
#include "platform/text.h"
#include "shell/messages.h"
#include "shell/replace_file.h"
#include "shell/start_options.h"
#include "values/numbers.h"

std::string SettingsFileName() {
  const std::string& folder = TheStart.SettingsFolder;
  if (folder.empty()) return "Torvane.INI";
  return folder + (folder.ends_with('\\') ? "" : "\\") + "\\Torvane.INI";
}

namespace {

bool AcceptsHeader(const std::string& first_line) {
  const std::string upper = UpperCase(first_line);
  const std::string_view line = Trim(upper);
  const auto mark = line.find(" V");
  double version = 0;
  if (mark != std::string_view::npos && line.size() - mark >= 4) version = LeadingNumber(line.substr(mark + 2, 3));
  const bool is_settings = line.find("TORVANE") != std::string_view::npos && line.find("INI") != std::string_view::npos;
  return is_settings && version >= 1 && version <= 5;
}

// An empty file has an empty header.
std::string ReadHeader() {
  return Files::AtEnd(kSettingsHandle) ? std::string() : std::string(Files::ReadLine(kSettingsHandle));
}

void ReadSettingsSections() {
  StartSegments(kSettingsHandle);
  std::string segment = ReadToSectionHead(true);
  while (!segment.empty()) {
    if (UpperCase(segment) != "[TOP10FILES]") {
      Global::Say("TORVANE.INI contains invalid record type: " + segment, Icon::Critical);
      EndProgram();
    }
    segment = ReadRecentFilesSection();
  }
}

// A name may hold what the record syntax reads as its own.
std::string EscapeName(const std::string& name) {
  std::string escaped;
  for (const char character : name) {
    if (character == ';') escaped += '~';
    escaped += character;
  }
  if (escaped.ends_with('+')) escaped.insert(escaped.size() - 1, "~");
  return escaped;
}

}  // namespace

void LoadSettings() {
  TheRecentFiles = {};
  try {
    const Files::OpenFile file(kSettingsHandle, SettingsFileName(), Files::Mode::Input);
    if (AcceptsHeader(ReadHeader())) {
      ReadSettingsSections();
    } else {
      Global::Say("Failed to load TORVANE.INI due to invalid format or version.", Icon::Exclamation);
    }
  } catch (const RuntimeError&) {
    // The list is a convenience: without the file the program starts with none.
  }
  StartSegments(0);
}

std::string ReadRecentFilesSection() {
  Assignment assignment;
  int record = 0;
  TheRecentFiles.Count = 0;
  for (ReadAssignment(assignment, record); !assignment.EndsSection(); ReadAssignment(assignment, record)) {
    if (record > kRecentFiles) return {};
    if (assignment.ComparedKey() != "NAME") {
      Global::Say("FOLKLIST.INI file contains invalid field name for Top10Files: " + std::string(assignment.Key),
                  Icon::Exclamation);
      return {};
    }
    TheRecentFiles[record] = assignment.Value;
    TheRecentFiles.Count = record;
  }
  return std::string(assignment.Segment);
}

namespace {

void WriteSettings(int handle) {
  Files::WriteLine(handle, "TORVANE V5.0 INI");
  if (TheRecentFiles.Count > 0) Files::WriteLine(handle, "[TOP10FILES]");
  for (int position = 1; position <= TheRecentFiles.Count; ++position) {
    Files::WriteLine(handle, "*" + std::to_string(position) + "; NAME=" + EscapeName(TheRecentFiles[position]));
  }
}

void SayNotSaved(const RuntimeError& error) {
  Global::Say("Failed to save optional info to " + SettingsFileName() + Global::DueToError(error), Icon::Exclamation);
}

void PutFirst(std::string file_name) {
  RecentFileList& list = TheRecentFiles;
  const std::string wanted = UpperCase(file_name);
  int place = list.Count;
  while (place > 0 && UpperCase(list[place]) != wanted) --place;
  if (place == 1) return;
  if (place == 0) place = list.Count = std::min(list.Count + 1, kRecentFiles);
  for (; place > 1; --place) list[place].swap(list[place - 1]);
  list[1].swap(file_name);
}

}  // namespace

void SaveSettings() {
  try {
    ReplaceFile(kSettingsHandle, SettingsFileName(), WriteSettings);
  } catch (const RuntimeError& error) {
    SayNotSaved(error);
  }
}

void RememberRecentFile(const std::string& file_name) {
  try {
    PutFirst(file_name);
    SaveSettings();
  } catch (const std::bad_alloc&) {
    SayNotSaved(RuntimeError(kOutOfMemory));
  }
}
