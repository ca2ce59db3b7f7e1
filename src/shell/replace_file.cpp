// Writing files beside their place: see replace_file.h.
#include "shell/replace_file.h"

#include <cstdint>
#include <exception>
#include <new>
#include <optional>
#include <utility>

#include "platform/files.h"
#include "platform/references.h"
#include "shell/file_names.h"

namespace {

constexpr std::size_t kLongestName = 255;  // what file systems take, without the folder

}  // namespace

WrittenFile::WrittenFile(int handle, std::string name, const Writer& write) : name_(std::move(name)) {
  std::optional<Files::OpenFile> file;
  try {
    file.emplace(handle, name_, Files::Mode::Output);
  } catch (const RuntimeError& error) {
    throw NotMade(error.Number);
  }
  try {
    write(handle);
    file->Finish();
  } catch (...) {
    file.reset();
    EraseQuietly(name_);
    throw;
  }
}

WrittenFile::~WrittenFile() {
  if (!name_.empty()) EraseQuietly(name_);
}

void WrittenFile::Rename(const std::string& target) {
  Files::Rename(name_, target);
  Keep();
}

void WrittenFile::Replace(const std::string& target) {
  Files::Replace(name_, target);
  Keep();
}

void ReplaceFile(int handle, const std::string& target, const WrittenFile::Writer& write) {
  try {
    WrittenFile(handle, FreeSavingName(target), write).Replace(target);
  } catch (const std::bad_alloc&) {
    throw RuntimeError(kOutOfMemory);
  }
  EraseLeftovers(target);
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

void EraseLeftovers(const std::string& target) {
  try {
    const std::uint64_t written = Files::ChangedAt(target);
    for (int number = 1; number <= kLeftovers; ++number) {
      const std::string name = SavingName(target, number);
      if (Files::Exists(name) && Files::ChangedAt(name) <= written) EraseQuietly(name);
    }
  } catch (const std::bad_alloc&) {
    // As with what cannot be erased.
  }
}

void EraseQuietly(const std::string& name) {
  try {
    Files::Erase(name);
  } catch (const std::exception&) {
    // It is in nobody's way: its name is no document's.
  }
}
