// What each platform gives to files.cpp: a file of the system, open. Whatever fails throws RuntimeError.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/files.h"

class SystemFile {
 public:
  // As Files::Open, of a name as the program has it.
  static std::unique_ptr<SystemFile> Open(const std::string& name, Files::Mode mode);

  SystemFile() = default;
  virtual ~SystemFile() = default;  // closes it, if that was not done, and drops failures
  SystemFile(const SystemFile&) = delete;
  SystemFile& operator=(const SystemFile&) = delete;

  virtual std::uint64_t Size() = 0;                             // in bytes
  virtual std::size_t Read(char* block, std::size_t size) = 0;  // up to so many bytes; 0 at the end
  virtual void Write(std::string_view bytes) = 0;               // all of them, or throws
  virtual void Flush() = 0;                                     // onto the disk itself
  virtual void Close() = 0;                                     // at most once
};
