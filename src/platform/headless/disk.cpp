// The tree is one map from upper-cased full names to files and folders, which is all that tests need.
#include "platform/headless/disk.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <map>
#include <vector>

#include "platform/headless/machine.h"
#include "platform/locale.h"
#include "platform/program.h"
#include "platform/references.h"
#include "platform/runtime_error.h"

namespace {

constexpr unsigned long kFileMissing = 2;
constexpr unsigned long kPathMissing = 3;
constexpr unsigned long kSharingViolation = 32;
constexpr unsigned long kNetPathMissing = 53;
constexpr unsigned long kInvalidName = 123;
constexpr std::size_t kLongestName = 32766, kLongestPart = 255;

struct Faults {
  int Nth = 0;  // 0: none
  unsigned long Code = 0;
  bool Permanent = false;
};

std::map<std::string, Disk::NodePtr> tree;
std::vector<std::weak_ptr<const Disk::Hold>> holds;
std::vector<Disk::HoldPtr> other_holds;
std::optional<std::size_t> space;
Faults faults;
int calls_to_fault = 0;
int call_count = 0;
std::uint64_t changes = 0;

bool IsDevice(const std::string& part) {
  static constexpr std::array<std::string_view, 4> kDevices = {"CON", "PRN", "AUX", "NUL"};
  std::string base = UpperCase(part.substr(0, part.find('.')));
  base.erase(base.find_last_not_of(' ') + 1);
  if (base.size() == 4 && (base.starts_with("COM") || base.starts_with("LPT"))) return base[3] >= '1' && base[3] <= '9';
  return std::find(kDevices.begin(), kDevices.end(), base) != kDevices.end();
}

void CheckPart(const std::string& part) {
  static constexpr std::string_view kForbidden = "<>:\"|?*";
  const bool bad = std::any_of(part.begin(), part.end(), [](char each) {
    return static_cast<unsigned char>(each) < 32 || kForbidden.find(each) != std::string_view::npos;
  });
  if (bad || IsDevice(part) || Widen(part).size() > kLongestPart) Disk::Fail(kInvalidName);
}

// Joins a name with the current folder, or with its drive when it opens with a separator.
std::string Absolute(std::string name) {
  std::replace(name.begin(), name.end(), '/', '\\');
  if (name.find('\0') != std::string::npos) Disk::Fail(kInvalidName);
  if (name.find_first_not_of(' ') == std::string::npos) throw RuntimeError(kPathFileAccess);
  if (name.starts_with("\\\\.\\") || name.starts_with("\\\\?\\")) Disk::Fail(kInvalidName);
  if (name.starts_with("\\\\")) Disk::Fail(kNetPathMissing);
  std::string drive = CurrentFolder().substr(0, 2);
  if (name.size() >= 2 && name[1] == ':') {
    drive = name.substr(0, 2);
    if (UpperCase(drive) != "C:") Disk::Fail(kPathMissing);
    name.erase(0, 2);
  }
  return name.starts_with('\\') ? drive + name : CurrentFolder() + '\\' + name;
}

// The full name in one form: separators single, "." and ".." resolved, without the blanks and dots that
// the system drops at the end. Keeps the case.
std::string FullName(const std::string& name) {
  const std::string text = Absolute(name);
  std::vector<std::string> parts;
  for (std::size_t at = 2; at < text.size();) {
    const std::size_t stop = std::min(text.find('\\', at), text.size());
    std::string part = text.substr(at, stop - at);
    at = stop + 1;
    if (part == "..") {
      if (!parts.empty()) parts.pop_back();
      continue;
    }
    part.erase(part.find_last_not_of(" .") + 1);
    if (part.empty()) continue;
    CheckPart(part);
    parts.push_back(part);
  }
  std::string result = "C:";
  for (const std::string& part : parts) result += '\\' + part;
  if (Widen(result).size() > kLongestName) Disk::Fail(kPathMissing);
  return parts.empty() ? "C:\\" : result;
}

std::string KeyOf(const std::string& name) { return UpperCase(FullName(name)); }

std::string LastPart(const std::string& full_name) { return full_name.substr(full_name.rfind('\\') + 1); }

bool FolderExists(const std::string& key) {
  const std::size_t end = key.rfind('\\');
  if (end <= 2) return true;
  const auto folder = tree.find(key.substr(0, end));
  return folder != tree.end() && folder->second->IsFolder;
}

bool Clash(const Disk::Sharing& one, const Disk::Sharing& other) {
  return (one.Reads && !other.LetsRead) || (one.Writes && !other.LetsWrite) || (other.Reads && !one.LetsRead) ||
         (other.Writes && !one.LetsWrite);
}

Disk::NodePtr Existing(const std::string& name) {
  Disk::NodePtr node = Disk::Find(name);
  if (!node) Disk::Fail(kFileMissing);
  return node;
}

}  // namespace

