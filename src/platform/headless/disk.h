// The in-memory tree of files, and the sharing of handles on them by the rules of Windows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace Disk {

struct Node {
  std::string Name;  // as it was first written, without the folder
  bool IsFolder = false;
  bool ReadOnly = false;
  std::string Bytes;
  std::size_t Flushed = 0;    // bytes that would outlive a loss of power
  std::uint64_t Changed = 0;  // how many changes of files there had been when it was last written
};
using NodePtr = std::shared_ptr<Node>;

// What a handle does, and what it lets others do at the same time.
struct Sharing {
  bool Reads = false;
  bool Writes = false;
  bool LetsRead = false;
  bool LetsWrite = false;
};

// A handle's hold on a file, for as long as it lives.
struct Hold {
  NodePtr File;
  Sharing Rights;
};
using HoldPtr = std::shared_ptr<const Hold>;

// Throws the runtime error of a Windows error code.
[[noreturn]] void Fail(unsigned long system_code);

// The file or folder of that name, null when there is none. Throws when the name or its folder is no good.
NodePtr Find(const std::string& name);

// Throws when the rights clash with those of the handles that others hold on the file.
HoldPtr Take(const NodePtr& file, const Sharing& rights);
bool IsHeld(const NodePtr& file);

// The name is known to be free.
NodePtr Add(const std::string& name, bool is_folder);
HoldPtr Make(const std::string& name, const Sharing& rights);  // a file, and the first hold on it
void Remove(const std::string& name);
void Move(const std::string& from, const std::string& to);

// Adds as many of the bytes as there is space for, and tells how many.
std::size_t Append(Node& file, std::string_view bytes);
void Truncate(Node& file, std::size_t size);

// Counts a file call; gives the system code that it is to fail with, or 0.
unsigned long CountCall();

}  // namespace Disk
