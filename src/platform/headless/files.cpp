// Text files in memory: numbered handles on the tree of disk.h, failing as the real ones do.
#include "platform/files.h"

#include <array>
#include <memory>
#include <optional>

#include "platform/headless/disk.h"
#include "platform/line_reader.h"
#include "platform/runtime_error.h"

namespace {

constexpr int kLastHandle = 255;
constexpr unsigned long kFileMissing = 2;
constexpr unsigned long kAccessDenied = 5;
constexpr unsigned long kSharingViolation = 32;
constexpr unsigned long kDiskIsFull = 112;
constexpr unsigned long kNameTaken = 183;

struct Stream {
  Files::Mode Mode = Files::Mode::Input;
  Disk::HoldPtr Hold;
  std::unique_ptr<LineReader> Reader;
  std::size_t Unsettled = 0;             // bytes written since the last Flush
  std::optional<unsigned long> Refusal;  // the code that bytes were refused with: they are lost
};

std::array<std::unique_ptr<Stream>, kLastHandle + 1> open_files;

bool InRange(int handle) { return handle >= 1 && handle <= kLastHandle; }

std::unique_ptr<Stream>& Slot(int handle) {
  if (!InRange(handle)) throw RuntimeError(kBadFileNumber);
  return open_files[static_cast<std::size_t>(handle)];
}

Stream& Opened(int handle, Files::Mode mode) {
  const auto& file = Slot(handle);
  if (!file || file->Mode != mode) throw RuntimeError(kBadFileNumber);
  return *file;
}

void CountCall() {
  if (const unsigned long code = Disk::CountCall(); code != 0) Disk::Fail(code);
}

Disk::Sharing RightsOf(Files::Mode mode) {
  switch (mode) {
    case Files::Mode::Input:
      return {true, false, true, true};
    case Files::Mode::Output:
    case Files::Mode::Lock:
      return {false, true, true, false};
  }
  Disk::Fail(kAccessDenied);
}

LineReader::Source ReadFrom(const Disk::NodePtr& file) {
  return [file, position = std::size_t{0}](char* block, std::size_t size) mutable {
    if (position >= file->Bytes.size()) return std::size_t{0};
    const std::size_t count = file->Bytes.copy(block, size, position);
    position += count;
    return count;
  };
}

[[noreturn]] void Refuse(Stream& file, unsigned long code) {
  file.Refusal = code;
  Disk::Fail(code);
}

void Append(Stream& file, std::string_view bytes) {
  const unsigned long fault = Disk::CountCall();
  if (file.Refusal) Disk::Fail(*file.Refusal);
  if (fault != 0) bytes = bytes.substr(0, bytes.size() / 2);
  const std::size_t taken = Disk::Append(*file.Hold->File, bytes);
  file.Unsettled += taken;
  if (fault != 0) Refuse(file, fault);
  if (taken < bytes.size()) Refuse(file, kDiskIsFull);
}

void Settle(Stream& file) {
  const unsigned long fault = Disk::CountCall();
  if (file.Refusal) Disk::Fail(*file.Refusal);
  if (fault != 0) {
    Disk::Node& node = *file.Hold->File;
    Disk::Truncate(node, node.Bytes.size() - file.Unsettled / 2);
    Refuse(file, fault);
  }
  file.Unsettled = 0;
}

// The file that is to get another name.
Disk::NodePtr ToRename(const std::string& from) {
  CountCall();
  Disk::NodePtr node = Disk::Find(from);
  if (!node) Disk::Fail(kFileMissing);
  if (node->IsFolder) Disk::Fail(kAccessDenied);
  return node;
}

}  // namespace

