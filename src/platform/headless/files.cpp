// Files in memory: those of the tree of disk.h, failing as the real ones do.
#include <utility>

#include "platform/headless/disk.h"
#include "platform/runtime_error.h"
#include "platform/system_file.h"

namespace {

constexpr unsigned long kFileMissing = 2;
constexpr unsigned long kAccessDenied = 5;
constexpr unsigned long kSharingViolation = 32;
constexpr unsigned long kDiskIsFull = 112;
constexpr unsigned long kNameTaken = 183;

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

class DiskFile : public SystemFile {
 public:
  void Take(Disk::HoldPtr hold) { hold_ = std::move(hold); }

  std::uint64_t Size() override { return Node().Bytes.size(); }

  std::size_t Read(char* block, std::size_t size) override {
    CountCall();
    if (position_ >= Node().Bytes.size()) return 0;
    const std::size_t count = Node().Bytes.copy(block, size, position_);
    position_ += count;
    return count;
  }

  // One that fails leaves half of the bytes.
  void Write(std::string_view bytes) override {
    const unsigned long fault = Disk::CountCall();
    if (fault != 0) bytes = bytes.substr(0, bytes.size() / 2);
    const std::size_t taken = Disk::Append(Node(), bytes);
    unsettled_ += taken;
    if (fault != 0) Disk::Fail(fault);
    if (taken < bytes.size()) Disk::Fail(kDiskIsFull);
  }

  void Flush() override {
    Settle();
    Node().Flushed = Node().Bytes.size();
  }

  void Close() override {
    if (unsettled_ > 0) Settle();
  }

 private:
  Disk::Node& Node() const { return *hold_->File; }

  void Settle() {
    if (const unsigned long fault = Disk::CountCall(); fault != 0) {
      Disk::Truncate(Node(), Node().Bytes.size() - unsettled_ / 2);
      Disk::Fail(fault);
    }
    unsettled_ = 0;
  }

  Disk::HoldPtr hold_;
  std::size_t position_ = 0;
  std::size_t unsettled_ = 0;  // bytes written since the last Flush
};

// The file that is to get another name.
Disk::NodePtr ToRename(const std::string& from) {
  CountCall();
  Disk::NodePtr node = Disk::Find(from);
  if (!node) Disk::Fail(kFileMissing);
  if (node->IsFolder) Disk::Fail(kAccessDenied);
  return node;
}

}  // namespace

std::unique_ptr<SystemFile> SystemFile::Open(const std::string& name, Files::Mode mode) {
  CountCall();
  const Disk::NodePtr node = Disk::Find(name);
  if (!node && mode != Files::Mode::Output) Disk::Fail(kFileMissing);
  if (node && (node->IsFolder || (node->ReadOnly && mode != Files::Mode::Input))) Disk::Fail(kAccessDenied);
  auto file = std::make_unique<DiskFile>();  // first: once the file is open, nothing may fail any more
  const Disk::HoldPtr hold = node ? Disk::Take(node, RightsOf(mode)) : Disk::Make(name, RightsOf(mode));
  if (mode == Files::Mode::Output) Disk::Truncate(*hold->File, 0);
  file->Take(hold);
  return file;
}

namespace Files {

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