namespace Disk {

void Fail(unsigned long system_code) { throw RuntimeError(ErrorNumberOfSystemCode(system_code)); }

NodePtr Find(const std::string& name) {
  const std::string key = KeyOf(name);
  if (key == "C:\\") {
    static const NodePtr kRoot = std::make_shared<Node>(Node{"", true, false, ""});
    return kRoot;
  }
  if (!FolderExists(key)) Fail(kPathMissing);
  const auto found = tree.find(key);
  return found == tree.end() ? nullptr : found->second;
}

HoldPtr Take(const NodePtr& file, const Sharing& rights) {
  std::erase_if(holds, [](const auto& each) { return each.expired(); });
  for (const auto& each : holds) {
    const HoldPtr hold = each.lock();
    if (hold->File == file && Clash(hold->Rights, rights)) Fail(kSharingViolation);
  }
  auto taken = std::make_shared<const Hold>(Hold{file, rights});
  holds.push_back(taken);
  return taken;
}

bool IsHeld(const NodePtr& file) {
  return std::any_of(holds.begin(), holds.end(), [&](const auto& each) {
    const HoldPtr hold = each.lock();
    return hold && hold->File == file;
  });
}

NodePtr Add(const std::string& name, bool is_folder) {
  const std::string full_name = FullName(name);
  auto node = std::make_shared<Node>(Node{LastPart(full_name), is_folder, false, ""});
  node->Changed = ++changes;
  tree[UpperCase(full_name)] = node;
  return node;
}

HoldPtr Make(const std::string& name, const Sharing& rights) {
  const NodePtr node = Add(name, false);
  try {
    return Take(node, rights);
  } catch (...) {
    std::erase_if(tree, [&](const auto& each) { return each.second == node; });
    throw;
  }
}

void Remove(const std::string& name) {
  const auto found = tree.find(KeyOf(name));
  if (found == tree.end()) return;
  if (space) *space += found->second->Bytes.size();
  tree.erase(found);
}

void Move(const std::string& from, const std::string& to) {
  const std::string full_name = FullName(to);
  std::string name = LastPart(full_name);
  std::string key = UpperCase(full_name);
  auto moved = tree.extract(KeyOf(from));
  moved.mapped()->Name.swap(name);
  moved.key().swap(key);
  tree.insert(std::move(moved));
}

std::size_t Append(Node& file, std::string_view bytes) {
  const std::size_t taken = std::min(bytes.size(), space.value_or(bytes.size()));
  file.Bytes.append(bytes.substr(0, taken));
  file.Changed = ++changes;
  if (space) *space -= taken;
  return taken;
}

void Truncate(Node& file, std::size_t size) {
  if (space) *space += file.Bytes.size() - size;
  file.Bytes.resize(size);
  file.Changed = ++changes;
  file.Flushed = std::min(file.Flushed, size);
}

unsigned long CountCall() {
  ++call_count;
  if (calls_to_fault == 0) return 0;
  if (calls_to_fault > 1) {
    --calls_to_fault;
    return 0;
  }
  if (!faults.Permanent) calls_to_fault = 0;
  return faults.Code;
}

}  // namespace Disk

namespace Machine {

void PutFile(const std::string& name, std::string_view bytes) {
  Disk::NodePtr node = Disk::Find(name);
  if (!node) node = Disk::Add(name, false);
  node->Bytes = bytes;
  node->Flushed = bytes.size();
  node->Changed = ++changes;
}

void LosePower() {
  for (const auto& [key, node] : tree) node->Bytes.resize(node->Flushed);
}

void PutRealFile(const std::string& name, const std::string& real_path) {
  std::ifstream file(real_path, std::ios::binary);
  if (!file) Disk::Fail(kFileMissing);
  PutFile(name, std::string(std::istreambuf_iterator<char>(file), {}));
}

std::optional<std::string> FileBytes(const std::string& name) {
  try {
    const Disk::NodePtr node = Disk::Find(name);
    if (node && !node->IsFolder) return node->Bytes;
  } catch (const RuntimeError&) {
    // A name that cannot be is a file that is not there.
  }
  return std::nullopt;
}

void SetReadOnly(const std::string& name, bool read_only) { Existing(name)->ReadOnly = read_only; }

void MakeFolder(const std::string& name) {
  if (!Disk::Find(name)) Disk::Add(name, true);
}

void RemoveFolder(const std::string& name) {
  const std::string key = KeyOf(name);
  std::erase_if(tree, [&](const auto& each) { return each.first == key || each.first.starts_with(key + '\\'); });
}

std::vector<std::string> FilesIn(const std::string& folder) {
  const std::string key = KeyOf(folder);
  const std::string prefix = key.ends_with('\\') ? key : key + '\\';
  std::vector<std::string> names;
  for (const auto& [full_name, node] : tree) {
    const bool inside = full_name.starts_with(prefix) && full_name.find('\\', prefix.size()) == std::string::npos;
    if (inside && !node->IsFolder) names.push_back(node->Name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

void HoldByOther(const std::string& name, bool against_readers) {
  const Disk::Sharing rights{against_readers, true, !against_readers, false};
  other_holds.push_back(Disk::Take(Existing(name), rights));
}

void ReleaseByOther() { other_holds.clear(); }

void FailFileCall(int nth, unsigned long system_code, bool permanent) {
  faults = {nth, system_code, permanent};
  calls_to_fault = nth;
}

int FileCallCount() { return call_count; }

void ClearFaults() {
  calls_to_fault = 0;
  call_count = 0;
  space.reset();
}

void DiskSpace(std::size_t bytes) { space = bytes; }

}  // namespace Machine