namespace Files {

int FreeHandle() {
  for (int handle = 1; handle <= kLastHandle; ++handle) {
    if (!IsOpen(handle)) return handle;
  }
  throw RuntimeError(kBadFileNumber);
}

void Open(int handle, const std::string& name, Mode mode) {
  auto& slot = Slot(handle);
  if (slot) throw RuntimeError(kBadFileNumber);
  CountCall();
  Disk::NodePtr node = Disk::Find(name);
  if (!node && mode != Mode::Output) Disk::Fail(kFileMissing);
  if (node && (node->IsFolder || (node->ReadOnly && mode != Mode::Input))) Disk::Fail(kAccessDenied);
  auto file = std::make_unique<Stream>();
  file->Mode = mode;
  file->Hold = node ? Disk::Take(node, RightsOf(mode)) : Disk::Make(name, RightsOf(mode));
  node = file->Hold->File;
  if (mode == Mode::Output) Disk::Truncate(*node, 0);
  if (mode == Mode::Input) file->Reader = std::make_unique<LineReader>(ReadFrom(node));
  slot = std::move(file);
}

bool IsOpen(int handle) { return InRange(handle) && open_files[static_cast<std::size_t>(handle)] != nullptr; }

bool AtEnd(int handle) {
  const Stream& file = Opened(handle, Mode::Input);
  CountCall();
  return file.Reader->AtEnd();
}

std::string_view ReadLine(int handle) {
  const Stream& file = Opened(handle, Mode::Input);
  CountCall();
  if (const auto line = file.Reader->Read()) return *line;
  throw RuntimeError(kInputPastEnd);
}

std::string ReadAll(const std::string& name) {
  const int handle = FreeHandle();
  Open(handle, name, Mode::Input);
  std::string bytes = Slot(handle)->Hold->File->Bytes;
  Close(handle);
  return bytes;
}

void Write(int handle, std::string_view bytes) { Append(Opened(handle, Mode::Output), bytes); }

void WriteLine(int handle, std::string_view text) {
  Append(Opened(handle, Mode::Output), std::string(text).append("\r\n"));
}

void Flush(int handle) {
  Stream& file = Opened(handle, Mode::Output);
  Settle(file);
  file.Hold->File->Flushed = file.Hold->File->Bytes.size();
}

void Close(int handle) {
  if (!IsOpen(handle)) return;
  const auto file = std::move(open_files[static_cast<std::size_t>(handle)]);
  if (file->Unsettled > 0 || file->Refusal) Settle(*file);
}

void CloseAll() {
  for (int handle = 1; handle <= kLastHandle; ++handle) {
    try {
      Close(handle);
    } catch (const RuntimeError&) {
      // The program is ending: nobody is left to tell.
    }
  }
}

void Erase(const std::string& name) {
  CountCall();
  const Disk::NodePtr node = Disk::Find(name);
  if (!node) Disk::Fail(kFileMissing);
  if (node->IsFolder || node->ReadOnly) Disk::Fail(kAccessDenied);
  if (Disk::IsHeld(node)) Disk::Fail(kSharingViolation);
  Disk::Remove(name);
}

void Rename(const std::string& from, const std::string& to) {
  const Disk::NodePtr node = ToRename(from);
  const Disk::NodePtr taken = Disk::Find(to);
  if (Disk::IsHeld(node)) Disk::Fail(kSharingViolation);
  if (taken && taken != node) Disk::Fail(kNameTaken);
  Disk::Move(from, to);
}

void Replace(const std::string& from, const std::string& to) {
  const Disk::NodePtr node = ToRename(from);
  const Disk::NodePtr replaced = Disk::Find(to);
  if (replaced && (replaced->IsFolder || replaced->ReadOnly)) Disk::Fail(kAccessDenied);
  if (Disk::IsHeld(node) || (replaced && Disk::IsHeld(replaced))) Disk::Fail(kSharingViolation);
  if (replaced && replaced != node) Disk::Remove(to);
  Disk::Move(from, to);
}

std::uint64_t ChangedAt(const std::string& name) {
  try {
    const Disk::NodePtr node = Disk::Find(name);
    return node ? node->Changed : 0;
  } catch (const RuntimeError&) {
    return 0;
  }
}

bool IsFolder(const std::string& name) {
  try {
    const Disk::NodePtr node = Disk::Find(name);
    return node && node->IsFolder;
  } catch (const RuntimeError&) {
    return false;
  }
}

bool Exists(const std::string& name) {
  try {
    CountCall();
    const Disk::NodePtr node = Disk::Find(name);
    return node && !node->IsFolder;
  } catch (const RuntimeError&) {
    return false;
  }
}

}  // namespace Files
