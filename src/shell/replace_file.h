// Writing files so that at every instant one whole copy stands under a file's name: beside it, onto the disk itself,
// and only then into its place. Names are full.
#pragma once

#include <functional>
#include <string>

#include "platform/runtime_error.h"

// Thrown where a file cannot even be made.
struct NotMade : RuntimeError {
  using RuntimeError::RuntimeError;
};

// A file written whole, which is erased again unless it gets to its place.
class WrittenFile {
 public:
  using Writer = std::function<void(int handle)>;

  // Makes a new file, has it written, and forces it onto the disk itself. What throws leaves nothing of it.
  WrittenFile(int handle, std::string name, const Writer& write);
  ~WrittenFile();
  WrittenFile(const WrittenFile&) = delete;
  WrittenFile& operator=(const WrittenFile&) = delete;

  void Rename(const std::string& target);   // which must be free
  void Replace(const std::string& target);  // in one step, whether or not there is such a file
  void Keep() { name_.clear(); }            // it has its name already

 private:
  std::string name_;
};

// Writes a file anew, in one step for whoever reads it. Throws what the disk refuses, and error 7 where memory runs
// out: the file is then as it was.
void ReplaceFile(int handle, const std::string& target, const WrittenFile::Writer& write);

// The name number 1, 2, ... under which a file is written before it gets to its place: never longer than the target's
// own where the system would not take that.
std::string SavingName(const std::string& target, int number);

// The first of these names that no file has.
std::string FreeSavingName(const std::string& target);

// So many of them are looked for after writing was cut short.
inline constexpr int kLeftovers = 9;

// Erases what was cut short: whatever has one of these names and is older than the file. Says nothing of what cannot
// be erased.
void EraseLeftovers(const std::string& target);

// Erases a file; what cannot be erased stays, and nothing is said.
void EraseQuietly(const std::string& name);
