// Backups and what interrupted saves left: see copies.h.
#include "document/copies.h"

#include <cstdint>
#include <string_view>

#include "document/reader.h"
#include "mainwindow/file_names.h"
#include "platform/files.h"
#include "platform/references.h"
#include "platform/runtime_error.h"

namespace {

constexpr std::size_t kLongestName = 255;  // what file systems take, without the folder
constexpr int kLeftovers = 9;              // so many saves that were cut short are looked for

}  // namespace

std::string BackupName(const std::string& target) {
  const auto dot = TypeDot(target);
  return dot == std::string::npos ? target + ".BAK" : target.substr(0, dot + 1) + "BAK";
}

std::string SavingName(const std::string& target, int number) {
  const std::string suffix = ".saving" + (number == 1 ? "" : std::to_string(number));
  const std::size_t start = NameStart(target);
  const std::string name = target.substr(start);
  if (Widen(name).size() + suffix.size() <= kLongestName) return target + suffix;
  // The end of the name gives way.
  return target.substr(0, start) + FirstCharacters(name, CountCharacters(name) - suffix.size()) + suffix;
}

std::string FreeSavingName(const std::string& target) {
  int number = 1;
  while (Files::Exists(SavingName(target, number))) ++number;
  return SavingName(target, number);
}

void EraseQuietly(const std::string& name) {
  try {
    Files::Erase(name);
  } catch (const RuntimeError&) {
    // It is in nobody's way: its name is no document's.
  }
}

void EraseLeftovers(const std::string& target) {
  const std::uint64_t written = Files::ChangedAt(target);
  for (int number = 1; number <= kLeftovers; ++number) {
    const std::string name = SavingName(target, number);
    if (Files::Exists(name) && Files::ChangedAt(name) <= written) EraseQuietly(name);
  }
}

std::string NewestWholeCopy(const std::string& target) {
  std::string newest;
  std::uint64_t newest_time = 0;
  const auto consider = [&](const std::string& name) {
    const std::uint64_t time = Files::ChangedAt(name);
    if (!Files::Exists(name) || time < newest_time || !IsWholeFile(name)) return;
    newest = name;
    newest_time = time;
  };
  consider(BackupName(target));
  // Later, so that of two written in one moment the one with the new text counts.
  for (int number = kLeftovers; number > 0; --number) consider(SavingName(target, number));
  return newest;
}
