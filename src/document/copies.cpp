// The copies beside a document's file: see copies.h.
#include "document/copies.h"

#include <cstdint>

#include "document/reader.h"
#include "platform/files.h"
#include "shell/file_names.h"
#include "shell/replace_file.h"

std::string BackupName(const std::string& target) {
  const auto dot = TypeDot(target);
  return dot == std::string::npos ? target + ".BAK" : target.substr(0, dot + 1) + "BAK";
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
